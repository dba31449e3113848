#pragma once

#include "host/lisp/compiled/Code.h"
#include "host/lisp/compiled/Shapes.h"

#include <memory>

namespace host::lisp {
struct Function;
class Interpreter;
} // namespace host::lisp

namespace host::lisp::compiled {

/// Makes code of forms. What it knows of a function is what the symbols hold when it is asked.
class Compiler
{
public:
    /// Takes the built-ins that the interpreter has then for those that it knows.
    explicit Compiler(Interpreter &interpreter);

    /// The function's body; null when the evaluator has to do it: forms that no source was read for, whose place in
    /// messages is that of whatever was evaluated before, and nesting beyond all measure.
    std::unique_ptr<const Code> compile(const Function &function);
    /// The same of a form outside of functions.
    std::unique_ptr<const Code> compile(const Value &form);
    /// Whether a form of the top level has a loop in it: others are not worth it.
    bool hasLoop(const Value &form) const;

private:
    Interpreter &m_interpreter;
    Shapes m_shapes;
};

} // namespace host::lisp::compiled
