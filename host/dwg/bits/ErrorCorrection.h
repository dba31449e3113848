#pragma once

#include "host/dwg/bits/BitReader.h"

#include <optional>

namespace host::dwg {

/// What pages of R2007 carry beside their bytes so that damaged ones can be found and put right: Reed-Solomon codes
/// over blocks of 255 bytes, the added ones at the end of each.
enum class ErrorCode
{
    Maps, ///< 239 bytes and 16 that correct up to 8 (field polynomial 0x169)
    Data  ///< 251 bytes and 4 that correct up to 2 (field polynomial 0x11d)
};

constexpr std::size_t correctedBlock = 255;

/// How many bytes of a block are its own.
constexpr std::size_t ownBytes(ErrorCode code)
{
    return code == ErrorCode::Maps ? 239 : 251;
}

/// Puts the damaged bytes of a block right; how many these were. Nothing, and the block as it was, where more are
/// damaged than can be found. Costs a look at each byte for each added one, and a few microseconds where any is
/// damaged.
std::optional<std::size_t> correctBlock(ErrorCode code, std::span<std::uint8_t, correctedBlock> block);

} // namespace host::dwg
