#include "host/drawing/file/Save.h"

#include "files/FileReplacement.h"
#include "files/RegularFile.h"
#include "files/qt/Files.h"
#include "host/drawing/file/FileBytes.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/tags/DrawingTexts.h"

#include <QDir>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

std::string_view viewOf(QByteArrayView bytes)
{
    return {bytes.data(), static_cast<size_t>(bytes.size())};
}

QByteArrayView viewOf(std::string_view bytes)
{
    return {bytes.data(), static_cast<qsizetype>(bytes.size())};
}

bool isSameContent(const Drawing &drawing, QByteArrayView bytes)
{
    QByteArrayView left = bytes;
    bool isSame = true;
    forEachFilePiece(drawing, [&](QByteArrayView piece) {
        isSame = left.startsWith(piece);
        left = left.sliced(isSame ? piece.size() : 0);
        return isSame;
    });
    return isSame && left.isEmpty();
}

/// The next record that is made of tags: what stands behind EOF is compared as bytes, and not part of every form.
RecordId nextOfTags(const Drawing &drawing, RecordId id)
{
    const RecordId next = isValid(id) ? drawing.next(id) : drawing.first();
    return isValid(next) && drawing.kind(next) == RecordKind::Tail ? noRecord : next;
}

/// The first record that is not where it is in what was read back, the last one where there is more; noRecord when all
/// are.
RecordId firstOther(const Drawing &drawing, const Drawing &readBack)
{
    RecordId there = nextOfTags(readBack, noRecord);
    RecordId last = noRecord;
    for (RecordId id = nextOfTags(drawing, noRecord); isValid(id); id = nextOfTags(drawing, id)) {
        if (there == noRecord || readBack.typeName(there) != drawing.typeName(id))
            return id;
        there = nextOfTags(readBack, there);
        last = id;
    }
    return there == noRecord ? noRecord : last;
}

/// Why the bytes would not open as this drawing; empty when they would.
QString whyNot(const Drawing &drawing, QByteArrayView bytes)
{
    if (!isSameContent(drawing, bytes))
        return DrawingTexts::tr("what was written does not read back the same");
    // These bytes were opened once, or are the text of those.
    if (drawing.revision() == 0 && (drawing.form() == FileForm::Text || drawing.isBinaryFile()))
        return {};
    // Only looked at as long as the bytes are there.
    const ReadResult read = Drawing::fromBytes(QByteArray::fromRawData(bytes.data(), bytes.size()));
    if (!read)
        return DrawingTexts::tr("what would be written could not be opened again (%1)").arg(read.error.message());
    const RecordId other = firstOther(drawing, *read.drawing);
    return other == noRecord
               ? QString()
               : DrawingTexts::tr("what would be written could not be opened the same: see %1 of handle %2")
                     .arg(QString::fromLatin1(drawing.typeName(other)), drawing.handle(other).toString());
}

SaveResult failure(const QString &path, const QString &reason)
{
    return {DrawingTexts::tr("%1: the file cannot be written: %2").arg(QDir::toNativeSeparators(path), reason)};
}

SaveResult writeFile(const Drawing &drawing, const QString &path)
{
    files::FileReplacement file(files::nativePath(path));
    QString problem = forEachFilePiece(drawing, [&file](QByteArrayView piece) { return file.write(viewOf(piece)); });
    if (!problem.isEmpty())
        return failure(path, problem);
    const bool isRight = file.readBack([&](std::string_view bytes) {
        problem = whyNot(drawing, viewOf(bytes));
        return problem.isEmpty();
    });
    if (!problem.isEmpty())
        return {DrawingTexts::tr("%1: %2; the old file was kept").arg(QDir::toNativeSeparators(path), problem)};
    if (!isRight || !file.commit())
        return failure(path, files::reasonText(file.reason()));
    return {};
}

} // namespace

QString whyNoName(const QString &path)
{
    const bool isDwg = path.trimmed().endsWith(u".dwg", Qt::CaseInsensitive);
    return isDwg ? DrawingTexts::tr("%1: this program cannot write DWG files; give the file a name ending in .dxf")
                       .arg(path)
                 : QString();
}

SaveResult save(Drawing &drawing, const QString &path)
{
    SaveResult result = saveCopy(drawing, path);
    if (result) {
        drawing.setPath(path);
        drawing.leaveDwg();
        drawing.journal().markSaved();
    }
    return result;
}

SaveResult saveCopy(const Drawing &drawing, const QString &path)
{
    const QString refused = whyNoName(path);
    return refused.isEmpty() ? writeFile(drawing, path) : SaveResult{refused};
}

SaveResult saveSymbolCopy(const Drawing &drawing, const QString &path)
{
    return writeFile(drawing, path);
}

} // namespace host::drawing
