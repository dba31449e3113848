#include "host/commands/Commands.h"
#include "host/commands/annotate/DimensionDialogues.h"
#include "host/commands/common/EntityEdits.h"
#include "host/drawing/annotation/StyleValues.h"
#include "host/drawing/geometry/TransformFields.h"
#include "host/drawing/records/Entities.h"
#include "host/drawing/records/Tables.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/input/Units.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/variables/SystemVariables.h"

#include <numbers>

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::DimensionValue;
using drawing::DimensionVariable;
using drawing::Field;
using drawing::FieldList;
using drawing::RecordId;
using drawing::Vec3;

namespace {

constexpr qint64 textMovedFlag = 128;

void setTextMoved(FieldList &dimension, bool isMoved)
{
    const Field *flags = drawing::findField(dimension, 70);
    const qint64 before = flags ? flags->integer() : 0;
    drawing::setField(dimension, 70, isMoved ? before | textMovedFlag : before & ~textMovedFlag);
}

void dropField(FieldList &fields, int code)
{
    std::erase_if(fields, [code](const Field &field) { return field.code == code; });
}

/// What DIMEDIT does to one dimension's fields.
using DimensionChange = std::function<void(FieldList &)>;

/// Changes the dimensions among the entities and draws them anew.
void changeDimensions(CommandContext &context, const std::vector<RecordId> &entities, const DimensionChange &change,
                      bool movesTextHome = false)
{
    drawing::Drawing &drawing = context.drawing();
    for (const RecordId id : editable(context, entities)) {
        if (!isDimension(drawing, id))
            continue;
        FieldList fields = drawing.fields(id);
        change(fields);
        drawing.entities().modify(id, fields);
        redrawDimension(context, id, movesTextHome);
    }
}

void moveTextHome(FieldList &dimension)
{
    setTextMoved(dimension, false);
    dropField(dimension, 53);
}

Dialogue<bool> obliqueDimensions(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection();
    const PromptReply angle =
        co_await context.orientation(Commands::tr("Enter obliquing angle (press ENTER for none): "), {}, {});
    const UserPlane plane(context.document());
    const double degrees = angle.hasValue() ? plane.objectDegrees(angle.real) : 0.0;
    changeDimensions(context, chosen.entities, [&](FieldList &fields) {
        const Field *flags = drawing::findField(fields, 70);
        const qint64 kind = flags ? flags->integer() & 15 : 0;
        if (kind > 1)
            return;
        // The record has the angle from the dimension line, the user's is that of the extension lines.
        double line = drawing::realOf(fields, 50);
        if (kind == 1) {
            const Vec3 along = drawing::findField(fields, 14)->point() - drawing::findField(fields, 13)->point();
            const Field *normal = drawing::findField(fields, 210);
            const drawing::Matrix axes =
                drawing::Matrix::fromExtrusion(normal ? normal->point() : Vec3{0.0, 0.0, 1.0}).inverted();
            const Vec3 flat = axes.direction(along);
            line = std::atan2(flat.y, flat.x) * 180.0 / std::numbers::pi;
        }
        dropField(fields, 52);
        if (angle.hasValue())
            drawing::setOwnField(fields, 52, plainDegrees(degrees - line));
    });
    co_return true;
}

/// DIMJUST of one dimension: 1 and 2 put the text at the first or second extension line.
DimensionChange justified(qint64 justification)
{
    return [justification](FieldList &fields) {
        setTextMoved(fields, false);
        FieldList overrides = drawing::overridesOf(fields);
        dropField(overrides, 280);
        overrides.push_back({280, justification});
        drawing::setOverrides(fields, overrides);
    };
}

/// A typed value of a variable in the form of the header; nothing for one that it does not take.
std::optional<Field> typedValue(CommandContext &context, const DimensionVariable &variable, const QString &typed)
{
    if (kindOf(variable) == DimensionValue::Real) {
        const auto value = UnitFormat::of(context.document().variables()).parseLength(typed);
        return value ? std::optional(Field{40, *value}) : std::nullopt;
    }
    if (kindOf(variable) != DimensionValue::Integer)
        return Field{1, typed};
    if (typed.compare(u"on", Qt::CaseInsensitive) == 0 || typed.compare(u"off", Qt::CaseInsensitive) == 0)
        return Field{70, qint64(typed.size() == 2 ? 1 : 0)};
    bool isNumber = false;
    const qint64 value = typed.toShort(&isNumber);
    return isNumber ? std::optional(Field{70, value}) : std::nullopt;
}

QString valueInUse(CommandContext &context, const DimensionVariable &variable)
{
    drawing::Drawing &drawing = context.drawing();
    const RecordId style = drawing.tables().find(drawing::TableKind::DimStyle, currentDimensionStyle(context));
    const Field value =
        valueInHeader(drawing, variable).value_or(valueInStyle(drawing, drawing.fields(style), variable));
    if (kindOf(variable) == DimensionValue::Real)
        return context.shownLength(value.real());
    return kindOf(variable) == DimensionValue::Integer ? QString::number(value.integer()) : value.text();
}

/// Variables with their values, until an empty answer; nothing when one was refused.
Dialogue<std::optional<FieldList>> askOverrides(CommandContext &context, QString firstName)
{
    FieldList overrides;
    for (QString name = firstName; !name.isEmpty();) {
        const DimensionVariable *variable = drawing::dimensionVariable(name);
        if (!variable || !isOfStyles(*variable)) {
            if (context.refuse(Commands::tr("Unknown dimension variable \"%1\".").arg(name)))
                co_return std::nullopt;
        } else {
            const QString usual = valueInUse(context, *variable);
            const PromptReply typed =
                co_await context.text(Commands::tr("Enter new value for dimension variable <%1>: ").arg(usual), usual);
            const auto value = typedValue(context, *variable, typed.hasValue() ? typed.text.trimmed() : usual);
            if (value)
                overrides.push_back(fieldOfStyle(context.drawing(), *variable, *value));
            else if (context.refuse(
                         Commands::tr("%1 does not take this value.").arg(QLatin1StringView(variable->name))))
                co_return std::nullopt;
        }
        const PromptReply next = co_await context.name(Commands::tr("Enter dimension variable name to override: "));
        name = next.text.trimmed();
    }
    co_return overrides;
}

VariableValue variableValueOf(const Field &value)
{
    if (const auto *real = std::get_if<double>(&value.value))
        return *real;
    if (const auto *integer = std::get_if<qint64>(&value.value))
        return static_cast<qint16>(*integer);
    return value.text();
}

CommandTask dimensionEdit(CommandContext &context)
{
    const PromptReply option = co_await context.keyword(
        Commands::tr("Enter type of dimension editing [Home/New/Rotate/Oblique] <Home>: "), {}, u"Home"_s);
    const QString chosen = option.text.isEmpty() ? u"Home"_s : option.text;
    co_await editDimensions(context, chosen);
}

CommandTask dimensionTextEdit(CommandContext &context)
{
    co_await placeDimensionText(context);
}

CommandTask dimensionOverride(CommandContext &context)
{
    co_await overrideDimensionVariables(context);
}

} // namespace

// The dimensions are asked for last, but first of Oblique.
Dialogue<bool> editDimensions(CommandContext &context, QString option)
{
    if (option == u"Oblique")
        co_return co_await obliqueDimensions(context);
    DimensionChange change = moveTextHome;
    if (option == u"New") {
        const PromptReply text = co_await context.text(Commands::tr("Enter dimension text <<>>: "), u"<>"_s);
        const QString wanted = text.hasValue() && text.text != u"<>" ? text.text : QString();
        change = [wanted](FieldList &fields) {
            dropField(fields, 1);
            if (!wanted.isEmpty())
                drawing::setOwnField(fields, 1, wanted);
        };
    } else if (option == u"Rotate") {
        const PromptReply angle = co_await context.orientation(Commands::tr("Specify angle for dimension text: "));
        const double degrees = angle.hasValue() ? UserPlane(context.document()).objectDegrees(angle.real) : 0.0;
        change = [degrees](FieldList &fields) {
            dropField(fields, 53);
            if (degrees != 0.0)
                drawing::setOwnField(fields, 53, degrees);
        };
    }
    const PromptReply chosen = co_await context.selection();
    changeDimensions(context, chosen.entities, change, option != u"New" && option != u"Rotate");
    co_return true;
}

// One dimension, then the place of its text or a word for it.
Dialogue<bool> placeDimensionText(CommandContext &context)
{
    const UserPlane plane(context.document());
    const PromptReply picked = co_await context.entity(Commands::tr("Select dimension: "));
    if (picked.entities.empty())
        co_return false;
    if (!isDimension(context.drawing(), picked.entities.front())) {
        context.fail(Commands::tr("Object selected is not a dimension."));
        co_return false;
    }
    const PromptReply place = co_await context.neededPoint(
        Commands::tr("Specify new location for dimension text or [Left/Right/Center/Home/Angle]: "));
    DimensionChange change = moveTextHome;
    if (place.hasValue()) {
        change = [&](FieldList &fields) {
            setTextMoved(fields, true);
            const Field *normal = drawing::findField(fields, 210);
            const drawing::Matrix axes = drawing::Matrix::fromExtrusion(normal ? normal->point() : Vec3{0, 0, 1});
            Vec3 at = axes.inverted().point(place.point);
            at.z = axes.inverted().point(drawing::findField(fields, 10)->point()).z;
            drawing::setField(fields, 11, at);
        };
    } else if (place.isKeyword(u"Angle")) {
        const PromptReply angle = co_await context.orientation(Commands::tr("Specify angle for dimension text: "));
        const double degrees = angle.hasValue() ? plane.objectDegrees(angle.real) : 0.0;
        change = [degrees](FieldList &fields) { drawing::setOwnField(fields, 53, degrees); };
    } else if (!place.isKeyword(u"Home")) {
        change = justified(place.isKeyword(u"Left") ? 1 : place.isKeyword(u"Right") ? 2 : 0);
    }
    changeDimensions(context, {picked.entities.front()}, change, !place.hasValue() && !place.isKeyword(u"Angle"));
    co_return true;
}

// Variables with values, or Clear, then the dimensions that get them in place of what their style says.
Dialogue<bool> overrideDimensionVariables(CommandContext &context)
{
    const PromptReply first = co_await context.text(
        Commands::tr("Enter dimension variable name to override or [Clear overrides]: "), {}, u"Clear"_s);
    FieldList overrides;
    const bool isClearing = first.isKeyword(u"Clear");
    if (!isClearing) {
        const auto asked = co_await askOverrides(context, first.text.trimmed());
        if (!asked || asked->empty())
            co_return false;
        overrides = *asked;
    }
    const PromptReply chosen = co_await context.selection();
    changeDimensions(context, chosen.entities, [&](FieldList &fields) {
        FieldList own = isClearing ? FieldList{} : drawing::overridesOf(fields);
        for (const Field &field : overrides) {
            dropField(own, field.code);
            own.push_back(field);
        }
        drawing::setOverrides(fields, own);
    });
    co_return true;
}

Dialogue<bool> setDimensionVariable(CommandContext &context, QString name)
{
    const DimensionVariable *variable = drawing::dimensionVariable(name);
    if (!variable || !isOfStyles(*variable)) {
        context.refuse(Commands::tr("Unknown dimension variable \"%1\".").arg(name));
        co_return false;
    }
    for (;;) {
        const QString usual = valueInUse(context, *variable);
        const PromptReply typed =
            co_await context.text(Commands::tr("Enter new value for dimension variable <%1>: ").arg(usual), usual);
        if (!typed.hasValue() || typed.text.trimmed().isEmpty())
            co_return true;
        const auto value = typedValue(context, *variable, typed.text.trimmed());
        if (value && context.document().variables().set(name, variableValueOf(*value)) == SetOutcome::Done)
            co_return true;
        if (context.refuse(Commands::tr("%1 does not take this value.").arg(QLatin1StringView(variable->name))))
            co_return false;
    }
}

std::vector<CommandRow> dimensionEditCommands()
{
    return {{"DIMEDIT", dimensionEdit, "Changes text and extension lines of dimensions"},
            {"DIMOVERRIDE", dimensionOverride, "Sets variables of single dimensions"},
            {"DIMTEDIT", dimensionTextEdit, "Moves or turns the text of a dimension"}};
}

} // namespace host::kernel
