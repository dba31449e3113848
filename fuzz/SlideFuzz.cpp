// Any bytes as a slide and as a library of slides: shapes have the points that they need, and colours of the table.

#include "fuzz/Require.h"
#include "host/dcl/Slide.h"

using namespace host::dcl;

namespace {

void checkSlide(const Slide &slide)
{
    require(slide.shapes.empty() || !slide.size.isEmpty());
    require(slide.size.isEmpty() || slide.pixelAspect > 0.0);
    for (const Slide::Shape &shape : slide.shapes) {
        require(shape.color >= 0 && shape.color <= 255);
        require(shape.isFilled ? shape.points.size() >= 3 : shape.points.size() == 2);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    checkSlide(readSlide(bytes));
    checkSlide(readSlide(slideInLibrary(bytes, QStringLiteral("a"))));
    return 0;
}
