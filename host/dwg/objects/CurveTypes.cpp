#include "host/dwg/objects/SplineFit.h"
#include "host/dwg/objects/TypeTable.h"

#include <algorithm>
#include <cmath>

namespace host::dwg {

namespace {

void readLine(Fields &f)
{
    f.subclass("AcDbLine");
    const std::size_t begin = f.mark();
    if (f.since(Release::R2000)) {
        const bool isFlat = f.flag();
        Point from;
        Point to;
        from.x = f.rawReal();
        to.x = f.values().realNear(from.x);
        from.y = f.rawReal();
        to.y = f.values().realNear(from.y);
        if (!isFlat) {
            from.z = f.rawReal();
            to.z = f.values().realNear(from.z);
        }
        f.note(10, from);
        f.note(11, to);
    } else {
        f.point(10);
        f.point(11);
    }
    f.thicknessInFront(begin);
    f.extrusion();
}

void readPoint(Fields &f)
{
    f.subclass("AcDbPoint");
    f.point(10);
    f.thickness();
    f.extrusion();
    f.angle(50, {0.0});
}

void readCircle(Fields &f)
{
    f.subclass("AcDbCircle");
    const std::size_t begin = f.mark();
    f.point(10);
    f.real(40);
    f.thicknessInFront(begin);
    f.extrusion();
}

void readArc(Fields &f)
{
    readCircle(f);
    f.subclass("AcDbArc");
    f.angle(50);
    f.angle(51);
}

void readEllipse(Fields &f)
{
    f.subclass("AcDbEllipse");
    f.point(10);
    f.point(11);
    f.point(210);
    f.real(40);
    f.real(41);
    f.real(42);
}

void readRay(Fields &f)
{
    f.subclass("AcDbRay");
    f.point(10);
    f.point(11);
}

void readXline(Fields &f)
{
    f.subclass("AcDbXline");
    f.point(10);
    f.point(11);
}

/// Four corners at one height: as crossing lines have them, not around.
void readTrace(Fields &f)
{
    f.subclass("AcDbTrace");
    const double thickness = f.values().thickness(f.release());
    const double height = f.real();
    for (int code = 10; code <= 13; ++code) {
        const double x = f.rawReal();
        f.note(code, Point{x, f.rawReal(), height});
    }
    f.noteUnless(39, thickness, {0.0});
    f.extrusion();
}

void readFace(Fields &f)
{
    f.subclass("AcDbFace");
    if (!f.since(Release::R2000)) {
        for (int code = 10; code <= 13; ++code)
            f.point(code);
        f.int16(70, {0});
        return;
    }
    const bool hasNoFlags = f.flag();
    const bool isFlat = f.flag();
    Point corner;
    corner.x = f.rawReal();
    corner.y = f.rawReal();
    corner.z = isFlat ? 0.0 : f.rawReal();
    f.note(10, corner);
    for (int code = 11; code <= 13; ++code) {
        corner.x = f.values().realNear(corner.x);
        corner.y = f.values().realNear(corner.y);
        corner.z = f.values().realNear(corner.z);
        f.note(code, corner);
    }
    if (!hasNoFlags)
        f.int16(70);
}

/// Which of its parts a spline was made from.
enum SplineSource
{
    ControlPoints = 1,
    FitPoints = 2
};

struct SplineFlags
{
    static constexpr int closed = 1;
    static constexpr int periodic = 2;
    static constexpr int rational = 4;
    static constexpr int planar = 8;
    static constexpr int chordKnots = 0x20; ///< the knots count the chords
    static constexpr int fromFitPoints = 0x400;
};

Point difference(const Point &to, const Point &from)
{
    return {to.x - from.x, to.y - from.y, to.z - from.z};
}

Point cross(const Point &a, const Point &b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

double dot(const Point &a, const Point &b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

/// The direction across the plane that all points are in; the z axis where they are at one height. Nothing where they
/// are in no plane, or in a line that rises.
std::optional<Point> planeOf(const std::vector<Point> &points)
{
    constexpr double tolerance = 1e-9;
    if (points.empty())
        return std::nullopt;
    const Point first = points.front();
    if (std::ranges::all_of(points, [&first](const Point &point) { return point.z == first.z; }))
        return Point{0.0, 0.0, 1.0};
    const auto away = [&first](const Point &point) { return difference(point, first); };
    const Point farthest =
        away(*std::ranges::max_element(points, {}, [&](const Point &point) { return dot(away(point), away(point)); }));
    const auto across = [&](const Point &point) { return cross(farthest, away(point)); };
    const Point normal = across(
        *std::ranges::max_element(points, {}, [&](const Point &point) { return dot(across(point), across(point)); }));
    const double length = std::sqrt(dot(normal, normal));
    const double size = std::sqrt(dot(farthest, farthest));
    if (length <= tolerance * size * size)
        return std::nullopt;
    const bool isFlat = std::ranges::all_of(
        points, [&](const Point &point) { return std::abs(dot(away(point), normal)) <= tolerance * size * length; });
    return isFlat ? std::optional(Point{normal.x / length, normal.y / length, normal.z / length}) : std::nullopt;
}

/// Notes the plane of a spline, and gives the flag that tells of it.
int notePlane(Fields &f, const std::vector<Point> &points)
{
    const std::optional<Point> normal = planeOf(points);
    if (normal)
        f.note(210, *normal);
    return normal ? SplineFlags::planar : 0;
}

void noteUnlessNull(Fields &f, int code, const Point &direction)
{
    if (direction != Point())
        f.note(code, direction);
}

void noteSplineCounts(Fields &f, int flags, int degree, std::size_t knots, std::size_t points, std::size_t fitPoints)
{
    f.note(70, flags);
    f.note(71, degree);
    f.note(72, knots);
    f.note(73, points);
    f.note(74, fitPoints);
}

/// Files have no more than the points that the spline goes through; the text form has its control points as well. Where
/// it may pass the points by, or its knots are chosen in another way, these are not known here.
void readFitSpline(Fields &f, int degree, bool hasChordKnots)
{
    constexpr int cubic = 3;
    constexpr double leastTolerance = 1e-8;
    const double tolerance = f.real();
    const Point startTangent = f.point();
    const Point endTangent = f.point();
    std::vector<Point> fitPoints(f.count(6));
    for (Point &point : fitPoints)
        point = f.point();
    std::optional<FittedSpline> spline;
    const bool isClosed = !fitPoints.empty() && fitPoints.front() == fitPoints.back();
    if (degree == cubic && hasChordKnots && tolerance <= leastTolerance && !isClosed && !f.hasFailed())
        spline = splineThrough(fitPoints, startTangent, endTangent);
    const FittedSpline shown = spline.value_or(FittedSpline());
    const int plane = notePlane(f, spline ? shown.points : fitPoints);
    const int flags = plane | (hasChordKnots ? SplineFlags::chordKnots : 0) | SplineFlags::fromFitPoints;
    noteSplineCounts(f, flags, degree, shown.knots.size(), shown.points.size(), fitPoints.size());
    if (spline) {
        f.note(42, 1e-9);
        f.note(43, 1e-10);
    }
    f.note(44, tolerance);
    noteUnlessNull(f, 12, startTangent);
    noteUnlessNull(f, 13, endTangent);
    for (const double knot : shown.knots)
        f.note(40, knot);
    for (const Point &point : shown.points)
        f.note(10, point);
    for (const Point &point : fitPoints)
        f.note(11, point);
}

void readControlSpline(Fields &f, int degree)
{
    const bool isRational = f.flag();
    const bool isClosed = f.flag();
    const bool isPeriodic = f.flag();
    const double knotTolerance = f.real();
    const double pointTolerance = f.real();
    const std::size_t knots = f.count(2);
    const std::size_t points = f.count(6);
    const bool isWeighted = f.flag();
    const std::size_t begin = f.mark();
    f.note(71, degree);
    f.note(72, knots);
    f.note(73, points);
    f.note(74, 0);
    f.note(42, knotTolerance);
    f.note(43, pointTolerance);
    for (std::size_t i = 0; i < knots; ++i)
        f.real(40);
    std::vector<Point> places(points);
    std::vector<double> weights;
    for (Point &place : places) {
        place = f.point(10);
        if (isWeighted)
            weights.push_back(f.real());
    }
    for (const double weight : weights)
        f.note(41, weight);
    const std::size_t plane = f.mark();
    f.note(70, notePlane(f, places) | (isRational ? SplineFlags::rational : 0) | (isClosed ? SplineFlags::closed : 0) |
                   (isPeriodic ? SplineFlags::periodic : 0));
    f.moveForward(plane, begin);
}

void readSpline(Fields &f)
{
    f.subclass("AcDbSpline");
    const int source = f.int32();
    int knotChoice = 0;
    if (f.since(Release::R2013)) {
        f.int32(); // how it was made
        knotChoice = f.int32();
    }
    const int degree = f.int32();
    if (source == FitPoints)
        readFitSpline(f, degree, knotChoice == 0);
    else
        readControlSpline(f, degree);
}

void readHelix(Fields &f)
{
    readSpline(f);
    f.subclass("AcDbHelix");
    f.int32(90);
    f.int32(91);
    f.point(10);
    f.point(11);
    f.point(12);
    for (int code = 40; code <= 42; ++code)
        f.real(code);
    f.flag(290);
    f.small(280);
}

} // namespace

std::span<const ObjectType> curveTypes()
{
    static constexpr ObjectType rows[] = {
        {0x11, "ARC", readArc, true},     {0x12, "CIRCLE", readCircle, true},   {0x13, "LINE", readLine, true},
        {0x1b, "POINT", readPoint, true}, {0x1c, "3DFACE", readFace, true},     {0x1f, "SOLID", readTrace, true},
        {0x20, "TRACE", readTrace, true}, {0x23, "ELLIPSE", readEllipse, true}, {0x24, "SPLINE", readSpline, true},
        {0x28, "RAY", readRay, true},     {0x29, "XLINE", readXline, true},     {0, "HELIX", readHelix, true},
    };
    return rows;
}

} // namespace host::dwg
