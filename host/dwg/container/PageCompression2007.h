#pragma once

#include "host/dwg/bits/BitReader.h"

#include <optional>
#include <vector>

namespace host::dwg {

/// Unpacks a page of R2007, which packs in another way than other releases: bytes that stand there as they are are in
/// an order of their own. Exactly `size` bytes come back; nothing where the page is damaged. Not trusted: never reads
/// or writes beyond both.
std::optional<std::vector<std::uint8_t>> unpackPage2007(Bytes packed, std::size_t size);

} // namespace host::dwg
