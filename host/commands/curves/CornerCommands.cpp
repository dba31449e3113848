// FILLET and CHAMFER: both cut corners, and differ in what they ask for and in what they fill the corner with.

#include "host/commands/Commands.h"
#include "host/commands/common/CircleGeometry.h"
#include "host/commands/common/EntityEdits.h"
#include "host/commands/common/KeptValues.h"
#include "host/commands/common/UserPlane.h"
#include "host/commands/curves/CornerPolylines.h"
#include "host/drawing/math/Angles.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::RecordId;
using drawing::Vec2;
using drawing::Vec3;

/// What the command cuts with, and what it has done.
struct CornerSession
{
    explicit CornerSession(bool isFillet) { cut.isRound = isFillet; }

    CornerCut cut;
    bool isTrimming = true;
    bool byAngle = false; ///< chamfers: a length and an angle count
    double length = 0.0;
    double angle = 0.0;
    bool isMultiple = false;
    std::vector<CornerChanges> done;

    CornerCut current() const
    {
        CornerCut made = cut;
        if (!cut.isRound && byAngle) {
            made.first = length;
            made.angle = angle;
        }
        return made;
    }
    void takeBack()
    {
        done.back().takeBack();
        done.pop_back();
    }
};

/// The ways of two lines from the point where they meet; nothing for parallels.
struct Meeting
{
    Vec2 corner;
    Vec2 first; ///< length 1, to where the side was picked
    Vec2 second;
};

std::optional<Meeting> meetingOf(const TangentLine &first, const TangentLine &second)
{
    const double sine = cross(first.direction, second.direction);
    if (!(std::abs(sine) > 1e-9))
        return {};
    Meeting meeting;
    meeting.corner = first.point + first.direction * (cross(second.point - first.point, second.direction) / sine);
    const auto toPick = [&](const TangentLine &line) {
        return line.direction * (dot(line.picked - meeting.corner, line.direction) < 0.0 ? -1.0 : 1.0);
    };
    meeting.first = toPick(first);
    meeting.second = toPick(second);
    return meeting;
}

/// The fields of what goes from one point to another, straight or as an arc; user coordinates.
drawing::FieldList cutFields(const UserPlane &plane, Vec2 from, Vec2 to, double bulge, double height)
{
    if (bulge == 0.0)
        return {{0, u"LINE"_s},
                {10, plane.worldFromUser({from.x, from.y, height})},
                {11, plane.worldFromUser({to.x, to.y, height})}};
    const drawing::BulgeArc arc = drawing::bulgeArc(from, to, bulge);
    const double start = arc.sweep > 0.0 ? arc.startAngle : arc.startAngle + arc.sweep;
    const auto degrees = [&](double angle) { return settledDegrees(plane.objectDegrees(angle)); };
    return plane.placed({{0, u"ARC"_s},
                         {10, plane.objectFromUser({arc.center.x, arc.center.y, height})},
                         {40, arc.radius},
                         {50, degrees(start)},
                         {51, degrees(start + std::abs(arc.sweep))}});
}

/// How far a side reaches from the corner on the picked side; endless and round ones without end.
double reachOf(const drawing::Drawing &drawing, const UserPlane &plane, const CornerSide &side, Vec2 corner, Vec2 way)
{
    const auto along = [&](const Vec3 &world) { return dot(plane.userFromWorld(world).xy() - corner, way); };
    if (side.polyline && side.shape.isStraight) {
        const std::vector<EditedVertex> &vertices = side.polyline->vertices;
        const drawing::Matrix world = side.polyline->toWorld();
        return std::max(along(world.point(vertices[side.stretch].point)),
                        along(world.point(vertices[(side.stretch + 1) % vertices.size()].point)));
    }
    if (!drawing.isType(side.record, "LINE"))
        return std::numeric_limits<double>::infinity();
    const drawing::TagList tags = drawing.tags(side.record);
    return std::max(along(tags.point(10)), along(tags.point(11)));
}

/// Two lines that are parallel: half a circle from the end of the first one.
QString joinParallels(CommandContext &context, CornerChanges &changes, const CornerSession &session,
                      const CornerSide &first, const CornerSide &second)
{
    const UserPlane plane(context.document());
    if (!session.cut.isRound || !context.drawing().isType(first.record, "LINE") ||
        !context.drawing().isType(second.record, "LINE"))
        return Commands::tr("The lines are parallel.");
    const drawing::TagList tags = context.drawing().tags(first.record);
    const Vec2 from = plane.userFromWorld(tags.point(10)).xy();
    const Vec2 to = plane.userFromWorld(tags.point(11)).xy();
    const bool isAtStart = (first.shape.picked - from).length() < (first.shape.picked - to).length();
    const Vec2 end = isAtStart ? from : to;
    const Vec2 out = (end - (isAtStart ? to : from)) * (1.0 / (to - from).length());
    const Vec2 across = second.shape.point - end;
    const Vec2 foot = end + across - out * dot(across, out);
    if (!((foot - end).length() > 1e-9))
        return Commands::tr("The lines are one.");
    const double bulge = cross(out, foot - end) > 0.0 ? 1.0 : -1.0;
    if (session.isTrimming) {
        trimSide(changes, context.drawing(), plane, second, foot, out * -1.0);
    }
    changes.create(cutFields(plane, end, foot, bulge, first.shape.height), first.record, second.record);
    return {};
}

/// Lines, rays and polylines. Empty when it was done, else why not.
QString cutStraight(CommandContext &context, CornerChanges &changes, const CornerSession &session,
                    const CornerSide &first, const CornerSide &second)
{
    const UserPlane plane(context.document());
    const std::optional<Meeting> meeting = meetingOf(first.shape, second.shape);
    if (!meeting)
        return joinParallels(context, changes, session, first, second);
    const std::optional<CutEnds> ends = cutCorner(meeting->corner, meeting->first, meeting->second, session.current());
    if (!ends)
        return Commands::tr("The angle leads to no cut.");
    if (ends->firstReach > reachOf(context.drawing(), plane, first, meeting->corner, meeting->first) + 1e-9 ||
        ends->secondReach > reachOf(context.drawing(), plane, second, meeting->corner, meeting->second) + 1e-9)
        return session.cut.isRound ? Commands::tr("Radius is too large.") : Commands::tr("Distance is too large.");
    if (session.isTrimming && (first.polyline || second.polyline))
        return joinPolylines(context, changes, first, second, *ends, {meeting->first, meeting->second});
    if (session.isTrimming) {
        trimSide(changes, context.drawing(), plane, first, ends->first, meeting->first);
        trimSide(changes, context.drawing(), plane, second, ends->second, meeting->second);
    }
    if ((ends->second - ends->first).length() > 1e-12)
        changes.create(cutFields(plane, ends->first, ends->second, ends->bulge, first.shape.height), first.record,
                       second.record);
    return {};
}

/// The way from where a side is cut to the part that stays, where the pick says it: on round ones the shorter way.
Vec2 wayToPick(const TangentLine &shape, Vec2 at)
{
    const Vec2 along = shape.isStraight ? shape.direction : turnedLeft(at - shape.point) * (1.0 / shape.radius);
    return along * (dot(shape.picked - at, along) < 0.0 ? -1.0 : 1.0);
}

/// With an arc or circle on one side or both.
QString filletRound(CommandContext &context, CornerChanges &changes, const CornerSession &session,
                    const CornerSide &first, const CornerSide &second)
{
    const UserPlane plane(context.document());
    const double radius = session.cut.radius;
    const std::vector<Vec2> centres = tangentCentres(first.shape, second.shape, radius);
    if (centres.empty())
        return Commands::tr("There is no arc of that radius.");
    const Vec2 centre = centres.front();
    CutEnds ends;
    ends.first = touchingPoint(first.shape, centre, radius);
    ends.second = touchingPoint(second.shape, centre, radius);
    KeptWays kept{wayToPick(first.shape, ends.first), wayToPick(second.shape, ends.second)};
    if (radius > 0.0) {
        const Vec2 begin = (ends.first - centre) * (1.0 / radius);
        const Vec2 end = (ends.second - centre) * (1.0 / radius);
        const double turn = std::atan2(cross(begin, end), dot(begin, end));
        ends.bulge = bulgeOfAngle(turn);
        // The arc goes on smoothly from what stays, wherever the pick was.
        kept = {turnedLeft(begin) * (turn > 0.0 ? -1.0 : 1.0), turnedLeft(end) * (turn > 0.0 ? 1.0 : -1.0)};
    }
    if (!(reachOf(context.drawing(), plane, first, ends.first, kept.first) > 0.0) ||
        !(reachOf(context.drawing(), plane, second, ends.second, kept.second) > 0.0))
        return Commands::tr("Radius is too large.");
    if (session.isTrimming && (first.polyline || second.polyline))
        return joinPolylines(context, changes, first, second, ends, kept);
    if (session.isTrimming) {
        trimSide(changes, context.drawing(), plane, first, ends.first, kept.first);
        trimSide(changes, context.drawing(), plane, second, ends.second, kept.second);
    }
    if (radius > 0.0)
        changes.create(cutFields(plane, ends.first, ends.second, ends.bulge, first.shape.height), first.record,
                       second.record);
    return {};
}

/// Makes the corner of two sides. False when an answer fails the command.
bool makeCorner(CommandContext &context, CornerSession &session, const CornerSide &first, const CornerSide &second)
{
    CornerChanges changes(context);
    QString problem;
    if (std::abs(first.shape.height - second.shape.height) > 1e-6)
        problem = Commands::tr("They do not lie in one plane.");
    else if (first.record == second.record && first.polyline && session.isTrimming &&
             (session.cut.isRound || (first.shape.isStraight && second.shape.isStraight)))
        problem = cutWithin(context, changes, session.current(), first, second);
    else if (first.record == second.record && !first.polyline)
        problem = Commands::tr("Two different ones are needed.");
    else if (first.shape.isStraight && second.shape.isStraight)
        problem = cutStraight(context, changes, session, first, second);
    else if (session.cut.isRound)
        problem = filletRound(context, changes, session, first, second);
    else
        problem = Commands::tr("Only straight lines can be chamfered.");
    session.done.push_back(std::move(changes));
    return problem.isEmpty() || !context.refuse(problem);
}

Dialogue<bool> askTrim(CommandContext &context, CornerSession &session)
{
    const QString mode = co_await askUsualOption(context, Commands::tr("Enter Trim mode option [Trim/No trim]"),
                                                 session.isTrimming ? u"Trim"_s : u"No"_s);
    session.isTrimming = mode == u"Trim";
    keepValue(context, u"TRIMMODE", session.isTrimming ? 1 : 0);
    co_return true;
}

Dialogue<bool> askChamferDistances(CommandContext &context, CornerSession &session)
{
    session.cut.first =
        co_await askUsualLength(context, Commands::tr("Specify first chamfer distance"), session.cut.first);
    const double usual = session.cut.first;
    session.cut.second = co_await askUsualLength(context, Commands::tr("Specify second chamfer distance"), usual);
    session.byAngle = false;
    keepValue(context, u"CHAMFERA", session.cut.first);
    keepValue(context, u"CHAMFERB", session.cut.second);
    keepValue(context, u"CHAMMODE", 0);
    co_return true;
}

Dialogue<bool> askChamferAngle(CommandContext &context, CornerSession &session)
{
    session.length =
        co_await askUsualLength(context, Commands::tr("Specify chamfer length on the first line"), session.length);
    const QString usual = context.shownAngle(session.angle);
    const PromptReply angle = co_await context.angle(
        Commands::tr("Specify chamfer angle from the first line <%1>: ").arg(usual), {}, {}, usual);
    session.angle = angle.hasValue() ? angle.real : session.angle;
    session.byAngle = true;
    keepValue(context, u"CHAMFERC", session.length);
    keepValue(context, u"CHAMFERD", session.angle);
    keepValue(context, u"CHAMMODE", 1);
    co_return true;
}

/// The options that say how to cut. False for another answer.
Dialogue<bool> takeCutOption(CommandContext &context, CornerSession &session, const QString option)
{
    if (option == u"Radius") {
        session.cut.radius =
            co_await askUsualLength(context, Commands::tr("Specify fillet radius"), session.cut.radius);
        keepValue(context, u"FILLETRAD", session.cut.radius);
    } else if (option == u"Distance") {
        co_await askChamferDistances(context, session);
    } else if (option == u"Angle") {
        co_await askChamferAngle(context, session);
    } else if (option == u"mEthod") {
        const QString method = co_await askUsualOption(context, Commands::tr("Enter trim method [Distance/Angle]"),
                                                       session.byAngle ? u"Angle"_s : u"Distance"_s);
        session.byAngle = method == u"Angle";
        keepValue(context, u"CHAMMODE", session.byAngle ? 1 : 0);
    } else if (option == u"Trim") {
        co_await askTrim(context, session);
    } else {
        co_return false;
    }
    co_return true;
}

/// `options`: keywords with a blank between.
CommandContext::Reply askSide(CommandContext &context, const QString &prompt, const QString &options)
{
    PromptRequest request;
    request.kind = PromptKind::Entity;
    request.prompt = u'\n' + prompt;
    request.keywords = options.split(u' ');
    return context.ask(std::move(request));
}

Dialogue<bool> askWholePolyline(CommandContext &context, CornerSession &session)
{
    const QString prompt = session.cut.isRound ? Commands::tr("Select 2D polyline or [Radius]: ")
                                               : Commands::tr("Select 2D polyline or [Distance/Angle/mEthod]: ");
    const QString options = session.cut.isRound ? u"Radius"_s : u"Distance Angle mEthod"_s;
    for (;;) {
        const PromptReply reply = co_await askSide(context, prompt, options);
        if (reply.kind == ReplyKind::Keyword) {
            co_await takeCutOption(context, session, reply.text);
            continue;
        }
        if (reply.isMiss)
            continue;
        if (reply.entities.empty())
            co_return true;
        std::optional<EditedPolyline> polyline = readPolyline(context.drawing(), reply.entities.front());
        if (!polyline || polyline->isSpatial) {
            if (context.refuse(Commands::tr("Requires a flat polyline.")))
                co_return false;
            continue;
        }
        if (editable(context, {polyline->record}).empty())
            continue;
        const CornerCounts counts = cutAllCorners(*polyline, session.current());
        CornerChanges changes(context);
        changes.store(*polyline);
        session.done.push_back(std::move(changes));
        context.print(
            (session.cut.isRound ? Commands::tr("\n%1 lines were filleted") : Commands::tr("\n%1 lines were chamfered"))
                .arg(counts.cut));
        if (counts.tooShort > 0)
            context.print(Commands::tr("\n%1 were too short").arg(counts.tooShort));
        if (counts.parallel > 0)
            context.print(Commands::tr("\n%1 were parallel").arg(counts.parallel));
        co_return true;
    }
}

/// An entity as one of the sides; nothing when it was refused.
std::optional<CornerSide> sideOf(CommandContext &context, const PromptReply &picked, bool &isFailed)
{
    if (picked.entities.empty() || editable(context, picked.entities).empty())
        return {};
    std::optional<CornerSide> side = cornerSide(context.drawing(), UserPlane(context.document()), picked);
    if (!side)
        isFailed = context.refuse(
            Commands::tr("Requires a line, arc, circle or straight stretch of a polyline in the user's plane."));
    return side;
}

/// The second one, and the corner. False when the command ends.
Dialogue<bool> askSecondSide(CommandContext &context, CornerSession &session, CornerSide first)
{
    const bool isFillet = session.cut.isRound;
    const QString prompt = isFillet ? Commands::tr("Select second object or [Radius]: ")
                                    : Commands::tr("Select second line or [Distance/Angle/Method]: ");
    const QString options = isFillet ? u"Radius"_s : u"Distance Angle mEthod,M"_s;
    for (;;) {
        const PromptReply reply = co_await askSide(context, prompt, options);
        if (reply.kind == ReplyKind::Keyword) {
            co_await takeCutOption(context, session, reply.text);
            continue;
        }
        if (reply.isEmpty() && !reply.isMiss)
            co_return false;
        bool isFailed = false;
        const std::optional<CornerSide> second = sideOf(context, reply, isFailed);
        if (isFailed)
            co_return false;
        if (second)
            co_return makeCorner(context, session, first, *second);
    }
}

/// What both commands ask first: options until the first entity.
Dialogue<bool> askCorners(CommandContext &context, CornerSession &session)
{
    const bool isFillet = session.cut.isRound;
    const QString prompt =
        isFillet ? Commands::tr("Select first object or [Undo/Polyline/Radius/Trim/Multiple]: ")
                 : Commands::tr("Select first line or [Undo/Polyline/Distance/Angle/Trim/mEthod/Multiple]: ");
    const QString options =
        isFillet ? u"Undo Polyline Radius Trim Multiple"_s : u"Undo Polyline Distance Angle Trim mEthod Multiple"_s;
    for (;;) {
        const PromptReply reply = co_await askSide(context, prompt, options);
        if (reply.isEmpty() && !reply.isMiss)
            co_return true;
        bool goesOn = true;
        if (reply.isKeyword(u"Undo")) {
            if (session.done.empty())
                context.print(Commands::tr("\nNothing to undo"));
            else
                session.takeBack();
            continue;
        }
        if (reply.isKeyword(u"Multiple")) {
            session.isMultiple = true;
            continue;
        }
        if (reply.isKeyword(u"Polyline")) {
            goesOn = co_await askWholePolyline(context, session);
        } else if (reply.kind == ReplyKind::Keyword) {
            co_await takeCutOption(context, session, reply.text);
            continue;
        } else {
            bool isFailed = false;
            const std::optional<CornerSide> first = sideOf(context, reply, isFailed);
            if (isFailed)
                co_return false;
            if (!first)
                continue;
            goesOn = co_await askSecondSide(context, session, *first);
        }
        if (!goesOn || !session.isMultiple)
            co_return goesOn;
    }
}

// Options, then two entities; again and again with Multiple.
CommandTask fillet(CommandContext &context)
{
    const SystemVariables &variables = context.document().variables();
    CornerSession session(true);
    session.cut.radius = variables.real(u"FILLETRAD");
    session.isTrimming = variables.integer(u"TRIMMODE", 1) != 0;
    context.print(Commands::tr("\nCurrent settings: Mode = %1, Radius = %2")
                      .arg(session.isTrimming ? u"TRIM"_s : u"NOTRIM"_s, context.shownLength(session.cut.radius)));
    co_await askCorners(context, session);
}

CommandTask chamfer(CommandContext &context)
{
    const SystemVariables &variables = context.document().variables();
    CornerSession session(false);
    session.cut.first = variables.real(u"CHAMFERA");
    session.cut.second = variables.real(u"CHAMFERB");
    session.length = variables.real(u"CHAMFERC");
    session.angle = variables.real(u"CHAMFERD");
    session.byAngle = variables.integer(u"CHAMMODE") != 0;
    session.isTrimming = variables.integer(u"TRIMMODE", 1) != 0;
    context.print(Commands::tr("\n(%1 mode) Current chamfer Dist1 = %2, Dist2 = %3")
                      .arg(session.isTrimming ? u"TRIM"_s : u"NOTRIM"_s, context.shownLength(session.cut.first),
                           context.shownLength(session.cut.second)));
    co_await askCorners(context, session);
}

} // namespace

std::vector<CommandRow> cornerCommands()
{
    return {{"CHAMFER", chamfer, "Cuts corners off", WhenCancelled::KeepDone},
            {"FILLET", fillet, "Rounds corners with arcs", WhenCancelled::KeepDone}};
}

} // namespace host::kernel
