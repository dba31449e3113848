#include "host/commands/Commands.h"
#include "host/commands/common/CircleGeometry.h"
#include "host/commands/common/KeptValues.h"
#include "host/commands/common/UserPlane.h"
#include "host/commands/draw/PolylineDraft.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::Vec2;
using drawing::Vec3;

constexpr qint32 fewestSides = 3;
constexpr qint32 mostSides = 1024;

/// Corners round a centre, to the left from the first one.
PolylineDraft polygonRound(CommandContext &context, const Vec3 &centre, Vec2 first, qint32 sides)
{
    std::vector<Vec2> corners;
    for (qint32 i = 0; i < sides; ++i)
        corners.push_back(turnedRound(first, centre.xy(), 2.0 * M_PI * i / sides));
    return closedDraft(corners, centre.z, context.document().variables().real(u"PLINEWID"));
}

Dialogue<qint32> askSides(CommandContext &context)
{
    const qint32 usual = context.document().variables().integer(u"POLYSIDES", 4);
    const QString shown = QString::number(usual);
    for (;;) {
        const PromptReply reply =
            co_await context.integer(Commands::tr("Enter number of sides <%1>: ").arg(shown), {}, shown);
        const qint32 sides = reply.hasValue() ? reply.integer : usual;
        if (sides >= fewestSides && sides <= mostSides)
            co_return sides;
        if (context.refuse(Commands::tr("A polygon has 3 to 1024 sides.")))
            co_return 0;
    }
}

Dialogue<PolylineDraft> askEdge(CommandContext &context, qint32 sides)
{
    const UserPlane plane(context.document());
    const PromptReply first = co_await context.neededPoint(Commands::tr("Specify first endpoint of edge: "));
    const PromptReply second =
        co_await context.neededPoint(Commands::tr("Specify second endpoint of edge: "), first.point);
    const Vec3 from = plane.userFromWorld(first.point);
    const Vec2 edge = plane.userFromWorld(second.point).xy() - from.xy();
    const Vec2 centre = from.xy() + edge * 0.5 + turnedLeft(edge) * (0.5 / std::tan(M_PI / sides));
    co_return polygonRound(context, {centre.x, centre.y, from.z}, from.xy(), sides);
}

/// A radius by a point leads to a corner, or to the middle of an edge; a typed one lays an edge at the bottom.
Dialogue<PolylineDraft> askAroundCentre(CommandContext &context, qint32 sides, const Vec3 centreAt)
{
    const QString option = co_await askUsualOption(
        context, Commands::tr("Enter an option [Inscribed in circle/Circumscribed about circle]"), u"Inscribed"_s);
    const PromptReply radius = co_await context.distance(Commands::tr("Specify radius of circle: "), {}, centreAt, {},
                                                         NoEmptyAnswer | NoZero | NoNegative | FlatDistance);
    const UserPlane plane(context.document());
    const Vec3 centre = plane.userFromWorld(centreAt);
    const double half = M_PI / sides;
    const bool isInscribed = option == u"Inscribed";
    double direction = context.document().variables().real(u"SNAPANG") - M_PI / 2.0 + half;
    if (radius.isShown) {
        const Vec3 last = context.document().variables().point(u"LASTPOINT");
        const Vec2 to = (last - centre).xy();
        direction = std::atan2(to.y, to.x) + (isInscribed ? 0.0 : half);
    }
    const double reach = isInscribed ? radius.real : radius.real / std::cos(half);
    co_return polygonRound(context, centre, centre.xy() + polar(direction, reach), sides);
}

// The number of sides, then the centre and a circle within or around, or an edge.
CommandTask polygon(CommandContext &context)
{
    const qint32 sides = co_await askSides(context);
    if (sides == 0)
        co_return;
    const PromptReply centre = co_await context.neededPoint(Commands::tr("Specify center of polygon or [Edge]: "));
    PolylineDraft draft;
    if (centre.isKeyword(u"Edge"))
        draft = co_await askEdge(context, sides);
    else
        draft = co_await askAroundCentre(context, sides, centre.point);
    keepValue(context, u"POLYSIDES", sides);
    if (draft.vertices[0].point == draft.vertices[1].point)
        context.fail(Commands::tr("The endpoints of the edge are one point."));
    else
        createPolyline(context, draft);
}

void createDonut(CommandContext &context, const Vec3 &centreAt, double inside, double outside)
{
    const Vec3 centre = UserPlane(context.document()).userFromWorld(centreAt);
    const double radius = (inside + outside) / 4.0;
    PolylineDraft draft = closedDraft({{centre.x - radius, centre.y}, {centre.x + radius, centre.y}}, centre.z,
                                      std::abs(outside - inside) / 2.0);
    for (PolylineDraft::Vertex &vertex : draft.vertices)
        vertex.bulge = 1.0;
    createPolyline(context, draft);
}

// Two diameters, then centres until an empty answer.
CommandTask donut(CommandContext &context)
{
    const SystemVariables &variables = context.document().variables();
    const double inside = co_await askUsualLength(context, Commands::tr("Specify inside diameter of donut"),
                                                  variables.real(u"DONUTID", 0.5));
    const double outside = co_await askUsualLength(context, Commands::tr("Specify outside diameter of donut"),
                                                   variables.real(u"DONUTOD", 1.0), NoZero | NoNegative);
    keepValue(context, u"DONUTID", inside);
    keepValue(context, u"DONUTOD", outside);
    for (;;) {
        const PromptReply centre = co_await context.point(Commands::tr("Specify center of donut or <exit>: "));
        if (!centre.hasValue())
            co_return;
        createDonut(context, centre.point, inside, outside);
    }
}

} // namespace

std::vector<CommandRow> polygonCommands()
{
    return {{"DONUT", donut, "Draws filled rings", WhenCancelled::KeepDone},
            {"DOUGHNUT", donut, "Draws filled rings", WhenCancelled::KeepDone},
            {"POLYGON", polygon, "Draws a polygon with sides of one length"}};
}

} // namespace host::kernel
