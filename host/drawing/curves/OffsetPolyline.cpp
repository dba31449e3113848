#include "host/drawing/curves/BoxIndex.h"
#include "host/drawing/curves/Crossings.h"
#include "host/drawing/curves/Offset.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/math/Curves.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace host::drawing {

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
/// Corners go on until they meet no farther than this many distances.
constexpr double longestTip = 1000.0;

bool isSamePlace(Vec2 a, Vec2 b)
{
    return (a - b).length() <= 1e-9 * (1.0 + a.length());
}

MovedStretch movedStretch(const CurveVertex &from, const CurveVertex &to, double distance)
{
    MovedStretch moved{from, to.point.xy()};
    const BulgeArc arc = bulgeArc(from.point.xy(), to.point.xy(), from.bulge);
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
    static CurvePiece pieceOf(const MovedStretch &stretch)
    {
        return bulgedPiece(stretch.from.point, {stretch.to.x, stretch.to.y, stretch.from.point.z}, stretch.from.bulge,
                           0.0);
    }

    /// From the end of one stretch to the begin of the next.
    void joinTo(MovedStretch &before, MovedStretch &behind) const
    {
        const Vec2 end = before.to;
        if (isSamePlace(end, behind.from.point.xy()))
            return;
        const Vec3 arriving = pieceOf(before).firstDerivative(1.0);
        const Vec3 leaving = pieceOf(behind).firstDerivative(0.0);
        const double turn = std::atan2(cross(arriving, leaving).z, dot(arriving, leaving));
        // On the inner side the stretches overlap: what is too much is cut off where they cross.
        const bool isInner = turn * m_distance >= 0.0;
        if (isInner || !goOn(before, behind, turn))
            before.filling = {vertexAt(before, end, isInner ? 0.0 : std::tan(turn / 4.0))};
    }

    /// Lets two stretches go on beyond their corner as the gap wants it; false where only an arc fits between them.
    bool goOn(MovedStretch &before, MovedStretch &behind, double turn) const
    {
        const bool areStraight = before.from.bulge == 0.0 && behind.from.bulge == 0.0;
        if (m_gap == OffsetGap::Rounded || std::abs(turn) > wholeTurn / 2.0 - 1e-6)
            return false;
        if (!areStraight)
            return m_gap == OffsetGap::Extended && meetRound(before, behind);
        const double reach = std::abs(m_distance * std::tan(turn / (m_gap == OffsetGap::Extended ? 2.0 : 4.0)));
        if (reach > longestTip * std::abs(m_distance))
            return false;
        before.to = pieceOf(before).point(1.0 + reach / (before.to - before.from.point.xy()).length()).xy();
        behind.from.point = pieceOf(behind).point(-reach / (behind.to - behind.from.point.xy()).length());
        if (m_gap == OffsetGap::Straight)
            before.filling = {vertexAt(before, before.to, 0.0)};
        return true;
    }

    /// Two stretches, of which one at least is an arc, go on along their circles until they meet.
    bool meetRound(MovedStretch &before, MovedStretch &behind) const
    {
        const auto goingOn = [](const MovedStretch &stretch, Extension extension) {
            return EntityCurve(EntityCurve::Kind::Arc, {pieceOf(stretch)}, false, Vec3{0.0, 0.0, 1.0})
                .extended(extension);
        };
        std::optional<CurveCrossing> nearest;
        const auto away = [&](const CurveCrossing &crossing) { return (crossing.point.xy() - before.to).length(); };
        for (const CurveCrossing &crossing :
             crossings(goingOn(before, Extension::End), goingOn(behind, Extension::Start))) {
            const bool isBeyond = crossing.first > 1.0 && crossing.second < 0.0;
            if (isBeyond && (!nearest || away(crossing) < away(*nearest)))
                nearest = crossing;
        }
        if (!nearest || away(*nearest) > longestTip * std::abs(m_distance))
            return false;
        before.to = nearest->point.xy();
        before.from.bulge = std::tan(std::atan(before.from.bulge) * nearest->first);
        behind.from.point = {nearest->point.x, nearest->point.y, behind.from.point.z};
        behind.from.bulge = std::tan(std::atan(behind.from.bulge) * (1.0 - nearest->second));
        return true;
    }

    double m_distance; ///< to the left
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
        Box box;
        box.add(point - reach);
        box.add(point + reach);
        return m_index.anyTouching(box, [&](std::size_t i) {
            const CurvePiece &piece = m_curve.pieces()[i];
            return (piece.point(piece.closest(point)) - point).length() < distance;
        });
    }

private:
    static std::vector<Box> boxesOf(const EntityCurve &curve)
    {
        std::vector<Box> boxes;
        for (const CurvePiece &piece : curve.pieces())
            boxes.push_back(piece.box());
        return boxes;
    }

    const EntityCurve &m_curve;
    BoxIndex m_index;
};

/// A part of the raw polyline between two of its parameters.
struct OffsetSlice
{
    double from = 0.0;
    double to = 0.0;
    Vec2 start;
    Vec2 end;
};

/// Of parts that run along each other, either way, one is enough.
std::vector<OffsetSlice> withoutDoubles(const EntityCurve &raw, const std::vector<OffsetSlice> &slices, double reach)
{
    std::multimap<double, std::size_t> kept;
    std::vector<OffsetSlice> made;
    const auto middle = [&](const OffsetSlice &slice) { return raw.point((slice.from + slice.to) / 2.0).xy(); };
    const auto isNear = [&](Vec2 a, Vec2 b) { return (a - b).length() <= reach; };
    const auto isDouble = [&](const OffsetSlice &slice, Vec2 start, Vec2 end) {
        for (auto it = kept.lower_bound(start.x - reach); it != kept.end() && it->first <= start.x + reach; ++it) {
            const OffsetSlice &other = made[it->second];
            if (isNear(other.start, start) && isNear(other.end, end) && isNear(middle(other), middle(slice)))
                return true;
        }
        return false;
    };
    for (const OffsetSlice &slice : slices) {
        if (isDouble(slice, slice.start, slice.end) || isDouble(slice, slice.end, slice.start))
            continue;
        kept.emplace(slice.start.x, made.size());
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
        const CurvePiece piece = bulgedPiece(from.point, raw.vertices[(i + 1) % count].point, from.bulge, number);
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
    for (const CurveCrossing &crossing : selfCrossings(raw)) {
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
    if (polyline.isSpatial || polyline.vertices.size() < 2 || distance == 0.0)
        return {};
    // Heights, and where the plane lies, do not matter here.
    CurveVertices flat = polyline;
    flat.extrusion = {0.0, 0.0, 1.0};
    CurveVertices raw = RawOffset(flat, -distance, gap).make();
    if (raw.vertices.size() < 2)
        return {};
    const EntityCurve curve = polylineCurve(raw);
    const double reach = 10.0 * curve.tolerance();
    const std::vector<OffsetSlice> slices = farSlices(curve, polylineCurve(flat), distance, reach);
    std::vector<CurveVertices> made = chained(raw, withoutDoubles(curve, slices, reach), reach);
    for (CurveVertices &chain : made)
        chain.extrusion = polyline.extrusion;
    return made;
}

} // namespace host::drawing
