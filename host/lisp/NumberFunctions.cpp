// Arithmetic on both kinds of numbers. Integers have 32 bits and wrap around; one real makes the result real.

#include "host/lisp/Arguments.h"
#include "host/lisp/Builtins.h"
#include "host/lisp/Interpreter.h"
#include "host/lisp/Wrapping.h"

#include <limits>

namespace host::lisp {

static Value add(const Value &left, const Value &right)
{
    if (left.isInteger() && right.isInteger())
        return Value::integer(wrappingAdd(left.asInteger(), right.asInteger()));
    return Value::real(left.asReal() + right.asReal());
}

static Value subtract(const Value &left, const Value &right)
{
    if (left.isInteger() && right.isInteger())
        return Value::integer(wrappingSubtract(left.asInteger(), right.asInteger()));
    return Value::real(left.asReal() - right.asReal());
}

static Value multiply(const Value &left, const Value &right)
{
    if (left.isInteger() && right.isInteger())
        return Value::integer(wrappingMultiply(left.asInteger(), right.asInteger()));
    return Value::real(left.asReal() * right.asReal());
}

static Value divide(const Value &left, const Value &right)
{
    if (right.asReal() == 0.0)
        throw Error("divide by zero");
    if (left.isInteger() && right.isInteger())
        return Value::integer(wrappingDivide(left.asInteger(), right.asInteger()));
    return Value::real(left.asReal() / right.asReal());
}

static Value remainder(const Value &left, const Value &right)
{
    if (right.asReal() == 0.0)
        throw Error("divide by zero");
    if (left.isInteger() && right.isInteger())
        return Value::integer(wrappingRemainder(left.asInteger(), right.asInteger()));
    return Value::real(std::fmod(left.asReal(), right.asReal()));
}

template <Value (*Combine)(const Value &, const Value &)>
static Value fold(Arguments &args)
{
    Value result = args.size() > 0 ? args.number(0) : Value::integer(0);
    for (std::size_t i = 1; i < args.size(); ++i)
        result = Combine(result, args.number(i));
    return result;
}

// (- number...) -> the first less all others; the negative of a single one.
static Value minus(Arguments &args)
{
    if (args.size() == 1)
        return subtract(Value::integer(0), args.number(0));
    return fold<subtract>(args);
}

// (1+ number), (1- number) -> one more, one less.
static Value increment(Arguments &args)
{
    return add(args.number(0), Value::integer(1));
}

static Value decrement(Arguments &args)
{
    return subtract(args.number(0), Value::integer(1));
}

// (abs number) -> its absolute value.
static Value absolute(Arguments &args)
{
    const Value &number = args.number(0);
    return number.asReal() < 0 ? subtract(Value::integer(0), number) : number;
}

enum class Extreme : std::uint8_t
{
    Least,
    Greatest
};

// (min number...), (max number...) -> the least or greatest; real as soon as one of them is.
template <Extreme Which>
static Value extreme(Arguments &args)
{
    Value best = args.size() > 0 ? args.number(0) : Value::integer(0);
    bool isReal = best.isReal();
    for (std::size_t i = 1; i < args.size(); ++i) {
        const Value &number = args.number(i);
        isReal = isReal || number.isReal();
        if (Which == Extreme::Least ? number.asReal() < best.asReal() : number.asReal() > best.asReal())
            best = number;
    }
    return isReal ? Value::real(best.asReal()) : best;
}

// (fix number) -> its integer part; a real when that does not fit an integer.
static Value fix(Arguments &args)
{
    const double whole = std::trunc(args.real(0));
    const bool fits =
        whole >= std::numeric_limits<std::int32_t>::min() && whole <= std::numeric_limits<std::int32_t>::max();
    return fits ? Value::integer(static_cast<std::int32_t>(whole)) : Value::real(whole);
}

// (float number) -> it as a real.
static Value toReal(Arguments &args)
{
    return Value::real(args.real(0));
}

// (sqrt number) -> its root. A negative number: function undefined for argument.
static Value squareRoot(Arguments &args)
{
    if (args.real(0) < 0)
        args.fail("function undefined for argument");
    return Value::real(std::sqrt(args.real(0)));
}

// (log number) -> its natural logarithm. Zero or less: function undefined for argument.
static Value logarithm(Arguments &args)
{
    if (args.real(0) <= 0)
        args.fail("function undefined for argument");
    return Value::real(std::log(args.real(0)));
}

template <double (*Function)(double)>
static Value realFunction(Arguments &args)
{
    return Value::real(Function(args.real(0)));
}

// (atan number [divisor]) -> the angle in -pi/2..pi/2, with divisor in -pi..pi.
static Value arcTangent(Arguments &args)
{
    return Value::real(args.size() == 2 ? std::atan2(args.real(0), args.real(1)) : std::atan(args.real(0)));
}

// (expt base power) -> an integer when both are and it fits, else a real. Undefined powers: function undefined for
// argument.
static Value power(Arguments &args)
{
    const Value &base = args.number(0);
    const Value &exponent = args.number(1);
    const double result = std::pow(base.asReal(), exponent.asReal());
    if (std::isnan(result) || (base.asReal() == 0 && exponent.asReal() < 0))
        args.fail("function undefined for argument");
    const bool isWhole = base.isInteger() && exponent.isInteger() && exponent.asInteger() >= 0;
    if (isWhole && std::fabs(result) <= std::numeric_limits<std::int32_t>::max())
        return Value::integer(static_cast<std::int32_t>(result));
    return Value::real(result);
}

// (numberp value) -> T for a number.
static Value numberp(Arguments &args)
{
    return args.boolean(args[0].isNumber());
}

// (zerop number), (minusp number) -> T when it is zero, less than zero.
static Value zerop(Arguments &args)
{
    return args.boolean(args.real(0) == 0);
}

static Value minusp(Arguments &args)
{
    return args.boolean(args.real(0) < 0);
}

static constexpr NativeRow numberRows[] = {
    {"+", fold<add>, Arity::any(), "number...", "the sum"},
    {"-", minus, Arity::any(), "number...", "the first less the others; of one, its negative"},
    {"*", fold<multiply>, Arity::any(), "number...", "the product"},
    {"/", fold<divide>, Arity::any(), "number...", "the first divided by the others; whole for integers"},
    {"rem", fold<remainder>, Arity::any(), "number...", "what is left of a division"},
    {"1+", increment, Arity::exactly(1), "number", "one more"},
    {"1-", decrement, Arity::exactly(1), "number", "one less"},
    {"abs", absolute, Arity::exactly(1), "number", "without its sign"},
    {"min", extreme<Extreme::Least>, Arity::any(), "number...", "the least"},
    {"max", extreme<Extreme::Greatest>, Arity::any(), "number...", "the greatest"},
    {"fix", fix, Arity::exactly(1), "number", "the integer towards zero"},
    {"float", toReal, Arity::exactly(1), "number", "as a real"},
    {"sqrt", squareRoot, Arity::exactly(1), "number", "the square root"},
    {"log", logarithm, Arity::exactly(1), "number", "the natural logarithm"},
    {"exp", realFunction<std::exp>, Arity::exactly(1), "number", "e to the power of a number"},
    {"sin", realFunction<std::sin>, Arity::exactly(1), "angle", "the sine"},
    {"cos", realFunction<std::cos>, Arity::exactly(1), "angle", "the cosine"},
    {"atan", arcTangent, Arity::between(1, 2), "y [x]", "the angle whose tangent it is"},
    {"expt", power, Arity::exactly(2), "base power", "a power"},
    {"numberp", numberp, Arity::exactly(1), "value", "T for a number"},
    {"zerop", zerop, Arity::exactly(1), "number", "T for zero"},
    {"minusp", minusp, Arity::exactly(1), "number", "T for less than zero"},
};

void addNumberFunctions(Interpreter &interpreter)
{
    interpreter.define(numberRows);
}

} // namespace host::lisp
