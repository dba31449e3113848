#include "host/commands/Commands.h"
#include "host/commands/layers/LayerStates.h"
#include "host/drawing/editing/MergeLayers.h"
#include "host/drawing/records/Symbols.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/running/Dialogue.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

/// A layer by a picked object or by its name; empty when the user is done. A name of no layer fails the command.
Dialogue<QString> askLayer(CommandContext &context, QString prompt, QString namePrompt)
{
    for (;;) {
        const PromptReply reply = co_await context.entity(prompt);
        if (!reply.entities.empty())
            co_return context.drawing().tags(reply.entities.front()).text(8, u"0"_s);
        if (reply.isKeyword(u"Undo"))
            co_return u"*undo"_s;
        if (reply.isMiss)
            continue;
        if (reply.kind != ReplyKind::Keyword)
            co_return QString();
        const PromptReply name = co_await context.text(namePrompt);
        const auto layer = drawing::findLayer(context.drawing(), name.text.trimmed());
        if (!layer)
            context.fail(Commands::tr("Cannot find layer \"%1\".").arg(name.text.trimmed()));
        co_return layer ? layer->name : QString();
    }
}

/// Layers one after another; those that must stay are told.
Dialogue<QStringList> askLayersToRemove(CommandContext &context, QString prompt, QString namePrompt)
{
    QStringList names;
    while (!context.hasFailed()) {
        const QString options = names.isEmpty() ? u"[Name]"_s : u"[Name/Undo]"_s;
        const QString name = co_await askLayer(context, prompt.arg(options), namePrompt);
        if (name.isEmpty())
            break;
        if (name == u"*undo") {
            names.removeLast();
            continue;
        }
        const QString obstacle = drawing::obstacleToRemovingLayer(context.drawing(), name);
        if (!obstacle.isEmpty())
            context.print(u'\n' + obstacle);
        else if (!names.contains(name, Qt::CaseInsensitive))
            names.append(name);
        if (!names.isEmpty())
            context.print(Commands::tr("\nSelected layers: %1.").arg(names.join(u',')));
    }
    co_return names;
}

Dialogue<bool> isSure(CommandContext &context, QString warning)
{
    context.print(Commands::tr("\n******** WARNING ********\n") + warning);
    const PromptReply sure =
        co_await context.keyword(Commands::tr("Do you wish to continue? [Yes/No] <No>: "), {}, u"No"_s);
    co_return sure.text == u"Yes"_s;
}

CommandTask deleteLayers(CommandContext &context)
{
    const QStringList names =
        co_await askLayersToRemove(context, Commands::tr("Select object on layer to delete or %1: "),
                                   Commands::tr("Enter layer name to delete: "));
    if (names.isEmpty() || context.hasFailed())
        co_return;
    const bool isWanted = co_await isSure(
        context,
        Commands::tr("All that is on layer(s) %1 is erased, and the layers are deleted.").arg(names.join(u',')));
    if (!isWanted)
        co_return;
    const int count = drawing::eraseLayers(context.drawing(), names);
    context.print(Commands::tr("\n%1 layer(s) deleted with %2 object(s).").arg(names.size()).arg(count));
}

CommandTask mergeInto(CommandContext &context)
{
    QStringList names = co_await askLayersToRemove(context, Commands::tr("Select object on layer to merge or %1: "),
                                                   Commands::tr("Enter layer name to merge: "));
    if (names.isEmpty() || context.hasFailed())
        co_return;
    const QString target = co_await askLayer(context, Commands::tr("Select object on target layer or [Name]: "),
                                             Commands::tr("Enter layer name: "));
    if (target.isEmpty() || context.hasFailed())
        co_return;
    names.removeIf([&](const QString &name) { return name.compare(target, Qt::CaseInsensitive) == 0; });
    const bool isWanted = co_await isSure(
        context, Commands::tr("You are about to merge %1 layer(s) into layer \"%2\".").arg(names.size()).arg(target));
    if (!isWanted)
        co_return;
    drawing::mergeLayers(context.drawing(), names, target);
    context.print(Commands::tr("\n%1 layer(s) deleted.").arg(names.size()));
}

} // namespace

std::vector<CommandRow> removeLayerCommands()
{
    return {{"-LAYDEL", deleteLayers, "Deletes layers with all that is on them"},
            {"-LAYMRG", mergeInto, "Puts what is on layers on another one and deletes them"},
            {"LAYDEL", deleteLayers, "As -LAYDEL; there is no window for it"},
            {"LAYMRG", mergeInto, "As -LAYMRG; there is no window for it"}};
}

} // namespace host::kernel
