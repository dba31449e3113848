// mapcar and its kin over functions of a program: the calls are made here, one a round, not by the built-in.

#include "host/lisp/compiled/Operations.h"

#include <algorithm>

namespace host::lisp::compiled {

namespace {

// On the stack lie, while such a walk is under way: the function; for each list what is left of it, from the item of
// the round on.

constexpr std::size_t nextWords = 3;

constexpr bool collects(Walk kind)
{
    return kind == Walk::All || kind == Walk::Without || kind == Walk::Only;
}

/// Whether the machine can call what lies there with so many arguments. A symbol gives way to the function that it
/// holds.
bool isReadyToCall(Machine &machine, Value &callee, std::size_t count)
{
    if (callee.isSymbol() && callee.asSymbol().value().tag() == Tag::Function)
        callee = Value(callee.asSymbol().value());
    if (callee.tag() != Tag::Function)
        return false;
    const Function &function = callee.asFunction();
    return function.parameterCount == count && function.mark == 0 && machine.takes(function);
}

template <Walk Kind>
const Word *walk(Machine &machine, const Word *at, Value *top)
{
    const Site &site = *at[1].site;
    Value *const callee = top - site.count;
    const bool areLists = std::all_of(callee + 1, top, [](const Value &list) { return list.isList(); });
    machine.top = top;
    // The built-in knows what is wrong, and calls whatever else there is.
    if (!areLists || !isReadyToCall(machine, *callee, site.count - 1))
        return jumpTo(machine, at[2].target, machine.callNative(site, top));
    if (collects(Kind))
        machine.beginLoop();
    return jumpTo(machine, at + nextWords, top);
}

/// Ends the walk with a value in place of all that it has on the stack.
template <Walk Kind>
const Word *endWalk(Machine &machine, const Word *at, Value *top, const Value &result)
{
    Value value = collects(Kind) ? machine.loop().results.take() : result;
    if (collects(Kind))
        machine.endLoop();
    for (std::size_t places = at[1].site->count; places > 0; --places)
        (--top)->~Value();
    new (top) Value(std::move(value));
    return jumpTo(machine, at[2].target, top + 1);
}

template <Walk Kind>
const Word *walkNext(Machine &machine, const Word *at, Value *top)
{
    const Site &site = *at[1].site;
    const Value *const callee = top - site.count;
    const std::size_t count = site.count - 1;
    Value *alive = top;
    for (const Value *rest = callee + 1; rest != top; ++rest) {
        if (!rest->isCons()) [[unlikely]]
            return endWalk<Kind>(machine, at, top, Kind == Walk::Every ? machine.t() : detail::nil);
    }
    machine.tick(site.location, top);
    new (alive++) Value(*callee);
    for (const Value *rest = callee + 1; rest != top; ++rest)
        new (alive++) Value(rest->car());
    const Function &function = callee->asFunction();
    const Code *const code = function.code.get();
    const bool isUsual = function.mark == 0 && machine.hasRoomFor(*code, alive);
    if (code->onlyVariable && isUsual) [[likely]] {
        machine.pushFrame(function, 1, site.location, at + nextWords, alive);
        code->onlyVariable->swap(alive[-1]);
        return jumpTo(machine, code->begin(), alive);
    }
    if (isUsual)
        return machine.enter(function, count, site.location, at + nextWords, alive);
    return machine.callValue(count, site.location, at + nextWords, alive);
}

/// Keeps a value for the list that comes out.
void collect(Machine &machine, const Site &site, Value *top, Value value)
{
    if (!Heap::hasRoomFor(sizeof(Cons))) [[unlikely]]
        machine.refuseMemory(site, top);
    machine.loop().results.append(std::move(value));
}

/// What a round gave: it is taken from the stack, and the walk goes on with the next items or ends.
template <Walk Kind>
const Word *walkTake(Machine &machine, const Word *at, Value *top)
{
    const Site &site = *at[1].site;
    Value *const rests = top - site.count;
    const bool isTrue = top[-1].isTrue();
    if constexpr (Kind == Walk::All)
        collect(machine, site, top, std::move(top[-1]));
    if ((Kind == Walk::Without && !isTrue) || (Kind == Walk::Only && isTrue))
        collect(machine, site, top, rests->car());
    if ((Kind == Walk::FromFirst && isTrue) || (Kind == Walk::FromFirstNot && !isTrue))
        return endWalk<Kind>(machine, at, discard<1>(top), *rests);
    if ((Kind == Walk::Some && isTrue) || (Kind == Walk::Every && !isTrue)) {
        const Value result = std::move(top[-1]);
        return endWalk<Kind>(machine, at, top - 1, result);
    }
    top = discard<1>(top);
    for (Value *rest = rests; rest != top; ++rest)
        *rest = Value(rest->cdr());
    return jumpTo(machine, at[3].target, top);
}

template <Walk Kind>
constexpr WalkOperations walkOperationsOf = {walk<Kind>, walkNext<Kind>, walkTake<Kind>};

/// Puts the items of a list in its place and calls with them what lies below.
const Word *apply(Machine &machine, const Word *at, Value *top)
{
    const Site &site = *at[1].site;
    machine.top = top;
    const std::size_t count = listLength(top[-1]);
    if (!top[-1].isList() || count > mostApplied || !isReadyToCall(machine, top[-2], count))
        return jumpTo(machine, at + 2, machine.callNative(site, top));
    machine.tick(site.location, top);
    const Value list = std::move(*--top);
    for (const Value &item : ListItems(list))
        new (top++) Value(item);
    return machine.enter((top - count - 1)->asFunction(), count, site.location, at + 2, top);
}

} // namespace

const WalkOperations &walkOperations(Walk kind)
{
    static constexpr WalkOperations all[] = {
        walkOperationsOf<Walk::All>,          walkOperationsOf<Walk::Some>, walkOperationsOf<Walk::Every>,
        walkOperationsOf<Walk::Without>,      walkOperationsOf<Walk::Only>, walkOperationsOf<Walk::FromFirst>,
        walkOperationsOf<Walk::FromFirstNot>,
    };
    return all[static_cast<std::size_t>(kind)];
}

const Operation applyOperation = apply;

} // namespace host::lisp::compiled
