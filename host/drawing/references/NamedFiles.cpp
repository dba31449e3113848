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

FileFinder namedFiles(const Drawing &drawing, ReadableFiles readable)
{
    return [&drawing, readable = std::move(readable)](const QString &asked) {
        // Drawings come from systems with either separator.
        const QString name = QString(asked).replace(u'\\', u'/');
        const QDir own = drawing.path().isEmpty() ? QDir() : QFileInfo(drawing.path()).absoluteDir();
        QStringList folders{own.absolutePath()};
        folders += readable.folders;
        if (name.isEmpty())
            return QString();
        QString refused;
        // What lies in the working folder only is found to be told of, or when the user named it.
        for (const QString &folder : folders + QStringList{QDir::currentPath()}) {
            const QFileInfo info(QDir(folder), name);
            if (!info.isFile())
                continue;
            const QString path = info.canonicalFilePath();
            if (readable.files.contains(path) ||
                std::any_of(folders.begin(), folders.end(),
                            [&](const QString &allowed) { return isBelow(path, allowed); }))
                return path;
            refused = path;
        }
        if (!refused.isEmpty() && readable.refused)
            readable.refused(refused, DrawingTexts::tr("it is not in the drawing's folder. READPATHS, or the option "
                                                       "--allow-read, names folders whose files drawings may name"));
        return QString();
    };
}

} // namespace host::drawing
