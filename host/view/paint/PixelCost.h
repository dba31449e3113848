#pragma once

#include "host/view/display/CurveTrace.h"

namespace host::view {

/// Units of work that lines and areas take where they become pixels, by what a view sees of them. Where they stay lines
/// and areas, or without a view, they take none.
class PixelCost
{
public:
    /// `view` must outlive it.
    PixelCost(const std::optional<QRectF> &view, bool isRaster) : m_view(view), m_isRaster(isRaster && view) {}

    bool isRaster() const { return m_isRaster; }
    const std::optional<QRectF> &view() const { return m_view; }
    /// Of a straight line; pixels.
    double seenLength(QPointF from, QPointF to) const;
    std::int64_t ofLength(double pixels) const;
    std::int64_t ofLine(const Track &track) const;
    std::int64_t ofArea(const QRectF &area) const;

private:
    const std::optional<QRectF> &m_view;
    const bool m_isRaster;
};

/// What filling an area takes: its pixels, and those of its edges by how many edges there are beside one another, since
/// a painter sorts them row by row.
class FillCost
{
public:
    explicit FillCost(const PixelCost &cost) : m_cost(cost) {}

    void add(const Track &contour);
    std::int64_t units() const;

private:
    const PixelCost &m_cost;
    QRectF m_reach;
    double m_length = 0.0;
    double m_rise = 0.0; ///< of all edges together
};

} // namespace host::view
