// Any bytes: where the whole file reads as a drawing, its ends say the same of a record as the whole.

#include "fuzz/Require.h"
#include "host/drawing/file/XrecordInFile.h"
#include "host/drawing/records/Dictionaries.h"

#include <QBuffer>
#include <QSet>

using namespace host::drawing;

namespace {

constexpr QStringView name = u"T";

/// Whether the drawing has nothing that only the whole file can tell: a second section of objects, handles that are
/// given twice, anything behind the end.
bool isPlain(const Drawing &drawing)
{
    int sections = 0;
    QSet<quint64> handles;
    for (RecordId id = drawing.first(); isValid(id); id = drawing.next(id)) {
        const quint64 handle = drawing.handle(id).value;
        if (drawing.kind(id) == RecordKind::Tail || (handle != 0 && handles.contains(handle)))
            return false;
        handles.insert(handle);
        sections += drawing.kind(id) == RecordKind::Section && drawing.section(id) == Section::Objects ? 1 : 0;
    }
    return sections <= 1;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    QBuffer buffer(&bytes);
    if (!buffer.open(QIODevice::ReadOnly))
        return 0;
    const ReadResult whole = Drawing::fromBytes(bytes);
    for (const qint64 piece : {8, 32, 256}) {
        const std::optional<FieldList> found = readXrecord(buffer, name, {piece, piece});
        if (!whole || !isPlain(*whole.drawing))
            continue;
        const Dictionaries &dictionaries = whole.drawing->dictionaries();
        const bool hasObjects = whole.drawing->version() >= Version::R13;
        require(found == (hasObjects ? dictionaries.xrecord(dictionaries.root(), name) : std::nullopt));
    }
    return 0;
}
