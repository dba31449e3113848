// Which points and curves of an entity snaps look at.

#include "host/drawing/geometry/EntityGeometry.h"
#include "host/drawing/geometry/SnapPoints.h"

#include <algorithm>

namespace host::drawing {

namespace {

/// More than a mesh that anybody works in has; the rest of its edges are not found.
constexpr std::size_t mostEdges = 5000;

bool isOneOf(QByteArrayView type, std::initializer_list<const char *> names)
{
    return std::ranges::any_of(names, [type](const char *name) { return type == QByteArrayView(name); });
}

/// Where texts, blocks and pictures stand.
std::vector<Vec3> insertionsOf(QByteArrayView type, const TagList &tags)
{
    const Matrix axes = Matrix::fromExtrusion(tags.point(210, {0.0, 0.0, 1.0}));
    if (isOneOf(type, {"MTEXT", "TOLERANCE", "IMAGE", "WIPEOUT"}))
        return {tags.point(10)};
    if (isOneOf(type, {"INSERT", "SHAPE"}))
        return {axes.point(tags.point(10))};
    if (!isOneOf(type, {"TEXT", "ATTRIB", "ATTDEF"}))
        return {};
    // Justified texts stand at their second point; those between two points at both.
    const auto horizontal = tags.integer(72);
    const bool isJustified = horizontal != 0 || tags.integer(type == QByteArrayView("TEXT") ? 73 : 74) != 0;
    const bool isBetween = horizontal == 3 || horizontal == 5;
    std::vector<Vec3> points;
    if (!isJustified || isBetween)
        points.push_back(axes.point(tags.point(10)));
    if (isJustified)
        points.push_back(axes.point(tags.point(11)));
    return points;
}

/// Entities whose edges are straight lines between corners.
bool hasEdges(QByteArrayView type)
{
    return isOneOf(type, {"3DFACE", "SOLID", "TRACE", "VIEWPORT", "IMAGE", "WIPEOUT", "MLINE", "POLYLINE", "MESH"});
}

void addEdges(SnapTarget &target, const Drawing &drawing, RecordId entity, const Matrix &toWorld, WorkBudget &work)
{
    const Outline outline = entityOutline(drawing, entity, work, {}, toWorld);
    for (const Outline::Piece &piece : outline.pieces) {
        if (piece.points.size() > 1 && target.curves.size() < mostEdges)
            target.curves.push_back(EntityCurve::through(piece.points));
    }
}

bool hasFinitePoints(const std::vector<Vec3> &points)
{
    return std::ranges::all_of(
        points, [](const Vec3 &p) { return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z); });
}

} // namespace

SnapTarget snapTarget(const Drawing &drawing, RecordId entity, const Matrix &toWorld, WorkBudget &work)
{
    SnapTarget target;
    const QByteArrayView type = drawing.typeName(entity);
    const TagList tags = drawing.tags(entity);
    target.insertions = insertionsOf(type, tags);
    if (type == QByteArrayView("POINT"))
        target.nodes.push_back(tags.point(10));
    for (std::vector<Vec3> *points : {&target.insertions, &target.nodes}) {
        if (!hasFinitePoints(*points))
            points->clear();
        std::ranges::transform(*points, points->begin(), [&](const Vec3 &p) { return toWorld.point(p); });
    }
    if (const std::optional<EntityCurve> curve = EntityCurve::ofEntity(drawing, entity))
        target.curves.push_back(curve->transformed(toWorld));
    else if (hasEdges(type))
        addEdges(target, drawing, entity, toWorld, work);
    return target;
}

} // namespace host::drawing
