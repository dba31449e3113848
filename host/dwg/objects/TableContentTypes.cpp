#include "host/dwg/objects/TableContent.h"
#include "host/dwg/objects/TypeTable.h"

namespace host::dwg {

namespace {

/// Values under names, which other programs keep in a table.
void readCustomData(Fields &f)
{
    f.int32(91);
    f.note(301, "CUSTOMDATA");
    f.note(1, "DATAMAP_BEGIN");
    const std::size_t count = f.count(4);
    f.note(90, count);
    for (std::size_t i = 0; i < count && !f.hasFailed(); ++i) {
        f.text(300);
        f.note(301, "DATAMAP_VALUE");
        readCellValue(f);
    }
    f.note(309, "DATAMAP_END");
}

/// The format between the lines around it that name what has it.
TableFormat readNamedFormat(Fields &f, const char *name, const char *begin, const char *end)
{
    f.note(1, begin);
    f.note(300, name);
    TableFormat format = readTableFormat(f);
    f.note(309, end);
    return format;
}

double readColumn(Fields &f)
{
    f.note(300, "COLUMN");
    f.note(1, "LINKEDTABLEDATACOLUMN_BEGIN");
    f.text(300);
    readCustomData(f);
    f.note(309, "LINKEDTABLEDATACOLUMN_END");
    readNamedFormat(f, "COLUMNTABLEFORMAT", "FORMATTEDTABLEDATACOLUMN_BEGIN", "FORMATTEDTABLEDATACOLUMN_END");
    f.note(1, "TABLECOLUMN_BEGIN");
    f.int32(90);
    const double width = f.real(40);
    f.note(309, "TABLECOLUMN_END");
    return width;
}

void readContentAttributes(Fields &f)
{
    const std::size_t count = f.count(2);
    f.note(91, count);
    for (std::size_t i = 0; i < count && !f.hasFailed(); ++i) {
        f.reference(330);
        f.text(301);
        f.int32(92);
    }
}

TableCell readContent(Fields &f)
{
    TableCell cell;
    f.note(302, "CONTENT");
    f.note(1, "CELLCONTENT_BEGIN");
    cell.kind = f.int32(90);
    if (cell.kind == TableCell::Value) {
        f.note(300, "VALUE");
        cell.value = f.mark();
        readCellValue(f);
        cell.valueEnd = f.mark();
    } else if (cell.kind == TableCell::FieldText || cell.kind == TableCell::Block) {
        cell.object = f.reference(340);
    }
    readContentAttributes(f);
    f.note(309, "CELLCONTENT_END");
    f.note(1, "FORMATTEDCELLCONTENT_BEGIN");
    TableFormat format;
    if (f.int16(170) != 0)
        readContentFormat(f, format);
    cell.content = format;
    f.note(309, "FORMATTEDCELLCONTENT_END");
    return cell;
}

/// Where the data of a cell comes from.
void readDataLink(Fields &f)
{
    if (f.int32(92) == 0)
        return;
    f.reference(340);
    f.int32(93);
    f.int32(94);
    f.int32(96);
}

/// Where the contents of a cell stand in it.
void readCellGeometry(Fields &f)
{
    if (f.int32(91) == 0)
        return;
    f.real(40);
    f.real(41);
    f.int32(92);
    f.reference(330);
}

bool differsFromStyle(const TableFormat &format)
{
    return format.flags != 0 || std::ranges::any_of(format.borders, &TableFormat::Border::flags);
}

TableCell readCell(Fields &f)
{
    TableCell cell;
    f.note(300, "CELL");
    f.note(1, "LINKEDTABLEDATACELL_BEGIN");
    f.int32(90);
    f.text(300);
    readCustomData(f);
    readDataLink(f);
    const std::size_t contents = f.count(4);
    f.note(95, contents);
    for (std::size_t i = 0; i < contents && !f.hasFailed(); ++i)
        cell = readContent(f);
    f.note(309, "LINKEDTABLEDATACELL_END");
    TableFormat format =
        readNamedFormat(f, "CELLTABLEFORMAT", "FORMATTEDTABLEDATACELL_BEGIN", "FORMATTEDTABLEDATACELL_END");
    if (differsFromStyle(format))
        cell.format = std::make_unique<TableFormat>(std::move(format));
    f.note(1, "TABLECELL_BEGIN");
    f.int32(90);
    readCellGeometry(f);
    f.note(309, "TABLECELL_END");
    return cell;
}

/// A cell of a few bits has hundreds of bytes of tags, so the cells of hostile files are limited.
constexpr std::size_t mostTableCells = 200'000;

double readRow(Fields &f, std::vector<TableCell> &row)
{
    f.note(301, "ROW");
    f.note(1, "LINKEDTABLEDATAROW_BEGIN");
    const std::size_t cells = f.count(8);
    if (cells > mostTableCells) {
        f.fail();
        return 0.0;
    }
    f.note(90, cells);
    for (std::size_t i = 0; i < cells && !f.hasFailed(); ++i)
        row.push_back(readCell(f));
    readCustomData(f);
    f.note(309, "LINKEDTABLEDATAROW_END");
    readNamedFormat(f, "ROWTABLEFORMAT", "FORMATTEDTABLEDATAROW_BEGIN", "FORMATTEDTABLEDATAROW_END");
    f.note(1, "TABLEROW_BEGIN");
    f.int32(90);
    const double height = f.real(40);
    f.note(309, "TABLEROW_END");
    return height;
}

void readTableRows(Fields &f, std::size_t count, TableContent &table)
{
    std::size_t cells = 0;
    for (std::size_t i = 0; i < count && !f.hasFailed(); ++i) {
        table.heights.push_back(readRow(f, table.rows.emplace_back()));
        cells += table.rows.back().size();
        if (cells > mostTableCells)
            f.fail();
    }
}

void readLinkedTable(Fields &f, TableContent &table)
{
    f.subclass("AcDbLinkedTableData");
    const std::size_t columns = f.count(8);
    f.note(90, columns);
    for (std::size_t i = 0; i < columns && !f.hasFailed(); ++i)
        table.widths.push_back(readColumn(f));
    const std::size_t rows = f.count(8);
    f.note(91, rows);
    readTableRows(f, rows, table);
    const std::size_t fields = f.checkedCount(f.int32(), 8, f.references());
    f.note(92, fields);
    for (std::size_t i = 0; i < fields; ++i)
        f.reference(340);
}

void readFormattedTable(Fields &f, TableContent &table)
{
    f.subclass("AcDbFormattedTableData");
    f.note(300, "TABLEFORMAT");
    readTableFormat(f);
    const std::size_t merged = f.count(8);
    f.note(90, merged);
    for (std::size_t i = 0; i < merged; ++i) {
        const int top = f.int32(91);
        const int left = f.int32(92);
        const int bottom = f.int32(93);
        table.merged.push_back({top, left, bottom, f.int32(94)});
    }
}

void readCellContentGeometry(Fields &f)
{
    f.point(10);
    f.point(11);
    for (int code = 43; code <= 46; ++code)
        f.real(code);
    f.int32(95);
}

void readTableGeometry(Fields &f)
{
    f.subclass("AcDbTableGeometry");
    f.int32(90);
    f.int32(91);
    const std::size_t cells = f.count(8);
    f.note(92, cells);
    for (std::size_t i = 0; i < cells && !f.hasFailed(); ++i) {
        f.int32(93);
        f.real(40);
        f.real(41);
        f.reference(330);
        const std::size_t contents = f.count(22);
        f.note(94, contents);
        for (std::size_t content = 0; content < contents; ++content)
            readCellContentGeometry(f);
    }
}

void readContentObject(Fields &f)
{
    readTableContent(f);
}

} // namespace

TableContent readTableContent(Fields &f)
{
    TableContent table;
    f.subclass("AcDbLinkedData");
    f.text(1);
    f.text(300);
    readLinkedTable(f, table);
    readFormattedTable(f, table);
    f.subclass("AcDbTableContent");
    table.style = f.reference(340);
    return table;
}

std::span<const ObjectType> tableContentTypes()
{
    static constexpr ObjectType rows[] = {
        {0, "TABLECONTENT", readContentObject},
        {0, "TABLEGEOMETRY", readTableGeometry},
    };
    return rows;
}

} // namespace host::dwg
