#include "host/dwg/objects/InsertTypes.h"
#include "host/dwg/objects/TableContent.h"
#include "host/dwg/objects/TypeTable.h"

#include <cmath>

namespace host::dwg {

namespace {

/// Where a value of a table or a cell differs from that of the style: bit for bit the fields that follow.
struct Override
{
    enum class Kind
    {
        Flag,
        Small,
        Int16,
        Real,
        Colour,
        Style
    };

    unsigned bit;
    Kind kind;
    int code;
};

void readOverride(Fields &f, const Override &one)
{
    switch (one.kind) {
    case Override::Kind::Flag:
        f.flag(one.code);
        break;
    case Override::Kind::Small:
        f.note(one.code, f.values().raw16());
        break;
    case Override::Kind::Int16:
        f.int16(one.code);
        break;
    case Override::Kind::Real:
        f.real(one.code);
        break;
    case Override::Kind::Colour:
        f.colour(one.code);
        break;
    case Override::Kind::Style:
        f.name(one.code);
        break;
    }
}

template <std::size_t count>
void readOverrides(Fields &f, unsigned flags, const Override (&overrides)[count])
{
    for (const Override &one : overrides) {
        if ((flags & one.bit) != 0)
            readOverride(f, one);
    }
}

using enum Override::Kind;

constexpr Override cellOverrides[] = {
    {0x1, Small, 170},   {0x2, Flag, 283},     {0x4, Colour, 63},     {0x8, Colour, 64},    {0x10, Style, 7},
    {0x20, Real, 140},   {0x40, Colour, 69},   {0x400, Int16, 279},   {0x4000, Int16, 289}, {0x80, Colour, 65},
    {0x800, Int16, 275}, {0x8000, Int16, 285}, {0x100, Colour, 66},   {0x1000, Int16, 276}, {0x10000, Int16, 286},
    {0x200, Colour, 68}, {0x2000, Int16, 278}, {0x20000, Int16, 288},
};

constexpr Override tableOverrides[] = {
    {0x1, Flag, 280},      {0x2, Flag, 281},      {0x4, Int16, 70},      {0x8, Real, 40},      {0x10, Real, 41},
    {0x20, Colour, 64},    {0x40, Colour, 64},    {0x80, Colour, 64},    {0x100, Flag, 283},   {0x200, Flag, 283},
    {0x400, Flag, 283},    {0x800, Colour, 63},   {0x1000, Colour, 63},  {0x2000, Colour, 63}, {0x4000, Int16, 170},
    {0x8000, Int16, 170},  {0x10000, Int16, 170}, {0x20000, Style, 7},   {0x40000, Style, 7},  {0x80000, Style, 7},
    {0x100000, Real, 140}, {0x200000, Real, 140}, {0x400000, Real, 140},
};

/// Borders of the title, the header and the data rows: their top, inner horizontal, bottom, left, inner vertical and
/// right side.
void readBorders(Fields &f, unsigned flags, Override::Kind kind, int firstCode)
{
    for (int border = 0; border < 18; ++border) {
        if ((flags >> border & 1) != 0)
            readOverride(f, {0, kind, firstCode + border % 6});
    }
}

/// The number of what differs from the style, behind a flag that says whether anything does.
unsigned readOverrideFlags(Fields &f, int code)
{
    const unsigned flags = f.flag() ? static_cast<unsigned>(f.int32()) : 0;
    f.note(code, static_cast<std::int32_t>(flags));
    return flags;
}

void readTableOverrides(Fields &f)
{
    readOverrides(f, readOverrideFlags(f, 93), tableOverrides);
    readBorders(f, readOverrideFlags(f, 94), Colour, 64);
    readBorders(f, readOverrideFlags(f, 95), Int16, 274);
    readBorders(f, readOverrideFlags(f, 96), Int16, 284);
}

void readBlockInCell(Fields &f)
{
    f.reference(340);
    f.real(144);
    if (!f.flag())
        return;
    const std::size_t count = f.smallCount(2);
    f.note(179, count);
    for (std::size_t i = 0; i < count && !f.hasFailed(); ++i) {
        f.reference(331);
        f.int16();
        f.text(300);
    }
}

void readEarlyCell(Fields &f)
{
    constexpr int textCell = 1;
    const int kind = f.int16(171);
    f.small(172);
    f.flag(173);
    f.flag(174);
    f.int32(175);
    f.int32(176);
    const std::size_t rotation = f.mark();
    f.real(145);
    if (kind != textCell)
        readBlockInCell(f);
    else if (f.referenceUnlessNull(344) == 0 && f.until(Release::R2004)) {
        const std::string text = f.text();
        f.noteLong(1, 2, text);
    }
    // What differs from the style is counted in front of the content in the text form.
    const bool hasOverrides = f.flag();
    const int flags = hasOverrides ? f.int32() : 0;
    const int edges = hasOverrides ? f.small() : 0;
    readOverrides(f, static_cast<unsigned>(flags), cellOverrides);
    const std::size_t end = f.mark();
    f.note(f.until(Release::R2004) ? 177 : 91, flags);
    f.note(178, edges);
    f.moveForward(end, rotation);
    if (f.since(Release::R2007)) {
        f.int32(92);
        f.note(301, "CELL_VALUE");
        readCellValue(f);
    }
}

void readCells(Fields &f, std::size_t columns, std::size_t rows)
{
    constexpr std::size_t leastOfACell = 16;
    const std::size_t cells = f.checkedCount(static_cast<std::int64_t>(columns * rows), leastOfACell, f.values());
    for (std::size_t i = 0; i < cells && !f.hasFailed(); ++i)
        readEarlyCell(f);
}

/// Up to R2007, where the table has its cells itself.
void readEarlyTable(Fields &f, std::uint64_t block)
{
    const std::size_t flags = f.mark();
    f.int16(90);
    const std::size_t direction = f.mark();
    f.reference(342);
    f.noteHandle(343, block);
    f.point(11);
    f.moveForward(direction, flags);
    const std::size_t columns = f.count(2);
    const std::size_t rows = f.count(2);
    f.note(91, rows);
    f.note(92, columns);
    const std::size_t sizes = f.mark();
    for (std::size_t i = 0; i < columns; ++i)
        f.real(142);
    for (std::size_t i = 0; i < rows; ++i)
        f.real(141);
    f.arrange(sizes, {141, 142});
    readCells(f, columns, rows);
    const std::size_t overrides = f.mark();
    readTableOverrides(f);
    f.moveForward(overrides, sizes);
}

// From R2010 on the table has its content in the new form; the text form has the old one still.

void noteTable(Fields &f, const TableContent &table, std::uint64_t block, Point direction)
{
    f.noteHandle(342, table.style);
    f.noteHandle(343, block);
    f.note(11, direction);
    f.note(90, 22);
    f.note(91, table.heights.size());
    f.note(92, table.widths.size());
    for (int code = 93; code <= 96; ++code)
        f.note(code, 0);
    for (const double height : table.heights)
        f.note(141, height);
    for (const double width : table.widths)
        f.note(142, width);
    noteEarlyCells(f, table);
}

/// Where a long table is cut into parts that stand side by side.
void skipBreaks(Fields &f)
{
    constexpr int isBroken = 1;
    if (f.int32() == isBroken) {
        f.int32();
        f.int32();
        f.real();
        f.int32();
        f.int32();
        const std::size_t places = f.count(10);
        for (std::size_t i = 0; i < places; ++i) {
            f.point();
            f.real();
            f.int32();
        }
    }
    const std::size_t parts = f.count(10);
    for (std::size_t i = 0; i < parts; ++i) {
        f.point();
        f.int32();
        f.int32();
    }
}

void readLateTable(Fields &f, std::uint64_t block)
{
    f.small();
    f.reference();
    f.int32();
    if (f.since(Release::R2013))
        f.int32();
    else
        f.flag();
    const std::size_t begin = f.mark();
    const TableContent table = readTableContent(f);
    const std::size_t end = f.mark();
    f.int16();
    const Point direction = f.point();
    skipBreaks(f);
    const bool isDirection = std::abs(std::hypot(direction.x, direction.y, direction.z) - 1.0) < 1e-6;
    if (f.hasFailed() || !isDirection)
        return f.fail();
    noteTable(f, table, block, direction);
    const std::size_t count = f.mark() - end;
    f.moveForward(end, begin);
    f.drop(begin + count);
}

void readTable(Fields &f)
{
    BitReader next = f.references();
    const std::uint64_t block = next.handle().from(f.relations().handle);
    readInsertBody(f, false);
    f.subclass("AcDbTable");
    if (f.until(Release::R2007))
        readEarlyTable(f, block);
    else
        readLateTable(f, block);
}

/// The table is read whole, so that another form is noticed.
void readTableInsert(Fields &f)
{
    BitReader next = f.references();
    const std::uint64_t block = next.handle().from(f.relations().handle);
    readInsertBody(f, false);
    const std::size_t end = f.mark();
    readEarlyTable(f, block);
    f.drop(end);
}

} // namespace

const ObjectType &tableAsInsert()
{
    static constexpr ObjectType row = {0, "INSERT", readTableInsert, true};
    return row;
}

std::span<const ObjectType> tableEntityTypes()
{
    static constexpr ObjectType rows[] = {{0, "ACAD_TABLE", readTable, true}};
    return rows;
}

} // namespace host::dwg
