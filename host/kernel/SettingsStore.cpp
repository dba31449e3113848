#include "host/kernel/SettingsStore.h"

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
    return QSettings(m_path, QSettings::IniFormat).value(keyOf(globalName, localName)).toString();
}

bool SettingsStore::setText(const QString &globalName, const QString &localName, const QString &value)
{
    QSettings settings(m_path, QSettings::IniFormat);
    settings.setValue(keyOf(globalName, localName), value);
    settings.sync();
    return settings.status() == QSettings::NoError;
}

} // namespace host::kernel
