#include "host/commands/Commands.h"
#include "host/commands/common/EntityEdits.h"
#include "host/commands/common/ObjectChoice.h"
#include "host/drawing/editing/EntityGroups.h"
#include "host/drawing/editing/RenameLayer.h"
#include "host/drawing/selection/Wildcard.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/running/Dialogue.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::EntityGroup;
using drawing::RecordId;

void listGroups(CommandContext &context, const QString &pattern)
{
    context.print(Commands::tr("\nDefined groups.                            Selectable"));
    for (const EntityGroup &group : drawing::entityGroups(context.drawing()))
        if (drawing::matchesWildcard(group.name, pattern))
            context.print(u"\n  %1  %2"_s.arg(group.name.leftJustified(40), group.isSelectable ? u"Yes"_s : u"No"_s));
}

/// A name that is typed, with the list on the way.
Dialogue<QString> askGroupName(CommandContext &context, QString prompt)
{
    PromptReply reply = co_await context.text(prompt, {}, u"?"_s);
    while (reply.isKeyword(u"?")) {
        const PromptReply pattern = co_await context.text(Commands::tr("Enter group name(s) to list <*>: "), u"*"_s);
        listGroups(context, pattern.hasValue() ? pattern.text.trimmed() : u"*"_s);
        reply = co_await context.text(prompt, {}, u"?"_s);
    }
    co_return reply.text.trimmed();
}

/// A group that is there. Nothing when there is none of the name, which was told.
Dialogue<std::optional<EntityGroup>> askGroup(CommandContext &context)
{
    const QString name = co_await askGroupName(context, Commands::tr("Enter a group name or [?]: "));
    std::optional<EntityGroup> group = drawing::findGroup(context.drawing(), name);
    if (!group)
        context.fail(Commands::tr("Group \"%1\" does not exist.").arg(name));
    co_return group;
}

bool isNewGroupName(CommandContext &context, const QString &name)
{
    if (name != u"*" && !drawing::isSymbolName(name, context.drawing().version()))
        context.fail(Commands::tr("\"%1\" cannot be the name of a group.").arg(name));
    else if (drawing::findGroup(context.drawing(), name))
        context.fail(Commands::tr("Group \"%1\" already exists.").arg(name));
    return !context.hasFailed();
}

void makeGroup(CommandContext &context, EntityGroup group, const std::vector<RecordId> &entities)
{
    if (entities.empty())
        return context.fail(Commands::tr("A group needs an entity."));
    group.members = entities;
    if (!drawing::createGroup(context.drawing(), group))
        context.fail(Commands::tr("A drawing of this version has no groups."));
}

Dialogue<bool> createGroupByName(CommandContext &context)
{
    EntityGroup group;
    group.name = co_await askGroupName(context, Commands::tr("Enter a group name or [?]: "));
    if (!isNewGroupName(context, group.name))
        co_return false;
    const PromptReply description = co_await context.text(Commands::tr("Enter a group description: "));
    group.description = description.text;
    const PromptReply chosen = co_await context.selection();
    makeGroup(context, group, chosen.entities);
    co_return !context.hasFailed();
}

/// Add and Remove.
Dialogue<bool> changeMembers(CommandContext &context, EntityGroup group, bool isAdding)
{
    const ObjectChoice chosen =
        co_await askObjects(context, Commands::tr("Select objects: "), {}, ChoiceEnd::EmptyAnswer, PickReach::Alone);
    for (const RecordId id : chosen.entities) {
        std::erase(group.members, id);
        if (isAdding)
            group.members.push_back(id);
    }
    drawing::changeGroup(context.drawing(), group);
    co_return true;
}

Dialogue<bool> renameGroup(CommandContext &context, EntityGroup group)
{
    const QString name = co_await askGroupName(context, Commands::tr("Enter a new name for group or [?]: "));
    if (!isNewGroupName(context, name))
        co_return false;
    group.name = name;
    drawing::changeGroup(context.drawing(), group);
    co_return true;
}

/// Moves some members to another place among the others; places count from 0.
Dialogue<bool> orderGroup(CommandContext &context, EntityGroup group)
{
    const int last = int(group.members.size()) - 1;
    const QString range = u"(0-%1)"_s.arg(last);
    const PromptReply from = co_await context.integer(
        Commands::tr("Enter position number of the object to reorder %1 or [Reverse]: ").arg(range), u"Reverse"_s, {},
        NoEmptyAnswer | NoNegative);
    if (from.isKeyword(u"Reverse")) {
        std::ranges::reverse(group.members);
        drawing::changeGroup(context.drawing(), group);
        co_return true;
    }
    const PromptReply to = co_await context.integer(
        Commands::tr("Enter new position number for the object %1: ").arg(range), {}, {}, NoEmptyAnswer | NoNegative);
    const PromptReply count = co_await context.integer(Commands::tr("Enter number of objects to reorder <1>: "), {},
                                                       u"1"_s, NoZero | NoNegative);
    const qint64 moved = count.hasValue() ? count.integer : 1;
    if (qint64(from.integer) + moved - 1 > last || qint64(to.integer) + moved - 1 > last) {
        context.fail(Commands::tr("Requires a number from 0 to %1.").arg(last));
        co_return false;
    }
    const auto begin = group.members.begin() + from.integer;
    const std::vector<RecordId> taken(begin, begin + moved);
    group.members.erase(begin, begin + moved);
    group.members.insert(group.members.begin() + to.integer, taken.begin(), taken.end());
    drawing::changeGroup(context.drawing(), group);
    co_return true;
}

Dialogue<bool> switchSelectable(CommandContext &context, EntityGroup group)
{
    const PromptReply answer =
        co_await context.keyword(Commands::tr("Is group selectable? [Yes/No] <Y>: "), {}, u"Yes"_s);
    group.isSelectable = answer.text != u"No";
    drawing::changeGroup(context.drawing(), group);
    co_return true;
}

// What is done to a group of entities, by its name.
CommandTask groupByOption(CommandContext &context)
{
    PromptReply option = co_await context.keyword(
        Commands::tr("Enter a group option [?/Order/Add/Remove/Explode/REName/Selectable/Create] <Create>: "), {},
        u"Create"_s);
    const QString wanted = option.hasValue() ? option.text : u"Create"_s;
    if (wanted == u"?") {
        const PromptReply pattern = co_await context.text(Commands::tr("Enter group name(s) to list <*>: "), u"*"_s);
        listGroups(context, pattern.hasValue() ? pattern.text.trimmed() : u"*"_s);
        co_return;
    }
    if (wanted == u"Create") {
        co_await createGroupByName(context);
        co_return;
    }
    const std::optional<EntityGroup> group = co_await askGroup(context);
    if (!group)
        co_return;
    if (wanted == u"Add" || wanted == u"Remove")
        co_await changeMembers(context, *group, wanted == u"Add");
    else if (wanted == u"Explode")
        drawing::eraseGroup(context.drawing(), *group);
    else if (wanted == u"REName")
        co_await renameGroup(context, *group);
    else if (wanted == u"Selectable")
        co_await switchSelectable(context, *group);
    else
        co_await orderGroup(context, *group);
}

} // namespace

std::vector<CommandRow> groupCommands()
{
    return {{"-GROUP", groupByOption, "Makes and changes groups of entities"},
            {"GROUP", groupByOption, "Makes and changes groups of entities"}};
}

} // namespace host::kernel
