// Commands that take layers from entities that are picked.

#include "host/commands/Commands.h"
#include "host/commands/common/EntityEdits.h"
#include "host/commands/layers/LayerStates.h"
#include "host/drawing/editing/Viewports.h"
#include "host/drawing/records/Symbols.h"
#include "host/drawing/records/Tables.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::Layer;
using drawing::RecordId;

QString layerNameOf(CommandContext &context, RecordId entity)
{
    return context.drawing().tags(entity).text(8, u"0"_s);
}

/// The layer of the entity that is picked in answer; nothing for another answer.
std::optional<Layer> pickedLayer(CommandContext &context, const PromptReply &reply)
{
    if (reply.entities.empty())
        return {};
    return drawing::findLayer(context.drawing(), layerNameOf(context, reply.entities.front()));
}

/// Which layers are left out; they are in folded case.
QSet<QString> layersOf(CommandContext &context, const std::vector<RecordId> &entities)
{
    QSet<QString> names;
    for (const RecordId entity : entities)
        names.insert(layerNameOf(context, entity).toCaseFolded());
    return names;
}

/// LAYISO's way with the others is the user's choice.
Dialogue<bool> askIsolationSettings(CommandContext &context)
{
    const bool before = context.document().memory().isolationTurnsOff;
    const QString usual = before ? u"Off"_s : u"Lock and fade"_s;
    const PromptReply way = co_await context.keyword(
        Commands::tr("Enter setting for layers not isolated [Off/Lock and fade] <%1>: ").arg(usual), u"Off Lock"_s,
        usual);
    const bool isOff = way.text.isEmpty() ? before : way.text == u"Off"_s;
    context.document().memory().isolationTurnsOff = isOff;
    if (isOff)
        co_await context.keyword(Commands::tr("In paper space viewport use [Vpfreeze/Off] <Vpfreeze>: "), {},
                                 u"Vpfreeze"_s);
    else
        co_await context.integer(Commands::tr("Enter fade value (0-90) <50>: "), {}, u"50"_s, NoNegative);
    co_return true;
}

void isolateLayers(CommandContext &context, const std::vector<RecordId> &entities)
{
    const QSet<QString> staying = layersOf(context, entities);
    const LayerStates before = layerStates(context);
    const bool isOff = context.document().memory().isolationTurnsOff;
    if (!staying.contains(currentLayer(context).toCaseFolded()))
        context.document().variables().set(u"CLAYER", layerNameOf(context, entities.front()));
    for (const Layer &layer : drawing::allLayers(context.drawing())) {
        if (staying.contains(layer.name.toCaseFolded()))
            continue;
        if (isOff)
            switchLayer(context, layer, false);
        else
            changeLayerFlag(context, layer, lockedLayer, true);
    }
    context.document().memory().beforeIsolation = before;
    rememberLayers(context, before);
    context.print(staying.size() == 1 ? Commands::tr("\nLayer \"%1\" has been isolated.").arg(currentLayer(context))
                                      : Commands::tr("\n%1 layers have been isolated.").arg(staying.size()));
}

CommandTask isolate(CommandContext &context)
{
    context.print(context.document().memory().isolationTurnsOff
                      ? Commands::tr("\nCurrent setting: Hide layers, Viewports=Vpfreeze")
                      : Commands::tr("\nCurrent setting: Lock layers, Fade=50"));
    PromptReply chosen =
        co_await context.selection(Commands::tr("Select objects on the layer(s) to be isolated or [Settings]: "));
    while (chosen.isKeyword(u"Settings")) {
        co_await askIsolationSettings(context);
        chosen =
            co_await context.selection(Commands::tr("Select objects on the layer(s) to be isolated or [Settings]: "));
    }
    if (chosen.entities.empty())
        context.fail(Commands::tr("Nothing was selected."));
    else
        isolateLayers(context, chosen.entities);
}

CommandTask endIsolation(CommandContext &context)
{
    LayerStates &states = context.document().memory().beforeIsolation;
    if (states.isEmpty()) {
        context.print(Commands::tr("\nNo layers are isolated."));
        co_return;
    }
    const LayerStates before = layerStates(context);
    restoreLayers(context, std::exchange(states, {}));
    rememberLayers(context, before);
    context.print(Commands::tr("\nLayers isolated by LAYISO command have been restored."));
}

CommandTask showPreviousLayers(CommandContext &context)
{
    std::vector<LayerStates> &former = context.document().memory().formerLayers;
    if (former.empty()) {
        context.print(Commands::tr("\nThere is no previous state of the layers."));
        co_return;
    }
    restoreLayers(context, former.back());
    former.pop_back();
    context.print(Commands::tr("\nRestored previous layer status."));
}

/// What a command that picks layers one after another does with each.
struct Switch
{
    const char *prompt;                                             ///< as it asks for an object
    const char *done;                                               ///< what it tells then
    bool (*apply)(CommandContext &context, const Layer &layer);     ///< whether something changed
    void (*takeBack)(CommandContext &context, const Layer &before); ///< as it was
};

/// Inside a viewport a layer leaves this viewport alone.
bool leaveViewport(CommandContext &context, const Layer &layer)
{
    const RecordId viewport = currentViewport(context.drawing());
    if (isValid(viewport))
        drawing::freezeLayersIn(context.drawing(), viewport, {layer.name});
    return isValid(viewport);
}

bool freezePicked(CommandContext &context, const Layer &layer)
{
    if (leaveViewport(context, layer))
        return true;
    if (isCurrent(context, layer)) {
        context.print(Commands::tr("\nCannot freeze layer \"%1\". It is the current layer.").arg(layer.name));
        return false;
    }
    changeLayerFlag(context, layer, frozenLayer, true);
    return true;
}

bool turnOffPicked(CommandContext &context, const Layer &layer)
{
    if (!leaveViewport(context, layer))
        switchLayer(context, layer, false);
    return true;
}

void restoreViewport(CommandContext &context, const Layer &layer)
{
    const RecordId viewport = currentViewport(context.drawing());
    if (!isValid(viewport))
        return;
    QStringList frozen = drawing::layersFrozenIn(context.drawing(), viewport);
    frozen.removeAll(layer.name);
    drawing::setLayersFrozenIn(context.drawing(), viewport, frozen);
}

constexpr Switch freezing = {
    QT_TRANSLATE_NOOP("Commands", "Select an object on the layer to be frozen or [Settings/Undo]: "),
    QT_TRANSLATE_NOOP("Commands", "\nLayer \"%1\" has been frozen."), freezePicked,
    [](CommandContext &context, const Layer &before) {
        restoreViewport(context, before);
        changeLayerFlag(context, before, frozenLayer, before.isFrozen);
    }};
constexpr Switch turningOff = {
    QT_TRANSLATE_NOOP("Commands", "Select an object on the layer to be turned off or [Settings/Undo]: "),
    QT_TRANSLATE_NOOP("Commands", "\nLayer \"%1\" has been turned off."), turnOffPicked,
    [](CommandContext &context, const Layer &before) {
        restoreViewport(context, before);
        switchLayer(context, before, !before.isOff);
    }};

/// How picks are taken is the same here whatever the settings say: the answers are taken so that programs go on in
/// step.
Dialogue<bool> askPickSettings(CommandContext &context)
{
    const PromptReply which =
        co_await context.keyword(Commands::tr("Enter setting type for [Viewports/Block selection]: "));
    if (which.text == u"Viewports"_s)
        co_await context.keyword(Commands::tr("In paper space viewport use [Vpfreeze/Freeze/Off] <Vpfreeze>: "), {},
                                 u"Vpfreeze"_s);
    else if (which.hasValue())
        co_await context.keyword(Commands::tr("Enter block selection nesting level [Block/Entity/None] <Entity>: "), {},
                                 u"Entity"_s);
    co_return true;
}

Dialogue<bool> mayTurnOff(CommandContext &context, Layer layer)
{
    if (!isCurrent(context, layer) || isValid(currentViewport(context.drawing())))
        co_return true;
    const PromptReply sure = co_await context.keyword(
        Commands::tr("Layer \"%1\" is current, do you want to turn it off? [Yes/No] <No>: ").arg(layer.name), {},
        u"No"_s);
    co_return sure.text == u"Yes"_s;
}

Dialogue<bool> switchPicked(CommandContext &context, Switch how)
{
    std::vector<Layer> done;
    for (;;) {
        const PromptReply reply = co_await context.entity(Commands::tr(how.prompt));
        if (reply.isKeyword(u"Settings")) {
            co_await askPickSettings(context);
        } else if (reply.isKeyword(u"Undo")) {
            if (!done.empty()) {
                how.takeBack(context, done.back());
                done.pop_back();
            }
        } else if (const std::optional<Layer> layer = pickedLayer(context, reply)) {
            bool isWanted = true;
            if (how.apply == turningOff.apply)
                isWanted = co_await mayTurnOff(context, *layer);
            if (isWanted && how.apply(context, *layer)) {
                done.push_back(*layer);
                context.print(Commands::tr(how.done).arg(layer->name));
            }
        } else if (!reply.isMiss) {
            co_return true;
        }
    }
}

CommandTask freezeOneByOne(CommandContext &context)
{
    const LayerStates before = layerStates(context);
    co_await switchPicked(context, freezing);
    rememberLayers(context, before);
}

CommandTask turnOffOneByOne(CommandContext &context)
{
    const LayerStates before = layerStates(context);
    co_await switchPicked(context, turningOff);
    rememberLayers(context, before);
}

/// For all layers at once.
void changeAll(CommandContext &context, void (*change)(CommandContext &context, const Layer &layer))
{
    const LayerStates before = layerStates(context);
    for (const Layer &layer : drawing::allLayers(context.drawing()))
        change(context, layer);
    rememberLayers(context, before);
}

CommandTask turnAllOn(CommandContext &context)
{
    changeAll(context, [](CommandContext &inside, const Layer &layer) {
        if (layer.isOff)
            switchLayer(inside, layer, true);
    });
    context.print(Commands::tr("\nAll layers have been turned on."));
    co_return;
}

CommandTask thawAll(CommandContext &context)
{
    changeAll(context, [](CommandContext &inside, const Layer &layer) {
        if (layer.isFrozen)
            changeLayerFlag(inside, layer, frozenLayer, false);
    });
    context.print(Commands::tr("\nAll layers have been thawed."));
    co_return;
}

Dialogue<bool> lockPicked(CommandContext &context, bool isLocked)
{
    const LayerStates before = layerStates(context);
    const QString prompt = isLocked ? Commands::tr("Select an object on the layer to be locked: ")
                                    : Commands::tr("Select an object on the layer to be unlocked: ");
    const PromptReply reply = co_await context.entity(prompt);
    const std::optional<Layer> layer = pickedLayer(context, reply);
    if (layer) {
        changeLayerFlag(context, *layer, lockedLayer, isLocked);
        context.print((isLocked ? Commands::tr("\nLayer \"%1\" has been locked.")
                                : Commands::tr("\nLayer \"%1\" has been unlocked."))
                          .arg(layer->name));
    }
    rememberLayers(context, before);
    co_return layer.has_value();
}

CommandTask lock(CommandContext &context)
{
    co_await lockPicked(context, true);
}

CommandTask unlock(CommandContext &context)
{
    co_await lockPicked(context, false);
}

void putOnLayer(CommandContext &context, const std::vector<RecordId> &chosen, const QString &layer)
{
    const std::vector<RecordId> entities = editable(context, chosen);
    for (const RecordId entity : entities) {
        drawing::FieldList fields = context.drawing().fields(entity);
        drawing::setField(fields, 8, layer);
        context.drawing().entities().modify(entity, fields);
    }
    context.print(entities.size() == 1
                      ? Commands::tr("\nOne object changed to layer \"%1\".").arg(layer)
                      : Commands::tr("\n%1 objects changed to layer \"%2\".").arg(entities.size()).arg(layer));
}

CommandTask toCurrentLayer(CommandContext &context)
{
    const PromptReply chosen =
        co_await context.selection(Commands::tr("Select objects to be changed to the current layer: "));
    if (!chosen.entities.empty())
        putOnLayer(context, chosen.entities, currentLayer(context));
}

CommandTask toPickedLayer(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection(Commands::tr("Select objects to be changed: "));
    if (chosen.entities.empty())
        co_return;
    const PromptReply target = co_await context.entity(Commands::tr("Select object on destination layer or [Name]: "));
    std::optional<Layer> layer = pickedLayer(context, target);
    if (target.kind == ReplyKind::Keyword) {
        const PromptReply name = co_await context.text(Commands::tr("Enter layer name: "));
        layer = drawing::findLayer(context.drawing(), name.text.trimmed());
        if (!layer)
            context.fail(Commands::tr("Cannot find layer \"%1\".").arg(name.text.trimmed()));
    }
    if (layer)
        putOnLayer(context, chosen.entities, layer->name);
}

CommandTask makePickedCurrent(CommandContext &context)
{
    const LayerStates before = layerStates(context);
    const PromptReply reply = co_await context.entity(Commands::tr("Select object whose layer will become current: "));
    const std::optional<Layer> layer = pickedLayer(context, reply);
    if (layer && layer->isFrozen)
        context.fail(Commands::tr("Cannot make layer \"%1\" current: it is frozen.").arg(layer->name));
    else if (layer && context.document().variables().set(u"CLAYER", layer->name) == SetOutcome::Done)
        context.print(Commands::tr("\n%1 is now the current layer.").arg(layer->name));
    rememberLayers(context, before);
}

/// In all viewports but the one that is worked in.
CommandTask isolateInViewport(CommandContext &context)
{
    const RecordId inside = currentViewport(context.drawing());
    if (!isValid(inside)) {
        context.fail(Commands::tr("This command works through a viewport of a sheet: MSPACE goes into one."));
        co_return;
    }
    for (;;) {
        const PromptReply reply = co_await context.entity(
            Commands::tr("Select an object on the layer to be isolated in viewport or [Settings/Undo]: "));
        if (reply.isKeyword(u"Settings"))
            co_await askPickSettings(context);
        const std::optional<Layer> layer = pickedLayer(context, reply);
        if (!layer && !reply.isMiss && reply.kind != ReplyKind::Keyword)
            co_return;
        const auto sheet = drawing::findLayout(context.drawing(), currentLayout(context.drawing()));
        if (!layer || !sheet)
            continue;
        for (const RecordId viewport : drawing::viewportsOf(context.drawing(), *sheet))
            if (viewport != inside)
                drawing::freezeLayersIn(context.drawing(), viewport, {layer->name});
        context.print(
            Commands::tr("\nLayer \"%1\" has been frozen in all viewports but the current one.").arg(layer->name));
    }
}

} // namespace

std::vector<CommandRow> pickedLayerCommands()
{
    return {{"LAYCUR", toCurrentLayer, "Puts objects on the current layer"},
            {"LAYERP", showPreviousLayers, "Takes back the last change of layer settings"},
            {"LAYFRZ", freezeOneByOne, "Freezes the layers of picked objects"},
            {"LAYISO", isolate, "Locks or turns off all layers but those of chosen objects"},
            {"LAYLCK", lock, "Locks the layer of a picked object"},
            {"LAYMCH", toPickedLayer, "Puts objects on the layer of another one"},
            {"LAYMCUR", makePickedCurrent, "Makes the layer of a picked object current"},
            {"LAYOFF", turnOffOneByOne, "Turns off the layers of picked objects"},
            {"LAYON", turnAllOn, "Turns all layers on"},
            {"LAYTHW", thawAll, "Thaws all layers"},
            {"LAYULK", unlock, "Unlocks the layer of a picked object"},
            {"LAYUNISO", endIsolation, "Gives layers what they had before LAYISO"},
            {"LAYVPI", isolateInViewport, "Freezes layers of picked objects in all other viewports"}};
}

} // namespace host::kernel
