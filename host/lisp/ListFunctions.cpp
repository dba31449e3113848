// Making lists and taking them apart. Something else than a list: bad argument type: listp.

#include "host/lisp/Arguments.h"
#include "host/lisp/Builtins.h"
#include "host/lisp/Interpreter.h"

namespace host::lisp {

// (cons first rest) -> a pair; a list when rest is one.
static Value cons(Arguments &args)
{
    return Value::cons(args[0], args[1]);
}

// (list value...) -> their list.
static Value list(Arguments &args)
{
    return Value::list(std::span<const Value>(args.begin(), args.end()));
}

// (vl-list* value... tail) -> a list of the values that goes on with tail.
static Value listWithTail(Arguments &args)
{
    Value result = args[args.size() - 1];
    for (std::size_t i = args.size() - 1; i-- > 0;)
        result = Value::cons(args[i], std::move(result));
    return result;
}

// (append list...) -> one list of all items. The last list is shared, not copied.
static Value append(Arguments &args)
{
    ListBuilder builder;
    for (std::size_t i = 0; i + 1 < args.size(); ++i) {
        for (const Value &item : ListItems(args.list(i)))
            builder.append(item);
    }
    if (args.size() > 0)
        builder.setTail(args.list(args.size() - 1));
    return builder.take();
}

// (reverse list) -> the items in opposite order.
static Value reverse(Arguments &args)
{
    Value result;
    for (const Value &item : ListItems(args.list(0)))
        result = Value::cons(item, std::move(result));
    return result;
}

// (nth index list) -> the item, counted from 0; nil behind the end. A negative index: bad argument value.
static Value nth(Arguments &args)
{
    std::int32_t index = args.integer(0);
    if (index < 0)
        args.badValue(0);
    const Value *rest = &args.list(1);
    for (; index > 0 && rest->isCons(); --index)
        rest = &rest->cdr();
    return rest->car();
}

// (last list) -> the last item.
static Value last(Arguments &args)
{
    const Value *rest = &args.list(0);
    while (rest->cdr().isCons())
        rest = &rest->cdr();
    return rest->car();
}

// (length list) -> the number of items. A dotted list: bad argument type: listp.
static Value length(Arguments &args)
{
    const Value *rest = &args.list(0);
    std::int32_t count = 0;
    for (; rest->isCons(); rest = &rest->cdr())
        ++count;
    if (rest->isTrue())
        args.badType(0, "listp");
    return Value::integer(count);
}

// (vl-list-length list) -> the number of items; nil for a dotted list.
static Value properLength(Arguments &args)
{
    const Value *rest = &args.list(0);
    std::int32_t count = 0;
    for (; rest->isCons(); rest = &rest->cdr())
        ++count;
    return rest->isNil() ? Value::integer(count) : Value();
}

// (subst new old list) -> list with new in place of each item that equals old.
static Value subst(Arguments &args)
{
    ListBuilder builder;
    const Value *rest = &args.list(2);
    for (; rest->isCons(); rest = &rest->cdr())
        builder.append(args.interpreter().equal(rest->car(), args[1]) ? args[0] : rest->car());
    builder.setTail(*rest);
    return builder.take();
}

// (listp value) -> T for a list, also for nil. (vl-consp value) -> T for a list that is not empty. (atom value) -> T
// for everything else.
static Value listp(Arguments &args)
{
    return args.boolean(args[0].isList());
}

static Value consp(Arguments &args)
{
    return args.boolean(args[0].isCons());
}

static Value atom(Arguments &args)
{
    return args.boolean(!args[0].isCons());
}

static constexpr NativeRow listRows[] = {
    {"cons", cons, Arity::exactly(2), "first rest", "a list with an element in front, or a pair"},
    {"list", list, Arity::any(), "value...", "a list of values"},
    {"vl-list*", listWithTail, Arity::atLeast(1), "value... rest", "a list of values that ends in the last of them"},
    {"append", append, Arity::any(), "list...", "lists behind each other, as one"},
    {"reverse", reverse, Arity::exactly(1), "list", "a list backwards"},
    {"nth", nth, Arity::exactly(2), "index list", "an element, counted from 0; nil behind the end"},
    {"last", last, Arity::exactly(1), "list", "the last element"},
    {"length", length, Arity::exactly(1), "list", "how many elements a list has"},
    {"vl-list-length", properLength, Arity::exactly(1), "list", "the same; nil for what ends in a pair"},
    {"subst", subst, Arity::exactly(3), "new old list", "a list with each element that equals the old one replaced"},
    {"listp", listp, Arity::exactly(1), "value", "T for a list or nil"},
    {"vl-consp", consp, Arity::exactly(1), "value", "T for a list that is not nil"},
    {"atom", atom, Arity::exactly(1), "value", "T for what is no list, and for nil"},
};

void addListFunctions(Interpreter &interpreter)
{
    interpreter.define(listRows);
}

} // namespace host::lisp
