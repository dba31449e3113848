// Any bytes behind the mark of a binary file: a drawing that reads is written as it was, also when it was changed and
// changed back. Any text that reads as a drawing is the same drawing in the binary form, or is refused.

#include "fuzz/Require.h"
#include "host/drawing/file/FileBytes.h"
#include "host/drawing/records/Entities.h"
#include "host/drawing/records/Journal.h"

using namespace host::drawing;

namespace {

/// The bytes of its file; nothing when the form has no room for the drawing.
std::optional<QByteArray> fileBytes(const Drawing &drawing)
{
    QByteArray bytes;
    const QString problem = forEachFilePiece(drawing, [&bytes](QByteArrayView piece) {
        bytes += piece;
        return true;
    });
    return problem.isEmpty() ? std::optional(bytes) : std::nullopt;
}

void checkBinary(const QByteArray &bytes)
{
    const ReadResult read = Drawing::fromBytes(bytes);
    if (!read) {
        require(!read.error.text.isEmpty());
        return;
    }
    require(fileBytes(*read.drawing) == bytes);
    for (const RecordId entity : read.drawing->entities().all())
        read.drawing->setErased(entity, true);
    if (const std::optional<QByteArray> changed = fileBytes(*read.drawing))
        require(bool(Drawing::fromBytes(*changed)));
    while (read.drawing->journal().undo()) {
    }
    require(fileBytes(*read.drawing) == bytes);
    require(bool(Drawing::fromBytes(read.drawing->toBytes())));
}

void checkText(const QByteArray &bytes)
{
    const ReadResult read = Drawing::fromBytes(bytes);
    if (!read)
        return;
    read.drawing->setForm(FileForm::Binary);
    const std::optional<QByteArray> binary = fileBytes(*read.drawing);
    if (!binary)
        return;
    const ReadResult again = Drawing::fromBytes(*binary);
    require(bool(again));
    require(fileBytes(*again.drawing) == binary);
    RecordId there = again.drawing->first();
    for (RecordId id = read.drawing->first(); isValid(id); id = read.drawing->next(id)) {
        if (read.drawing->kind(id) == RecordKind::Tail)
            break;
        require(isValid(there) && read.drawing->kind(id) == again.drawing->kind(there));
        require(read.drawing->handle(id) == again.drawing->handle(there));
        there = again.drawing->next(there);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    if (bytes.startsWith(binaryMark()))
        checkBinary(bytes);
    else
        checkText(bytes);
    return 0;
}
