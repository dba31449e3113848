#include "host/commands/Commands.h"
#include "host/commands/draw/LastEnd.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/running/Dialogue.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::RecordId;
using drawing::Vec3;

RecordId createLine(CommandContext &context, const Vec3 &from, const Vec3 &to)
{
    return context.create({{0, u"LINE"_s}, {10, from}, {11, to}});
}

/// Where a line begins: an empty answer is the end of what was drawn last, and behind an arc the line leaves it
/// straight on, so that its length alone is asked for. The points that are known then; none when there is nothing to
/// go on from.
Dialogue<std::vector<Vec3>> askLineStart(CommandContext &context)
{
    const PromptReply first = co_await context.point(Commands::tr("Specify first point: "));
    if (first.hasValue())
        co_return std::vector<Vec3>{first.point};
    const std::optional<LastEnd> last = lastEnd(context);
    if (!last) {
        context.fail(Commands::tr("No line or arc to continue."));
        co_return std::vector<Vec3>();
    }
    if (!last->isRound)
        co_return std::vector<Vec3>{last->point};
    const PromptReply length =
        co_await context.distance(Commands::tr("Length of line: "), {}, last->point, {}, NoEmptyAnswer);
    co_return std::vector<Vec3>{last->point, last->point + normalized(last->direction) * length.real};
}

// First point, next points; Undo takes back one segment, Close goes back to the first point.
CommandTask line(CommandContext &context)
{
    std::vector<Vec3> points = co_await askLineStart(context);
    if (points.empty())
        co_return;
    std::vector<RecordId> segments;
    if (points.size() == 2)
        segments.push_back(createLine(context, points[0], points[1]));
    PromptReply reply;
    for (;;) {
        const QString shown = points.size() > 2 ? Commands::tr("Specify next point or [Close/Undo]: ")
                                                : Commands::tr("Specify next point or [Undo]: ");
        reply = co_await context.point(shown, {}, points.back());
        if (reply.isEmpty())
            co_return;
        if (reply.isKeyword(u"Close")) {
            createLine(context, points.back(), points.front());
            co_return;
        }
        if (reply.isKeyword(u"Undo")) {
            if (segments.empty())
                continue;
            context.drawing().setErased(segments.back(), true);
            segments.pop_back();
            points.pop_back();
            continue;
        }
        segments.push_back(createLine(context, points.back(), reply.point));
        points.push_back(reply.point);
    }
}

// One point.
CommandTask point(CommandContext &context)
{
    const PromptReply reply = co_await context.point(Commands::tr("Specify a point: "));
    if (reply.hasValue())
        context.create({{0, u"POINT"_s}, {10, reply.point}});
}

} // namespace

std::vector<CommandRow> drawCommands()
{
    return {{"LINE", line, "Draws straight segments", WhenCancelled::KeepDone}, {"POINT", point, "Draws a point"}};
}

} // namespace host::kernel
