#include "state/exchange/DialogState.h"

#include "state/exchange/FavouriteStore.h"
#include "state/exchange/StateFile.h"
#include "state/exchange/WidgetValue.h"
#include "state/host/ModuleFolder.h"

#include <QDialog>
#include <QPointer>

namespace {

QString actionLine(const QString &action)
{
    const QString separator = action.contains(u'=') ? QString() : QStringLiteral("=");
    return QStringLiteral("!action!") + separator + action + u'\n';
}

} // namespace

DialogState::DialogState(QDialog *dialog) : m_dialog(dialog)
{
    m_favouritesFolder = ortakit::makeModuleFolder(QStringLiteral("Favorites"));
    dialog->setWindowFlag(Qt::WindowContextHelpButtonHint, false);
}

void DialogState::load(const QString &path)
{
    m_lastFile.assign({});
    const QRect place = m_dialog->geometry();
    // A window whose geometry was set is not centred over its parent when it is shown again.
    if (place.x() != 0 && place.y() != 0)
        m_dialog->setGeometry(place);
    if (path.isEmpty())
        return;
    m_path = path;
    const auto lines = ortakit::readStateFile(path);
    if (!lines)
        return;
    m_lastFile.assign(*lines);
    for (const QString &line : *lines)
        m_lines.merge(line);
}

void DialogState::apply(const QString &nameFilter, const QStringList &excluded)
{
    const QString onlyName = nameFilter.toLower();
    const QList<QWidget *> all = widgets();
    // Setting one widget may run a slot that deletes others.
    const QList<QPointer<QWidget>> living(all.cbegin(), all.cend());
    for (const QPointer<QWidget> &widget : living) {
        const QString name = widget ? widget->objectName().toLower() : QString();
        if (name.isEmpty() || (!onlyName.isEmpty() && name != onlyName))
            continue;
        const QString value = lookup(name);
        if (!value.isEmpty() && !excluded.contains(name + u'='))
            ortakit::applyValue(*widget, value);
    }
    m_loaded = true;
}

void DialogState::applyLastFile()
{
    QStringList notInFile;
    for (const QWidget *widget : widgets()) {
        const QString name = widget->objectName().toLower();
        if (lookupInLastFile(name).isEmpty())
            notInFile.append(name + u'=');
    }
    apply({}, notInFile);
}

QStringList DialogState::lookupList(const QString &key) const
{
    return m_lines.lookupNumbered(key, lookup(key + QStringLiteral("length")).toInt());
}

void DialogState::save(const QString &favouriteName, const QString &favouriteGroup) const
{
    if (favouriteName.isEmpty())
        saveFile();
    else
        saveFavourite(favouriteName, favouriteGroup);
}

void DialogState::saveFavourite(const QString &name, const QString &group) const
{
    QList<ortakit::FavouriteStore::Entry> entries;
    for (const QWidget *widget : widgets()) {
        const QString key = widget->objectName().toLower();
        const QString value = m_keptValues.value(key, ortakit::writtenValue(*widget));
        if (!key.isEmpty() && !value.isEmpty())
            entries.append({key, value});
    }
    ortakit::FavouriteStore(group).save(name, entries);
}

void DialogState::saveFile() const
{
    QString text;
    QMap<QString, QString> besideWidgets = m_writtenValues;
    for (const QWidget *widget : widgets()) {
        besideWidgets.remove(widget->objectName().toLower());
        const QString lines = linesOf(*widget);
        const bool isFirst = text.isEmpty() && !lines.isEmpty();
        text += lines;
        if (isFirst)
            text += actionLine(m_action);
    }
    for (const auto &[name, value] : besideWidgets.asKeyValueRange())
        text += value.isEmpty() ? QString() : name + u'=' + value + u'\n';
    ortakit::writeStateFile(m_path, text);
}

/// The lines that `widget` writes; empty when it does not take part now.
QString DialogState::linesOf(const QWidget &widget) const
{
    const QString name = widget.objectName().toLower();
    if (name.isEmpty())
        return {};
    const auto instead = m_writtenValues.constFind(name);
    const QString value = instead != m_writtenValues.cend() ? *instead : ortakit::writtenValue(widget);
    if (value.isEmpty())
        return {};
    QString lines = name + u'=' + value + u'\n';
    const QString index = ortakit::writtenIndex(widget);
    if (!index.isEmpty())
        lines += name + QStringLiteral("_index=") + index + u'\n';
    return lines;
}

QList<QWidget *> DialogState::widgets() const
{
    return m_dialog->findChildren<QWidget *>();
}
