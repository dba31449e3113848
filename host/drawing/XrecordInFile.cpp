#include "host/drawing/XrecordInFile.h"

#include "host/drawing/Dictionaries.h"
#include "host/drawing/FileIndexer.h"
#include "host/drawing/ObjectsText.h"
#include "host/drawing/Structure.h"

#include <QFile>
#include <QFileInfo>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 largestFile = 0xFFFFFFFFLL;

std::optional<FieldList> xrecordOf(const Drawing &drawing, QStringView name)
{
    // R12 has no objects, whatever the file holds.
    const Dictionaries &dictionaries = drawing.dictionaries();
    return hasMarkers(drawing) ? dictionaries.xrecord(dictionaries.root(), name) : std::nullopt;
}

Finding findInPieces(QIODevice &file, QStringView name, const PieceSizes &sizes)
{
    const FileHead head = readHead(file, sizes.head);
    if (head.kind == FileHead::Kind::Doubtful)
        return {};
    if (head.kind == FileHead::Kind::NoDrawing || head.version < Version::R13)
        return {true};
    const QByteArray objects = readFromObjects(file, sizes.tail);
    return objects.isEmpty() || hasLoneCarriageReturn(objects) ? Finding() : findXrecord(objects, head, name);
}

QString withPath(const QString &path, const QString &message)
{
    return message.startsWith(path) ? message : u"%1: %2"_s.arg(path, message);
}

} // namespace

std::optional<FieldList> readXrecord(QIODevice &file, QStringView name, const PieceSizes &sizes)
{
    const qint64 size = file.size();
    if (size >= largestFile)
        return {};
    Finding found = findInPieces(file, name, sizes);
    if (found.isCertain)
        return std::move(found.data);
    if (!file.seek(0))
        return {};
    const ReadResult whole = Drawing::fromBytes(file.read(size));
    return whole ? xrecordOf(*whole.drawing, name) : std::nullopt;
}

std::optional<FieldList> xrecordInFile(const QString &path, QStringView name)
{
    // Opening a pipe would wait for somebody to write into it.
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return {};
    return readXrecord(file, name);
}

SaveResult setXrecordInFile(const QString &path, const QString &name, const FieldList &data)
{
    if (!QFileInfo(path).isFile())
        return {u"%1: this is not a file"_s.arg(path)};
    const ReadResult read = Drawing::open(path);
    if (!read)
        return {withPath(path, read.error.message())};
    Drawing &drawing = *read.drawing;
    if (!hasMarkers(drawing))
        return {u"%1: drawings of this version have no room for such data"_s.arg(path)};
    Dictionaries &dictionaries = drawing.dictionaries();
    if (!isValid(dictionaries.setXrecord(dictionaries.ensureRoot(), name, data)))
        return {u"%1: %2 stands for something else in this drawing"_s.arg(path, name)};
    return drawing.revision() == 0 ? SaveResult() : saveCopy(drawing, path);
}

} // namespace host::drawing
