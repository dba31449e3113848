#include "host/commands/layers/LayerStates.h"

#include "host/drawing/records/Symbols.h"
#include "host/drawing/records/Tables.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::FieldList;
using drawing::Layer;
using drawing::TableKind;

namespace {

constexpr int layerFlagsCode = 70;
constexpr int layerColourCode = 62;

/// The key of what is no layer: the name of the current one.
const QString currentKey = u""_s;

} // namespace

QString currentLayer(CommandContext &context)
{
    return context.document().variables().text(u"CLAYER");
}

bool isCurrent(CommandContext &context, const Layer &layer)
{
    return layer.name.compare(currentLayer(context), Qt::CaseInsensitive) == 0;
}

void changeLayerFlag(CommandContext &context, const Layer &layer, qint64 bit, bool isOn)
{
    FieldList fields = context.drawing().fields(layer.record);
    const drawing::Field *flags = drawing::findField(fields, layerFlagsCode);
    const qint64 before = flags ? flags->integer() : 0;
    drawing::setField(fields, layerFlagsCode, isOn ? before | bit : before & ~bit);
    context.drawing().tables().modify(layer.record, fields);
}

void switchLayer(CommandContext &context, const Layer &layer, bool isOn)
{
    FieldList fields = context.drawing().fields(layer.record);
    drawing::setField(fields, layerColourCode, qint64(isOn ? layer.colour : -layer.colour));
    context.drawing().tables().modify(layer.record, fields);
}

LayerStates layerStates(CommandContext &context)
{
    LayerStates states;
    const drawing::Tables &tables = context.drawing().tables();
    for (const drawing::RecordId entry : tables.entries(TableKind::Layer))
        states.insert(tables.name(entry).toCaseFolded(), context.drawing().fields(entry));
    states.insert(currentKey, {{8, currentLayer(context)}});
    return states;
}

void rememberLayers(CommandContext &context, const LayerStates &before)
{
    constexpr std::size_t most = 10;
    if (layerStates(context) == before)
        return;
    std::vector<LayerStates> &former = context.document().memory().formerLayers;
    if (former.size() == most)
        former.erase(former.begin());
    former.push_back(before);
}

void restoreLayers(CommandContext &context, const LayerStates &states)
{
    drawing::Tables &tables = context.drawing().tables();
    for (const drawing::RecordId entry : tables.entries(TableKind::Layer)) {
        const auto before = states.constFind(tables.name(entry).toCaseFolded());
        if (before == states.constEnd())
            continue;
        FieldList fields = *before;
        drawing::setField(fields, 2, tables.name(entry));
        tables.modify(entry, fields);
    }
    const FieldList current = states.value(currentKey);
    const QString name = current.empty() ? QString() : current.front().text();
    if (isValid(tables.find(TableKind::Layer, name)))
        context.document().variables().set(u"CLAYER", name);
}

} // namespace host::kernel
