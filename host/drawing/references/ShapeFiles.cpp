#include "host/drawing/references/ShapeFiles.h"

#include "files/qt/Files.h"
#include "host/drawing/records/Symbols.h"
#include "host/drawing/records/Tables.h"

#include <QDateTime>
#include <QFileInfo>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 largestShapeFile = 16 * 1024 * 1024;

/// Files are named with their ending or without it.
QString withoutEnding(const QString &name)
{
    const bool hasEnding =
        name.endsWith(".shx"_L1, Qt::CaseInsensitive) || name.endsWith(".shp"_L1, Qt::CaseInsensitive);
    return hasEnding ? name.chopped(4) : name;
}

std::shared_ptr<const ShapeFile> readFile(const QString &path)
{
    const files::WholeBytes file = files::readWhole(path, largestShapeFile);
    if (!file)
        return nullptr;
    auto read = std::make_shared<const ShapeFile>(readShapeFile(file.bytes));
    return read->error.isEmpty() ? read : nullptr;
}

template <class Visit>
void forEachShapeStyle(const Drawing &drawing, Visit visit)
{
    for (const RecordId entry : drawing.tables().entries(TableKind::Style)) {
        const TextStyle style = readTextStyle(drawing, entry);
        if (style.isShapeFile && !style.fontFile.isEmpty())
            visit(style);
    }
}

} // namespace

const ShapeFile *ShapeFiles::find(const QString &name)
{
    return share(name).get();
}

std::shared_ptr<const ShapeFile> ShapeFiles::share(const QString &name)
{
    const QString key = withoutEnding(name).toCaseFolded();
    auto known = m_read.constFind(key);
    if (known == m_read.constEnd())
        known = m_read.insert(key, readFile(pathOf(name)));
    return *known;
}

QString ShapeFiles::pathOf(const QString &name) const
{
    QString base = withoutEnding(name).replace(u'\\', u'/');
    if (base.isEmpty())
        return {};
    QString youngest;
    const QString file = base.section(u'/', -1);
    for (const QString &stem : {base, file}) {
        for (const QLatin1StringView ending : {".shp"_L1, ".shx"_L1}) {
            const QString path = m_finder(stem + ending);
            if (!path.isEmpty() &&
                (youngest.isEmpty() || QFileInfo(path).lastModified() > QFileInfo(youngest).lastModified()))
                youngest = path;
        }
        if (!youngest.isEmpty())
            return youngest;
    }
    return {};
}

QStringList shapeFileNames(const Drawing &drawing)
{
    QStringList names;
    forEachShapeStyle(drawing, [&](const TextStyle &style) { names.append(style.fontFile); });
    return names;
}

RecordId shapeFileStyle(Drawing &drawing, const QString &name)
{
    RecordId found = noRecord;
    const QString wanted = withoutEnding(name);
    forEachShapeStyle(drawing, [&](const TextStyle &style) {
        if (!isValid(found) && withoutEnding(style.fontFile).compare(wanted, Qt::CaseInsensitive) == 0)
            found = style.record;
    });
    return isValid(found) ? found : drawing.tables().add(TableKind::Style, {}, {{70, qint64(1)}, {3, name}});
}

} // namespace host::drawing
