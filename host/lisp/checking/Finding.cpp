#include "host/lisp/checking/Finding.h"

#include <algorithm>

namespace host::lisp::checking {

static constexpr FindingKindRow kindRows[] = {
    {FindingKind::Unbalanced, "unbalanced", Severity::Error, "parentheses that are missing or too many"},
    {FindingKind::Unterminated, "unterminated", Severity::Error, "strings and block comments without an end"},
    {FindingKind::Malformed, "malformed", Severity::Error,
     "forms that cannot be evaluated: misplaced dots, parameter lists, what setq or cond do not take"},
    {FindingKind::ArgumentCount, "argument-count", Severity::Error, "calls with too few or too many arguments"},
    {FindingKind::UnknownFunction, "unknown-function", Severity::Warning,
     "calls of functions that are defined neither here nor in the files that are checked"},
    {FindingKind::UndeclaredLocal, "undeclared-local", Severity::Warning,
     "variables that a function sets without declaring them, unless they are set outside of functions or named *so*"},
    {FindingKind::UnusedLocal, "unused-local", Severity::Warning, "locals that nothing uses"},
    {FindingKind::UnusedParameter, "unused-parameter", Severity::Warning,
     "parameters that nothing uses, of functions that are called by name"},
    {FindingKind::RepeatedName, "repeated-name", Severity::Warning, "a parameter or local that is declared twice"},
    {FindingKind::ShadowedBuiltin, "shadowed-builtin", Severity::Warning,
     "variables and functions named like a built-in function"},
    {FindingKind::RepeatedFunction, "repeated-function", Severity::Warning,
     "functions that are defined twice in one file"},
};

std::span<const FindingKindRow> findingKinds()
{
    return kindRows;
}

const FindingKindRow &rowOf(FindingKind kind)
{
    return kindRows[static_cast<std::size_t>(kind)];
}

const FindingKindRow *findKind(std::string_view name)
{
    const auto row = std::ranges::find_if(kindRows, [name](const FindingKindRow &kind) { return kind.name == name; });
    return row == std::end(kindRows) ? nullptr : row;
}

std::string Finding::text() const
{
    const FindingKindRow &row = rowOf(kind);
    return file + ':' + std::to_string(at.line) + ':' + std::to_string(at.column) +
           (row.severity == Severity::Error ? ": error: " : ": warning: ") + message + " [" + row.name + ']';
}

} // namespace host::lisp::checking
