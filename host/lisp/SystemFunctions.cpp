// The engine and its surroundings.

#include "host/lisp/Arguments.h"
#include "host/lisp/Builtins.h"
#include "host/lisp/Interpreter.h"
#include "host/lisp/Text.h"

#include <cstdlib>

namespace host::lisp {

// (getenv name) -> what setenv or the environment of the process holds; nil for nothing.
static Value getEnvironment(Arguments &args)
{
    const auto &own = args.interpreter().environment();
    if (const auto found = own.find(args.string(0)); found != own.end())
        return Value::string(found->second);
    const char *value = std::getenv(args.string(0).c_str());
    return value ? Value::string(value) : Value();
}

// (setenv name value) -> value, kept by this engine. The process keeps its environment.
static Value setEnvironment(Arguments &args)
{
    args.interpreter().setEnvironment(args.string(0), args.string(1));
    return args[1];
}

// (ver) -> the name of the language.
static Value version(Arguments &)
{
    return Value::string("CAD Lisp");
}

// (vl-bb-set sym value) -> value, kept apart from the variable. (vl-bb-ref sym) -> it; nil for nothing.
static Value blackboardSet(Arguments &args)
{
    args.interpreter().blackboard()[args.symbol(0).name()] = args[1];
    return args[1];
}

static Value blackboardRef(Arguments &args)
{
    const auto &blackboard = args.interpreter().blackboard();
    const auto found = blackboard.find(args.symbol(0).name());
    return found == blackboard.end() ? Value() : found->second;
}

// (snvalid name [flag]) -> T when a table entry may have the name: not empty, none of < > / \ " : ; ? * , = ` and,
// unless flag is 1, no |.
static Value isValidSymbolName(Arguments &args)
{
    const std::string &name = args.string(0);
    const bool allowsBar = args.integerOr(1, 0) == 1;
    const bool hasRefused = name.find_first_of("<>/\\\":;?*,=`") != std::string::npos;
    const bool hasBar = name.find('|') != std::string::npos;
    const bool isBlankAtEnds = !name.empty() && (isBlank(name.front()) || isBlank(name.back()));
    return args.boolean(!name.empty() && !hasRefused && !isBlankAtEnds && (allowsBar || !hasBar));
}

// (gc), (mem), (vl-load-com), ... -> nil. They concern what this engine does by itself or does not have.
static Value nothing(Arguments &)
{
    return {};
}

// (alloc count), (expand count) -> count. Memory is taken as it is needed.
static Value sameNumber(Arguments &args)
{
    return Value::integer(args.integer(0));
}

static constexpr NativeRow systemRows[] = {
    {"getenv", getEnvironment, Arity::exactly(1), "name", "a variable of the environment or of setenv"},
    {"setenv", setEnvironment, Arity::exactly(2), "name value", "sets such a variable for programs of this host"},
    {"ver", version, Arity::exactly(0), "", "the name and version of the Lisp engine"},
    {"vl-bb-set", blackboardSet, Arity::exactly(2), "symbol value", "puts a value where all drawings see it"},
    {"vl-bb-ref", blackboardRef, Arity::exactly(1), "symbol", "takes it from there"},
    {"snvalid", isValidSymbolName, Arity::between(1, 2), "name [flag]",
     "T for what may be the name of a table's entry"},
    {"gc", nothing, Arity::exactly(0), "", "nothing: memory is given back as it becomes free"},
    {"mem", nothing, Arity::exactly(0), "", "nothing"},
    {"vmon", nothing, Arity::exactly(0), "", "nothing"},
    {"vl-load-com", nothing, Arity::exactly(0), "", "nothing: what it would load is there"},
    {"vl-load-reactors", nothing, Arity::exactly(0), "", "nothing"},
    {"pragma", nothing, Arity::any(), "list...", "nothing"},
    {"*push-error-using-command*", nothing, Arity::exactly(0), "", "lets *error* call command"},
    {"*push-error-using-stack*", nothing, Arity::exactly(0), "", "lets *error* see the locals of the program"},
    {"*pop-error-mode*", nothing, Arity::exactly(0), "", "takes back the last of these two"},
    {"alloc", sameNumber, Arity::exactly(1), "count", "the count: memory is taken as it is needed"},
    {"expand", sameNumber, Arity::exactly(1), "count", "the count"},
};

void addSystemFunctions(Interpreter &interpreter)
{
    interpreter.define(systemRows);
}

} // namespace host::lisp
