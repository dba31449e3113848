#pragma once

#include "host/view/display/Display.h"

#include <QRectF>

#include <functional>
#include <optional>

namespace host::view {

/// The cells of an inserted array that a view can see. Rows and columns may be numbered in thousands of millions: what
/// lies outside the view is never counted through, and cells too dense to tell apart are thinned out. At most 250,000
/// are visited, evenly spread.
class ArrayCells
{
public:
    /// `first` is what the cell (0, 0) covers on the screen, the steps lead from cell to cell; all in pixels. Without a
    /// view, and where both steps run in one direction, no cell counts as outside.
    ArrayCells(const QRectF &first, Vec2 columnStep, Vec2 rowStep, std::int64_t columns, std::int64_t rows,
               const std::optional<QRectF> &view);

    /// Row by row, from the lowest numbers on. Ends early when the visitor returns false.
    void visit(const std::function<bool(std::int64_t column, std::int64_t row)> &visitor) const;

private:
    /// Numbers from `first` up to `last`, every `stride` of them; none when `last` is less.
    struct Range
    {
        std::int64_t first = 0;
        std::int64_t last = -1;
        std::int64_t stride = 1;
        std::int64_t count() const { return last < first ? 0 : (last - first) / stride + 1; }
    };
    /// Leaves the cells whose own rectangle meets the view, and some beside it where the array is turned.
    void restrictToView(const QRectF &first, const QRectF &view, Vec2 columnStep, Vec2 rowStep);
    static void restrict(Range &range, double from, double to);
    /// Leaves out rows and columns that are less than a pixel apart, and every second one while there are too many.
    void thinOut(Vec2 columnStep, Vec2 rowStep);

    Range m_columns;
    Range m_rows;
};

} // namespace host::view
