#include "host/commands/Commands.h"
#include "host/commands/annotate/DimensionDialogues.h"
#include "host/commands/annotate/MeasuredObject.h"
#include "host/drawing/annotation/StyleValues.h"
#include "host/drawing/records/Tables.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/input/Units.h"
#include "host/kernel/languages/Texts.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::FieldList;
using drawing::Vec2;
using drawing::Vec3;

namespace {

struct PickedRound
{
    MeasuredObject object{};
    Vec3 at{}; ///< where it was picked
};

/// A circle or arc in the plane of its own; nothing when the dialogue ended without one.
Dialogue<std::optional<PickedRound>> askRound(CommandContext &context, QString prompt)
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
            co_return PickedRound{*object, picked.point};
        if (context.refuse(Commands::tr("Object selected is not a circle or arc.")))
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

/// How far behind the circle a text is that a length was typed for, or a place; at the pick for an empty answer.
Dialogue<Vec3> askLeaderEnd(CommandContext &context, MeasuredObject round, Vec3 pickedAt)
{
    const UserPlane plane(context.document());
    const Vec3 near = pointTowards(round, plane, pickedAt);
    const PromptReply reply =
        co_await context.point(Commands::tr("Specify dimension line location or leader length for text: "), {},
                               plane.worldFromUser(near), {}, AnyText);
    if (reply.hasValue())
        co_return reply.point;
    const auto length = UnitFormat::of(context.document().variables()).parseLength(reply.text.trimmed());
    const Vec3 center = plane.userFromWorld(round.center);
    const Vec3 out = drawing::normalized(near - center);
    co_return plane.worldFromUser(near + out * length.value_or(0.0));
}

/// What the option-style dialogue and that of the dimension mode ask behind the circle: text and place, the other way
/// round in the latter.
Dialogue<Vec3> askRoundPlace(CommandContext &context, PickedRound round, QString measured, TextAsked asked,
                             DimensionAnswers &answers)
{
    if (co_await askTextBehind(context, asked, measured, answers))
        co_return co_await askLeaderEnd(context, round.object, round.at);
    const LineQuestion question{Commands::tr("Specify dimension line location or [Mtext/Text/Angle]: "),
                                round.object.center, measured};
    const PromptReply place = co_await askDimensionLine(context, question, answers);
    co_return place.point;
}

CommandTask radiusDimension(CommandContext &context)
{
    co_await dimensionRound(context, RoundMeasure::Radius, TextAsked::AsOption);
}

CommandTask diameterDimension(CommandContext &context)
{
    co_await dimensionRound(context, RoundMeasure::Diameter, TextAsked::AsOption);
}

// An arc or circle, a point that stands in for its centre, where the line goes and where it jogs.
CommandTask joggedDimension(CommandContext &context)
{
    constexpr qint64 withMovedText = 9 | 128;
    if (context.drawing().version() < drawing::Version::R2004) {
        context.fail(
            Commands::tr("A drawing of this version has no jogged dimensions of radii: they come with R2004."));
        co_return;
    }
    const UserPlane plane(context.document());
    const std::optional<PickedRound> round = co_await askRound(context, Commands::tr("Select arc or circle: "));
    if (!round || !isInUserPlane(context, round->object))
        co_return;
    const MeasuredObject &object = round->object;
    const PromptReply center = co_await context.neededPoint(Commands::tr("Specify center location override: "));
    DimensionAnswers answers;
    const LineQuestion question{Commands::tr("Specify dimension line location or [Mtext/Text/Angle]: "), center.point,
                                context.shownLength(object.radius)};
    const PromptReply place = co_await askDimensionLine(context, question, answers);
    const PromptReply jog = co_await context.neededPoint(Commands::tr("Specify jog location: "));
    createDimension(context,
                    {{0, u"LARGE_RADIAL_DIMENSION"_s},
                     {10, object.center},
                     {11, placeOfText(plane, place.point, object.center)},
                     {70, withMovedText},
                     {100, u"AcDbRadialDimensionLarge"_s},
                     {13, center.point},
                     {14, jog.point},
                     {15, plane.worldFromUser(pointTowards(object, plane, place.point))},
                     {40, 0.0}},
                    answers);
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

CommandTask centerMark(CommandContext &context)
{
    co_await markCenter(context);
}

} // namespace

Dialogue<bool> dimensionRound(CommandContext &context, RoundMeasure measure, TextAsked asked)
{
    const UserPlane plane(context.document());
    const std::optional<PickedRound> round = co_await askRound(context, Commands::tr("Select arc or circle: "));
    if (!round || !isInUserPlane(context, round->object))
        co_return false;
    const bool isRadius = measure == RoundMeasure::Radius;
    DimensionAnswers answers;
    const QString measured = context.shownLength(round->object.radius * (isRadius ? 1.0 : 2.0));
    const Vec3 place = co_await askRoundPlace(context, *round, measured, asked, answers);
    const Vec3 center = plane.userFromWorld(round->object.center);
    const Vec3 near = pointTowards(round->object, plane, place);
    const Vec3 far = center * 2.0 - near;
    const FieldList fields = {{0, u"DIMENSION"_s},
                              {10, plane.worldFromUser(isRadius ? center : far)},
                              {11, placeOfText(plane, place, round->object.center)},
                              {70, qint64(measure)},
                              {15, plane.worldFromUser(near)},
                              {40, 0.0}};
    co_return isValid(createDimension(context, fields, answers));
}

// An arc or circle: a cross at its centre, with lines past the circle where DIMCEN is negative.
Dialogue<bool> markCenter(CommandContext &context)
{
    const std::optional<PickedRound> round = co_await askRound(context, Commands::tr("Select arc or circle: "));
    if (!round)
        co_return false;
    const double size = centerMarkSize(context);
    const double length = std::abs(size);
    if (length == 0.0) {
        context.fail(Commands::tr("DIMCEN is 0: there is no centre mark."));
        co_return false;
    }
    const UserPlane plane(context.document());
    const Vec3 center = plane.userFromWorld(round->object.center);
    const auto addLine = [&](const Vec3 &from, const Vec3 &to) {
        context.create({{0, u"LINE"_s}, {10, plane.worldFromUser(from)}, {11, plane.worldFromUser(to)}});
    };
    for (const Vec3 along : {Vec3{1.0, 0.0, 0.0}, Vec3{0.0, 1.0, 0.0}}) {
        addLine(center - along * length, center + along * length);
        if (size > 0.0 || round->object.radius <= 2.0 * length)
            continue;
        addLine(center + along * (2.0 * length), center + along * (round->object.radius + length));
        addLine(center - along * (2.0 * length), center - along * (round->object.radius + length));
    }
    co_return true;
}

std::vector<CommandRow> radialDimensionCommands()
{
    return {{"CENTERMARK", centerMark, "Marks the centre of a circle or arc"},
            {"DIMCENTER", centerMark, "Marks the centre of a circle or arc"},
            {"DIMDIAMETER", diameterDimension, "Dimensions the diameter of a circle or arc"},
            {"DIMJOGGED", joggedDimension, "Dimensions the radius of a circle or arc from a nearer centre"},
            {"DIMRADIUS", radiusDimension, "Dimensions the radius of a circle or arc"}};
}

} // namespace host::kernel
