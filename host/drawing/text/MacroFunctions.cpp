#include "host/drawing/text/MacroFunctions.h"

#include "host/drawing/text/DateText.h"

#include <limits>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

using Result = std::optional<QString>;
using Arguments = MacroArguments;
using Surroundings = MacroSurroundings;

constexpr std::size_t anyNumber = std::numeric_limits<std::size_t>::max();

/// As wide as the status line that such expressions were made for.
constexpr int lineLength = 240;

Result numberText(double number)
{
    if (!std::isfinite(number))
        return {};
    // Without the sign of a negative zero.
    return QString::number(number == 0.0 ? 0.0 : number, 'g', 12);
}

QString truth(bool holds)
{
    return holds ? u"1"_s : u"0"_s;
}

/// The arguments one after the other in one number; nothing when `read` finds none in one of them.
template <class Read, class Combine>
auto folded(const Arguments &arguments, Read &&read, Combine &&combine) -> decltype(read(arguments[0]))
{
    auto total = read(arguments[0]);
    for (std::size_t i = 1; total && i < arguments.size(); ++i) {
        const auto number = read(arguments[i]);
        total = number ? std::optional(combine(*total, *number)) : std::nullopt;
    }
    return total;
}

template <class Combine>
Result combined(const Arguments &arguments, Combine &&combine)
{
    const std::optional<double> total = folded(arguments, macroNumber, combine);
    return total ? numberText(*total) : Result();
}

template <class Combine>
Result combinedBits(const Arguments &arguments, Combine &&combine)
{
    const std::optional<int> total = folded(arguments, macroInteger, combine);
    return total ? Result(QString::number(*total)) : Result();
}

template <class Compare>
Result compared(const Arguments &arguments, Compare &&compare)
{
    const std::optional<double> first = macroNumber(arguments[0]);
    const std::optional<double> second = macroNumber(arguments[1]);
    return first && second ? Result(truth(compare(*first, *second))) : Result();
}

Result fix(const Arguments &arguments, const Surroundings &)
{
    const std::optional<double> number = macroNumber(arguments[0]);
    const double whole = number ? std::trunc(*number) : 0.0;
    return number ? Result(QString::number(whole == 0.0 ? 0.0 : whole, 'f', 0)) : Result();
}

Result index(const Arguments &arguments, const Surroundings &)
{
    const std::optional<int> which = macroInteger(arguments[0]);
    if (!which || *which < 0)
        return {};
    return arguments[1].section(u',', *which, *which);
}

Result substr(const Arguments &arguments, const Surroundings &)
{
    const std::optional<int> start = macroInteger(arguments[1]);
    const std::optional<int> length =
        arguments.size() > 2 ? macroInteger(arguments[2]) : std::numeric_limits<int>::max();
    if (!start || *start < 1 || !length || *length < 0)
        return {};
    return arguments[0].mid(*start - 1, *length);
}

Result variable(const QString &name, const Surroundings &surroundings)
{
    return surroundings.variable ? surroundings.variable(name) : Result();
}

Result getvar(const Arguments &arguments, const Surroundings &surroundings)
{
    return variable(arguments[0].trimmed(), surroundings);
}

Result getenv(const Arguments &arguments, const Surroundings &surroundings)
{
    const QString name = arguments[0].trimmed();
    const Result found = surroundings.environment ? surroundings.environment(name) : Result();
    return found.value_or(name);
}

Result edtime(const Arguments &arguments, const Surroundings &surroundings)
{
    std::optional<double> date = macroNumber(arguments[0]);
    if (date && *date == 0.0)
        date = macroNumber(variable(u"DATE"_s, surroundings).value_or(QString()));
    return date ? dateText(*date, arguments[1]) : Result();
}

/// The argument with this number, what the drawing's variable says where it was left out, or else `usual`; nothing when
/// it was given and is no whole number.
std::optional<int> setting(const Arguments &arguments, std::size_t number, const QString &name, int usual,
                           const Surroundings &surroundings)
{
    if (arguments.size() > number)
        return macroInteger(arguments[number]);
    return macroInteger(variable(name, surroundings).value_or(QString())).value_or(usual);
}

/// Who writes a number with a unit, and the variables that say how where the call does not.
struct NumberStyle
{
    QLatin1StringView modeVariable;
    int lowestMode;
    int highestMode;
    int usualMode;
    QLatin1StringView precisionVariable;
    int usualPrecision;
    std::function<QString(double, int, int)> MacroSurroundings::*writer;
    double plainFactor; ///< of the decimal number where nobody writes it
};

const NumberStyle lengthStyle = {"LUNITS"_L1, 1, 5, 2, "LUPREC"_L1, 4, &MacroSurroundings::length, 1.0};
const NumberStyle angleStyle = {"AUNITS"_L1, 0, 4, 0, "AUPREC"_L1, 0, &MacroSurroundings::angle, 180.0 / M_PI};

Result written(const Arguments &arguments, const NumberStyle &style, const Surroundings &surroundings)
{
    constexpr int highestPrecision = 8;
    const std::optional<double> number = macroNumber(arguments[0]);
    const std::optional<int> mode = setting(arguments, 1, style.modeVariable, style.usualMode, surroundings);
    const std::optional<int> precision =
        setting(arguments, 2, style.precisionVariable, style.usualPrecision, surroundings);
    const bool isGood = number && mode && *mode >= style.lowestMode && *mode <= style.highestMode && precision &&
                        *precision >= 0 && *precision <= highestPrecision;
    if (!isGood)
        return {};
    const auto &writer = surroundings.*style.writer;
    return writer ? writer(*number, *mode, *precision) : QString::number(*number * style.plainFactor, 'f', *precision);
}

constexpr MacroFunction macroFunctions[] = {
    {"+"_L1, 1, anyNumber, [](const Arguments &a, const Surroundings &) { return combined(a, std::plus()); }},
    {"-"_L1, 1, anyNumber, [](const Arguments &a, const Surroundings &) { return combined(a, std::minus()); }},
    {"*"_L1, 1, anyNumber, [](const Arguments &a, const Surroundings &) { return combined(a, std::multiplies()); }},
    {"/"_L1, 1, anyNumber, [](const Arguments &a, const Surroundings &) { return combined(a, std::divides()); }},
    {"="_L1, 2, 2, [](const Arguments &a, const Surroundings &) { return compared(a, std::equal_to()); }},
    {"!="_L1, 2, 2, [](const Arguments &a, const Surroundings &) { return compared(a, std::not_equal_to()); }},
    {"<"_L1, 2, 2, [](const Arguments &a, const Surroundings &) { return compared(a, std::less()); }},
    {">"_L1, 2, 2, [](const Arguments &a, const Surroundings &) { return compared(a, std::greater()); }},
    {"<="_L1, 2, 2, [](const Arguments &a, const Surroundings &) { return compared(a, std::less_equal()); }},
    {">="_L1, 2, 2, [](const Arguments &a, const Surroundings &) { return compared(a, std::greater_equal()); }},
    {"and"_L1, 1, anyNumber, [](const Arguments &a, const Surroundings &) { return combinedBits(a, std::bit_and()); }},
    {"or"_L1, 1, anyNumber, [](const Arguments &a, const Surroundings &) { return combinedBits(a, std::bit_or()); }},
    {"xor"_L1, 1, anyNumber, [](const Arguments &a, const Surroundings &) { return combinedBits(a, std::bit_xor()); }},
    {"eq"_L1, 2, 2, [](const Arguments &a, const Surroundings &) { return Result(truth(a[0] == a[1])); }},
    {"fix"_L1, 1, 1, fix},
    {"index"_L1, 2, 2, index},
    {"strlen"_L1, 1, 1, [](const Arguments &a, const Surroundings &) { return Result(QString::number(a[0].size())); }},
    {"substr"_L1, 2, 3, substr},
    {"upper"_L1, 1, 1, [](const Arguments &a, const Surroundings &) { return Result(a[0].toUpper()); }},
    {"getvar"_L1, 1, 1, getvar},
    {"getenv"_L1, 1, 1, getenv},
    {"edtime"_L1, 2, 2, edtime},
    {"rtos"_L1, 1, 3, [](const Arguments &a, const Surroundings &s) { return written(a, lengthStyle, s); }},
    {"angtos"_L1, 1, 3, [](const Arguments &a, const Surroundings &s) { return written(a, angleStyle, s); }},
    {"linelen"_L1, 0, 0, [](const Arguments &, const Surroundings &) { return Result(QString::number(lineLength)); }},
};

} // namespace

std::optional<double> macroNumber(QStringView text)
{
    bool isNumber = false;
    const double number = text.trimmed().toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

std::optional<int> macroInteger(QStringView text)
{
    const std::optional<double> number = macroNumber(text);
    if (!number || std::abs(*number) > std::numeric_limits<int>::max())
        return {};
    return static_cast<int>(*number);
}

const MacroFunction *findMacroFunction(QStringView name)
{
    const auto *found =
        std::find_if(std::begin(macroFunctions), std::end(macroFunctions),
                     [name](const MacroFunction &row) { return name.compare(row.name, Qt::CaseInsensitive) == 0; });
    return found == std::end(macroFunctions) ? nullptr : found;
}

} // namespace host::drawing
