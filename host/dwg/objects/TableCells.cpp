// The cells of a table in the form that releases before R2010 have, made of its content.

#include "host/dwg/objects/TableContent.h"

namespace host::dwg {

namespace {

/// Whether the cell is part of merged cells, and if it is the first of them how many they are.
struct Merging
{
    bool isHidden = false;
    int columns = 1;
    int rows = 1;
};

using MergingRows = std::vector<std::vector<Merging>>;

/// Hides the cells behind the first one; ends at one that is merged already, so that each is looked at once.
void mergeCells(MergingRows &rows, const MergedCells &cells)
{
    const auto at = [](int number) { return static_cast<std::size_t>(number); };
    if (cells.top < 0 || cells.left < 0 || cells.bottom < cells.top || cells.right < cells.left ||
        at(cells.bottom) >= rows.size())
        return;
    for (int row = cells.top; row <= cells.bottom; ++row) {
        for (int column = cells.left; column <= cells.right; ++column) {
            if (at(column) >= rows[at(row)].size() || rows[at(row)][at(column)].isHidden)
                return;
            rows[at(row)][at(column)].isHidden = true;
        }
    }
    rows[at(cells.top)][at(cells.left)] = {false, cells.right - cells.left + 1, cells.bottom - cells.top + 1};
}

MergingRows mergingOf(const TableContent &table)
{
    MergingRows rows;
    for (const std::vector<TableCell> &row : table.rows)
        rows.emplace_back(row.size());
    for (const MergedCells &cells : table.merged)
        mergeCells(rows, cells);
    return rows;
}

void noteNoValue(Fields &f)
{
    f.note(93, 3);
    f.note(90, 0);
    f.note(91, 0);
    f.note(94, 0);
    f.note(300, "");
    f.note(302, "");
    f.note(304, "ACVALUE_END");
}

/// Numbers of the older form for what differs from the style.
struct EarlyCellFlag
{
    static constexpr unsigned alignment = 0x1;
    static constexpr unsigned hasFill = 0x2;
    static constexpr unsigned fill = 0x4;
    static constexpr unsigned colour = 0x8;
    static constexpr unsigned textStyle = 0x10;
    static constexpr unsigned height = 0x20;
};

/// A side of a cell: its place among the borders, and what the older form has of its colour. The numbers and groups of
/// its weight and visibility follow from these.
struct CellSide
{
    std::size_t border;
    unsigned flag;
    int code;

    static constexpr int weightShift = 4;
    static constexpr int visibilityShift = 8;
    static constexpr int weightCode = 210;
    static constexpr int visibilityCode = 220;
};

/// Above, right, below, left.
constexpr CellSide cellSides[] = {{0, 0x40, 69}, {5, 0x80, 65}, {2, 0x100, 66}, {3, 0x200, 68}};

/// How one cell looks: its own format, but what its content has in its own way.
class CellLook
{
public:
    explicit CellLook(const TableCell &cell)
        : m_cell(cell.format.get()), m_flags((m_cell ? m_cell->flags : 0) | cell.content.flags), m_content(cell.content)
    {
    }

    unsigned flags(const Fields &f) const
    {
        using Bit = ContentFormat;
        unsigned flags = 0;
        flags |= has(Bit::alignmentBit) ? EarlyCellFlag::alignment : 0;
        flags |= hasFill() ? EarlyCellFlag::hasFill : 0;
        flags |= hasFill() && isFilled() ? EarlyCellFlag::fill : 0;
        flags |= has(Bit::colourBit) ? EarlyCellFlag::colour : 0;
        flags |= !textStyle(f).empty() ? EarlyCellFlag::textStyle : 0;
        flags |= has(Bit::heightBit) ? EarlyCellFlag::height : 0;
        for (const CellSide &side : cellSides)
            flags |= sideFlags(side);
        return flags;
    }

    void note(Fields &f) const
    {
        using Bit = ContentFormat;
        if (has(Bit::alignmentBit))
            f.note(170, of(Bit::alignmentBit).alignment);
        if (hasFill()) {
            f.note(283, isFilled());
            if (isFilled())
                f.note(63, m_cell->fill);
        }
        if (has(Bit::colourBit))
            f.note(64, of(Bit::colourBit).colour);
        if (const std::string_view style = textStyle(f); !style.empty())
            f.note(7, style);
        if (has(Bit::heightBit))
            f.note(140, of(Bit::heightBit).height);
        for (const CellSide &side : cellSides)
            noteSide(f, side);
    }

private:
    using Border = TableFormat::Border;

    bool has(int bit) const { return (m_flags & bit) != 0; }
    bool hasFill() const { return m_cell && (m_cell->flags & ContentFormat::fillBit) != 0; }
    bool isFilled() const { return m_cell->fill.index != TableFormat::noFill; }
    const ContentFormat &of(int bit) const { return (m_content.flags & bit) != 0 ? m_content : *m_cell; }

    std::string_view textStyle(const Fields &f) const
    {
        const int bit = ContentFormat::textStyleBit;
        return has(bit) ? f.nameOf(of(bit).textStyle) : std::string_view();
    }

    unsigned sideFlags(const CellSide &side) const
    {
        const int flags = m_cell ? m_cell->borders[side.border].flags : 0;
        return ((flags & Border::colourBit) != 0 ? side.flag : 0) |
               ((flags & Border::weightBit) != 0 ? side.flag << CellSide::weightShift : 0) |
               ((flags & Border::visibilityBit) != 0 ? side.flag << CellSide::visibilityShift : 0);
    }

    void noteSide(Fields &f, const CellSide &side) const
    {
        if (!m_cell)
            return;
        const Border &border = m_cell->borders[side.border];
        if ((border.flags & Border::colourBit) != 0)
            f.note(side.code, border.colour);
        if ((border.flags & Border::weightBit) != 0)
            f.note(side.code + CellSide::weightCode, border.weight);
        if ((border.flags & Border::visibilityBit) != 0)
            f.note(side.code + CellSide::visibilityCode, border.isVisible);
    }

    const TableFormat *m_cell;
    int m_flags;
    const ContentFormat &m_content;
};

void noteCell(Fields &f, const TableCell &cell, const Merging &merging)
{
    const bool isBlock = cell.kind == TableCell::Block;
    const int automatic = cell.content.flags & cell.content.properties & ContentFormat::automaticScaleBit;
    const CellLook look(cell);
    f.note(171, isBlock ? 2 : 1);
    f.note(172, 0);
    f.note(173, merging.isHidden);
    f.note(174, isBlock && automatic != 0);
    f.note(175, merging.columns);
    f.note(176, merging.rows);
    f.note(91, look.flags(f));
    f.note(178, 0);
    f.note(145, cell.content.rotation);
    if (isBlock) {
        f.noteHandle(340, cell.object);
        f.note(144, cell.content.scale);
    } else if (cell.object != 0) {
        f.noteHandle(344, cell.object);
    }
    look.note(f);
    f.note(92, 0);
    f.note(301, "CELL_VALUE");
    if (cell.valueEnd > cell.value)
        f.repeat(cell.value, cell.valueEnd);
    else
        noteNoValue(f);
}

} // namespace

void noteEarlyCells(Fields &f, const TableContent &table)
{
    const MergingRows merging = mergingOf(table);
    for (std::size_t row = 0; row < table.rows.size(); ++row) {
        for (std::size_t column = 0; column < table.rows[row].size(); ++column)
            noteCell(f, table.rows[row][column], merging[row][column]);
    }
}

} // namespace host::dwg
