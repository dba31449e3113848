#include "host/drawing/curves/CurveVertices.h"
#include "host/drawing/curves/EntityCurve.h"
#include "host/drawing/math/Angles.h"

#include <numbers>

namespace host::drawing {

namespace {

using Kind = EntityCurve::Kind;
using MaybeCurve = std::optional<EntityCurve>;

constexpr double endOfNone = std::numeric_limits<double>::infinity();
const Vec3 curveUpwards{0, 0, 1};

/// Turns that leave no digits for the angle itself are damage, and say nothing.
double soundAngle(double angle)
{
    constexpr double mostAngle = 1e4;
    return std::abs(angle) <= mostAngle ? angle : std::fmod(angle, wholeTurn);
}

/// The end of a range of angles that does not lie behind its start: a turn on.
double turnedBehind(double start, double end)
{
    const double sweep = std::fmod(end - start, wholeTurn);
    return start + (sweep <= 1e-12 ? sweep + wholeTurn : sweep);
}

CurvePiece circularPiece(const TagList &tags, double start, double end)
{
    const double radius = tags.real(40);
    return CurvePiece::round(tags.point(10), {radius, 0, 0}, {0, radius, 0}, start, end, start, end)
        .transformed(Matrix::fromExtrusion(tags.point(210, curveUpwards)));
}

MaybeCurve curveOfLine(const Drawing &, RecordId, const TagList &tags)
{
    return EntityCurve::line(tags.point(10), tags.point(11));
}

MaybeCurve curveOfRay(const Drawing &, RecordId, const TagList &tags)
{
    const Vec3 direction = normalized(tags.point(11));
    return EntityCurve(Kind::Ray, {CurvePiece::endless(tags.point(10), direction, 0.0, endOfNone)}, false);
}

MaybeCurve curveOfConstructionLine(const Drawing &, RecordId, const TagList &tags)
{
    const Vec3 direction = normalized(tags.point(11));
    return EntityCurve(Kind::ConstructionLine, {CurvePiece::endless(tags.point(10), direction, -endOfNone, endOfNone)},
                       false);
}

Vec3 curveDirection(const TagList &tags)
{
    const Vec3 direction = normalized(tags.point(210, curveUpwards));
    return direction == Vec3{} ? curveUpwards : direction;
}

MaybeCurve curveOfArc(const Drawing &, RecordId, const TagList &tags)
{
    const double start = soundAngle(tags.real(50) * radians);
    const double end = turnedBehind(start, soundAngle(tags.real(51) * radians));
    return EntityCurve(Kind::Arc, {circularPiece(tags, start, end)}, false, curveDirection(tags));
}

MaybeCurve curveOfCircle(const Drawing &, RecordId, const TagList &tags)
{
    return EntityCurve(Kind::Circle, {circularPiece(tags, 0.0, wholeTurn)}, true, curveDirection(tags));
}

MaybeCurve curveOfEllipse(const Drawing &, RecordId, const TagList &tags)
{
    const Vec3 up = curveDirection(tags);
    const Vec3 major = tags.point(11);
    const Vec3 minor = cross(up, major) * tags.real(40, 1.0);
    const double start = soundAngle(tags.real(41));
    const double end = turnedBehind(start, soundAngle(tags.real(42, wholeTurn)));
    const bool isWhole = end - start >= wholeTurn - 1e-12;
    return EntityCurve(Kind::Ellipse, {CurvePiece::round(tags.point(10), major, minor, start, end, start, end)},
                       isWhole, up);
}

MaybeCurve validSpline(const Spline &spline)
{
    const bool isDrawable =
        spline.isValid() && std::ranges::all_of(spline.weights, [](double weight) { return weight > 0.0; });
    return isDrawable ? MaybeCurve(EntityCurve::spline(spline)) : std::nullopt;
}

MaybeCurve curveOfSpline(const Drawing &, RecordId, const TagList &tags)
{
    return validSpline(shownSpline(tags));
}

MaybeCurve curveOfPolyline(const Drawing &drawing, RecordId entity, const TagList &)
{
    const std::optional<CurveVertices> polyline = polylineVertices(drawing, entity);
    return polyline && !polyline->vertices.empty() ? MaybeCurve(polylineCurve(*polyline)) : std::nullopt;
}

MaybeCurve curveOfLeader(const Drawing &, RecordId, const TagList &tags)
{
    const Path points = tags.points(10);
    if (points.size() < 2)
        return {};
    const bool isCurved = tags.integer(72) == 1 && points.size() > 2;
    if (isCurved)
        return validSpline(fittedSpline(points, false));
    const EntityCurve straight = EntityCurve::through(points);
    return EntityCurve(Kind::Leader, {straight.pieces().begin(), straight.pieces().end()}, false);
}

using CurveFunction = MaybeCurve (*)(const Drawing &, RecordId, const TagList &);

constexpr std::pair<const char *, CurveFunction> curveFunctions[] = {
    {"LINE", curveOfLine},
    {"ARC", curveOfArc},
    {"CIRCLE", curveOfCircle},
    {"LWPOLYLINE", curveOfPolyline},
    {"POLYLINE", curveOfPolyline},
    {"ELLIPSE", curveOfEllipse},
    {"SPLINE", curveOfSpline},
    {"HELIX", curveOfSpline},
    {"LEADER", curveOfLeader},
    {"RAY", curveOfRay},
    {"XLINE", curveOfConstructionLine},
};

bool isFinitePoint(const Vec3 &point)
{
    return std::isfinite(point.x) && std::isfinite(point.y) && std::isfinite(point.z);
}

/// Whether numbers and extent are such that the rest can work with them.
bool isSoundCurve(const EntityCurve &curve)
{
    bool hasExtent = false;
    for (const CurvePiece &piece : curve.pieces()) {
        const double inside = std::clamp(0.0, piece.start(), piece.end());
        const Vec3 speed = piece.firstDerivative(inside);
        const double size = piece.deviation() + speed.length();
        if (!isFinitePoint(piece.point(inside)) || !std::isfinite(size) || std::isnan(piece.start() + piece.end()))
            return curve.isEndless() && isFinitePoint(piece.point(inside)) && size > 0.0;
        hasExtent = hasExtent || size > 0.0;
    }
    return hasExtent;
}

} // namespace

std::optional<EntityCurve> EntityCurve::ofEntity(const Drawing &drawing, RecordId entity)
{
    const QByteArrayView type = drawing.typeName(entity);
    for (const auto &[name, function] : curveFunctions) {
        if (type != name)
            continue;
        MaybeCurve curve = function(drawing, entity, drawing.tags(entity));
        return curve && isSoundCurve(*curve) ? curve : std::nullopt;
    }
    return {};
}

Spline readSpline(const TagList &record)
{
    // What a helix was made from stands behind its spline, in codes that splines use.
    const auto isHelix = [](const Tag &tag) { return tag.code == 100 && tag.trimmed() == "AcDbHelix"; };
    const TagList tags({record.begin(), std::ranges::find_if(record, isHelix)}, record.codec());
    Spline spline;
    spline.degree = static_cast<int>(std::clamp<qint64>(tags.integer(71, 3), 0, 100));
    spline.isClosed = (tags.integer(70) & 1) != 0;
    spline.knots = tags.reals(40);
    spline.weights = tags.reals(41);
    spline.controlPoints = tags.points(10);
    spline.fitPoints = tags.points(11);
    // More knots than there should be are damage that the curve can be drawn without.
    const size_t knotCount = spline.controlPoints.size() + static_cast<size_t>(spline.degree) + 1;
    if (tags.find(72) && spline.knots.size() > knotCount)
        spline.knots.resize(knotCount);
    if (spline.weights.size() != spline.controlPoints.size())
        spline.weights.clear();
    return spline;
}

Spline shownSpline(const TagList &tags)
{
    Spline spline = readSpline(tags);
    if (spline.isValid())
        return spline;
    const auto direction = [&](int code) -> std::optional<Vec3> {
        const Vec3 given = normalized(tags.point(code));
        return tags.find(code) && given != Vec3{} ? std::optional(given) : std::nullopt;
    };
    return fittedSpline(spline.fitPoints, spline.isClosed, direction(12), direction(13));
}

} // namespace host::drawing
