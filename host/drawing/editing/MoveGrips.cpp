#include "host/drawing/editing/GripPoints.h"
#include "host/drawing/geometry/MultiLeaderFields.h"
#include "host/drawing/geometry/TransformEntity.h"
#include "host/drawing/geometry/TransformFields.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/math/Curves.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/records/PolylineFlags.h"

namespace host::drawing {

namespace {

/// What a grip of the role Shape does: the place that it goes to, in world coordinates.
struct GripMove
{
    Drawing &drawing;
    RecordId entity;
    const Grip &grip;
    Vec3 by;

    Vec3 place() const { return grip.point + by; }
    Matrix plane() const { return Matrix::fromExtrusion(drawing.tags(entity).point(210, {0.0, 0.0, 1.0})); }
    Vec3 placeInPlane() const { return plane().inverted().point(place()); }
    StretchOutcome set(const FieldList &fields) const
    {
        drawing.setFields(entity, fields);
        return StretchOutcome::Done;
    }
};

StretchOutcome outcomeOf(bool isDone)
{
    return isDone ? StretchOutcome::Done : StretchOutcome::Refused;
}

/// The bulge of the arc between two points that runs through a third one; 0 where that is on the straight line.
double bulgeThrough(Vec2 from, Vec2 through, Vec2 to)
{
    const Vec2 back = from - through;
    const Vec2 on = to - through;
    const double turn = std::atan2(cross(back, on), dot(back, on));
    if (turn == 0.0 || std::abs(cross(back, on)) < 1e-8 * back.length() * on.length())
        return 0.0;
    // The angle over the chord is half of the rest of the circle.
    const double half = std::numbers::pi - std::abs(turn);
    return std::copysign(std::tan(half / 2.0), -turn);
}

StretchOutcome reshapeCircle(const GripMove &move)
{
    FieldList fields = move.drawing.fields(move.entity);
    const double radius = (move.placeInPlane() - move.drawing.tags(move.entity).point(10)).xy().length();
    if (!(radius > 0.0))
        return StretchOutcome::Refused;
    setOwnField(fields, 40, radius);
    return move.set(fields);
}

// Between its ends through the place.
StretchOutcome reshapeArc(const GripMove &move)
{
    const TagList tags = move.drawing.tags(move.entity);
    const Vec3 center = tags.point(10);
    const auto at = [&](int code) {
        const double angle = tags.real(code) * radians;
        return center.xy() + Vec2{std::cos(angle), std::sin(angle)} * tags.real(40);
    };
    const double bulge = bulgeThrough(at(50), move.placeInPlane().xy(), at(51));
    const BulgeArc arc = bulgeArc(at(50), at(51), bulge);
    if (!(arc.radius > 0.0))
        return StretchOutcome::Refused;
    const double end = arc.startAngle + arc.sweep;
    const auto degrees = [](double angle) { return std::fmod(angle / radians + 720.0, 360.0); };
    FieldList fields = move.drawing.fields(move.entity);
    setOwnField(fields, 10, Vec3{arc.center.x, arc.center.y, center.z});
    setOwnField(fields, 40, arc.radius);
    setOwnField(fields, 50, degrees(arc.sweep < 0.0 ? end : arc.startAngle));
    setOwnField(fields, 51, degrees(arc.sweep < 0.0 ? arc.startAngle : end));
    return move.set(fields);
}

/// The end of an elliptical arc goes in the direction of the place.
StretchOutcome turnEllipseEnd(const GripMove &move, int code, const Vec3 &major, const Vec3 &minor)
{
    FieldList fields = move.drawing.fields(move.entity);
    const Vec3 to = move.place() - move.drawing.tags(move.entity).point(10);
    const double across = dot(to, minor) / dot(minor, minor);
    const double parameter = std::atan2(across, dot(to, major) / dot(major, major));
    setOwnField(fields, code, parameter < 0.0 ? parameter + 2.0 * std::numbers::pi : parameter);
    const bool isTurn = realOf(fields, 41) == realOf(fields, 42);
    return isTurn ? StretchOutcome::Refused : move.set(fields);
}

// An axis gets as long as the place is far; the longer one is the major axis then.
StretchOutcome reshapeEllipse(const GripMove &move)
{
    const TagList tags = move.drawing.tags(move.entity);
    const Vec3 normal = normalized(tags.point(210, {0.0, 0.0, 1.0}));
    Vec3 major = tags.point(11);
    Vec3 minor = cross(normal, major) * tags.real(40);
    if (!(major.length() > 0.0) || !(minor.length() > 0.0))
        return StretchOutcome::Refused;
    constexpr int firstEnd = 4;
    if (move.grip.index >= firstEnd)
        return turnEllipseEnd(move, move.grip.index == firstEnd ? 41 : 42, major, minor);
    const double reach = (move.place() - tags.point(10)).length();
    if (!(reach > 0.0))
        return StretchOutcome::Refused;
    Vec3 &axis = move.grip.index % 2 == 0 ? major : minor;
    axis = normalized(axis) * reach;
    if (minor.length() > major.length())
        major = std::exchange(minor, major * -1.0);
    FieldList fields = move.drawing.fields(move.entity);
    setOwnField(fields, 11, major);
    setOwnField(fields, 40, minor.length() / major.length());
    return move.set(fields);
}

StretchOutcome turnEndless(const GripMove &move)
{
    const Vec3 direction = move.place() - move.drawing.tags(move.entity).point(10);
    if (!(direction.length() > 0.0))
        return StretchOutcome::Refused;
    FieldList fields = move.drawing.fields(move.entity);
    setOwnField(fields, 11, normalized(direction));
    return move.set(fields);
}

// The round piece runs through the place.
StretchOutcome bendLight(const GripMove &move)
{
    FieldList fields = move.drawing.fields(move.entity);
    std::vector<std::size_t> vertices;
    for (std::size_t i = 0; i < fields.size() && !endsOwnGroups(fields[i]); ++i)
        if (fields[i].code == 10)
            vertices.push_back(i);
    const std::size_t first = std::size_t(move.grip.index);
    if (first >= vertices.size())
        return StretchOutcome::Refused;
    const Vec2 from = fields[vertices[first]].point().xy();
    const Vec2 to = fields[vertices[(first + 1) % vertices.size()]].point().xy();
    const double bulge = bulgeThrough(from, move.placeInPlane().xy(), to);
    for (std::size_t i = vertices[first] + 1; i < fields.size() && fields[i].code != 10; ++i) {
        if (fields[i].code != 42)
            continue;
        fields[i].value = bulge;
        return move.set(fields);
    }
    return StretchOutcome::Refused;
}

StretchOutcome bendOld(const GripMove &move)
{
    const std::vector<RecordId> vertices = move.drawing.children(move.entity);
    const std::size_t first = std::size_t(move.grip.index);
    if (first >= vertices.size())
        return StretchOutcome::Refused;
    const auto at = [&](std::size_t i) { return move.drawing.tags(vertices[i % vertices.size()]).point(10).xy(); };
    FieldList fields = move.drawing.fields(vertices[first]);
    setOwnField(fields, 42, bulgeThrough(at(first), move.placeInPlane().xy(), at(first + 1)));
    move.drawing.setFields(vertices[first], fields);
    return StretchOutcome::Done;
}

// The sides at a corner move one after the other: a side is caught by both of its corners.
StretchOutcome moveCorner(const GripMove &move)
{
    const Vec3 corner = move.grip.point;
    const auto isBeside = [&](double Vec3::*axis, double value) {
        return
            [axis, value](const Vec3 &point) { return std::abs(point.*axis - value) < 1e-9 * (1.0 + std::abs(value)); };
    };
    const StretchOutcome across =
        stretchEntity(move.drawing, move.entity, isBeside(&Vec3::x, corner.x), {move.by.x, 0.0, 0.0});
    const StretchOutcome up =
        stretchEntity(move.drawing, move.entity, isBeside(&Vec3::y, corner.y), {0.0, move.by.y, 0.0});
    const bool isRefused = across == StretchOutcome::Refused || up == StretchOutcome::Refused;
    return outcomeOf(!isRefused);
}

StretchOutcome movePart(const GripMove &move)
{
    return outcomeOf(transformEntity(move.drawing, move.grip.part, Matrix::translation(move.by)));
}

StretchOutcome moveMultiLeaderPoint(const GripMove &move)
{
    FieldList fields = move.drawing.fields(move.entity);
    if (move.grip.index < 0) {
        moveMultiLeaderContent(fields, move.by);
        return move.set(fields);
    }
    int index = 0;
    for (const MultiLeaderBranch &branch : multiLeaderBranches(fields))
        for (const MultiLeaderLine &line : branch.lines)
            for (std::size_t i = line.begin; i < line.end; ++i) {
                if (fields[i].code != 10 || index++ != move.grip.index)
                    continue;
                fields[i].value = move.place();
                return move.set(fields);
            }
    return StretchOutcome::Refused;
}

struct ReshapeRow
{
    const char *type;
    StretchOutcome (*reshape)(const GripMove &move);
};

constexpr ReshapeRow reshapeRows[] = {
    {"ARC", reshapeArc},    {"CIRCLE", reshapeCircle}, {"ELLIPSE", reshapeEllipse},
    {"INSERT", movePart},   {"LWPOLYLINE", bendLight}, {"MULTILEADER", moveMultiLeaderPoint},
    {"POLYLINE", bendOld},  {"RAY", turnEndless},      {"VIEWPORT", moveCorner},
    {"XLINE", turnEndless},
};

StretchOutcome reshape(const GripMove &move)
{
    const QByteArrayView type = move.drawing.typeName(move.entity);
    const auto row = std::ranges::find_if(reshapeRows, [&](const ReshapeRow &one) { return type == one.type; });
    return row == std::end(reshapeRows) ? StretchOutcome::Refused : row->reshape(move);
}

/// From now on the text of a dimension stays where the user has put it.
void keepTextPlace(Drawing &drawing, RecordId dimension)
{
    constexpr qint64 placedByUser = 128;
    FieldList fields = drawing.fields(dimension);
    setOwnField(fields, 70, drawing.tags(dimension).integer(70) | placedByUser);
    drawing.setFields(dimension, fields);
}

/// The points of Vertex and Middle grips, by STRETCH's rules.
StretchOutcome stretchHot(Drawing &drawing, RecordId entity, const std::vector<Grip> &hot, const Vec3 &by)
{
    std::vector<Vec3> points;
    for (const Grip &grip : hot) {
        if (grip.role == GripRole::Vertex)
            points.push_back(grip.point);
        else if (grip.role == GripRole::Middle)
            points.insert(points.end(), {grip.from, grip.to});
    }
    if (points.empty())
        return StretchOutcome::Nothing;
    const auto isCaught = [&points](const Vec3 &point) {
        return std::ranges::any_of(points, [&](const Vec3 &one) {
            return (one - point).length() <= 1e-9 * (1.0 + std::abs(one.x) + std::abs(one.y) + std::abs(one.z));
        });
    };
    const bool isDimension = drawing.typeName(entity).endsWith("DIMENSION");
    const Matrix plane = Matrix::fromExtrusion(drawing.tags(entity).point(210, {0.0, 0.0, 1.0}));
    if (isDimension && isCaught(plane.point(drawing.tags(entity).point(11))))
        keepTextPlace(drawing, entity);
    return stretchEntity(drawing, entity, isCaught, by);
}

} // namespace

StretchOutcome moveGrips(Drawing &drawing, RecordId entity, const IsCaught &isHot, const Vec3 &by)
{
    std::vector<Grip> hot = gripsOf(drawing, entity);
    std::erase_if(hot, [&](const Grip &grip) { return !isHot(grip.point); });
    if (hot.empty())
        return StretchOutcome::Nothing;
    const JournalGroup group(drawing.journal(), {});
    if (std::ranges::any_of(hot, [](const Grip &grip) { return grip.role == GripRole::Whole; }))
        return outcomeOf(transformEntity(drawing, entity, Matrix::translation(by)));
    StretchOutcome outcome = stretchHot(drawing, entity, hot, by);
    for (const Grip &grip : hot) {
        if (grip.role != GripRole::Shape || outcome == StretchOutcome::Refused)
            continue;
        outcome = reshape({drawing, entity, grip, by});
    }
    return outcome;
}

} // namespace host::drawing
