// Any bytes as a linetype source that is loaded into a drawing: every definition comes in or says why not, and what
// came in is what it said.

#include "host/drawing/file/NewDrawing.h"
#include "host/drawing/records/Symbols.h"
#include "host/drawing/references/LinetypeSource.h"

#include <cstdlib>
#include <memory>

using namespace host::drawing;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    // A drawing costs more than what is tried with it, so one takes many sources, each over what is there.
    static std::unique_ptr<Drawing> drawing;
    static int sources = 0;
    if (sources++ % 500 == 0)
        drawing = newDrawing();
    const QByteArray text(reinterpret_cast<const char *>(data), qsizetype(size));
    for (const LinetypeDefinition &definition : readLinetypeSource(text)) {
        ShapeFiles shapes([](const QString &) { return QString(); });
        if (!loadLinetype(*drawing, definition, shapes).isEmpty())
            continue;
        const std::optional<Linetype> loaded = findLinetype(*drawing, definition.name);
        if (!loaded || loaded->dashes.size() != definition.dashes.size())
            std::abort();
    }
    return 0;
}
