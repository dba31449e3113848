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

/// Any function with any number of arguments.
[[gnu::noinline]] const Word *callUncounted(Machine &machine, const Word *at, Value *top)
{
    const std::size_t count = at[1].number;
    const Location location = locationIn(at[2]);
    const Value &callee = *(top - count - 1);
    if (callee.tag() == Tag::Function) [[likely]] {
        const Function &function = callee.asFunction();
        if (function.code && function.parameterCount == count && function.mark == 0) [[likely]]
            return machine.enter(function, count, location, at + 3, top);
    }
    return machine.callValue(count, location, at + 3, top);
}

[[gnu::noinline]] const Word *callAfterPoll(Machine &machine, const Word *at, Value *top)
{
    machine.poll(locationIn(at[2]), top);
    return callUncounted(machine, at, top);
}

const Word *call(Machine &machine, const Word *at, Value *top)
{
    if (machine.isPollDue()) [[unlikely]]
        return callAfterPoll(machine, at, top);
    return callUncounted(machine, at, top);
}

/// The same of one argument, which most have: what it takes where all is as usual, and no more.
const Word *callWithOne(Machine &machine, const Word *at, Value *top)
{
    if (machine.isPollDue()) [[unlikely]]
        return callAfterPoll(machine, at, top);
    if (top[-2].tag() != Tag::Function) [[unlikely]]
        return callUncounted(machine, at, top);
    const Function &function = top[-2].asFunction();
    const Code *const code = function.code.get();
    if (!code || !code->onlyVariable || function.mark != 0 || !machine.hasRoomFor(*code, top)) [[unlikely]]
        return callUncounted(machine, at, top);
    machine.pushFrame(function, 1, locationIn(at[2]), at + 3, top);
    code->onlyVariable->swap(top[-1]);
    return goOn(machine, code->begin(), top);
}

const Word *callNative(Machine &machine, const Word *at, Value *top)
{
    return jumpTo(machine, at + 2, machine.callNative(*at[1].site, top));
}

/// Ends a call when its variables have their values back: the result goes where the function was.
const Word *leaveTo(Machine &machine, Value &function, Value &result)
{
    const Word *const resume = machine.frame().resume;
    machine.popFrame();
    function.swap(result);
    result.~Value();
    return jumpTo(machine, resume, &function + 1);
}

[[gnu::noinline]] const Word *leaveAnyOne(Machine &machine, const Word *at, Value *top)
{
    Value &before = top[-2];
    at[1].cell->swap(before);
    before.~Value();
    return leaveTo(machine, top[-3], top[-1]);
}

const Word *leaveOne(Machine &machine, const Word *at, Value *top)
{
    // The result, below it what the variable held before, below that the function.
    Value &cell = *at[1].cell;
    std::uint32_t &holders = top[-3].asFunction().references;
    if (cell.tag() >= Tag::String || holders == 1) [[unlikely]]
        return leaveAnyOne(machine, at, top);
    --holders;
    top[-2].relocate(&cell);
    top[-1].relocate(top - 3);
    const Word *const resume = machine.frame().resume;
    machine.popFrame();
    return goOn(machine, resume, top - 2);
}

const Word *leave(Machine &machine, const Word *, Value *top)
{
    machine.restoreVariables();
    return leaveTo(machine, machine.frame().values[-1], top[-1]);
}

} // namespace

const Operation headOperation = head;
const Operation callOperation = call;
const Operation callWithOneOperation = callWithOne;
const Operation callNativeOperation = callNative;
const Operation returnOneOperation = leaveOne;
const Operation returnOperation = leave;

} // namespace host::lisp::compiled
