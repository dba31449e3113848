// Calls of built-ins, and tests.

#include "host/lisp/Interpreter.h"
#include "host/lisp/compiled/FormCompiler.h"

namespace host::lisp::compiled {

const Site &FormCompiler::newSite(const KnownBuiltin &builtin, const Value &form, std::size_t count)
{
    return m_code.sites.emplace_back(Site{builtin.native, form.asCons().mark(), count});
}

void FormCompiler::pushArguments(const Value &forms)
{
    for (const Value &form : ListItems(forms))
        compile(form, Destination::stack());
}

/// A function made once of a lambda that stands there; false when the evaluator would refuse it.
bool FormCompiler::pushLambda(const Value &form)
{
    try {
        Value function = m_interpreter.makeFunction(nullptr, form.cdr().car(), form.cdr().cdr());
        function.asFunction().compiling = Function::Compiling::AtNextCall;
        pushValue(m_code.kept.emplace_back(std::move(function)));
        return true;
    } catch (const Error &) {
        return false;
    }
}

FormCompiler::Operand FormCompiler::compileOperand(const Value &form)
{
    if (form.isSymbol())
        return {From::Cell, &form.asSymbol().value()};
    if (m_analysis.isSimple(form))
        return {From::Cell, form.isCons() ? &form.cdr().car() : &form};
    compile(form, Destination::stack());
    return {From::Stack, nullptr};
}

/// Two operands, as evaluated one behind the other.
std::pair<FormCompiler::Operand, FormCompiler::Operand> FormCompiler::compileOperands(const Value &left,
                                                                                      const Value &right)
{
    // A symbol may be read when the other operand is there, unless that changes it.
    if (!left.isSymbol() || m_analysis.effectOf(right) == Effect::None) {
        const Operand first = compileOperand(left);
        return {first, compileOperand(right)};
    }
    compile(left, Destination::stack());
    return {{From::Stack, nullptr}, compileOperand(right)};
}

void FormCompiler::addOperandWords(Operand left, Operand right)
{
    for (const Operand &operand : {left, right})
        m_assembler.add(operand.value ? wordOf(*operand.value) : wordOf(std::size_t{0}));
}

void FormCompiler::addResultWords(const Site &site, const Destination &to)
{
    m_assembler.add(to.kind == Kind::Cell ? wordOf(*to.symbolCell) : wordOf(std::size_t{0}));
    m_assembler.add(wordOf(site));
}

static int placesOf(std::initializer_list<From> operands)
{
    return static_cast<int>(std::count(operands.begin(), operands.end(), From::Stack));
}

void FormCompiler::compileArithmetic(const KnownBuiltin &builtin, const Value &form, const Destination &to)
{
    static const Value one = Value::integer(1);
    const bool isIncrement = builtin.shape == Shape::Increment;
    const Value &second = isIncrement ? one : form.cdr().cdr().car();
    const auto [left, right] = compileOperands(form.cdr().car(), second);
    const To result = to.kind == Kind::Cell ? To::Cell : To::Stack;
    const Operation operation =
        builtin.shape == Shape::Cons
            ? consOperation(left.from, right.from, result)
            : arithmeticOperation(static_cast<Arithmetic>(builtin.detail), left.from, right.from, result);
    m_assembler.begin(operation, (result == To::Stack ? 1 : 0) - placesOf({left.from, right.from}));
    addOperandWords(left, right);
    addResultWords(newSite(builtin, form, isIncrement ? 1 : 2), to);
    if (to.kind != Kind::Cell)
        deliver(to);
}

void FormCompiler::compilePart(const KnownBuiltin &builtin, const Value &form, const Destination &to)
{
    const Operand operand = compileOperand(form.cdr().car());
    const To result = to.kind == Kind::Cell ? To::Cell : To::Stack;
    const std::size_t length = builtin.detail & 0xFU;
    m_assembler.begin(partOperation(length, builtin.detail >> 4U, operand.from, result),
                      (result == To::Stack ? 1 : 0) - placesOf({operand.from}));
    addOperandWords(operand, {From::Stack, nullptr});
    addResultWords(newSite(builtin, form, 1), to);
    if (to.kind != Kind::Cell)
        deliver(to);
}

void FormCompiler::compileNative(const KnownBuiltin &builtin, const Value &form, const Destination &to)
{
    pushArguments(form.cdr());
    const Site &site = newSite(builtin, form, listLength(form.cdr()));
    m_assembler.begin(builtin.shape == Shape::List ? listOperation : callNativeOperation,
                      1 - static_cast<int>(site.count));
    m_assembler.add(wordOf(site));
    deliver(to);
}

/// A function that stands there as '(lambda ...), (function (lambda ...)) or (lambda ...); false for all others.
bool FormCompiler::pushLiteral(const Value &function)
{
    const std::optional<KnownBuiltin> maker = function.isCons() ? m_analysis.builtinOf(function) : std::nullopt;
    if (!maker || !isGuarded({&function.car().asSymbol(), maker->native}))
        return false;
    if (maker->shape == Shape::Lambda)
        return Analysis::isLiteralLambda(function, m_lambda) && pushLambda(function);
    const bool isQuoted = maker->shape == Shape::Quote || maker->shape == Shape::Function;
    return isQuoted && Analysis::isLiteralLambda(function.cdr().car(), m_lambda) && pushLambda(function.cdr().car());
}

/// The function, made once if it stands there, and what it is to be called with.
const Site &FormCompiler::pushCallbackArguments(const KnownBuiltin &builtin, const Value &form)
{
    const bool isMade = pushLiteral(form.cdr().car());
    pushArguments(isMade ? form.cdr().cdr() : form.cdr());
    return newSite(builtin, form, listLength(form.cdr()));
}

void FormCompiler::compileCallback(const KnownBuiltin &builtin, const Value &form, const Destination &to)
{
    const Site &site = pushCallbackArguments(builtin, form);
    const bool isApply = builtin.shape == Shape::Apply;
    m_assembler.moveDepth(isApply ? mostApplied : 0);
    m_assembler.begin(isApply ? applyOperation : callNativeOperation,
                      1 - static_cast<int>(site.count) - (isApply ? static_cast<int>(mostApplied) : 0));
    m_assembler.add(wordOf(site));
    m_guarded.clear();
    deliver(to);
}

void FormCompiler::compileWalk(const KnownBuiltin &builtin, const Value &form, const Destination &to)
{
    const WalkOperations &operations = walkOperations(static_cast<Walk>(builtin.detail));
    const Label next = m_assembler.newLabel();
    const Label end = m_assembler.newLabel();
    const Site &site = pushCallbackArguments(builtin, form);
    const int places = static_cast<int>(site.count);
    m_assembler.begin(operations.begin, 0);
    m_assembler.add(wordOf(site));
    m_assembler.add(end);
    m_assembler.place(next);
    // The function and the items of a round, which its result replaces.
    m_assembler.begin(operations.next, places);
    m_assembler.add(wordOf(site));
    m_assembler.add(end);
    m_assembler.begin(operations.take, -places);
    m_assembler.add(wordOf(site));
    m_assembler.add(end);
    m_assembler.add(next);
    m_assembler.place(end);
    m_assembler.moveDepth(1 - places);
    m_guarded.clear();
    deliver(to);
}

/// A jump by a test.
void FormCompiler::compileTest(const KnownBuiltin &builtin, const Value &form, Label label, bool when)
{
    const Value &arguments = form.cdr();
    switch (builtin.shape) {
    case Shape::And:
        return compileSequence(arguments, label, when, false);
    case Shape::Or:
        return compileSequence(arguments, label, when, true);
    case Shape::Not:
        return compile(arguments.car(), Destination::jump(label, !when));
    case Shape::Comparison: {
        const auto [left, right] = compileOperands(arguments.car(), arguments.cdr().car());
        m_assembler.begin(comparisonOperation(static_cast<Comparison>(builtin.detail), left.from, right.from, when),
                          -placesOf({left.from, right.from}));
        addOperandWords(left, right);
        break;
    }
    default: {
        const Operand operand = compileOperand(arguments.car());
        m_assembler.begin(predicateOperation(static_cast<Predicate>(builtin.detail), operand.from, when),
                          -placesOf({operand.from}));
        addOperandWords(operand, {From::Stack, nullptr});
    }
    }
    m_assembler.add(label);
    m_assembler.add(wordOf(newSite(builtin, form, listLength(arguments))));
}

/// `and` and `or`, which stop at a form whose truth is `stopsAt`.
void FormCompiler::compileSequence(const Value &forms, Label label, bool when, bool stopsAt)
{
    const Label behind = m_assembler.newLabel();
    const Destination stop = when == stopsAt ? Destination::jump(label, when) : Destination::jump(behind, stopsAt);
    const Value *rest = &forms;
    for (; rest->cdr().isCons(); rest = &rest->cdr())
        compile(rest->car(), stop);
    if (rest->isCons()) {
        compile(rest->car(), Destination::jump(label, when));
    } else if (when != stopsAt) {
        m_assembler.begin(jumpOperation, 0);
        m_assembler.add(label);
    }
    m_assembler.place(behind);
}

/// T or nil, by a test.
void FormCompiler::compileTruth(const KnownBuiltin &builtin, const Value &form, const Destination &to)
{
    if (to.kind == Kind::Jump)
        return compileTest(builtin, form, to.label, to.when);
    const Label isFalse = m_assembler.newLabel();
    const Label end = m_assembler.newLabel();
    compileTest(builtin, form, isFalse, false);
    const int depth = m_assembler.depth();
    compileConstant(m_interpreter.t(), to);
    m_assembler.begin(jumpOperation, 0);
    m_assembler.add(end);
    m_assembler.place(isFalse);
    m_assembler.setDepth(depth);
    compileConstant(detail::nil, to);
    m_assembler.place(end);
}

} // namespace host::lisp::compiled
