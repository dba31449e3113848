#include "host/dwg/objects/TableFormat.h"
#include "host/dwg/objects/TypeTable.h"

namespace host::dwg {

namespace {

void readRowStyle(Fields &f)
{
    f.name(7);
    f.real(140);
    f.int16(170);
    f.longColour(62);
    f.longColour(63);
    f.flag(283);
    const std::size_t borders = f.mark();
    for (int border = 0; border < 6; ++border) {
        f.int16(274 + border);
        f.flag(284 + border);
        f.longColour(64 + border);
    }
    if (f.since(Release::R2007)) {
        const std::size_t format = f.mark();
        f.int32(90);
        f.int32(91);
        f.text(1);
        f.moveForward(format, borders);
    }
}

void readTableStyle(Fields &f)
{
    f.subclass("AcDbTableStyle");
    f.text(3);
    f.int16(70);
    f.int16(71);
    f.real(40);
    f.real(41);
    f.flag(280);
    f.flag(281);
    for (int row = 0; row < 3; ++row)
        readRowStyle(f);
}

void readCellStyle(Fields &f)
{
    f.note(300, "CELLSTYLE");
    readTableFormat(f);
    f.note(1, "CELLSTYLE_BEGIN");
    f.int32(90);
    f.int32(91);
    f.text(300);
    f.note(309, "CELLSTYLE_END");
}

void readCellStyleMap(Fields &f)
{
    f.subclass("AcDbCellStyleMap");
    const std::size_t count = f.count(8);
    f.note(90, count);
    for (std::size_t i = 0; i < count && !f.hasFailed(); ++i)
        readCellStyle(f);
}

} // namespace

std::span<const ObjectType> tableStyleTypes()
{
    static constexpr ObjectType rows[] = {
        {0, "TABLESTYLE", readTableStyle},
        {0, "CELLSTYLEMAP", readCellStyleMap},
    };
    return rows;
}

} // namespace host::dwg
