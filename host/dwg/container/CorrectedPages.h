#pragma once

#include "host/dwg/bits/ErrorCorrection.h"

#include <optional>
#include <vector>

namespace host::dwg {

using PageBytes = std::vector<std::uint8_t>;

/// The bytes that were put right in a page of R2007, and whether there were more.
struct Correction
{
    std::size_t count = 0;
    bool isWhole = true;
};

/// Puts each block of a page right. Their bytes stand in turn: the first of each, then the second of each.
Correction correctPage(PageBytes &page, ErrorCode code);

/// The blocks' own bytes, one block behind the other.
PageBytes ownBytesOf(Bytes page, ErrorCode code);

/// How many blocks so many bytes fill.
std::size_t blocksFor(std::uint64_t size, ErrorCode code);

/// The bytes of a page: unpacked where they take less room than they say to be. False where they are damaged; what is
/// in front of the damage is in `page` then.
bool unpackInto(std::span<std::uint8_t> page, Bytes packed, std::uint64_t packedSize);

/// The same to `size` bytes that are new; nothing where they are damaged.
std::optional<PageBytes> unpacked(Bytes packed, std::uint64_t packedSize, std::uint64_t size);

} // namespace host::dwg
