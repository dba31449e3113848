// Finding, testing and removing list items.

#include "host/lisp/Arguments.h"
#include "host/lisp/Builtins.h"
#include "host/lisp/Interpreter.h"
#include "host/lisp/PairWalk.h"

namespace host::lisp {

/// A function argument, made ready once for many calls.
class Callback
{
public:
    Callback(Arguments &args, std::size_t index)
        : m_interpreter(args.interpreter()), m_function(m_interpreter.resolveFunction(args[index]))
    {
    }
    Value operator()(std::span<const Value> arguments) const { return m_interpreter.apply(m_function, arguments); }
    bool isTrueFor(const Value &item) const { return (*this)({&item, 1}).isTrue(); }

private:
    Interpreter &m_interpreter;
    Value m_function;
};

/// Calls `use` with what tells, by `equal`, whether a value is the one looked for: lists are searched many times over,
/// so each kind has its own way.
template <typename Use>
static auto withTest(Interpreter &interpreter, const Value &wanted, Use use)
{
    if (wanted.isInteger()) {
        const std::int32_t number = wanted.asInteger();
        return use([number](const Value &value) {
            if (value.isInteger()) [[likely]]
                return value.asInteger() == number;
            return value.isReal() && value.asReal() == number;
        });
    }
    if (wanted.isReal()) {
        const double number = wanted.asReal();
        return use([number](const Value &value) { return value.isNumber() && value.asReal() == number; });
    }
    if (wanted.isString()) {
        const std::string_view text = wanted.asString();
        return use([text](const Value &value) { return value.isString() && value.asString() == text; });
    }
    if (!wanted.isCons())
        return use([&wanted](const Value &value) { return value.isSame(wanted); });
    return use([&](const Value &value) { return value.isCons() && interpreter.equal(value, wanted); });
}

// (member item list) -> the list from the first item that equals it; nil when there is none.
static Value member(Arguments &args)
{
    const Value &list = args.list(1);
    return withTest(args.interpreter(), args[0], [&list](auto isWanted) {
        PairWalk at(list);
        while (at.isPair() && !isWanted(at.item()))
            at.step();
        return at.isPair() ? at.rest() : Value();
    });
}

// (assoc key list) -> the first item whose own first item equals key. An item that is no list: bad association list.
static Value assoc(Arguments &args)
{
    const Value &list = args.list(1);
    return withTest(args.interpreter(), args[0], [&](auto isWanted) {
        for (PairWalk at(list); at.isPair(); at.step()) {
            const Value &item = at.item();
            if (item.isCons()) [[likely]] {
                if (isWanted(item.asCons().car)) [[unlikely]]
                    return item;
            } else if (item.isTrue()) {
                args.badValue(1, "bad association list");
            }
        }
        return Value();
    });
}

// (vl-position item list) -> where the first equal item is, from 0; nil when there is none.
static Value listPosition(Arguments &args)
{
    const Value &list = args.list(1);
    return withTest(args.interpreter(), args[0], [&list](auto isWanted) {
        std::int32_t index = 0;
        for (PairWalk at(list); at.isPair(); at.step(), ++index) {
            if (isWanted(at.item()))
                return Value::integer(index);
        }
        return Value();
    });
}

enum class Wanted : std::uint8_t
{
    True,
    False
};

// (vl-member-if test list), (vl-member-if-not test list) -> the list from the first item for which test gives not nil,
// nil; nil when there is none.
template <Wanted Which>
static Value memberIf(Arguments &args)
{
    const Callback test(args, 0);
    const Value *rest = &args.list(1);
    while (rest->isCons() && test.isTrueFor(rest->car()) != (Which == Wanted::True))
        rest = &rest->cdr();
    return rest->isCons() ? *rest : Value();
}

// (vl-remove item list) -> the list without items that equal it.
static Value remove(Arguments &args)
{
    ListBuilder kept;
    withTest(args.interpreter(), args[0], [&](auto isWanted) {
        for (const Value &item : ListItems(args.list(1))) {
            if (!isWanted(item))
                kept.append(item);
        }
    });
    return kept.take();
}

// (vl-remove-if test list), (vl-remove-if-not test list) -> the list without items for which test gives not nil, nil.
template <Wanted Which>
static Value removeIf(Arguments &args)
{
    const Callback test(args, 0);
    ListBuilder kept;
    for (const Value &item : ListItems(args.list(1))) {
        if (test.isTrueFor(item) != (Which == Wanted::True))
            kept.append(item);
    }
    return kept.take();
}

/// Calls a test for first items, second items, ... of all lists until its result is wanted.
template <Wanted Which>
static std::optional<Value> findResult(Arguments &args)
{
    const Callback test(args, 0);
    std::vector<const Value *> rests;
    for (std::size_t i = 1; i < args.size(); ++i)
        rests.push_back(&args.list(i));
    std::vector<Value> items(rests.size());
    while (std::all_of(rests.begin(), rests.end(), [](const Value *rest) { return rest->isCons(); })) {
        for (std::size_t i = 0; i < rests.size(); ++i) {
            items[i] = rests[i]->car();
            rests[i] = &rests[i]->cdr();
        }
        Value result = test(items);
        if (result.isTrue() == (Which == Wanted::True))
            return result;
    }
    return std::nullopt;
}

// (vl-some test list...) -> the first result that is not nil.
static Value some(Arguments &args)
{
    return findResult<Wanted::True>(args).value_or(Value());
}

// (vl-every test list...) -> T when no result is nil.
static Value every(Arguments &args)
{
    return args.boolean(!findResult<Wanted::False>(args));
}

static constexpr NativeRow listSearchRows[] = {
    {"member", member, Arity::exactly(2), "value list",
     "the rest of a list from an element on; nil when it is not there"},
    {"assoc", assoc, Arity::exactly(2), "key list", "the first pair with this key"},
    {"vl-position", listPosition, Arity::exactly(2), "value list", "the index of an element"},
    {"vl-member-if", memberIf<Wanted::True>, Arity::exactly(2), "function list",
     "the rest of a list from the first element on that a function takes"},
    {"vl-member-if-not", memberIf<Wanted::False>, Arity::exactly(2), "function list",
     "the rest of a list from the first element on that a function does not take"},
    {"vl-remove", remove, Arity::exactly(2), "value list", "a list without an element"},
    {"vl-remove-if", removeIf<Wanted::True>, Arity::exactly(2), "function list",
     "a list without the elements that a function takes"},
    {"vl-remove-if-not", removeIf<Wanted::False>, Arity::exactly(2), "function list",
     "the elements of a list that a function takes"},
    {"vl-some", some, Arity::atLeast(2), "function list...",
     "what a function gives for the first element that it takes"},
    {"vl-every", every, Arity::atLeast(2), "function list...", "T when a function takes all elements"},
};

void addListSearchFunctions(Interpreter &interpreter)
{
    interpreter.define(listSearchRows);
}

} // namespace host::lisp
