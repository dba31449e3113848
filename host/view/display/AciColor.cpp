#include "host/view/display/AciColor.h"

#include <array>

namespace host::view {

namespace {

constexpr int hueCount = 24;
constexpr int firstHueIndex = 10;
constexpr int firstGreyIndex = 250;
constexpr std::array<int, 5> brightness = {255, 165, 127, 76, 38};
constexpr std::array<int, 6> greys = {51, 91, 132, 173, 214, 255};
constexpr std::array<QRgb, 6> primaries = {0xff0000, 0xffff00, 0x00ff00, 0x00ffff, 0x0000ff, 0xff00ff};

Ground groundOfWindows = Ground::Black;

/// One channel of a pure hue at full brightness, 0..1; `shift` is where on the wheel the channel peaks.
double hueChannel(int step, int shift)
{
    const int distance = (step - shift + hueCount) % hueCount;
    const int fromPeak = std::min(distance, hueCount - distance);
    return std::clamp(2.0 - fromPeak / 4.0, 0.0, 1.0);
}

int channelValue(double pure, int level, bool halfSaturated)
{
    const double value = halfSaturated ? 0.5 + pure / 2.0 : pure;
    return static_cast<int>(value * level);
}

QColor hueColor(int index)
{
    const int step = (index - firstHueIndex) / 10;
    const int level = brightness[static_cast<std::size_t>(index % 10 / 2)];
    const bool half = index % 2 == 1;
    return {channelValue(hueChannel(step, 0), level, half), channelValue(hueChannel(step, 8), level, half),
            channelValue(hueChannel(step, 16), level, half)};
}

} // namespace

Ground shownGround()
{
    return groundOfWindows;
}

void setShownGround(Ground ground)
{
    groundOfWindows = ground;
}

QColor groundColor(Ground ground)
{
    return ground == Ground::Black ? QColor(0, 0, 0) : QColor(255, 255, 255);
}

QColor aciColor(int index, Ground ground)
{
    if (index >= 1 && index <= 6)
        return QColor::fromRgb(primaries[static_cast<std::size_t>(index - 1)]);
    if (index == 8)
        return {128, 128, 128};
    if (index == 9)
        return {192, 192, 192};
    if (index >= firstHueIndex && index < firstGreyIndex)
        return hueColor(index);
    if (index >= firstGreyIndex && index <= 255) {
        const int grey = greys[static_cast<std::size_t>(index - firstGreyIndex)];
        return {grey, grey, grey};
    }
    return ground == Ground::Black ? QColor(255, 255, 255) : QColor(0, 0, 0);
}

QColor trueColor(int value)
{
    return QColor::fromRgb(static_cast<QRgb>(value) & 0xffffffU);
}

} // namespace host::view
