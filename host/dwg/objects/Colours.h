#pragma once

#include <cstdint>

namespace host::dwg {

// Colours from R2004 on: the highest byte says how the others are meant.

constexpr std::uint32_t colourByLayer = 0xc0000000;
constexpr std::uint32_t colourByBlock = 0xc1000000;
constexpr std::uint32_t trueColour = 0xc2000000;
constexpr std::uint32_t indexedColour = 0xc3000000;
constexpr std::uint32_t noColour = 0xc8000000;

inline bool isTrueColour(std::uint32_t colour)
{
    return (colour & 0xff000000) == trueColour;
}

/// The index that comes nearest, as programs that know no others show it.
int nearestIndex(std::uint32_t rgb);

/// The index that group 62 has: 256 for that of the layer, 0 for that of the block, 257 for none.
int colourIndex(std::uint32_t colour);

/// The other way round.
inline std::uint32_t wholeColourOf(int index)
{
    return index == 256 ? colourByLayer
           : index == 0 ? colourByBlock
                        : indexedColour | static_cast<std::uint32_t>(index & 0xff);
}

} // namespace host::dwg
