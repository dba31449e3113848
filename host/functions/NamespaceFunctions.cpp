// Variables of other drawings. All programs of a drawing share its variables, so there is no space of their own for
// them to be imported from or exported to.

#include "host/functions/FunctionGroups.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/lisp/Interpreter.h"

namespace host::kernel {

namespace {

using lisp::Arguments;
using lisp::Value;

// (vl-doc-set symbol value) -> value, which the drawing's variable of that name has now.
Value vlDocSet(Arguments &args)
{
    args.symbol(0).value() = args[1];
    return args[1];
}

// (vl-doc-ref symbol) -> the value of the drawing's variable.
Value vlDocRef(Arguments &args)
{
    return args.symbol(0).value();
}

// (vl-doc-export function), (vl-doc-import name...), ... -> nil: every function of the drawing is there already.
Value nothingToShare(Arguments &)
{
    return {};
}

/// The value for another engine, whose symbols are its own; nothing for what is of this drawing alone, as entities and
/// functions are.
std::optional<Value> copiedTo(lisp::Interpreter &engine, const Value &value, int depth = 0)
{
    constexpr int deepest = 1000;
    switch (value.tag()) {
    case lisp::Tag::Nil:
    case lisp::Tag::Integer:
    case lisp::Tag::Real:
        return value;
    case lisp::Tag::String:
        return Value::string(value.asString());
    case lisp::Tag::Symbol:
        return engine.symbol(value.asSymbol().name());
    case lisp::Tag::Cons:
        break;
    default:
        return std::nullopt;
    }
    std::vector<Value> items;
    const Value *rest = &value;
    for (; rest->isCons(); rest = &rest->cdr()) {
        const std::optional<Value> item = depth < deepest ? copiedTo(engine, rest->car(), depth + 1) : std::nullopt;
        if (!item)
            return std::nullopt;
        items.push_back(*item);
    }
    std::optional<Value> list = copiedTo(engine, *rest, depth + 1);
    for (auto item = items.rbegin(); list && item != items.rend(); ++item)
        list = Value::cons(*item, *list);
    return list;
}

// (vl-propagate symbol) -> nil. The variables of that name in the other open drawings get the value that it has here.
// Functions and entities are of their drawing: bad argument value.
Value vlPropagate(Arguments &args)
{
    Document &here = documentOf(args);
    const lisp::Symbol &symbol = args.symbol(0);
    for (const std::unique_ptr<Document> &document : here.session().documents().documents()) {
        if (document.get() == &here)
            continue;
        const std::optional<Value> value = copiedTo(document->interpreter(), args.symbol(0).value());
        if (!value)
            args.badValue(0, "value to share");
        document->interpreter().setVariable(symbol.name(), *value);
    }
    return {};
}

} // namespace

void addNamespaceFunctions(lisp::Interpreter &interpreter)
{
    using lisp::Arity;
    static constexpr lisp::NativeRow rows[] = {
        {"vl-doc-set", vlDocSet, Arity::exactly(2), "symbol value", "sets the drawing's variable"},
        {"vl-doc-ref", vlDocRef, Arity::exactly(1), "symbol", "the value of the drawing's variable"},
        {"vl-doc-export", nothingToShare, Arity::exactly(1), "function", "nothing: functions are shared already"},
        {"vl-doc-import", nothingToShare, Arity::atLeast(1), "name...", "nothing: functions are shared already"},
        {"vl-arx-import", nothingToShare, Arity::atLeast(1), "name...", "nothing: functions are shared already"},
        {"vl-propagate", vlPropagate, Arity::exactly(1), "symbol", "gives a variable's value to all open drawings"},
    };
    interpreter.define(rows);
}

} // namespace host::kernel
