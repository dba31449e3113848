// Numbers to text and back. What a program does not say (mode, precision) is taken from the system variables.

#include "host/lisp/Arguments.h"
#include "host/lisp/Builtins.h"
#include "host/lisp/Interpreter.h"
#include "host/units/Units.h"

#include <cmath>
#include <limits>

namespace host::lisp {

using namespace units;

static double systemNumber(Arguments &args, std::string_view name, double otherwise)
{
    const Value value = args.interpreter().console().systemVariable(name);
    return value.isNumber() ? value.asReal() : otherwise;
}

static int systemInteger(Arguments &args, std::string_view name, int otherwise)
{
    const double number = systemNumber(args, name, otherwise);
    return std::fabs(number) <= 1'000'000 ? static_cast<int>(number) : otherwise;
}

/// An optional mode or precision, else what the variable says. Outside the range: bad argument value.
static int choice(Arguments &args, std::size_t index, std::string_view variable, int least, int most, int otherwise)
{
    if (!args.has(index))
        return std::clamp(systemInteger(args, variable, otherwise), least, most);
    const std::int32_t given = args.integer(index);
    if (given < least || given > most)
        args.badValue(index);
    return given;
}

/// Precisions beyond what makes sense are cut, not refused: programs pass 20 for "all of it".
static int precision(Arguments &args, std::size_t index, std::string_view variable, int most, int otherwise)
{
    const int wanted = args.has(index) ? args.integer(index) : systemInteger(args, variable, otherwise);
    return std::clamp(wanted, 0, most);
}

// (rtos number [mode [precision]]) -> the distance as text. Modes 1 scientific, 2 decimal, 3 engineering, 4
// architectural, 5 fractional; another one: bad argument value.
static Value rtos(Arguments &args)
{
    DistanceFormat format;
    format.mode = choice(args, 1, "LUNITS", 1, 5, DistanceFormat::Decimal);
    format.precision = precision(args, 2, "LUPREC", 16, 4);
    format.zeros = systemInteger(args, "DIMZIN", 0);
    return Value::string(formatDistance(args.real(0), format));
}

static AngleFormat angleFormat(Arguments &args)
{
    AngleFormat format;
    format.mode = choice(args, 1, "AUNITS", 0, 4, AngleFormat::Degrees);
    format.zeros = systemInteger(args, "DIMZIN", 0);
    format.base = systemNumber(args, "ANGBASE", 0);
    format.isClockwise = systemInteger(args, "ANGDIR", 0) != 0;
    return format;
}

// (angtos radians [mode [precision]]) -> the angle as text. Modes 0 degrees, 1 degrees/minutes/seconds, 2 grads, 3
// radians, 4 surveyor's; another one: bad argument value.
static Value angtos(Arguments &args)
{
    AngleFormat format = angleFormat(args);
    format.precision = precision(args, 2, "AUPREC", 8, 0);
    return Value::string(formatAngle(args.real(0), format));
}

// (distof string [mode]) -> the distance that rtos would write so; nil when it is none.
static Value distof(Arguments &args)
{
    const std::optional<double> distance =
        parseDistance(args.string(0), choice(args, 1, "LUNITS", 1, 5, DistanceFormat::Decimal));
    return distance ? Value::real(*distance) : Value();
}

// (angtof string [mode]) -> the angle that angtos would write so; nil when it is none.
static Value angtof(Arguments &args)
{
    const std::optional<double> angle = parseAngle(args.string(0), angleFormat(args));
    return angle ? Value::real(*angle) : Value();
}

// (itoa int) -> it as text. A real: bad argument type: fixnump:.
static Value itoa(Arguments &args)
{
    return Value::string(std::to_string(args.integer(0)));
}

// (atof string) -> the number it begins with as a real; 0.0 for none.
static Value atof(Arguments &args)
{
    return Value::real(leadingNumber(args.string(0)));
}

// (atoi string) -> the integer it begins with; 0 for none. One beyond 32 bits: the nearest that fits.
static Value atoi(Arguments &args)
{
    const double number = std::trunc(leadingNumber(args.string(0)));
    return Value::integer(
        static_cast<std::int32_t>(std::clamp(number, static_cast<double>(std::numeric_limits<std::int32_t>::min()),
                                             static_cast<double>(std::numeric_limits<std::int32_t>::max()))));
}

// (cvunit value from to) -> a number or point converted from one unit of measure to another; nil for units that are
// unknown or do not fit.
static Value cvunit(Arguments &args)
{
    const std::optional<double> factor = unitFactor(args.string(1), args.string(2));
    if (!factor)
        return {};
    if (args[0].isNumber())
        return Value::real(args.real(0) * *factor);
    Point point = args.point(0);
    point.x *= *factor;
    point.y *= *factor;
    point.z *= *factor;
    return point.toValue();
}

static constexpr NativeRow conversionRows[] = {
    {"rtos", rtos, Arity::between(1, 3), "number [mode [precision]]",
     "a length as text, by LUNITS and LUPREC or as said"},
    {"angtos", angtos, Arity::between(1, 3), "angle [mode [precision]]",
     "an angle as text, by AUNITS and AUPREC or as said"},
    {"distof", distof, Arity::between(1, 2), "text [mode]", "the length that a text says"},
    {"angtof", angtof, Arity::between(1, 2), "text [mode]", "the angle that a text says, in radians"},
    {"itoa", itoa, Arity::exactly(1), "integer", "an integer as text"},
    {"atof", atof, Arity::exactly(1), "text", "the real that a text begins with, else 0.0"},
    {"atoi", atoi, Arity::exactly(1), "text", "the integer that a text begins with, else 0"},
    {"cvunit", cvunit, Arity::exactly(3), "value from to", "a number or list converted between units of measure"},
};

void addConversionFunctions(Interpreter &interpreter)
{
    interpreter.define(conversionRows);
}

} // namespace host::lisp
