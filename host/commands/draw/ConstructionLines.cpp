#include "host/commands/Commands.h"
#include "host/commands/common/KeptValues.h"
#include "host/commands/common/UserPlane.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::Vec2;
using drawing::Vec3;

void createEndless(CommandContext &context, const QString &type, const Vec3 &at, const Vec3 &along)
{
    if (along.length() > 0.0)
        context.create({{0, type}, {10, at}, {11, drawing::normalized(along)}});
}

/// Lines from one point through others, until an empty answer.
Dialogue<bool> askThrough(CommandContext &context, const QString type, const Vec3 from)
{
    for (;;) {
        const PromptReply through = co_await context.point(Commands::tr("Specify through point: "), {}, from);
        if (!through.hasValue())
            co_return true;
        createEndless(context, type, from, through.point - from);
    }
}

/// Lines in a direction through points, until an empty answer.
Dialogue<bool> askParallels(CommandContext &context, const Vec3 along)
{
    for (;;) {
        const PromptReply through = co_await context.point(Commands::tr("Specify through point: "));
        if (!through.hasValue())
            co_return true;
        createEndless(context, u"XLINE"_s, through.point, along);
    }
}

Vec3 directionOf(CommandContext &context, double userAngle)
{
    const UserPlane plane(context.document());
    return plane.worldFromUser({std::cos(userAngle), std::sin(userAngle), 0.0}) - plane.worldFromUser({});
}

/// A straight entity, or the straight part of a polyline, that was picked.
struct StraightPick
{
    Vec3 point;
    Vec3 along;
};

/// The stretch of a polyline that is nearest to the point.
StraightPick nearestStretch(const drawing::TagList &tags, const Vec3 &picked)
{
    const drawing::Matrix object = drawing::Matrix::fromExtrusion(tags.point(210, {0.0, 0.0, 1.0}));
    std::vector<Vec3> points;
    for (const Vec3 &point : tags.points(10))
        points.push_back(object.point({point.x, point.y, tags.real(38)}));
    if ((tags.integer(70) & 1) != 0 && !points.empty())
        points.push_back(points.front());
    StraightPick best;
    double least = std::numeric_limits<double>::infinity();
    for (std::size_t i = 1; i < points.size(); ++i) {
        const Vec3 along = points[i] - points[i - 1];
        const double square = dot(along, along);
        const double share = square > 0.0 ? std::clamp(dot(picked - points[i - 1], along) / square, 0.0, 1.0) : 0.0;
        const double away = (points[i - 1] + along * share - picked).length();
        if (away < least && square > 0.0) {
            least = away;
            best = {points[i - 1], along};
        }
    }
    return best;
}

/// Asks for a line. Nothing for an empty answer.
Dialogue<std::optional<StraightPick>> askLineObject(CommandContext &context)
{
    for (;;) {
        const PromptReply reply = co_await context.entity(Commands::tr("Select a line object: "));
        if (reply.entities.empty() && !reply.isMiss)
            co_return std::nullopt;
        StraightPick found;
        if (!reply.entities.empty()) {
            const drawing::RecordId id = reply.entities.front();
            const drawing::TagList tags = context.drawing().tags(id);
            if (context.drawing().isType(id, "LINE"))
                found = {tags.point(10), tags.point(11) - tags.point(10)};
            else if (context.drawing().isType(id, "XLINE") || context.drawing().isType(id, "RAY"))
                found = {tags.point(10), tags.point(11)};
            else if (context.drawing().isType(id, "LWPOLYLINE"))
                found = nearestStretch(tags, reply.point);
        }
        if (found.along.length() > 0.0)
            co_return found;
        if (context.refuse(Commands::tr("Requires a line, a ray or a straight part of a polyline.")))
            co_return std::nullopt;
    }
}

Dialogue<bool> askAngled(CommandContext &context)
{
    const QString zero = context.shownAngle(0.0);
    PromptReply angle = co_await context.orientation(
        Commands::tr("Enter angle of xline (%1) or [Reference]: ").arg(zero), {}, {}, zero);
    if (!angle.isKeyword(u"Reference")) {
        co_await askParallels(context, directionOf(context, angle.hasValue() ? angle.real : 0.0));
        co_return true;
    }
    const std::optional<StraightPick> line = co_await askLineObject(context);
    if (!line)
        co_return false;
    const UserPlane plane(context.document());
    const Vec3 along = plane.userFromWorld(line->along) - plane.userFromWorld({});
    angle = co_await context.angle(Commands::tr("Enter angle of xline <%1>: ").arg(zero), {}, {}, zero);
    const double turn = angle.hasValue() ? angle.real : 0.0;
    co_await askParallels(context, directionOf(context, std::atan2(along.y, along.x) + turn));
    co_return true;
}

Dialogue<bool> askBisecting(CommandContext &context)
{
    const PromptReply vertex = co_await context.neededPoint(Commands::tr("Specify angle vertex point: "));
    const PromptReply start = co_await context.neededPoint(Commands::tr("Specify angle start point: "), vertex.point);
    const Vec3 first = drawing::normalized(start.point - vertex.point);
    for (;;) {
        const PromptReply end = co_await context.point(Commands::tr("Specify angle end point: "), {}, vertex.point);
        if (!end.hasValue())
            co_return true;
        const Vec3 second = drawing::normalized(end.point - vertex.point);
        const Vec3 middle = first + second;
        const UserPlane plane(context.document());
        const Vec3 normal = plane.worldFromUser({0.0, 0.0, 1.0}) - plane.worldFromUser({});
        // Half of a straight angle stands at right angles to it.
        createEndless(context, u"XLINE"_s, vertex.point, middle.length() > 1e-12 ? middle : cross(normal, first));
    }
}

Dialogue<bool> askOffsets(CommandContext &context)
{
    const double kept = context.document().variables().real(u"OFFSETDIST", -1.0);
    const QString usual = kept > 0.0 ? context.shownLength(kept) : u"Through"_s;
    const PromptReply distance = co_await context.distance(
        Commands::tr("Specify offset distance or [Through] <%1>: ").arg(usual), {}, {}, usual, NoNegative);
    const bool isThrough = distance.isKeyword(u"Through") || (distance.isEmpty() && kept <= 0.0);
    const double away = distance.hasValue() ? distance.real : kept;
    keepValue(context, u"OFFSETDIST", isThrough ? -1.0 : away);
    for (;;) {
        const std::optional<StraightPick> line = co_await askLineObject(context);
        if (!line)
            co_return true;
        const QString sidePrompt =
            isThrough ? Commands::tr("Specify through point: ") : Commands::tr("Specify side to offset: ");
        const PromptReply side = co_await context.neededPoint(sidePrompt);
        const Vec3 along = drawing::normalized(line->along);
        const Vec3 across = side.point - line->point;
        const Vec3 aside = drawing::normalized(across - along * dot(across, along));
        createEndless(context, u"XLINE"_s, isThrough ? side.point : line->point + aside * away, along);
    }
}

// A point and others that the lines go through; or their direction first.
CommandTask xline(CommandContext &context)
{
    const PromptReply reply =
        co_await context.neededPoint(Commands::tr("Specify a point or [Hor/Ver/Ang/Bisect/Offset]: "));
    if (reply.isKeyword(u"Hor"))
        co_await askParallels(context, directionOf(context, 0.0));
    else if (reply.isKeyword(u"Ver"))
        co_await askParallels(context, directionOf(context, M_PI / 2.0));
    else if (reply.isKeyword(u"Ang"))
        co_await askAngled(context);
    else if (reply.isKeyword(u"Bisect"))
        co_await askBisecting(context);
    else if (reply.isKeyword(u"Offset"))
        co_await askOffsets(context);
    else
        co_await askThrough(context, u"XLINE"_s, reply.point);
}

// The start and points that the rays go through.
CommandTask ray(CommandContext &context)
{
    const PromptReply start = co_await context.neededPoint(Commands::tr("Specify start point: "));
    co_await askThrough(context, u"RAY"_s, start.point);
}

} // namespace

std::vector<CommandRow> constructionLineCommands()
{
    return {{"RAY", ray, "Draws lines that end at one side only", WhenCancelled::KeepDone},
            {"XLINE", xline, "Draws lines without ends", WhenCancelled::KeepDone}};
}

} // namespace host::kernel
