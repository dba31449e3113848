#include "host/dwg/objects/TypeTable.h"

namespace host::dwg {

namespace {

void readClipPoints(Fields &f, int code)
{
    const std::size_t count = f.count(128);
    for (std::size_t i = 0; i < count; ++i)
        f.rawFlatPoint(code);
}

/// A sheet of another file that lies under the drawing.
void readUnderlay(Fields &f)
{
    constexpr int clipsInside = 16;
    f.subclass("AcDbUnderlayReference");
    const std::size_t begin = f.mark();
    f.point(210);
    f.point(10);
    f.angle(50);
    for (int code = 41; code <= 43; ++code)
        f.real(code);
    const int flags = f.small(280);
    f.small(281);
    f.small(282);
    f.reference(340);
    readClipPoints(f, 11);
    if ((flags & clipsInside) != 0)
        readClipPoints(f, 12);
    f.arrange(begin, {340, 10, 20, 30, 41, 42, 43, 50, 210, 220, 230, 280, 281, 282});
}

void readUnderlayDefinition(Fields &f)
{
    f.subclass("AcDbUnderlayDefinition");
    f.text(1);
    f.text(2);
}

} // namespace

std::span<const ObjectType> underlayTypes()
{
    static constexpr ObjectType rows[] = {
        {0, "PDFUNDERLAY", readUnderlay, true},       {0, "DWFUNDERLAY", readUnderlay, true},
        {0, "DGNUNDERLAY", readUnderlay, true},       {0, "PDFDEFINITION", readUnderlayDefinition},
        {0, "DWFDEFINITION", readUnderlayDefinition}, {0, "DGNDEFINITION", readUnderlayDefinition},
    };
    return rows;
}

} // namespace host::dwg
