#include "host/commands/Commands.h"
#include "host/commands/common/CircleGeometry.h"
#include "host/commands/common/KeptValues.h"
#include "host/commands/common/UserPlane.h"
#include "host/commands/draw/LastEnd.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::Vec2;
using drawing::Vec3;

/// An arc in the user's plane, from where it was begun.
struct UserArc
{
    Vec2 centre;
    double radius = 0.0;
    double start = 0.0; ///< radians
    double sweep = 0.0; ///< radians, positive to the left
};
/// Nothing where there is no such arc.
using MaybeUserArc = std::optional<UserArc>;

MaybeUserArc arcRound(Vec2 centre, Vec2 from, double sweep)
{
    const Vec2 spoke = from - centre;
    const bool isArc = spoke.length() > 0.0 && sweep != 0.0 && std::abs(sweep) <= 2.0 * M_PI;
    return isArc ? MaybeUserArc({centre, spoke.length(), std::atan2(spoke.y, spoke.x), sweep}) : std::nullopt;
}

MaybeUserArc arcBetween(Vec2 from, Vec2 to, double sweep)
{
    const Vec2 chord = to - from;
    if (!(chord.length() > 0.0) || !(std::abs(std::sin(sweep / 2.0)) > 1e-12))
        return {};
    return arcRound((from + to) * 0.5 + turnedLeft(chord) * (0.5 / std::tan(sweep / 2.0)), from, sweep);
}

/// The arc that leaves `from` in a direction.
MaybeUserArc arcAlong(Vec2 from, double direction, Vec2 to)
{
    const Vec2 chord = to - from;
    return arcBetween(from, to, 2.0 * std::remainder(std::atan2(chord.y, chord.x) - direction, 2.0 * M_PI));
}

/// To the left, the short way round; the long way for a negative radius.
MaybeUserArc arcOfRadius(Vec2 from, Vec2 to, double radius)
{
    const double sine = (to - from).length() / 2.0 / std::abs(radius);
    if (!(sine <= 1.0))
        return {};
    const double turn = 2.0 * std::asin(sine);
    return arcBetween(from, to, radius < 0.0 ? 2.0 * M_PI - turn : turn);
}

/// To the left, as far as the chord is long; the long way round for a negative one.
MaybeUserArc arcOnChordOf(Vec2 centre, Vec2 from, double chord)
{
    const double sine = std::abs(chord) / 2.0 / (from - centre).length();
    if (!(sine <= 1.0))
        return {};
    const double turn = 2.0 * std::asin(sine);
    return arcRound(centre, from, chord < 0.0 ? 2.0 * M_PI - turn : turn);
}

MaybeUserArc arcThrough(Vec2 from, Vec2 between, Vec2 to)
{
    const std::optional<Vec2> centre = circleCentre(from, between, to);
    if (!centre)
        return {};
    const bool isLeft = cross(between - from, to - between) > 0.0;
    return arcRound(*centre, from, isLeft ? turnAround(*centre, from, to) : -turnAround(*centre, to, from));
}

/// Where the arc begins, in both coordinate systems.
struct ArcStart
{
    Vec3 world;
    Vec2 flat;
};

Vec2 flatPoint(CommandContext &context, const PromptReply &reply)
{
    return UserPlane(context.document()).userFromWorld(reply.point).xy();
}

CommandContext::Reply askIncludedAngle(CommandContext &context, const Vec3 &base)
{
    return context.angle(Commands::tr("Specify included angle: "), {}, base, {}, SignedAngle | NoEmptyAnswer | NoZero);
}

/// Its end, where centre and start are known.
Dialogue<MaybeUserArc> askEndRound(CommandContext &context, Vec3 centreAt, ArcStart start)
{
    const Vec2 centre = UserPlane(context.document()).userFromWorld(centreAt).xy();
    const PromptReply end = co_await context.neededPoint(
        Commands::tr("Specify end point of arc or [Angle/chord Length]: "), centreAt, u"Angle Length chord,C"_s);
    if (end.isKeyword(u"Angle")) {
        const PromptReply angle = co_await askIncludedAngle(context, centreAt);
        co_return arcRound(centre, start.flat, angle.real);
    }
    if (end.kind == ReplyKind::Keyword) {
        const PromptReply chord = co_await context.distance(Commands::tr("Specify length of chord: "), {}, start.world,
                                                            {}, NoEmptyAnswer | NoZero);
        co_return arcOnChordOf(centre, start.flat, chord.real);
    }
    co_return arcRound(centre, start.flat, turnAround(centre, start.flat, flatPoint(context, end)));
}

Dialogue<MaybeUserArc> askBetweenEnds(CommandContext &context, ArcStart start)
{
    const PromptReply end = co_await context.neededPoint(Commands::tr("Specify end point of arc: "), start.world);
    const Vec2 to = flatPoint(context, end);
    const PromptReply reply = co_await context.neededPoint(
        Commands::tr("Specify center point of arc or [Angle/Direction/Radius]: "), start.world);
    if (reply.isKeyword(u"Angle")) {
        const PromptReply angle = co_await askIncludedAngle(context, start.world);
        co_return arcBetween(start.flat, to, angle.real);
    }
    if (reply.isKeyword(u"Direction")) {
        const PromptReply tangent = co_await context.orientation(
            Commands::tr("Specify tangent direction for the start point of arc: "), {}, start.world, {}, NoEmptyAnswer);
        co_return arcAlong(start.flat, tangent.real, to);
    }
    if (reply.isKeyword(u"Radius")) {
        const PromptReply radius = co_await context.distance(Commands::tr("Specify radius of arc: "), {}, end.point, {},
                                                             NoEmptyAnswer | NoZero);
        co_return arcOfRadius(start.flat, to, radius.real);
    }
    const Vec2 centre = flatPoint(context, reply);
    co_return arcRound(centre, start.flat, turnAround(centre, start.flat, to));
}

Dialogue<MaybeUserArc> askFromStart(CommandContext &context, ArcStart start)
{
    const PromptReply second =
        co_await context.neededPoint(Commands::tr("Specify second point of arc or [Center/End]: "), start.world);
    if (second.isKeyword(u"Center")) {
        const PromptReply centre =
            co_await context.neededPoint(Commands::tr("Specify center point of arc: "), start.world);
        co_return co_await askEndRound(context, centre.point, start);
    }
    if (second.isKeyword(u"End"))
        co_return co_await askBetweenEnds(context, start);
    const PromptReply end = co_await context.neededPoint(Commands::tr("Specify end point of arc: "), second.point);
    co_return arcThrough(start.flat, flatPoint(context, second), flatPoint(context, end));
}

Dialogue<MaybeUserArc> askContinued(CommandContext &context, LastEnd last)
{
    const UserPlane plane(context.document());
    const Vec3 from = plane.userFromWorld(last.point);
    const Vec3 along = plane.userFromWorld(last.point + last.direction) - from;
    const PromptReply end = co_await context.neededPoint(Commands::tr("Specify end point of arc: "), last.point);
    co_return arcAlong(from.xy(), std::atan2(along.y, along.x), flatPoint(context, end));
}

/// The arc becomes an entity, and where it ends the last point.
void createArc(CommandContext &context, const UserArc &arc, double height)
{
    const UserPlane plane(context.document());
    const double end = arc.start + arc.sweep;
    const double from = arc.sweep > 0.0 ? arc.start : end;
    const double to = arc.sweep > 0.0 ? end : arc.start;
    const Vec2 tip = arc.centre + polar(end, arc.radius);
    context.document().variables().setInternally(u"LASTPOINT", Vec3{tip.x, tip.y, height});
    context.create(plane.placed({{0, u"ARC"_s},
                                 {10, plane.objectFromUser({arc.centre.x, arc.centre.y, height})},
                                 {40, arc.radius},
                                 {50, settledDegrees(plane.objectDegrees(from))},
                                 {51, settledDegrees(plane.objectDegrees(to))}}));
}

// Start, second point and end; or centre, end, angles, lengths and directions in the order in which they are asked for.
// An empty answer for the start goes on from what was drawn last.
CommandTask arc(CommandContext &context)
{
    PromptReply first = co_await context.point(Commands::tr("Specify start point of arc or [Center]: "));
    MaybeUserArc made;
    if (first.isEmpty()) {
        const std::optional<LastEnd> last = lastEnd(context);
        if (!last) {
            context.fail(Commands::tr("No line or arc to continue."));
            co_return;
        }
        first.point = last->point;
        made = co_await askContinued(context, *last);
    } else if (first.isKeyword(u"Center")) {
        const PromptReply centre = co_await context.neededPoint(Commands::tr("Specify center point of arc: "));
        first = co_await context.neededPoint(Commands::tr("Specify start point of arc: "), centre.point);
        made = co_await askEndRound(context, centre.point, {first.point, flatPoint(context, first)});
    } else {
        made = co_await askFromStart(context, {first.point, flatPoint(context, first)});
    }
    if (made)
        createArc(context, *made, UserPlane(context.document()).userFromWorld(first.point).z);
    else
        context.fail(Commands::tr("There is no such arc."));
}

} // namespace

std::vector<CommandRow> arcCommands()
{
    return {{"ARC", arc, "Draws an arc: three points, or start, center, end, angle, length, direction, radius"}};
}

} // namespace host::kernel
