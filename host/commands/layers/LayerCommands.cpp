#include "host/commands/Commands.h"
#include "host/commands/layers/LayerChanges.h"
#include "host/commands/layers/LayerStateDialogue.h"
#include "host/commands/layers/LayerStates.h"
#include "host/drawing/editing/RenameLayer.h"
#include "host/drawing/records/Symbols.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/selection/Wildcard.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::FieldList;
using drawing::Layer;
using drawing::TableKind;

/// Those of the names that there are, each once: many names of many layers are not compared with each other.
std::vector<Layer> namedLayers(const drawing::Drawing &drawing, const QStringList &names)
{
    std::vector<Layer> layers;
    QSet<drawing::RecordId> taken;
    for (const QString &name : names) {
        const drawing::RecordId entry = drawing.tables().find(TableKind::Layer, name);
        if (isValid(entry) && !taken.contains(entry))
            layers.push_back(drawing::readLayer(drawing, entry));
        taken.insert(entry);
    }
    return layers;
}

/// Layers whose names match a list of patterns with commas between.
std::vector<Layer> matchingLayers(CommandContext &context, const QString &patterns)
{
    const std::optional<QStringList> names = drawing::literalTexts(patterns.trimmed());
    std::vector<Layer> layers = names ? namedLayers(context.drawing(), *names) : drawing::allLayers(context.drawing());
    if (!names)
        std::erase_if(layers,
                      [&](const Layer &layer) { return !drawing::matchesWildcard(layer.name, patterns.trimmed()); });
    if (layers.empty())
        context.print(Commands::tr("\nNo matching layer names found."));
    return layers;
}

void modify(CommandContext &context, const Layer &layer, const std::function<void(FieldList &)> &change)
{
    FieldList fields = context.drawing().fields(layer.record);
    change(fields);
    context.drawing().tables().modify(layer.record, fields);
}

/// An option that changes a state of layers.
struct StateOption
{
    QStringView option;
    const char *prompt;
    void (*apply)(CommandContext &context, const Layer &layer);
};

void freeze(CommandContext &context, const Layer &layer)
{
    if (isCurrent(context, layer))
        context.print(Commands::tr("\nCannot freeze layer \"%1\". It is the current layer.").arg(layer.name));
    else
        changeLayerFlag(context, layer, frozenLayer, true);
}

constexpr StateOption stateOptions[] = {
    {u"ON", QT_TRANSLATE_NOOP("Commands", "Enter name list of layer(s) to turn on: "),
     [](CommandContext &context, const Layer &layer) { switchLayer(context, layer, true); }},
    {u"OFF", QT_TRANSLATE_NOOP("Commands", "Enter name list of layer(s) to turn off: "),
     [](CommandContext &context, const Layer &layer) { switchLayer(context, layer, false); }},
    {u"Freeze", QT_TRANSLATE_NOOP("Commands", "Enter name list of layer(s) to freeze: "), freeze},
    {u"Thaw", QT_TRANSLATE_NOOP("Commands", "Enter name list of layer(s) to thaw: "),
     [](CommandContext &context, const Layer &layer) { changeLayerFlag(context, layer, frozenLayer, false); }},
    {u"LOck", QT_TRANSLATE_NOOP("Commands", "Enter name list of layer(s) to lock: "),
     [](CommandContext &context, const Layer &layer) { changeLayerFlag(context, layer, lockedLayer, true); }},
    {u"Unlock", QT_TRANSLATE_NOOP("Commands", "Enter name list of layer(s) to unlock: "),
     [](CommandContext &context, const Layer &layer) { changeLayerFlag(context, layer, lockedLayer, false); }},
};

Dialogue<bool> changeStates(CommandContext &context, const StateOption &state)
{
    const PromptReply names = co_await context.text(Commands::tr(state.prompt));
    if (!names.hasValue())
        co_return false;
    for (const Layer &layer : matchingLayers(context, names.text)) {
        if (state.option == u"OFF" && isCurrent(context, layer)) {
            const PromptReply sure = co_await context.keyword(
                Commands::tr("Really want layer \"%1\" (the CURRENT layer) off? [Yes/No] <No>: ").arg(layer.name), {},
                u"No"_s);
            if (sure.text != u"Yes"_s)
                continue;
        }
        state.apply(context, layer);
    }
    co_return true;
}

/// Makes the layers that are not there. False when a name cannot be one.
bool makeLayers(CommandContext &context, const QString &names)
{
    for (const QString &part : names.split(u',', Qt::SkipEmptyParts)) {
        const QString name = part.trimmed();
        if (isValid(context.drawing().tables().find(TableKind::Layer, name)))
            continue;
        if (!drawing::isSymbolName(name, context.drawing().version())) {
            context.refuse(Commands::tr("\"%1\" cannot be the name of a layer.").arg(name));
            return false;
        }
        context.drawing().tables().add(TableKind::Layer, name);
    }
    return true;
}

void setCurrentLayer(CommandContext &context, const QString &typed)
{
    const QString name = typed.trimmed();
    const std::optional<Layer> layer = drawing::findLayer(context.drawing(), name);
    if (!layer)
        context.refuse(Commands::tr("Cannot find layer \"%1\".").arg(name));
    else if (layer->isFrozen)
        context.refuse(Commands::tr("Cannot make layer \"%1\" current: it is frozen.").arg(layer->name));
    else
        context.document().variables().set(u"CLAYER", layer->name);
}

Dialogue<bool> make(CommandContext &context)
{
    const QString current = currentLayer(context);
    const PromptReply name = co_await context.text(
        Commands::tr("Enter name for new layer (becomes the current layer) <%1>: ").arg(current), current);
    if (name.hasValue() && makeLayers(context, name.text))
        setCurrentLayer(context, name.text);
    co_return true;
}

Dialogue<bool> chooseCurrent(CommandContext &context)
{
    const PromptReply name = co_await context.text(
        Commands::tr("Enter layer name to make current or <select object>: "), u"select object"_s);
    if (name.hasValue()) {
        setCurrentLayer(context, name.text);
        co_return true;
    }
    const PromptReply picked = co_await context.entity(Commands::tr("Select object: "));
    if (!picked.entities.empty())
        setCurrentLayer(context, context.drawing().tags(picked.entities.front()).text(8, u"0"_s));
    co_return true;
}

Dialogue<bool> add(CommandContext &context)
{
    const PromptReply names = co_await context.text(Commands::tr("Enter name list for new layer(s): "));
    if (names.hasValue())
        makeLayers(context, names.text);
    co_return true;
}

Dialogue<bool> rename(CommandContext &context)
{
    const PromptReply from = co_await context.text(Commands::tr("Enter old layer name: "));
    if (!from.hasValue())
        co_return false;
    const PromptReply to = co_await context.text(Commands::tr("Enter new layer name: "));
    if (!to.hasValue())
        co_return false;
    const QString problem = drawing::renameLayer(context.drawing(), from.text.trimmed(), to.text.trimmed());
    if (!problem.isEmpty())
        context.refuse(problem);
    co_return problem.isEmpty();
}

Dialogue<bool> list(CommandContext &context)
{
    const PromptReply names = co_await context.text(Commands::tr("Enter layer name(s) to list <*>: "), u"*"_s);
    context.print(Commands::tr("\nLayer name  State  Color  Linetype  Lineweight"));
    for (const Layer &layer : matchingLayers(context, names.hasValue() ? names.text : u"*"_s)) {
        QStringList states = {layer.isOff ? u"off"_s : u"on"_s};
        if (layer.isFrozen)
            states.append(u"frozen"_s);
        if (layer.isLocked)
            states.append(u"locked"_s);
        const QString weight = layer.lineweight < 0 ? u"Default"_s : QString::number(layer.lineweight / 100.0, 'f', 2);
        context.print(u"\n\"%1\"  %2  %3  %4  %5"_s.arg(layer.name, states.join(u','))
                          .arg(layer.colour)
                          .arg(layer.linetype, weight));
    }
    context.print(Commands::tr("\nCurrent layer:  \"%1\"").arg(currentLayer(context)));
    co_return true;
}

/// There is no list of layers to look through here: the answer is taken so that programs go on in step.
Dialogue<bool> reconcile(CommandContext &context)
{
    co_await context.text(Commands::tr("Enter name list of layer(s) to reconcile: "));
    context.print(Commands::tr("\nNo unreconciled layers."));
    co_return true;
}

/// A value, then the layers that get it.
Dialogue<bool> changeProperty(CommandContext &context, const QString &option)
{
    const LayerChange change = co_await askLayerChange(context, option);
    if (!change.apply)
        co_return false;
    const QString current = currentLayer(context);
    const PromptReply names = co_await context.text(
        Commands::tr("Enter name list of layer(s) for %1 <%2>: ").arg(change.what, current), current);
    for (const Layer &layer : matchingLayers(context, names.hasValue() ? names.text : current))
        modify(context, layer, change.apply);
    co_return true;
}

Dialogue<bool> takeLayerOption(CommandContext &context, const QString &option)
{
    struct Action
    {
        QStringView option;
        Dialogue<bool> (*act)(CommandContext &context);
    };
    static constexpr Action actions[] = {
        {u"?", list},        {u"Make", make},           {u"Set", chooseCurrent},   {u"New", add},
        {u"Rename", rename}, {u"rEconcile", reconcile}, {u"stAte", askLayerStates}};
    for (const Action &action : actions)
        if (action.option == option)
            co_return co_await action.act(context);
    for (const StateOption &state : stateOptions)
        if (state.option == option)
            co_return co_await changeStates(context, state);
    co_return co_await changeProperty(context, option);
}

/// Options, one after another until an empty answer.
Dialogue<bool> takeLayerOptions(CommandContext &context)
{
    while (!context.hasFailed()) {
        const PromptReply option = co_await context.keyword(
            Commands::tr("Enter an option "
                         "[?/Make/Set/New/Rename/ON/OFF/Color/Ltype/LWeight/TRansparency/MATerial/Plot/PStyle/Freeze/"
                         "Thaw/LOck/Unlock/stAte/Description/rEconcile]: "));
        if (!option.hasValue())
            break;
        co_await takeLayerOption(context, option.text);
    }
    co_return true;
}

/// Keeps for LAYERP what the layers were, also where Esc ends the command and what it did stays.
class LayerMemory
{
public:
    explicit LayerMemory(CommandContext &context) : m_context(context), m_before(layerStates(context)) {}
    ~LayerMemory() { rememberLayers(m_context, m_before); }
    LayerMemory(const LayerMemory &) = delete;
    LayerMemory &operator=(const LayerMemory &) = delete;

private:
    CommandContext &m_context;
    LayerStates m_before;
};

CommandTask layer(CommandContext &context)
{
    context.print(Commands::tr("\nCurrent layer:  \"%1\"").arg(currentLayer(context)));
    const LayerMemory memory(context);
    co_await takeLayerOptions(context);
}

} // namespace

std::vector<CommandRow> layerCommands()
{
    return {{"-LAYER", layer, "Makes layers and changes their properties and states", WhenCancelled::KeepDone,
             Interrupts::Prompts},
            {"LAYER", layer, "As -LAYER; entered by hand in the window it shows the layer panel",
             WhenCancelled::KeepDone, Interrupts::Prompts}};
}

} // namespace host::kernel
