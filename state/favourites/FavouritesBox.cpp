#include "state/favourites/FavouritesBox.h"

#include "formats/Translated.h"
#include "platform/kernel/CKvMessageBox.h"
#include "state/exchange/FavouriteStore.h"
#include "state/favourites/Dlg_QT_RemoveFavorits.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QSignalBlocker>

using ortakit::FavouriteStore;
using ortakit::translated;

namespace {

/// Entries that say nothing of what the user chose.
bool isPassedOver(const QString &key)
{
    static const QStringList keys = {QStringLiteral("qt_spinbox_lineedit"), QStringLiteral("buttoncancel"),
                                     QStringLiteral("acceptbutton"), QStringLiteral("btn_preview"),
                                     QStringLiteral("qtentities")};
    return key.isEmpty() || keys.contains(key.toLower());
}

} // namespace

FavouritesBox::FavouritesBox(QDialog *dialog, DialogState &state, const QString &group, const Widgets &widgets)
    : QObject(dialog), m_dialog(dialog), m_state(state), m_group(group), m_widgets(widgets)
{
    // A name is kept when it is saved, not when Enter is pressed behind it.
    m_widgets.names->setInsertPolicy(QComboBox::NoInsert);
    // Left with a known name in its field, or completing one, the box would load that favourite over the values that
    // are about to be saved under it.
    disconnect(m_widgets.names->lineEdit(), &QLineEdit::editingFinished, m_widgets.names, nullptr);
    m_widgets.names->setCompleter(nullptr);
    m_widgets.names->installEventFilter(this);
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
    if (itemOf(name) >= 0 &&
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
    QStringList ownLines; // behind the others: a name such as "door width=900" must not answer for the width
    for (const auto &[key, value] : FavouriteStore(m_group).load(name)) {
        const bool isOwn = key.compare(m_widgets.names->objectName(), Qt::CaseInsensitive) == 0;
        if (!isPassedOver(key))
            (isOwn ? ownLines : lines).append(key + u'=' + value);
    }
    lines += ownLines;
    emit loading(name);
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
        const int item = itemOf(name);
        if (item >= 0)
            names.removeItem(item);
    }
    if (!dialog.removedNames().isEmpty())
        leaveNameEmpty();
}

bool FavouritesBox::eventFilter(QObject *watched, QEvent *event)
{
    const int key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent *>(event)->key() : 0;
    const bool isEnter = key == Qt::Key_Return || key == Qt::Key_Enter;
    return (isEnter && takeTypedName()) || QObject::eventFilter(watched, event);
}

bool FavouritesBox::takeTypedName()
{
    QComboBox &names = *m_widgets.names;
    const int item = itemOf(names.currentText());
    const bool isPicked = item >= 0 && item == names.currentIndex();
    if (names.currentText().isEmpty() || isPicked)
        return false;
    if (item >= 0) {
        names.setCurrentIndex(item);
        load(names.itemText(item));
    } else {
        save();
    }
    return true;
}

int FavouritesBox::itemOf(const QString &name) const
{
    return m_widgets.names->findText(name, Qt::MatchExactly | Qt::MatchCaseSensitive);
}

void FavouritesBox::leaveNameEmpty()
{
    m_widgets.names->setCurrentIndex(-1);
    m_widgets.names->clearEditText();
    m_widgets.remove->setEnabled(m_widgets.names->count() > 0);
}
