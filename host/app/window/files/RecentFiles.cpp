#include "host/app/window/files/RecentFiles.h"

#include "files/qt/SettingsFile.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

// The keys of the two lists in the file.
const QString recentKey = u"recent"_s;
const QString pinnedKey = u"pinned"_s;
/// A file that somebody else has written may say anything.
constexpr qsizetype mostPinned = 100;

QList<RecentFile> readRecent(const QSettings &settings)
{
    QList<RecentFile> files;
    for (const bool isPinned : {true, false}) {
        const QStringList paths = settings.value(isPinned ? pinnedKey : recentKey).toStringList();
        for (const QString &path : paths.first(std::min(paths.size(), isPinned ? mostPinned : RecentFiles::most)))
            if (QDir::isAbsolutePath(path))
                files.append({path, isPinned});
    }
    return files;
}

void writeRecent(QSettings &settings, const QList<RecentFile> &files)
{
    QStringList pinned;
    QStringList others;
    for (const RecentFile &file : files)
        (file.isPinned ? pinned : others).append(file.path);
    settings.setValue(pinnedKey, pinned);
    settings.setValue(recentKey, others.first(std::min(others.size(), RecentFiles::most)));
}

/// Whether the path was in the list, pinned.
bool takeRecent(QList<RecentFile> &files, const QString &path)
{
    const bool wasPinned = files.contains(RecentFile{path, true});
    files.removeIf([&](const RecentFile &file) { return file.path == path; });
    return wasPinned;
}

} // namespace

RecentFiles::RecentFiles(const QString &folder, QObject *parent)
    : QObject(parent), m_file(QDir(folder).filePath(u"workbench.ini"_s))
{
}

QList<RecentFile> RecentFiles::all() const
{
    return files::isSettingsFile(m_file) ? readRecent(QSettings(m_file, QSettings::IniFormat)) : QList<RecentFile>();
}

void RecentFiles::change(const std::function<void(QList<RecentFile> &)> &work)
{
    const QString problem = files::changeSettings(m_file, [&](QSettings &settings) {
        QList<RecentFile> files = readRecent(settings);
        work(files);
        writeRecent(settings, files);
    });
    if (problem.isEmpty())
        emit changed();
}

void RecentFiles::add(const QString &path)
{
    const QString file = QFileInfo(path).absoluteFilePath();
    const QList<RecentFile> now = all();
    const auto first = std::ranges::find(now, file, &RecentFile::path);
    if (first != now.end() && (first == now.begin() || (!first->isPinned && std::prev(first)->isPinned)))
        return; // it is there already: the file need not be written
    change([&](QList<RecentFile> &files) {
        const bool wasPinned = takeRecent(files, file);
        files.prepend({file, wasPinned});
    });
}

void RecentFiles::setPinned(const QString &path, bool isPinned)
{
    change([&](QList<RecentFile> &files) {
        takeRecent(files, path);
        files.prepend({path, isPinned});
    });
}

void RecentFiles::remove(const QString &path)
{
    change([&](QList<RecentFile> &files) { takeRecent(files, path); });
}

void RecentFiles::clear()
{
    change([](QList<RecentFile> &files) { files.removeIf([](const RecentFile &file) { return !file.isPinned; }); });
}

} // namespace host::app
