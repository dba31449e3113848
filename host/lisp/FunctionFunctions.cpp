// Functions about functions, symbols and evaluation.

#include "host/lisp/Arguments.h"
#include "host/lisp/Builtins.h"
#include "host/lisp/Interpreter.h"
#include "host/lisp/Reader.h"

namespace host::lisp {

// (eval expr) -> the value of the argument's value.
static Value evalFunction(Arguments &args)
{
    return args.interpreter().eval(args[0]);
}

// (apply function list) -> the result of the call with the items of list. No list: bad argument type: listp.
static Value applyFunction(Arguments &args)
{
    const std::vector<Value> items = listToVector(args.list(1));
    return args.interpreter().apply(args[0], items);
}

// (mapcar function list...) -> list of the results for first items, second items, ... to the end of the shortest list.
static Value mapcar(Arguments &args)
{
    Interpreter &interpreter = args.interpreter();
    const Value function = interpreter.resolveFunction(args[0]);
    std::vector<const Value *> rests;
    for (std::size_t i = 1; i < args.size(); ++i)
        rests.push_back(&args.list(i));
    std::vector<Value> items(rests.size());
    ListBuilder results;
    while (std::all_of(rests.begin(), rests.end(), [](const Value *rest) { return rest->isCons(); })) {
        for (std::size_t i = 0; i < rests.size(); ++i) {
            items[i] = rests[i]->car();
            rests[i] = &rests[i]->cdr();
        }
        results.append(interpreter.apply(function, items));
    }
    return results.take();
}

// (set sym value) -> value. No symbol: bad argument type: symbolp.
static Value set(Arguments &args)
{
    args.symbol(0).value() = args[1];
    return args[1];
}

// (boundp sym) -> T when it holds something else than nil.
static Value boundp(Arguments &args)
{
    return args.boolean(args.has(0) && args.symbol(0).value().isTrue());
}

static const char *typeName(const Value &value)
{
    switch (value.tag()) {
    case Tag::Integer:
        return "INT";
    case Tag::Real:
        return "REAL";
    case Tag::EntityName:
        return "ENAME";
    case Tag::Symbol:
        return "SYM";
    case Tag::String:
        return "STR";
    case Tag::Cons:
        return "LIST";
    case Tag::Function:
        return "USUBR";
    case Tag::Native:
        return value.asNative().kind == NativeKind::External ? "EXRXSUBR" : "SUBR";
    case Tag::File:
        return "FILE";
    case Tag::SelectionSet:
        return "PICKSET";
    case Tag::CaughtError:
        return "VL-CATCH-ALL-APPLY-ERROR";
    case Tag::HostObject:
        return "VLA-OBJECT";
    case Tag::Nil:
        break;
    }
    return nullptr;
}

// (type value) -> INT REAL STR LIST SYM SUBR USUBR EXRXSUBR ENAME PICKSET FILE; nil for nil.
static Value type(Arguments &args)
{
    const char *name = typeName(args[0]);
    return name ? args.interpreter().symbol(name) : Value();
}

// (read [string]) -> the first form of string; nil for none. Bad text: the reader's error.
static Value read(Arguments &args)
{
    if (args.size() == 0)
        return {};
    Reader reader(args.interpreter(), {});
    reader.feed(args.string(0));
    reader.finish();
    return reader.next().value_or(Value());
}

// (vl-symbol-name sym) -> its name in upper case.
static Value symbolName(Arguments &args)
{
    return Value::string(args.symbol(0).name());
}

// (vl-symbol-value sym) -> the value it holds.
static Value symbolValue(Arguments &args)
{
    return args.has(0) ? args.symbol(0).value() : Value();
}

// (vl-symbolp value) -> T for a symbol.
static Value symbolp(Arguments &args)
{
    return args.boolean(args[0].isSymbol());
}

// (atoms-family format [names]) -> names of all symbols that hold something, as symbols (0) or strings (1); with a list
// of names, each of them that holds something and nil for each that does not.
static Value atomsFamily(Arguments &args)
{
    Interpreter &interpreter = args.interpreter();
    const bool asStrings = args.integer(0) != 0;
    const auto shown = [&](Symbol &symbol) { return asStrings ? Value::string(symbol.name()) : Value::symbol(symbol); };
    ListBuilder names;
    if (!args.has(1)) {
        for (Symbol *symbol : interpreter.symbols().all()) {
            if (symbol->value().isTrue())
                names.append(shown(*symbol));
        }
        return names.take();
    }
    for (const Value &name : ListItems(args.list(1))) {
        if (!name.isString())
            args.badType(1, "stringp");
        Symbol *symbol = interpreter.symbols().find(name.asString());
        names.append(symbol && symbol->value().isTrue() ? shown(*symbol) : Value());
    }
    return names.take();
}

// (defun-q-list-ref sym) -> the list that sym holds as a function; nil when it holds none.
static Value defunQListRef(Arguments &args)
{
    const Value &held = args.symbol(0).value();
    return held.isCons() ? held : Value();
}

// (defun-q-list-set sym list) -> sym, which holds the list as a function now.
static Value defunQListSet(Arguments &args)
{
    args.symbol(0).value() = args.list(1);
    return args[0];
}

static constexpr NativeRow functionRows[] = {
    {"eval", evalFunction, Arity::exactly(1), "form", "evaluates a form"},
    {"apply", applyFunction, Arity::exactly(2), "function list", "calls a function with a list of arguments"},
    {"mapcar", mapcar, Arity::atLeast(2), "function list...",
     "a list of what a function gives for the elements of lists"},
    {"set", set, Arity::exactly(2), "symbol value", "sets the symbol that a form gives"},
    {"boundp", boundp, Arity::exactly(1), "symbol", "T when a symbol has a value"},
    {"type", type, Arity::exactly(1), "value", "what kind of value it is, as a symbol"},
    {"read", read, Arity::between(0, 1), "[text]", "the first value that a text spells"},
    {"vl-symbol-name", symbolName, Arity::exactly(1), "symbol", "the name of a symbol"},
    {"vl-symbol-value", symbolValue, Arity::exactly(1), "symbol", "the value of a symbol"},
    {"vl-symbolp", symbolp, Arity::exactly(1), "value", "T for a symbol"},
    {"atoms-family", atomsFamily, Arity::between(1, 2), "form [names]",
     "the names of all functions and variables, as symbols (0) or strings (1)"},
    {"defun-q-list-ref", defunQListRef, Arity::exactly(1), "name", "the list that a function of defun-q is kept as"},
    {"defun-q-list-set", defunQListSet, Arity::exactly(2), "name list", "defines a function by such a list"},
};

void addFunctionFunctions(Interpreter &interpreter)
{
    interpreter.define(functionRows);
}

} // namespace host::lisp
