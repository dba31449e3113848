#include "state/FavouriteStore.h"

#include <QCoreApplication>
#include <QSettings>
#include <QUrl>

namespace ortakit {

namespace {

/// What names the settings of a host without an application name.
QString organisation()
{
    const QString name = QCoreApplication::applicationName();
    return name.isEmpty() ? QStringLiteral("Ortakit") : name;
}

/// The name as one group: in the settings a slash would open a group inside.
QString groupName(QString name)
{
    return name.replace(u'%', QLatin1String("%25"))
        .replace(u'/', QLatin1String("%2F"))
        .replace(u'\\', QLatin1String("%5C"));
}

QString favouriteName(const QString &group)
{
    return QUrl::fromPercentEncoding(group.toUtf8());
}

} // namespace

FavouriteStore::FavouriteStore(const QString &group)
    : m_settings(std::make_unique<QSettings>(organisation(), QStringLiteral("Ortakit")))
{
    m_settings->setFallbacksEnabled(false);
    m_settings->beginGroup(group);
}

FavouriteStore::~FavouriteStore() = default;

QStringList FavouriteStore::names() const
{
    QStringList names = m_settings->childGroups();
    for (QString &name : names)
        name = favouriteName(name);
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
    remove(name);
    m_settings->beginGroup(groupName(name));
    for (const auto &[key, value] : entries)
        m_settings->setValue(key, value);
    m_settings->endGroup();
}

void FavouriteStore::remove(const QString &name)
{
    m_settings->remove(groupName(name));
}

} // namespace ortakit
