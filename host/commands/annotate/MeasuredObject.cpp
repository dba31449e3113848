#include "host/commands/annotate/MeasuredObject.h"

#include "host/commands/common/UserPlane.h"
#include "host/drawing/geometry/EntityGeometry.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/math/Curves.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"

#include <cmath>

namespace host::kernel {

using drawing::Drawing;
using drawing::Matrix;
using drawing::RecordId;
using drawing::TagList;
using drawing::Vec3;

namespace {

struct PolylineCorner
{
    Vec3 point;
    double bulge = 0.0;
};

Matrix planeOfRecord(const TagList &tags)
{
    return Matrix::fromExtrusion(tags.point(210, {0.0, 0.0, 1.0}));
}

MeasuredObject arcObject(const Matrix &plane, const Vec3 &center, double radius, double start, double end)
{
    const auto at = [&](double angle) {
        return plane.point(center + Vec3{radius * std::cos(angle), radius * std::sin(angle), 0.0});
    };
    return {.first = at(start), .second = at(end), .center = plane.point(center), .radius = radius, .plane = plane};
}

/// In object coordinates; empty for meshes and polylines in space.
std::vector<PolylineCorner> cornersOf(const Drawing &drawing, RecordId polyline, const TagList &tags)
{
    std::vector<PolylineCorner> corners;
    if (drawing.isType(polyline, "LWPOLYLINE")) {
        const double height = tags.real(38);
        for (const drawing::Field &field : tags.fields()) {
            if (drawing::endsOwnGroups(field))
                break;
            if (field.code == 10)
                corners.push_back({{field.point().x, field.point().y, height}});
            else if (field.code == 42 && !corners.empty())
                corners.back().bulge = field.real();
        }
        return corners;
    }
    if ((tags.integer(70) & (8 | 16 | 64)) != 0)
        return corners;
    for (const RecordId vertex : drawing.children(polyline)) {
        const TagList own = drawing.tags(vertex);
        if ((own.integer(70) & 16) == 0)
            corners.push_back({own.point(10), own.real(42)});
    }
    return corners;
}

MeasuredObject pieceObject(const Matrix &plane, const PolylineCorner &from, const PolylineCorner &to)
{
    const drawing::BulgeArc arc = drawing::bulgeArc(from.point.xy(), to.point.xy(), from.bulge);
    if (arc.radius == 0.0)
        return {.first = plane.point(from.point), .second = plane.point(to.point)};
    const double end = arc.startAngle + arc.sweep;
    const Vec3 center{arc.center.x, arc.center.y, from.point.z};
    return arc.sweep > 0.0 ? arcObject(plane, center, arc.radius, arc.startAngle, end)
                           : arcObject(plane, center, arc.radius, end, arc.startAngle);
}

std::optional<MeasuredObject> nearestPiece(const Drawing &drawing, RecordId polyline, const TagList &tags,
                                           const Vec3 &pickedAt)
{
    const Matrix plane = planeOfRecord(tags);
    const std::vector<PolylineCorner> corners = cornersOf(drawing, polyline, tags);
    const bool isClosed = (tags.integer(70) & 1) != 0;
    std::optional<MeasuredObject> nearest;
    double least = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i + (isClosed ? 0 : 1) < corners.size(); ++i) {
        const PolylineCorner &to = corners[(i + 1) % corners.size()];
        drawing::Path path = {corners[i].point};
        drawing::appendBulge(path, corners[i].point, to.point, corners[i].bulge);
        for (Vec3 &point : path)
            point = plane.point(point);
        const double distance = drawing::flatDistance({.pieces = {{.points = path}}}, pickedAt.xy());
        if (distance < least && !(corners[i].point == to.point)) {
            least = distance;
            nearest = pieceObject(plane, corners[i], to);
        }
    }
    return nearest;
}

} // namespace

std::optional<MeasuredObject> measuredObject(const Drawing &drawing, RecordId entity, const Vec3 &pickedAt)
{
    const TagList tags = drawing.tags(entity);
    const QByteArrayView type = drawing.typeName(entity);
    if (type == "LINE")
        return MeasuredObject{.first = tags.point(10), .second = tags.point(11)};
    if (type == "LWPOLYLINE" || type == "POLYLINE")
        return nearestPiece(drawing, entity, tags, pickedAt);
    if ((type != "CIRCLE" && type != "ARC") || !(tags.real(40) > 0.0))
        return std::nullopt;
    const double start = type == "ARC" ? tags.real(50) * drawing::radians : 0.0;
    const double end = type == "ARC" ? tags.real(51) * drawing::radians : 0.0;
    MeasuredObject object = arcObject(planeOfRecord(tags), tags.point(10), tags.real(40), start, end);
    object.isCircle = type == "CIRCLE";
    return object;
}

bool isInUserPlane(CommandContext &context, const MeasuredObject &round)
{
    const UserPlane plane(context.document());
    const Vec3 up = plane.worldFromUser({0.0, 0.0, 1.0}) - plane.worldFromUser({});
    if (std::abs(dot(up, round.plane.zAxis)) > 1.0 - 1e-6)
        return true;
    context.fail(Commands::tr("The object is not parallel to the current UCS."));
    return false;
}

} // namespace host::kernel
