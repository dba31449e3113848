#include "host/commands/Commands.h"
#include "host/commands/spaces/LayoutFiles.h"
#include "host/drawing/editing/LayoutEdits.h"
#include "host/drawing/records/Blocks.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/running/Dialogue.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::LayoutTab;

/// Asks for a layout, `usual` being offered; an empty answer without an offer is the current one. Nothing after a
/// cancel, and, which is told, where there is none of that name.
Dialogue<std::optional<LayoutTab>> askForLayout(CommandContext &context, QString question, QString usual)
{
    const PromptReply reply = co_await context.text(question, usual);
    if (reply.kind == ReplyKind::Cancelled)
        co_return std::nullopt;
    const QString name = reply.hasValue() ? reply.text.trimmed() : currentLayout(context.drawing());
    std::optional<LayoutTab> found = drawing::findLayout(context.drawing(), name);
    if (!found)
        context.fail(Commands::tr("Layout \"%1\" not found.").arg(name));
    co_return found;
}

/// The sheet that is offered where model space is no answer.
QString offeredSheet(CommandContext &context)
{
    return isModelTab(context.drawing()) ? QString() : currentLayout(context.drawing());
}

void listLayouts(CommandContext &context)
{
    const std::vector<LayoutTab> tabs = drawing::layoutTabs(context.drawing());
    context.print(Commands::tr("\nActive layouts:"));
    for (const LayoutTab &tab : tabs)
        context.print(Commands::tr("\nLayout: %1\tBlock name: %2.")
                          .arg(tab.name, isValid(tab.block) ? context.drawing().blocks().name(tab.block) : u"-"_s));
    context.print(Commands::tr("\n%1 active layout(s) found.").arg(tabs.size()));
}

/// The outcome of an edit: a reason to end with, or a line for the user.
void tell(CommandContext &context, const QString &obstacle, const QString &done)
{
    if (obstacle.isEmpty())
        context.print(u'\n' + done);
    else
        context.fail(obstacle);
}

Dialogue<bool> copyOne(CommandContext &context)
{
    const auto layout =
        co_await askForLayout(context, Commands::tr("Enter name of layout to copy: "), offeredSheet(context));
    if (!layout)
        co_return false;
    const QString usual = drawing::freeCopyName(context.drawing(), layout->name);
    const PromptReply name = co_await context.text(Commands::tr("Enter layout name for copy: "), usual);
    if (name.kind == ReplyKind::Cancelled)
        co_return false;
    const QString chosen = name.hasValue() ? name.text.trimmed() : usual;
    tell(context, drawing::copyLayout(context.drawing(), *layout, chosen),
         Commands::tr("Layout \"%1\" copied to \"%2\".").arg(layout->name, chosen));
    co_return true;
}

Dialogue<bool> makeOne(CommandContext &context)
{
    const QString usual = drawing::freeLayoutName(context.drawing());
    const PromptReply name = co_await context.text(Commands::tr("Enter new Layout name: "), usual);
    if (name.kind == ReplyKind::Cancelled)
        co_return false;
    const QString chosen = name.hasValue() ? name.text.trimmed() : usual;
    tell(context, drawing::newLayout(context.drawing(), chosen), Commands::tr("Layout \"%1\" created.").arg(chosen));
    co_return true;
}

Dialogue<bool> renameOne(CommandContext &context)
{
    const auto layout = co_await askForLayout(context, Commands::tr("Enter layout to rename: "), offeredSheet(context));
    if (!layout)
        co_return false;
    const PromptReply name = co_await context.text(Commands::tr("Enter new layout name: "));
    if (!name.hasValue())
        co_return false;
    const QString chosen = name.text.trimmed();
    tell(context, drawing::renameLayout(context.drawing(), *layout, chosen),
         Commands::tr("Layout \"%1\" renamed to \"%2\".").arg(layout->name, chosen));
    co_return true;
}

/// Where the deleted one was current, the sheet that is in use then becomes so.
Dialogue<bool> deleteOne(CommandContext &context)
{
    const auto layout =
        co_await askForLayout(context, Commands::tr("Enter name of layout to delete: "), offeredSheet(context));
    if (!layout)
        co_return false;
    tell(context, drawing::deleteLayout(context.drawing(), *layout),
         Commands::tr("Layout \"%1\" deleted.").arg(layout->name));
    context.document().followLayout();
    co_return true;
}

Dialogue<bool> makeCurrent(CommandContext &context)
{
    const auto layout = co_await askForLayout(context, Commands::tr("Enter layout to make current: "),
                                              currentLayout(context.drawing()));
    if (!layout)
        co_return false;
    setCurrentLayout(context.drawing(), layout->name);
    context.document().followLayout();
    co_return true;
}

/// Another place among the sheets, counted from 1; the others keep their order.
Dialogue<bool> moveOne(CommandContext &context)
{
    const auto layout = co_await askForLayout(context, Commands::tr("Enter layout to move: "), offeredSheet(context));
    if (!layout)
        co_return false;
    const PromptReply place =
        co_await context.integer(Commands::tr("Enter its place among the layouts: "), {}, {}, NoEmptyAnswer);
    tell(context, drawing::moveLayout(context.drawing(), *layout, place.integer),
         Commands::tr("Layout \"%1\" moved.").arg(layout->name));
    co_return true;
}

Dialogue<bool> saveOne(CommandContext &context)
{
    const QString question = Commands::tr("Enter layout to save to template: ");
    const auto layout = co_await askForLayout(context, question, offeredSheet(context));
    if (!layout)
        co_return false;
    const bool isSaved = co_await saveLayoutToFile(context, *layout);
    co_return isSaved;
}

CommandTask layout(CommandContext &context)
{
    const PromptReply option = co_await context.keyword(
        Commands::tr("Enter layout option [Copy/Delete/New/Template/Rename/SAveas/Set/Move/?]: "),
        u"Copy Delete New Template Rename SAveas Set Move ?"_s, u"Set"_s);
    if (option.kind == ReplyKind::Cancelled)
        co_return;
    const QString what = option.hasValue() ? option.text : u"Set"_s;
    if (what == u"Copy")
        co_await copyOne(context);
    else if (what == u"Delete")
        co_await deleteOne(context);
    else if (what == u"New")
        co_await makeOne(context);
    else if (what == u"Rename")
        co_await renameOne(context);
    else if (what == u"Set")
        co_await makeCurrent(context);
    else if (what == u"Move")
        co_await moveOne(context);
    else if (what == u"?")
        listLayouts(context);
    else if (what == u"Template")
        co_await takeLayoutsFromFile(context);
    else
        co_await saveOne(context);
}

} // namespace

std::vector<CommandRow> layoutCommands()
{
    return {{"LAYOUT", layout, "Makes, copies, renames and deletes layouts and chooses the current one"},
            {"-LAYOUT", layout, "As LAYOUT; there is no window for it"}};
}

} // namespace host::kernel
