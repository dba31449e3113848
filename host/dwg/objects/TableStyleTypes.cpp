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

void readContentFormat(Fields &f)
{
    f.note(300, "CONTENTFORMAT");
    f.note(1, "CONTENTFORMAT_BEGIN");
    f.int32(90);
    f.int32(91);
    f.int32(92);
    f.int32(93);
    f.text(300);
    f.real(40);
    f.real(140);
    f.int32(94);
    f.longColour(62);
    f.reference(340);
    f.real(144);
    f.note(309, "CONTENTFORMAT_END");
}

void readGridFormat(Fields &f)
{
    f.int32(95);
    f.note(302, "GRIDFORMAT");
    f.note(1, "GRIDFORMAT_BEGIN");
    f.int32(90);
    f.int32(91);
    f.longColour(62);
    f.int32(92);
    f.reference(340);
    f.int32(93);
    f.real(40);
    f.note(309, "GRIDFORMAT_END");
}

void readMargins(Fields &f)
{
    f.note(301, "MARGIN");
    f.note(1, "CELLMARGIN_BEGIN");
    for (int i = 0; i < 6; ++i)
        f.real(40);
    f.note(309, "CELLMARGIN_END");
}

void readTableFormat(Fields &f)
{
    f.note(1, "TABLEFORMAT_BEGIN");
    f.int32(90);
    const bool hasFormat = f.int16(170) != 0;
    if (hasFormat) {
        f.int32(91);
        f.int32(92);
        f.longColour(62);
        f.int32(93);
        readContentFormat(f);
        const bool hasMargins = f.int16(171) != 0;
        if (hasMargins)
            readMargins(f);
        const std::size_t borders = f.count(8);
        f.note(94, borders);
        for (std::size_t i = 0; i < borders && !f.hasFailed(); ++i)
            readGridFormat(f);
    }
    f.note(309, "TABLEFORMAT_END");
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
