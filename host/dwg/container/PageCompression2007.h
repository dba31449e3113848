#pragma once

#include "host/dwg/bits/BitReader.h"

namespace host::dwg {

/// Unpacks a page of R2007 into `page`, which it fills. R2007 packs in another way than other releases: bytes that
/// stand there as they are are in an order of their own. False where the page is damaged; what is in front of the
/// damage is in `page` then. Not trusted: never reads or writes beyond both.
bool unpackPage2007(Bytes packed, std::span<std::uint8_t> page);

} // namespace host::dwg
