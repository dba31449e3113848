#include "host/dwg/objects/Colours.h"

#include <array>
#include <cstdlib>

namespace host::dwg {

namespace {

struct Rgb
{
    int red;
    int green;
    int blue;
};

/// The colours 10 to 249: 24 hues of ten, each with five brightnesses, full and pale in turn.
Rgb wheelColour(int index)
{
    constexpr std::array<int, 5> brightness = {255, 165, 127, 76, 38};
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

Rgb indexColour(int index)
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
    constexpr std::array<int, 6> greys = {51, 80, 105, 130, 190, 255};
    if (index < 10)
        return first[static_cast<std::size_t>(index)];
    if (index < 250)
        return wheelColour(index);
    const int grey = greys[static_cast<std::size_t>(index - 250)];
    return {grey, grey, grey};
}

} // namespace

int nearestIndex(std::uint32_t rgb)
{
    const Rgb wanted{static_cast<int>(rgb >> 16 & 0xff), static_cast<int>(rgb >> 8 & 0xff),
                     static_cast<int>(rgb & 0xff)};
    int best = 7;
    int least = 0x7fffffff;
    for (int index = 1; index < 256; ++index) {
        const Rgb colour = indexColour(index);
        const int red = colour.red - wanted.red;
        const int green = colour.green - wanted.green;
        const int blue = colour.blue - wanted.blue;
        const int distance = red * red + green * green + blue * blue;
        if (distance < least) {
            least = distance;
            best = index;
        }
    }
    return best;
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
