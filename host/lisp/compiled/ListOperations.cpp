#include "host/lisp/compiled/Operations.h"

namespace host::lisp::compiled {

namespace {

/// An operand as a value to keep, taken off the stack if it is there.
template <From Operand>
Value taken(Value *onStack, const Word &word)
{
    if constexpr (Operand == From::Stack)
        return std::move(*onStack);
    else
        return *word.value;
}

template <From Left, From Right, To Result>
const Word *cons(Machine &machine, const Word *at, Value *top)
{
    using In = Operands<Left, Right>;
    // The heap may refuse, with both operands in their places still.
    machine.top = top;
    Value pair;
    if (Heap::hasRoomFor(sizeof(Cons))) [[likely]]
        pair = Value::cons(taken<Left>(top - In::onStack, at[1]), taken<Right>(top - 1, at[2]));
    else
        pair = machine.callNative(*at[4].site, top, In::left(at, top), In::right(at, top));
    return jumpTo(machine, at + operandWords, put<Result, In::onStack>(at[3].cell, top, pair));
}

template <From Left, From Right>
Operation consTo(To result)
{
    return result == To::Stack ? cons<Left, Right, To::Stack> : cons<Left, Right, To::Cell>;
}

/// Steps to a part of a list; null from something that is none.
template <std::size_t Length, unsigned Path>
const Value *partOf(const Value *value)
{
    for (std::size_t step = 0; step < Length; ++step) {
        if (!value->isList()) [[unlikely]]
            return nullptr;
        value = (Path >> step & 1U) != 0 ? &value->cdr() : &value->car();
    }
    return value;
}

template <std::size_t Length, unsigned Path, From Operand, To Result>
const Word *part(Machine &machine, const Word *at, Value *top)
{
    constexpr int onStack = Operand == From::Stack ? 1 : 0;
    const Value &whole = Operand == From::Stack ? top[-1] : *at[1].value;
    const Value *found = partOf<Length, Path>(&whole);
    // Never comes back.
    if (!found) [[unlikely]]
        machine.callNative(*at[4].site, top, whole, whole);
    Value result = *found;
    top = put<Result, onStack>(at[3].cell, top, result);
    return jumpTo(machine, at + operandWords, top);
}

template <std::size_t Length, unsigned Path>
Operation partWith(From operand, To result)
{
    if (operand == From::Cell)
        return result == To::Stack ? part<Length, Path, From::Cell, To::Stack>
                                   : part<Length, Path, From::Cell, To::Cell>;
    return result == To::Stack ? part<Length, Path, From::Stack, To::Stack> : part<Length, Path, From::Stack, To::Cell>;
}

const Word *makeList(Machine &machine, const Word *at, Value *top)
{
    const Site &site = *at[1].site;
    if (!Heap::hasRoomFor(site.count * Heap::blockOf(sizeof(Cons)))) [[unlikely]]
        return jumpTo(machine, at + 2, machine.callNative(site, top));
    Value list;
    for (std::size_t left = site.count; left > 0; --left) {
        --top;
        list = Value::cons(std::move(*top), std::move(list));
        top->~Value();
    }
    new (top) Value(std::move(list));
    return jumpTo(machine, at + 2, top + 1);
}

} // namespace

Operation consOperation(From left, From right, To result)
{
    if (left == From::Cell)
        return right == From::Cell ? consTo<From::Cell, From::Cell>(result) : consTo<From::Cell, From::Stack>(result);
    return right == From::Cell ? consTo<From::Stack, From::Cell>(result) : consTo<From::Stack, From::Stack>(result);
}

Operation partOperation(std::size_t length, unsigned path, From operand, To result)
{
    switch (length << 4U | path) {
    case 0x10:
        return partWith<1, 0>(operand, result);
    case 0x11:
        return partWith<1, 1>(operand, result);
    case 0x20:
        return partWith<2, 0>(operand, result);
    case 0x21:
        return partWith<2, 1>(operand, result);
    case 0x22:
        return partWith<2, 2>(operand, result);
    case 0x23:
        return partWith<2, 3>(operand, result);
    case 0x33:
        return partWith<3, 3>(operand, result);
    case 0x37:
        return partWith<3, 7>(operand, result);
    default:
        return nullptr;
    }
}

const Operation listOperation = makeList;

} // namespace host::lisp::compiled
