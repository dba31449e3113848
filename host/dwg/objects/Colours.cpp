#include "host/dwg/objects/Colours.h"

#include <algorithm>
#include <array>
#include <limits>

namespace host::dwg {

namespace {

struct Rgb
{
    int red;
    int green;
    int blue;
};

/// The colours 10 to 249: 24 hues of ten, each with five brightnesses, full and pale in turn. Brightnesses differ among
/// programs; these are those by which full ones choose the index that stands beside a colour.
constexpr Rgb wheelColour(int index)
{
    constexpr std::array<int, 5> brightness = {255, 204, 153, 127, 76};
    const int value = brightness[static_cast<std::size_t>(index % 10 / 2)];
    const int low = index % 2 == 1 ? value / 2 : 0;
    const int hue = index / 10 - 1; // in steps of 15 degrees from red
    const int step = hue % 4;
    const int rising = low + (value - low) * step / 4;
    const int falling = low + (value - low) * (4 - step) / 4;
    switch (hue / 4) {
    case 0:
        return {value, rising, low};
    case 1:
        return {falling, value, low};
    case 2:
        return {low, value, rising};
    case 3:
        return {low, falling, value};
    case 4:
        return {rising, low, value};
    default:
        return {value, low, falling};
    }
}

constexpr Rgb indexColour(int index)
{
    constexpr std::array<Rgb, 10> first = {{{0, 0, 0},
                                            {255, 0, 0},
                                            {255, 255, 0},
                                            {0, 255, 0},
                                            {0, 255, 255},
                                            {0, 0, 255},
                                            {255, 0, 255},
                                            {255, 255, 255},
                                            {128, 128, 128},
                                            {192, 192, 192}}};
    constexpr std::array<int, 6> greys = {51, 91, 132, 173, 214, 255};
    if (index < 10)
        return first[static_cast<std::size_t>(index)];
    if (index < 250)
        return wheelColour(index);
    const int grey = greys[static_cast<std::size_t>(index - 250)];
    return {grey, grey, grey};
}

constexpr std::size_t paletteSize = 256;

/// The colours by their indices, part by part.
struct Palette
{
    constexpr Palette()
    {
        for (std::size_t index = 0; index < paletteSize; ++index) {
            const Rgb colour = indexColour(static_cast<int>(index));
            red[index] = colour.red;
            green[index] = colour.green;
            blue[index] = colour.blue;
        }
    }

    std::array<int, paletteSize> red{};
    std::array<int, paletteSize> green{};
    std::array<int, paletteSize> blue{};
};

constexpr Palette palette;

int findNearestIndex(std::uint32_t rgb)
{
    const Rgb wanted{static_cast<int>(rgb >> 16 & 0xff), static_cast<int>(rgb >> 8 & 0xff),
                     static_cast<int>(rgb & 0xff)};
    // The index stands below the distance, so that the first of the nearest ones is the least. A loop without
    // conditions, which goes over several colours at a time.
    int least = std::numeric_limits<int>::max();
    for (std::size_t index = 1; index < paletteSize; ++index) {
        const int red = palette.red[index] - wanted.red;
        const int green = palette.green[index] - wanted.green;
        const int blue = palette.blue[index] - wanted.blue;
        least = std::min(least, (red * red + green * green + blue * blue) << 8 | static_cast<int>(index));
    }
    return least & 0xff;
}

} // namespace

int nearestIndex(std::uint32_t rgb)
{
    struct Found
    {
        std::uint32_t rgb = 0;
        int index = 0; ///< 0 where nothing was found yet: it is the nearest one of no colour
    };
    // Drawings have few colours, each of them again and again.
    thread_local std::array<Found, 32> known{};
    Found &found = known[(rgb ^ rgb >> 5 ^ rgb >> 13) % known.size()];
    if (found.rgb != rgb || found.index == 0)
        found = {rgb, findNearestIndex(rgb)};
    return found.index;
}

int colourIndex(std::uint32_t colour)
{
    switch (colour & 0xff000000) {
    case colourByLayer:
        return 256;
    case colourByBlock:
        return 0;
    case trueColour:
        return nearestIndex(colour & 0xffffff);
    case noColour:
        return 257;
    default:
        return static_cast<int>(colour & 0x1ff);
    }
}

} // namespace host::dwg
