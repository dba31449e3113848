#pragma once

#include "host/lisp/Function.h"
#include "host/lisp/compiled/Shapes.h"

#include <optional>
#include <span>
#include <unordered_map>
#include <vector>

namespace host::lisp::compiled {

/// What evaluating a form may do to what the code around it relies on.
enum class Effect : std::uint8_t
{
    None,    ///< to no variable
    Assigns, ///< to variables that no built-in is called by
    Calls    ///< anything: it calls a function that is not known
};

/// A symbol that has to hold a built-in where code runs that was made for it.
struct Guard
{
    Symbol *symbol;
    const NativeFunction *native;
    bool operator==(const Guard &) const = default;
};

/// Looks at forms before they become code.
class Analysis
{
public:
    /// `variables` are those of the function that the forms are in: what they are called by is no built-in.
    Analysis(const Shapes &shapes, std::span<Symbol *const> variables) : m_shapes(shapes), m_variables(variables) {}

    /// The built-in that a form calls, when it is written as the compiler expects it.
    std::optional<KnownBuiltin> builtinOf(const Value &form) const;
    /// Of a form; and what walks through it finds out whether all of it can become code.
    Effect effectOf(const Value &form);
    Effect effectOfAll(const Value &forms);
    /// False when a form was met that only the evaluator can do.
    bool isSuitable() const noexcept { return m_isSuitable; }
    /// Adds the guards of what a form evaluates before it may do anything; false when it may do so then.
    bool collectGuards(const Value &form, std::vector<Guard> &guards);

    /// Whether a symbol holds a built-in that the compiler knows.
    bool holdsBuiltin(const Value &symbol) const;
    /// Atoms, and what is quoted: no instruction is needed to have their value.
    bool isSimple(const Value &form) const;
    /// A form whose value is (lambda ...) as it stands there.
    static bool isLiteralLambda(const Value &form, const Symbol &lambda);

private:
    static constexpr int deepest = 300;

    bool isVariable(const Symbol &symbol) const;
    bool isWellFormed(const KnownBuiltin &builtin, const Value &arguments) const;
    Effect ownEffect(const KnownBuiltin &builtin, const Value &arguments) const;
    Effect walk(const Value &form);
    template <typename Visit>
    static bool visitParts(const KnownBuiltin &builtin, const Value &arguments, Visit visit);

    const Shapes &m_shapes;
    std::span<Symbol *const> m_variables;
    std::unordered_map<const Cons *, Effect> m_effects;
    int m_depth = 0;
    bool m_isSuitable = true;
};

} // namespace host::lisp::compiled
