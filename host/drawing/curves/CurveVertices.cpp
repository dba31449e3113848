#include "host/drawing/curves/CurveVertices.h"

#include "host/drawing/records/PolylineFlags.h"

namespace host::drawing {

namespace {

CurveVertices lightVertices(const TagList &tags)
{
    CurveVertices polyline;
    polyline.isClosed = (tags.integer(70) & FlagClosed) != 0;
    polyline.extrusion = tags.point(210, polyline.extrusion);
    const double elevation = tags.real(38);
    const double width = tags.real(43);
    std::vector<CurveVertex> &vertices = polyline.vertices;
    const size_t count = tags.own().size();
    for (size_t i = 0; i < count; ++i) {
        const Tag &tag = tags[i];
        if (tag.code == 10) {
            const Vec3 point = tags.pointAt(i);
            vertices.push_back({{point.x, point.y, elevation}, 0.0, width, width});
        } else if (!vertices.empty() && tag.code == 42) {
            vertices.back().bulge = tag.real().value_or(0.0);
        } else if (!vertices.empty() && tag.code == 40) {
            vertices.back().startWidth = tag.real().value_or(0.0);
        } else if (!vertices.empty() && tag.code == 41) {
            vertices.back().endWidth = tag.real().value_or(0.0);
        }
    }
    return polyline;
}

CurveVertices heavyVertices(const Drawing &drawing, RecordId entity, const TagList &tags)
{
    CurveVertices polyline;
    const qint64 flags = tags.integer(70);
    polyline.isClosed = (flags & FlagClosed) != 0;
    polyline.isSpatial = (flags & Flag3d) != 0;
    polyline.extrusion = polyline.isSpatial ? polyline.extrusion : tags.point(210, polyline.extrusion);
    // Some programs say the height in the vertices alone.
    const double elevation = tags.point(10).z;
    for (const RecordId child : drawing.children(entity)) {
        const TagList vertex = drawing.tags(child);
        if ((vertex.integer(70) & FlagFrameControl) != 0)
            continue;
        const Vec3 point = vertex.point(10);
        if (polyline.isSpatial)
            polyline.vertices.push_back({point});
        else
            polyline.vertices.push_back({{point.x, point.y, elevation != 0.0 ? elevation : point.z},
                                         vertex.real(42),
                                         vertex.real(40, tags.real(40)),
                                         vertex.real(41, tags.real(41))});
    }
    return polyline;
}

} // namespace

std::optional<CurveVertices> polylineVertices(const Drawing &drawing, RecordId entity)
{
    const TagList tags = drawing.tags(entity);
    if (drawing.isType(entity, "LWPOLYLINE"))
        return lightVertices(tags);
    const bool isMesh = (tags.integer(70) & (FlagMesh | FlagFaces)) != 0;
    if (!drawing.isType(entity, "POLYLINE") || isMesh)
        return {};
    return heavyVertices(drawing, entity, tags);
}

CurvePiece bulgedPiece(const Vec3 &from, const Vec3 &to, double bulge, double number)
{
    const BulgeArc arc = bulgeArc(from.xy(), to.xy(), bulge);
    if (!(arc.radius > 0.0) || !std::isfinite(arc.radius))
        return CurvePiece::straight(from, to, number, number + 1.0);
    return CurvePiece::round({arc.center.x, arc.center.y, from.z}, {arc.radius, 0, 0}, {0, arc.radius, 0},
                             arc.startAngle, arc.startAngle + arc.sweep, number, number + 1.0);
}

EntityCurve polylineCurve(const CurveVertices &polyline)
{
    const std::vector<CurveVertex> &vertices = polyline.vertices;
    if (polyline.isSpatial || vertices.size() == 1) {
        Path points;
        for (const CurveVertex &vertex : vertices)
            points.push_back(polyline.toWorld().point(vertex.point));
        return EntityCurve::through(points, polyline.isClosed);
    }
    const Matrix toWorld = polyline.toWorld();
    std::vector<CurvePiece> pieces;
    for (size_t i = 0; i < (polyline.isClosed ? vertices.size() : vertices.size() - 1); ++i) {
        const Vec3 &to = vertices[(i + 1) % vertices.size()].point;
        pieces.push_back(
            bulgedPiece(vertices[i].point, to, vertices[i].bulge, static_cast<double>(i)).transformed(toWorld));
    }
    return {EntityCurve::Kind::LightPolyline, std::move(pieces), polyline.isClosed, toWorld.zAxis};
}

} // namespace host::drawing
