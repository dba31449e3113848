#include "host/commands/Commands.h"
#include "host/drawing/file/MendInPlace.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

/// Prints what recovering the drawing would do to it, and does that where it is wanted.
CommandTask audit(CommandContext &context)
{
    const PromptReply fix =
        co_await context.keyword(Commands::tr("Fix any errors detected? [Yes/No] <No>: "), {}, u"No"_s);
    const drawing::MendedInPlace mended = drawing::mendInPlace(context.drawing(), fix.text == u"Yes"_s);
    if (!mended.error.isEmpty()) {
        context.fail(mended.error);
        co_return;
    }
    constexpr qsizetype mostTold = 100;
    if (!mended.report.isEmpty())
        for (const QString &line : mended.report.lines(mostTold))
            context.print(u'\n' + line);
    context.print(Commands::tr("\nTotal errors found %1 fixed %2")
                      .arg(mended.found)
                      .arg(std::max(0, mended.found - mended.left)));
    if (mended.left > 0 && fix.text == u"Yes"_s)
        context.print(Commands::tr("\nSave the drawing and open it with --recover: that mends the others."));
}

} // namespace

std::vector<CommandRow> auditCommands()
{
    return {{"AUDIT", audit, "Looks for errors in the drawing and mends them"}};
}

} // namespace host::kernel
