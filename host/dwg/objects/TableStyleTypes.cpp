#include "host/dwg/objects/TableFormat.h"
#include "host/dwg/objects/TypeTable.h"

#include <algorithm>

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

/// A cell style with its number.
struct CellStyle
{
    int number = 0;
    TableFormat format;
};

CellStyle readCellStyle(Fields &f)
{
    CellStyle style;
    f.note(300, "CELLSTYLE");
    style.format = readTableFormat(f);
    f.note(1, "CELLSTYLE_BEGIN");
    style.number = f.int32(90);
    f.int32(91);
    f.text(300);
    f.note(309, "CELLSTYLE_END");
    return style;
}

/// A row's style in the older form.
void noteRowStyle(Fields &f, const TableFormat &style)
{
    const bool isFilled = style.fill.index != TableFormat::noFill;
    const std::string_view textStyle = f.nameOf(style.textStyle);
    f.note(7, textStyle);
    f.note(140, style.height);
    f.note(170, style.alignment);
    f.note(62, style.colour);
    f.note(63, isFilled ? style.fill : NotedColour{7, 0, {}});
    f.note(283, isFilled);
    f.note(90, style.dataKind);
    f.note(91, style.unit);
    f.note(1, style.format);
    for (std::size_t i = 0; i < TableFormat::borderCount; ++i) {
        const TableFormat::Border &border = style.borders[i];
        const int place = static_cast<int>(i);
        f.note(274 + place, border.weight);
        f.note(284 + place, border.isVisible);
        f.note(64 + place, border.colour);
    }
}

/// From R2010 on a table style has cell styles of any number. The text form has it in the older form, with three rows'
/// styles, and the cell styles in a record beside it.
void readTableStyle2010(Fields &f)
{
    f.small(280);
    f.text(3);
    const std::size_t begin = f.mark();
    f.int32(); // flags, of which the text form has none
    f.int32(); // the number that the next cell style gets
    f.reference();
    readCellStyle(f); // of the table itself
    f.drop(begin);
    const std::size_t count = f.count(8);
    f.subclass("AcDbCellStyleMap");
    f.note(90, count);
    std::vector<CellStyle> styles;
    for (std::size_t i = 0; i < count && !f.hasFailed(); ++i) {
        f.int32(); // its number once more
        styles.push_back(readCellStyle(f));
    }
    const std::size_t classic = f.mark();
    const auto styleOf = [&styles](int number) {
        const auto found = std::ranges::find(styles, number, &CellStyle::number);
        return found != styles.end() ? found->format : TableFormat();
    };
    constexpr int title = 1;
    constexpr int header = 2;
    constexpr int data = 3;
    f.note(70, 0);
    f.note(71, 0);
    f.note(40, styleOf(data).acrossMargin);
    f.note(41, styleOf(data).uprightMargin);
    f.note(280, 0);
    f.note(281, 0);
    for (const int row : {data, title, header})
        noteRowStyle(f, styleOf(row));
    const std::size_t classicLength = f.mark() - classic;
    f.moveForward(classic, begin);
    f.beginCompanion(begin + classicLength);
}

void readTableStyle(Fields &f)
{
    f.subclass("AcDbTableStyle");
    if (f.since(Release::R2010))
        return readTableStyle2010(f);
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
