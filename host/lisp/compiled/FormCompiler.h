#pragma once

#include "host/lisp/compiled/Analysis.h"
#include "host/lisp/compiled/Assembler.h"
#include "host/lisp/compiled/Operations.h"

#include <vector>

namespace host::lisp::compiled {

/// What becomes of the value of a form.
struct Destination
{
    enum class Kind : std::uint8_t
    {
        Stack,
        Nothing,
        Cell, ///< a symbol
        Jump  ///< a test: to a label when the value is true, or when it is nil, else on with what follows
    };

    static Destination stack() { return {Kind::Stack}; }
    static Destination nothing() { return {Kind::Nothing}; }
    static Destination cell(Value &cell) { return {Kind::Cell, &cell}; }
    static Destination jump(Label label, bool when) { return {Kind::Jump, nullptr, label, when}; }

    Kind kind;
    Value *symbolCell = nullptr;
    Label label = {0};
    bool when = false;
};

/// Turns the forms of one function, or of the top level, into one piece of code.
///
/// A built-in is called without looking it up where a guard before has seen that its symbol holds it and nothing was
/// done since that could have changed that. A guard looks at all built-ins that follow until then; when one of them is
/// another, the evaluator does the form that the guard stands before.
class FormCompiler
{
public:
    FormCompiler(Interpreter &interpreter, const Shapes &shapes, std::span<Symbol *const> variables, Code &code);

    /// A function's body, its variables bound before, the first `parameters` of which are parameters; false when the
    /// evaluator has to do it.
    bool compileFunction(const Value &body, std::size_t parameters);
    /// All forms in turn, the value of the last on the stack when the code ends; false likewise.
    bool compileAll(const Value &forms);

private:
    using Kind = Destination::Kind;
    struct Operand
    {
        From from;
        const Value *value; ///< null when it is on the stack
    };
    /// A form that the evaluator does when a guard finds something else than what it expects.
    struct Detour
    {
        Label begin;
        Label end;
        const Value *form;
        Destination to;
        int depth;
        bool isBody;
    };

    bool canCompile(const Value &forms);
    void compileForms(const Value &forms);
    void finish();

    // Any forms.
    void compile(const Value &form, const Destination &to);
    void compileConstant(const Value &value, const Destination &to);
    void compileBody(const Value &forms, const Destination &to);
    void compileBuiltin(const KnownBuiltin &builtin, const Value &form, const Destination &to);
    void compileCall(const Value &form, const Destination &to);
    void deliver(const Destination &to);
    bool isGuarded(const Guard &guard) const;
    Detour beginGuarded(const std::vector<Guard> &guards, const Value &form, const Destination &to);
    void endGuarded(const Detour &detour);
    void compileDetours();

    // Special forms.
    void compileSetq(const Value &arguments, const Destination &to);
    void compileIf(const Value &arguments, const Destination &to);
    void compileCond(const Value &clauses, const Destination &to);
    void compileClause(const Value &clause, const Destination &to, Label end);
    void compileWhile(const Value &form, const Destination &to);
    void compileRepeat(const KnownBuiltin &builtin, const Value &form, const Destination &to);
    void compileForeach(const KnownBuiltin &builtin, const Value &form, const Destination &to);
    void compileRound(const Value &forms, const Destination &to, int distance);
    void beginLoop(const Value &form, const Destination &to);
    void compileEvaluation(const Value &form, const Destination &to);

    // Tests.
    void compileTest(const KnownBuiltin &builtin, const Value &form, Label label, bool when);
    void compileSequence(const Value &forms, Label label, bool when, bool stopsAt);
    void compileTruth(const KnownBuiltin &builtin, const Value &form, const Destination &to);

    // Calls of built-ins.
    void compileArithmetic(const KnownBuiltin &builtin, const Value &form, const Destination &to);
    void compilePart(const KnownBuiltin &builtin, const Value &form, const Destination &to);
    void compileNative(const KnownBuiltin &builtin, const Value &form, const Destination &to);
    void compileCallback(const KnownBuiltin &builtin, const Value &form, const Destination &to);
    void compileWalk(const KnownBuiltin &builtin, const Value &form, const Destination &to);
    const Site &pushCallbackArguments(const KnownBuiltin &builtin, const Value &form);
    bool pushLiteral(const Value &function);
    void pushArguments(const Value &forms);
    bool pushLambda(const Value &form);
    void pushValue(const Value &value);
    Operand compileOperand(const Value &form);
    std::pair<Operand, Operand> compileOperands(const Value &left, const Value &right);
    void addOperandWords(Operand left, Operand right);
    void addResultWords(const Site &site, const Destination &to);
    const Site &newSite(const KnownBuiltin &builtin, const Value &form, std::size_t count);

    Interpreter &m_interpreter;
    std::span<Symbol *const> m_variables;
    Symbol &m_lambda;
    Code &m_code;
    Analysis m_analysis;
    Assembler m_assembler;
    std::vector<Guard> m_guarded; ///< what needs no guard here
    std::vector<Detour> m_detours;
};

} // namespace host::lisp::compiled
