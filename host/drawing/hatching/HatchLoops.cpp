#include "host/drawing/hatching/HatchLoops.h"

#include "host/drawing/math/Angles.h"

#include <cmath>
#include <numbers>

namespace host::drawing {

namespace {

using EdgeStretch = PlaneGraph::Stretch;

bool isOfCircle(const CurvePiece &piece)
{
    return piece.shape() == CurvePiece::Shape::Round && piece.isCircular();
}

Vec2 beginOf(const EdgeStretch &stretch)
{
    return (stretch.isReversed ? stretch.piece.endPoint() : stretch.piece.startPoint()).xy();
}
Vec2 endOf(const EdgeStretch &stretch)
{
    return (stretch.isReversed ? stretch.piece.startPoint() : stretch.piece.endPoint()).xy();
}

/// What a round stretch sweeps, counter-clockwise as seen from above, in radians.
double sweepOf(const EdgeStretch &stretch)
{
    const CurvePiece &piece = stretch.piece;
    const double side = cross(piece.xAxis().xy(), piece.yAxis().xy()) < 0.0 ? -1.0 : 1.0;
    const double sweep = side * (piece.angleAt(piece.end()) - piece.angleAt(piece.start()));
    return stretch.isReversed ? -sweep : sweep;
}

double directionFrom(Vec2 center, Vec2 point)
{
    return std::atan2(point.y - center.y, point.x - center.x);
}

double positiveDegrees(double angle)
{
    const double degrees = std::fmod(angle / radians, 360.0);
    return degrees < 0.0 ? degrees + 360.0 : degrees;
}

/// From a begin over a sweep, as edges have them: of clockwise ones both angles are counted clockwise.
void addEdgeAngles(FieldList &fields, double begin, double sweep)
{
    const double from = positiveDegrees(sweep < 0.0 ? -begin : begin);
    fields.push_back({50, from});
    fields.push_back({51, from + std::abs(sweep) / radians});
    fields.push_back({73, qint64(sweep < 0.0 ? 0 : 1)});
}

void addArcEdge(FieldList &fields, const EdgeStretch &stretch)
{
    const Vec2 center = stretch.piece.center().xy();
    fields.insert(fields.end(), {{72, qint64(2)}, {10, center}, {40, stretch.piece.xAxis().xy().length()}});
    // Round a whole circle either way is the same.
    const double sweep = sweepOf(stretch);
    const bool isWhole = std::abs(sweep) > 2.0 * std::numbers::pi - 1e-9;
    addEdgeAngles(fields, isWhole ? 0.0 : directionFrom(center, beginOf(stretch)), isWhole ? std::abs(sweep) : sweep);
}

/// Of any two axes those at right angles: by how much the angle on the curve differs, and the axes.
void addEllipseEdge(FieldList &fields, const EdgeStretch &stretch)
{
    const CurvePiece &piece = stretch.piece;
    const Vec2 x = piece.xAxis().xy();
    const Vec2 y = piece.yAxis().xy();
    const double turn = 0.5 * std::atan2(2.0 * dot(x, y), dot(x, x) - dot(y, y));
    const Vec2 major = x * std::cos(turn) + y * std::sin(turn);
    const Vec2 minor = y * std::cos(turn) - x * std::sin(turn);
    const double side = cross(major, minor) < 0.0 ? -1.0 : 1.0;
    const double begin = piece.angleAt(stretch.isReversed ? piece.end() : piece.start()) - turn;
    fields.insert(fields.end(), {{72, qint64(3)},
                                 {10, piece.center().xy()},
                                 {11, major},
                                 {40, minor.length() / std::max(major.length(), 1e-300)}});
    addEdgeAngles(fields, side * begin, sweepOf(stretch));
}

/// Files from R2010 on count the fit points behind the control points.
void addSplineEdge(FieldList &fields, const EdgeStretch &stretch, Version version)
{
    BezierSpan span = stretch.piece.span();
    if (stretch.isReversed) {
        std::ranges::reverse(span.points);
        std::ranges::reverse(span.weights);
    }
    const std::size_t count = span.points.size();
    fields.insert(fields.end(), {{72, qint64(4)},
                                 {94, qint64(count - 1)},
                                 {73, qint64(span.weights.empty() ? 0 : 1)},
                                 {74, qint64(0)},
                                 {95, qint64(2 * count)},
                                 {96, qint64(count)}});
    for (std::size_t i = 0; i < 2 * count; ++i)
        fields.push_back({40, i < count ? 0.0 : 1.0});
    for (std::size_t i = 0; i < count; ++i) {
        fields.push_back({10, span.points[i].xy()});
        if (!span.weights.empty())
            fields.push_back({42, span.weights[i]});
    }
    if (version >= Version::R2010)
        fields.push_back({97, qint64(0)});
}

void addEdge(FieldList &fields, const EdgeStretch &stretch, Version version)
{
    switch (stretch.piece.shape()) {
    case CurvePiece::Shape::Straight:
        fields.insert(fields.end(), {{72, qint64(1)}, {10, beginOf(stretch)}, {11, endOf(stretch)}});
        break;
    case CurvePiece::Shape::Round:
        isOfCircle(stretch.piece) ? addArcEdge(fields, stretch) : addEllipseEdge(fields, stretch);
        break;
    case CurvePiece::Shape::Polynomial:
        addSplineEdge(fields, stretch, version);
        break;
    }
}

/// A whole circle keeps its centre and radius as an edge.
bool isPolylineLoop(const PlaneGraph::Loop &loop)
{
    return loop.stretches.size() > 1 && loopPolyline(loop).has_value();
}

} // namespace

std::optional<LoopPolyline> loopPolyline(const PlaneGraph::Loop &loop)
{
    LoopPolyline result;
    for (const EdgeStretch &stretch : loop.stretches) {
        if (stretch.piece.shape() == CurvePiece::Shape::Straight) {
            result.corners.push_back({beginOf(stretch), 0.0});
            continue;
        }
        if (!isOfCircle(stretch.piece))
            return std::nullopt;
        // One bulge can say no whole round.
        const double sweep = sweepOf(stretch);
        const int parts = std::abs(sweep) > 1.9 * std::numbers::pi ? 2 : 1;
        const Vec2 center = stretch.piece.center().xy();
        const Vec2 from = beginOf(stretch) - center;
        for (int part = 0; part < parts; ++part) {
            const double turn = sweep * part / parts;
            const Vec2 at{from.x * std::cos(turn) - from.y * std::sin(turn),
                          from.x * std::sin(turn) + from.y * std::cos(turn)};
            result.corners.push_back({center + at, std::tan(sweep / parts / 4.0)});
        }
    }
    return result;
}

FieldList hatchPath(const PlaneGraph::Loop &loop, qint64 flags, const std::vector<Handle> &handles, Version version)
{
    FieldList fields;
    if (isPolylineLoop(loop)) {
        const LoopPolyline polyline = *loopPolyline(loop);
        const bool hasBulge =
            std::ranges::any_of(polyline.corners, [](const auto &corner) { return corner.bulge != 0.0; });
        fields = {{92, flags | PolylinePath},
                  {72, qint64(hasBulge ? 1 : 0)},
                  {73, qint64(1)},
                  {93, qint64(polyline.corners.size())}};
        for (const LoopPolyline::Corner &corner : polyline.corners) {
            fields.push_back({10, corner.point});
            if (hasBulge)
                fields.push_back({42, corner.bulge});
        }
    } else {
        fields = {{92, flags}, {93, qint64(loop.stretches.size())}};
        for (const EdgeStretch &stretch : loop.stretches)
            addEdge(fields, stretch, version);
    }
    fields.push_back({97, qint64(handles.size())});
    for (const Handle handle : handles)
        fields.push_back({330, handle});
    return fields;
}

} // namespace host::drawing
