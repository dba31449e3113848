#include "host/lisp/compiled/Operations.h"

namespace host::lisp::compiled {

namespace {

Location locationIn(const Word &word)
{
    return static_cast<Location>(word.number);
}

[[gnu::noinline]] const Word *headOfAnyKind(Machine &machine, const Word *at, Value *top)
{
    if (machine.pushHead(*at[1].symbol, locationIn(at[4]), top))
        return jumpTo(machine, at + 5, top + 1);
    return jumpTo(machine, at[3].target, machine.evaluateForm(*at[2].value, top));
}

const Word *head(Machine &machine, const Word *at, Value *top)
{
    const Value &held = at[1].symbol->value();
    if (held.tag() != Tag::Function) [[unlikely]]
        return headOfAnyKind(machine, at, top);
    new (top) Value(held);
    return goOn(machine, at + 5, top + 1);
}

const Word *call(Machine &machine, const Word *at, Value *top)
{
    const std::size_t count = at[1].number;
    const Location location = locationIn(at[2]);
    const Value &callee = *(top - count - 1);
    machine.tick(location, top);
    if (callee.tag() == Tag::Function) [[likely]] {
        const Function &function = callee.asFunction();
        if (function.code && function.parameterCount == count && function.mark == 0) [[likely]]
            return machine.enter(function, count, location, at + 3, top);
    }
    return machine.callValue(count, location, at + 3, top);
}

const Word *callNative(Machine &machine, const Word *at, Value *top)
{
    return jumpTo(machine, at + 2, machine.callNative(*at[1].site, top));
}

const Word *bindOne(Machine &machine, const Word *at, Value *top)
{
    at[1].cell->swap(top[-1]);
    return goOn(machine, at + 2, top);
}

const Word *bind(Machine &machine, const Word *at, Value *top)
{
    return jumpTo(machine, at + 1, machine.bindVariables(top));
}

const Word *leaveOne(Machine &machine, const Word *at, Value *top)
{
    // The result, below it what the variable held before, below that the function.
    Value &before = top[-2];
    at[1].cell->swap(before);
    before.~Value();
    return machine.leave(top[-3], top[-1]);
}

const Word *leave(Machine &machine, const Word *, Value *top)
{
    machine.restoreVariables();
    return machine.leave(machine.frame().values[-1], top[-1]);
}

} // namespace

const Operation headOperation = head;
const Operation callOperation = call;
const Operation callNativeOperation = callNative;
const Operation bindOneOperation = bindOne;
const Operation bindOperation = bind;
const Operation returnOneOperation = leaveOne;
const Operation returnOperation = leave;

} // namespace host::lisp::compiled
