#include "host/commands/draw/LastEnd.h"

#include "host/commands/common/CircleGeometry.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/math/Matrix.h"
#include "host/drawing/records/PolylineFlags.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"

#include <cmath>

namespace host::kernel {

using drawing::TagList;
using drawing::Vec2;
using drawing::Vec3;

namespace {

LastEnd arcEnd(const TagList &tags, const Vec3 &lastPoint)
{
    const drawing::Matrix object = drawing::Matrix::fromExtrusion(tags.point(210, {0.0, 0.0, 1.0}));
    const auto at = [&](double degrees) {
        const Vec2 spoke = polar(degrees * drawing::radians, tags.real(40));
        return object.point(tags.point(10) + Vec3{spoke.x, spoke.y, 0.0});
    };
    const auto along = [&](double degrees, double sense) {
        const Vec2 tangent = turnedLeft(polar(degrees * drawing::radians, sense));
        return object.direction({tangent.x, tangent.y, 0.0});
    };
    const double start = tags.real(50);
    const double end = tags.real(51);
    if ((at(start) - lastPoint).length() < 1e-9 * (1.0 + lastPoint.length()))
        return {at(start), along(start, -1.0), true};
    return {at(end), along(end, 1.0), true};
}

std::optional<LastEnd> polylineEnd(const TagList &tags)
{
    std::vector<Vec2> points;
    std::vector<double> bulges;
    for (std::size_t i = 0; i < tags.own().size(); ++i) {
        if (tags[i].code == 10) {
            points.push_back(tags.pointAt(i).xy());
            bulges.push_back(0.0);
        } else if (tags[i].code == 42 && !bulges.empty()) {
            bulges.back() = tags[i].real().value_or(0.0);
        }
    }
    if (points.size() < 2 || (tags.integer(70) & drawing::FlagClosed) != 0)
        return {};
    const drawing::Matrix object = drawing::Matrix::fromExtrusion(tags.point(210, {0.0, 0.0, 1.0}));
    const std::size_t last = points.size() - 1;
    const Vec2 along = polar(arrivalDirection(points[last - 1], points[last], bulges[last - 1]), 1.0);
    return LastEnd{object.point({points[last].x, points[last].y, tags.real(38)}),
                   object.direction({along.x, along.y, 0.0}), bulges[last - 1] != 0.0};
}

} // namespace

std::optional<LastEnd> lastEnd(CommandContext &context)
{
    const drawing::Drawing &drawing = context.drawing();
    const std::vector<drawing::RecordId> entities = currentEntities(drawing);
    if (entities.empty())
        return {};
    const TagList tags = drawing.tags(entities.back());
    if (drawing.isType(entities.back(), "LINE"))
        return LastEnd{tags.point(11), tags.point(11) - tags.point(10), false};
    if (drawing.isType(entities.back(), "LWPOLYLINE"))
        return polylineEnd(tags);
    if (!drawing.isType(entities.back(), "ARC"))
        return {};
    const Vec3 last = context.document().variables().point(u"LASTPOINT");
    const OdGePoint3d world = context.document().userToWorld({last.x, last.y, last.z});
    return arcEnd(tags, {world.x, world.y, world.z});
}

} // namespace host::kernel
