#include "host/dwg/objects/TypeTable.h"

namespace host::dwg {

namespace {

void readPageSetup(Fields &f)
{
    f.subclass("AcDbPlotSettings");
    const std::size_t begin = f.mark();
    f.text(1);
    f.text(2);
    f.int16(70);
    for (int code = 40; code <= 45; ++code)
        f.real(code);
    f.text(4);
    f.real(46);
    f.real(47);
    f.int16(72);
    f.int16(73);
    f.int16(74);
    for (const int code : {48, 49, 140, 141})
        f.real(code);
    if (f.until(Release::R2000))
        f.text(6);
    f.real(142);
    f.real(143);
    f.text(7);
    f.int16(75);
    f.real(147);
    f.real(148);
    f.real(149);
    if (f.since(Release::R2004)) {
        f.int16(76);
        f.int16(77);
        f.int16(78);
        f.name(6);
    }
    if (f.since(Release::R2007))
        f.referenceUnlessNull(333);
    f.arrange(begin, {1,   2,   4,  6,  40, 41, 42, 43, 44,  45, 46, 47, 48,  49,  140, 141,
                      142, 143, 70, 72, 73, 74, 7,  75, 147, 76, 77, 78, 148, 149, 333});
}

void readLayout(Fields &f)
{
    readPageSetup(f);
    f.subclass("AcDbLayout");
    const std::size_t begin = f.mark();
    f.text(1);
    f.int32(71);
    f.int16(70);
    f.point(13);
    f.rawFlatPoint(10);
    f.rawFlatPoint(11);
    f.point(12);
    f.point(16);
    f.point(17);
    f.real(146);
    f.int16(76);
    f.point(14);
    f.point(15);
    const std::size_t viewports = f.since(Release::R2004) ? f.checkedCount(f.int32(), 8, f.references()) : 0;
    f.referenceUnlessNull(330);
    f.referenceUnlessNull(331);
    f.referenceUnlessNull(346);
    f.referenceUnlessNull(345);
    for (std::size_t i = 0; i < viewports; ++i)
        f.reference();
    f.arrange(begin, {1,   70, 71, 10, 20, 11, 21, 12, 22, 32, 14, 24,  34,  15,  25, 35,
                      146, 13, 23, 33, 16, 26, 36, 17, 27, 37, 76, 330, 331, 345, 346});
}

void readPlotSettings(Fields &f)
{
    readPageSetup(f);
}

} // namespace

std::span<const ObjectType> layoutTypes()
{
    static constexpr ObjectType rows[] = {
        {0x52, "LAYOUT", readLayout},
        {0, "PLOTSETTINGS", readPlotSettings},
    };
    return rows;
}

} // namespace host::dwg
