#include "host/dwg/objects/TypeTable.h"

namespace host::dwg {

namespace {

void readSectionLine(Fields &f, int countCode, int code)
{
    const std::size_t count = f.count(6);
    f.note(countCode, count);
    for (std::size_t i = 0; i < count; ++i)
        f.point(code);
}

/// A plane, or several at angles, that cuts the model open: its line, and for boundaries and volumes the line behind.
void readSection(Fields &f)
{
    f.subclass("AcDbSection");
    f.int32(90);
    f.int32(91);
    f.text(1);
    f.point(10);
    f.real(40);
    f.real(41);
    f.int16(70);
    f.colour(63);
    readSectionLine(f, 92, 11);
    readSectionLine(f, 93, 12);
    f.reference(360);
}

} // namespace

std::span<const ObjectType> sectionTypes()
{
    static constexpr ObjectType rows[] = {{0, "SECTIONOBJECT", readSection, true}};
    return rows;
}

} // namespace host::dwg
