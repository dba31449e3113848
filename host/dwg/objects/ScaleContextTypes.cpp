#include "host/dwg/objects/MultiLeaderTypes.h"
#include "host/dwg/objects/TypeTable.h"

namespace host::dwg {

namespace {

/// What entities look like at one annotation scale: the scale, then what is other than at the others.
void readScaleContext(Fields &f)
{
    f.subclass("AcDbObjectContextData");
    f.int16(70);
    f.flag(290);
    f.subclass("AcDbAnnotScaleObjectContextData");
    f.reference(340);
}

void readTextContext(Fields &f)
{
    readScaleContext(f);
    f.int16(70);
    f.angle(50);
    f.rawFlatPoint(10);
    f.rawFlatPoint(11);
}

void readParagraphColumns(Fields &f, int kind)
{
    constexpr int ownHeights = 2;
    const std::size_t heights = f.count(2);
    f.note(72, heights);
    f.real(44);
    f.real(45);
    const bool isAutomatic = f.flag(73);
    f.flag(74);
    if (isAutomatic || kind != ownHeights)
        return;
    for (std::size_t i = 0; i < heights; ++i)
        f.real(46);
}

void readParagraphContext(Fields &f)
{
    readScaleContext(f);
    f.int32(70);
    f.point(10);
    f.point(11);
    for (int code = 40; code <= 43; ++code)
        f.real(code);
    const int columns = f.int32(71);
    if (columns != 0)
        readParagraphColumns(f, columns);
}

void readInsertContext(Fields &f)
{
    readScaleContext(f);
    f.angle(50);
    f.point(10);
    for (int code = 41; code <= 43; ++code)
        f.real(code);
}

void readToleranceContext(Fields &f)
{
    readScaleContext(f);
    f.point(10);
    f.point(11);
}

void readLeaderContext(Fields &f)
{
    readScaleContext(f);
    const std::size_t points = f.count(6);
    f.note(70, points);
    for (std::size_t i = 0; i < points; ++i)
        f.point(10);
    f.point(11);
    f.flag(290);
    f.point(12);
    f.point(13);
}

void readMultiLeaderScale(Fields &f)
{
    readScaleContext(f);
    readMultiLeaderContext(f);
}

} // namespace

std::span<const ObjectType> scaleContextTypes()
{
    static constexpr ObjectType rows[] = {
        {0, "ACDB_TEXTOBJECTCONTEXTDATA_CLASS", readTextContext},
        {0, "ACDB_MTEXTOBJECTCONTEXTDATA_CLASS", readParagraphContext},
        {0, "ACDB_BLKREFOBJECTCONTEXTDATA_CLASS", readInsertContext},
        {0, "ACDB_FCFOBJECTCONTEXTDATA_CLASS", readToleranceContext},
        {0, "ACDB_MLEADEROBJECTCONTEXTDATA_CLASS", readMultiLeaderScale},
        {0, "ACDB_LEADEROBJECTCONTEXTDATA_CLASS", readLeaderContext},
    };
    return rows;
}

} // namespace host::dwg
