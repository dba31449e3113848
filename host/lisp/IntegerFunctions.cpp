// Functions on integers and their bits. A real where an integer is wanted: bad argument type: fixnump:.

#include "host/lisp/Arguments.h"
#include "host/lisp/Builtins.h"
#include "host/lisp/Interpreter.h"
#include "host/lisp/Wrapping.h"

#include <numeric>

namespace host::lisp {

template <typename Combine>
static Value foldBits(Arguments &args, std::int32_t start, Combine combine)
{
    std::int32_t bits = start;
    for (std::size_t i = 0; i < args.size(); ++i)
        bits = combine(bits, args.integer(i));
    return Value::integer(bits);
}

// (logand int...) -> the bits set in all of them; 0 without arguments.
static Value logand(Arguments &args)
{
    return foldBits(args, args.size() > 0 ? -1 : 0, [](auto left, auto right) { return left & right; });
}

// (logior int...) -> the bits set in any of them.
static Value logior(Arguments &args)
{
    return foldBits(args, 0, [](auto left, auto right) { return left | right; });
}

// (logxor int...) -> the bits set in an odd number of them.
static Value logxor(Arguments &args)
{
    return foldBits(args, 0, [](auto left, auto right) { return left ^ right; });
}

// (~ int), (lognot int) -> the bits that are not set.
static Value complement(Arguments &args)
{
    return Value::integer(~args.integer(0));
}

// (lsh int count) -> the bits moved left, for a negative count right; zeros follow.
static Value shift(Arguments &args)
{
    const auto bits = static_cast<std::uint32_t>(args.integer(0));
    const std::int64_t count = args.integer(1);
    if (count >= 32 || count <= -32)
        return Value::integer(0);
    return Value::integer(static_cast<std::int32_t>(count >= 0 ? bits << count : bits >> -count));
}

// (boole operator int...) -> the bits combined pairwise from the left; the four bits of operator say what two bits
// give: 8 for 0 0, 4 for 0 1, 2 for 1 0, 1 for 1 1.
static Value boole(Arguments &args)
{
    const std::int32_t table = args.integer(0);
    if (table < 0 || table > 15)
        args.badValue(0);
    const auto combine = [table](std::int32_t left, std::int32_t right) {
        std::int32_t bits = 0;
        bits |= (table & 1) != 0 ? left & right : 0;
        bits |= (table & 2) != 0 ? left & ~right : 0;
        bits |= (table & 4) != 0 ? ~left & right : 0;
        bits |= (table & 8) != 0 ? ~left & ~right : 0;
        return bits;
    };
    std::int32_t bits = args.integer(1);
    for (std::size_t i = 2; i < args.size(); ++i)
        bits = combine(bits, args.integer(i));
    return Value::integer(bits);
}

template <typename Combine>
static Value foldWide(Arguments &args, Combine combine)
{
    std::int64_t result = args.size() > 0 ? std::abs(std::int64_t{args.integer(0)}) : 0;
    for (std::size_t i = 1; i < args.size(); ++i)
        result = wrapped(combine(result, std::abs(std::int64_t{args.integer(i)})));
    return Value::integer(wrapped(result));
}

// (gcd int...) -> the greatest common divisor.
static Value greatestCommonDivisor(Arguments &args)
{
    return foldWide(args, [](std::int64_t left, std::int64_t right) { return std::gcd(left, right); });
}

// (lcm int...) -> the least common multiple.
static Value leastCommonMultiple(Arguments &args)
{
    return foldWide(args, [](std::int64_t left, std::int64_t right) { return std::lcm(left, right); });
}

static constexpr NativeRow integerRows[] = {
    {"logand", logand, Arity::any(), "integer...", "bits that all have"},
    {"logior", logior, Arity::any(), "integer...", "bits that any has"},
    {"logor", logior, Arity::any(), "integer...", "bits that any has"},
    {"logxor", logxor, Arity::any(), "integer...", "bits that an odd number of them has"},
    {"lognot", complement, Arity::exactly(1), "integer", "all bits the other way round"},
    {"~", complement, Arity::exactly(1), "integer", "all bits the other way round"},
    {"lsh", shift, Arity::exactly(2), "integer count", "bits shifted to the left, to the right for a negative count"},
    {"boole", boole, Arity::atLeast(2), "operation integer...", "bits put together by the table that a number is"},
    {"gcd", greatestCommonDivisor, Arity::any(), "integer...", "the greatest common divisor"},
    {"lcm", leastCommonMultiple, Arity::any(), "integer...", "the least common multiple"},
};

void addIntegerFunctions(Interpreter &interpreter)
{
    interpreter.define(integerRows);
}

} // namespace host::lisp
