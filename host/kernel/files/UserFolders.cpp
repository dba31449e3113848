#include "host/kernel/files/UserFolders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace host::kernel {

namespace {

QString ownFolderIn(QStandardPaths::StandardLocation location)
{
    return QDir::cleanPath(QStandardPaths::writableLocation(location) + QStringLiteral("/ortakit"));
}

} // namespace

UserFolders userFolders(const QString &wanted)
{
    const QString home = wanted.isEmpty() ? qEnvironmentVariable("ORTAKIT_HOME") : wanted;
    if (home.isEmpty())
        return {ownFolderIn(QStandardPaths::GenericDataLocation), ownFolderIn(QStandardPaths::GenericConfigLocation),
                ownFolderIn(QStandardPaths::GenericCacheLocation)};
    const QString folder = QDir::cleanPath(QDir(home).absolutePath());
    return {folder, folder, folder + QStringLiteral("/cache")};
}

QString settingsFile(const UserFolders &folders, const QString &name)
{
    const QString now = folders.settings + u'/' + name;
    const QString before = folders.data + u'/' + name;
    if (QFileInfo::exists(now) || !QFileInfo::exists(before))
        return now;
    // Another program that starts at the same time may have moved it since.
    const bool isMoved =
        !QFileInfo(before).isSymLink() && QDir().mkpath(folders.settings) && QFile::rename(before, now);
    return isMoved || QFileInfo::exists(now) ? now : before;
}

} // namespace host::kernel
