#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace host::lisp::checking {

/// What can be wrong with a program that was only read. The order is that of findingKinds().
enum class FindingKind : std::uint8_t
{
    Unbalanced,       ///< parentheses
    Unterminated,     ///< strings and comments
    Malformed,        ///< forms that no evaluation takes, whatever they are given
    ArgumentCount,    ///< of calls whose function is known
    UnknownFunction,  ///< neither here nor in the programs that are checked
    UndeclaredLocal,  ///< set in a function, and nowhere said to be a local or a global
    UnusedLocal,      ///< declared for nothing
    UnusedParameter,  ///< likewise
    RepeatedName,     ///< twice among the parameters and locals of a function
    ShadowedBuiltin,  ///< a name of a built-in function for something else
    RepeatedFunction, ///< two functions of a name in a file, of which the second counts
};

enum class Severity : std::uint8_t
{
    Error,  ///< an evaluation that comes there fails
    Warning ///< it may do what was meant
};

/// One row of the table that options, documents and messages are made from.
struct FindingKindRow
{
    FindingKind kind;
    const char *name; ///< "unused-local": what people write and read
    Severity severity;
    const char *help; ///< one line
};

/// All kinds, in the order in which they are told.
std::span<const FindingKindRow> findingKinds();
/// The row of a kind.
const FindingKindRow &rowOf(FindingKind kind);
/// The row of a name as people write it; null when there is none.
const FindingKindRow *findKind(std::string_view name);

/// A place in a text. Lines and columns count from 1, columns in characters, a tab being one.
struct Position
{
    int line = 1;
    int column = 1;

    auto operator<=>(const Position &) const = default;
};

/// Something that is wrong, or looks so.
struct Finding
{
    FindingKind kind;
    Position at;
    std::string message; ///< one line without a full stop
    std::string file;    ///< the source's name, as it was given

    /// "plan.lsp:12:3: warning: the local A is never used [unused-local]"
    std::string text() const;
};

} // namespace host::lisp::checking
