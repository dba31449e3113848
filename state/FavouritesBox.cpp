#include "state/FavouritesBox.h"

#include "platform/kernel/CKvMessageBox.h"
#include "state/Dlg_QT_RemoveFavorits.h"
#include "state/FavouriteStore.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QSignalBlocker>

using ortakit::FavouriteStore;

namespace {

/// Entries that say nothing of what the user chose.
bool isPassedOver(const QString &key)
{
    static const QStringList keys = {QStringLiteral("qt_spinbox_lineedit"), QStringLiteral("buttoncancel"),
                                     QStringLiteral("acceptbutton"), QStringLiteral("btn_preview"),
                                     QStringLiteral("qtentities")};
    return key.isEmpty() || keys.contains(key.toLower());
}

QString translated(const char *text)
{
    return QCoreApplication::translate("LispExtension", text);
}

} // namespace

FavouritesBox::FavouritesBox(QDialog *dialog, DialogState &state, const QString &group, const Widgets &widgets)
    : QObject(dialog), m_dialog(dialog), m_state(state), m_group(group), m_widgets(widgets)
{
    // A name is kept when it is saved, not when Enter is pressed behind it.
    m_widgets.names->setInsertPolicy(QComboBox::NoInsert);
    connect(m_widgets.names, &QComboBox::textActivated, this, &FavouritesBox::load);
    connect(m_widgets.save, &QAbstractButton::clicked, this, &FavouritesBox::save);
    connect(m_widgets.remove, &QAbstractButton::clicked, this, &FavouritesBox::remove);
}

void FavouritesBox::setIcon(const QIcon &icon)
{
    m_icon = icon;
    for (int item = 0; item < m_widgets.names->count(); ++item)
        m_widgets.names->setItemIcon(item, icon);
}

void FavouritesBox::refresh()
{
    const QSignalBlocker noSignals(m_widgets.names);
    m_widgets.names->clear();
    for (const QString &name : FavouriteStore(m_group).names())
        m_widgets.names->addItem(m_icon, name);
    leaveNameEmpty();
}

void FavouritesBox::save()
{
    QComboBox &names = *m_widgets.names;
    const QString name = names.currentText();
    if (name.isEmpty()) {
        CKvMessageBox::information(m_dialog, translated("Favorites"), translated("Favorite name is required."));
        return;
    }
    const bool isKnown = names.findText(name, Qt::MatchExactly | Qt::MatchCaseSensitive) >= 0;
    if (isKnown &&
        CKvMessageBox::question(m_dialog, translated("Favorites"),
                                translated("Favorite \"%1\" already exists. Do you want to replace it?").arg(name)) !=
            QMessageBox::Yes)
        return;
    m_state.save(name, m_group);
    if (names.findText(name, Qt::MatchFixedString) < 0)
        names.addItem(m_icon, name);
    leaveNameEmpty();
}

void FavouritesBox::load(const QString &name)
{
    QStringList lines;
    for (const auto &[key, value] : FavouriteStore(m_group).load(name)) {
        if (!isPassedOver(key))
            lines.append(key + u'=' + value);
    }
    m_state.setLines(lines);
    m_state.apply();
    m_widgets.names->setCurrentText(name);
    emit loaded(name);
}

void FavouritesBox::remove()
{
    Dlg_QT_RemoveFavorits dialog(m_dialog, m_group);
    dialog.exec();
    QComboBox &names = *m_widgets.names;
    for (const QString &name : dialog.removedNames()) {
        const int item = names.findText(name, Qt::MatchExactly | Qt::MatchCaseSensitive);
        if (item >= 0)
            names.removeItem(item);
    }
    if (!dialog.removedNames().isEmpty())
        leaveNameEmpty();
}

void FavouritesBox::leaveNameEmpty()
{
    m_widgets.names->setCurrentIndex(-1);
    m_widgets.names->clearEditText();
    m_widgets.remove->setEnabled(m_widgets.names->count() > 0);
}
