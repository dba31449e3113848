#include "host/lisp/compiled/Compiler.h"

#include "host/lisp/Interpreter.h"
#include "host/lisp/compiled/FormCompiler.h"

namespace host::lisp::compiled {

Compiler::Compiler(Interpreter &interpreter) : m_interpreter(interpreter), m_shapes(interpreter) {}

/// What a piece of code takes of the heap, about.
static std::size_t sizeOf(const Code &code)
{
    return sizeof(Code) + code.words.size() * sizeof(Word) + code.sites.size() * sizeof(Site) +
           code.kept.size() * sizeof(Value);
}

static std::unique_ptr<const Code> finished(std::unique_ptr<Code> code)
{
    code->share.grow(sizeOf(*code));
    return code;
}

std::unique_ptr<const Code> Compiler::compile(const Function &function)
{
    try {
        auto code = std::make_unique<Code>();
        FormCompiler compiler(m_interpreter, m_shapes, function.variables, *code);
        if (!compiler.compileFunction(function.body, function.parameterCount))
            return nullptr;
        code->stackNeed += function.variables.size();
        return finished(std::move(code));
    } catch (const Error &) {
        // The heap is full. The evaluator needs none for it.
        return nullptr;
    }
}

std::unique_ptr<const Code> Compiler::compile(const Value &form)
{
    try {
        auto code = std::make_unique<Code>();
        FormCompiler compiler(m_interpreter, m_shapes, {}, *code);
        const Value &forms = code->kept.emplace_back(Value::cons(form, Value()));
        return compiler.compileAll(forms) ? finished(std::move(code)) : nullptr;
    } catch (const Error &) {
        return nullptr;
    }
}

/// Whether a form loops, `depth` forms within it looked at.
static bool loops(const Shapes &shapes, const Value &form, int depth)
{
    const Value &head = form.car();
    const KnownBuiltin *known = head.isSymbol() ? shapes.find(head.asSymbol().value()) : nullptr;
    if (!known || depth == 0)
        return false;
    const Shape shape = known->shape;
    if (shape == Shape::While || shape == Shape::Repeat || shape == Shape::Foreach || shape == Shape::Walk)
        return true;
    if (shape == Shape::Quote || shape == Shape::Lambda || shape == Shape::Function)
        return false;
    const ListItems parts(form.cdr());
    return std::any_of(parts.begin(), parts.end(), [&](const Value &part) {
        const bool isClause = shape == Shape::Cond;
        return part.isCons() && (loops(shapes, part, depth - 1) || (isClause && loops(shapes, part.car(), depth - 1)));
    });
}

bool Compiler::hasLoop(const Value &form) const
{
    constexpr int deepest = 8;
    return form.isCons() && loops(m_shapes, form, deepest);
}

} // namespace host::lisp::compiled
