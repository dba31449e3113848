#pragma once

#include "host/lisp/Value.h"

#include <string>

namespace host::lisp {

enum class PrintStyle : std::uint8_t
{
    Readable, ///< as prin1: strings in quotes, with escapes
    Plain,    ///< as princ: strings as they are
};

/// The longest text that printing makes by itself.
inline constexpr std::size_t longestPrintedText = 64U * 1024U * 1024U;

/// The value as text, UTF-8. Reals show six significant digits. Does not recurse.
///
/// A text that grows beyond `longest` bytes is broken off there and ends in "...": a list that holds another one many
/// times, which holds another one many times, can be too long to print for any machine.
std::string toText(const Value &value, PrintStyle style = PrintStyle::Readable,
                   std::size_t longest = longestPrintedText);

/// The value as messages show it: readable, at most about 200 bytes.
std::string toShortText(const Value &value);

} // namespace host::lisp
