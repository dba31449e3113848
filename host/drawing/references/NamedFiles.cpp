#include "host/drawing/references/NamedFiles.h"

#include "host/drawing/tags/DrawingTexts.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace host::drawing {

bool isBelow(const QString &path, const QString &folder)
{
    const QString file = QFileInfo(path).canonicalFilePath();
    const QString top = QFileInfo(folder).canonicalFilePath();
    return !file.isEmpty() && !top.isEmpty() && (file == top || file.startsWith(top.endsWith(u'/') ? top : top + u'/'));
}

QStringList externalNames(const QString &path)
{
    using namespace Qt::StringLiterals;
    const QString whole = QString(path).replace(u'\\', u'/');
    const QString bare = whole.section(u'/', -1);
    QStringList names{whole, bare};
    if (bare.endsWith(".dwg"_L1, Qt::CaseInsensitive))
        names += {whole.chopped(4) + ".dxf"_L1, bare.chopped(4) + ".dxf"_L1};
    else if (!bare.contains(u'.'))
        names += {whole + ".dxf"_L1, bare + ".dxf"_L1, whole + ".dwg"_L1, bare + ".dwg"_L1};
    return names;
}

FileFinder namedFilesWithin(const Drawing &drawing, FileFinder ofHost)
{
    return [own = namedFiles(drawing), ofHost = std::move(ofHost)](const QString &name) {
        const QString path = own(name);
        return path.isEmpty() ? ofHost(name) : path;
    };
}

namespace {

constexpr qsizetype longestName = 4096; // what systems take

/// One looking for a file.
struct Search
{
    const ReadableFiles &readable;
    const QStringList &folders; ///< to look in, and what is below them may be read
    QString refused{};          ///< one that is there and may not be

    QString exactly(const QString &name);
    QString inOtherCase(const QString &name);

private:
    /// The file's path where it may be read; else it is the one that was refused.
    QString allowed(const QFileInfo &file);
};

QString Search::allowed(const QFileInfo &file)
{
    const QString path = file.canonicalFilePath();
    if (readable.files.contains(path) ||
        std::ranges::any_of(folders, [&](const QString &folder) { return isBelow(path, folder); }))
        return path;
    refused = path;
    return {};
}

QString Search::exactly(const QString &name)
{
    // What lies in the working folder only is found to be told of, or when the user named it.
    for (const QString &folder : folders + QStringList{QDir::currentPath()}) {
        const QFileInfo info(QDir(folder), name);
        if (!info.isFile())
            continue;
        if (const QString path = allowed(info); !path.isEmpty())
            return path;
    }
    return {};
}

/// The folder from which on the letters' case of a full path is left open: the one among `folders` that it is below,
/// else the last on the way that is there.
QString knownPart(const QString &path, const QStringList &folders)
{
    for (const QString &folder : folders)
        if (path.startsWith(folder + u'/'))
            return folder;
    QString known = path;
    do
        known = known.section(u'/', 0, -2);
    while (!known.isEmpty() && !QFileInfo(known).isDir());
    return known;
}

QString Search::inOtherCase(const QString &name)
{
    for (const QString &folder : folders) {
        const QString path = QDir::cleanPath(QDir(folder).absoluteFilePath(name));
        const QString known = knownPart(path, folders);
        QStringList files;
        for (const QString &found : readable.names->alike(known + u'/', path.sliced(known.size())))
            if (QFileInfo(found).isFile())
                files.append(found);
        if (files.size() == 1)
            return allowed(QFileInfo(files.front()));
        if (!files.isEmpty())
            return {};
    }
    return {};
}

} // namespace

FileFinder namedFiles(const Drawing &drawing, ReadableFiles readable)
{
    if (!readable.names)
        readable.names = std::make_shared<FolderNames>();
    return [&drawing, readable = std::move(readable)](const QString &asked) {
        // Drawings come from systems with either separator.
        const QString name = QString(asked).replace(u'\\', u'/');
        const QDir own = drawing.path().isEmpty() ? QDir() : QFileInfo(drawing.path()).absoluteDir();
        QStringList folders{own.absolutePath()};
        folders += readable.folders;
        if (name.isEmpty() || name.size() > longestName)
            return QString();
        Search search{readable, folders};
        if (const QString path = search.exactly(name); !path.isEmpty())
            return path;
        if (const QString path = search.inOtherCase(name); !path.isEmpty())
            return path;
        if (!search.refused.isEmpty() && readable.refused)
            readable.refused(search.refused,
                             DrawingTexts::tr("it is not in the drawing's folder. READPATHS, or the option "
                                              "--allow-read, names folders whose files drawings may name"));
        return QString();
    };
}

} // namespace host::drawing
