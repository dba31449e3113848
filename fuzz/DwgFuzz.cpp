// Any bytes as a drawing file: reading ends, stays within a multiple of the file, and tells what it lost.

#include "fuzz/Require.h"
#include "host/dwg/drawing/DrawingText.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    const host::dwg::DrawingText drawing = host::dwg::readDrawing({data, size});
    require(!drawing.text.empty() || drawing.problems.lostCount() > 0);
    require(drawing.problems.list().size() <= host::dwg::Problems::mostKept);
    return 0;
}
