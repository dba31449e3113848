#include "host/view/display/CurveTrace.h"

#include <array>
#include <functional>
#include <numbers>

namespace host::view {

namespace {

constexpr double tolerance = 0.2;
constexpr int deepest = 40;
constexpr std::size_t mostPiecesUnseen = 2048;
constexpr std::size_t mostPieces = 50'000;
constexpr std::size_t freePieces = 64; ///< of an arc; a whole circle has eight times eight

bool isFinite(QPointF p)
{
    return std::isfinite(p.x()) && std::isfinite(p.y());
}

double flatLength(const Matrix &map, const Vec3 &direction)
{
    const Vec3 mapped = map.direction(direction);
    return std::hypot(mapped.x, mapped.y);
}

} // namespace

void Track::clear()
{
    points.clear();
    along.clear();
    corners.clear();
}

void CurveTracer::append(const Vec3 &point, double length, Track &track)
{
    track.along.push_back(track.along.empty() ? 0.0 : track.along.back() + length);
    track.points.push_back(flat(m_map, point));
}

void CurveTracer::trace(const Curve &curve, Track &track)
{
    track.clear();
    auto arc = curve.arcs.begin();
    for (std::size_t i = 0; i < curve.points.size(); ++i) {
        if (i > 0 && arc != curve.arcs.end() && arc->segment == i - 1) {
            traceArc(*arc++, track);
        } else {
            append(curve.points[i], i > 0 ? (curve.points[i] - curve.points[i - 1]).length() : 0.0, track);
        }
        track.corners.push_back(track.points.size() - 1);
    }
    if (!std::ranges::all_of(track.points, isFinite) || (!track.along.empty() && !std::isfinite(track.along.back())))
        track.clear();
}

void CurveTracer::traceArc(const ArcSpan &arc, Track &track)
{
    m_screenRadius = std::max(flatLength(m_map, arc.xAxis), flatLength(m_map, arc.yAxis));
    m_ownRadius = (arc.xAxis.length() + arc.yAxis.length()) / 2.0;
    const std::size_t first = track.points.size();
    const std::size_t wanted = m_view ? mostPieces : mostPiecesUnseen;
    m_arcLimit = first + std::min(wanted, freePieces + static_cast<std::size_t>(m_work.left()));
    const int spans = std::clamp(static_cast<int>(std::ceil(std::abs(arc.sweep) / (std::numbers::pi / 4.0))), 1, 64);
    for (int i = 0; i < spans; ++i) {
        divide(arc, arc.start + arc.sweep * i / spans, arc.start + arc.sweep * (i + 1) / spans, 0, track);
    }
    const std::size_t made = track.points.size() - first;
    if (made > freePieces)
        m_work.charge(static_cast<std::int64_t>(made - freePieces));
    if (made < wanted && track.points.size() >= m_arcLimit)
        m_work.refuse();
}

void CurveTracer::divide(const ArcSpan &arc, double from, double to, int depth, Track &track)
{
    if (depth < deepest && track.points.size() < m_arcLimit && needsDividing(arc, from, to, depth)) {
        const double middle = (from + to) / 2.0;
        divide(arc, from, middle, depth + 1, track);
        divide(arc, middle, to, depth + 1, track);
        return;
    }
    append(arc.point(to), m_ownRadius * std::abs(to - from), track);
}

bool CurveTracer::needsDividing(const ArcSpan &arc, double from, double to, int depth) const
{
    const double rise = m_screenRadius * (1.0 - std::cos((to - from) / 2.0));
    if (!(rise > tolerance))
        return false;
    if (!m_view)
        return depth < 8;
    const QPointF a = flat(m_map, arc.point(from));
    const QPointF b = flat(m_map, arc.point(to));
    const QRectF reach(QPointF(std::min(a.x(), b.x()) - rise, std::min(a.y(), b.y()) - rise),
                       QPointF(std::max(a.x(), b.x()) + rise, std::max(a.y(), b.y()) + rise));
    return reach.intersects(*m_view);
}

std::optional<std::pair<double, double>> visiblePart(QPointF from, QPointF to, const QRectF &view)
{
    double first = 0.0;
    double last = 1.0;
    const auto cut = [&](double start, double change, double low, double high) {
        if (change == 0.0)
            return start >= low && start <= high;
        double enter = (low - start) / change;
        double leave = (high - start) / change;
        if (enter > leave)
            std::swap(enter, leave);
        first = std::max(first, enter);
        last = std::min(last, leave);
        return first <= last;
    };
    if (!cut(from.x(), to.x() - from.x(), view.left(), view.right()) ||
        !cut(from.y(), to.y() - from.y(), view.top(), view.bottom())) {
        return std::nullopt;
    }
    return std::pair(first, last);
}

QPolygonF clippedPolygon(const QPolygonF &polygon, const QRectF &view)
{
    struct Side
    {
        std::function<double(QPointF)> inside; ///< distance from the side, positive within
    };
    const std::array<Side, 4> sides = {
        Side{[&](QPointF p) { return p.x() - view.left(); }}, Side{[&](QPointF p) { return view.right() - p.x(); }},
        Side{[&](QPointF p) { return p.y() - view.top(); }}, Side{[&](QPointF p) { return view.bottom() - p.y(); }}};
    QPolygonF kept = polygon;
    for (const Side &side : sides) {
        QPolygonF next;
        for (qsizetype i = 0; i < kept.size(); ++i) {
            const QPointF a = kept[i];
            const QPointF b = kept[(i + 1) % kept.size()];
            const double atA = side.inside(a);
            const double atB = side.inside(b);
            if (atA >= 0.0)
                next.append(a);
            if ((atA >= 0.0) != (atB >= 0.0))
                next.append(a + (b - a) * (atA / (atA - atB)));
        }
        kept = next;
    }
    return kept;
}

} // namespace host::view
