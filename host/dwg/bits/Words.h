#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace host::dwg {

// Eight bytes as a word whose lowest byte is the first one, on machines of both orders. Compilers make one instruction
// of a copy, and none of them of a loop.

inline std::uint64_t loadLowestFirst(const std::uint8_t *bytes)
{
    std::uint64_t word = 0;
    if constexpr (std::endian::native == std::endian::little) {
        std::memcpy(&word, bytes, sizeof word);
    } else {
        for (std::size_t i = 0; i < sizeof word; ++i)
            word |= static_cast<std::uint64_t>(bytes[i]) << 8 * i;
    }
    return word;
}

inline void storeLowestFirst(std::uint64_t word, char *to)
{
    if constexpr (std::endian::native == std::endian::little) {
        std::memcpy(to, &word, sizeof word);
    } else {
        for (std::size_t i = 0; i < sizeof word; ++i)
            to[i] = static_cast<char>(word >> 8 * i);
    }
}

} // namespace host::dwg
