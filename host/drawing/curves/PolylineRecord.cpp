#include "host/drawing/curves/PolylineRecord.h"

#include "host/drawing/records/EntityRules.h"
#include "host/drawing/records/PolylineFlags.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 keptPolylineFlags = 128; ///< the linetype runs through

/// What belongs to the entity as a whole and is the same in every type: layer, colour, linetype, extended data.
FieldList commonFields(const FieldList &fields, const QString &type)
{
    FieldList common = {{0, type}};
    const auto end = ownEnd(fields);
    std::copy_if(std::next(fields.begin()), end, std::back_inserter(common), [](const Field &field) {
        return isCommonCode(field.code) || field.code == 39 || field.code == 5 || field.code == 330;
    });
    return common;
}

CurveRecord lightRecord(const FieldList &fields, const CurveVertices &polyline, qint64 flags)
{
    CurveRecord record{commonFields(fields, u"LWPOLYLINE"_s), {}};
    FieldList &head = record.head;
    head.push_back({90, static_cast<qint64>(polyline.vertices.size())});
    head.push_back({70, (flags & keptPolylineFlags) | (polyline.isClosed ? FlagClosed : 0)});
    const double width = polyline.vertices.front().startWidth;
    const bool isEven = std::ranges::all_of(polyline.vertices, [&](const CurveVertex &vertex) {
        return vertex.startWidth == width && vertex.endWidth == width;
    });
    if (isEven)
        head.push_back({43, width});
    if (polyline.vertices.front().point.z != 0.0)
        head.push_back({38, polyline.vertices.front().point.z});
    for (const CurveVertex &vertex : polyline.vertices) {
        head.push_back({10, vertex.point.xy()});
        if (!isEven) {
            head.push_back({40, vertex.startWidth});
            head.push_back({41, vertex.endWidth});
        }
        head.push_back({42, vertex.bulge});
    }
    if (polyline.extrusion != Vec3{0, 0, 1})
        head.push_back({210, polyline.extrusion});
    head.insert(head.end(), ownEnd(fields), fields.end());
    return record;
}

CurveRecord heavyRecord(const FieldList &fields, const CurveVertices &polyline, qint64 flags)
{
    CurveRecord record{commonFields(fields, u"POLYLINE"_s), {}};
    FieldList properties = record.head;
    std::erase_if(properties, [](const Field &field) { return !isCommonCode(field.code) || field.code == 67; });
    FieldList &head = record.head;
    head.push_back({66, qint64(1)});
    head.push_back({10, Vec3{0, 0, polyline.isSpatial ? 0.0 : polyline.vertices.front().point.z}});
    head.push_back(
        {70, (flags & keptPolylineFlags) | (polyline.isClosed ? FlagClosed : 0) | (polyline.isSpatial ? Flag3d : 0)});
    if (polyline.extrusion != Vec3{0, 0, 1})
        head.push_back({210, polyline.extrusion});
    head.insert(head.end(), ownEnd(fields), fields.end());
    for (const CurveVertex &vertex : polyline.vertices) {
        FieldList child = {{0, u"VERTEX"_s}};
        child.insert(child.end(), properties.begin(), properties.end());
        child.push_back({10, vertex.point});
        if (!polyline.isSpatial) {
            child.push_back({40, vertex.startWidth});
            child.push_back({41, vertex.endWidth});
            child.push_back({42, vertex.bulge});
        }
        child.push_back({70, qint64(polyline.isSpatial ? Flag3dVertex : 0)});
        record.children.push_back(std::move(child));
    }
    return record;
}

/// A stretch of a polyline from one share of its way to another, as the vertex it begins with.
CurveVertex stretchFrom(const CurveVertex &vertex, double from, double to, const Vec3 &start)
{
    const auto width = [&](double share) {
        const double held = std::clamp(share, 0.0, 1.0);
        return vertex.startWidth + (vertex.endWidth - vertex.startWidth) * held;
    };
    return {start, vertex.bulge == 0.0 ? 0.0 : std::tan(std::atan(vertex.bulge) * (to - from)), width(from), width(to)};
}

} // namespace

CurveVertices verticesBetween(const CurveVertices &polyline, double from, double to)
{
    CurveVertices part = polyline;
    part.isClosed = false;
    part.vertices.clear();
    const std::vector<CurveVertex> &vertices = polyline.vertices;
    const auto count = static_cast<std::ptrdiff_t>(vertices.size());
    const std::ptrdiff_t stretches = polyline.isClosed ? count : count - 1;
    const std::ptrdiff_t rounds = polyline.isClosed ? 2 * stretches : stretches;
    constexpr double slack = 1e-12; // rounding makes no vertices
    for (std::ptrdiff_t i = 0; i < rounds; ++i) {
        const auto number = static_cast<double>(i);
        const bool isFirst = i == 0 && !polyline.isClosed;
        const bool isLast = i == stretches - 1 && !polyline.isClosed;
        const double begin = isFirst ? from : std::max(from, number);
        const double end = isLast ? to : std::min(to, number + 1.0);
        if (end - begin <= slack)
            continue;
        const CurveVertex &vertex = vertices[static_cast<size_t>(i % count)];
        const Vec3 &next = vertices[static_cast<size_t>((i + 1) % count)].point;
        const CurvePiece piece = bulgedPiece(vertex.point, next, polyline.isSpatial ? 0.0 : vertex.bulge, number);
        const bool isWhole = begin == number && end == number + 1.0;
        part.vertices.push_back(isWhole ? vertex
                                        : stretchFrom(vertex, begin - number, end - number, piece.point(begin)));
        if (begin == number)
            part.vertices.back().point = vertex.point;
        if (end >= to - slack) {
            part.vertices.push_back({end == number + 1.0 ? next : piece.point(end)});
            part.vertices.back().startWidth = part.vertices.back().endWidth =
                part.vertices[part.vertices.size() - 2].endWidth;
            break;
        }
    }
    return part;
}

CurveRecord polylineRecord(const Drawing &drawing, RecordId entity, const CurveVertices &polyline)
{
    const FieldList fields = drawing.fields(entity);
    const bool wasPolyline = drawing.isType(entity, "POLYLINE") || drawing.isType(entity, "LWPOLYLINE");
    const Field *flags = wasPolyline ? findField(fields, 70) : nullptr;
    const bool isHeavy =
        polyline.isSpatial || drawing.isType(entity, "POLYLINE") || (!wasPolyline && drawing.version() < Version::R14);
    return isHeavy ? heavyRecord(fields, polyline, flags ? flags->integer() : 0)
                   : lightRecord(fields, polyline, flags ? flags->integer() : 0);
}

} // namespace host::drawing
