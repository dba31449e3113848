// Points, angles and lines. Angles are radians. Something else than a list of two or three numbers: bad argument type:
// 2D/3D point:.

#include "host/lisp/Arguments.h"
#include "host/lisp/Builtins.h"
#include "host/lisp/Interpreter.h"

#include <numbers>

namespace host::lisp {

// (angle from to) -> the direction in the XY plane, 0 up to 2 pi; 0 for the same point.
static Value angle(Arguments &args)
{
    const Point from = args.point(0);
    const Point to = args.point(1);
    const double direction = std::atan2(to.y - from.y, to.x - from.x);
    return Value::real(direction < 0 ? direction + 2 * std::numbers::pi : direction);
}

// (distance a b) -> the distance in space; in the plane when one of them has no Z.
static Value distance(Arguments &args)
{
    const Point a = args.point(0);
    const Point b = args.point(1);
    const double z = a.hasZ && b.hasZ ? b.z - a.z : 0.0;
    return Value::real(std::hypot(b.x - a.x, b.y - a.y, z));
}

// (polar from angle distance) -> the point there, with the Z of from.
static Value polar(Arguments &args)
{
    Point point = args.point(0);
    point.x += std::cos(args.real(1)) * args.real(2);
    point.y += std::sin(args.real(1)) * args.real(2);
    return point.toValue();
}

static Point difference(const Point &a, const Point &b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z, a.hasZ};
}

static Point cross(const Point &a, const Point &b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x, true};
}

static double dot(const Point &a, const Point &b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

// (inters a1 a2 b1 b2 [on-segments]) -> where the two lines meet; nil when they do not. When on-segments is given and
// nil, the lines go on for ever. Without a Z in all four points they lie in the XY plane.
static Value inters(Arguments &args)
{
    static constexpr double tolerance = 1e-10;
    Point points[4] = {args.point(0), args.point(1), args.point(2), args.point(3)};
    const bool inSpace = std::all_of(std::begin(points), std::end(points), [](const Point &p) { return p.hasZ; });
    if (!inSpace) {
        for (Point &point : points)
            point.z = 0;
    }
    const Point along = difference(points[1], points[0]);
    const Point other = difference(points[3], points[2]);
    const Point between = difference(points[2], points[0]);
    const Point normal = cross(along, other);
    const double size = dot(normal, normal);
    if (size <= tolerance * tolerance * dot(along, along) * dot(other, other))
        return {};
    const double gap = std::fabs(dot(between, normal)) / std::sqrt(size);
    if (gap > tolerance * std::max(1.0, std::sqrt(dot(between, between))))
        return {};
    const double onFirst = dot(cross(between, other), normal) / size;
    const double onSecond = dot(cross(between, along), normal) / size;
    const auto inside = [](double part) { return part >= -tolerance && part <= 1 + tolerance; };
    const bool onSegments = args.size() < 5 || args.has(4);
    if (onSegments && (!inside(onFirst) || !inside(onSecond)))
        return {};
    const Point meeting{points[0].x + onFirst * along.x, points[0].y + onFirst * along.y,
                        points[0].z + onFirst * along.z, inSpace};
    return meeting.toValue();
}

static constexpr NativeRow geometryRows[] = {
    {"angle", angle, Arity::exactly(2), "from to", "the angle from one point to another, in radians"},
    {"distance", distance, Arity::exactly(2), "from to", "the distance of two points"},
    {"polar", polar, Arity::exactly(3), "point angle distance", "the point that lies there from a point"},
    {"inters", inters, Arity::between(4, 5), "a b c d [bounded]", "where two lines meet; nil when nowhere"},
};

void addGeometryFunctions(Interpreter &interpreter)
{
    interpreter.define(geometryRows);
}

} // namespace host::lisp
