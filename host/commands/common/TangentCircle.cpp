#include "host/commands/common/TangentCircle.h"

#include "host/commands/common/CircleGeometry.h"
#include "host/commands/common/UserPlane.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace host::kernel {

using drawing::Vec2;
using drawing::Vec3;

namespace {

constexpr double tangentTolerance = 1e-9;

/// Where the centres of circles with a radius that touch the line can be.
std::vector<TangentLine> offsets(const TangentLine &line, double radius)
{
    std::vector<TangentLine> result;
    for (const double side : {1.0, -1.0}) {
        TangentLine moved = line;
        if (line.isStraight)
            moved.point = line.point + turnedLeft(line.direction) * (side * radius);
        else
            moved.radius = std::abs(line.radius + side * radius);
        result.push_back(moved);
    }
    return result;
}

std::vector<Vec2> straightMeetings(const TangentLine &line, const TangentLine &other)
{
    if (!other.isStraight) {
        const double along = dot(other.point - line.point, line.direction);
        const Vec2 foot = line.point + line.direction * along;
        const double square = other.radius * other.radius - dot(foot - other.point, foot - other.point);
        const double limit = tangentTolerance * std::max(1.0, other.radius * other.radius);
        if (square < -limit)
            return {};
        const Vec2 aside = line.direction * std::sqrt(std::max(square, 0.0));
        return {foot + aside, foot - aside};
    }
    const double sine = cross(line.direction, other.direction);
    if (std::abs(sine) < tangentTolerance)
        return {};
    return {line.point + line.direction * (cross(other.point - line.point, other.direction) / sine)};
}

std::vector<Vec2> meetings(const TangentLine &first, const TangentLine &second)
{
    if (first.isStraight)
        return straightMeetings(first, second);
    return second.isStraight ? straightMeetings(second, first)
                             : circleMeetings(first.point, first.radius, second.point, second.radius);
}

} // namespace

std::optional<TangentLine> tangentLine(const drawing::Drawing &drawing, drawing::RecordId entity,
                                       const UserPlane &plane, const Vec3 &pickedAt)
{
    const drawing::TagList tags = drawing.tags(entity);
    TangentLine line;
    line.picked = plane.userFromWorld(pickedAt).xy();
    if (drawing.isType(entity, "LINE")) {
        const Vec3 from = plane.userFromWorld(tags.point(10));
        const Vec3 along = plane.userFromWorld(tags.point(11)) - from;
        if (!(along.xy().length() > 0.0) || std::abs(along.z) > tangentTolerance * along.length())
            return {};
        line.point = from.xy();
        line.direction = along.xy() * (1.0 / along.xy().length());
        line.height = from.z;
        return line;
    }
    if (!drawing.isType(entity, "CIRCLE") && !drawing.isType(entity, "ARC"))
        return {};
    const Vec3 normal = drawing::normalized(tags.point(210, {0.0, 0.0, 1.0}));
    const drawing::Matrix object = drawing::Matrix::fromExtrusion(normal);
    const Vec3 centre = plane.userFromWorld(object.point(tags.point(10)));
    const Vec3 tip = plane.userFromWorld(object.point(tags.point(10)) + normal);
    if ((tip - centre).xy().length() > tangentTolerance)
        return {};
    line.isStraight = false;
    line.point = centre.xy();
    line.radius = tags.real(40);
    line.height = centre.z;
    return line;
}

Vec2 touchingPoint(const TangentLine &line, Vec2 centre, double radius)
{
    if (line.isStraight)
        return line.point + line.direction * dot(centre - line.point, line.direction);
    const Vec2 away = centre - line.point;
    if (!(away.length() > 0.0))
        return line.point;
    // One circle round the other touches it on the far side.
    const bool isAround = radius > line.radius && away.length() < radius;
    return line.point + away * ((isAround ? -line.radius : line.radius) / away.length());
}

std::vector<Vec2> tangentCentres(const TangentLine &first, const TangentLine &second, double radius)
{
    std::vector<Vec2> centres;
    if (!(radius >= 0.0))
        return centres;
    for (const TangentLine &left : offsets(first, radius))
        for (const TangentLine &right : offsets(second, radius))
            std::ranges::copy(meetings(left, right), std::back_inserter(centres));
    const auto missed = [&](Vec2 centre) {
        return (touchingPoint(first, centre, radius) - first.picked).length() +
               (touchingPoint(second, centre, radius) - second.picked).length();
    };
    std::ranges::stable_sort(centres, {}, missed);
    return centres;
}

std::optional<Vec2> tangentCentre(const TangentLine &first, const TangentLine &second, double radius)
{
    const std::vector<Vec2> centres = tangentCentres(first, second, radius);
    return centres.empty() ? std::nullopt : std::optional(centres.front());
}

} // namespace host::kernel
