#include "host/drawing/curves/EntityCurve.h"
#include "host/drawing/geometry/EntityGeometry.h"
#include "host/drawing/math/Angles.h"
#include "host/view/build/DisplayBuilder.h"

#include <algorithm>
#include <numbers>

namespace host::view {

using drawing::radians;
using drawing::TagList;

namespace {

constexpr double wholeTurn = 2.0 * std::numbers::pi;

/// The counter-clockwise way from one angle to another; an end at the start means all the way round.
double sweepBetween(double start, double end)
{
    const double sweep = std::fmod(std::fmod(end - start, wholeTurn) + wholeTurn, wholeTurn);
    return sweep < 1e-9 ? wholeTurn : sweep;
}

void addArc(BuildContext &context, const ArcSpan &arc)
{
    Curve curve;
    curve.points = {arc.point(arc.start), arc.point(arc.start + arc.sweep)};
    curve.arcs = {arc};
    context.add(Stroke{std::move(curve)});
}

bool addCircularArc(BuildContext &context, const TagList &tags, double start, double sweep)
{
    const Matrix ocs = Matrix::fromExtrusion(tags.point(210, {0.0, 0.0, 1.0}));
    const Vec3 center = tags.point(10);
    const double radius = std::abs(tags.real(40));
    if (!isUsable(center) || !isUsable(radius) || !std::isfinite(start) || !std::isfinite(sweep))
        return false;
    addArc(context, {.center = ocs.point(center),
                     .xAxis = ocs.direction({radius, 0.0, 0.0}),
                     .yAxis = ocs.direction({0.0, radius, 0.0}),
                     .start = start,
                     .sweep = sweep});
    return true;
}

bool isInDimension(const BuildContext &context)
{
    const RecordId block = context.drawing.parent(context.display.record);
    return context.drawing.tags(block).text(2).startsWith(QStringLiteral("*D"), Qt::CaseInsensitive);
}

/// The turns of a helix from its axis, its radii below and above, and the height of a turn.
Path helixPath(const TagList &tags)
{
    constexpr double mostTurns = 500.0;
    constexpr int piecesOfTurn = 36;
    const Vec3 base = tags.point(10);
    const Vec3 axis = drawing::normalized(tags.point(12, {0.0, 0.0, 1.0}));
    const Vec3 from = tags.point(11) - base;
    const Vec3 across = from - axis * dot(from, axis);
    const double turns = tags.real(41);
    const double radius = across.length();
    if (!(turns > 0.0) || !(turns <= mostTurns) || !(radius > 0.0) || axis == Vec3{})
        return {};
    const Vec3 x = across * (1.0 / radius);
    const Vec3 y = cross(axis, x) * (tags.integer(290, 1) != 0 ? 1.0 : -1.0);
    const int pieces = static_cast<int>(turns * piecesOfTurn) + 1;
    Path path;
    for (int i = 0; i <= pieces; ++i) {
        const double part = static_cast<double>(i) / pieces;
        const double angle = wholeTurn * turns * part;
        const double away = radius + (tags.real(40, radius) - radius) * part;
        path.push_back(base + (x * std::cos(angle) + y * std::sin(angle)) * away +
                       axis * (dot(from, axis) + turns * tags.real(42) * part));
    }
    return path;
}

bool addEndless(BuildContext &context, const TagList &tags, bool isBothWays)
{
    const Endless line{
        .base = tags.point(10), .direction = drawing::normalized(tags.point(11)), .isBothWays = isBothWays};
    if (!isUsable(line.base) || !isUsable(line.direction) || line.direction == Vec3{})
        return false;
    context.add(line);
    return true;
}

} // namespace

bool buildLine(BuildContext &context, const TagList &tags)
{
    const Vec3 from = tags.point(10);
    const Vec3 to = tags.point(11);
    if (!isUsable(from) || !isUsable(to))
        return false;
    context.addStroke({from, to});
    return true;
}

bool buildCircle(BuildContext &context, const TagList &tags)
{
    return addCircularArc(context, tags, 0.0, wholeTurn);
}

bool buildArc(BuildContext &context, const TagList &tags)
{
    const double start = tags.real(50) * radians;
    return addCircularArc(context, tags, start, sweepBetween(start, tags.real(51) * radians));
}

bool buildEllipse(BuildContext &context, const TagList &tags)
{
    const Vec3 center = tags.point(10);
    const Vec3 major = tags.point(11);
    const Vec3 normal = drawing::normalized(tags.point(210, {0.0, 0.0, 1.0}));
    const double ratio = tags.real(40, 1.0);
    const double start = tags.real(41, 0.0);
    const double end = tags.real(42, wholeTurn);
    if (!isUsable(center) || !isUsable(major) || !isUsable(normal) || !isUsable(ratio) || !isUsable(start) ||
        !isUsable(end)) {
        return false;
    }
    addArc(context, {.center = center,
                     .xAxis = major,
                     .yAxis = cross(normal, major) * ratio,
                     .start = start,
                     .sweep = sweepBetween(start, end)});
    return true;
}

bool buildSpline(BuildContext &context, const TagList &tags)
{
    // A turn of two degrees a piece looks round at any size that a screen or sheet shows it in.
    const drawing::Spline spline = drawing::shownSpline(tags);
    const std::size_t own = spline.controlPoints.size() + spline.fitPoints.size();
    Path path = drawing::splinePath(spline, context.flatness({.maximumAngle = 0.035, .maximumPieces = 4000}, own));
    context.charge(path.size(), own);
    if (path.size() < 2 || !std::ranges::all_of(path, [](const Vec3 &p) { return isUsable(p); }))
        return false;
    context.addStroke(std::move(path));
    return true;
}

/// A helix holds the spline that it looks like, and behind it, in codes that splines use, what it was made from.
bool buildHelix(BuildContext &context, const TagList &tags)
{
    if (buildSpline(context, tags))
        return true;
    const auto isHelix = [](const drawing::Tag &tag) { return tag.code == 100 && tag.trimmed() == "AcDbHelix"; };
    const auto marker = std::ranges::find_if(tags, isHelix);
    Path turns = helixPath(TagList({marker, tags.end()}, context.drawing.codec()));
    context.charge(turns.size(), 0);
    if (turns.size() < 2 || !areUsable(turns))
        return false;
    context.addStroke(std::move(turns));
    return true;
}

bool buildRay(BuildContext &context, const TagList &tags)
{
    return addEndless(context, tags, false);
}

bool buildXline(BuildContext &context, const TagList &tags)
{
    return addEndless(context, tags, true);
}

bool buildPoint(BuildContext &context, const TagList &tags)
{
    const Vec3 at = tags.point(10);
    if (!isUsable(at))
        return false;
    context.add(PointMark{.at = at, .isDot = context.isInBlock && isInDimension(context)});
    return true;
}

} // namespace host::view
