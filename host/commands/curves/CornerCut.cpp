#include "host/commands/curves/CornerCut.h"

#include "host/commands/common/CircleGeometry.h"
#include "host/commands/curves/EditedPolyline.h"

#include <cmath>

namespace host::kernel {

using drawing::Vec2;
using drawing::Vec3;

namespace {

Vec2 unitOf(Vec2 v)
{
    return v.length() > 0.0 ? v * (1.0 / v.length()) : v;
}

/// Takes out arcs between straight stretches that lead to one corner.
void sharpenRoundCorners(EditedPolyline &polyline)
{
    std::vector<EditedVertex> &vertices = polyline.vertices;
    const std::size_t least = polyline.isClosed ? 4 : 3;
    for (std::size_t i = 0; vertices.size() > least && i < vertices.size(); ++i) {
        const std::size_t count = vertices.size();
        const bool isInside = polyline.isClosed || (i > 0 && i + 2 < count);
        if (!isInside || vertices[i].bulge == 0.0)
            continue;
        const EditedVertex &before = vertices[(i + count - 1) % count];
        const EditedVertex &end = vertices[(i + 1) % count];
        const Vec2 from = vertices[i].point.xy();
        const Vec2 to = end.point.xy();
        const Vec2 in = unitOf(from - before.point.xy());
        const Vec2 out = unitOf(vertices[(i + 2) % count].point.xy() - to);
        const double sine = cross(in, out);
        if (before.bulge != 0.0 || end.bulge != 0.0 || !(std::abs(sine) > 1e-9))
            continue;
        const double ahead = cross(to - from, out) / sine;
        const Vec2 corner = from + in * ahead;
        if (!(ahead > 0.0) || !(dot(to - corner, out) > 0.0))
            continue;
        vertices[i].point = {corner.x, corner.y, vertices[i].point.z};
        vertices[i].bulge = 0.0;
        vertices.erase(vertices.begin() + static_cast<qsizetype>((i + 1) % count));
    }
}

} // namespace

std::optional<CutEnds> cutCorner(Vec2 corner, Vec2 first, Vec2 second, const CornerCut &cut)
{
    const double sine = cross(first, second);
    if (!(std::abs(sine) > 1e-9))
        return {};
    const double between = std::atan2(std::abs(sine), dot(first, second));
    CutEnds ends;
    if (cut.isRound) {
        ends.firstReach = ends.secondReach = cut.radius / std::tan(between / 2.0);
        // The arc turns by what the lines lack to a straight one, to the side where the corner turns.
        ends.bulge = cut.radius > 0.0 ? bulgeOfAngle(sine > 0.0 ? between - M_PI : M_PI - between) : 0.0;
    } else {
        ends.firstReach = cut.first;
        ends.secondReach = cut.second;
        if (cut.angle) {
            if (!(std::sin(between + *cut.angle) > 1e-9))
                return {};
            ends.secondReach = cut.first * std::sin(*cut.angle) / std::sin(between + *cut.angle);
        }
    }
    ends.first = corner + first * ends.firstReach;
    ends.second = corner + second * ends.secondReach;
    return ends;
}

CornerCounts cutAllCorners(EditedPolyline &polyline, const CornerCut &cut)
{
    if (cut.isRound)
        sharpenRoundCorners(polyline);
    const std::vector<EditedVertex> corners = polyline.vertices;
    const std::size_t count = corners.size();
    CornerCounts counts;
    std::vector<double> left; // of each stretch
    for (std::size_t i = 0; i < count; ++i)
        left.push_back((corners[(i + 1) % count].point - corners[i].point).xy().length());
    polyline.vertices.clear();
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t before = (i + count - 1) % count;
        EditedVertex vertex = corners[i];
        const bool isEnd = !polyline.isClosed && (i == 0 || i + 1 == count);
        const Vec2 back = unitOf((corners[before].point - vertex.point).xy());
        const Vec2 on = unitOf((corners[(i + 1) % count].point - vertex.point).xy());
        std::optional<CutEnds> ends;
        if (!isEnd && corners[before].bulge == 0.0 && vertex.bulge == 0.0) {
            ends = cutCorner(vertex.point.xy(), back, on, cut);
            counts.parallel += ends ? 0 : 1;
        }
        const double slack = 1e-9 * (left[before] + left[i]);
        if (ends && (ends->firstReach > left[before] + slack || ends->secondReach > left[i] + slack)) {
            ++counts.tooShort;
            ends.reset();
        }
        if (!ends) {
            polyline.vertices.push_back(vertex);
            continue;
        }
        ++counts.cut;
        left[before] -= ends->firstReach;
        left[i] -= ends->secondReach;
        EditedVertex begin = vertex;
        begin.point = {ends->first.x, ends->first.y, vertex.point.z};
        begin.bulge = ends->bulge;
        begin.endWidth = begin.startWidth;
        vertex.point = {ends->second.x, ends->second.y, vertex.point.z};
        if ((begin.point - vertex.point).length() > 0.0)
            polyline.vertices.push_back(begin);
        polyline.vertices.push_back(vertex);
    }
    return counts;
}

} // namespace host::kernel
