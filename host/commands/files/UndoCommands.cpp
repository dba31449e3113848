#include "host/commands/Commands.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/running/CommandContext.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

void report(CommandContext &context, int done, const QString &otherwise)
{
    if (done == 0)
        context.print(u'\n' + otherwise);
}

CommandTask undoOne(CommandContext &context)
{
    UndoSteps &steps = context.document().undoSteps();
    const QString name = steps.undoName();
    if (steps.undo() > 0)
        context.print(u'\n' + name);
    else
        context.print(u"\nEverything has been undone."_s);
    co_return;
}

// A number of steps, or BEgin, End, Mark, Back.
CommandTask undo(CommandContext &context)
{
    const PromptReply reply = co_await context.integer(
        u"Enter the number of operations to undo or [Auto/Control/BEgin/End/Mark/Back] <1>: "_s,
        u"Auto Control BEgin End Mark Back"_s, u"1"_s);
    UndoSteps &steps = context.document().undoSteps();
    if (reply.isKeyword(u"BEgin"))
        steps.begin();
    else if (reply.isKeyword(u"End"))
        steps.end();
    else if (reply.isKeyword(u"Mark"))
        steps.mark();
    else if (reply.isKeyword(u"Back"))
        steps.back();
    else if (reply.kind == ReplyKind::Keyword)
        // Undo is always on here; what the option asks next is taken so that scripts go on in step.
        co_await context.name(u"Undo is always on. Setting: "_s);
    else
        report(context, steps.undo(reply.hasValue() ? reply.integer : 1), u"Everything has been undone."_s);
}

CommandTask redo(CommandContext &context)
{
    report(context, context.document().undoSteps().redo(), u"There is nothing to redo."_s);
    co_return;
}

} // namespace

std::vector<CommandRow> undoCommands()
{
    return {{"REDO", redo, "Does again what was undone last"},
            {"U", undoOne, "Takes back the last step"},
            {"UNDO", undo, "Takes back steps; marks and groups them"}};
}

} // namespace host::kernel
