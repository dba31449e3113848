#pragma once

#include <string_view>

namespace host::lisp {

/// Whether the whole text fits one of the patterns, which commas separate. Upper and lower case differ.
///
///     #  one digit              @  one letter           .  one character that is neither letter nor digit
///     ?  any character          *  any characters       ~  first in a pattern: everything but the rest of it
///     [abc] [a-z]  one of these [~abc]  none of these   `  takes the next character as it is
///
/// Takes at most (length of text) x (length of pattern) steps. A bracket that is not closed stands for itself.
bool wildcardMatch(std::string_view text, std::string_view patterns);

} // namespace host::lisp
