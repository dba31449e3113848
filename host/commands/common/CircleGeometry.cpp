#include "host/commands/common/CircleGeometry.h"

#include <cmath>

namespace host::kernel {

using drawing::Vec2;

namespace {

/// Directions that differ by less count as one.
constexpr double circleTolerance = 1e-12;

} // namespace

Vec2 polar(double direction, double length)
{
    return {length * std::cos(direction), length * std::sin(direction)};
}

double turnAround(Vec2 centre, Vec2 from, Vec2 to)
{
    const double turn = std::atan2(cross(from - centre, to - centre), dot(from - centre, to - centre));
    return turn > 0.0 ? turn : turn + 2.0 * M_PI;
}

double settledDegrees(double degrees)
{
    const double turned = std::fmod(degrees, 360.0);
    const double settled = turned < 0.0 ? turned + 360.0 : turned;
    return 360.0 - settled < 1e-10 ? 0.0 : settled;
}

Vec2 turnedRound(Vec2 point, Vec2 centre, double angle)
{
    const Vec2 spoke = point - centre;
    return centre + spoke * std::cos(angle) + turnedLeft(spoke) * std::sin(angle);
}

std::optional<Vec2> circleCentre(Vec2 first, Vec2 second, Vec2 third)
{
    const Vec2 a = second - first;
    const Vec2 b = third - first;
    const double area = 2.0 * cross(a, b);
    if (!(std::abs(area) > circleTolerance * a.length() * b.length()))
        return {};
    const Vec2 sum = a * dot(b, b) - b * dot(a, a);
    return first + turnedLeft(sum) * (1.0 / area);
}

double bulgeAlong(Vec2 from, double direction, Vec2 to)
{
    const Vec2 chord = to - from;
    // The chord turns away from the tangent by half of the arc's angle.
    const double half = std::remainder(std::atan2(chord.y, chord.x) - direction, 2.0 * M_PI);
    return std::tan(half / 2.0);
}

double bulgeThrough(Vec2 from, Vec2 between, Vec2 to)
{
    const Vec2 in = between - from;
    const Vec2 out = to - between;
    return std::tan(std::atan2(cross(in, out), dot(in, out)) / 2.0);
}

double bulgeOfAngle(double angle)
{
    return std::tan(angle / 4.0);
}

double arrivalDirection(Vec2 from, Vec2 to, double bulge)
{
    const Vec2 chord = to - from;
    return std::atan2(chord.y, chord.x) + 2.0 * std::atan(bulge);
}

std::vector<Vec2> circleMeetings(Vec2 first, double firstRadius, Vec2 second, double secondRadius)
{
    const Vec2 between = second - first;
    const double distance = between.length();
    if (!(distance > 0.0))
        return {};
    const double along =
        (distance * distance + firstRadius * firstRadius - secondRadius * secondRadius) / (2.0 * distance);
    const double square = firstRadius * firstRadius - along * along;
    const double limit = circleTolerance * distance * distance;
    if (square < -limit)
        return {};
    const Vec2 foot = first + between * (along / distance);
    const Vec2 aside = turnedLeft(between) * (std::sqrt(std::max(square, 0.0)) / distance);
    if (square <= limit)
        return {foot};
    return {foot + aside, foot - aside};
}

} // namespace host::kernel
