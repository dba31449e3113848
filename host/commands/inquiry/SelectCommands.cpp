#include "host/commands/Commands.h"
#include "host/commands/common/ObjectChoice.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

// What is chosen is the previous selection.
CommandTask selectObjects(CommandContext &context)
{
    co_await context.selection();
}

// What is chosen is there for the next command, and shown so until then.
CommandTask preselect(CommandContext &context)
{
    const ObjectChoice chosen = co_await askObjects(context, Commands::tr("Select objects: "));
    context.document().setImpliedSelection(chosen.entities);
}

} // namespace

std::vector<CommandRow> selectCommands()
{
    return {{"PSELECT", preselect, "Chooses entities for the next command"},
            {"SELECT", selectObjects, "Chooses entities; they are the previous selection then"}};
}

} // namespace host::kernel
