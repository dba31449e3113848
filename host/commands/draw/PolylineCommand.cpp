#include "host/commands/Commands.h"
#include "host/commands/common/CircleGeometry.h"
#include "host/commands/common/UserPlane.h"
#include "host/commands/draw/PolylineArcs.h"
#include "host/commands/draw/PolylineDraft.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::Vec2;
using drawing::Vec3;

/// What an answer to the polyline's prompt leaves to do.
enum class Next
{
    GoOn,
    Finish,
    Abandon ///< an answer could not be taken
};

/// Widths as they are, or half of them.
Dialogue<Next> askWidths(CommandContext &context, PolylineDraft &draft, const QString &option)
{
    const double share = option == u"Halfwidth" ? 0.5 : 1.0;
    double start = draft.widths.start * share;
    for (double *width : {&draft.widths.start, &draft.widths.end}) {
        const QString usual = context.shownLength(start);
        const bool isStart = width == &draft.widths.start;
        const QString prompt = share < 1.0 ? (isStart ? Commands::tr("Specify starting half-width <%1>: ")
                                                      : Commands::tr("Specify ending half-width <%1>: "))
                                           : (isStart ? Commands::tr("Specify starting width <%1>: ")
                                                      : Commands::tr("Specify ending width <%1>: "));
        const PromptReply reply = co_await context.distance(prompt.arg(usual), {}, {}, usual, NoNegative);
        start = reply.hasValue() ? reply.real : start;
        *width = start / share;
    }
    co_return Next::GoOn;
}

Dialogue<Next> askLength(CommandContext &context, PolylineDraft &draft)
{
    const PromptReply length =
        co_await context.distance(Commands::tr("Specify length of line: "), {}, {}, {}, NoEmptyAnswer);
    const double direction = draft.direction();
    draft.add(draft.last() + Vec2{std::cos(direction), std::sin(direction)} * length.real);
    co_return Next::GoOn;
}

/// The options that straight segments and arcs share.
Dialogue<Next> takePolylineOption(CommandContext &context, PolylineDraft &draft, const QString &option)
{
    if (option == u"Undo") {
        if (!draft.undo())
            context.print(Commands::tr("\nAll segments already undone."));
        co_return Next::GoOn;
    }
    if (option == u"Length")
        co_return co_await askLength(context, draft);
    if (option == u"Halfwidth" || option == u"Width")
        co_return co_await askWidths(context, draft, option);
    const MaybeArc arc = co_await askArc(context, draft, option);
    if (arc)
        draft.add(arc->to, arc->bulge);
    co_return context.hasFailed() ? Next::Abandon : Next::GoOn;
}

QString promptFor(bool drawsArcs, bool mayClose)
{
    if (drawsArcs)
        return Commands::tr(
                   "Specify endpoint of arc or [Angle/CEnter/%1Direction/Halfwidth/Line/Radius/Second pt/Undo/Width]: ")
            .arg(mayClose ? u"CLose/"_s : QString());
    return Commands::tr("Specify next point or [Arc/%1Halfwidth/Length/Undo/Width]: ")
        .arg(mayClose ? u"Close/"_s : QString());
}

/// One answer to the polyline's prompt.
Dialogue<Next> askSegment(CommandContext &context, PolylineDraft &draft, bool &drawsArcs)
{
    const UserPlane plane(context.document());
    const Vec3 base = plane.worldFromUser({draft.last().x, draft.last().y, draft.height});
    const bool mayClose = draft.vertices.size() > (drawsArcs ? 1 : 2);
    const PromptReply reply = co_await context.point(promptFor(drawsArcs, mayClose), {}, base);
    if (reply.isEmpty())
        co_return Next::Finish;
    if (reply.isKeyword(u"Arc") || reply.isKeyword(u"Line")) {
        drawsArcs = reply.isKeyword(u"Arc");
        co_return Next::GoOn;
    }
    const auto bulgeTo = [&](Vec2 to) { return drawsArcs ? bulgeAlong(draft.last(), draft.direction(), to) : 0.0; };
    if (reply.isKeyword(u"Close")) {
        draft.close(bulgeTo(draft.vertices.front().point));
        co_return Next::Finish;
    }
    if (reply.kind == ReplyKind::Keyword)
        co_return co_await takePolylineOption(context, draft, reply.text);
    const Vec2 to = plane.userFromWorld(reply.point).xy();
    const bool isArc = drawsArcs && (to - draft.last()).length() > 0.0;
    const double bulge = isArc ? bulgeTo(to) : 0.0;
    // Straight back along the tangent there is no arc.
    draft.add(to, std::abs(bulge) < 1e9 ? bulge : 0.0);
    co_return Next::GoOn;
}

// Points, and options for arcs and widths; the polyline is made when its last point is known.
CommandTask polyline(CommandContext &context)
{
    const PromptReply start = co_await context.neededPoint(Commands::tr("Specify start point: "));
    SystemVariables &variables = context.document().variables();
    const Vec3 user = UserPlane(context.document()).userFromWorld(start.point);
    const double width = variables.real(u"PLINEWID");
    context.print(Commands::tr("\nCurrent line-width is %1").arg(context.shownLength(width)));
    PolylineDraft draft;
    draft.vertices.push_back({user.xy()});
    draft.widths = {width, width};
    draft.height = user.z;
    bool drawsArcs = false;
    Next next = Next::GoOn;
    while (next == Next::GoOn)
        next = co_await askSegment(context, draft, drawsArcs);
    if (next == Next::Abandon)
        co_return;
    if (draft.widths.end != width)
        variables.setInternally(u"PLINEWID", draft.widths.end);
    createPolyline(context, draft);
}

} // namespace

std::vector<CommandRow> polylineCommands()
{
    return {{"PLINE", polyline, "Draws a polyline of straight segments and arcs"}};
}

} // namespace host::kernel
