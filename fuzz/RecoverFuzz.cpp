// Any bytes: what is recovered of them opens as any drawing, and can be recovered again. That may mend or drop more
// where a file is damaged in several places: recovering is stricter about the types of records than opening.

#include "fuzz/Require.h"
#include "host/drawing/file/Recovery.h"
#include "host/drawing/records/Journal.h"

using namespace host::drawing;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const Recovered recovered = recoverDrawing(bytes);
    if (!recovered) {
        require(!recovered.error.text.isEmpty());
        // Nothing is lost that opens as usual.
        require(!Drawing::fromBytes(bytes));
        return 0;
    }
    require(recovered.drawing->journal().isModified());
    require(!recovered.report.lines(10).isEmpty());
    const QByteArray text = recovered.drawing->toBytes();
    require(bool(Drawing::fromBytes(text)));
    if (recovered.report.isEmpty() && !recovered.drawing->isBinaryFile() && !bytes.startsWith(binaryMark()))
        require(text == bytes);
    require(bool(recoverDrawing(text)));
    return 0;
}
