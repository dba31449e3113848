#pragma once

#include "host/view/display/Display.h"

#include <QRectF>

#include <functional>
#include <optional>

namespace host::view {

/// The cells of an inserted array that a view can see. Rows and columns may be numbered in thousands of millions: what
/// lies outside the view is never counted through, and cells too dense to tell apart are thinned out.
class ArrayCells
{
public:
    /// `first` is what the cell (0, 0) covers on the screen, the steps lead from cell to cell.
    ArrayCells(const QRectF &first, Vec2 columnStep, Vec2 rowStep, std::int64_t columns, std::int64_t rows,
               const std::optional<QRectF> &view);

    /// Ends early when the visitor returns false.
    void visit(const std::function<bool(std::int64_t column, std::int64_t row)> &visitor) const;

private:
    struct Range
    {
        std::int64_t first = 0;
        std::int64_t last = -1;
        std::int64_t stride = 1;
        std::int64_t count() const { return last < first ? 0 : (last - first) / stride + 1; }
    };
    void restrictToView(const QRectF &first, const QRectF &view, Vec2 columnStep, Vec2 rowStep);
    static void restrict(Range &range, double from, double to);
    void thinOut(Vec2 columnStep, Vec2 rowStep);

    Range m_columns;
    Range m_rows;
};

} // namespace host::view
