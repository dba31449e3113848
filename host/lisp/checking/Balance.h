#pragma once

#include "host/lisp/checking/Tokens.h"

#include <vector>

namespace host::lisp::checking {

/// Tells which parentheses of a text are too many and which are missing, and makes up for it: afterwards every Open has
/// its Close. Where one is missing or too many cannot be known; it is guessed from how the lines are indented.
///
/// A form that begins in the first column while one that began there too is still open ends that one, where the text
/// as a whole lacks parentheses. Within such a form the first list is blamed that is open although a line begins
/// further left than it. One too many is blamed on the form behind which a line goes on indented.
std::vector<Finding> balance(TokenList &list);

} // namespace host::lisp::checking
