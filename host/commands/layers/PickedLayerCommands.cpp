// Commands that take layers from entities that are picked.

#include "host/commands/Commands.h"
#include "host/commands/common/EntityEdits.h"
#include "host/commands/layers/LayerStates.h"
#include "host/drawing/editing/Viewports.h"
#include "host/drawing/records/Symbols.h"
#include "host/drawing/records/Tables.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
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
        u"Enter setting for layers not isolated [Off/Lock and fade] <%1>: "_s.arg(usual), u"Off Lock"_s, usual);
    const bool isOff = way.text.isEmpty() ? before : way.text == u"Off"_s;
    context.document().memory().isolationTurnsOff = isOff;
    if (isOff)
        co_await context.keyword(u"In paper space viewport use [Vpfreeze/Off] <Vpfreeze>: "_s, {}, u"Vpfreeze"_s);
    else
        co_await context.integer(u"Enter fade value (0-90) <50>: "_s, {}, u"50"_s, NoNegative);
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
    context.print(staying.size() == 1 ? u"\nLayer \"%1\" has been isolated."_s.arg(currentLayer(context))
                                      : u"\n%1 layers have been isolated."_s.arg(staying.size()));
}

CommandTask isolate(CommandContext &context)
{
    context.print(context.document().memory().isolationTurnsOff
                      ? u"\nCurrent setting: Hide layers, Viewports=Vpfreeze"_s
                      : u"\nCurrent setting: Lock layers, Fade=50"_s);
    PromptReply chosen = co_await context.selection(u"Select objects on the layer(s) to be isolated or [Settings]: "_s);
    while (chosen.isKeyword(u"Settings")) {
        co_await askIsolationSettings(context);
        chosen = co_await context.selection(u"Select objects on the layer(s) to be isolated or [Settings]: "_s);
    }
    if (chosen.entities.empty())
        context.fail(u"Nothing was selected."_s);
    else
        isolateLayers(context, chosen.entities);
}

CommandTask endIsolation(CommandContext &context)
{
    LayerStates &states = context.document().memory().beforeIsolation;
    if (states.isEmpty()) {
        context.print(u"\nNo layers are isolated."_s);
        co_return;
    }
    const LayerStates before = layerStates(context);
    restoreLayers(context, std::exchange(states, {}));
    rememberLayers(context, before);
    context.print(u"\nLayers isolated by LAYISO command have been restored."_s);
}

CommandTask showPreviousLayers(CommandContext &context)
{
    std::vector<LayerStates> &former = context.document().memory().formerLayers;
    if (former.empty()) {
        context.print(u"\nThere is no previous state of the layers."_s);
        co_return;
    }
    restoreLayers(context, former.back());
    former.pop_back();
    context.print(u"\nRestored previous layer status."_s);
}

/// What a command that picks layers one after another does with each.
struct Switch
{
    const char *what;                                               ///< as the prompt says it
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
        context.print(u"\nCannot freeze layer \"%1\". It is the current layer."_s.arg(layer.name));
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

constexpr Switch freezing = {"frozen", freezePicked, [](CommandContext &context, const Layer &before) {
                                 restoreViewport(context, before);
                                 changeLayerFlag(context, before, frozenLayer, before.isFrozen);
                             }};
constexpr Switch turningOff = {"turned off", turnOffPicked, [](CommandContext &context, const Layer &before) {
                                   restoreViewport(context, before);
                                   switchLayer(context, before, !before.isOff);
                               }};

/// How picks are taken is the same here whatever the settings say: the answers are taken so that programs go on in
/// step.
Dialogue<bool> askPickSettings(CommandContext &context)
{
    const PromptReply which = co_await context.keyword(u"Enter setting type for [Viewports/Block selection]: "_s);
    if (which.text == u"Viewports"_s)
        co_await context.keyword(u"In paper space viewport use [Vpfreeze/Freeze/Off] <Vpfreeze>: "_s, {},
                                 u"Vpfreeze"_s);
    else if (which.hasValue())
        co_await context.keyword(u"Enter block selection nesting level [Block/Entity/None] <Entity>: "_s, {},
                                 u"Entity"_s);
    co_return true;
}

Dialogue<bool> mayTurnOff(CommandContext &context, Layer layer)
{
    if (!isCurrent(context, layer) || isValid(currentViewport(context.drawing())))
        co_return true;
    const PromptReply sure = co_await context.keyword(
        u"Layer \"%1\" is current, do you want to turn it off? [Yes/No] <No>: "_s.arg(layer.name), {}, u"No"_s);
    co_return sure.text == u"Yes"_s;
}

Dialogue<bool> switchPicked(CommandContext &context, Switch how)
{
    std::vector<Layer> done;
    for (;;) {
        const PromptReply reply = co_await context.entity(
            u"Select an object on the layer to be %1 or [Settings/Undo]: "_s.arg(QLatin1StringView(how.what)));
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
                context.print(u"\nLayer \"%1\" has been %2."_s.arg(layer->name, QLatin1StringView(how.what)));
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
    context.print(u"\nAll layers have been turned on."_s);
    co_return;
}

CommandTask thawAll(CommandContext &context)
{
    changeAll(context, [](CommandContext &inside, const Layer &layer) {
        if (layer.isFrozen)
            changeLayerFlag(inside, layer, frozenLayer, false);
    });
    context.print(u"\nAll layers have been thawed."_s);
    co_return;
}

Dialogue<bool> lockPicked(CommandContext &context, bool isLocked)
{
    const QString what = isLocked ? u"locked"_s : u"unlocked"_s;
    const LayerStates before = layerStates(context);
    const PromptReply reply = co_await context.entity(u"Select an object on the layer to be %1: "_s.arg(what));
    const std::optional<Layer> layer = pickedLayer(context, reply);
    if (layer) {
        changeLayerFlag(context, *layer, lockedLayer, isLocked);
        context.print(u"\nLayer \"%1\" has been %2."_s.arg(layer->name, what));
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
    context.print(entities.size() == 1 ? u"\nOne object changed to layer \"%1\"."_s.arg(layer)
                                       : u"\n%1 objects changed to layer \"%2\"."_s.arg(entities.size()).arg(layer));
}

CommandTask toCurrentLayer(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection(u"Select objects to be changed to the current layer: "_s);
    if (!chosen.entities.empty())
        putOnLayer(context, chosen.entities, currentLayer(context));
}

CommandTask toPickedLayer(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection(u"Select objects to be changed: "_s);
    if (chosen.entities.empty())
        co_return;
    const PromptReply target = co_await context.entity(u"Select object on destination layer or [Name]: "_s);
    std::optional<Layer> layer = pickedLayer(context, target);
    if (target.kind == ReplyKind::Keyword) {
        const PromptReply name = co_await context.text(u"Enter layer name: "_s);
        layer = drawing::findLayer(context.drawing(), name.text.trimmed());
        if (!layer)
            context.fail(u"Cannot find layer \"%1\"."_s.arg(name.text.trimmed()));
    }
    if (layer)
        putOnLayer(context, chosen.entities, layer->name);
}

CommandTask makePickedCurrent(CommandContext &context)
{
    const LayerStates before = layerStates(context);
    const PromptReply reply = co_await context.entity(u"Select object whose layer will become current: "_s);
    const std::optional<Layer> layer = pickedLayer(context, reply);
    if (layer && layer->isFrozen)
        context.fail(u"Cannot make layer \"%1\" current: it is frozen."_s.arg(layer->name));
    else if (layer && context.document().variables().set(u"CLAYER", layer->name) == SetOutcome::Done)
        context.print(u"\n%1 is now the current layer."_s.arg(layer->name));
    rememberLayers(context, before);
}

/// In all viewports but the one that is worked in.
CommandTask isolateInViewport(CommandContext &context)
{
    const RecordId inside = currentViewport(context.drawing());
    if (!isValid(inside)) {
        context.fail(u"This command works through a viewport of a sheet: MSPACE goes into one."_s);
        co_return;
    }
    for (;;) {
        const PromptReply reply =
            co_await context.entity(u"Select an object on the layer to be isolated in viewport or [Settings/Undo]: "_s);
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
        context.print(u"\nLayer \"%1\" has been frozen in all viewports but the current one."_s.arg(layer->name));
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
