#pragma once

#include "host/lisp/Value.h"

#include <string>

namespace host::lisp {

enum class PrintStyle : std::uint8_t
{
    Readable, ///< as prin1: strings in quotes, with escapes
    Plain,    ///< as princ: strings as they are
};

/// The value as text, UTF-8. Reals show six significant digits. Does not recurse.
std::string toText(const Value &value, PrintStyle style = PrintStyle::Readable);

} // namespace host::lisp
