// Forms in general: where their values go, guards, calls of functions.

#include "host/lisp/compiled/FormCompiler.h"

namespace host::lisp::compiled {

FormCompiler::FormCompiler(Interpreter &interpreter, const Shapes &shapes, std::span<Symbol *const> variables,
                           Code &code)
    : m_interpreter(interpreter), m_variables(variables), m_lambda(interpreter.intern("lambda")), m_code(code),
      m_analysis(shapes, variables), m_assembler(code)
{
}

bool FormCompiler::canCompile(const Value &forms)
{
    m_analysis.effectOfAll(forms);
    return m_analysis.isSuitable();
}

bool FormCompiler::compileFunction(const Value &body, std::size_t parameters)
{
    if (!canCompile(body))
        return false;
    // A single local has no argument on the stack.
    const bool hasOne = m_variables.size() == 1 && parameters == 1;
    if (hasOne)
        m_code.onlyVariable = &m_variables[0]->value();
    compileForms(body);
    m_assembler.begin(hasOne ? returnOneOperation : returnOperation, 0);
    if (hasOne)
        m_assembler.add(wordOf(m_variables[0]->value()));
    finish();
    return true;
}

bool FormCompiler::compileAll(const Value &forms)
{
    if (!canCompile(forms))
        return false;
    compileForms(forms);
    m_assembler.begin(endOperation, 0);
    finish();
    return true;
}

void FormCompiler::finish()
{
    compileDetours();
    m_assembler.finish();
}

void FormCompiler::compileForms(const Value &forms)
{
    std::vector<Guard> guards;
    for (const Value &form : ListItems(forms)) {
        if (!m_analysis.collectGuards(form, guards))
            break;
    }
    if (guards.empty()) {
        compileBody(forms, Destination::stack());
    } else {
        Detour detour = beginGuarded(guards, forms, Destination::stack());
        detour.isBody = true;
        compileBody(forms, Destination::stack());
        endGuarded(detour);
    }
}

void FormCompiler::compile(const Value &form, const Destination &to)
{
    if (form.isSymbol())
        return compileConstant(form.asSymbol().value(), to);
    if (!form.isCons())
        return compileConstant(form, to);
    const std::optional<KnownBuiltin> builtin = m_analysis.builtinOf(form);
    if (!builtin)
        return compileCall(form, to);
    if (isGuarded({&form.car().asSymbol(), builtin->native}))
        return compileBuiltin(*builtin, form, to);
    std::vector<Guard> guards;
    m_analysis.collectGuards(form, guards);
    const Detour detour = beginGuarded(guards, form, to);
    compileBuiltin(*builtin, form, to);
    endGuarded(detour);
}

/// A constant, or the value that a symbol has when the code runs.
void FormCompiler::compileConstant(const Value &value, const Destination &to)
{
    switch (to.kind) {
    case Kind::Stack:
        pushValue(value);
        break;
    case Kind::Nothing:
        break;
    case Kind::Cell:
        m_assembler.begin(copyOperation, 0);
        m_assembler.add(wordOf(value));
        m_assembler.add(wordOf(*to.symbolCell));
        break;
    case Kind::Jump:
        m_assembler.begin(predicateOperation(Predicate::IsTrue, From::Cell, to.when), 0);
        m_assembler.add(wordOf(value));
        m_assembler.add(wordOf(std::size_t{0}));
        m_assembler.add(to.label);
        m_assembler.add(wordOf(std::size_t{0}));
    }
}

void FormCompiler::pushValue(const Value &value)
{
    m_assembler.begin(pushOperation, 1);
    m_assembler.add(wordOf(value));
}

/// Takes a value from the stack to where it is wanted.
void FormCompiler::deliver(const Destination &to)
{
    switch (to.kind) {
    case Kind::Stack:
        break;
    case Kind::Nothing:
        m_assembler.begin(dropOperation, -1);
        break;
    case Kind::Cell:
        m_assembler.begin(storeOperation, -1);
        m_assembler.add(wordOf(*to.symbolCell));
        break;
    case Kind::Jump:
        m_assembler.begin(predicateOperation(Predicate::IsTrue, From::Stack, to.when), -1);
        m_assembler.add(wordOf(std::size_t{0}));
        m_assembler.add(wordOf(std::size_t{0}));
        m_assembler.add(to.label);
        m_assembler.add(wordOf(std::size_t{0}));
    }
}

void FormCompiler::compileBody(const Value &forms, const Destination &to)
{
    const Value *rest = &forms;
    if (!rest->isCons())
        return compileConstant(detail::nil, to);
    for (; rest->cdr().isCons(); rest = &rest->cdr())
        compile(rest->car(), Destination::nothing());
    compile(rest->car(), to);
}

void FormCompiler::compileBuiltin(const KnownBuiltin &builtin, const Value &form, const Destination &to)
{
    switch (builtin.shape) {
    case Shape::Quote:
        return compileConstant(form.cdr().car(), to);
    case Shape::Setq:
        return compileSetq(form.cdr(), to);
    case Shape::If:
        return compileIf(form.cdr(), to);
    case Shape::Cond:
        return compileCond(form.cdr(), to);
    case Shape::While:
        return compileWhile(form, to);
    case Shape::Repeat:
        return compileRepeat(builtin, form, to);
    case Shape::Foreach:
        return compileForeach(builtin, form, to);
    case Shape::Progn:
        return compileBody(form.cdr(), to);
    case Shape::Lambda:
    case Shape::Function:
        return compileEvaluation(form, to);
    case Shape::And:
    case Shape::Or:
    case Shape::Not:
    case Shape::Comparison:
    case Shape::Predicate:
        return compileTruth(builtin, form, to);
    case Shape::Arithmetic:
    case Shape::Increment:
    case Shape::Cons:
        return compileArithmetic(builtin, form, to);
    case Shape::Part:
        return compilePart(builtin, form, to);
    case Shape::Callback:
    case Shape::Apply:
        return compileCallback(builtin, form, to);
    case Shape::Walk:
        return compileWalk(builtin, form, to);
    case Shape::List:
    case Shape::Plain:
        return compileNative(builtin, form, to);
    }
}

bool FormCompiler::isGuarded(const Guard &guard) const
{
    return std::find(m_guarded.begin(), m_guarded.end(), guard) != m_guarded.end();
}

FormCompiler::Detour FormCompiler::beginGuarded(const std::vector<Guard> &guards, const Value &form,
                                                const Destination &to)
{
    const Detour detour{m_assembler.newLabel(), m_assembler.newLabel(), &form, to, m_assembler.depth(), false};
    m_assembler.begin(guardOperation(guards.size()), 0);
    m_assembler.add(detour.begin);
    m_assembler.add(wordOf(guards.size()));
    for (const Guard &guard : guards) {
        m_assembler.add(wordOf(std::as_const(*guard.symbol).value()));
        m_assembler.add(wordOf(*guard.native));
    }
    m_guarded = guards;
    return detour;
}

void FormCompiler::endGuarded(const Detour &detour)
{
    m_assembler.place(detour.end);
    m_detours.push_back(detour);
    // Who comes from the detour has done anything.
    m_guarded.clear();
}

void FormCompiler::compileDetours()
{
    for (const Detour &detour : m_detours) {
        m_assembler.place(detour.begin);
        m_assembler.setDepth(detour.depth);
        m_assembler.begin(detour.isBody ? evaluateBodyOperation : evaluateOperation, 1);
        m_assembler.add(wordOf(*detour.form));
        deliver(detour.to);
        m_assembler.begin(jumpOperation, 0);
        m_assembler.add(detour.end);
    }
}

/// A function that is looked up where the code runs.
void FormCompiler::compileCall(const Value &form, const Destination &to)
{
    const Value &head = form.car();
    if (!head.isSymbol() && !(Analysis::isLiteralLambda(head, m_lambda) && pushLambda(head)))
        return compileEvaluation(form, to);
    const std::size_t location = form.asCons().mark();
    const Label end = m_assembler.newLabel();
    if (head.isSymbol()) {
        m_assembler.begin(headOperation, 1);
        m_assembler.add(wordOf(head.asSymbol()));
        m_assembler.add(wordOf(form));
        m_assembler.add(end);
        m_assembler.add(wordOf(location));
    }
    pushArguments(form.cdr());
    const std::size_t count = listLength(form.cdr());
    m_assembler.begin(count == 1 ? callWithOneOperation : callOperation, -static_cast<int>(count));
    m_assembler.add(wordOf(count));
    m_assembler.add(wordOf(location));
    m_assembler.place(end);
    m_guarded.clear();
    deliver(to);
}

/// Left to the evaluator.
void FormCompiler::compileEvaluation(const Value &form, const Destination &to)
{
    m_assembler.begin(evaluateOperation, 1);
    m_assembler.add(wordOf(form));
    m_guarded.clear();
    deliver(to);
}

} // namespace host::lisp::compiled
