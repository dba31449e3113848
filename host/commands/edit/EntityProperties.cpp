#include "host/commands/edit/EntityProperties.h"

#include "host/commands/common/LoadableLinetype.h"
#include "host/commands/common/PropertyValues.h"
#include "host/drawing/geometry/TransformFields.h"
#include "host/drawing/records/Entities.h"
#include "host/drawing/records/Structure.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/tags/GroupCodes.h"
#include "host/kernel/documents/CurrentProperties.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::FieldList;
using drawing::FieldValue;
using drawing::RecordId;
using drawing::TableKind;
using drawing::Vec3;
using drawing::Version;
using Entities = std::vector<RecordId>;

constexpr int transparencyCode = 440;

PropertyChange noChange(CommandContext &context, const QString &reason)
{
    context.refuse(reason);
    return {};
}

/// What all of them say alike, "varies" when they differ.
QString commonText(const Entities &entities, const std::function<QString(RecordId)> &textOf)
{
    const QString first = textOf(entities.front());
    const bool isCommon = std::ranges::all_of(entities, [&](RecordId id) { return textOf(id) == first; });
    return isCommon ? first : u"varies"_s;
}

QString colourShown(CommandContext &context, RecordId entity)
{
    const drawing::TagList tags = context.drawing().tags(entity);
    if (const drawing::Tag *exact = tags.find(420)) {
        const qint64 value = exact->integer().value_or(0);
        return u"%1,%2,%3"_s.arg(value >> 16 & 255).arg(value >> 8 & 255).arg(value & 255);
    }
    const qint64 number = tags.integer(62, drawing::colourByLayer);
    return number == 0 ? u"BYBLOCK"_s : number == drawing::colourByLayer ? u"BYLAYER"_s : QString::number(number);
}

PropertyChange colourChange(qint64 number)
{
    return {[number](FieldList &fields) {
        std::erase_if(fields, [](const drawing::Field &field) { return field.code == 420 || field.code == 430; });
        if (number == drawing::colourByLayer)
            std::erase_if(fields, [](const drawing::Field &field) { return field.code == 62; });
        else
            setCommonField(fields, 62, number);
    }};
}

PropertyChange exactColourChange(CommandContext &context, const QString &text)
{
    const std::optional<qint64> value = exactColour(text);
    if (!value)
        return noChange(context, Commands::tr("Requires three numbers from 0 to 255."));
    if (context.drawing().version() < Version::R2004)
        return noChange(context, Commands::tr("A drawing of this version has no such colors."));
    return {[value](FieldList &fields) {
        std::erase_if(fields, [](const drawing::Field &field) { return field.code == 430; });
        setCommonField(fields, 420, *value);
    }};
}

Dialogue<PropertyChange> askColourChange(CommandContext &context, const Entities &entities)
{
    const QString usual = commonText(entities, [&](RecordId id) { return colourShown(context, id); });
    const PromptReply reply =
        co_await context.name(Commands::tr("New color [Truecolor/COlorbook] <%1>: ").arg(usual), usual);
    if (reply.isEmpty())
        co_return PropertyChange{};
    if (reply.isKeyword(u"Truecolor")) {
        const PromptReply exact = co_await context.name(Commands::tr("Red,Green,Blue: "));
        co_return exactColourChange(context, exact.text);
    }
    if (reply.isKeyword(u"COlorbook"))
        co_return noChange(context, Commands::tr("This program has no color books."));
    const QString typed = withoutMark(reply.text).toUpper();
    if (typed == u"BYLAYER" || typed == u"256")
        co_return colourChange(drawing::colourByLayer);
    if (typed == u"BYBLOCK" || typed == u"0")
        co_return colourChange(0);
    if (typed.contains(u','))
        co_return exactColourChange(context, typed);
    const int number = colourNumber(typed);
    if (number == 0)
        co_return noChange(context, Commands::tr("Requires a color number from 1 to 255 or a color name."));
    co_return colourChange(number);
}

/// A name of a table; of a linetype that is not there a message.
Dialogue<PropertyChange> askNameChange(CommandContext &context, const Entities &entities, TableKind kind)
{
    const bool isLayer = kind == TableKind::Layer;
    const int code = isLayer ? 8 : 6;
    const QString usual = commonText(
        entities, [&](RecordId id) { return context.drawing().tags(id).text(code, isLayer ? u"0"_s : u"ByLayer"_s); });
    const QString prompt =
        isLayer ? Commands::tr("Enter new layer name <%1>: ") : Commands::tr("Enter new linetype name <%1>: ");
    const PromptReply reply = co_await context.text(prompt.arg(usual), usual);
    const QString name = isLayer ? reply.text.trimmed() : withoutMark(reply.text.trimmed());
    if (!reply.hasValue() || name.isEmpty())
        co_return PropertyChange{};
    const drawing::Tables &tables = context.drawing().tables();
    const RecordId entry = isLayer ? tables.find(kind, name) : loadedLinetype(context, name);
    const bool isByLayer = !isLayer && name.compare(u"ByLayer"_s, Qt::CaseInsensitive) == 0;
    const bool isByBlock = !isLayer && name.compare(u"ByBlock"_s, Qt::CaseInsensitive) == 0;
    if (!isValid(entry) && !isByLayer && !isByBlock)
        co_return noChange(context, isLayer ? Commands::tr("Cannot find layer \"%1\".").arg(name)
                                            : Commands::tr("Cannot find linetype \"%1\".").arg(name));
    const QString known = isByBlock ? u"ByBlock"_s : isByLayer ? u"ByLayer"_s : tables.name(entry);
    co_return PropertyChange{[code, known, isByLayer](FieldList &fields) {
        if (isByLayer)
            std::erase_if(fields, [](const drawing::Field &field) { return field.code == 6; });
        else
            setCommonField(fields, code, known);
    }};
}

Dialogue<PropertyChange> askLayerOf(CommandContext &context, const Entities &entities)
{
    co_return co_await askNameChange(context, entities, TableKind::Layer);
}

Dialogue<PropertyChange> askLinetypeOf(CommandContext &context, const Entities &entities)
{
    co_return co_await askNameChange(context, entities, TableKind::Linetype);
}

Dialogue<PropertyChange> askLinetypeScale(CommandContext &context, const Entities &entities)
{
    const QString usual = commonText(
        entities, [&](RecordId id) { return context.shownLength(context.drawing().tags(id).real(48, 1.0)); });
    const PromptReply reply = co_await context.distance(Commands::tr("Specify new linetype scale <%1>: ").arg(usual),
                                                        {}, {}, usual, NoZero | NoNegative);
    if (!reply.hasValue())
        co_return PropertyChange{};
    const double scale = reply.real;
    co_return PropertyChange{[scale](FieldList &fields) { setCommonField(fields, 48, scale); }};
}

QString weightShown(qint64 weight)
{
    static const QString words[] = {u"Default"_s, u"ByBlock"_s, u"ByLayer"_s};
    return weight < 0 ? words[std::clamp<qint64>(weight + 3, 0, 2)] : u"%1mm"_s.arg(double(weight) / 100.0, 0, 'f', 2);
}

Dialogue<PropertyChange> askWeightOf(CommandContext &context, const Entities &entities)
{
    const QString usual =
        commonText(entities, [&](RecordId id) { return weightShown(context.drawing().tags(id).integer(370, -1)); });
    const PromptReply reply = co_await context.real(Commands::tr("Enter new lineweight <%1>: ").arg(usual),
                                                    u"ByLayer ByBlock Default"_s, usual, NoNegative);
    if (reply.isEmpty())
        co_return PropertyChange{};
    if (context.drawing().version() < Version::R2000)
        co_return noChange(context, Commands::tr("A drawing of this version has no lineweights."));
    if (reply.hasValue() && reply.real > 2.11)
        co_return noChange(context, Commands::tr("Requires a lineweight from 0 to 2.11."));
    const qint64 weight = reply.hasValue()              ? nearestWeight(reply.real)
                          : reply.isKeyword(u"ByLayer") ? -1
                          : reply.isKeyword(u"ByBlock") ? -2
                                                        : -3;
    co_return PropertyChange{[weight](FieldList &fields) {
        if (weight == -1)
            std::erase_if(fields, [](const drawing::Field &field) { return field.code == 370; });
        else
            setCommonField(fields, 370, weight);
    }};
}

bool mayBeThick(const QString &type)
{
    static const QSet<QString> types = {u"LINE"_s,  u"CIRCLE"_s, u"ARC"_s,   u"POINT"_s,      u"TEXT"_s,    u"SOLID"_s,
                                        u"TRACE"_s, u"ATTDEF"_s, u"SHAPE"_s, u"LWPOLYLINE"_s, u"POLYLINE"_s};
    return types.contains(type);
}

Dialogue<PropertyChange> askThickness(CommandContext &context, const Entities &entities)
{
    const QString usual =
        commonText(entities, [&](RecordId id) { return context.shownLength(context.drawing().tags(id).real(39)); });
    const PromptReply reply =
        co_await context.distance(Commands::tr("Specify new thickness <%1>: ").arg(usual), {}, {}, usual);
    if (!reply.hasValue())
        co_return PropertyChange{};
    const double thickness = reply.real;
    co_return PropertyChange{[thickness](FieldList &fields) {
        if (mayBeThick(fields.front().text()))
            drawing::setOwnField(fields, 39, thickness);
    }};
}

Dialogue<PropertyChange> askTransparencyOf(CommandContext &context, const Entities &)
{
    const PromptReply reply = co_await context.integer(Commands::tr("Enter new transparency value <ByLayer>: "),
                                                       u"ByLayer ByBlock"_s, u"ByLayer"_s, NoNegative);
    if (context.drawing().version() < Version::R2004)
        co_return noChange(context, Commands::tr("A drawing of this version has no transparency."));
    if (reply.hasValue() && reply.integer > 90)
        co_return noChange(context, Commands::tr("Requires an integer from 0 to 90."));
    std::optional<qint64> value;
    if (reply.isKeyword(u"ByBlock"))
        value = transparencyByBlock;
    else if (reply.hasValue())
        value = transparencyValue(int(reply.integer));
    co_return PropertyChange{[value](FieldList &fields) {
        std::erase_if(fields, [](const drawing::Field &field) { return field.code == transparencyCode; });
        if (value)
            setCommonField(fields, transparencyCode, *value);
    }};
}

/// Gives an entity another height above the plane that it lies in; of those in space only points and lines follow.
void setElevation(FieldList &fields, double elevation)
{
    const QString type = fields.front().text();
    if (type == u"LWPOLYLINE")
        return drawing::setOwnField(fields, 38, elevation);
    static const QSet<QString> types = {u"LINE"_s,     u"POINT"_s,  u"CIRCLE"_s, u"ARC"_s,   u"TEXT"_s,
                                        u"ATTDEF"_s,   u"INSERT"_s, u"ATTRIB"_s, u"SOLID"_s, u"TRACE"_s,
                                        u"POLYLINE"_s, u"VERTEX"_s, u"SHAPE"_s,  u"HATCH"_s};
    if (!types.contains(type))
        return;
    for (auto field = fields.begin(), end = drawing::ownEnd(fields); field != end; ++field) {
        if (field->code < 10 || field->code > 13 || !std::holds_alternative<Vec3>(field->value))
            continue;
        const Vec3 point = field->point();
        field->value = Vec3{point.x, point.y, elevation};
        if (type == u"HATCH")
            return;
    }
}

Dialogue<PropertyChange> askElevation(CommandContext &context, const Entities &)
{
    const QString usual = context.shownLength(0.0);
    const PromptReply reply =
        co_await context.distance(Commands::tr("Specify new elevation <%1>: ").arg(usual), {}, {}, usual);
    const double elevation = reply.hasValue() ? reply.real : 0.0;
    co_return PropertyChange{[elevation](FieldList &fields) { setElevation(fields, elevation); }};
}

struct PropertyOption
{
    QStringView option;
    Dialogue<PropertyChange> (*ask)(CommandContext &context, const Entities &entities);
};

constexpr PropertyOption propertyRows[] = {
    {u"Color", askColourChange},          {u"LAyer", askLayerOf},    {u"LType", askLinetypeOf},
    {u"ltScale", askLinetypeScale},       {u"LWeight", askWeightOf}, {u"Thickness", askThickness},
    {u"TRansparency", askTransparencyOf}, {u"Elev", askElevation},
};

} // namespace

QString propertyOptions()
{
    return u"Color/LAyer/LType/ltScale/LWeight/Thickness/TRansparency"_s;
}

Dialogue<PropertyChange> askPropertyChange(CommandContext &context, const Entities &entities, QString option)
{
    for (const PropertyOption &row : propertyRows)
        if (row.option == option)
            co_return co_await row.ask(context, entities);
    co_return PropertyChange{};
}

void changeProperties(CommandContext &context, const Entities &entities, const PropertyChange &change)
{
    drawing::Drawing &drawing = context.drawing();
    const auto applyTo = [&](RecordId record) {
        FieldList fields = drawing.fields(record);
        change.apply(fields);
        drawing.setFields(record, fields);
    };
    for (const RecordId entity : entities) {
        applyTo(entity);
        // Vertices are a part of their polyline, while an attribute has a look of its own.
        const bool isPolyline = drawing.isType(entity, "POLYLINE");
        for (const RecordId child : isPolyline ? drawing.children(entity) : std::vector<RecordId>())
            applyTo(child);
        if (isPolyline && isValid(drawing.endOf(entity)))
            applyTo(drawing.endOf(entity));
    }
}

void setCommonField(FieldList &fields, int code, const FieldValue &value)
{
    if (drawing::Field *present = drawing::findField(fields, code)) {
        present->value = value;
        return;
    }
    drawing::BraceDepth depth;
    for (auto field = fields.begin(); field != fields.end(); ++field) {
        if (!depth.isInside(*field) && field->code == 8) {
            fields.insert(field + 1, {code, value});
            return;
        }
    }
    // Without a layer: behind the mark of what all entities have, or the head.
    const auto marker = std::ranges::find(fields, drawing::subclassCode, &drawing::Field::code);
    fields.insert(marker == fields.end() ? fields.begin() + 1 : marker + 1, {code, value});
}

} // namespace host::kernel
