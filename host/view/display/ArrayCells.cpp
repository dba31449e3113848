#include "host/view/display/ArrayCells.h"

namespace host::view {

namespace {

constexpr double smallestStep = 1.0; ///< pixels
constexpr std::int64_t mostCells = 250'000;

std::int64_t strideFor(Vec2 step)
{
    const double length = step.length();
    if (!(length > 0.0))
        return std::numeric_limits<std::int64_t>::max() / 4; // all cells lie on one another
    return static_cast<std::int64_t>(std::clamp(std::ceil(smallestStep / length), 1.0, 1e15));
}

} // namespace

ArrayCells::ArrayCells(const QRectF &first, Vec2 columnStep, Vec2 rowStep, std::int64_t columns, std::int64_t rows,
                       const std::optional<QRectF> &view)
    : m_columns{0, columns - 1}, m_rows{0, rows - 1}
{
    if (view)
        restrictToView(first, *view, columnStep, rowStep);
    thinOut(columnStep, rowStep);
}

/// The cell (i, j) lies at first + i * columnStep + j * rowStep. It can be seen when its offset from the first cell
/// lies in the view widened by the cell; the corners of that rectangle bound i and j, the map being linear.
void ArrayCells::restrictToView(const QRectF &first, const QRectF &view, Vec2 columnStep, Vec2 rowStep)
{
    const double area = cross(columnStep, rowStep);
    if (std::abs(area) < 1e-12 * columnStep.length() * rowStep.length() || area == 0.0)
        return;
    const Vec2 low{view.left() - first.right(), view.top() - first.bottom()};
    const Vec2 high{view.right() - first.left(), view.bottom() - first.top()};
    double columnFrom = std::numeric_limits<double>::infinity();
    double columnTo = -columnFrom;
    double rowFrom = columnFrom;
    double rowTo = -columnFrom;
    for (const Vec2 corner : {low, high, Vec2{low.x, high.y}, Vec2{high.x, low.y}}) {
        const double column = cross(corner, rowStep) / area;
        const double row = cross(columnStep, corner) / area;
        columnFrom = std::min(columnFrom, column);
        columnTo = std::max(columnTo, column);
        rowFrom = std::min(rowFrom, row);
        rowTo = std::max(rowTo, row);
    }
    restrict(m_columns, columnFrom, columnTo);
    restrict(m_rows, rowFrom, rowTo);
}

void ArrayCells::restrict(Range &range, double from, double to)
{
    if (!(from <= to))
        return;
    if (to < static_cast<double>(range.first) || from > static_cast<double>(range.last)) {
        range.last = range.first - 1;
        return;
    }
    if (from > static_cast<double>(range.first))
        range.first = static_cast<std::int64_t>(std::floor(from));
    if (to < static_cast<double>(range.last))
        range.last = static_cast<std::int64_t>(std::ceil(to));
}

void ArrayCells::thinOut(Vec2 columnStep, Vec2 rowStep)
{
    m_columns.stride = strideFor(columnStep);
    m_rows.stride = strideFor(rowStep);
    while (m_columns.count() > mostCells / std::max<std::int64_t>(m_rows.count(), 1)) {
        Range &denser = m_columns.count() > m_rows.count() ? m_columns : m_rows;
        denser.stride *= 2;
    }
}

void ArrayCells::visit(const std::function<bool(std::int64_t, std::int64_t)> &visitor) const
{
    for (std::int64_t row = m_rows.first; row <= m_rows.last; row += m_rows.stride) {
        for (std::int64_t column = m_columns.first; column <= m_columns.last; column += m_columns.stride) {
            if (!visitor(column, row))
                return;
        }
    }
}

} // namespace host::view
