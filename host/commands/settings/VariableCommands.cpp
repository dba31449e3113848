#include "host/commands/Commands.h"
#include "host/commands/common/PropertyValues.h"
#include "host/drawing/selection/Wildcard.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/input/Keywords.h"
#include "host/kernel/input/Units.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/running/Dialogue.h"
#include "host/kernel/variables/HostVariables.h"
#include "host/kernel/variables/VariableText.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

/// Texts in quotes, as programs write them.
QString listedValue(const SystemVariables &variables, const QString &name)
{
    const std::optional<VariableValue> value = variables.get(name);
    const QString shown = value ? variableText(*value) : QString();
    return value && std::holds_alternative<QString>(*value) ? u'"' + shown + u'"' : shown;
}

/// Names with wildcards, divided by commas; an empty answer means all. True when there were some.
Dialogue<bool> listVariables(CommandContext &context)
{
    const PromptReply typed = co_await context.text(Commands::tr("Enter variable(s) to list <*>: "), u"*"_s);
    const QString pattern = typed.hasValue() ? typed.text.trimmed() : u"*"_s;
    const SystemVariables &variables = context.document().variables();
    QString lines;
    for (const QString &name : variables.names()) {
        if (drawing::matchesWildcard(name, pattern))
            lines += u"\n%1 %2%3"_s.arg(name.leftJustified(23), listedValue(variables, name),
                                        variables.isReadOnly(name) ? Commands::tr(" (read only)") : QString());
    }
    context.print(lines.isEmpty() ? Commands::tr("\nNo variable has such a name.") : lines);
    co_return !lines.isEmpty();
}

/// A word that stands for bits of a variable which commands of its name switch.
struct SwitchWord
{
    const char *variable;
    QStringView word; ///< capital letters abbreviate it
    qint32 cleared;   ///< bits
    qint32 set;       ///< bits
};

constexpr SwitchWord switchWords[] = {
    {"DRAGMODE", u"ON", 3, 1}, {"DRAGMODE", u"OFF", 3, 0},   {"DRAGMODE", u"Auto", 3, 2},    {"UCSICON", u"ON", 0, 1},
    {"UCSICON", u"OFF", 1, 0}, {"UCSICON", u"ORigin", 0, 2}, {"UCSICON", u"Noorigin", 2, 0},
};

/// The value that one of those words, or ON and OFF of a variable with nothing else, stands for.
std::optional<qint32> switchedValue(const QString &name, qint32 present, const QString &word)
{
    for (const SwitchWord &row : switchWords)
        if (name == QLatin1StringView(row.variable) && matchKeyword(word, {row.word.toString()}))
            return (present & ~row.cleared) | row.set;
    const HostVariable *row = findHostVariable(name);
    if (!row || row->low != 0.0 || row->high != 1.0)
        return std::nullopt;
    const bool isOn = word.compare(u"ON"_s, Qt::CaseInsensitive) == 0;
    return isOn || word.compare(u"OFF"_s, Qt::CaseInsensitive) == 0 ? std::optional<qint32>(isOn) : std::nullopt;
}

/// Switches may be said in words, lengths in the drawing's units.
std::optional<VariableValue> typedValue(const SystemVariables &variables, const QString &name,
                                        const VariableValue &present, const QString &text)
{
    if (const qint32 *number = std::get_if<qint32>(&present))
        if (const std::optional<qint32> value = switchedValue(name, *number, withoutMark(text.trimmed())))
            return *value;
    std::optional<VariableValue> value = variableFromText(present, text);
    if (!value && std::holds_alternative<double>(present))
        if (const std::optional<double> length = UnitFormat::of(variables).parseLength(text))
            return *length;
    return value;
}

/// What a value of that variable must be.
QString requirement(const QString &name, const VariableValue &present)
{
    const HostVariable *row = findHostVariable(name);
    const bool hasRange = row && row->low < row->high;
    const bool isOpen = !hasRange || row->high >= 1e99;
    if (std::holds_alternative<qint32>(present))
        return isOpen ? Commands::tr("Requires an integer.")
                      : Commands::tr("Requires an integer between %1 and %2.").arg(row->low).arg(row->high);
    if (std::holds_alternative<double>(present))
        return isOpen ? Commands::tr("Requires a number.")
                      : Commands::tr("Requires a number between %1 and %2.").arg(row->low).arg(row->high);
    if (std::holds_alternative<QString>(present))
        return Commands::tr("Cannot set %1 to that value.").arg(name);
    return Commands::tr("Requires a point.");
}

// Name of a variable, or ? to list them, and a new value; an empty value leaves it.
CommandTask setVariable(CommandContext &context)
{
    SystemVariables &variables = context.document().variables();
    const PromptReply typedName = co_await context.name(Commands::tr("Enter variable name or [?]: "));
    const QString name = typedName.text.trimmed().toUpper();
    if (name == u"?"_s) {
        co_await listVariables(context);
        co_return;
    }
    const std::optional<VariableValue> present = variables.get(name);
    if (!present) {
        context.fail(Commands::tr("Unknown variable name \"%1\". Type SETVAR ? for a list of variables.").arg(name));
        co_return;
    }
    const QString shown = listedValue(variables, name);
    if (variables.isReadOnly(name)) {
        context.print(Commands::tr("\n%1 = %2 (read only)").arg(name, shown));
        co_return;
    }
    while (true) {
        const PromptReply typed =
            co_await context.text(Commands::tr("Enter new value for %1 <%2>: ").arg(name, shown), shown);
        if (!typed.hasValue())
            co_return;
        const std::optional<VariableValue> value = typedValue(variables, name, *present, typed.text);
        if (value && variables.set(name, *value) == SetOutcome::Done)
            co_return;
        if (context.refuse(requirement(name, *present)))
            co_return;
    }
}

} // namespace

std::vector<CommandRow> variableCommands()
{
    return {{"SETVAR", setVariable, "Shows, lists or sets a system variable", WhenCancelled::TakeBack,
             Interrupts::Prompts}};
}

} // namespace host::kernel
