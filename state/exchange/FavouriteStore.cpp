#include "state/exchange/FavouriteStore.h"

#include "files/qt/SettingsFile.h"
#include "state/host/CommandLineText.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSettings>

namespace ortakit {

namespace {

/// What names the settings of a host without an application name.
QString organisation()
{
    const QString name = QCoreApplication::applicationName();
    return name.isEmpty() ? QStringLiteral("Ortakit") : name;
}

const QString application = QStringLiteral("Ortakit");

/// Where the settings are, without reading them.
QString settingsPath()
{
    const QFileInfo other(QSettings(organisation(), application + QStringLiteral(" place")).fileName());
    return other.dir().filePath(application + u'.' + other.suffix());
}

/// Settings without a file where what is there is none.
std::unique_ptr<QSettings> openSettings()
{
    if (files::isSettingsFile(settingsPath()))
        return std::make_unique<QSettings>(organisation(), application);
    return std::make_unique<QSettings>(QString(), QSettings::IniFormat);
}

/// A name with slashes is a group within groups, each of which may be a favourite as well. One of nothing else would be
/// the tool's own group.
QString groupName(const QString &name)
{
    const bool isSlashes = name.count(u'/') == name.size();
    return isSlashes ? QString(name).replace(u'/', u'\u2215') : name;
}

void addNames(QSettings &settings, const QString &outer, QStringList &names)
{
    for (const QString &group : settings.childGroups()) {
        const QString name = outer + group;
        settings.beginGroup(group);
        if (!settings.childKeys().isEmpty())
            names.append(name);
        addNames(settings, name + u'/', names);
        settings.endGroup();
    }
}

} // namespace

FavouriteStore::FavouriteStore(const QString &group) : m_group(group), m_settings(openSettings())
{
    m_settings->setFallbacksEnabled(false);
    m_settings->beginGroup(group);
}

FavouriteStore::~FavouriteStore() = default;

QStringList FavouriteStore::names() const
{
    QStringList names;
    addNames(*m_settings, {}, names);
    return names;
}

QList<FavouriteStore::Entry> FavouriteStore::load(const QString &name) const
{
    QList<Entry> entries;
    m_settings->beginGroup(groupName(name));
    for (const QString &key : m_settings->childKeys())
        entries.append({key, m_settings->value(key).toString()});
    m_settings->endGroup();
    return entries;
}

void FavouriteStore::save(const QString &name, const QList<Entry> &entries)
{
    change(name, [&](QSettings &settings) {
        for (const auto &[key, value] : entries)
            settings.setValue(key, value);
    });
}

void FavouriteStore::remove(const QString &name)
{
    change(name, [](QSettings &) {});
}

/// Takes away what the favourite holds and lets `body` fill it again, in its group.
void FavouriteStore::change(const QString &name, const std::function<void(QSettings &)> &body)
{
    const QString reason = files::changeSettings(settingsPath(), [&](QSettings &settings) {
        settings.beginGroup(m_group);
        settings.beginGroup(groupName(name));
        for (const QString &key : settings.childKeys())
            settings.remove(key);
        body(settings);
        settings.endGroup();
        settings.endGroup();
    });
    tellNotWritten(settingsPath(), reason);
    m_settings->sync();
}

} // namespace ortakit
