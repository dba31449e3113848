#include "host/commands/Commands.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/running/Dialogue.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

/// Takes back steps and names them.
void takeBack(CommandContext &context, int count)
{
    UndoSteps &steps = context.document().undoSteps();
    QStringList names;
    while (names.size() < count && steps.canUndo()) {
        const QString name = steps.undoName();
        if (steps.undo() == 0)
            break;
        names.append(name);
    }
    if (!names.isEmpty())
        context.print(u'\n' + names.join(u' '));
    if (names.size() < count)
        context.print(Commands::tr("\nEverything has been undone."));
}

CommandTask undoOne(CommandContext &context)
{
    takeBack(context, 1);
    co_return;
}

/// Undo is always on here; what the options ask next is taken, so that programs and scripts go on in step.
Dialogue<bool> askSetting(CommandContext &context, bool isAuto)
{
    if (isAuto) {
        co_await context.keyword(Commands::tr("Enter UNDO Auto mode [ON/OFF] <ON>: "), {}, u"ON"_s);
        co_return true;
    }
    const PromptReply control = co_await context.keyword(
        Commands::tr("Enter an UNDO control option [All/None/One/Combine/Layer] <All>: "), {}, u"All"_s);
    if (control.text == u"Combine"_s)
        co_await context.keyword(Commands::tr("Combine zoom and pan operations? [Yes/No] <Yes>: "), {}, u"Yes"_s);
    else if (control.text == u"Layer"_s)
        co_await context.keyword(Commands::tr("Combine layer property changes? [Yes/No] <Yes>: "), {}, u"Yes"_s);
    else if (control.text == u"None"_s || control.text == u"One"_s)
        context.print(Commands::tr("\nUndo is always on."));
    co_return true;
}

/// To the last mark; where there is none, all of it, if the user wants that.
Dialogue<bool> goBack(CommandContext &context)
{
    UndoSteps &steps = context.document().undoSteps();
    if (!steps.hasMark()) {
        const PromptReply sure =
            co_await context.keyword(Commands::tr("This will undo everything. OK? [Yes/No] <Yes>: "), {}, u"Yes"_s);
        if (sure.text == u"No"_s)
            co_return false;
    }
    steps.back();
    co_return true;
}

// A number of steps, or BEgin, End, Mark, Back.
CommandTask undo(CommandContext &context)
{
    const PromptReply reply = co_await context.integer(
        Commands::tr("Enter the number of operations to undo or [Auto/Control/BEgin/End/Mark/Back] <1>: "),
        u"Auto Control BEgin End Mark Back Group"_s, u"1"_s, NoNegative | NoZero);
    UndoSteps &steps = context.document().undoSteps();
    if (reply.isKeyword(u"BEgin") || reply.isKeyword(u"Group"))
        steps.begin();
    else if (reply.isKeyword(u"End"))
        steps.end();
    else if (reply.isKeyword(u"Mark"))
        steps.mark();
    else if (reply.isKeyword(u"Back"))
        co_await goBack(context);
    else if (reply.kind == ReplyKind::Keyword)
        co_await askSetting(context, reply.isKeyword(u"Auto"));
    else
        takeBack(context, reply.hasValue() ? reply.integer : 1);
}

void redoSteps(CommandContext &context, int count)
{
    if (context.document().undoSteps().redo(count) == 0)
        context.print(Commands::tr("\nThere is nothing to redo."));
}

CommandTask redo(CommandContext &context)
{
    redoSteps(context, 1);
    co_return;
}

// A number of steps, all that were undone, or the last one.
CommandTask redoMany(CommandContext &context)
{
    const PromptReply reply = co_await context.integer(Commands::tr("Enter number of actions or [All/Last]: "), {}, {},
                                                       NoEmptyAnswer | NoNegative | NoZero);
    redoSteps(context, reply.isKeyword(u"All")    ? std::numeric_limits<int>::max()
                       : reply.isKeyword(u"Last") ? 1
                                                  : reply.integer);
}

/// Brings back what ERASE, or the making or writing of a block, took out last, also behind other commands.
CommandTask oops(CommandContext &context)
{
    drawing::Drawing &drawing = context.drawing();
    const CommandMemory &memory = context.document().memory();
    const bool isUndone = memory.undosBefore != context.document().undoSteps().undoCount();
    int count = 0;
    for (const drawing::RecordId id : memory.takenOut) {
        if (isUndone || drawing.isAlive(id))
            continue;
        drawing.dictionaries().setErasedWithOwned(id, false);
        ++count;
    }
    if (count == 0)
        context.print(Commands::tr("\nThere is nothing to bring back."));
    co_return;
}

// Asks for the name of a command alone; what that asks comes next.
CommandTask multiple(CommandContext &context)
{
    const PromptReply name = co_await context.name(Commands::tr("Enter command name to repeat: "));
    if (name.hasValue() && !context.repeat(name.text))
        context.fail(Commands::tr("Unknown command \"%1\": only built-in ones are repeated.").arg(name.text));
}

} // namespace

std::vector<CommandRow> undoCommands()
{
    return {{"MREDO", redoMany, "Does again what was undone, several steps at once"},
            {"MULTIPLE", multiple, "Runs a command again and again until it is cancelled"},
            {"OOPS", oops, "Brings back what was erased last"},
            {"REDO", redo, "Does again what was undone last"},
            {"U", undoOne, "Takes back the last step"},
            {"UNDO", undo, "Takes back steps; marks and groups them"}};
}

} // namespace host::kernel
