#pragma once

#include "host/dwg/bits/BitReader.h"

namespace host::dwg {

/// Unpacks a page of R2004, R2010 and later into `page`: runs of bytes that stand there, and runs that were there
/// before. False where the page is damaged or has no end within `packed`; what is in front of the damage is in `page`
/// then. What the packed bytes do not reach stays as it is. Not trusted: never reads or writes beyond both.
bool unpackPage(Bytes packed, std::span<std::uint8_t> page);

/// The most that a packed byte can become: zeros in a number of a length stand for 255 each.
constexpr std::size_t mostOfPackedByte = 255;

} // namespace host::dwg
