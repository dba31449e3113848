#include "host/commands/curves/EditedPolyline.h"

#include "host/commands/common/EntityEdits.h"
#include "host/commands/curves/PolylineSmoothing.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/records/PolylineFlags.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/running/CommandContext.h"

#include <QSet>

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::Field;
using drawing::FieldList;
using drawing::RecordId;
using drawing::TagList;
using drawing::Vec3;

namespace {

constexpr qint64 dashedAcross = 128; ///< group 70
/// What belongs to an LWPOLYLINE's shape rather than to its look.
const QSet<int> &shapeCodes()
{
    static const QSet<int> codes = {10, 38, 40, 41, 42, 43, 70, 90, 91};
    return codes;
}

/// Layer, colour and the like, and the thickness.
FieldList lookOfEntity(const FieldList &fields)
{
    static const QSet<int> codes = {6, 8, 39, 48, 60, 62, 370, 420, 430, 440};
    FieldList look;
    for (auto field = fields.begin(), end = drawing::ownEnd(fields); field != end; ++field)
        if (codes.contains(field->code))
            look.push_back(*field);
    return look;
}

/// The corners of an old polyline: of a smoothed one those that it was smoothed from.
void readOldVertices(const drawing::Drawing &drawing, RecordId entity, EditedPolyline &polyline)
{
    constexpr qint64 madeByArcs = 1;
    constexpr qint64 hasTangent = 2;
    constexpr qint64 madeBySpline = 8;
    for (const RecordId child : drawing.children(entity)) {
        const TagList tags = drawing.tags(child);
        const qint64 flags = tags.integer(70);
        if ((flags & (madeByArcs | madeBySpline)) != 0)
            continue;
        EditedVertex vertex;
        vertex.point = tags.point(10);
        vertex.bulge = polyline.smoothing == Smoothing::None ? tags.real(42) : 0.0;
        vertex.startWidth = tags.real(40);
        vertex.endWidth = tags.real(41);
        if ((flags & hasTangent) != 0)
            vertex.tangent = tags.real(50) * drawing::radians;
        polyline.vertices.push_back(vertex);
    }
}

FieldList lightFields(const EditedPolyline &polyline)
{
    qint64 flags = polyline.isClosed ? qint64(drawing::FlagClosed) : 0;
    flags |= polyline.isDashedAcross ? dashedAcross : 0;
    FieldList fields = {{90, qint64(polyline.vertices.size())}, {70, flags}, {38, polyline.vertices.front().point.z}};
    for (const EditedVertex &vertex : polyline.vertices) {
        fields.push_back({10, vertex.point.xy()});
        fields.push_back({40, vertex.startWidth});
        fields.push_back({41, vertex.endWidth});
        fields.push_back({42, vertex.bulge});
    }
    return fields;
}

/// The shape's fields in place of those that the record has.
FieldList withShape(const FieldList &fields, const FieldList &shape)
{
    FieldList result(fields.begin(), drawing::ownEnd(fields));
    std::erase_if(result, [](const Field &field) { return shapeCodes().contains(field.code); });
    result.insert(result.end(), shape.begin(), shape.end());
    result.insert(result.end(), drawing::ownEnd(fields), fields.end());
    return result;
}

StoredPolyline storeAnew(CommandContext &context, const EditedPolyline &polyline, const FieldList &head,
                         const std::vector<FieldList> &children)
{
    FieldList fields = head;
    fields.insert(fields.end(), polyline.look.begin(), polyline.look.end());
    if (!polyline.isSpatial && polyline.extrusion != Vec3{0.0, 0.0, 1.0})
        fields.push_back({210, polyline.extrusion});
    if (isValid(polyline.record)) {
        const FieldList before = context.drawing().fields(polyline.record);
        fields.insert(fields.end(), drawing::ownEnd(before), before.end());
    }
    const drawing::CreateResult made = createOnCurrent(context.drawing(), fields, children);
    if (!made) {
        context.print(u'\n' + made.error);
        return {};
    }
    if (isValid(polyline.record))
        eraseAll(context, {polyline.record});
    return {made.record, true};
}

/// A VERTEX for each corner of an old polyline, and for each that smoothing adds.
std::vector<FieldList> oldVertices(const EditedPolyline &polyline, const SplineSmoothing &spline)
{
    const qint64 kind = polyline.isSpatial ? qint64(drawing::Flag3dVertex) : 0;
    std::vector<FieldList> children;
    for (const SmoothVertex &vertex : smoothed(polyline, spline)) {
        FieldList fields = {{0, u"VERTEX"_s},      {10, vertex.point}, {40, vertex.startWidth},
                            {41, vertex.endWidth}, {42, vertex.bulge}, {70, vertex.flags | kind}};
        if (vertex.tangent)
            fields.push_back({50, *vertex.tangent / drawing::radians});
        children.push_back(std::move(fields));
    }
    return children;
}

StoredPolyline storeOld(CommandContext &context, const EditedPolyline &polyline)
{
    const SplineSmoothing spline = SplineSmoothing::of(context);
    qint64 flags = polyline.isClosed ? qint64(drawing::FlagClosed) : 0;
    flags |= polyline.isSpatial ? qint64(drawing::Flag3d) : 0;
    flags |= polyline.isDashedAcross ? dashedAcross : 0;
    flags |= static_cast<qint64>(polyline.smoothing);
    FieldList head = {{0, u"POLYLINE"_s},
                      {66, qint64(1)},
                      {10, Vec3{0.0, 0.0, polyline.isSpatial ? 0.0 : polyline.vertices.front().point.z}},
                      {70, flags}};
    if (polyline.smoothing == Smoothing::Spline)
        head.push_back({75, spline.kind()});
    return storeAnew(context, polyline, head, oldVertices(polyline, spline));
}

} // namespace

Vec3 EditedPolyline::fromWorld(const Vec3 &world) const
{
    Vec3 point = toWorld().inverted().point(world);
    if (!isSpatial && !vertices.empty())
        point.z = vertices.front().point.z;
    return point;
}

void EditedPolyline::reverse()
{
    std::vector<EditedVertex> turned(vertices.rbegin(), vertices.rend());
    const std::size_t count = turned.size();
    for (std::size_t i = 0; i < count; ++i) {
        // The stretch behind a vertex was the one in front of it.
        const EditedVertex &before = vertices[(2 * count - 2 - i) % count];
        turned[i].bulge = -before.bulge;
        turned[i].startWidth = before.endWidth;
        turned[i].endWidth = before.startWidth;
        if (turned[i].tangent)
            *turned[i].tangent += M_PI;
    }
    vertices = std::move(turned);
}

std::optional<EditedPolyline> readPolyline(const drawing::Drawing &drawing, RecordId entity)
{
    const std::optional<drawing::CurveVertices> shown = drawing::polylineVertices(drawing, entity);
    if (!shown)
        return {};
    EditedPolyline polyline;
    polyline.record = entity;
    polyline.isClosed = shown->isClosed;
    polyline.isSpatial = shown->isSpatial;
    polyline.extrusion = shown->extrusion;
    polyline.isLight = drawing.isType(entity, "LWPOLYLINE");
    polyline.look = lookOfEntity(drawing.fields(entity));
    const qint64 flags = drawing.tags(entity).integer(70);
    polyline.isDashedAcross = (flags & dashedAcross) != 0;
    if (polyline.isLight) {
        for (const drawing::CurveVertex &vertex : shown->vertices)
            polyline.vertices.push_back({vertex});
    } else {
        polyline.smoothing = (flags & qint64(Smoothing::Spline)) != 0 ? Smoothing::Spline
                             : (flags & qint64(Smoothing::Arcs)) != 0 ? Smoothing::Arcs
                                                                      : Smoothing::None;
        readOldVertices(drawing, entity, polyline);
        if (!polyline.isSpatial)
            for (EditedVertex &vertex : polyline.vertices)
                vertex.point.z = drawing.tags(entity).point(10).z;
    }
    return polyline.vertices.empty() ? std::nullopt : std::optional(std::move(polyline));
}

std::optional<EditedPolyline> polylineLike(const drawing::Drawing &drawing, RecordId entity, const Vec3 &normal)
{
    const TagList tags = drawing.tags(entity);
    EditedPolyline polyline;
    polyline.look = lookOfEntity(drawing.fields(entity));
    polyline.isLight = drawing.version() >= drawing::Version::R14;
    polyline.extrusion = drawing.isType(entity, "ARC") ? tags.point(210, {0.0, 0.0, 1.0}) : normal;
    const drawing::Matrix toObject = drawing::Matrix::fromExtrusion(polyline.extrusion).inverted();
    const auto add = [&](const Vec3 &world, double bulge) {
        polyline.vertices.push_back({{toObject.point(world), bulge, 0.0, 0.0}});
    };
    if (drawing.isType(entity, "LINE")) {
        add(tags.point(10), 0.0);
        add(tags.point(11), 0.0);
    } else if (drawing.isType(entity, "ARC")) {
        const std::optional<drawing::EntityCurve> arc = drawing::EntityCurve::ofEntity(drawing, entity);
        if (!arc)
            return {};
        add(arc->startPoint(), std::tan((arc->endParameter() - arc->startParameter()) / 4.0));
        add(arc->endPoint(), 0.0);
    } else if (drawing.isType(entity, "SPLINE")) {
        for (const Vec3 &point : drawing::splinePath(drawing::shownSpline(tags)))
            add(point, 0.0);
    }
    const auto isLevel = [&](const EditedVertex &vertex) {
        return std::abs(vertex.point.z - polyline.vertices.front().point.z) < 1e-6;
    };
    const bool isFlat = polyline.vertices.size() > 1 && std::ranges::all_of(polyline.vertices, isLevel);
    return isFlat ? std::optional(std::move(polyline)) : std::nullopt;
}

StoredPolyline storePolyline(CommandContext &context, const EditedPolyline &polyline)
{
    if (!polyline.isLight || polyline.smoothing != Smoothing::None || polyline.isSpatial)
        return storeOld(context, polyline);
    const FieldList shape = lightFields(polyline);
    if (!isValid(polyline.record) || !context.drawing().isType(polyline.record, "LWPOLYLINE")) {
        FieldList head = {{0, u"LWPOLYLINE"_s}};
        head.insert(head.end(), shape.begin(), shape.end());
        return storeAnew(context, polyline, head, {});
    }
    const QString error = context.drawing().entities().modify(
        polyline.record, withShape(context.drawing().fields(polyline.record), shape));
    if (!error.isEmpty())
        context.print(u'\n' + error);
    return {error.isEmpty() ? polyline.record : drawing::noRecord, false};
}

} // namespace host::kernel
