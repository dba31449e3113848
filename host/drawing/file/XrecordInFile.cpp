#include "host/drawing/file/XrecordInFile.h"

#include "files/qt/Files.h"
#include "host/drawing/dwg/DwgText.h"
#include "host/drawing/file/ObjectsText.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/FileIndexer.h"
#include "host/drawing/records/Structure.h"
#include "host/drawing/tags/DrawingTexts.h"

#include <QFile>
#include <QFileInfo>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 largestDrawingFile = 0xFFFFFFFFLL;

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
    if (head.kind == FileHead::Kind::Complete && head.version < Version::R13)
        return {true};
    if (head.kind == FileHead::Kind::NoDrawing)
        return {};
    const QByteArray objects = readFromObjects(file, sizes.tail);
    return objects.isEmpty() || hasLoneCarriageReturn(objects) ? Finding() : findXrecord(objects, head, name);
}

QString withPath(const QString &path, const QString &message)
{
    return message.startsWith(path) ? message : u"%1: %2"_s.arg(path, message);
}

} // namespace

std::optional<FieldList> readXrecord(QIODevice &file, QStringView name, const PieceSizes &sizes, QString *error)
{
    const auto failed = [error](const QString &reason) -> std::optional<FieldList> {
        if (error)
            *error = reason;
        return {};
    };
    const qint64 size = file.size();
    if (size >= largestDrawingFile)
        return failed(DrawingTexts::tr("the file is larger than 4 GB"));
    if (!file.seek(0))
        return failed(file.errorString());
    if (!isDwg(file.peek(64))) {
        Finding found = findInPieces(file, name, sizes);
        if (found.isCertain)
            return std::move(found.data);
    }
    if (!file.seek(0))
        return failed(file.errorString());
    const ReadResult whole = Drawing::fromBytes(file.read(size));
    return whole ? xrecordOf(*whole.drawing, name) : failed(whole.error.message());
}

std::optional<FieldList> xrecordInFile(const QString &path, QStringView name, QString *error)
{
    QFile file;
    std::optional<FieldList> found;
    QString reason = files::openRegular(file, path, largestDrawingFile);
    if (reason.isEmpty())
        found = readXrecord(file, name, {}, &reason);
    if (error)
        *error = reason.isEmpty() ? QString() : withPath(path, reason);
    return found;
}

SaveResult setXrecordInFile(const QString &path, const QString &name, const FieldList &data)
{
    if (!QFileInfo(path).isFile())
        return {DrawingTexts::tr("%1: this is not a file").arg(path)};
    const ReadResult read = Drawing::open(path);
    if (!read)
        return {withPath(path, read.error.message())};
    Drawing &drawing = *read.drawing;
    if (!hasMarkers(drawing))
        return {DrawingTexts::tr("%1: drawings of this version have no room for such data").arg(path)};
    Dictionaries &dictionaries = drawing.dictionaries();
    if (!isValid(dictionaries.setXrecord(dictionaries.ensureRoot(), name, data)))
        return {DrawingTexts::tr("%1: %2 stands for something else in this drawing").arg(path, name)};
    return drawing.revision() == 0 ? SaveResult() : saveCopy(drawing, path);
}

} // namespace host::drawing
