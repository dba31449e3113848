// Forms that get their arguments unevaluated.

#include "host/lisp/Arguments.h"
#include "host/lisp/Builtins.h"
#include "host/lisp/Function.h"
#include "host/lisp/Interpreter.h"
#include "host/lisp/Native.h"
#include "host/lisp/Printer.h"

namespace host::lisp {

static void checkCount(const Value &forms, std::size_t least, std::size_t most)
{
    const std::size_t count = listLength(forms);
    if (count < least)
        throw Error("too few arguments");
    if (count > most)
        throw Error("too many arguments");
}

static void checkAtLeast(const Value &forms, std::size_t least)
{
    const Value *rest = &forms;
    for (; least > 0; --least, rest = &rest->cdr()) {
        if (!rest->isCons())
            throw Error("too few arguments");
    }
}

static Symbol &symbolForm(const Value &form, int number)
{
    if (form.isSymbol())
        return form.asSymbol();
    Error error("bad argument type: symbolp " + toShortText(form));
    error.argument = number;
    throw error;
}

// (quote expr) -> expr itself.
static Value quote(Interpreter &, const Value &forms)
{
    checkCount(forms, 1, 1);
    return forms.car();
}

// (function name-or-lambda) -> the symbol, or a function made of the lambda list.
static Value functionForm(Interpreter &interpreter, const Value &forms)
{
    checkCount(forms, 1, 1);
    return forms.car().isCons() ? interpreter.makeFunction(forms.car()) : forms.car();
}

// (setq sym expr [sym expr]...) -> the last value. Something else than a symbol: bad argument type: symbolp.
static Value setq(Interpreter &interpreter, const Value &forms)
{
    const Value *last = &detail::nil;
    int number = 1;
    for (const Value *rest = &forms; rest->isCons(); rest = &rest->cdr().cdr(), number += 2) {
        Symbol &symbol = symbolForm(rest->car(), number);
        if (!rest->cdr().isCons())
            throw Error("too few arguments");
        symbol.value() = interpreter.eval(rest->cdr().car());
        last = &symbol.value();
    }
    return *last;
}

// (if test then [else]) -> the value of the branch taken; nil without one.
static Value ifForm(Interpreter &interpreter, const Value &forms)
{
    const Value &branches = forms.cdr();
    if (!branches.isCons())
        throw Error("too few arguments");
    if (branches.cdr().cdr().isCons())
        throw Error("too many arguments");
    if (interpreter.eval(forms.car()).isTrue())
        return interpreter.eval(branches.car());
    return interpreter.eval(branches.cdr().car());
}

// (cond (test expr...)...) -> the last value of the first clause whose test is true, or the test's own.
static Value cond(Interpreter &interpreter, const Value &forms)
{
    for (const Value &clause : ListItems(forms)) {
        if (!clause.isCons())
            throw Error("bad argument type: listp " + toShortText(clause));
        Value test = interpreter.eval(clause.car());
        if (test.isTrue())
            return clause.cdr().isCons() ? interpreter.evalBody(clause.cdr()) : test;
    }
    return {};
}

// (while test expr...) -> the last value of the last round; nil without one.
static Value whileForm(Interpreter &interpreter, const Value &forms)
{
    checkAtLeast(forms, 1);
    Value last;
    while (interpreter.eval(forms.car()).isTrue()) {
        interpreter.tick();
        last = interpreter.evalBody(forms.cdr());
    }
    return last;
}

// (repeat count expr...) -> the last value of the last round. A count that is no integer: bad argument type: fixnump.
static Value repeat(Interpreter &interpreter, const Value &forms)
{
    checkAtLeast(forms, 1);
    const Value count = interpreter.eval(forms.car());
    if (!count.isInteger()) {
        Error error("bad argument type: fixnump: " + toShortText(count));
        error.argument = 1;
        throw error;
    }
    Value last;
    for (std::int32_t left = count.asInteger(); left > 0; --left) {
        interpreter.tick();
        last = interpreter.evalBody(forms.cdr());
    }
    return last;
}

/// Gives a variable its old value back.
class VariableScope
{
public:
    explicit VariableScope(Symbol &symbol) : m_symbol(symbol), m_saved(symbol.value()) {}
    ~VariableScope() { m_symbol.value().swap(m_saved); }
    VariableScope(const VariableScope &) = delete;
    VariableScope &operator=(const VariableScope &) = delete;

private:
    Symbol &m_symbol;
    Value m_saved;
};

// (foreach sym list expr...) -> the last value of the last round; sym has its old value afterwards.
static Value foreachForm(Interpreter &interpreter, const Value &forms)
{
    checkAtLeast(forms, 2);
    Symbol &symbol = symbolForm(forms.car(), 1);
    const Value list = interpreter.eval(forms.cdr().car());
    if (!list.isList()) {
        Error error("bad argument type: listp " + toShortText(list));
        error.argument = 2;
        throw error;
    }
    VariableScope scope(symbol);
    Value last;
    for (const Value &item : ListItems(list)) {
        interpreter.tick();
        symbol.value() = item;
        last = interpreter.evalBody(forms.cdr().cdr());
    }
    return last;
}

// (progn expr...) -> the last value.
static Value progn(Interpreter &interpreter, const Value &forms)
{
    return interpreter.evalBody(forms);
}

// (and expr...) -> T when no value is nil; stops at the first nil.
static Value andForm(Interpreter &interpreter, const Value &forms)
{
    for (const Value &form : ListItems(forms)) {
        if (interpreter.eval(form).isNil())
            return {};
    }
    return interpreter.t();
}

// (or expr...) -> T when a value is not nil; stops there.
static Value orForm(Interpreter &interpreter, const Value &forms)
{
    for (const Value &form : ListItems(forms)) {
        if (interpreter.eval(form).isTrue())
            return interpreter.t();
    }
    return {};
}

// and, or as programs hand them to (apply) and (mapcar): of values.
static Value andOfValues(Arguments &args)
{
    for (std::size_t i = 0; i < args.size(); ++i)
        if (args[i].isNil())
            return {};
    return args.interpreter().t();
}

static Value orOfValues(Arguments &args)
{
    for (std::size_t i = 0; i < args.size(); ++i)
        if (args[i].isTrue())
            return args.interpreter().t();
    return {};
}

// (lambda (param... [/ local...]) expr...) -> a function.
static Value lambda(Interpreter &interpreter, const Value &forms)
{
    checkAtLeast(forms, 1);
    return interpreter.makeFunction(nullptr, forms.car(), forms.cdr());
}

// (defun sym (param... [/ local...]) expr...) -> sym, which holds the function now.
static Value defun(Interpreter &interpreter, const Value &forms)
{
    checkAtLeast(forms, 2);
    Symbol &symbol = symbolForm(forms.car(), 1);
    symbol.value() = interpreter.makeFunction(&symbol, forms.cdr().car(), forms.cdr().cdr());
    return forms.car();
}

// (defun-q sym (param... [/ local...]) expr...) -> sym, which holds the function as a list that programs may change.
static Value defunQ(Interpreter &interpreter, const Value &forms)
{
    checkAtLeast(forms, 2);
    Symbol &symbol = symbolForm(forms.car(), 1);
    interpreter.makeFunction(&symbol, forms.cdr().car(), forms.cdr().cdr()); // refuses a bad parameter list now
    symbol.value() = forms.cdr();
    return forms.car();
}

static Value setTraced(const Value &forms, bool isTraced)
{
    const Value *last = &detail::nil;
    int number = 1;
    for (const Value &form : ListItems(forms)) {
        const Value &function = symbolForm(form, number++).value();
        if (function.tag() != Tag::Function)
            throw Error("bad function: " + toShortText(form));
        std::uint32_t &watch = function.asFunction().mark;
        watch = isTraced ? watch | CallWatch::Traced : watch & ~std::uint32_t(CallWatch::Traced);
        last = &form;
    }
    return *last;
}

// (trace sym...) -> the last symbol. Calls of these user functions are written out. Others: bad function.
static Value trace(Interpreter &, const Value &forms)
{
    return setTraced(forms, true);
}

// (untrace sym...) -> the last symbol. Ends trace.
static Value untrace(Interpreter &, const Value &forms)
{
    return setTraced(forms, false);
}

static constexpr SpecialFormRow specialFormRows[] = {
    {"quote", quote, "form", "the form itself, not evaluated"},
    {"function", functionForm, "form", "the form itself, as code"},
    {"setq", setq, "[symbol value]...", "sets symbols to values"},
    {"if", ifForm, "test then [else]", "one of two forms, by a test"},
    {"cond", cond, "(test form...)...", "the forms behind the first test that holds"},
    {"while", whileForm, "test form...", "evaluates forms as long as a test holds"},
    {"repeat", repeat, "count form...", "evaluates forms a number of times"},
    {"foreach", foreachForm, "symbol list form...", "evaluates forms with a symbol bound to each element"},
    {"progn", progn, "form...", "evaluates forms, gives the last value"},
    {"and", andForm, "form...", "T when all forms give something, looking no further than the first nil", andOfValues},
    {"or", orForm, "form...", "T when a form gives something, looking no further than that", orOfValues},
    {"lambda", lambda, "(parameter... [/ local...]) form...", "a function without a name"},
    {"defun", defun, "name (parameter... [/ local...]) form...", "defines a function"},
    {"defun-q", defunQ, "name (parameter... [/ local...]) form...", "defines a function that is kept as a list"},
    {"trace", trace, "name...", "writes out the calls of these functions"},
    {"untrace", untrace, "name...", "ends that"},
};

void addSpecialForms(Interpreter &interpreter)
{
    for (const SpecialFormRow &row : specialFormRows)
        interpreter.defineSpecialForm(row);
}

} // namespace host::lisp
