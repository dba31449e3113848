// Commands that set how lengths and angles are shown, and how heavy new lines are.

#include "host/commands/Commands.h"
#include "host/commands/common/PropertyValues.h"
#include "host/drawing/math/Angles.h"
#include "host/kernel/documents/Document.h"
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
        context.fail(u"%1 cannot be set to that value."_s.arg(variable));
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
        if (context.refuse(u"Requires an integer between %1 and %2."_s.arg(low).arg(high)))
            co_return std::nullopt;
    }
}

/// How fine fractions are is a power of two, of which LUPREC keeps the exponent.
Dialogue<std::optional<int>> askDenominator(CommandContext &context, int precision)
{
    const QString shown = QString::number(1 << std::clamp(precision, 0, 8));
    for (;;) {
        const PromptReply reply = co_await context.integer(
            u"Enter denominator of smallest fraction to display (1, 2, 4, 8, 16, 32, 64, 128, or 256) <%1>: "_s.arg(
                shown),
            {}, shown, NoNegative | NoZero);
        if (!reply.hasValue())
            co_return precision;
        const auto value = static_cast<unsigned>(reply.integer);
        if (value <= 256 && std::has_single_bit(value))
            co_return std::countr_zero(value);
        if (context.refuse(u"Requires a power of two up to 256."_s))
            co_return std::nullopt;
    }
}

/// Scientific, decimal, engineering, architectural or fractional, and how fine.
Dialogue<bool> askLengthUnits(CommandContext &context)
{
    constexpr int firstWithFractions = 4;
    const SystemVariables &variables = context.document().variables();
    context.print(u"\nReport formats: 1. Scientific  2. Decimal  3. Engineering  4. Architectural  5. Fractional"_s);
    const QString choice = u"Enter choice, 1 to 5"_s;
    const std::optional<int> format = co_await askWithin(context, choice, 1, 5, variables.integer(u"LUNITS"));
    if (!format)
        co_return false;
    std::optional<int> precision = variables.integer(u"LUPREC");
    if (*format >= firstWithFractions) {
        precision = co_await askDenominator(context, *precision);
    } else {
        const QString digits = u"Enter number of digits to right of decimal point (0 to 8)"_s;
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
    context.print(u"\nSystems of angle measure: 1. Decimal degrees  2. Degrees/minutes/seconds  3. Grads  4. Radians  "
                  "5. Surveyor's units"_s);
    const QString choice = u"Enter choice, 1 to 5"_s;
    const std::optional<int> system = co_await askWithin(context, choice, 1, 5, variables.integer(u"AUNITS") + 1);
    if (!system)
        co_return false;
    const QString places = u"Enter number of fractional places for display of angles (0 to 8)"_s;
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
    const PromptReply direction = co_await context.real(u"Enter direction for angle 0 <%1>: "_s.arg(zero), {}, zero);
    const QString usual = variables.integer(u"ANGDIR") != 0 ? u"Yes"_s : u"No"_s;
    const PromptReply clockwise =
        co_await context.keyword(u"Measure angles clockwise? [Yes/No] <%1>: "_s.arg(usual), {}, usual);
    if (direction.hasValue())
        setUnit(context, u"ANGBASE", direction.real * drawing::radians);
    if (clockwise.hasValue())
        setUnit(context, u"ANGDIR", qint32(clockwise.text == u"Yes"_s));
}

QString shownWeight(int weight)
{
    constexpr QStringView names[] = {u"Default", u"ByBlock", u"ByLayer"};
    return weight >= -3 && weight < 0 ? names[weight + 3].toString() : u"%1 mm"_s.arg(weight / 100.0, 0, 'f', 2);
}

// A weight in millimetres, ByLayer, ByBlock or Default.
CommandTask lineweight(CommandContext &context)
{
    constexpr double heaviest = 2.11;
    const int now = context.document().variables().integer(u"CELWEIGHT");
    context.print(u"\nCurrent lineweight: %1"_s.arg(shownWeight(now)));
    const QString shown = shownWeight(now);
    const PromptReply reply = co_await context.real(u"Enter default lineweight for new objects or [?]: "_s,
                                                    u"BYLayer BYBlock Default ?"_s, shown, NoNegative);
    if (reply.isKeyword(u"?"))
        context.print(u"\nByLayer, ByBlock, Default, or 0.00 to 2.11 mm"_s);
    else if (reply.kind == ReplyKind::Keyword)
        setUnit(context, u"CELWEIGHT", qint32(reply.text == u"Default"_s ? -3 : reply.text == u"BYBlock"_s ? -2 : -1));
    else if (reply.hasValue() && reply.real > heaviest)
        context.fail(u"Requires a lineweight from 0 to 2.11."_s);
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
