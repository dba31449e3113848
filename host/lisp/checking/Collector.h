#pragma once

#include "host/lisp/checking/Program.h"

namespace host::lisp::checking {

/// Walks through the forms of a file as an evaluation would, and notes what it sees in a Program.
class Collector
{
public:
    Collector(Program &program, std::size_t source, const NativeArities &natives);

    /// What stands outside of functions.
    void walkFile(const std::vector<SyntaxNode> &forms);

    // For the rows of special forms.

    /// A form that is evaluated.
    void walk(const SyntaxNode &form);
    /// Those from item `first` on.
    void walkItems(const SyntaxNode &list, std::size_t first);
    /// Data: names in it count as read, lambdas in it as code.
    void walkQuoted(const SyntaxNode &data);
    /// (setq name form...)
    void walkAssignments(const SyntaxNode &form);
    /// (defun name (...) form...)
    void walkDefinition(const SyntaxNode &form);
    /// (lambda (...) form...), called with that many arguments by `via`; -1: nobody knows.
    void walkLambda(const SyntaxNode &form, int count, const std::string &via);
    /// (foreach name list form...)
    void walkLoop(const SyntaxNode &form);
    /// (cond (test form...)...)
    void walkClauses(const SyntaxNode &form);
    /// A name counts as read.
    void read(const std::string &name);

private:
    /// Names that are bound while it lives.
    class Binding;

    void walkList(const SyntaxNode &form);
    void walkCall(const SyntaxNode &form);
    void walkArguments(const SyntaxNode &form);
    void walkFunctionArgument(const SyntaxNode &argument, int count, const std::string &via);
    void walkActionText(const SyntaxNode &text);
    void readWords(std::string_view text);
    void walkValue(const SyntaxNode &name, const SyntaxNode &value);
    void assign(const SyntaxNode &name, const SyntaxNode *value);
    void addCall(const SyntaxNode &name, int count, const std::string &via);
    std::vector<VariablePlace> variablesOf(const SyntaxNode &parameters, std::size_t &parameterCount);
    void checkVariables(const std::vector<VariablePlace> &variables, std::size_t parameterCount);
    void checkName(const std::string &what, const VariablePlace &variable);
    void tell(FindingKind kind, Position at, std::string message);
    FunctionRecord &record() { return *m_records.back(); }

    Program &m_program;
    std::size_t m_source;
    const NativeArities &m_natives;
    std::vector<FunctionRecord *> m_records;   ///< the file's own, then functions that are walked, innermost last
    std::map<std::string, int> m_bound;        ///< how often a name is bound around here
    std::set<std::string> *m_global = nullptr; ///< names in the value of the global that is being set
    const SyntaxNode *m_topForm = nullptr;     ///< of the file, around here
    int m_textDepth = 0;                       ///< calls around here whose strings become code
    const Position *m_place = nullptr;         ///< of a string that is walked as code
};

/// Whether a call is a special form's, whose arguments this walked then.
bool walkSpecialForm(Collector &collector, const SyntaxNode &form);
/// How many arguments a special form takes; null for what is none.
const Arity *specialFormArity(std::string_view name);

} // namespace host::lisp::checking
