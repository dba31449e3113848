// FILLET and CHAMFER: both cut corners, and differ in what they ask for and in what they fill the corner with.

#include "host/commands/Commands.h"
#include "host/commands/common/CircleGeometry.h"
#include "host/commands/common/EntityEdits.h"
#include "host/commands/common/KeptValues.h"
#include "host/commands/common/UserPlane.h"
#include "host/commands/curves/CornerCut.h"
#include "host/commands/curves/CornerSides.h"
#include "host/drawing/math/Angles.h"
#include "host/kernel/documents/Document.h"

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
    QString verb() const { return cut.isRound ? u"filleted"_s : u"chamfered"_s; }
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

/// How far a side reaches from the corner on the picked side; endless ones without end.
double reachOf(const drawing::Drawing &drawing, const UserPlane &plane, const CornerSide &side, Vec2 corner, Vec2 way)
{
    if (!drawing.isType(side.record, "LINE"))
        return std::numeric_limits<double>::infinity();
    const drawing::TagList tags = drawing.tags(side.record);
    const auto along = [&](int code) { return dot(plane.userFromWorld(tags.point(code)).xy() - corner, way); };
    return std::max(along(10), along(11));
}

/// Two lines that are parallel: half a circle from the end of the first one.
QString joinParallels(CommandContext &context, CornerChanges &changes, const CornerSession &session,
                      const CornerSide &first, const CornerSide &second)
{
    const UserPlane plane(context.document());
    if (!session.cut.isRound || !context.drawing().isType(first.record, "LINE") ||
        !context.drawing().isType(second.record, "LINE"))
        return u"The lines are parallel."_s;
    const drawing::TagList tags = context.drawing().tags(first.record);
    const Vec2 from = plane.userFromWorld(tags.point(10)).xy();
    const Vec2 to = plane.userFromWorld(tags.point(11)).xy();
    const bool isAtStart = (first.shape.picked - from).length() < (first.shape.picked - to).length();
    const Vec2 end = isAtStart ? from : to;
    const Vec2 out = (end - (isAtStart ? to : from)) * (1.0 / (to - from).length());
    const Vec2 across = second.shape.point - end;
    const Vec2 foot = end + across - out * dot(across, out);
    if (!((foot - end).length() > 1e-9))
        return u"The lines are one."_s;
    const double bulge = cross(out, foot - end) > 0.0 ? 1.0 : -1.0;
    if (session.isTrimming) {
        CornerSide kept = second;
        kept.shape.picked = foot - out;
        trimSide(changes, context.drawing(), plane, kept, foot);
    }
    changes.create(cutFields(plane, end, foot, bulge, first.shape.height), first.record, second.record);
    return {};
}

/// The polyline that a side is, running towards the cut, up to it.
std::optional<EditedPolyline> towardsCut(CommandContext &context, const CornerSide &side, Vec2 cut, Vec2 way)
{
    const UserPlane plane(context.document());
    EditedPolyline polyline;
    if (side.polyline) {
        polyline = *side.polyline;
        const std::size_t count = polyline.vertices.size();
        const drawing::Matrix world = polyline.toWorld();
        const Vec2 front = plane.userFromWorld(world.point(polyline.vertices[side.stretch].point)).xy();
        const Vec2 back = plane.userFromWorld(world.point(polyline.vertices[(side.stretch + 1) % count].point)).xy();
        const bool runsAway = dot(back - front, way) > 0.0;
        if (polyline.isClosed || side.stretch != (runsAway ? 0 : count - 2))
            return {};
        if (runsAway)
            polyline.reverse();
    } else {
        const Vec3 normal = plane.worldFromUser({0.0, 0.0, 1.0}) - plane.worldFromUser({});
        const std::optional<EditedPolyline> line = polylineLike(context.drawing(), side.record, normal);
        if (!line || !side.shape.isStraight)
            return {};
        polyline = *line;
        const drawing::Matrix world = polyline.toWorld();
        const Vec2 front = plane.userFromWorld(world.point(polyline.vertices[0].point)).xy();
        if (dot(front - cut, way) < dot(plane.userFromWorld(world.point(polyline.vertices[1].point)).xy() - cut, way))
            polyline.reverse();
    }
    polyline.vertices.back().point = polyline.fromWorld(plane.worldFromUser({cut.x, cut.y, side.shape.height}));
    return polyline;
}

/// Two polylines, or a line and a polyline, become one.
QString joinPolylines(CommandContext &context, CornerChanges &changes, const CornerSide &first,
                      const CornerSide &second, const Meeting &meeting, const CutEnds &ends)
{
    const UserPlane plane(context.document());
    const bool isFirst = first.polyline.has_value();
    const std::optional<EditedPolyline> start = isFirst ? towardsCut(context, first, ends.first, meeting.first)
                                                        : towardsCut(context, second, ends.second, meeting.second);
    std::optional<EditedPolyline> rest = isFirst ? towardsCut(context, second, ends.second, meeting.second)
                                                 : towardsCut(context, first, ends.first, meeting.first);
    if (!start || !rest)
        return u"Only the ends of open polylines and lines can be joined."_s;
    EditedPolyline polyline = *start;
    rest->reverse();
    const double sense = dot(polyline.extrusion, plane.worldFromUser({0.0, 0.0, 1.0}) - plane.worldFromUser({}));
    polyline.vertices.back().bulge = (isFirst ? ends.bulge : -ends.bulge) * (sense < 0.0 ? -1.0 : 1.0);
    if (ends.bulge == 0.0 && (ends.first - ends.second).length() < 1e-9)
        polyline.vertices.pop_back();
    const drawing::Matrix map = polyline.toWorld().inverted() * rest->toWorld();
    for (EditedVertex vertex : rest->vertices) {
        vertex.point = map.point(vertex.point);
        polyline.vertices.push_back(vertex);
    }
    changes.erase(isFirst ? second.record : first.record);
    changes.store(polyline);
    return {};
}

/// The cut of the corner that two stretches make, which come from `start` and go to `end`; without ends where there is
/// none, and why.
struct StretchCut
{
    std::optional<CutEnds> ends;
    QString problem{};
};

StretchCut cutStretches(Vec2 start, Vec2 startEnd, Vec2 endStart, Vec2 end, const CornerCut &cut)
{
    const Vec2 in = startEnd - start;
    const Vec2 out = end - endStart;
    const double sine = cross(in, out);
    if (!(std::abs(sine) > 1e-9 * in.length() * out.length()))
        return {{}, u"The lines are parallel."_s};
    const Vec2 corner = start + in * (cross(endStart - start, out) / sine);
    const Vec2 back = (start - corner) * (1.0 / (start - corner).length());
    const Vec2 on = (end - corner) * (1.0 / (end - corner).length());
    const std::optional<CutEnds> ends = cutCorner(corner, back, on, cut);
    if (!ends || ends->firstReach > (start - corner).length() || ends->secondReach > (end - corner).length())
        return {{}, u"The corner has no room for that."_s};
    return {ends};
}

/// An open polyline is closed by the corner of its last and its first stretch.
QString closeByCorner(CornerChanges &changes, EditedPolyline polyline, const CornerCut &cut)
{
    std::vector<EditedVertex> &vertices = polyline.vertices;
    const std::size_t last = vertices.size() - 1;
    const StretchCut made = cutStretches(vertices[last - 1].point.xy(), vertices[last].point.xy(),
                                         vertices[0].point.xy(), vertices[1].point.xy(), cut);
    if (!made.ends)
        return made.problem;
    const double height = vertices[0].point.z;
    vertices[0].point = {made.ends->second.x, made.ends->second.y, height};
    vertices[last].point = {made.ends->first.x, made.ends->first.y, height};
    vertices[last].bulge = made.ends->bulge;
    if ((made.ends->first - made.ends->second).length() <= 1e-12)
        vertices.pop_back();
    polyline.isClosed = true;
    changes.store(polyline);
    return {};
}

/// A corner of one polyline, between neighbouring stretches or such with one stretch between, or between the ends.
QString cutWithin(CornerChanges &changes, const CornerSession &session, const CornerSide &first,
                  const CornerSide &second)
{
    EditedPolyline polyline = *first.polyline;
    std::vector<EditedVertex> &vertices = polyline.vertices;
    const std::size_t count = vertices.size();
    // Round a closed one the shorter way counts.
    const std::size_t onward = (second.stretch + count - first.stretch) % count;
    const bool isInOrder = polyline.isClosed ? onward <= count - onward : first.stretch < second.stretch;
    const std::size_t before = isInOrder ? first.stretch : second.stretch;
    const std::size_t behind = isInOrder ? second.stretch : first.stretch;
    const std::size_t between = (behind + count - before) % count;
    const bool isByEnds = !polyline.isClosed && before == 0 && behind + 2 == count && between > 2;
    CornerCut cut = session.current();
    if (isInOrder == isByEnds)
        std::swap(cut.first, cut.second);
    if (isByEnds)
        return closeByCorner(changes, polyline, cut);
    if (between < 1 || between > 2)
        return u"Only neighbouring stretches of a polyline make a corner."_s;
    const StretchCut made = cutStretches(vertices[before].point.xy(), vertices[(before + 1) % count].point.xy(),
                                         vertices[behind].point.xy(), vertices[(behind + 1) % count].point.xy(), cut);
    if (!made.ends)
        return made.problem;
    const std::optional<CutEnds> &ends = made.ends;
    const double height = vertices[behind].point.z;
    EditedVertex begin = vertices[behind];
    begin.point = {ends->first.x, ends->first.y, height};
    begin.bulge = ends->bulge;
    vertices[behind].point = {ends->second.x, ends->second.y, height};
    if (between == 2)
        vertices[(before + 1) % count] = begin;
    else if ((ends->first - ends->second).length() > 1e-12)
        vertices.insert(vertices.begin() + static_cast<qsizetype>(behind), begin);
    if (between == 2 && (ends->first - ends->second).length() <= 1e-12)
        vertices.erase(vertices.begin() + static_cast<qsizetype>(behind));
    changes.store(polyline);
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
        return u"The angle leads to no cut."_s;
    if (ends->firstReach > reachOf(context.drawing(), plane, first, meeting->corner, meeting->first) + 1e-9 ||
        ends->secondReach > reachOf(context.drawing(), plane, second, meeting->corner, meeting->second) + 1e-9)
        return session.cut.isRound ? u"Radius is too large."_s : u"Distance is too large."_s;
    if (session.isTrimming && (first.polyline || second.polyline))
        return joinPolylines(context, changes, first, second, *meeting, *ends);
    if (session.isTrimming) {
        trimSide(changes, context.drawing(), plane, first, ends->first);
        trimSide(changes, context.drawing(), plane, second, ends->second);
    }
    if ((ends->second - ends->first).length() > 1e-12)
        changes.create(cutFields(plane, ends->first, ends->second, ends->bulge, first.shape.height), first.record,
                       second.record);
    return {};
}

/// With an arc or circle on one side or both.
QString filletRound(CommandContext &context, CornerChanges &changes, const CornerSession &session,
                    const CornerSide &first, const CornerSide &second)
{
    const UserPlane plane(context.document());
    if (first.polyline || second.polyline)
        return u"Arcs and circles make no corner with polylines."_s;
    const double radius = session.cut.radius;
    const std::optional<Vec2> centre = tangentCentre(first.shape, second.shape, radius);
    if (!centre)
        return u"There is no arc of that radius."_s;
    const Vec2 begin = touchingPoint(first.shape, *centre, radius);
    const Vec2 end = touchingPoint(second.shape, *centre, radius);
    if (session.isTrimming) {
        trimSide(changes, context.drawing(), plane, first, begin);
        trimSide(changes, context.drawing(), plane, second, end);
    }
    if (radius > 0.0) {
        const double turn = std::atan2(cross(begin - *centre, end - *centre), dot(begin - *centre, end - *centre));
        changes.create(cutFields(plane, begin, end, bulgeOfAngle(turn), first.shape.height), first.record,
                       second.record);
    }
    return {};
}

/// Makes the corner of two sides. False when an answer fails the command.
bool makeCorner(CommandContext &context, CornerSession &session, const CornerSide &first, const CornerSide &second)
{
    CornerChanges changes(context);
    QString problem;
    if (std::abs(first.shape.height - second.shape.height) > 1e-6)
        problem = u"They do not lie in one plane."_s;
    else if (first.polyline && second.polyline && first.record == second.record)
        problem = cutWithin(changes, session, first, second);
    else if (first.record == second.record)
        problem = u"Two different ones are needed."_s;
    else if (first.shape.isStraight && second.shape.isStraight)
        problem = cutStraight(context, changes, session, first, second);
    else if (session.cut.isRound)
        problem = filletRound(context, changes, session, first, second);
    else
        problem = u"Only straight lines can be chamfered."_s;
    session.done.push_back(std::move(changes));
    return problem.isEmpty() || !context.refuse(problem);
}

Dialogue<bool> askTrim(CommandContext &context, CornerSession &session)
{
    const QString mode = co_await askUsualOption(context, u"Enter Trim mode option [Trim/No trim]"_s,
                                                 session.isTrimming ? u"Trim"_s : u"No"_s);
    session.isTrimming = mode == u"Trim";
    keepValue(context, u"TRIMMODE", session.isTrimming ? 1 : 0);
    co_return true;
}

Dialogue<bool> askChamferDistances(CommandContext &context, CornerSession &session)
{
    session.cut.first = co_await askUsualLength(context, u"Specify first chamfer distance"_s, session.cut.first);
    const double usual = session.cut.first;
    session.cut.second = co_await askUsualLength(context, u"Specify second chamfer distance"_s, usual);
    session.byAngle = false;
    keepValue(context, u"CHAMFERA", session.cut.first);
    keepValue(context, u"CHAMFERB", session.cut.second);
    keepValue(context, u"CHAMMODE", 0);
    co_return true;
}

Dialogue<bool> askChamferAngle(CommandContext &context, CornerSession &session)
{
    session.length = co_await askUsualLength(context, u"Specify chamfer length on the first line"_s, session.length);
    const QString usual = context.shownAngle(session.angle);
    const PromptReply angle =
        co_await context.angle(u"Specify chamfer angle from the first line <%1>: "_s.arg(usual), {}, {}, usual);
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
        session.cut.radius = co_await askUsualLength(context, u"Specify fillet radius"_s, session.cut.radius);
        keepValue(context, u"FILLETRAD", session.cut.radius);
    } else if (option == u"Distance") {
        co_await askChamferDistances(context, session);
    } else if (option == u"Angle") {
        co_await askChamferAngle(context, session);
    } else if (option == u"mEthod") {
        const QString method = co_await askUsualOption(context, u"Enter trim method [Distance/Angle]"_s,
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
    const QString prompt = session.cut.isRound ? u"Select 2D polyline or [Radius]: "_s
                                               : u"Select 2D polyline or [Distance/Angle/mEthod]: "_s;
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
            if (context.refuse(u"Requires a flat polyline."_s))
                co_return false;
            continue;
        }
        if (editable(context, {polyline->record}).empty())
            continue;
        const CornerCounts counts = cutAllCorners(*polyline, session.current());
        CornerChanges changes(context);
        changes.store(*polyline);
        session.done.push_back(std::move(changes));
        context.print(u"\n%1 lines were %2"_s.arg(counts.cut).arg(session.verb()));
        if (counts.tooShort > 0)
            context.print(u"\n%1 were too short"_s.arg(counts.tooShort));
        if (counts.parallel > 0)
            context.print(u"\n%1 were parallel"_s.arg(counts.parallel));
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
        isFailed =
            context.refuse(u"Requires a line, arc, circle or straight stretch of a polyline in the user's plane."_s);
    return side;
}

/// The second one, and the corner. False when the command ends.
Dialogue<bool> askSecondSide(CommandContext &context, CornerSession &session, CornerSide first)
{
    const bool isFillet = session.cut.isRound;
    const QString prompt =
        isFillet ? u"Select second object or [Radius]: "_s : u"Select second line or [Distance/Angle/Method]: "_s;
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
    const QString prompt = isFillet ? u"Select first object or [Undo/Polyline/Radius/Trim/Multiple]: "_s
                                    : u"Select first line or [Undo/Polyline/Distance/Angle/Trim/mEthod/Multiple]: "_s;
    const QString options =
        isFillet ? u"Undo Polyline Radius Trim Multiple"_s : u"Undo Polyline Distance Angle Trim mEthod Multiple"_s;
    for (;;) {
        const PromptReply reply = co_await askSide(context, prompt, options);
        if (reply.isEmpty() && !reply.isMiss)
            co_return true;
        bool goesOn = true;
        if (reply.isKeyword(u"Undo")) {
            if (session.done.empty())
                context.print(u"\nNothing to undo"_s);
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
    context.print(u"\nCurrent settings: Mode = %1, Radius = %2"_s.arg(session.isTrimming ? u"TRIM"_s : u"NOTRIM"_s,
                                                                      context.shownLength(session.cut.radius)));
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
    context.print(u"\n(%1 mode) Current chamfer Dist1 = %2, Dist2 = %3"_s.arg(
        session.isTrimming ? u"TRIM"_s : u"NOTRIM"_s, context.shownLength(session.cut.first),
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
