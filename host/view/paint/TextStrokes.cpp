#include "host/view/paint/TextStrokes.h"

#include <cmath>

namespace host::view {

namespace {

constexpr double pixelsOff = 0.2;

/// From the coordinates of a letter to pixels, without the third dimension.
struct LetterMap
{
    double xx, xy, yx, yy, x, y;

    QPointF operator()(const Vec2 &p) const { return {xx * p.x + xy * p.y + x, yx * p.x + yy * p.y + y}; }
};

LetterMap letterMap(const Matrix &toScreen, const Fonts::Placement &place)
{
    const Vec3 &along = toScreen.xAxis;
    const Vec3 &up = toScreen.yAxis;
    return {.xx = along.x * place.xx,
            .xy = along.x * place.xy + up.x,
            .yx = along.y * place.xx,
            .yy = along.y * place.xy + up.y,
            .x = along.x * place.x + toScreen.origin.x,
            .y = along.y * place.x + toScreen.origin.y};
}

bool isSeen(const StrokeGlyph &glyph, const LetterMap &map, const QRectF &screen)
{
    const QPointF corners[] = {map({glyph.left, glyph.low}), map({glyph.right, glyph.low}),
                               map({glyph.left, glyph.high}), map({glyph.right, glyph.high})};
    const auto [left, right] = std::ranges::minmax(corners, {}, &QPointF::x);
    const auto [low, high] = std::ranges::minmax(corners, {}, &QPointF::y);
    return left.x() <= screen.right() && right.x() >= screen.left() && low.y() <= screen.bottom() &&
           high.y() >= screen.top();
}

/// Places points and draws them; keeps its memory from line to line.
class StrokeDrawer
{
public:
    StrokeDrawer(double pixels, const std::function<void(std::span<const QPointF>)> &draw)
        : m_pixels(pixels), m_draw(draw)
    {
    }

    void draw(const StrokeGlyph &glyph, const LetterMap &map)
    {
        for (std::size_t detail = 0; detail < glyph.pieces.size(); ++detail) {
            if (m_pixels > StrokeGlyph::detailPixels[detail])
                continue;
            for (const StrokeGlyph::Polyline &line : glyph.pieces[detail])
                drawLine(line, map);
            return;
        }
        for (const drawing::ShapeLine &line : glyph.lines)
            drawLine(straightPieces(line, pixelsOff / m_pixels), map);
    }

private:
    void drawLine(const StrokeGlyph::Polyline &line, const LetterMap &map)
    {
        m_points.clear();
        for (const Vec2 &point : line)
            m_points.push_back(map(point));
        if (m_points.size() > 1)
            m_draw(m_points);
    }

    double m_pixels;
    const std::function<void(std::span<const QPointF>)> &m_draw;
    std::vector<QPointF> m_points;
};

} // namespace

void forEachTextStroke(const Fonts &fonts, const TextRun &run, const Matrix &toScreen, const QRectF &screen,
                       const std::function<void(std::span<const QPointF>)> &draw)
{
    const double pixels =
        std::max(std::hypot(toScreen.xAxis.x, toScreen.xAxis.y), std::hypot(toScreen.yAxis.x, toScreen.yAxis.y));
    StrokeDrawer drawer(pixels, draw);
    fonts.forEachGlyph(run.font, run.text, [&](const StrokeGlyph &glyph, const Fonts::Placement &place) {
        const LetterMap map = letterMap(toScreen, place);
        if (!glyph.lines.empty() && isSeen(glyph, map, screen))
            drawer.draw(glyph, map);
    });
}

} // namespace host::view
