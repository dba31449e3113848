#include "host/commands/Commands.h"
#include "host/commands/common/CircleGeometry.h"
#include "host/commands/common/TangentCircle.h"
#include "host/commands/common/UserPlane.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/running/Dialogue.h"
#include "host/kernel/variables/SystemVariables.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::RecordId;
using drawing::Vec2;
using drawing::Vec3;

/// A circle in the user's plane.
struct UserCircle
{
    Vec3 centre; ///< user coordinates
    double radius = 0.0;
};
/// Nothing where the dialogue ended without one; that was told.
using MaybeCircle = std::optional<UserCircle>;

Dialogue<MaybeCircle> askDiameterEnds(CommandContext &context)
{
    const UserPlane plane(context.document());
    const PromptReply first =
        co_await context.neededPoint(Commands::tr("Specify first end point of circle's diameter: "));
    const PromptReply second =
        co_await context.neededPoint(Commands::tr("Specify second end point of circle's diameter: "), first.point);
    const Vec3 from = plane.userFromWorld(first.point);
    const Vec3 to = plane.userFromWorld(second.point);
    const Vec2 middle = (from.xy() + to.xy()) * 0.5;
    co_return UserCircle{{middle.x, middle.y, from.z}, (to - from).xy().length() / 2.0};
}

Dialogue<MaybeCircle> askThreePoints(CommandContext &context)
{
    const UserPlane plane(context.document());
    std::vector<Vec3> points;
    for (const char *prompt : {QT_TRANSLATE_NOOP("Commands", "Specify first point on circle: "),
                               QT_TRANSLATE_NOOP("Commands", "Specify second point on circle: "),
                               QT_TRANSLATE_NOOP("Commands", "Specify third point on circle: ")}) {
        const std::optional<Vec3> base = points.empty() ? std::nullopt : std::optional(points.back());
        const PromptReply reply = co_await context.neededPoint(Commands::tr(prompt), base);
        points.push_back(reply.point);
    }
    std::vector<Vec2> flat;
    flat.reserve(points.size());
    for (const Vec3 &point : points)
        flat.push_back(plane.userFromWorld(point).xy());
    const std::optional<Vec2> centre = circleCentre(flat[0], flat[1], flat[2]);
    if (!centre) {
        context.fail(Commands::tr("Circle does not exist: the points lie in one line."));
        co_return std::nullopt;
    }
    co_return UserCircle{{centre->x, centre->y, plane.userFromWorld(points.front()).z}, (flat[0] - *centre).length()};
}

/// The radius, with the last one as the default.
Dialogue<double> askRadius(CommandContext &context, const QString prompt, const std::optional<Vec3> base)
{
    constexpr int bits = NoEmptyAnswer | NoZero | NoNegative;
    const double last = context.document().variables().real(u"CIRCLERAD");
    const auto shown = [&](double size) { return last > 0.0 ? context.shownLength(size) : QString(); };
    const auto withDefault = [&](const QString &text, double size) {
        return last > 0.0 ? u"%1 <%2>: "_s.arg(text, shown(size)) : text + u": "_s;
    };
    PromptReply reply = co_await context.distance(withDefault(prompt, last), {}, base, shown(last), bits);
    double factor = 1.0;
    if (reply.isKeyword(u"Diameter")) {
        reply = co_await context.distance(withDefault(Commands::tr("Specify diameter of circle"), last * 2.0), {}, base,
                                          shown(last * 2.0), bits);
        factor = 0.5;
    }
    co_return reply.hasValue() ? reply.real *factor : last;
}

Dialogue<MaybeCircle> askTangents(CommandContext &context)
{
    const UserPlane plane(context.document());
    std::vector<TangentLine> tangents;
    for (const char *prompt :
         {QT_TRANSLATE_NOOP("Commands", "Specify point on object for first tangent of circle: "),
          QT_TRANSLATE_NOOP("Commands", "Specify point on object for second tangent of circle: ")}) {
        const PromptReply picked = co_await context.entity(Commands::tr(prompt));
        if (picked.entities.empty())
            co_return std::nullopt;
        const auto found = tangentLine(context.drawing(), picked.entities.front(), plane, picked.point);
        if (!found) {
            context.fail(Commands::tr("Requires a line, an arc or a circle in the user's plane."));
            co_return std::nullopt;
        }
        tangents.push_back(*found);
    }
    const double radius = co_await askRadius(context, Commands::tr("Specify radius of circle"), {});
    const std::optional<Vec2> centre = tangentCentre(tangents[0], tangents[1], radius);
    if (!centre) {
        context.fail(Commands::tr("Circle does not exist."));
        co_return std::nullopt;
    }
    co_return UserCircle{{centre->x, centre->y, tangents[0].height}, radius};
}

Dialogue<MaybeCircle> askCircle(CommandContext &context)
{
    const PromptReply centre =
        co_await context.neededPoint(Commands::tr("Specify center point for circle or [3P/2P/Ttr (tan tan radius)]: "));
    if (centre.isKeyword(u"3P"))
        co_return co_await askThreePoints(context);
    if (centre.isKeyword(u"2P"))
        co_return co_await askDiameterEnds(context);
    if (centre.isKeyword(u"Ttr"))
        co_return co_await askTangents(context);
    const double radius =
        co_await askRadius(context, Commands::tr("Specify radius of circle or [Diameter]"), centre.point);
    co_return UserCircle{UserPlane(context.document()).userFromWorld(centre.point), radius};
}

CommandTask circle(CommandContext &context)
{
    const MaybeCircle made = co_await askCircle(context);
    if (!made)
        co_return;
    if (!(made->radius > 0.0)) {
        context.fail(Commands::tr("Circle does not exist: the points are one."));
        co_return;
    }
    const UserPlane plane(context.document());
    context.document().variables().setInternally(u"CIRCLERAD", made->radius);
    context.create(plane.placed({{0, u"CIRCLE"_s}, {10, plane.objectFromUser(made->centre)}, {40, made->radius}}));
}

} // namespace

std::vector<CommandRow> circleCommands()
{
    return {{"CIRCLE", circle, "Draws a circle: centre and radius, two or three points, two tangents and radius"}};
}

} // namespace host::kernel
