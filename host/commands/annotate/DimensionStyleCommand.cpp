#include "host/commands/Commands.h"
#include "host/commands/annotate/DimensionDialogues.h"
#include "host/commands/common/EntityEdits.h"
#include "host/drawing/annotation/StyleValues.h"
#include "host/drawing/records/Entities.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/selection/Wildcard.h"
#include "host/drawing/tags/ExtendedData.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::DimensionVariable;
using drawing::Field;
using drawing::FieldList;
using drawing::RecordId;
using drawing::TableKind;

namespace {

QString shownValue(CommandContext &context, const DimensionVariable &variable, const Field &value)
{
    if (kindOf(variable) == drawing::DimensionValue::Real)
        return context.shownLength(value.real());
    return kindOf(variable) == drawing::DimensionValue::Integer ? QString::number(value.integer()) : value.text();
}

/// Prints the variables: those in use, or those of a style.
void listVariables(CommandContext &context, RecordId style, bool isInUse)
{
    const FieldList fields = context.drawing().fields(style);
    for (const DimensionVariable &variable : drawing::dimensionVariables()) {
        if (!isOfStyles(variable))
            continue;
        Field value = valueInStyle(context.drawing(), fields, variable);
        if (isInUse)
            value = valueInHeader(context.drawing(), variable).value_or(value);
        context.print(
            u"\n%1  %2"_s.arg(QLatin1StringView(variable.name), -12).arg(shownValue(context, variable, value)));
    }
}

void listDimensionStyles(CommandContext &context, const QString &pattern)
{
    for (const RecordId entry : context.drawing().tables().entries(TableKind::DimStyle))
        if (drawing::matchesWildcard(context.drawing().tables().name(entry), pattern))
            context.print(u"\n  "_s + context.drawing().tables().name(entry));
}

Dialogue<bool> askStyleList(CommandContext &context)
{
    const PromptReply pattern = co_await context.text(Commands::tr("Enter dimension style(s) to list <*>: "), u"*"_s);
    listDimensionStyles(context, pattern.hasValue() ? pattern.text.trimmed() : u"*"_s);
    co_return true;
}

/// A style by its name or that of a dimension that is picked; noRecord when there was none, which was told.
Dialogue<RecordId> askDimensionStyle(CommandContext &context)
{
    const drawing::Tables &tables = context.drawing().tables();
    for (;;) {
        const PromptReply name = co_await context.text(
            Commands::tr("Enter a dimension style name, [?] or <select dimension>: "), {}, u"?"_s);
        if (name.isKeyword(u"?")) {
            co_await askStyleList(context);
            continue;
        }
        QString wanted = name.text.trimmed();
        if (wanted.isEmpty()) {
            const PromptReply picked = co_await context.entity(Commands::tr("Select dimension: "));
            if (picked.entities.empty())
                co_return drawing::noRecord;
            wanted = context.drawing().tags(picked.entities.front()).text(3);
        }
        const RecordId style = tables.find(TableKind::DimStyle, wanted);
        if (isValid(style))
            co_return style;
        if (context.refuse(Commands::tr("Cannot find dimension style \"%1\".").arg(wanted)))
            co_return drawing::noRecord;
    }
}

/// Marks a style as one whose dimensions are annotative, or takes the mark away.
void markAnnotative(drawing::Drawing &drawing, RecordId style, bool isAnnotative)
{
    FieldList fields = drawing.fields(style);
    FieldList data;
    if (isAnnotative)
        data = {{1000, u"AnnotativeData"_s}, {1002, u"{"_s}, {1070, qint64(1)}, {1070, qint64(1)}, {1002, u"}"_s}};
    drawing::setExtendedData(fields, u"AcadAnnotative"_s, data);
    if (isAnnotative)
        drawing.tables().add(TableKind::AppId, u"AcadAnnotative"_s);
    drawing.tables().modify(style, fields);
}

bool isStyleName(const QString &name)
{
    static const QString refused = u"<>/\\\":;?*|,=`"_s;
    return !name.isEmpty() && name.size() <= 255 &&
           std::ranges::none_of(name, [](QChar c) { return refused.contains(c) || c < u' '; });
}

/// Saves the variables in use under a name, which is current then.
Dialogue<RecordId> askSavedStyle(CommandContext &context)
{
    drawing::Drawing &drawing = context.drawing();
    for (;;) {
        const PromptReply name =
            co_await context.text(Commands::tr("Enter name for new dimension style or [?]: "), {}, u"?"_s);
        if (name.isKeyword(u"?")) {
            co_await askStyleList(context);
            continue;
        }
        const QString wanted = name.text.trimmed();
        if (wanted.isEmpty())
            co_return drawing::noRecord;
        if (!isStyleName(wanted)) {
            if (context.refuse(Commands::tr("\"%1\" is no name for a dimension style.").arg(wanted)))
                co_return drawing::noRecord;
            continue;
        }
        if (isValid(drawing.tables().find(TableKind::DimStyle, wanted))) {
            const PromptReply again = co_await context.keyword(
                Commands::tr("That name is already in use, redefine it? [Yes/No] <N>: "), {}, u"N"_s);
            if (again.text != u"Yes")
                continue;
        }
        const RecordId saved = drawing::saveStyle(drawing, wanted);
        drawing::makeStyleCurrent(drawing, saved);
        co_return saved;
    }
}

Dialogue<bool> makeAnnotativeStyle(CommandContext &context)
{
    const PromptReply choice =
        co_await context.keyword(Commands::tr("Create annotative dimension style [Yes/No] <Yes>: "), {}, u"Yes"_s);
    const RecordId saved = co_await askSavedStyle(context);
    if (isValid(saved))
        markAnnotative(context.drawing(), saved, choice.text != u"No");
    co_return true;
}

/// Gives dimensions the style that is current, with what is set in its place.
void applyCurrentStyle(CommandContext &context, const std::vector<RecordId> &entities)
{
    drawing::Drawing &drawing = context.drawing();
    const QString style = currentDimensionStyle(context);
    const FieldList overrides = drawing::currentOverrides(drawing, style);
    for (const RecordId id : entities) {
        FieldList fields = drawing.fields(id);
        if (!drawing::findField(fields, 3))
            continue;
        drawing::setField(fields, 3, style);
        drawing::setOverrides(fields, overrides);
        drawing.entities().modify(id, fields);
        if (isDimension(drawing, id))
            redrawDimension(context, id);
    }
}

Dialogue<bool> restoreStyle(CommandContext &context)
{
    const RecordId style = co_await askDimensionStyle(context);
    if (isValid(style)) {
        drawing::makeStyleCurrent(context.drawing(), style);
        context.print(Commands::tr("\nCurrent dimension style: ") + context.drawing().tables().name(style));
    }
    co_return true;
}

// Save, Restore, STatus, Variables, Apply or a list of the styles.
CommandTask dimensionStyle(CommandContext &context)
{
    context.print(Commands::tr("\nCurrent dimension style: ") + currentDimensionStyle(context));
    const PromptReply option = co_await context.keyword(
        Commands::tr("Enter a dimension style option [ANnotative/Save/Restore/STatus/Variables/Apply/?] <Restore>: "),
        {}, u"Restore"_s);
    co_await takeDimensionStyleOption(context, option.text);
}

} // namespace

Dialogue<bool> takeDimensionStyleOption(CommandContext &context, QString option)
{
    if (option == u"ANnotative") {
        co_await makeAnnotativeStyle(context);
    } else if (option == u"Save") {
        co_await askSavedStyle(context);
    } else if (option == u"STatus") {
        const QString current = currentDimensionStyle(context);
        listVariables(context, context.drawing().tables().find(TableKind::DimStyle, current), true);
    } else if (option == u"Variables") {
        const RecordId style = co_await askDimensionStyle(context);
        if (isValid(style))
            listVariables(context, style, false);
    } else if (option == u"Apply") {
        const PromptReply chosen = co_await context.selection();
        applyCurrentStyle(context, editable(context, chosen.entities));
    } else if (option == u"?") {
        co_await askStyleList(context);
    } else {
        co_await restoreStyle(context);
    }
    co_return true;
}

std::vector<CommandRow> dimensionStyleCommands()
{
    return {{"-DIMSTYLE", dimensionStyle, "Saves, restores, lists and applies dimension styles"},
            {"DIMSTYLE", dimensionStyle, "Saves, restores, lists and applies dimension styles"}};
}

} // namespace host::kernel
