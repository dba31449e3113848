// Any bytes as a shape file, source or compiled: reading and drawing all of its shapes ends, and what is drawn is
// lines.

#include "host/drawing/references/ShapeFile.h"

#include <cstdlib>

using namespace host::drawing;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const ShapeFile file = readShapeFile({reinterpret_cast<const char *>(data), qsizetype(size)});
    if (file.error.isEmpty() == file.codes.isEmpty())
        std::abort();
    for (auto shape = file.codes.keyBegin(); shape != file.codes.keyEnd(); ++shape) {
        const auto lines = shapeLines(file, *shape);
        for (const ShapeLine &line : lines.value_or(std::vector<ShapeLine>())) {
            if (line.size() < 2 || !std::isfinite(line.back().at.x) || !std::isfinite(line.back().bulge))
                std::abort();
        }
    }
    return 0;
}
