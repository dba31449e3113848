#include "host/commands/Commands.h"
#include "host/commands/spaces/LayoutFiles.h"
#include "host/drawing/editing/LayoutEdits.h"
#include "host/drawing/records/Blocks.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
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
        context.fail(u"Layout \"%1\" not found."_s.arg(name));
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
    context.print(u"\nActive layouts:"_s);
    for (const LayoutTab &tab : tabs)
        context.print(u"\nLayout: %1\tBlock name: %2."_s.arg(
            tab.name, isValid(tab.block) ? context.drawing().blocks().name(tab.block) : u"-"_s));
    context.print(u"\n%1 active layout(s) found."_s.arg(tabs.size()));
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
    const auto layout = co_await askForLayout(context, u"Enter name of layout to copy: "_s, offeredSheet(context));
    if (!layout)
        co_return false;
    const QString usual = drawing::freeCopyName(context.drawing(), layout->name);
    const PromptReply name = co_await context.text(u"Enter layout name for copy: "_s, usual);
    if (name.kind == ReplyKind::Cancelled)
        co_return false;
    const QString chosen = name.hasValue() ? name.text.trimmed() : usual;
    tell(context, drawing::copyLayout(context.drawing(), *layout, chosen),
         u"Layout \"%1\" copied to \"%2\"."_s.arg(layout->name, chosen));
    co_return true;
}

Dialogue<bool> makeOne(CommandContext &context)
{
    const QString usual = drawing::freeLayoutName(context.drawing());
    const PromptReply name = co_await context.text(u"Enter new Layout name: "_s, usual);
    if (name.kind == ReplyKind::Cancelled)
        co_return false;
    const QString chosen = name.hasValue() ? name.text.trimmed() : usual;
    tell(context, drawing::newLayout(context.drawing(), chosen), u"Layout \"%1\" created."_s.arg(chosen));
    co_return true;
}

Dialogue<bool> renameOne(CommandContext &context)
{
    const auto layout = co_await askForLayout(context, u"Enter layout to rename: "_s, offeredSheet(context));
    if (!layout)
        co_return false;
    const PromptReply name = co_await context.text(u"Enter new layout name: "_s);
    if (!name.hasValue())
        co_return false;
    const QString chosen = name.text.trimmed();
    tell(context, drawing::renameLayout(context.drawing(), *layout, chosen),
         u"Layout \"%1\" renamed to \"%2\"."_s.arg(layout->name, chosen));
    co_return true;
}

/// Where the deleted one was current, the sheet that is in use then becomes so.
Dialogue<bool> deleteOne(CommandContext &context)
{
    const auto layout = co_await askForLayout(context, u"Enter name of layout to delete: "_s, offeredSheet(context));
    if (!layout)
        co_return false;
    tell(context, drawing::deleteLayout(context.drawing(), *layout), u"Layout \"%1\" deleted."_s.arg(layout->name));
    context.document().followLayout();
    co_return true;
}

Dialogue<bool> makeCurrent(CommandContext &context)
{
    const auto layout =
        co_await askForLayout(context, u"Enter layout to make current: "_s, currentLayout(context.drawing()));
    if (!layout)
        co_return false;
    setCurrentLayout(context.drawing(), layout->name);
    context.document().followLayout();
    co_return true;
}

/// Another place among the sheets, counted from 1; the others keep their order.
Dialogue<bool> moveOne(CommandContext &context)
{
    const auto layout = co_await askForLayout(context, u"Enter layout to move: "_s, offeredSheet(context));
    if (!layout)
        co_return false;
    const PromptReply place = co_await context.integer(u"Enter its place among the layouts: "_s, {}, {}, NoEmptyAnswer);
    tell(context, drawing::moveLayout(context.drawing(), *layout, place.integer),
         u"Layout \"%1\" moved."_s.arg(layout->name));
    co_return true;
}

Dialogue<bool> saveOne(CommandContext &context)
{
    const QString question = u"Enter layout to save to template: "_s;
    const auto layout = co_await askForLayout(context, question, offeredSheet(context));
    if (!layout)
        co_return false;
    const bool isSaved = co_await saveLayoutToFile(context, *layout);
    co_return isSaved;
}

CommandTask layout(CommandContext &context)
{
    const PromptReply option =
        co_await context.keyword(u"Enter layout option [Copy/Delete/New/Template/Rename/SAveas/Set/Move/?]: "_s,
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
