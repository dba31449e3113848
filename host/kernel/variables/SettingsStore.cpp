#include "host/kernel/variables/SettingsStore.h"

#include "files/qt/SettingsFile.h"

#include <QSettings>

namespace host::kernel {

namespace {

QString keyOf(const QString &globalName, const QString &localName)
{
    return globalName + u'/' + localName;
}

} // namespace

QString SettingsStore::text(const QString &globalName, const QString &localName) const
{
    if (!files::isSettingsFile(m_path))
        return {};
    return QSettings(m_path, QSettings::IniFormat).value(keyOf(globalName, localName)).toString();
}

QHash<QString, QString> SettingsStore::texts(const QString &globalName) const
{
    QHash<QString, QString> all;
    if (!files::isSettingsFile(m_path))
        return all;
    QSettings settings(m_path, QSettings::IniFormat);
    settings.beginGroup(globalName);
    for (const QString &name : settings.childKeys())
        all.insert(name, settings.value(name).toString());
    return all;
}

bool SettingsStore::setText(const QString &globalName, const QString &localName, const QString &value)
{
    return setTexts(globalName, {{localName, value}});
}

bool SettingsStore::setTexts(const QString &globalName, const QHash<QString, QString> &values)
{
    return change([&](QSettings &settings) {
        for (auto value = values.cbegin(); value != values.cend(); ++value)
            settings.setValue(keyOf(globalName, value.key()), *value);
    });
}

bool SettingsStore::remove(const QString &globalName, const QString &localName)
{
    return change(
        [&](QSettings &settings) { settings.remove(localName.isEmpty() ? globalName : keyOf(globalName, localName)); });
}

bool SettingsStore::change(const std::function<void(QSettings &)> &work)
{
    const QString reason = files::changeSettings(m_path, work);
    // What was remembered of the file goes.
    if (files::isSettingsFile(m_path))
        QSettings(m_path, QSettings::IniFormat).sync();
    return reason.isEmpty();
}

} // namespace host::kernel
