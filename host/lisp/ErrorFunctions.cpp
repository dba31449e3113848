// Catching and raising errors.

#include "host/lisp/Arguments.h"
#include "host/lisp/Builtins.h"
#include "host/lisp/Interpreter.h"

namespace host::lisp {

// (vl-catch-all-apply function [list]) -> the result of the call, or an error object when it failed. *error* is not
// called then. Only the user's interruption of a running program is not caught.
static Value catchAllApply(Arguments &args)
{
    const std::vector<Value> items = listToVector(args.list(1));
    return args.interpreter().catchAll(args[0], items);
}

// (vl-catch-all-error-p value) -> T for such an error object.
static Value isCaughtError(Arguments &args)
{
    return args.boolean(args[0].tag() == Tag::CaughtError);
}

// (vl-catch-all-error-message error) -> its message. Something else: bad argument type: errorp.
static Value caughtMessage(Arguments &args)
{
    if (args[0].tag() != Tag::CaughtError)
        args.badType(0, "errorp");
    return Value::string(args[0].asCaughtError().message);
}

// (exit), (quit) never return: the program ends with "quit / exit abort".
static Value quit(Arguments &)
{
    throw Error(ErrorKind::Quit, "quit / exit abort");
}

// (vl-exit-with-error message) never returns: an error with that message.
static Value exitWithError(Arguments &args)
{
    throw Error(args.string(0));
}

// (vl-exit-with-value value) ends the program as (exit) does.
static Value exitWithValue(Arguments &args)
{
    return quit(args);
}

static constexpr NativeRow errorRows[] = {
    {"vl-catch-all-apply", catchAllApply, Arity::between(1, 2), "function [list]",
     "calls a function; an error in it becomes the value"},
    {"vl-catch-all-error-p", isCaughtError, Arity::exactly(1), "value", "T for an error that was caught"},
    {"vl-catch-all-error-message", caughtMessage, Arity::exactly(1), "error",
     "the message of an error that was caught"},
    {"exit", quit, Arity::exactly(0), "", "ends the program"},
    {"quit", quit, Arity::exactly(0), "", "ends the program"},
    {"vl-exit-with-error", exitWithError, Arity::exactly(1), "text", "ends the program with an error"},
    {"vl-exit-with-value", exitWithValue, Arity::exactly(1), "value", "ends the program with a value"},
};

void addErrorFunctions(Interpreter &interpreter)
{
    interpreter.define(errorRows);
}

} // namespace host::lisp
