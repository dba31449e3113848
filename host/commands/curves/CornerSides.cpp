#include "host/commands/curves/CornerSides.h"

#include "host/commands/common/CircleGeometry.h"
#include "host/commands/common/EntityEdits.h"
#include "host/commands/common/UserPlane.h"
#include "host/drawing/math/Angles.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/running/CommandContext.h"

#include <QSet>

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::FieldList;
using drawing::RecordId;
using drawing::Vec2;
using drawing::Vec3;

namespace {

/// How far from an entity, in shares of its size, a point is no pick of it.
constexpr double farFromEntity = 0.25;

/// Where the entity was picked: an entity that a program names alone comes with the origin.
Vec3 pickPoint(const drawing::EntityCurve &curve, const PromptReply &picked)
{
    const bool isPoint = !(picked.point == Vec3{});
    if (isPoint || curve.isEndless())
        return picked.point;
    const double away = (curve.point(curve.closest(picked.point)) - picked.point).length();
    const double middle = curve.parameterAtDistance(curve.length() / 2.0).value_or(curve.startParameter());
    return away > curve.length() * farFromEntity ? curve.point(middle) : picked.point;
}

/// The stretch that lies nearest to the pick, among those that lie level in the user's plane.
std::optional<CornerSide> polylineSide(const UserPlane &plane, EditedPolyline polyline, const Vec3 &picked)
{
    CornerSide side;
    side.record = polyline.record;
    const drawing::Matrix world = polyline.toWorld();
    const std::size_t count = polyline.vertices.size();
    const auto user = [&](const Vec3 &object) { return plane.userFromWorld(world.point(object)); };
    const Vec3 up = user({0.0, 0.0, 1.0}) - user({});
    double least = std::numeric_limits<double>::infinity();
    const Vec2 at = plane.userFromWorld(picked).xy();
    for (std::size_t i = 0; i + (polyline.isClosed ? 0 : 1) < count; ++i) {
        const Vec3 from = user(polyline.vertices[i].point);
        const Vec3 to = user(polyline.vertices[(i + 1) % count].point);
        const double bulge = polyline.vertices[i].bulge;
        const double length = (to - from).xy().length();
        const bool isLevel = std::abs(to.z - from.z) <= 1e-9 * length && (bulge == 0.0 || up.xy().length() <= 1e-9);
        if (!(length > 0.0) || !isLevel)
            continue;
        const drawing::CurvePiece piece =
            drawing::bulgedPiece({from.x, from.y, 0.0}, {to.x, to.y, 0.0}, up.z < 0.0 ? -bulge : bulge, 0.0);
        const double away = (piece.point(piece.closest({at.x, at.y, 0.0})) - Vec3{at.x, at.y, 0.0}).length();
        if (!(away < least))
            continue;
        least = away;
        side.stretch = i;
        side.shape.isStraight = piece.shape() == drawing::CurvePiece::Shape::Straight;
        side.shape.point = side.shape.isStraight ? from.xy() : piece.center().xy();
        side.shape.direction = (to - from).xy() * (1.0 / length);
        side.shape.radius = side.shape.isStraight ? 0.0 : piece.xAxis().length();
        side.shape.height = from.z;
    }
    side.shape.picked = at;
    side.polyline = std::move(polyline);
    return std::isfinite(least) ? std::optional(side) : std::nullopt;
}

/// The entity's fields with the look that another has.
void takeLook(FieldList &fields, const FieldList &look)
{
    for (const int code : {8, 6, 62, 48, 370, 420})
        if (const drawing::Field *field = drawing::findField(look, code))
            fields.push_back(*field);
}

bool haveOneLook(const FieldList &first, const FieldList &second)
{
    const auto value = [](const FieldList &fields, int code) {
        const drawing::Field *field = drawing::findField(fields, code);
        return field ? std::optional(field->value) : std::nullopt;
    };
    return value(first, 8) == value(second, 8);
}

void trimStraight(CornerChanges &changes, const drawing::Drawing &drawing, const UserPlane &plane,
                  const CornerSide &side, Vec2 at, Vec2 kept)
{
    FieldList fields = drawing.fields(side.record);
    const Vec3 cut = plane.worldFromUser({at.x, at.y, side.shape.height});
    const auto along = [&](const Vec3 &world) { return dot(plane.userFromWorld(world).xy() - at, kept); };
    const Vec3 first = drawing::findField(fields, 10)->point();
    const Vec3 second = drawing::findField(fields, 11)->point();
    if (drawing.isType(side.record, "LINE")) {
        drawing::setField(fields, along(first) < along(second) ? 10 : 11, cut);
        return changes.setFields(side.record, fields);
    }
    // What is left of an endless line has an end now.
    const Vec3 direction = plane.worldFromUser({kept.x, kept.y, 0.0}) - plane.worldFromUser({});
    const bool isKeptEnd = drawing.isType(side.record, "RAY") && dot(direction, second) < 0.0;
    FieldList made = isKeptEnd ? FieldList{{0, u"LINE"_s}, {10, first}, {11, cut}}
                               : FieldList{{0, u"RAY"_s}, {10, cut}, {11, drawing::normalized(direction)}};
    changes.create(made, side.record, side.record);
    changes.erase(side.record);
}

void trimRound(CornerChanges &changes, const drawing::Drawing &drawing, const UserPlane &plane, const CornerSide &side,
               Vec2 at, Vec2 kept)
{
    FieldList fields = drawing.fields(side.record);
    const drawing::Field *normal = drawing::findField(fields, 210);
    const drawing::Matrix toObject =
        drawing::Matrix::fromExtrusion(normal ? normal->point() : Vec3{0.0, 0.0, 1.0}).inverted();
    const auto object = [&](Vec2 user) {
        return toObject.point(plane.worldFromUser({user.x, user.y, side.shape.height})).xy();
    };
    const Vec2 cut = object(at);
    const Vec2 spoke = cut - drawing::findField(fields, 10)->point().xy();
    const bool cutsEnd = cross(spoke, object(at + kept) - cut) < 0.0;
    drawing::setField(fields, cutsEnd ? 51 : 50, settledDegrees(std::atan2(spoke.y, spoke.x) / drawing::radians));
    changes.setFields(side.record, fields);
}

} // namespace

std::optional<CornerSide> cornerSide(const drawing::Drawing &drawing, const UserPlane &plane, const PromptReply &picked)
{
    const RecordId record = picked.entities.front();
    const std::optional<drawing::EntityCurve> curve = drawing::EntityCurve::ofEntity(drawing, record);
    if (!curve)
        return {};
    const Vec3 at = pickPoint(*curve, picked);
    if (std::optional<EditedPolyline> polyline = readPolyline(drawing, record))
        return polyline->isSpatial || polyline->smoothing != Smoothing::None ? std::nullopt
                                                                             : polylineSide(plane, *polyline, at);
    CornerSide side;
    side.record = record;
    side.isCircle = drawing.isType(record, "CIRCLE");
    if (curve->kind() == drawing::EntityCurve::Kind::Ray ||
        curve->kind() == drawing::EntityCurve::Kind::ConstructionLine) {
        const Vec3 from = plane.userFromWorld(curve->point(0.0));
        const Vec3 along = plane.userFromWorld(curve->point(1.0)) - from;
        if (std::abs(along.z) > 1e-9 * along.length())
            return {};
        side.shape.point = from.xy();
        side.shape.direction = along.xy() * (1.0 / along.xy().length());
        side.shape.height = from.z;
        side.shape.picked = plane.userFromWorld(at).xy();
        return side;
    }
    const std::optional<TangentLine> shape = tangentLine(drawing, record, plane, at);
    if (!shape)
        return {};
    side.shape = *shape;
    return side;
}

void CornerChanges::setFields(RecordId record, const FieldList &fields)
{
    m_changed.emplace_back(record, m_context.drawing().fields(record));
    m_context.drawing().setFields(record, fields);
}

void CornerChanges::erase(RecordId record)
{
    eraseAll(m_context, {record});
    m_erased.push_back(record);
}

void CornerChanges::store(EditedPolyline polyline)
{
    const RecordId before = polyline.record;
    const FieldList fields = m_context.drawing().fields(before);
    const StoredPolyline stored = storePolyline(m_context, polyline);
    if (!isValid(stored.record))
        return;
    if (stored.isNew) {
        m_made.push_back(stored.record);
        m_erased.push_back(before);
    } else {
        m_changed.emplace_back(before, fields);
    }
}

void CornerChanges::create(FieldList fields, RecordId first, RecordId second)
{
    const FieldList look = m_context.drawing().fields(first);
    const bool isCommon = first == second || haveOneLook(look, m_context.drawing().fields(second));
    if (!isCommon) {
        m_made.push_back(m_context.create(fields));
        return;
    }
    takeLook(fields, look);
    const drawing::CreateResult made = createOnCurrent(m_context.drawing(), fields);
    if (made)
        m_made.push_back(made.record);
    else
        m_context.print(u'\n' + made.error);
}

void CornerChanges::takeBack()
{
    for (auto change = m_changed.rbegin(); change != m_changed.rend(); ++change)
        m_context.drawing().setFields(change->first, change->second);
    std::erase_if(m_made, [](RecordId id) { return !isValid(id); });
    eraseAll(m_context, m_made);
    bringBack(m_context, m_erased);
}

void trimSide(CornerChanges &changes, const drawing::Drawing &drawing, const UserPlane &plane, const CornerSide &side,
              Vec2 at, Vec2 kept)
{
    if (side.isCircle)
        return;
    if (side.shape.isStraight)
        trimStraight(changes, drawing, plane, side, at, kept);
    else
        trimRound(changes, drawing, plane, side, at, kept);
}

} // namespace host::kernel
