// Any bytes as a font file, alone and beside itself as the big font: every letter that is there has lines of numbers
// within its bounds, and texts have widths.

#include "fuzz/Require.h"
#include "host/view/text/StrokeFont.h"

#include <cmath>

using namespace host::view;
using host::drawing::ShapeFile;

namespace {

void checkGlyph(const StrokeGlyph &glyph)
{
    require(std::isfinite(glyph.advance) && std::isfinite(glyph.drop) && glyph.drop > 0.0);
    require(std::isfinite(glyph.hanging.x) && std::isfinite(glyph.hanging.y));
    for (const StrokeGlyph::Polyline &line : glyph.pieces.back())
        for (const auto &point : line)
            require(point.x >= glyph.left && point.x <= glyph.right && point.y >= glyph.low && point.y <= glyph.high);
}

void checkFont(const StrokeFont &font)
{
    for (const char32_t letter : std::u32string(U"Ag 0?\u00b0\u00e9\u0416\u2300\u30a2\u6f22\U0001f600"))
        if (const StrokeGlyph *glyph = font.find(letter))
            checkGlyph(*glyph);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto file = std::make_shared<const ShapeFile>(
        host::drawing::readShapeFile({reinterpret_cast<const char *>(data), qsizetype(size)}));
    if (!StrokeFont::isUsable(*file))
        return 0;
    const auto codec = host::drawing::TextCodec::forCodePage("ANSI_932");
    checkFont(StrokeFont(file, file->isBigFont() ? file : nullptr, codec));
    for (auto shape = file->codes.keyBegin(); shape != file->codes.keyEnd(); ++shape)
        (void)host::drawing::traceShape(*file, *shape, host::drawing::ShapeDirection::Down);
    return 0;
}
