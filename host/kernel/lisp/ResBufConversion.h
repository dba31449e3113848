#pragma once

#include "host/lisp/Value.h"
#include "platform/kernel/OdResBuf.h"

namespace host::lisp {
class Interpreter;
}

namespace host::kernel {

/// Lisp values as a chain of result buffers, one value after the other; null for none. Integers become 16-bit links
/// where they fit. A list of two or three numbers with a real among them is a point, unless it begins with an integer
/// inside of another list: there it may be a group code with its point and stays a list. Other lists stand between list
/// begin and list end, dotted ones between list begin and dotted pair. Selection sets are kept in `selections`, and
/// their link has their place there, from 1. Throws lisp::Error for functions and files, which have no link.
OdResBufPtr chainFromValues(const std::vector<lisp::Value> &values, std::vector<lisp::Value> &selections);

/// The same for values without selection sets.
OdResBufPtr chainFromValues(const std::vector<lisp::Value> &values);

/// The value that begins at `link`, which is moved behind it; nil at the end of the chain. Group codes below 1072
/// become a dotted pair of code and value. A list that is not closed ends with the chain. Does not recurse.
lisp::Value valueFromChain(const OdResBuf *&link, lisp::Interpreter &interpreter,
                           const std::vector<lisp::Value> &selections);

} // namespace host::kernel
