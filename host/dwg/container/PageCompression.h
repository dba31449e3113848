#pragma once

#include "host/dwg/bits/BitReader.h"

#include <optional>
#include <vector>

namespace host::dwg {

/// Unpacks a page of R2004, R2010 and later: runs of bytes that stand there, and runs that were there before. Exactly
/// `size` bytes come back; nothing where the page is damaged. Not trusted: never reads or writes beyond both.
std::optional<std::vector<std::uint8_t>> unpackPage(Bytes packed, std::size_t size);

} // namespace host::dwg
