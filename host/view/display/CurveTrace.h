#pragma once

#include "host/drawing/math/WorkBudget.h"
#include "host/view/display/Display.h"

#include <QPolygonF>
#include <QRectF>

#include <optional>

namespace host::view {

/// A curve as a screen sees it: straight pieces, with how far along the curve (in its own units) each point lies.
struct Track
{
    std::vector<QPointF> points{};      ///< pixels
    std::vector<double> along{};        ///< as many as points, rising from 0
    std::vector<std::size_t> corners{}; ///< where in points the vertices of the curve are

    /// Keeps the memory, so that one track serves many curves.
    void clear();
};

/// Where a map takes a point, seen from above: as Matrix::point() without the work for z.
inline QPointF flat(const Matrix &map, const Vec3 &p)
{
    return {map.xAxis.x * p.x + map.yAxis.x * p.y + map.zAxis.x * p.z + map.origin.x,
            map.xAxis.y * p.x + map.yAxis.y * p.y + map.zAxis.y * p.z + map.origin.y};
}

/// Traces curves to within a fifth of a pixel. Arcs are divided where the view sees them and left coarse elsewhere, so
/// a circle of any magnification costs about as many pieces as the view has pixels.
class CurveTracer
{
public:
    /// Without a view everything is divided evenly, bounded by a few thousand pieces an arc. An arc has a few dozen
    /// pieces free; those beyond are charged to `work`, and when that is used up arcs stay so coarse.
    CurveTracer(const Matrix &toScreen, const std::optional<QRectF> &view, drawing::WorkBudget &work)
        : m_map(toScreen), m_view(view), m_work(work)
    {
    }

    /// The track is replaced. Points that are not finite end up nowhere: the track is empty then. Straight segments
    /// stay whole, however far they reach.
    void trace(const Curve &curve, Track &track);

private:
    void traceArc(const ArcSpan &arc, Track &track);
    void divide(const ArcSpan &arc, double from, double to, int depth, Track &track);
    bool needsDividing(const ArcSpan &arc, double from, double to, int depth) const;
    void append(const Vec3 &point, double length, Track &track);

    // All three are the caller's and must outlive the tracer.
    const Matrix &m_map;
    const std::optional<QRectF> &m_view;
    drawing::WorkBudget &m_work;
    // Of the arc that is being traced.
    double m_screenRadius = 0.0; ///< pixels, the larger one
    double m_ownRadius = 0.0;    ///< units of the curve, the mean of both
    std::size_t m_arcLimit = 0;  ///< points that the track may have behind it
};

/// The part of a segment that lies in the rectangle or on its edge, as fractions of the way from `from` to `to`;
/// nothing when it stays outside.
std::optional<std::pair<double, double>> visiblePart(QPointF from, QPointF to, const QRectF &view);

/// The polygon cut off at the rectangle, so that painters need not see far coordinates. What of a filled area lies in
/// the rectangle stays the same; elsewhere edges may run along the rectangle's. The last corner joins the first.
QPolygonF clippedPolygon(const QPolygonF &polygon, const QRectF &view);

} // namespace host::view
