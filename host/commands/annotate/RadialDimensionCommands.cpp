#include "host/commands/Commands.h"
#include "host/commands/annotate/MeasuredObject.h"
#include "host/commands/annotate/NewDimension.h"
#include "host/drawing/annotation/StyleValues.h"
#include "host/drawing/records/Tables.h"
#include "host/kernel/documents/Document.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::FieldList;
using drawing::Vec2;
using drawing::Vec3;

namespace {

/// A circle or arc in the plane of its own; nothing when the dialogue ended without one.
Dialogue<std::optional<MeasuredObject>> askRound(CommandContext &context, QString prompt)
{
    for (;;) {
        const PromptReply picked = co_await context.entity(prompt);
        if (picked.entities.empty()) {
            if (!picked.isMiss)
                co_return std::nullopt;
            continue;
        }
        const auto object = measuredObject(context.drawing(), picked.entities.front(), picked.point);
        if (object && !object->isStraight())
            co_return object;
        if (context.refuse(u"Object selected is not a circle or arc."_s))
            co_return std::nullopt;
    }
}

/// The point of the circle towards a place; along the user's x from the centre itself.
Vec3 pointTowards(const MeasuredObject &round, const UserPlane &plane, const Vec3 &place)
{
    const Vec3 center = plane.userFromWorld(round.center);
    const Vec2 away = plane.userFromWorld(place).xy() - center.xy();
    const double length = away.length();
    const Vec2 out = length > 0.0 ? away * (round.radius / length) : Vec2{round.radius, 0.0};
    return center + Vec3{out.x, out.y, 0.0};
}

Vec3 placeOfText(const UserPlane &plane, const Vec3 &place, const Vec3 &center)
{
    Vec3 at = plane.objectFromWorld(place);
    at.z = plane.objectFromWorld(center).z;
    return at;
}

/// Whether a circle can be shown in the user's plane as what it is.
bool isInUserPlane(CommandContext &context, const MeasuredObject &round, const UserPlane &plane)
{
    const Vec3 up = plane.worldFromUser({0.0, 0.0, 1.0}) - plane.worldFromUser({});
    if (std::abs(dot(up, round.plane.zAxis)) > 1.0 - 1e-6)
        return true;
    context.fail(u"The object is not parallel to the current UCS."_s);
    return false;
}

enum class RoundMeasure
{
    Diameter = 3,
    Radius = 4
};

Dialogue<bool> dimensionRound(CommandContext &context, RoundMeasure measure)
{
    const UserPlane plane(context.document());
    const std::optional<MeasuredObject> round = co_await askRound(context, u"Select arc or circle: "_s);
    if (!round || !isInUserPlane(context, *round, plane))
        co_return false;
    const bool isRadius = measure == RoundMeasure::Radius;
    DimensionAnswers answers;
    const QString measured = context.shownLength(round->radius * (isRadius ? 1.0 : 2.0));
    const LineQuestion question{u"Specify dimension line location or [Mtext/Text/Angle]: "_s, round->center, measured};
    const PromptReply place = co_await askDimensionLine(context, question, answers);
    const Vec3 center = plane.userFromWorld(round->center);
    const Vec3 near = pointTowards(*round, plane, place.point);
    const Vec3 far = center * 2.0 - near;
    const FieldList fields = {{0, u"DIMENSION"_s},
                              {10, plane.worldFromUser(isRadius ? center : far)},
                              {11, placeOfText(plane, place.point, round->center)},
                              {70, qint64(measure)},
                              {15, plane.worldFromUser(near)},
                              {40, 0.0}};
    createDimension(context, fields, answers);
    co_return true;
}

// An arc or circle, then where the line goes.
CommandTask radiusDimension(CommandContext &context)
{
    co_await dimensionRound(context, RoundMeasure::Radius);
}

CommandTask diameterDimension(CommandContext &context)
{
    co_await dimensionRound(context, RoundMeasure::Diameter);
}

/// The size of centre marks: DIMCEN with DIMSCALE, as header or style say.
double centerMarkSize(CommandContext &context)
{
    drawing::Drawing &drawing = context.drawing();
    const auto style = drawing.tables().find(drawing::TableKind::DimStyle, currentDimensionStyle(context));
    const FieldList fields = drawing.fields(style);
    const auto value = [&](QStringView name) {
        const drawing::DimensionVariable &variable = *drawing::dimensionVariable(name);
        return valueInHeader(drawing, variable).value_or(valueInStyle(drawing, fields, variable)).real();
    };
    const double scale = value(u"DIMSCALE");
    return value(u"DIMCEN") * (scale > 0.0 ? scale : 1.0);
}

// An arc or circle: a cross at its centre, with lines past the circle where DIMCEN is negative.
CommandTask centerMark(CommandContext &context)
{
    const std::optional<MeasuredObject> round = co_await askRound(context, u"Select arc or circle: "_s);
    if (!round)
        co_return;
    const double size = centerMarkSize(context);
    const double length = std::abs(size);
    if (length == 0.0) {
        context.fail(u"DIMCEN is 0: there is no centre mark."_s);
        co_return;
    }
    const UserPlane plane(context.document());
    const Vec3 center = plane.userFromWorld(round->center);
    const auto addLine = [&](const Vec3 &from, const Vec3 &to) {
        context.create({{0, u"LINE"_s}, {10, plane.worldFromUser(from)}, {11, plane.worldFromUser(to)}});
    };
    for (const Vec3 along : {Vec3{1.0, 0.0, 0.0}, Vec3{0.0, 1.0, 0.0}}) {
        addLine(center - along * length, center + along * length);
        if (size > 0.0 || round->radius <= 2.0 * length)
            continue;
        addLine(center + along * (2.0 * length), center + along * (round->radius + length));
        addLine(center - along * (2.0 * length), center - along * (round->radius + length));
    }
}

} // namespace

std::vector<CommandRow> radialDimensionCommands()
{
    return {{"CENTERMARK", centerMark, "Marks the centre of a circle or arc"},
            {"DIMCENTER", centerMark, "Marks the centre of a circle or arc"},
            {"DIMDIAMETER", diameterDimension, "Dimensions the diameter of a circle or arc"},
            {"DIMRADIUS", radiusDimension, "Dimensions the radius of a circle or arc"}};
}

} // namespace host::kernel
