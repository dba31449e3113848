// Commands that set how lengths and angles are shown, and how heavy new lines are.

#include "host/commands/Commands.h"
#include "host/commands/common/PropertyValues.h"
#include "host/drawing/math/Angles.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/running/Dialogue.h"
#include "host/kernel/variables/SystemVariables.h"

#include <algorithm>
#include <bit>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

void setUnit(CommandContext &context, QStringView variable, const VariableValue &value)
{
    if (context.document().variables().set(variable, value) != SetOutcome::Done)
        context.fail(Commands::tr("%1 cannot be set to that value.").arg(variable));
}

/// A whole number between two others; `usual` for an empty answer. Nothing when the command has failed.
Dialogue<std::optional<int>> askWithin(CommandContext &context, QString prompt, int low, int high, int usual)
{
    for (;;) {
        const QString shown = QString::number(usual);
        const PromptReply reply = co_await context.integer(u"%1 <%2>: "_s.arg(prompt, shown), {}, shown, NoNegative);
        const int value = reply.hasValue() ? reply.integer : usual;
        if (value >= low && value <= high)
            co_return value;
        if (context.refuse(Commands::tr("Requires an integer between %1 and %2.").arg(low).arg(high)))
            co_return std::nullopt;
    }
}

/// How fine fractions are is a power of two, of which LUPREC keeps the exponent.
Dialogue<std::optional<int>> askDenominator(CommandContext &context, int precision)
{
    const QString shown = QString::number(1 << std::clamp(precision, 0, 8));
    for (;;) {
        const PromptReply reply = co_await context.integer(
            Commands::tr(
                "Enter denominator of smallest fraction to display (1, 2, 4, 8, 16, 32, 64, 128, or 256) <%1>: ")
                .arg(shown),
            {}, shown, NoNegative | NoZero);
        if (!reply.hasValue())
            co_return precision;
        const auto value = static_cast<unsigned>(reply.integer);
        if (value <= 256 && std::has_single_bit(value))
            co_return std::countr_zero(value);
        if (context.refuse(Commands::tr("Requires a power of two up to 256.")))
            co_return std::nullopt;
    }
}

/// Scientific, decimal, engineering, architectural or fractional, and how fine.
Dialogue<bool> askLengthUnits(CommandContext &context)
{
    constexpr int firstWithFractions = 4;
    const SystemVariables &variables = context.document().variables();
    context.print(
        Commands::tr("\nReport formats: 1. Scientific  2. Decimal  3. Engineering  4. Architectural  5. Fractional"));
    const QString choice = Commands::tr("Enter choice, 1 to 5");
    const std::optional<int> format = co_await askWithin(context, choice, 1, 5, variables.integer(u"LUNITS"));
    if (!format)
        co_return false;
    std::optional<int> precision = variables.integer(u"LUPREC");
    if (*format >= firstWithFractions) {
        precision = co_await askDenominator(context, *precision);
    } else {
        const QString digits = Commands::tr("Enter number of digits to right of decimal point (0 to 8)");
        precision = co_await askWithin(context, digits, 0, 8, *precision);
    }
    if (!precision)
        co_return false;
    setUnit(context, u"LUNITS", qint32(*format));
    setUnit(context, u"LUPREC", qint32(*precision));
    co_return true;
}

/// Degrees, degrees with minutes, gradians, radians or surveyor's units, and how fine.
Dialogue<bool> askAngleUnits(CommandContext &context)
{
    const SystemVariables &variables = context.document().variables();
    context.print(Commands::tr(
        "\nSystems of angle measure: 1. Decimal degrees  2. Degrees/minutes/seconds  3. Grads  4. Radians  "
        "5. Surveyor's units"));
    const QString choice = Commands::tr("Enter choice, 1 to 5");
    const std::optional<int> system = co_await askWithin(context, choice, 1, 5, variables.integer(u"AUNITS") + 1);
    if (!system)
        co_return false;
    const QString places = Commands::tr("Enter number of fractional places for display of angles (0 to 8)");
    const std::optional<int> precision = co_await askWithin(context, places, 0, 8, variables.integer(u"AUPREC"));
    if (!precision)
        co_return false;
    setUnit(context, u"AUNITS", qint32(*system - 1));
    setUnit(context, u"AUPREC", qint32(*precision));
    co_return true;
}

// How lengths and angles are shown, where angles begin, and whether they go with the clock.
CommandTask units(CommandContext &context)
{
    const bool hasLengths = co_await askLengthUnits(context);
    if (!hasLengths)
        co_return;
    const bool hasAngles = co_await askAngleUnits(context);
    if (!hasAngles)
        co_return;
    const SystemVariables &variables = context.document().variables();
    const QString zero = QString::number(variables.real(u"ANGBASE") / drawing::radians, 'g', 10);
    // From the axis of the world, whatever the angles of the drawing count from so far.
    const PromptReply direction =
        co_await context.real(Commands::tr("Enter direction for angle 0 <%1>: ").arg(zero), {}, zero);
    const QString usual = variables.integer(u"ANGDIR") != 0 ? u"Yes"_s : u"No"_s;
    const PromptReply clockwise =
        co_await context.keyword(Commands::tr("Measure angles clockwise? [Yes/No] <%1>: ").arg(usual), {}, usual);
    if (direction.hasValue())
        setUnit(context, u"ANGBASE", direction.real * drawing::radians);
    if (clockwise.hasValue())
        setUnit(context, u"ANGDIR", qint32(clockwise.text == u"Yes"_s));
}

QString shownWeight(int weight)
{
    constexpr QStringView names[] = {u"Default", u"ByBlock", u"ByLayer"};
    return weight >= -3 && weight < 0 ? names[weight + 3].toString()
                                      : Commands::tr("%1 mm").arg(weight / 100.0, 0, 'f', 2);
}

// A weight in millimetres, ByLayer, ByBlock or Default.
CommandTask lineweight(CommandContext &context)
{
    constexpr double heaviest = 2.11;
    const int now = context.document().variables().integer(u"CELWEIGHT");
    context.print(Commands::tr("\nCurrent lineweight: %1").arg(shownWeight(now)));
    const QString shown = shownWeight(now);
    const PromptReply reply = co_await context.real(Commands::tr("Enter default lineweight for new objects or [?]: "),
                                                    u"BYLayer BYBlock Default ?"_s, shown, NoNegative);
    if (reply.isKeyword(u"?"))
        context.print(Commands::tr("\nByLayer, ByBlock, Default, or 0.00 to 2.11 mm"));
    else if (reply.kind == ReplyKind::Keyword)
        setUnit(context, u"CELWEIGHT", qint32(reply.text == u"Default"_s ? -3 : reply.text == u"BYBlock"_s ? -2 : -1));
    else if (reply.hasValue() && reply.real > heaviest)
        context.fail(Commands::tr("Requires a lineweight from 0 to 2.11."));
    else if (reply.hasValue())
        setUnit(context, u"CELWEIGHT", qint32(nearestWeight(reply.real)));
}

} // namespace

std::vector<CommandRow> unitCommands()
{
    return {
        {"-LWEIGHT", lineweight, "Sets the lineweight of new objects"},
        {"-UNITS", units, "Sets how lengths and angles are shown"},
        {"LWEIGHT", lineweight, "As -LWEIGHT; there is no window for it", WhenCancelled::TakeBack, Interrupts::Prompts},
        {"UNITS", units, "As -UNITS; there is no window for it", WhenCancelled::TakeBack, Interrupts::Prompts}};
}

} // namespace host::kernel
