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

bool SettingsStore::setText(const QString &globalName, const QString &localName, const QString &value)
{
    const QString reason = files::changeSettings(
        m_path, [&](QSettings &settings) { settings.setValue(keyOf(globalName, localName), value); });
    // What was remembered of the file goes.
    if (files::isSettingsFile(m_path))
        QSettings(m_path, QSettings::IniFormat).sync();
    return reason.isEmpty();
}

} // namespace host::kernel
