// Equality and order.

#include "host/lisp/Arguments.h"
#include "host/lisp/Builtins.h"
#include "host/lisp/Interpreter.h"
#include "host/lisp/Printer.h"

namespace host::lisp {

static bool isNumericallyEqual(const Value &left, const Value &right)
{
    if (left.isNumber() && right.isNumber())
        return left.asReal() == right.asReal();
    return left.isSame(right);
}

// (= value...) -> T when each equals the next: numbers by value, strings by text, everything else by identity.
static Value equalSign(Arguments &args)
{
    for (std::size_t i = 1; i < args.size(); ++i) {
        if (!isNumericallyEqual(args[i - 1], args[i]))
            return {};
    }
    return args.boolean(true);
}

// (/= value...) -> T when each differs from the next.
static Value differs(Arguments &args)
{
    for (std::size_t i = 1; i < args.size(); ++i) {
        if (isNumericallyEqual(args[i - 1], args[i]))
            return {};
    }
    return args.boolean(true);
}

template <typename Compare>
static bool isOrdered(const Value &left, const Value &right, Compare compare)
{
    if (left.isInteger() && right.isInteger())
        return compare(left.asInteger(), right.asInteger());
    if (left.isNumber() && right.isNumber())
        return compare(left.asReal(), right.asReal());
    if (left.isString() && right.isString())
        return compare(left.asString().compare(right.asString()), 0);
    throw Error("bad argument type for compare: " + toShortText(left) + " " + toShortText(right));
}

// (< value...), (<= ...), (> ...), (>= ...) -> T when each is in that order to the next. Only numbers and strings, not
// mixed: bad argument type for compare.
template <typename Compare>
static Value ordered(Arguments &args)
{
    for (std::size_t i = 1; i < args.size(); ++i) {
        if (!isOrdered(args[i - 1], args[i], Compare()))
            return {};
    }
    return args.boolean(true);
}

// (eq a b) -> T for the same object, number or text.
static Value eq(Arguments &args)
{
    return args.boolean(args[0].isSame(args[1]));
}

// (equal a b [fuzz]) -> T for the same structure; numbers may differ by fuzz.
static Value equal(Arguments &args)
{
    return args.boolean(args.interpreter().equal(args[0], args[1], args.realOr(2, 0.0)));
}

// (not value), (null value) -> T for nil.
static Value isNull(Arguments &args)
{
    return args.boolean(args[0].isNil());
}

static constexpr NativeRow comparisonRows[] = {
    {"=", equalSign, Arity::atLeast(1), "value...", "T when all are equal, numbers or strings"},
    {"/=", differs, Arity::atLeast(1), "value...", "T when no two neighbours are equal"},
    {"<", ordered<std::less<>>, Arity::atLeast(1), "value...", "T when each is less than the next"},
    {"<=", ordered<std::less_equal<>>, Arity::atLeast(1), "value...", "T when no one is greater than the next"},
    {">", ordered<std::greater<>>, Arity::atLeast(1), "value...", "T when each is greater than the next"},
    {">=", ordered<std::greater_equal<>>, Arity::atLeast(1), "value...", "T when no one is less than the next"},
    {"eq", eq, Arity::exactly(2), "a b", "T when both are the same object"},
    {"equal", equal, Arity::between(2, 3), "a b [tolerance]", "T when both look the same, numbers within a tolerance"},
    {"not", isNull, Arity::exactly(1), "value", "T for nil"},
    {"null", isNull, Arity::exactly(1), "value", "T for nil"},
};

void addComparisonFunctions(Interpreter &interpreter)
{
    interpreter.define(comparisonRows);
}

} // namespace host::lisp
