// The length of an arc, or of a part of it.

#include "host/commands/Commands.h"
#include "host/commands/annotate/MeasuredObject.h"
#include "host/commands/annotate/NewDimension.h"
#include "host/drawing/math/Angles.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::Vec2;
using drawing::Vec3;
using drawing::wholeTurn;

namespace {

/// An arc in user coordinates, counter-clockwise.
struct FlatArc
{
    Vec3 center{};
    double radius = 0.0;
    double start = 0.0; ///< radians
    double sweep = 0.0;

    Vec3 at(double angle, double distance) const
    {
        return center + Vec3{std::cos(angle) * distance, std::sin(angle) * distance, 0.0};
    }
    /// How far behind the start a direction lies, from 0 up to a whole turn.
    double offset(double angle) const
    {
        const double rest = std::fmod(angle - start, wholeTurn);
        return rest < 0.0 ? rest + wholeTurn : rest;
    }
    /// The same of a point; one beside the arc counts as the end that is nearer.
    double offsetOf(const Vec3 &point) const
    {
        const double along = offset(std::atan2(point.y - center.y, point.x - center.x));
        if (along <= sweep)
            return along;
        return along - sweep < wholeTurn - along ? sweep : 0.0;
    }
};

/// What is dimensioned, and how.
struct ArcLength
{
    FlatArc arc{};
    bool isPartial = false;
    bool hasLeader = false;
};

FlatArc flatArc(const MeasuredObject &object, const UserPlane &plane)
{
    const Vec3 center = plane.userFromWorld(object.center);
    Vec3 first = plane.userFromWorld(object.first) - center;
    Vec3 second = plane.userFromWorld(object.second) - center;
    const Vec3 up = plane.worldFromUser({0.0, 0.0, 1.0}) - plane.worldFromUser({});
    if (dot(up, object.plane.zAxis) < 0.0)
        std::swap(first, second);
    FlatArc arc{center, object.radius, std::atan2(first.y, first.x)};
    arc.sweep = arc.offset(std::atan2(second.y, second.x));
    return arc;
}

/// Nothing when the dialogue ended without an arc.
Dialogue<std::optional<MeasuredObject>> askArcPiece(CommandContext &context)
{
    for (;;) {
        const PromptReply picked = co_await context.entity(Commands::tr("Select arc or polyline arc segment: "));
        if (picked.isMiss)
            continue;
        if (picked.entities.empty())
            co_return std::nullopt;
        const auto object = measuredObject(context.drawing(), picked.entities.front(), picked.point);
        if (object && !object->isStraight() && !object->isCircle)
            co_return object;
        if (context.refuse(Commands::tr("Object selected is not an arc or polyline arc segment.")))
            co_return std::nullopt;
    }
}

/// Two points of the arc, of which the piece between is dimensioned.
Dialogue<bool> askPart(CommandContext &context, ArcLength &length)
{
    const UserPlane plane(context.document());
    const PromptReply first =
        co_await context.neededPoint(Commands::tr("Specify first point for arc length dimension: "));
    const PromptReply second =
        co_await context.neededPoint(Commands::tr("Specify second point for arc length dimension: "));
    const double a = length.arc.offsetOf(plane.userFromWorld(first.point));
    const double b = length.arc.offsetOf(plane.userFromWorld(second.point));
    if (a == b) {
        context.fail(Commands::tr("The two points are one."));
        co_return false;
    }
    length.arc.start += std::min(a, b);
    length.arc.sweep = std::abs(b - a);
    length.isPartial = true;
    co_return true;
}

/// Where the dimension's arc goes, with the options on the way; nothing when the command failed.
Dialogue<std::optional<Vec3>> askArcPlace(CommandContext &context, ArcLength &length, DimensionAnswers &answers)
{
    for (;;) {
        // A leader tells which of two arcs of more than a right angle is meant.
        const bool mayLead = length.arc.sweep > wholeTurn / 4.0;
        const QString leader = !mayLead ? QString() : length.hasLeader ? u"/No leader"_s : u"/Leader"_s;
        const LineQuestion question{
            Commands::tr("Specify arc length dimension location, or [Mtext/Text/Angle/Partial%1]: ").arg(leader),
            {},
            context.shownLength(length.arc.radius * length.arc.sweep)};
        const PromptReply place = co_await askDimensionLine(context, question, answers);
        if (place.hasValue())
            co_return place.point;
        if (!place.isKeyword(u"Partial"))
            length.hasLeader = place.isKeyword(u"Leader");
        else if (!co_await askPart(context, length))
            co_return std::nullopt;
    }
}

drawing::FieldList arcLengthFields(const ArcLength &length, const UserPlane &plane, const Vec3 &place)
{
    const FlatArc &arc = length.arc;
    const Vec3 at = plane.userFromWorld(place);
    const double distance = (at - arc.center).xy().length();
    // A place beside the arc gives the distance alone.
    const double along = arc.offset(std::atan2(at.y - arc.center.y, at.x - arc.center.x));
    const double middle = arc.start + (along > 0.0 && along < arc.sweep ? along : arc.sweep / 2.0);
    const auto world = [&](double angle, double out) { return plane.worldFromUser(arc.at(angle, out)); };
    const auto direction = [&](double angle) { return plainDegrees(plane.objectDegrees(angle)) * drawing::radians; };
    const double end = arc.start + arc.sweep;
    return {{0, u"ARC_DIMENSION"_s},
            {10, world(middle, distance)},
            {70, qint64(5)},
            {100, u"AcDbArcDimension"_s},
            {13, world(arc.start, arc.radius)},
            {14, world(end, arc.radius)},
            {15, world(0.0, 0.0)},
            {70, qint64(length.isPartial)},
            {40, direction(arc.start)},
            {41, direction(end)},
            {71, qint64(length.hasLeader)},
            {16, world(length.hasLeader ? middle : end, arc.radius)},
            {17, length.hasLeader ? world(middle, distance) : Vec3{}}};
}

// An arc, then where the arc of the dimension goes.
CommandTask arcLengthDimension(CommandContext &context)
{
    if (context.drawing().version() < drawing::Version::R2004) {
        context.fail(Commands::tr("A drawing of this version has no dimensions of arc lengths: they come with R2004."));
        co_return;
    }
    const std::optional<MeasuredObject> object = co_await askArcPiece(context);
    if (!object || !isInUserPlane(context, *object))
        co_return;
    const UserPlane plane(context.document());
    ArcLength length{flatArc(*object, plane)};
    DimensionAnswers answers;
    const std::optional<Vec3> place = co_await askArcPlace(context, length, answers);
    if (place)
        createDimension(context, arcLengthFields(length, plane, *place), answers);
}

} // namespace

std::vector<CommandRow> arcDimensionCommands()
{
    return {{"DIMARC", arcLengthDimension, "Dimensions the length of an arc"}};
}

} // namespace host::kernel
