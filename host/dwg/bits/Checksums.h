#pragma once

#include "host/dwg/bits/BitReader.h"

namespace host::dwg {

/// The checksum of 16 bits behind objects and sections (polynomial 0xA001, the lowest bit first), which goes on from
/// `seed`.
std::uint16_t checksum16(Bytes bytes, std::uint16_t seed);

/// The checksum of 32 bits in headers of R2004 and later (polynomial 0xEDB88320, the lowest bit first).
std::uint32_t checksum32(Bytes bytes, std::uint32_t seed);

/// The checksum of pages of R2004 and later: two sums modulo 65521, the second one of the first.
std::uint32_t pageChecksum(Bytes bytes, std::uint32_t seed);

/// The same of R2007, of what a page unpacks to: begins with a number made of the length, and takes bytes in another
/// order, as all checksums of this release do.
std::uint32_t pageChecksum2007(Bytes bytes);

/// The checksum of 64 bits of R2007, of a page as it is packed and of maps in both forms (polynomial
/// 0x95AC9329AC4BC9B5, the lowest bit first).
std::uint64_t packedChecksum2007(Bytes bytes);

/// That of the header of R2007, in both forms (polynomial 0x42F0E1EBA9EA3693, the highest bit first).
std::uint64_t headerChecksum2007(Bytes bytes);

} // namespace host::dwg
