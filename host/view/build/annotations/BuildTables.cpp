#include "host/drawing/geometry/EntityGeometry.h"
#include "host/drawing/records/Blocks.h"
#include "host/view/build/BuildMText.h"
#include "host/view/build/annotations/AnnotationParts.h"
#include "host/view/build/annotations/TableData.h"
#include "host/view/display/DisplayBoxes.h"

#include <QHash>

namespace host::view {

using drawing::TagList;

namespace {

/// A table in its own coordinates: columns along x, rows down from 0, or up from it.
class TableBuilder
{
public:
    TableBuilder(BuildContext &context, TableData table, const Matrix &placement)
        : m_context(context), m_table(std::move(table)), m_placement(placement)
    {
        m_x.push_back(0.0);
        for (const double width : m_table.widths)
            m_x.push_back(m_x.back() + width);
        m_y.push_back(0.0);
        for (const double height : m_table.heights)
            m_y.push_back(m_y.back() - height);
        if (m_table.growsUp)
            std::ranges::for_each(m_y, [](double &y) { y = -y; });
    }

    bool build()
    {
        const std::size_t rows = m_table.heights.size();
        const std::size_t columns = m_table.widths.size();
        if (rows == 0 || columns == 0 || !isUsable(m_x.back()) || !isUsable(m_y.back()))
            return false;
        // Sizes of a few bytes each make a cell of every row and column.
        constexpr std::size_t mostCells = 1'000'000;
        if (rows > mostCells / columns || !m_context.work.take(static_cast<std::int64_t>(rows * columns)))
            return false;
        for (std::size_t row = 0; row < rows; ++row) {
            for (std::size_t column = 0; column < columns; ++column)
                addFill(row, column);
        }
        addGrid();
        for (std::size_t row = 0; row < rows; ++row) {
            for (std::size_t column = 0; column < columns; ++column)
                addContent(row, column);
        }
        return true;
    }

private:
    /// What a cell covers, with what is merged into it.
    Box cellBox(std::size_t row, std::size_t column, const TableCell *cell) const
    {
        const std::size_t right = std::min(column + (cell ? cell->columns : 1), m_table.widths.size());
        const std::size_t below = std::min(row + (cell ? cell->rows : 1), m_table.heights.size());
        Box box;
        box.add(Vec3{m_x[column], m_y[row], 0.0});
        box.add(Vec3{m_x[right], m_y[below], 0.0});
        return box;
    }

    Path outline(const Box &box) const
    {
        const Vec3 &low = box.low;
        const Vec3 &high = box.high;
        Path path = {low, {high.x, low.y, 0.0}, high, {low.x, high.y, 0.0}, low};
        for (Vec3 &point : path)
            point = m_placement.point(point);
        return path;
    }

    void addFill(std::size_t row, std::size_t column)
    {
        const TableCell *cell = m_table.cell(row, column);
        const TableRowStyle &style = m_table.styleOfRow(row);
        const bool isFilled = cell ? cell->isFilled.value_or(style.isFilled || cell->fill) : style.isFilled;
        if (!isFilled || (cell && cell->isHidden))
            return;
        const Path path = outline(cellBox(row, column, cell));
        if (!areUsable(path))
            return;
        Fill fill;
        fill.contours.push_back({.points = path});
        m_context.add(std::move(fill), styleWithColour(m_context.style, cell && cell->fill ? *cell->fill : style.fill));
    }

    std::int64_t spanOf(const TableCell &cell) const
    {
        return static_cast<std::int64_t>(std::min(cell.rows, m_table.heights.size()) *
                                         std::min(cell.columns, m_table.widths.size()));
    }

    /// The number of the cell that covers a place, merged ones counting as one.
    std::vector<std::size_t> owners() const
    {
        const std::size_t rows = m_table.heights.size();
        const std::size_t columns = m_table.widths.size();
        std::vector<std::size_t> owners(rows * columns);
        for (std::size_t i = 0; i < owners.size(); ++i)
            owners[i] = i;
        for (std::size_t i = 0; i < owners.size(); ++i) {
            const TableCell *cell = m_table.cell(i / columns, i % columns);
            const bool isMerged = cell && !cell->isHidden && (cell->columns > 1 || cell->rows > 1);
            // Cells may claim the same places again and again.
            if (!isMerged || owners[i] != i || !m_context.work.take(spanOf(*cell)))
                continue;
            for (std::size_t row = i / columns; row < std::min(rows, i / columns + cell->rows); ++row) {
                for (std::size_t column = i % columns; column < std::min(columns, i % columns + cell->columns);
                     ++column)
                    owners[row * columns + column] = i;
            }
        }
        return owners;
    }

    /// Every line between two cells once, by the cell above or left of it, unless the other one says something itself.
    void addGrid()
    {
        const std::vector<std::size_t> owner = owners();
        const std::size_t rows = m_table.heights.size();
        const std::size_t columns = m_table.widths.size();
        for (std::size_t row = 0; row <= rows; ++row) {
            for (std::size_t column = 0; column < columns; ++column) {
                const std::size_t at = row * columns + column;
                if (row == 0 || row == rows || owner[at] != owner[at - columns])
                    addAcross(row, column);
            }
        }
        for (std::size_t row = 0; row < rows; ++row) {
            for (std::size_t column = 0; column <= columns; ++column) {
                const std::size_t at = row * columns + column;
                if (column == 0 || column == columns || owner[at] != owner[at - 1])
                    addDown(row, column);
            }
        }
    }

    bool isSameKind(std::size_t row, std::size_t other) const
    {
        return &m_table.styleOfRow(row) == &m_table.styleOfRow(other);
    }

    /// Above row `row`.
    void addAcross(std::size_t row, std::size_t column)
    {
        const bool isLast = row == m_table.heights.size();
        const std::size_t owner = isLast ? row - 1 : row;
        TableRowStyle::Side side = isLast ? TableRowStyle::Bottom : TableRowStyle::Top;
        if (!isLast && row > 0 && isSameKind(row, row - 1))
            side = TableRowStyle::InsideAcross;
        addLine(m_table.styleOfRow(owner).lines[side], isLast ? nullptr : m_table.cell(row, column), TableCell::TopEdge,
                row > 0 ? m_table.cell(row - 1, column) : nullptr, TableCell::BottomEdge,
                {{m_x[column], m_y[row], 0.0}, {m_x[column + 1], m_y[row], 0.0}});
    }

    /// Left of column `column`.
    void addDown(std::size_t row, std::size_t column)
    {
        const bool isLast = column == m_table.widths.size();
        const TableRowStyle::Side side = column == 0 ? TableRowStyle::Left
                                         : isLast    ? TableRowStyle::Right
                                                     : TableRowStyle::InsideDown;
        addLine(m_table.styleOfRow(row).lines[side], isLast ? nullptr : m_table.cell(row, column), TableCell::LeftEdge,
                column > 0 ? m_table.cell(row, column - 1) : nullptr, TableCell::RightEdge,
                {{m_x[column], m_y[row], 0.0}, {m_x[column], m_y[row + 1], 0.0}});
    }

    void addLine(TableLine line, const TableCell *cell, TableCell::Edge edge, const TableCell *other,
                 TableCell::Edge otherEdge, Path ends)
    {
        const auto take = [&](const TableCell *own, TableCell::Edge at) {
            if (!own)
                return;
            line.isVisible = own->visible[at].value_or(line.isVisible);
            line.colour = own->colours[at].value_or(line.colour);
            line.lineweight = own->lineweights[at].value_or(line.lineweight);
        };
        take(other, otherEdge);
        take(cell, edge);
        if (!line.isVisible)
            return;
        for (Vec3 &point : ends)
            point = m_placement.point(point);
        addPath(m_context, std::move(ends),
                styleWithWeight(styleWithColour(m_context.style, line.colour), line.lineweight));
    }

    void addContent(std::size_t row, std::size_t column)
    {
        const TableCell *cell = m_table.cell(row, column);
        if (!cell || cell->isHidden)
            return;
        const TableRowStyle &style = m_table.styleOfRow(row);
        const int alignment = cell->alignment.value_or(style.alignment) - 1;
        const Box box = cellBox(row, column, cell);
        const Vec3 margin{m_table.horizontalMargin, m_table.verticalMargin, 0.0};
        const Vec3 low = box.low + margin;
        const Vec3 high = box.high - margin;
        const Vec3 at{low.x + (high.x - low.x) * (alignment % 3) / 2.0,
                      high.y - (high.y - low.y) * (alignment / 3) / 2.0, 0.0};
        if (cell->isBlock)
            addBlockCell(*cell, at, high - low, alignment);
        else if (!cell->text.isEmpty())
            addText(*cell, style, at, high.x - low.x, alignment);
    }

    void addText(const TableCell &cell, const TableRowStyle &style, const Vec3 &at, double width, int alignment)
    {
        BuildContext part =
            contextWithStyle(m_context, styleWithColour(m_context.style, cell.textColour.value_or(style.text)));
        const MTextPlace place{.frame = m_placement * Matrix::translation(at) * Matrix::rotation(cell.rotation),
                               .height = cell.height.value_or(style.height),
                               .attachment = alignment,
                               .styleName = cell.textStyle.isEmpty() ? style.textStyle : cell.textStyle};
        if (isUsable(place.height) && std::isfinite(cell.rotation))
            addMText(part, place, cell.text, {.width = cell.rotation == 0.0 ? std::max(width, 0.0) : 0.0});
    }

    /// Scaled to its cell, or by its own factor, and aligned by what it covers.
    void addBlockCell(const TableCell &cell, const Vec3 &at, const Vec3 &room, int alignment)
    {
        const QString name = nameOf(m_context, cell.block);
        const Box box = blockBox(name);
        const Vec3 size = box.high - box.low;
        if (box.isEmpty() || !(size.x > 0.0 || size.y > 0.0)) {
            m_context.display.isSimplified |= !name.isEmpty();
            return;
        }
        double scale = cell.blockScale;
        if (cell.fitsBlock || scale == 0.0)
            scale = std::min(size.x > 0.0 ? room.x / size.x : room.y / size.y,
                             size.y > 0.0 ? room.y / size.y : room.x / size.x);
        const Vec3 anchor{box.low.x + size.x * (alignment % 3) / 2.0, box.high.y - size.y * (alignment / 3) / 2.0, 0.0};
        const Matrix placement = m_placement * Matrix::translation(at) * Matrix::rotation(cell.rotation) *
                                 Matrix::scaling({scale, scale, scale}) * Matrix::translation(anchor * -1.0);
        if (!(scale > 0.0) || !addBlock(m_context, name, placement, m_context.style))
            return;
        for (const TableCell::Attribute &attribute : cell.attributes) {
            const RecordId definition =
                m_context.drawing.find(attribute.definition->handle().value_or(drawing::Handle{}));
            if (attribute.text && m_context.drawing.isAlive(definition) &&
                m_context.drawing.isType(definition, "ATTDEF"))
                addAttribute(m_context, definition, *attribute.text, placement, m_context.style);
        }
    }

    /// What the entities of a block cover, its base point at the origin; measured once.
    Box blockBox(const QString &name)
    {
        if (const auto known = m_boxes.constFind(name); known != m_boxes.constEnd())
            return *known;
        Box box;
        if (const auto block = m_context.drawing.blocks().get(name); block && !name.isEmpty()) {
            const std::vector<RecordId> entities = m_context.drawing.children(block->record);
            if (m_context.work.take(static_cast<std::int64_t>(entities.size())))
                box = movedBox(drawing::spaceBox(m_context.drawing, entities), block->basePoint * -1.0);
        }
        m_boxes.insert(name, box);
        return box;
    }

    BuildContext &m_context;
    TableData m_table;
    const Matrix m_placement;
    std::vector<double> m_x; ///< left of each column, and the right end
    std::vector<double> m_y; ///< above each row, and the lower end
    QHash<QString, Box> m_boxes;
};

} // namespace

/// By its block, in which its maker drew it, and cell by cell where there is none.
bool buildTable(BuildContext &context, const TagList &tags)
{
    const Vec3 across = tags.point(11, {1.0, 0.0, 0.0});
    const Vec3 normal = tags.point(210, {0.0, 0.0, 1.0});
    const Matrix placement = Matrix::fromExtrusion(normal) * Matrix::translation(tags.point(10)) *
                             Matrix::rotation(std::atan2(across.y, across.x));
    if (addBlock(context, tags.text(2), placement, context.style))
        return true;
    return isUsable(placement.origin) && isUsable(placement.xAxis) &&
           TableBuilder(context, readTable(context.drawing, tags), placement).build();
}

} // namespace host::view
