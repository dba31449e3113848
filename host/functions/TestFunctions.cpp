// Tests of programs, written in Lisp. `ortakit lisp --test` runs what a file defines; see docs/lisp-programs.md.

#include "host/functions/FunctionGroups.h"
#include "host/lisp/Interpreter.h"
#include "host/lisp/Printer.h"

namespace host::kernel {

namespace {

using lisp::Error;
using lisp::Interpreter;
using lisp::Value;

/// The tests that were defined, the last one first: pairs of name and function.
constexpr auto testsVariable = "*deftests*";

void checkCount(const Value &forms, std::size_t least, std::size_t most)
{
    const std::size_t count = lisp::listLength(forms);
    if (count < least || count > most)
        throw Error(count < least ? "too few arguments" : "too many arguments");
}

/// A value in a message: readable, but no pages of it.
std::string shown(const Value &value)
{
    constexpr std::size_t longest = 1000;
    return lisp::toText(value, lisp::PrintStyle::Readable, longest);
}

// (deftest name form...) -> name. A symbol or a string names the test, whose forms are evaluated when it is run.
Value deftest(Interpreter &interpreter, const Value &forms)
{
    const Value &name = forms.car();
    if (!name.isSymbol() && !name.isString())
        throw Error("a test needs a name: (deftest name form...)");
    const Value text = Value::string(name.isString() ? name.asString() : lisp::toText(name));
    Value body = interpreter.makeFunction(nullptr, {}, forms.cdr());
    interpreter.setVariable(testsVariable,
                            Value::cons(Value::cons(text, std::move(body)), interpreter.variable(testsVariable)));
    return name;
}

// (is form) -> T. An error when the form gives nil.
Value is(Interpreter &interpreter, const Value &forms)
{
    checkCount(forms, 1, 1);
    if (interpreter.eval(forms.car()).isNil())
        throw Error("expected something, got nil: " + shown(forms.car()));
    return interpreter.t();
}

// (is-equal expected form [fuzz]) -> T. An error when the form gives something else than is expected.
Value isEqual(Interpreter &interpreter, const Value &forms)
{
    checkCount(forms, 2, 3);
    const Value &form = forms.cdr().car();
    const Value expected = interpreter.eval(forms.car());
    const Value got = interpreter.eval(form);
    const Value fuzz = interpreter.eval(forms.cdr().cdr().car());
    if (!interpreter.equal(expected, got, fuzz.isNumber() ? fuzz.asReal() : 0.0))
        throw Error("expected " + shown(expected) + ", got " + shown(got) + ": " + shown(form));
    return interpreter.t();
}

// (is-error form [text]) -> T. An error when the form gives a value, or an error whose message lacks the text.
Value isError(Interpreter &interpreter, const Value &forms)
{
    checkCount(forms, 1, 2);
    const Value text = interpreter.eval(forms.cdr().car());
    const Value got = interpreter.catchAll(interpreter.makeFunction(nullptr, {}, Value::list({forms.car()})), {});
    const std::string wanted = text.isString() ? text.asString() : std::string();
    const std::string expected = "expected an error" + (wanted.empty() ? wanted : " with " + shown(text));
    if (got.tag() != lisp::Tag::CaughtError)
        throw Error(expected + ", got " + shown(got) + ": " + shown(forms.car()));
    const std::string &message = got.asCaughtError().message;
    if (message.find(wanted) == std::string::npos)
        throw Error(expected + ", got " + shown(Value::string(message)) + ": " + shown(forms.car()));
    return interpreter.t();
}

} // namespace

void addTestFunctions(Interpreter &interpreter)
{
    static constexpr lisp::SpecialFormRow rows[] = {
        {"deftest", deftest, "name form...", "defines a test for `ortakit lisp --test`"},
        {"is", is, "form", "T; an error when the form gives nil"},
        {"is-equal", isEqual, "expected form [fuzz]", "T; an error when the form gives something else"},
        {"is-error", isError, "form [text]", "T; an error when the form fails with no error, or one without the text"},
    };
    for (const lisp::SpecialFormRow &row : rows)
        interpreter.defineSpecialForm(row);
}

} // namespace host::kernel
