#include "host/commands/Commands.h"
#include "host/drawing/file/Recovery.h"
#include "host/kernel/running/CommandContext.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

/// Prints what recovering the drawing would do to it. It is mended by opening its file so, not while it is open.
CommandTask audit(CommandContext &context)
{
    const PromptReply fix = co_await context.keyword(u"Fix any errors detected? [Yes/No] <No>: "_s, {}, u"No"_s);
    const drawing::Recovered recovered = drawing::recoverDrawing(context.drawing().toBytes());
    if (!recovered) {
        context.fail(recovered.error.message());
        co_return;
    }
    constexpr qsizetype mostTold = 100;
    if (!recovered.report.isEmpty())
        for (const QString &line : recovered.report.lines(mostTold))
            context.print(u'\n' + line);
    int count = 0;
    for (const drawing::RecoveryStep &step : recovered.report.steps())
        count += step.count;
    context.print(u"\nTotal errors found %1 fixed 0"_s.arg(count));
    if (count > 0 && fix.text == u"Yes"_s)
        context.print(u"\nSave the drawing and open it with --recover: that mends them."_s);
}

} // namespace

std::vector<CommandRow> auditCommands()
{
    return {{"AUDIT", audit, "Looks for errors in the drawing"}};
}

} // namespace host::kernel
