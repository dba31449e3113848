// Any bytes as a table of plot styles, as they are and as the content of one: it is read or refused, and what is read
// is within its ranges.

#include "host/drawing/references/PlotStyleFile.h"

#include <cstdlib>

using namespace host::drawing;

namespace {

void check(const QByteArray &bytes)
{
    const PlotStyleReading reading = readPlotStyles(bytes);
    if (reading.table.has_value() != reading.error.isEmpty())
        std::abort();
    if (!reading.table)
        return;
    for (const PlotStyle &style : reading.table->styles()) {
        if (style.screening < 0 || style.screening > 100 || style.lineweight < -1 || style.lineweight > 211 ||
            style.linetype < -1 || style.linetype >= static_cast<int>(plotLinetypes().size()))
            std::abort();
        if (!reading.table->isByColour() && !reading.table->named(style.name))
            std::abort();
    }
    if (reading.table->isByColour() && (!reading.table->ofColour(255) || reading.table->ofColour(256)))
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    check(bytes);
    const QByteArray content = QByteArray(12, '\0') + qCompress(bytes).sliced(4);
    check("PIAFILEVERSION_2.0,CTBVER1,compress\r\npmzlibcodec" + content);
    check("PIAFILEVERSION_2.0,STBVER1,compress\r\npmzlibcodec" + content);
    return 0;
}
