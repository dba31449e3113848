#include "tests/dwg/making/Paragraphs.h"

#include "tests/dwg/making/MadeDrawing.h"

namespace host::dwg::test {

void writeParagraphs(ObjectWriter &o, Point place, double height, double width, std::string_view text)
{
    o.point(place);
    o.point({0.0, 0.0, 1.0});
    o.point({1.0, 0.0, 0.0});
    o.real(7.0);
    if (o.since(Release::R2007))
        o.real(0.0);
    o.real(0.5);
    o.int16(1);
    o.int16(5);
    o.real(height);
    o.real(width);
    o.text(text);
    o.int16(1);
    o.real(1.0);
    o.flag(false);
    o.reference(MadeHandles::TextStyle);
}

} // namespace host::dwg::test
