#include "host/commands/Commands.h"
#include "host/commands/annotate/DimensionDialogues.h"
#include "host/commands/annotate/MeasuredObject.h"
#include "host/drawing/annotation/DimensionData.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::FieldList;
using drawing::Vec2;
using drawing::Vec3;

namespace {

/// What an angle is measured between, in world coordinates.
struct MeasuredAngle
{
    bool isOfLines = false;
    Vec3 first{}; ///< the ends of the sides, or of the first line
    Vec3 second{};
    Vec3 vertex{};    ///< where the sides meet, or the begin of the second line
    Vec3 secondEnd{}; ///< of the second line
};

Dialogue<MeasuredAngle> askThreePointAngle(CommandContext &context)
{
    const PromptReply vertex = co_await context.neededPoint(Commands::tr("Specify angle vertex: "));
    const PromptReply first =
        co_await context.neededPoint(Commands::tr("Specify first angle endpoint: "), vertex.point);
    const PromptReply second =
        co_await context.neededPoint(Commands::tr("Specify second angle endpoint: "), vertex.point);
    co_return MeasuredAngle{.first = first.point, .second = second.point, .vertex = vertex.point};
}

Dialogue<std::optional<MeasuredAngle>> askSecondLine(CommandContext &context, MeasuredObject first)
{
    for (;;) {
        const PromptReply picked = co_await context.entity(Commands::tr("Select second line: "));
        if (picked.entities.empty()) {
            if (!picked.isMiss)
                co_return std::nullopt;
            continue;
        }
        const auto line = measuredObject(context.drawing(), picked.entities.front(), picked.point);
        const Vec3 along = drawing::normalized(first.second - first.first);
        const bool isLine = line && line->isStraight();
        if (isLine && cross(along, drawing::normalized(line->second - line->first)).length() > 1e-9)
            co_return MeasuredAngle{.isOfLines = true,
                                    .first = first.first,
                                    .second = first.second,
                                    .vertex = line->first,
                                    .secondEnd = line->second};
        if (context.refuse(isLine ? Commands::tr("Lines are parallel.")
                                  : Commands::tr("Object selected is not a line.")))
            co_return std::nullopt;
    }
}

Dialogue<std::optional<MeasuredAngle>> askAngle(CommandContext &context)
{
    for (;;) {
        const PromptReply picked =
            co_await context.entity(Commands::tr("Select arc, circle, line, or <specify vertex>: "));
        if (picked.isMiss)
            continue;
        if (picked.entities.empty())
            co_return co_await askThreePointAngle(context);
        const auto object = measuredObject(context.drawing(), picked.entities.front(), picked.point);
        if (object && object->isStraight())
            co_return co_await askSecondLine(context, *object);
        if (object && object->isCircle) {
            const PromptReply second =
                co_await context.neededPoint(Commands::tr("Specify second angle endpoint: "), object->center);
            co_return MeasuredAngle{.first = picked.point, .second = second.point, .vertex = object->center};
        }
        if (object)
            co_return MeasuredAngle{.first = object->first, .second = object->second, .vertex = object->center};
        if (context.refuse(Commands::tr("Object selected is not an arc, circle or line.")))
            co_return std::nullopt;
    }
}

FieldList angleFields(const MeasuredAngle &angle, const UserPlane &plane, const Vec3 &place)
{
    constexpr qint64 ofLines = 2;
    constexpr qint64 ofPoints = 5;
    if (!angle.isOfLines)
        return {{0, u"DIMENSION"_s}, {10, place},        {70, ofPoints},
                {13, angle.first},   {14, angle.second}, {15, angle.vertex}};
    return {{0, u"DIMENSION"_s},
            {10, angle.secondEnd},
            {70, ofLines},
            {13, angle.first},
            {14, angle.second},
            {15, angle.vertex},
            {16, plane.objectFromWorld(place)}};
}

/// The size of the angle on the side of the place.
double angleAt(const MeasuredAngle &angle, const UserPlane &plane, const Vec3 &place)
{
    const auto flat = [&](const Vec3 &point) { return plane.userFromWorld(point).xy(); };
    drawing::DimensionData data;
    data.kind = angle.isOfLines ? drawing::DimensionKind::AngularOfLines : drawing::DimensionKind::AngularOfPoints;
    data.first = flat(angle.first);
    data.second = flat(angle.second);
    data.third = flat(angle.vertex);
    data.definition = flat(angle.isOfLines ? angle.secondEnd : place);
    data.fourth = flat(place);
    return data.measured();
}

/// A place that the user gives the text, which is in the middle of the arc otherwise.
Dialogue<bool> askTextLocation(CommandContext &context, FieldList &fields)
{
    constexpr qint64 movedTextFlag = 128;
    const PromptReply place = co_await context.point(Commands::tr("Enter text location (or press ENTER): "));
    if (!place.hasValue())
        co_return false;
    const UserPlane plane(context.document());
    Vec3 at = plane.objectFromWorld(place.point);
    at.z = plane.objectFromWorld(drawing::findField(fields, 10)->point()).z;
    drawing::setField(fields, 11, at);
    drawing::setField(fields, 70, drawing::findField(fields, 70)->integer() | movedTextFlag);
    co_return true;
}

CommandTask angularDimension(CommandContext &context)
{
    co_await dimensionAngle(context, TextAsked::AsOption);
}

} // namespace

// An arc, a circle with a second point, two lines or three points, then where the arc goes.
Dialogue<bool> dimensionAngle(CommandContext &context, TextAsked asked)
{
    const UserPlane plane(context.document());
    const std::optional<MeasuredAngle> angle = co_await askAngle(context);
    if (!angle)
        co_return false;
    DimensionAnswers answers;
    std::optional<Vec3> quadrant;
    PromptReply place;
    for (;;) {
        const LineQuestion question{
            Commands::tr("Specify dimension arc line location or [Mtext/Text/Angle/Quadrant]: "), angle->vertex,
            context.shownAngle(angleAt(*angle, plane, angle->first))};
        place = co_await askDimensionLine(context, question, answers);
        if (place.hasValue())
            break;
        const PromptReply side = co_await context.neededPoint(Commands::tr("Specify quadrant: "));
        quadrant = side.point;
    }
    // The arc is where the line was wanted, on the side of the quadrant.
    Vec3 at = place.point;
    if (quadrant && *quadrant != angle->vertex)
        at = angle->vertex + drawing::normalized(*quadrant - angle->vertex) * (place.point - angle->vertex).length();
    co_await askTextBehind(context, asked, context.shownAngle(angleAt(*angle, plane, at)), answers);
    FieldList fields = angleFields(*angle, plane, at);
    if (asked == TextAsked::Behind)
        co_await askTextLocation(context, fields);
    co_return isValid(createDimension(context, fields, answers));
}

std::vector<CommandRow> angularDimensionCommands()
{
    return {{"DIMANGULAR", angularDimension, "Dimensions an angle"}};
}

} // namespace host::kernel
