#include "tests/dwg/making/Circles.h"

#include "tests/dwg/making/MadeDrawing.h"
#include "tests/dwg/making/TypeNumbers.h"

namespace host::dwg::test {

FileBytes circlesFile(Release release, int whole, int damaged)
{
    MadeDrawing drawing(release);
    for (int i = 0; i < whole + damaged; ++i)
        drawing.addEntity(CircleType, [isWhole = i < whole](ObjectWriter &o) {
            o.point({1.0, 2.0, 0.0});
            if (!isWhole)
                return;
            o.real(5.0);
            o.thickness(0.0);
            o.extrusion();
        });
    return drawing.file();
}

} // namespace host::dwg::test
