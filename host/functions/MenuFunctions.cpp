// (menucmd) and what else programs ask of menus, of which this host has none to be changed.

#include "host/drawing/text/MacroExpression.h"
#include "host/functions/FunctionGroups.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/ExpressionSurroundings.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/lisp/Interpreter.h"

namespace host::kernel {

namespace {

using lisp::Arguments;
using lisp::Value;

// (menucmd "M=$(...)") -> the text that the expression gives. Other texts concern menus: nil.
Value menucmd(Arguments &args)
{
    const QString text = stringAt(args, 0);
    if (!text.startsWith(QStringLiteral("M="), Qt::CaseInsensitive))
        return {};
    return toLisp(drawing::evaluateMacro(QStringView(text).mid(2), expressionSurroundings(documentOf(args))));
}

// (menugroup name) -> nil: no menu group is loaded.
Value menugroup(Arguments &args)
{
    stringAt(args, 0);
    return {};
}

} // namespace

void addMenuFunctions(lisp::Interpreter &interpreter)
{
    static constexpr lisp::NativeRow rows[] = {
        {"menucmd", menucmd, lisp::Arity::exactly(1), "text", "the value of a macro expression, as M=$(...)"},
        {"menugroup", menugroup, lisp::Arity::exactly(1), "name", "nil: no menu group is loaded"},
    };
    interpreter.define(rows);
}

} // namespace host::kernel
