#pragma once

#include "host/lisp/checking/Finding.h"

#include <string>
#include <string_view>
#include <vector>

namespace host::lisp::checking {

/// A form as it was written, with its place. 'x is the list (quote x), at the mark.
struct SyntaxNode
{
    enum class Kind : std::uint8_t
    {
        List, ///< also the empty one
        Symbol,
        Number,
        String
    };

    Kind kind = Kind::List;
    Position at;
    std::string text;              ///< a symbol or number as written; a string's content
    std::string name;              ///< of a symbol: in upper case
    std::vector<SyntaxNode> items; ///< of a list; behind a dot the last is what stands behind it
    bool isDotted = false;

    bool isList() const { return kind == Kind::List; }
    bool isSymbol() const { return kind == Kind::Symbol; }
    bool isSymbol(std::string_view wanted) const { return isSymbol() && name == wanted; }
    /// nil or ().
    bool isNil() const { return isList() ? items.empty() : isSymbol("NIL"); }
    /// A list whose first item is that symbol.
    bool calls(std::string_view wanted) const { return isList() && !items.empty() && items[0].isSymbol(wanted); }
};

/// What a text consists of.
struct SyntaxTree
{
    std::vector<SyntaxNode> forms;
    std::vector<Finding> findings; ///< what the engine's reader would refuse, in the order of places
    /// The text lost its thread in a string that does not end: what the forms look like is chance.
    bool isCutShort = false;
};

/// Lists within lists that are looked at; a text with more is told and left at that.
constexpr int deepestNesting = 1000;

/// Reads a UTF-8 text to its end whatever is wrong with it, so that one fault does not hide the next.
SyntaxTree syntaxTreeOf(std::string_view text);

} // namespace host::lisp::checking
