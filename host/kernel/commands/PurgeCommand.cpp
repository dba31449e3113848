#include "host/drawing/Blocks.h"
#include "host/drawing/UnusedBlocks.h"
#include "host/drawing/Wildcard.h"
#include "host/kernel/commands/CommandContext.h"
#include "host/kernel/commands/Commands.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

// What to purge, names, and whether each is to be confirmed.
CommandTask purge(CommandContext &context)
{
    const PromptReply what =
        co_await context.keyword(u"Enter type of unused objects to purge [Blocks]: "_s, u"Blocks"_s);
    if (!what.hasValue())
        co_return;
    const PromptReply names = co_await context.text(u"Enter name(s) to purge <*>: "_s, u"*"_s);
    const PromptReply verify =
        co_await context.keyword(u"Verify each name to be purged? [Yes/No] <Yes>: "_s, u"Yes No"_s, u"Yes"_s);
    const QString pattern = names.hasValue() ? names.text.trimmed() : u"*"_s;
    drawing::Blocks &blocks = context.drawing().blocks();
    const auto unused = drawing::unusedBlocks(
        context.drawing(), [&pattern](const QString &name) { return drawing::matchesWildcard(name, pattern); });
    if (unused.empty())
        context.print(u"\nNo unreferenced blocks found."_s);
    const bool isConfirmed = verify.text != u"No"_s;
    for (const drawing::RecordId block : unused) {
        const QString name = blocks.name(block);
        if (isConfirmed) {
            const PromptReply answer =
                co_await context.keyword(u"Purge block \"%1\"? [Yes/No] <No>: "_s.arg(name), u"Yes No"_s, u"No"_s);
            if (answer.text != u"Yes"_s)
                continue;
        }
        context.print(u"\nDeleting block \"%1\"."_s.arg(name));
        // Each at once, for the user may stop; all together costs one search for what they own.
        if (isConfirmed)
            blocks.erase(block);
    }
    if (!isConfirmed)
        blocks.erase(unused);
}

} // namespace

std::vector<CommandRow> purgeCommands()
{
    return {{"-PURGE", purge, "Takes block definitions out of the drawing that nothing refers to"}};
}

} // namespace host::kernel
