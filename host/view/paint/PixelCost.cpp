#include "host/view/paint/PixelCost.h"

namespace host::view {

namespace {

// What a unit of work pays for, as measured on lines and areas of many sizes.
constexpr double pixelsOfUnit = 64.0;
constexpr double areaOfUnit = 2000.0; ///< square pixels
/// Pixels along edges that have one edge beside them; with more they take longer by the square of their number.
constexpr double edgePixelsOfUnit = 56'000.0;

} // namespace

double PixelCost::seenLength(QPointF from, QPointF to) const
{
    const auto part = m_view ? visiblePart(from, to, *m_view) : std::nullopt;
    const QPointF step = to - from;
    return part ? std::hypot(step.x(), step.y()) * (part->second - part->first) : 0.0;
}

std::int64_t PixelCost::ofLength(double pixels) const
{
    return m_isRaster ? static_cast<std::int64_t>(pixels / pixelsOfUnit) : 0;
}

std::int64_t PixelCost::ofLine(const Track &track) const
{
    double length = 0.0;
    for (std::size_t i = 1; m_isRaster && i < track.points.size(); ++i)
        length += seenLength(track.points[i - 1], track.points[i]);
    return ofLength(length);
}

std::int64_t PixelCost::ofArea(const QRectF &area) const
{
    const QRectF seen = m_isRaster ? area & *m_view : QRectF();
    return static_cast<std::int64_t>(seen.width() * seen.height() / areaOfUnit);
}

void FillCost::add(const Track &contour)
{
    if (!m_cost.isRaster())
        return;
    Box reach;
    for (std::size_t i = 0; i < contour.points.size(); ++i) {
        const QPointF to = contour.points[i];
        reach.add(Vec3{to.x(), to.y(), 0.0});
        if (i == 0)
            continue;
        const QPointF from = contour.points[i - 1];
        const double seen = m_cost.seenLength(from, to);
        m_length += seen;
        m_rise +=
            seen > 0.0 ? seen * std::abs(to.y() - from.y()) / std::hypot(to.x() - from.x(), to.y() - from.y()) : 0.0;
    }
    m_reach |= QRectF(QPointF(reach.low.x, reach.low.y), QPointF(reach.high.x, reach.high.y));
}

std::int64_t FillCost::units() const
{
    if (!m_cost.isRaster())
        return 0;
    const QRectF seen = m_reach & *m_cost.view();
    const double beside = std::min(m_rise / std::max(seen.height(), 1.0), seen.width());
    return static_cast<std::int64_t>(m_length * beside * beside / edgePixelsOfUnit) + m_cost.ofArea(seen);
}

} // namespace host::view
