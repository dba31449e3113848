// System variables.

#include "host/functions/FunctionGroups.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/lisp/Interpreter.h"
#include "host/lisp/Printer.h"

namespace host::kernel {

namespace {

using lisp::Arguments;
using lisp::Value;

VariableValue variableValue(Arguments &args, std::size_t index)
{
    const Value &value = args[index];
    if (value.isInteger())
        return value.asInteger();
    if (value.isReal())
        return value.asReal();
    if (value.isString())
        return stringAt(args, index);
    const std::optional<drawing::Vec3> point = pointFrom(value);
    if (!point)
        args.badType(index, "numberp or stringp");
    if (lisp::listLength(value) == 2)
        return point->xy();
    return *point;
}

/// A variable's name, as text or as a symbol.
QString nameAt(Arguments &args)
{
    return args[0].isSymbol() ? fromUtf8(args.symbol(0).name()) : stringAt(args, 0);
}

// (getvar name) -> the system variable's value, nil for an unknown one.
Value getvar(Arguments &args)
{
    const std::optional<VariableValue> value = documentOf(args).variables().get(nameAt(args));
    return value ? toLisp(*value) : Value();
}

// (setvar name value) -> the value. Unknown and read-only variables and values out of range are errors.
Value setvar(Arguments &args)
{
    const char *reason = "rejected";
    switch (documentOf(args).variables().set(nameAt(args), variableValue(args, 1))) {
    case SetOutcome::Done:
        return args[1];
    case SetOutcome::Unknown:
        reason = "unknown";
        break;
    case SetOutcome::ReadOnly:
        reason = "read-only";
        break;
    case SetOutcome::WrongType:
        reason = "of another type";
        break;
    case SetOutcome::OutOfRange:
        reason = "out of range";
        break;
    }
    args.fail("variable setting rejected: " + lisp::toText(args[0]) + " " + lisp::toText(args[1]) + " (" + reason +
              ")");
}

} // namespace

void addVariableFunctions(lisp::Interpreter &interpreter)
{
    static constexpr lisp::NativeRow rows[] = {
        {"getvar", getvar, lisp::Arity::exactly(1), "name", "the value of a system variable; nil for an unknown name"},
        {"setvar", setvar, lisp::Arity::exactly(2), "name value", "sets a system variable"},
    };
    interpreter.define(rows);
}

} // namespace host::kernel
