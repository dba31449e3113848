#pragma once

#include "host/lisp/compiled/Machine.h"

#include <new>
#include <utility>

// What all operations are made of.

namespace host::lisp::compiled {

/// Goes on with an instruction behind the one at work. Where the compiler makes a jump of a call in last place, which
/// is told it by ORTAKIT_LISP_CHAINED, one operation runs into the other; else the machine's loop calls each. It may be
/// used for steps forward, for calls and for their ends, so that the machine's loop comes round again at each jump back
/// and at the latest when the console is asked.
[[gnu::always_inline]] inline const Word *goOn(Machine &machine, const Word *next, Value *top)
{
#ifdef ORTAKIT_LISP_CHAINED
    return next->operation(machine, next, top);
#else
    machine.top = top;
    return next;
#endif
}

/// Goes on anywhere.
[[gnu::always_inline]] inline const Word *jumpTo(Machine &machine, const Word *next, Value *top)
{
    machine.top = top;
    return next;
}

/// Where an operand comes from.
enum class From : std::uint8_t
{
    Cell, ///< a symbol or a constant
    Stack
};

/// Where a result goes.
enum class To : std::uint8_t
{
    Stack,
    Cell ///< into a symbol
};

/// The two operands of instructions whose first words are operation, left operand, right operand.
template <From Left, From Right>
struct Operands
{
    static constexpr int onStack = (Left == From::Stack ? 1 : 0) + (Right == From::Stack ? 1 : 0);

    static const Value &left(const Word *at, const Value *top)
    {
        if constexpr (Left == From::Stack)
            return top[-onStack];
        else
            return *at[1].value;
    }
    static const Value &right(const Word *at, const Value *top)
    {
        if constexpr (Right == From::Stack)
            return top[-1];
        else
            return *at[2].value;
    }
};

// A call is a jump only where no variable of the function has an address that anybody may know: what needs one is done
// by functions of their own, here and in the operations.

/// Lets go of what a symbol holds.
[[gnu::noinline]] inline void empty(Value &cell)
{
    cell = Value();
}

/// Puts a number, made by `make`, over `places` numbers, or into a symbol.
template <To Result, int places, typename Make>
[[gnu::always_inline]] inline Value *putNumber(Value *cell, Value *top, Make make)
{
    if constexpr (Result == To::Stack) {
        new (top - places) Value(make());
        return top - places + 1;
    } else {
        if (cell->tag() >= Tag::String) [[unlikely]]
            empty(*cell);
        new (cell) Value(make());
        return top - places;
    }
}

/// Takes values from the stack.
template <int places>
[[gnu::always_inline]] inline Value *discard(Value *top)
{
    for (int i = 0; i < places; ++i)
        (--top)->~Value();
    return top;
}

/// The same with any values.
template <To Result, int places>
[[gnu::always_inline]] inline Value *put(Value *cell, Value *top, Value &result)
{
    top = discard<places>(top);
    if constexpr (Result == To::Stack)
        new (top++) Value(std::move(result));
    else
        cell->swap(result);
    return top;
}

} // namespace host::lisp::compiled
