#include "host/drawing/Symbols.h"
#include "host/drawing/Tables.h"
#include "host/drawing/Wildcard.h"
#include "host/kernel/Document.h"
#include "host/kernel/SystemVariables.h"
#include "host/kernel/commands/CommandContext.h"
#include "host/kernel/commands/Commands.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::FieldList;
using drawing::Layer;
using drawing::RecordId;
using drawing::TableKind;

/// Layers whose names match a list of patterns with commas between.
std::vector<Layer> matchingLayers(CommandContext &context, const QString &patterns)
{
    std::vector<Layer> layers = drawing::allLayers(context.drawing());
    std::erase_if(layers, [&](const Layer &layer) { return !drawing::matchesWildcard(layer.name, patterns); });
    if (layers.empty())
        context.print(u"\nNo matching layer names found."_s);
    return layers;
}

void changeFlag(CommandContext &context, const Layer &layer, qint64 bit, bool isOn)
{
    FieldList fields = context.drawing().fields(layer.record);
    const drawing::Field *flags = drawing::findField(fields, 70);
    const qint64 before = flags ? flags->integer() : 0;
    drawing::setField(fields, 70, isOn ? before | bit : before & ~bit);
    context.drawing().setFields(layer.record, fields);
}

/// A negative colour number says that the layer is off.
void changeColour(CommandContext &context, const Layer &layer, int colour, bool isOff)
{
    FieldList fields = context.drawing().fields(layer.record);
    drawing::setField(fields, 62, qint64(isOff ? -colour : colour));
    context.drawing().setFields(layer.record, fields);
}

/// The options that change a state of the layers named.
void applyOption(CommandContext &context, const QString &option, const QString &names)
{
    constexpr qint64 frozen = 1;
    constexpr qint64 locked = 4;
    const QString current = context.document().variables().text(u"CLAYER");
    for (const Layer &layer : matchingLayers(context, names)) {
        if (option == u"ON"_s || option == u"OFF"_s)
            changeColour(context, layer, layer.colour, option == u"OFF"_s);
        else if (option == u"Freeze"_s && layer.name.compare(current, Qt::CaseInsensitive) == 0)
            context.print(u"\nCannot freeze layer \"%1\". It is the current layer."_s.arg(layer.name));
        else if (option == u"Freeze"_s || option == u"Thaw"_s)
            changeFlag(context, layer, frozen, option == u"Freeze"_s);
        else
            changeFlag(context, layer, locked, option == u"LOck"_s);
    }
}

void makeLayers(CommandContext &context, const QString &names)
{
    for (const QString &name : names.split(u',', Qt::SkipEmptyParts))
        context.drawing().tables().add(TableKind::Layer, name.trimmed());
}

void setCurrent(CommandContext &context, const QString &name)
{
    if (context.document().variables().set(u"CLAYER", name.trimmed()) != SetOutcome::Done)
        context.print(u"\nCannot find layer \"%1\"."_s.arg(name));
}

void setLinetype(CommandContext &context, const QString &linetype, const QString &names)
{
    if (!isValid(context.drawing().tables().find(TableKind::Linetype, linetype))) {
        context.print(u"\nLinetype \"%1\" not found."_s.arg(linetype));
        return;
    }
    for (const Layer &layer : matchingLayers(context, names)) {
        FieldList fields = context.drawing().fields(layer.record);
        drawing::setField(fields, 6, linetype);
        context.drawing().setFields(layer.record, fields);
    }
}

/// The number of a colour given by number or name; 0 when it is neither.
int colourNumber(const QString &text)
{
    static const QStringList names = {u"RED"_s,  u"YELLOW"_s,  u"GREEN"_s, u"CYAN"_s,
                                      u"BLUE"_s, u"MAGENTA"_s, u"WHITE"_s};
    const int number = text.toInt();
    return number >= 1 && number <= 255 ? number : int(names.indexOf(text.toUpper())) + 1;
}

// Make, Set, New, ON, OFF, Color, Ltype, Freeze, Thaw, LOck, Unlock, one after another until an empty answer.
CommandTask layer(CommandContext &context)
{
    for (;;) {
        const PromptReply option =
            co_await context.keyword(u"Enter an option [Make/Set/New/ON/OFF/Color/Ltype/Freeze/Thaw/LOck/Unlock]: "_s,
                                     u"Make Set New ON OFF Color Ltype Freeze Thaw LOck Unlock"_s);
        if (!option.hasValue())
            co_return;
        const QString current = context.document().variables().text(u"CLAYER");
        if (option.text == u"Make"_s || option.text == u"Set"_s || option.text == u"New"_s) {
            const PromptReply names = co_await context.text(u"Enter layer name <%1>: "_s.arg(current), current);
            const QString given = names.hasValue() ? names.text : current;
            if (option.text != u"Set"_s)
                makeLayers(context, given);
            if (option.text != u"New"_s)
                setCurrent(context, given);
        } else if (option.text == u"Color"_s) {
            const PromptReply colour = co_await context.name(u"New color (1-255 or name): "_s);
            const PromptReply names = co_await context.text(u"Enter layer names <%1>: "_s.arg(current), current);
            const int number = colourNumber(colour.text);
            if (number == 0) {
                context.print(u"\nRequires a color number from 1 to 255 or a color name."_s);
                continue;
            }
            for (const Layer &found : matchingLayers(context, names.hasValue() ? names.text : current))
                changeColour(context, found, number, found.isOff);
        } else if (option.text == u"Ltype"_s) {
            const PromptReply linetype = co_await context.text(u"Enter linetype <Continuous>: "_s, u"Continuous"_s);
            const PromptReply names = co_await context.text(u"Enter layer names <%1>: "_s.arg(current), current);
            setLinetype(context, linetype.hasValue() ? linetype.text : u"Continuous"_s,
                        names.hasValue() ? names.text : current);
        } else {
            const PromptReply names = co_await context.text(u"Enter layer names: "_s);
            if (names.hasValue())
                applyOption(context, option.text, names.text);
        }
    }
}

} // namespace

std::vector<CommandRow> layerCommands()
{
    return {{"-LAYER", layer, "Makes layers and changes their states"},
            {"LAYER", layer, "As -LAYER; there is no window for it"}};
}

} // namespace host::kernel
