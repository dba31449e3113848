#include "host/commands/curves/OffsetShape.h"

#include "host/commands/common/CircleGeometry.h"
#include "host/drawing/curves/BoxIndex.h"
#include "host/drawing/curves/Crossings.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace host::kernel {

using drawing::CurveVertex;
using drawing::CurveVertices;
using drawing::EntityCurve;
using drawing::Vec2;
using drawing::Vec3;

namespace {

/// A stretch of the polyline, moved aside.
struct MovedStretch
{
    CurveVertex from; ///< with the bulge and widths of the stretch
    Vec2 to;
    std::vector<CurveVertex> filling{}; ///< between it and the next one
};

/// Rounding of this share of the distance does not count.
constexpr double nearlyAway = 1e-7;

bool isSamePlace(Vec2 a, Vec2 b)
{
    return (a - b).length() <= 1e-9 * (1.0 + a.length());
}

MovedStretch movedStretch(const CurveVertex &from, const CurveVertex &to, double distance)
{
    MovedStretch moved{from, to.point.xy()};
    const drawing::BulgeArc arc = drawing::bulgeArc(from.point.xy(), to.point.xy(), from.bulge);
    if (!(arc.radius > 0.0)) {
        const Vec2 along = (to.point - from.point).xy();
        const Vec2 aside = turnedLeft(along) * (distance / along.length());
        moved.from.point = {from.point.x + aside.x, from.point.y + aside.y, from.point.z};
        moved.to = to.point.xy() + aside;
        return moved;
    }
    // An arc with no room left turns inside out and is taken out later, being too near.
    const double share = (arc.radius - (arc.sweep > 0.0 ? distance : -distance)) / arc.radius;
    const Vec2 start = arc.center + (from.point.xy() - arc.center) * share;
    moved.from.point = {start.x, start.y, from.point.z};
    moved.to = arc.center + (to.point.xy() - arc.center) * share;
    if (!(share > 0.0))
        moved.from.bulge = 0.0;
    return moved;
}

/// The polyline with all stretches moved aside and joined, which may cross itself.
class RawOffset
{
public:
    RawOffset(const CurveVertices &polyline, double distance, OffsetGap gap)
        : m_distance(distance), m_gap(gap), m_made(polyline)
    {
        m_made.vertices.clear();
        const std::size_t count = polyline.vertices.size();
        for (std::size_t i = 0; i + (polyline.isClosed ? 0 : 1) < count; ++i) {
            const CurveVertex &to = polyline.vertices[(i + 1) % count];
            if (!isSamePlace(polyline.vertices[i].point.xy(), to.point.xy()))
                m_stretches.push_back(movedStretch(polyline.vertices[i], to, distance));
        }
    }

    CurveVertices make()
    {
        const std::size_t joints = m_stretches.size() - (m_made.isClosed || m_stretches.empty() ? 0 : 1);
        for (std::size_t i = 0; i < joints; ++i)
            joinTo(m_stretches[i], m_stretches[(i + 1) % m_stretches.size()]);
        for (const MovedStretch &stretch : m_stretches) {
            m_made.vertices.push_back(stretch.from);
            m_made.vertices.insert(m_made.vertices.end(), stretch.filling.begin(), stretch.filling.end());
        }
        if (!m_made.isClosed && !m_stretches.empty())
            m_made.vertices.push_back(vertexAt(m_stretches.back(), m_stretches.back().to, 0.0));
        return m_made;
    }

private:
    static CurveVertex vertexAt(const MovedStretch &stretch, Vec2 point, double bulge)
    {
        CurveVertex vertex = stretch.from;
        vertex.point = {point.x, point.y, vertex.point.z};
        vertex.bulge = bulge;
        vertex.startWidth = vertex.endWidth;
        return vertex;
    }
    /// From the end of one stretch to the begin of the next.
    void joinTo(MovedStretch &before, MovedStretch &behind) const
    {
        const Vec2 end = before.to;
        const Vec2 begin = behind.from.point.xy();
        if (isSamePlace(end, begin))
            return;
        const double arriving = arrivalDirection(before.from.point.xy(), end, before.from.bulge);
        const double leaving = arrivalDirection(behind.to, begin, -behind.from.bulge) + M_PI;
        const double turn = std::remainder(leaving - arriving, 2.0 * M_PI);
        // On the inner side the stretches overlap: what is too much is cut off where they cross.
        const bool isInner = turn * m_distance >= 0.0;
        const bool isStraight = before.from.bulge == 0.0 && behind.from.bulge == 0.0;
        if (isInner || m_gap == OffsetGap::Round || !isStraight || std::abs(turn) > M_PI - 1e-6) {
            before.filling = {vertexAt(before, end, isInner ? 0.0 : bulgeOfAngle(turn))};
            return;
        }
        const double reach = std::abs(m_distance * std::tan(turn / (m_gap == OffsetGap::Extend ? 2.0 : 4.0)));
        before.to = end + polar(arriving, reach);
        const Vec2 next = begin - polar(leaving, reach);
        behind.from.point = {next.x, next.y, behind.from.point.z};
        if (m_gap == OffsetGap::Chamfer)
            before.filling = {vertexAt(before, before.to, 0.0)};
    }

    double m_distance;
    OffsetGap m_gap;
    CurveVertices m_made;
    std::vector<MovedStretch> m_stretches;
};

/// Tells how far points are from a curve, as long as they are near.
class CurveDistance
{
public:
    explicit CurveDistance(const EntityCurve &curve) : m_curve(curve), m_index(boxesOf(curve)) {}

    bool isWithin(const Vec3 &point, double distance) const
    {
        const Vec3 reach{distance, distance, distance};
        drawing::Box box;
        box.add(point - reach);
        box.add(point + reach);
        return m_index.anyTouching(box, [&](std::size_t i) {
            const drawing::CurvePiece &piece = m_curve.pieces()[i];
            return (piece.point(piece.closest(point)) - point).length() < distance;
        });
    }

private:
    static std::vector<drawing::Box> boxesOf(const EntityCurve &curve)
    {
        std::vector<drawing::Box> boxes;
        for (const drawing::CurvePiece &piece : curve.pieces())
            boxes.push_back(piece.box());
        return boxes;
    }

    const EntityCurve &m_curve;
    drawing::BoxIndex m_index;
};

/// A part of the raw polyline between two of its parameters.
struct OffsetSlice
{
    double from = 0.0;
    double to = 0.0;
    Vec2 start;
    Vec2 end;
};

/// Of parts that run along each other one is enough.
std::vector<OffsetSlice> withoutDoubles(const EntityCurve &raw, const std::vector<OffsetSlice> &slices, double reach)
{
    std::multimap<double, std::size_t> kept;
    std::vector<OffsetSlice> made;
    const auto middle = [&](const OffsetSlice &slice) { return raw.point((slice.from + slice.to) / 2.0).xy(); };
    for (const OffsetSlice &slice : slices) {
        bool isDouble = false;
        const double x = slice.start.x;
        for (auto it = kept.lower_bound(x - reach); it != kept.end() && it->first <= x + reach; ++it) {
            const OffsetSlice &other = made[it->second];
            isDouble = isDouble ||
                       ((other.start - slice.start).length() <= reach && (other.end - slice.end).length() <= reach &&
                        (middle(other) - middle(slice)).length() <= reach);
        }
        if (isDouble)
            continue;
        kept.emplace(x, made.size());
        made.push_back(slice);
    }
    return made;
}

/// A vertex of the result. Where the raw polyline was cut there need be none.
struct ChainVertex : CurveVertex
{
    bool isCut = false;
};

/// Appends the part's vertices, but for its end.
void appendSlice(const CurveVertices &raw, const OffsetSlice &slice, std::vector<ChainVertex> &vertices)
{
    const std::size_t count = raw.vertices.size();
    for (auto i = static_cast<std::size_t>(std::floor(slice.from)); static_cast<double>(i) < slice.to; ++i) {
        const auto number = static_cast<double>(i);
        const double low = std::max(slice.from, number);
        const double high = std::min(slice.to, number + 1.0);
        const CurveVertex &from = raw.vertices[i % count];
        const drawing::CurvePiece piece =
            drawing::bulgedPiece(from.point, raw.vertices[(i + 1) % count].point, from.bulge, number);
        ChainVertex vertex{from, low > number};
        vertex.point = piece.point(low);
        vertex.bulge = std::tan(std::atan(from.bulge) * (high - low));
        if ((piece.point(high) - vertex.point).length() > 1e-9)
            vertices.push_back(vertex);
    }
}

/// Whether a part goes forth and back on one line to where it began, as stretches do that overlap at a small turn.
bool isSliver(const EntityCurve &raw, double from, double to, double reach)
{
    const Vec2 start = raw.point(from).xy();
    const Vec2 along = raw.firstDerivative(from).xy();
    const auto isOnLine = [&](double share) {
        const Vec2 way = raw.point(from + (to - from) * share).xy() - start;
        return std::abs(cross(along, way)) <= reach * along.length();
    };
    return (raw.point(to).xy() - start).length() <= reach && isOnLine(0.25) && isOnLine(0.5) && isOnLine(0.75);
}

/// The parts that are nowhere too near.
std::vector<OffsetSlice> farSlices(const EntityCurve &raw, const EntityCurve &original, double distance, double reach)
{
    std::vector<double> cuts = {raw.startParameter(), raw.endParameter()};
    for (const drawing::CurveCrossing &crossing : drawing::selfCrossings(raw)) {
        cuts.push_back(crossing.first);
        cuts.push_back(crossing.second);
    }
    std::ranges::sort(cuts);
    const CurveDistance away(original);
    // Turns so small that their crossing counts as a joint leave what is a little too near.
    const double least = std::abs(distance) * (1.0 - nearlyAway) - 4.0 * original.tolerance();
    std::vector<OffsetSlice> slices;
    for (std::size_t i = 1; i < cuts.size(); ++i) {
        const double width = cuts[i] - cuts[i - 1];
        if (!(width > 1e-9))
            continue;
        const auto isFar = [&](double share) { return !away.isWithin(raw.point(cuts[i - 1] + width * share), least); };
        if (isFar(0.5) && isFar(0.25) && isFar(0.75) && !isSliver(raw, cuts[i - 1], cuts[i], reach))
            slices.push_back({cuts[i - 1], cuts[i], raw.point(cuts[i - 1]).xy(), raw.point(cuts[i]).xy()});
    }
    return slices;
}

/// The vertices without those in the middle of a straight line where parts were put together.
std::vector<CurveVertex> withoutCuts(const std::vector<ChainVertex> &vertices, bool isClosed)
{
    std::vector<CurveVertex> made;
    const std::size_t count = vertices.size();
    for (std::size_t i = 0; i < count; ++i) {
        const bool isEnd = !isClosed && (i == 0 || i + 1 == count);
        const ChainVertex &before = vertices[(i + count - 1) % count];
        const Vec2 in = (vertices[i].point - before.point).xy();
        const Vec2 out = (vertices[(i + 1) % count].point - vertices[i].point).xy();
        const bool isStraight = before.bulge == 0.0 && vertices[i].bulge == 0.0 && dot(in, out) > 0.0 &&
                                std::abs(cross(in, out)) <= 1e-9 * in.length() * out.length();
        if (isEnd || !vertices[i].isCut || !isStraight)
            made.push_back(vertices[i]);
    }
    return made;
}

/// Puts parts together where one ends and another begins.
std::vector<CurveVertices> chained(const CurveVertices &raw, const std::vector<OffsetSlice> &slices, double reach)
{
    std::multimap<double, std::size_t> begins;
    for (std::size_t i = 0; i < slices.size(); ++i)
        begins.emplace(slices[i].start.x, i);
    std::vector<bool> isUsed(slices.size(), false);
    const auto next = [&](Vec2 end) -> std::optional<std::size_t> {
        for (auto it = begins.lower_bound(end.x - reach); it != begins.end() && it->first <= end.x + reach; ++it)
            if (!isUsed[it->second] && (slices[it->second].start - end).length() <= reach)
                return it->second;
        return {};
    };
    std::vector<CurveVertices> made;
    for (std::size_t first = 0; first < slices.size(); ++first) {
        if (isUsed[first])
            continue;
        CurveVertices chain;
        std::vector<ChainVertex> vertices;
        std::optional<std::size_t> at = first;
        Vec2 end;
        while (at) {
            isUsed[*at] = true;
            // It may be cut where it begins, though that is a corner of the raw polyline.
            const std::size_t begin = vertices.size();
            appendSlice(raw, slices[*at], vertices);
            if (begin < vertices.size())
                vertices[begin].isCut = true;
            end = slices[*at].end;
            at = next(end);
        }
        chain.isClosed = raw.isClosed && (end - slices[first].start).length() <= reach;
        if (!chain.isClosed && !vertices.empty()) {
            ChainVertex last = vertices.back();
            last.point = {end.x, end.y, last.point.z};
            last.bulge = 0.0;
            vertices.push_back(last);
        }
        chain.vertices = withoutCuts(vertices, chain.isClosed);
        if (chain.vertices.size() > 1)
            made.push_back(std::move(chain));
    }
    return made;
}

} // namespace

std::vector<CurveVertices> offsetPolyline(const CurveVertices &polyline, double distance, OffsetGap gap)
{
    // Heights, and where the plane lies, do not matter here.
    CurveVertices flat = polyline;
    flat.extrusion = {0.0, 0.0, 1.0};
    flat.isSpatial = false;
    CurveVertices raw = RawOffset(flat, distance, gap).make();
    if (raw.vertices.size() < 2)
        return {};
    const EntityCurve curve = drawing::polylineCurve(raw);
    const double reach = 10.0 * curve.tolerance();
    const std::vector<OffsetSlice> slices = farSlices(curve, drawing::polylineCurve(flat), distance, reach);
    std::vector<CurveVertices> made = chained(raw, withoutDoubles(curve, slices, reach), reach);
    for (CurveVertices &chain : made)
        chain.extrusion = polyline.extrusion;
    return made;
}

std::optional<drawing::Spline> offsetSpline(const EntityCurve &curve, const Vec3 &normal, double distance)
{
    constexpr int steps = 24; // points a piece
    std::vector<Vec3> points;
    for (const drawing::CurvePiece &piece : curve.pieces()) {
        for (int i = points.empty() ? 0 : 1; i <= steps; ++i) {
            const double at = piece.start() + (piece.end() - piece.start()) * i / steps;
            const Vec3 along = piece.firstDerivative(at);
            const Vec3 bend = piece.secondDerivative(at);
            const double speed = along.length();
            const double curvature = speed > 0.0 ? dot(cross(along, bend), normal) / (speed * speed * speed) : 0.0;
            if (!(speed > 0.0) || curvature * distance >= 1.0)
                return {};
            points.push_back(piece.point(at) + cross(normal, along) * (distance / speed));
        }
    }
    return drawing::fittedSpline(points, curve.isPeriodic());
}

} // namespace host::kernel
