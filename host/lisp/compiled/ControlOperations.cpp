#include "host/lisp/compiled/Operations.h"

namespace host::lisp::compiled {

namespace {

const Word *push(Machine &machine, const Word *at, Value *top)
{
    new (top) Value(*at[1].value);
    return goOn(machine, at + 2, top + 1);
}

const Word *store(Machine &machine, const Word *at, Value *top)
{
    Value &topmost = top[-1];
    at[1].cell->swap(topmost);
    topmost.~Value();
    return jumpTo(machine, at + 2, top - 1);
}

const Word *copy(Machine &machine, const Word *at, Value *top)
{
    Value value = *at[1].value;
    at[2].cell->swap(value);
    return jumpTo(machine, at + 3, top);
}

const Word *drop(Machine &machine, const Word *at, Value *top)
{
    return jumpTo(machine, at + 1, discard<1>(top));
}

const Word *keep(Machine &machine, const Word *at, Value *top)
{
    top[-1].swap(top[-1 - static_cast<std::ptrdiff_t>(at[1].number)]);
    return jumpTo(machine, at + 2, discard<1>(top));
}

const Word *keepValue(Machine &machine, const Word *at, Value *top)
{
    Value &kept = *(top - at[1].number);
    if (kept.tag() >= Tag::String) [[unlikely]]
        empty(kept);
    new (&kept) Value(*at[2].value);
    return goOn(machine, at + 3, top);
}

const Word *jump(Machine &machine, const Word *at, Value *top)
{
    return goOn(machine, at[1].target, top);
}

const Word *jumpKeeping(Machine &machine, const Word *at, Value *top)
{
    if (top[-1].isTrue())
        return goOn(machine, at[1].target, top);
    return goOn(machine, at + 2, top - 1);
}

const Word *loop(Machine &machine, const Word *at, Value *top)
{
    machine.tick(static_cast<Location>(at[2].number), top);
    return jumpTo(machine, at[1].target, top);
}

bool holdsAsExpected(const Word *pair)
{
    const Value &held = *pair[0].value;
    return held.tag() == Tag::Native && &held.asNative() == pair[1].native;
}

const Word *guard(Machine &machine, const Word *at, Value *top)
{
    const Word *pair = at + 3;
    const Word *const end = pair + 2 * at[2].number;
    for (; pair != end; pair += 2) {
        if (!holdsAsExpected(pair)) [[unlikely]]
            return goOn(machine, at[1].target, top);
    }
    return goOn(machine, end, top);
}

/// The same of so many, which functions begin with: each costs a moment at every call.
template <std::size_t... Pairs>
const Word *guardOf(Machine &machine, const Word *at, Value *top)
{
    const Word *const pairs = at + 3;
    if (!(holdsAsExpected(pairs + 2 * Pairs) && ...)) [[unlikely]]
        return goOn(machine, at[1].target, top);
    return goOn(machine, pairs + 2 * sizeof...(Pairs), top);
}

const Word *evaluate(Machine &machine, const Word *at, Value *top)
{
    return jumpTo(machine, at + 2, machine.evaluateForm(*at[1].value, top));
}

const Word *evaluateBody(Machine &machine, const Word *at, Value *top)
{
    machine.top = top;
    Value value = machine.interpreter().evalBody(*at[1].value);
    new (top) Value(std::move(value));
    return jumpTo(machine, at + 2, top + 1);
}

const Word *end(Machine &machine, const Word *, Value *top)
{
    machine.top = top;
    return nullptr;
}

const Word *repeat(Machine &machine, const Word *at, Value *top)
{
    if (!top[-1].isInteger()) [[unlikely]]
        machine.refuse(*at[1].site, top, 1, "fixnump: ", top[-1]);
    return goOn(machine, at + 2, top);
}

const Word *repeatNext(Machine &machine, const Word *at, Value *top)
{
    const std::int32_t left = top[-1].asInteger();
    if (left <= 0)
        return goOn(machine, at[1].target, top - 1);
    machine.tick(static_cast<Location>(at[2].number), top);
    new (top - 1) Value(Value::integer(left - 1));
    return jumpTo(machine, at + 3, top);
}

const Word *foreach (Machine &machine, const Word *at, Value * top)
{
    Value &list = top[-1];
    if (!list.isList()) [[unlikely]]
        machine.refuse(*at[2].site, top, 2, "listp ", list);
    machine.top = top;
    Machine::Loop &loop = machine.beginLoop();
    loop.variable = at[1].symbol;
    loop.saved = at[1].symbol->value();
    loop.list.swap(list);
    loop.rest = &loop.list;
    return jumpTo(machine, at + 3, top - 1);
}

const Word *foreachNext(Machine &machine, const Word *at, Value *top)
{
    Machine::Loop &loop = machine.loop();
    if (!loop.rest->isCons()) {
        machine.endLoop();
        return jumpTo(machine, at[1].target, top);
    }
    machine.tick(static_cast<Location>(at[2].number), top);
    loop.variable->value() = loop.rest->car();
    loop.rest = &loop.rest->cdr();
    return jumpTo(machine, at + 3, top);
}

} // namespace

Operation guardOperation(std::size_t pairs)
{
    constexpr Operation few[] = {guardOf<>,        guardOf<0>,          guardOf<0, 1>,
                                 guardOf<0, 1, 2>, guardOf<0, 1, 2, 3>, guardOf<0, 1, 2, 3, 4>};
    return pairs < std::size(few) ? few[pairs] : guard;
}

const Operation pushOperation = push;
const Operation storeOperation = store;
const Operation copyOperation = copy;
const Operation dropOperation = drop;
const Operation keepOperation = keep;
const Operation keepValueOperation = keepValue;
const Operation jumpOperation = jump;
const Operation jumpKeepingOperation = jumpKeeping;
const Operation loopOperation = loop;
const Operation evaluateOperation = evaluate;
const Operation evaluateBodyOperation = evaluateBody;
const Operation endOperation = end;
const Operation repeatOperation = repeat;
const Operation repeatNextOperation = repeatNext;
const Operation foreachOperation = foreach;
const Operation foreachNextOperation = foreachNext;

} // namespace host::lisp::compiled
