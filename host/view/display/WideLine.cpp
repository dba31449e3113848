#include "host/view/display/WideLine.h"

#include <array>

namespace host::view {

namespace {

/// A point of the middle line with half the width there.
struct BandPoint
{
    Vec2 at{};
    double half = 0.0;
};

/// The straight pieces of one segment.
using BandRun = std::vector<BandPoint>;

constexpr double sharpestMiter = 4.0; ///< times half the width; sharper corners are left square
constexpr double bandAngle = 0.06;    ///< radians an arc of a band turns from piece to piece
constexpr int mostBandPieces = 512;
constexpr int freeBandPieces = 8;
constexpr std::int64_t unitsOfBandPiece = 20;

Vec2 leftOf(Vec2 from, Vec2 to)
{
    const Vec2 along = to - from;
    const double length = along.length();
    return length > 0.0 ? Vec2{-along.y / length, along.x / length} : Vec2{};
}

BandRun segmentRun(const PolylineVertex &from, const Vec3 &to, drawing::WorkBudget &work)
{
    BandRun run{{from.at.xy(), from.startWidth / 2.0}};
    const drawing::BulgeArc arc = drawing::bulgeArc(from.at.xy(), to.xy(), from.bulge);
    if (arc.radius > 0.0) {
        int pieces = std::clamp(static_cast<int>(std::abs(arc.sweep) / bandAngle), 1, mostBandPieces);
        if (pieces > freeBandPieces && !work.take((pieces - freeBandPieces) * unitsOfBandPiece))
            pieces = freeBandPieces;
        for (int i = 1; i < pieces; ++i) {
            const double part = static_cast<double>(i) / pieces;
            const double angle = arc.startAngle + arc.sweep * part;
            run.push_back({arc.center + Vec2{std::cos(angle), std::sin(angle)} * arc.radius,
                           (from.startWidth + (from.endWidth - from.startWidth) * part) / 2.0});
        }
    }
    run.push_back({to.xy(), from.endWidth / 2.0});
    return run;
}

/// The offset to the left at a corner between two directions, for half a width of 1.
Vec2 miter(Vec2 before, Vec2 after)
{
    const Vec2 sum = before + after;
    const double square = dot(sum, sum);
    const double reach = square > 0.0 ? 2.0 / std::sqrt(square) : sharpestMiter + 1.0;
    return reach <= sharpestMiter ? sum * (2.0 / square) : after;
}

class BandBuilder
{
public:
    BandBuilder(double elevation, const Matrix &ocs) : m_elevation(elevation), m_ocs(ocs) {}

    /// `before` and `after` are the left directions of the neighbouring pieces; zero where there are none.
    void addRun(const BandRun &run, Vec2 before, Vec2 after)
    {
        for (std::size_t i = 1; i < run.size(); ++i) {
            const Vec2 own = leftOf(run[i - 1].at, run[i].at);
            const Vec2 previous = i > 1 ? leftOf(run[i - 2].at, run[i - 1].at) : before;
            const Vec2 next = i + 1 < run.size() ? leftOf(run[i].at, run[i + 1].at) : after;
            addPiece(run[i - 1], corner(previous, own, own), run[i], corner(own, next, own));
        }
    }

    Fill take() { return std::move(m_fill); }

private:
    /// Neighbours use the same corner, or each its own square end when the corner is too sharp.
    static Vec2 corner(Vec2 before, Vec2 after, Vec2 own)
    {
        if (before == Vec2{} || after == Vec2{})
            return own;
        const Vec2 joint = miter(before, after);
        return joint == after ? own : joint;
    }

    void addPiece(const BandPoint &from, Vec2 fromLeft, const BandPoint &to, Vec2 toLeft)
    {
        const std::array<Vec2, 4> corners = {from.at + fromLeft * from.half, from.at - fromLeft * from.half,
                                             to.at - toLeft * to.half, to.at + toLeft * to.half};
        Curve piece;
        for (const Vec2 corner : corners)
            piece.points.push_back(m_ocs.point({corner.x, corner.y, m_elevation}));
        piece.points.push_back(piece.points.front());
        m_fill.contours.push_back(std::move(piece));
    }

    double m_elevation;
    const Matrix &m_ocs;
    Fill m_fill{.contours = {}, .isEvenOdd = false};
};

void appendSegment(Curve &curve, const PolylineVertex &from, const Vec3 &to, const Matrix &ocs)
{
    const drawing::BulgeArc arc = drawing::bulgeArc(from.at.xy(), to.xy(), from.bulge);
    if (arc.radius > 0.0 && std::isfinite(arc.radius) && std::isfinite(arc.sweep)) {
        curve.arcs.push_back({.segment = curve.points.size() - 1,
                              .center = ocs.point({arc.center.x, arc.center.y, from.at.z}),
                              .xAxis = ocs.direction({arc.radius, 0.0, 0.0}),
                              .yAxis = ocs.direction({0.0, arc.radius, 0.0}),
                              .start = arc.startAngle,
                              .sweep = arc.sweep});
    }
    curve.points.push_back(ocs.point(to));
}

} // namespace

Curve polylineCurve(const std::vector<PolylineVertex> &vertices, bool isClosed, const Matrix &ocs)
{
    Curve curve;
    if (vertices.empty())
        return curve;
    curve.points.push_back(ocs.point(vertices.front().at));
    for (std::size_t i = 1; i < vertices.size(); ++i)
        appendSegment(curve, vertices[i - 1], vertices[i].at, ocs);
    if (isClosed && vertices.size() > 1)
        appendSegment(curve, vertices.back(), vertices.front().at, ocs);
    return curve;
}

bool hasWidth(const std::vector<PolylineVertex> &vertices)
{
    return std::ranges::any_of(vertices, [](const auto &v) { return v.startWidth > 0.0 || v.endWidth > 0.0; });
}

Fill polylineBand(const std::vector<PolylineVertex> &vertices, bool isClosed, const Matrix &ocs,
                  drawing::WorkBudget &work)
{
    const std::size_t count = isClosed ? vertices.size() : vertices.size() - 1;
    std::vector<BandRun> runs;
    for (std::size_t i = 0; i < count; ++i) {
        const Vec3 &next = vertices[(i + 1) % vertices.size()].at;
        if ((next - vertices[i].at).length() > 0.0)
            runs.push_back(segmentRun(vertices[i], next, work));
    }
    BandBuilder builder(vertices.front().at.z, ocs);
    const auto firstLeft = [](const BandRun &run) { return leftOf(run[0].at, run[1].at); };
    const auto lastLeft = [](const BandRun &run) { return leftOf(run[run.size() - 2].at, run.back().at); };
    for (std::size_t i = 0; i < runs.size(); ++i) {
        const bool isFirst = i == 0 && !isClosed;
        const bool isLast = i + 1 == runs.size() && !isClosed;
        builder.addRun(runs[i], isFirst ? Vec2{} : lastLeft(runs[(i + runs.size() - 1) % runs.size()]),
                       isLast ? Vec2{} : firstLeft(runs[(i + 1) % runs.size()]));
    }
    return builder.take();
}

} // namespace host::view
