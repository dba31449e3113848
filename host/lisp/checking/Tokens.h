#pragma once

#include "host/lisp/checking/Finding.h"

#include <string>
#include <string_view>
#include <vector>

namespace host::lisp::checking {

/// A piece of a program's text, with the place that the engine's own reader does not keep.
struct Token
{
    enum class Kind : std::uint8_t
    {
        Open,
        Close,
        Quote,  ///< the mark '
        Dot,    ///< between blanks, of a dotted pair
        Atom,   ///< a symbol or number
        String, ///< its text without the marks, escapes of marks and backslashes undone
    };

    Kind kind;
    Position at;
    int indent = 0;              ///< columns before it, tabs reaching to the next multiple of 8
    bool beginsLine = false;     ///< nothing but blanks before it
    bool isOverLines = false;    ///< of a string: it has a line end in it
    bool isFollowed = false;     ///< of a string: an atom touches its end, as where a mark was forgotten
    bool isUnterminated = false; ///< of a string: the text ended in it
    std::string text;
};

/// The tokens of a text, which are what the engine's reader takes it for.
struct TokenList
{
    std::vector<Token> tokens;
    Position end;               ///< behind the last character
    Position openComment{0, 0}; ///< where a block comment begins that does not end; line 0: there is none
};

/// Takes a UTF-8 text apart; never fails.
TokenList tokensOf(std::string_view text);

} // namespace host::lisp::checking
