#include "host/view/build/annotations/TableData.h"

#include "host/view/build/DisplayBuilder.h"

namespace host::view {

using drawing::Tag;
using drawing::TagList;

namespace {

qint64 integerOf(const Tag &tag)
{
    return tag.integer().value_or(0);
}

bool isSize(double value)
{
    return value > 0.0 && isUsable(value);
}

/// The three kinds of rows follow each other, each from its text style on: data, title, header.
class TableStyleReader
{
public:
    TableStyleReader(const TagList &tags, TableData &table)
        : m_tags(tags), m_rows{&table.data, &table.title, &table.header}
    {
    }

    void read()
    {
        std::size_t row = 0;
        bool isInRow = false;
        for (const Tag &tag : m_tags.own()) {
            if (tag.code == 7) {
                row += isInRow ? 1 : 0;
                isInRow = true;
            }
            if (isInRow && row < m_rows.size())
                readRow(*m_rows[row], tag);
        }
    }

private:
    void readRow(TableRowStyle &row, const Tag &tag)
    {
        switch (tag.code) {
        case 7:
            row.textStyle = m_tags.decoded(tag);
            break;
        case 140:
            row.height = isSize(tag.real().value_or(0.0)) ? *tag.real() : row.height;
            break;
        case 170:
            row.alignment = static_cast<int>(std::clamp<qint64>(integerOf(tag), 1, 9));
            break;
        case 62:
            row.text = colourFromIndex(integerOf(tag));
            break;
        case 63:
            row.fill = colourFromIndex(integerOf(tag));
            break;
        case 283:
            row.isFilled = integerOf(tag) != 0;
            break;
        default:
            readLine(row, tag);
        }
    }

    /// Weights 274 to 279, whether they are seen 284 to 289, colours 64 to 69.
    static void readLine(TableRowStyle &row, const Tag &tag)
    {
        const auto side = [&](int first) { return static_cast<std::size_t>(tag.code - first); };
        if (tag.code >= 274 && tag.code <= 279)
            row.lines[side(274)].lineweight = static_cast<int>(std::clamp<qint64>(integerOf(tag), -3, 211));
        else if (tag.code >= 284 && tag.code <= 289)
            row.lines[side(284)].isVisible = integerOf(tag) != 0;
        else if (tag.code >= 64 && tag.code <= 69)
            row.lines[side(64)].colour = colourFromIndex(integerOf(tag));
    }

    const TagList &m_tags;
    std::array<TableRowStyle *, 3> m_rows;
};

/// Sizes in front, then cell by cell from its type (171) on.
class TableReader
{
public:
    TableReader(const TagList &tags, TableData &table) : m_tags(tags), m_table(table) {}

    void read()
    {
        bool isOfTable = false;
        for (const Tag &tag : m_tags.own()) {
            isOfTable |= tag.code == 100 && tag.trimmed() == "AcDbTable";
            if (!isOfTable)
                continue;
            if (tag.code == 171)
                m_table.cells.push_back({.isBlock = integerOf(tag) == 2});
            else if (m_table.cells.empty())
                readHead(tag);
            else
                readCell(m_table.cells.back(), tag);
        }
    }

private:
    void readHead(const Tag &tag)
    {
        const double size = std::abs(tag.real().value_or(0.0));
        if (tag.code == 141)
            m_table.heights.push_back(isSize(size) ? size : 0.0);
        else if (tag.code == 142)
            m_table.widths.push_back(isSize(size) ? size : 0.0);
        else if (tag.code == 280)
            m_table.hasTitle = integerOf(tag) == 0;
        else if (tag.code == 281)
            m_table.hasHeader = integerOf(tag) == 0;
        else if (tag.code == 70)
            m_table.growsUp = integerOf(tag) == 1;
        else if (tag.code == 40 && isUsable(size))
            m_table.horizontalMargin = size;
        else if (tag.code == 41 && isUsable(size))
            m_table.verticalMargin = size;
    }

    /// A value of later versions: its text as it is shown (302, behind long parts 303) stands between marks.
    bool readValue(TableCell &cell, const Tag &tag)
    {
        if (tag.code == 301)
            m_isInValue = true;
        else if (tag.code == 304)
            m_isInValue = false;
        else if (m_isInValue && (tag.code == 302 || tag.code == 303))
            m_shown += m_tags.decoded(tag);
        else if (m_isInValue && (tag.code == 1 || tag.code == 2))
            cell.text += m_tags.decoded(tag);
        else
            return m_isInValue;
        if (tag.code == 304 && cell.text.isEmpty())
            cell.text = std::exchange(m_shown, {});
        else if (tag.code == 304)
            m_shown.clear();
        return true;
    }

    void readCell(TableCell &cell, const Tag &tag)
    {
        if (readValue(cell, tag) || readLook(cell, tag) || readEdge(cell, tag))
            return;
        constexpr qint64 most = 0xffff;
        switch (tag.code) {
        case 173:
            cell.isHidden = integerOf(tag) != 0;
            break;
        case 174:
            cell.fitsBlock = integerOf(tag) != 0;
            break;
        case 175:
            cell.columns = static_cast<std::size_t>(std::clamp<qint64>(integerOf(tag), 1, most));
            break;
        case 176:
            cell.rows = static_cast<std::size_t>(std::clamp<qint64>(integerOf(tag), 1, most));
            break;
        case 145:
            cell.rotation = tag.real().value_or(0.0);
            break;
        case 1:
        case 2:
            cell.text += m_tags.decoded(tag);
            break;
        case 340:
            cell.block = &tag;
            break;
        case 144:
            cell.blockScale = tag.real().value_or(1.0);
            break;
        case 331:
            cell.attributes.push_back({&tag, nullptr});
            break;
        case 300:
            if (!cell.attributes.empty())
                cell.attributes.back().text = &tag;
            break;
        default:
            break;
        }
    }

    bool readLook(TableCell &cell, const Tag &tag)
    {
        switch (tag.code) {
        case 7:
            cell.textStyle = m_tags.decoded(tag);
            return true;
        case 140:
            if (isSize(tag.real().value_or(0.0)))
                cell.height = tag.real();
            return true;
        case 170:
            cell.alignment = static_cast<int>(std::clamp<qint64>(integerOf(tag), 1, 9));
            return true;
        case 64:
            cell.textColour = colourFromIndex(integerOf(tag));
            return true;
        case 63:
            cell.fill = colourFromIndex(integerOf(tag));
            return true;
        case 283:
            cell.isFilled = integerOf(tag) != 0;
            return true;
        default:
            return false;
        }
    }

    static bool readEdge(TableCell &cell, const Tag &tag)
    {
        // Top, right, bottom, left.
        constexpr std::array visible = {289, 285, 286, 288};
        constexpr std::array colours = {69, 65, 66, 68};
        constexpr std::array weights = {279, 275, 276, 278};
        for (std::size_t edge = 0; edge < visible.size(); ++edge) {
            if (tag.code == visible[edge])
                cell.visible[edge] = integerOf(tag) != 0;
            else if (tag.code == colours[edge])
                cell.colours[edge] = colourFromIndex(integerOf(tag));
            else if (tag.code == weights[edge])
                cell.lineweights[edge] = static_cast<int>(std::clamp<qint64>(integerOf(tag), -3, 211));
            else
                continue;
            return true;
        }
        return false;
    }

    const TagList &m_tags;
    TableData &m_table;
    bool m_isInValue = false;
    QString m_shown;
};

} // namespace

const TableCell *TableData::cell(std::size_t row, std::size_t column) const
{
    const std::size_t place = row * widths.size() + column;
    return place < cells.size() ? &cells[place] : nullptr;
}

const TableRowStyle &TableData::styleOfRow(std::size_t row) const
{
    if (row >= headRows())
        return data;
    return row == 0 && hasTitle ? title : header;
}

TableData readTable(const drawing::Drawing &drawing, const TagList &tags)
{
    TableData table;
    const Tag *handle = tags.find(342);
    const RecordId record = drawing.find(handle ? handle->handle().value_or(drawing::Handle{}) : drawing::Handle{});
    if (drawing.isAlive(record) && drawing.isType(record, "TABLESTYLE")) {
        const TagList style = drawing.tags(record);
        table.growsUp = style.integer(70) == 1;
        table.horizontalMargin = std::abs(style.real(40, table.horizontalMargin));
        table.verticalMargin = std::abs(style.real(41, table.verticalMargin));
        table.hasTitle = style.integer(280) == 0;
        table.hasHeader = style.integer(281) == 0;
        TableStyleReader(style, table).read();
    }
    TableReader(tags, table).read();
    return table;
}

} // namespace host::view
