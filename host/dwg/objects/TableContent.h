#pragma once

#include "host/dwg/objects/TableFormat.h"

#include <memory>

namespace host::dwg {

/// What stands in one cell of a table, as far as the form of earlier releases has it.
struct TableCell
{
    enum Kind
    {
        Empty = 0,
        Value = 1,
        FieldText = 2,
        Block = 4
    };

    int kind = Empty;
    std::uint64_t object = 0; ///< the field or the block
    std::size_t value = 0;    ///< where the tags of the value begin and end
    std::size_t valueEnd = 0;
    ContentFormat content;
    std::unique_ptr<TableFormat> format; ///< null where nothing of the cell differs from its style
};

/// Cells that are one: rows and columns, counted from 0, the last ones too.
struct MergedCells
{
    int top = 0;
    int left = 0;
    int bottom = 0;
    int right = 0;
};

struct TableContent
{
    std::vector<double> widths;
    std::vector<double> heights;
    std::vector<std::vector<TableCell>> rows;
    std::vector<MergedCells> merged;
    std::uint64_t style = 0;
};

/// Reads the columns, rows and cells of a table with what is in them and how it looks: an object of its own, and from
/// R2010 on a part of the table as well. Returns what was noted besides noting it.
TableContent readTableContent(Fields &fields);

/// Notes the cells of the table in the older form, row by row.
void noteEarlyCells(Fields &fields, const TableContent &table);

} // namespace host::dwg
