#pragma once

#include <cstddef>
#include <string>

namespace host::dwg {

/// Puts U+FFFD in place of each byte that belongs to no character of UTF-8 (RFC 3629: no longer form than needed, no
/// halves of pairs). How many there were. A text without them is not moved; one with them takes its room again.
std::size_t replaceNoUtf8(std::string &text);

} // namespace host::dwg
