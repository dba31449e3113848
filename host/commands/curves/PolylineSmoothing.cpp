#include "host/commands/curves/PolylineSmoothing.h"

#include "host/commands/common/CircleGeometry.h"
#include "host/commands/common/ControlSpline.h"
#include "host/drawing/records/PolylineFlags.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"

#include <algorithm>
#include <cmath>

namespace host::kernel {

using drawing::Vec2;
using drawing::Vec3;

namespace {

enum SmoothFlag : qint64
{
    MadeByArcs = 1,
    HasTangent = 2,
    MadeBySpline = 8
};

SmoothVertex smoothVertex(const EditedVertex &vertex, qint64 flags)
{
    SmoothVertex made;
    static_cast<EditedVertex &>(made) = vertex;
    made.flags = flags;
    return made;
}

/// The direction at a corner of the circle through it and its neighbours.
double directionThrough(Vec2 before, Vec2 at, Vec2 behind)
{
    const std::optional<Vec2> centre = circleCentre(before, at, behind);
    const Vec2 way = behind - before;
    if (!centre)
        return std::atan2(way.y, way.x);
    const Vec2 tangent = turnedLeft(at - *centre);
    const double sense = cross(at - before, behind - at) > 0.0 ? 1.0 : -1.0;
    return std::atan2(tangent.y * sense, tangent.x * sense);
}

/// The directions in which arcs pass the corners.
std::vector<double> cornerDirections(const EditedPolyline &polyline)
{
    const std::vector<EditedVertex> &vertices = polyline.vertices;
    const std::size_t count = vertices.size();
    std::vector<double> directions(count);
    const auto at = [&](std::size_t i) { return vertices[i % count].point.xy(); };
    const auto chord = [&](std::size_t i) {
        const Vec2 along = at(i + 1) - at(i);
        return std::atan2(along.y, along.x);
    };
    for (std::size_t i = 0; i < count; ++i) {
        const bool isEnd = !polyline.isClosed && (i == 0 || i + 1 == count);
        if (!isEnd)
            directions[i] = directionThrough(at(i + count - 1), at(i), at(i + 1));
    }
    if (!polyline.isClosed) {
        // At its ends the curve is one arc with what comes next.
        const bool isStraight = count < 3;
        directions.front() = isStraight ? chord(0) : 2.0 * chord(0) - directions[1];
        directions.back() = isStraight ? chord(0) : 2.0 * chord(count - 2) - directions[count - 2];
    }
    for (std::size_t i = 0; i < count; ++i)
        if (vertices[i].tangent)
            directions[i] = *vertices[i].tangent;
    return directions;
}

/// Where two arcs from one point and direction to another meet smoothly.
Vec2 arcsMeeting(Vec2 from, double leaving, Vec2 to, double arriving)
{
    const Vec2 way = to - from;
    const Vec2 first = polar(leaving, 1.0);
    const Vec2 last = polar(arriving, 1.0);
    const double along = dot(way, first + last);
    const double below = 2.0 * (1.0 - dot(first, last));
    double reach = 0.0;
    if (below > 1e-9)
        reach = (std::sqrt(along * along + below * dot(way, way)) - along) / below;
    else if (std::abs(along) > 1e-12)
        reach = dot(way, way) / (2.0 * along);
    return (from + first * reach + to - last * reach) * 0.5;
}

std::vector<SmoothVertex> smoothedByArcs(const EditedPolyline &polyline)
{
    const std::vector<EditedVertex> &vertices = polyline.vertices;
    const std::vector<double> directions = cornerDirections(polyline);
    std::vector<SmoothVertex> made;
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        made.push_back(smoothVertex(vertices[i], vertices[i].tangent ? qint64(HasTangent) : 0));
        made.back().bulge = 0.0;
        if (i + 1 == vertices.size() && !polyline.isClosed)
            break;
        const std::size_t next = (i + 1) % vertices.size();
        const Vec2 from = vertices[i].point.xy();
        const Vec2 to = vertices[next].point.xy();
        const Vec2 middle = arcsMeeting(from, directions[i], to, directions[next]);
        made.back().bulge = bulgeAlong(from, directions[i], middle);
        const double width = (vertices[i].startWidth + vertices[i].endWidth) / 2.0;
        made.back().endWidth = width;
        SmoothVertex between = smoothVertex(vertices[i], MadeByArcs);
        between.point = {middle.x, middle.y, vertices[i].point.z};
        between.tangent.reset();
        between.startWidth = width;
        between.bulge = -bulgeAlong(to, directions[next] + M_PI, middle);
        made.push_back(between);
    }
    return made;
}

/// A curve of more is made coarser.
constexpr std::size_t mostMadeVertices = 1'000'000;

std::vector<SmoothVertex> smoothedBySpline(const EditedPolyline &polyline, const SplineSmoothing &settings)
{
    const std::vector<EditedVertex> &vertices = polyline.vertices;
    const bool isClosed = polyline.isClosed && vertices.size() > 2;
    std::vector<SmoothVertex> made;
    std::vector<Vec3> frame;
    for (const EditedVertex &vertex : vertices) {
        made.push_back(smoothVertex(vertex, drawing::FlagFrameControl));
        made.back().bulge = 0.0;
        frame.push_back(vertex.point);
    }
    const drawing::Spline spline = splineOver(frame, settings.degree, isClosed);
    const std::size_t stretches = isClosed ? vertices.size() : vertices.size() - 1;
    const std::size_t segments =
        std::min(static_cast<std::size_t>(settings.segments), std::max<std::size_t>(1, mostMadeVertices / stretches));
    const std::size_t count = stretches * segments;
    const double first = spline.firstParameter();
    const double range = spline.lastParameter() - first;
    for (std::size_t i = 0; i < count + (isClosed ? 0 : 1); ++i) {
        SmoothVertex vertex;
        vertex.point = spline.point(first + range * static_cast<double>(i) / static_cast<double>(count));
        const EditedVertex &corner = vertices[std::min(i / segments, vertices.size() - 1)];
        vertex.startWidth = corner.startWidth;
        vertex.endWidth = corner.startWidth;
        vertex.flags = MadeBySpline;
        made.push_back(vertex);
    }
    return made;
}

} // namespace

SplineSmoothing SplineSmoothing::of(CommandContext &context)
{
    const SystemVariables &variables = context.document().variables();
    SplineSmoothing settings;
    settings.degree = variables.integer(u"SPLINETYPE", 6) == 5 ? 2 : 3;
    settings.segments = std::clamp(std::abs(variables.integer(u"SPLINESEGS", 8)), 1, 200);
    return settings;
}

std::vector<SmoothVertex> smoothed(const EditedPolyline &polyline, const SplineSmoothing &spline)
{
    if (polyline.smoothing == Smoothing::Arcs && polyline.vertices.size() > 1)
        return smoothedByArcs(polyline);
    if (polyline.smoothing == Smoothing::Spline && polyline.vertices.size() > 2)
        return smoothedBySpline(polyline, spline);
    std::vector<SmoothVertex> made;
    for (const EditedVertex &vertex : polyline.vertices)
        made.push_back(smoothVertex(vertex, vertex.tangent ? qint64(HasTangent) : 0));
    return made;
}

} // namespace host::kernel
