#include "host/dwg/objects/TypeTable.h"

namespace host::dwg {

namespace {

void readLight(Fields &f)
{
    f.subclass("AcDbLight");
    f.int32(90);
    f.text(1);
    f.int16(70);
    f.flag(290);
    f.colour(63);
    f.flag(291);
    f.real(40);
    f.point(10);
    f.point(11);
    f.int16(72);
    f.flag(292);
    f.real(41);
    f.real(42);
    f.angle(50);
    f.angle(51);
    f.flag(293);
    f.int16(73);
    f.int16(91);
    f.small(280);
}

void readSun(Fields &f)
{
    f.subclass("AcDbSun");
    f.int32(90);
    f.flag(290);
    f.colour(63);
    f.real(40);
    f.flag(291);
    f.int32(91);
    f.int32(92);
    f.flag(292);
    f.int16(70);
    f.int16(71);
    f.small(280);
}

} // namespace

std::span<const ObjectType> lightTypes()
{
    static constexpr ObjectType rows[] = {
        {0, "LIGHT", readLight, true},
        {0, "SUN", readSun},
    };
    return rows;
}

} // namespace host::dwg
