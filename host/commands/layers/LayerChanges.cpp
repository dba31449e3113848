#include "host/commands/layers/LayerChanges.h"

#include "host/commands/common/LoadableLinetype.h"
#include "host/commands/common/PropertyValues.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/tags/ExtendedData.h"
#include "host/kernel/documents/CurrentProperties.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::FieldList;
using drawing::TableKind;
using drawing::Version;

constexpr int colourCode = 62;
constexpr int exactColourCode = 420;
constexpr int colourBookCode = 430;

/// No change, for a reason; the user is asked for another option then.
LayerChange refused(CommandContext &context, const QString &reason)
{
    context.refuse(reason);
    return {};
}

bool isOlderThan(CommandContext &context, Version version)
{
    return context.drawing().version() < version;
}

LayerChange tooOld(CommandContext &context)
{
    return refused(context, Commands::tr("A drawing of this version has no such property of layers."));
}

void removeField(FieldList &fields, int code)
{
    std::erase_if(fields, [code](const drawing::Field &field) { return field.code == code; });
}

/// Sets a group in front of the extended data.
void setBeforeXdata(FieldList &fields, int code, const drawing::FieldValue &value)
{
    if (drawing::findField(fields, code))
        return drawing::setField(fields, code, value);
    const auto place = std::ranges::find_if(fields, [](const drawing::Field &field) { return field.code >= 1000; });
    fields.insert(place, {code, value});
}

void setColour(FieldList &fields, int number)
{
    const drawing::Field *present = drawing::findField(fields, colourCode);
    const bool isOff = present && present->integer() < 0;
    setBeforeXdata(fields, colourCode, qint64(isOff ? -number : number));
    removeField(fields, exactColourCode);
    removeField(fields, colourBookCode);
}

Dialogue<LayerChange> askExactColour(CommandContext &context)
{
    const PromptReply reply = co_await context.name(Commands::tr("Red,Green,Blue: "));
    const std::optional<qint64> value = exactColour(reply.text);
    if (!value)
        co_return refused(context, Commands::tr("Requires three numbers from 0 to 255."));
    if (isOlderThan(context, Version::R2004))
        co_return tooOld(context);
    co_return LayerChange{u"color "_s + reply.text, [value](FieldList &fields) {
                              removeField(fields, colourBookCode);
                              setBeforeXdata(fields, exactColourCode, *value);
                          }};
}

Dialogue<LayerChange> askColour(CommandContext &context)
{
    const PromptReply colour =
        co_await context.name(Commands::tr("New color [Truecolor/COlorbook] <7 (white)>: "), u"7"_s);
    if (colour.isKeyword(u"Truecolor"))
        co_return co_await askExactColour(context);
    if (colour.isKeyword(u"COlorbook"))
        co_return refused(context, Commands::tr("This program has no color books."));
    const int number = colour.hasValue() ? colourNumber(colour.text) : 7;
    if (number == 0)
        co_return refused(context, Commands::tr("Requires a color number from 1 to 255 or a color name."));
    co_return LayerChange{u"color "_s + colour.text, [number](FieldList &fields) { setColour(fields, number); }};
}

Dialogue<LayerChange> askLinetype(CommandContext &context)
{
    const drawing::Tables &tables = context.drawing().tables();
    const QString usual = u"Continuous"_s;
    PromptReply reply =
        co_await context.text(Commands::tr("Enter loaded linetype name or [?] <%1>: ").arg(usual), usual, u"?"_s);
    while (reply.isKeyword(u"?")) {
        for (const drawing::RecordId entry : tables.entries(TableKind::Linetype))
            context.print(u'\n' + tables.name(entry));
        reply =
            co_await context.text(Commands::tr("Enter loaded linetype name or [?] <%1>: ").arg(usual), usual, u"?"_s);
    }
    const QString name = reply.hasValue() ? reply.text.trimmed() : usual;
    const drawing::RecordId entry = loadedLinetype(context, name);
    if (!isValid(entry))
        co_return refused(context, Commands::tr("Linetype \"%1\" not found.").arg(name));
    const QString known = tables.name(entry);
    co_return LayerChange{Commands::tr("linetype \"%1\"").arg(known),
                          [known](FieldList &fields) { setBeforeXdata(fields, 6, known); }};
}

Dialogue<LayerChange> askWeight(CommandContext &context)
{
    constexpr qint64 usual = -3;
    const PromptReply reply = co_await context.real(Commands::tr("Enter lineweight (0.0mm - 2.11mm) or [Default]: "),
                                                    {}, u"Default"_s, NoNegative);
    if (isOlderThan(context, Version::R2000))
        co_return tooOld(context);
    if (reply.hasValue() && reply.real > 2.11)
        co_return refused(context, Commands::tr("Requires a lineweight from 0 to 2.11."));
    const qint64 weight = reply.hasValue() ? nearestWeight(reply.real) : usual;
    const QString shown = weight < 0 ? u"Default"_s : u"%1mm"_s.arg(double(weight) / 100.0, 0, 'f', 2);
    co_return LayerChange{u"lineweight "_s + shown,
                          [weight](FieldList &fields) { setBeforeXdata(fields, 370, weight); }};
}

Dialogue<LayerChange> askTransparency(CommandContext &context)
{
    const PromptReply reply =
        co_await context.integer(Commands::tr("Enter transparency value (0-90): "), {}, {}, NoEmptyAnswer | NoNegative);
    if (isOlderThan(context, Version::R2004))
        co_return tooOld(context);
    if (reply.integer > 90)
        co_return refused(context, Commands::tr("Requires an integer from 0 to 90."));
    FieldList data;
    if (reply.integer > 0)
        data.push_back({1071, transparencyValue(int(reply.integer))});
    co_return LayerChange{Commands::tr("transparency value %1").arg(reply.integer),
                          [data](FieldList &fields) { drawing::setExtendedData(fields, u"AcCmTransparency"_s, data); }};
}

Dialogue<LayerChange> askMaterial(CommandContext &context)
{
    const PromptReply reply = co_await context.text(Commands::tr("Enter material name <Global>: "), u"Global"_s);
    if (isOlderThan(context, Version::R2007))
        co_return tooOld(context);
    const QString name = reply.hasValue() ? reply.text.trimmed() : u"Global"_s;
    const drawing::Dictionaries &dictionaries = context.drawing().dictionaries();
    const drawing::RecordId root = dictionaries.root();
    const drawing::RecordId materials = isValid(root) ? dictionaries.find(root, u"ACAD_MATERIAL") : drawing::noRecord;
    const drawing::RecordId material = isValid(materials) ? dictionaries.find(materials, name) : drawing::noRecord;
    if (!isValid(material))
        co_return refused(context, Commands::tr("Cannot find material \"%1\".").arg(name));
    const drawing::Handle handle = context.drawing().handle(material);
    co_return LayerChange{Commands::tr("material \"%1\"").arg(name),
                          [handle](FieldList &fields) { setBeforeXdata(fields, 347, handle); }};
}

Dialogue<LayerChange> askPlot(CommandContext &context)
{
    const PromptReply reply =
        co_await context.keyword(Commands::tr("Enter a plotting preference [Plot/No plot] <Plot>: "), {}, u"Plot"_s);
    if (isOlderThan(context, Version::R2000))
        co_return tooOld(context);
    const bool isPlotted = reply.text != u"No"_s;
    co_return LayerChange{Commands::tr("this plot preference"), [isPlotted](FieldList &fields) {
                              if (isPlotted)
                                  removeField(fields, 290);
                              else
                                  setBeforeXdata(fields, 290, qint64(0));
                          }};
}

Dialogue<LayerChange> askDescription(CommandContext &context)
{
    const PromptReply reply = co_await context.text(Commands::tr("Enter layer description: "));
    if (isOlderThan(context, Version::R2000))
        co_return tooOld(context);
    FieldList data;
    if (reply.hasValue() && !reply.text.isEmpty())
        data = {{1000, QString()}, {1000, reply.text}};
    co_return LayerChange{Commands::tr("this description"), [data](FieldList &fields) {
                              drawing::setExtendedData(fields, u"AcAecLayerStandard"_s, data);
                          }};
}

struct Property
{
    QStringView option;
    Dialogue<LayerChange> (*ask)(CommandContext &context);
};

constexpr Property properties[] = {
    {u"Color", askColour},
    {u"Ltype", askLinetype},
    {u"LWeight", askWeight},
    {u"TRansparency", askTransparency},
    {u"MATerial", askMaterial},
    {u"Plot", askPlot},
    {u"Description", askDescription},
};

} // namespace

Dialogue<LayerChange> askLayerChange(CommandContext &context, const QString &option)
{
    for (const Property &property : properties)
        if (property.option == option)
            co_return co_await property.ask(context);
    co_return refused(context, Commands::tr("This program keeps no named plot styles: nothing was changed."));
}

} // namespace host::kernel
