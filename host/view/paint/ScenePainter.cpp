#include "host/view/paint/ScenePainter.h"

#include "host/view/display/RasterFiles.h"
#include "host/view/paint/SceneWalker.h"
#include "host/view/paint/TextStrokes.h"

#include <QPaintEngine>
#include <QPainterPath>
#include <QPen>

#include <array>

namespace host::view {

namespace {

constexpr double readableText = 3.0; ///< pixels; smaller texts are drawn as a line
constexpr double largestCachedText = 40.0;
constexpr qsizetype longestCachedText = 4096;
constexpr double margin = 4.0;             ///< pixels beyond the edge, for thick lines
constexpr double imageDotsPerInch = 300.0; ///< of pictures in files of lines
constexpr int denseAlpha = 110;
constexpr int highlightFillAlpha = 120;

bool isRaster(const QPainter &painter)
{
    return painter.paintEngine() && painter.paintEngine()->type() == QPaintEngine::Raster;
}

struct Pen
{
    QRgb colour = 0;
    int weight = 0; ///< hundredths of a millimetre
    bool isHighlighted = false;

    bool operator==(const Pen &) const = default;
};

/// What a map does in the plane.
QTransform planeTransform(const Matrix &map)
{
    return {map.xAxis.x, map.xAxis.y, map.yAxis.x, map.yAxis.y, map.origin.x, map.origin.y};
}

QBrush gradientBrush(const Gradient &gradient, const Matrix &toScreen)
{
    QGradient own = QLinearGradient(0.0, 0.0, 1.0, 0.0);
    if (gradient.isRadial)
        own = QRadialGradient({gradient.center.x, gradient.center.y}, gradient.radius);
    QGradientStops stops;
    for (const Gradient::Stop &stop : gradient.stops)
        stops.emplaceBack(stop.at, QColor(QRgb(stop.colour)));
    own.setStops(stops);
    QBrush brush(own);
    brush.setTransform(planeTransform(toScreen));
    return brush;
}

/// As areas, what of them lies in `reach`: a painter loses its way where one of them is far larger than the screen.
void drawLargePixels(QPainter &painter, const QImage &image, const QTransform &ofPixels, const QRectF &reach)
{
    const QRect seen = ofPixels.inverted().mapRect(reach).toAlignedRect() & image.rect();
    for (int y = seen.top(); y <= seen.bottom(); ++y) {
        for (int x = seen.left(); x <= seen.right(); ++x) {
            QPainterPath pixel;
            pixel.addPolygon(clippedPolygon(ofPixels.map(QPolygonF(QRectF(x, y, 1.0, 1.0))), reach));
            painter.fillPath(pixel, image.pixelColor(x, y));
        }
    }
}

/// `place` maps a square of 0 to 1 both ways, y up, to the screen; `reach` is where something is seen. The painter's
/// transform is left changed.
void drawPixels(QPainter &painter, const QImage &image, const QTransform &place, const QRectF &reach)
{
    constexpr double largestPixel = 1000.0; ///< units of the screen
    const QTransform ofPixels = QTransform(1.0 / image.width(), 0.0, 0.0, -1.0 / image.height(), 0.0, 1.0) * place;
    if (std::min(std::hypot(ofPixels.m11(), ofPixels.m12()), std::hypot(ofPixels.m21(), ofPixels.m22())) > largestPixel)
        return drawLargePixels(painter, image, ofPixels, reach);
    painter.setWorldTransform(ofPixels * painter.worldTransform());
    painter.drawImage(QPointF(0.0, 0.0), image);
}

/// Collects lines and dots by pen, so that the painter draws many with one pen at a time: changing pens costs more than
/// drawing a short line. Between two calls of flush() lines of different thin pens may change places, which can be told
/// only by the one pixel where they cross; thick ones keep their order.
class LineBatches
{
public:
    LineBatches(QPainter &painter, double pixelsPerMillimetre)
        : m_painter(painter), m_pixelsPerMillimetre(pixelsPerMillimetre), m_isRaster(isRaster(painter))
    {
    }

    void addLine(std::span<const QPointF> points, const Pen &pen)
    {
        Batch &batch = batchFor(pen);
        // Files stay small and dashes whole when a polyline is drawn as one.
        if (points.size() > 2 && (!m_isRaster || pen.isHighlighted || widthOf(pen) > 0.0)) {
            flush();
            m_painter.setPen(painterPen(pen));
            m_painter.drawPolyline(points.data(), static_cast<int>(points.size()));
            return;
        }
        for (std::size_t i = 1; i < points.size(); ++i)
            batch.lines.emplaceBack(points[i - 1], points[i]);
        flushWhenFull(batch.lines.size());
    }

    void addDot(QPointF point, const Pen &pen)
    {
        Batch &batch = batchFor(pen);
        batch.dots.append(point);
        flushWhenFull(batch.dots.size());
    }

    void flush()
    {
        for (Batch &batch : m_batches) {
            m_painter.setPen(painterPen(batch.pen));
            m_painter.drawLines(batch.lines);
            m_painter.drawPoints(batch.dots.constData(), static_cast<int>(batch.dots.size()));
        }
        m_batches.clear();
        m_last = 0;
    }

private:
    struct Batch
    {
        Pen pen;
        QList<QLineF> lines{};
        QList<QPointF> dots{};
    };

    Batch &batchFor(const Pen &pen)
    {
        if (m_last < m_batches.size() && m_batches[m_last].pen == pen)
            return m_batches[m_last];
        if (widthOf(pen) > 0.0 || m_batches.size() == mostBatches)
            flush();
        const auto known = std::ranges::find(m_batches, pen, &Batch::pen);
        m_last = static_cast<std::size_t>(known - m_batches.begin());
        return known != m_batches.end() ? *known : m_batches.emplace_back(Batch{.pen = pen});
    }

    void flushWhenFull(qsizetype count)
    {
        if (count >= batchSize)
            flush();
    }

    /// Pixels; 0 for lines as thin as can be.
    double widthOf(const Pen &pen) const
    {
        const double width = pen.weight / 100.0 * m_pixelsPerMillimetre;
        return width > 1.0 ? width : 0.0;
    }

    QPen painterPen(const Pen &pen) const
    {
        QPen made(QColor(pen.colour), widthOf(pen), pen.isHighlighted ? Qt::DashLine : Qt::SolidLine, Qt::RoundCap,
                  Qt::RoundJoin);
        made.setCosmetic(true);
        return made;
    }

    static constexpr std::size_t mostBatches = 24;
    static constexpr qsizetype batchSize = 8192;

    QPainter &m_painter;
    const double m_pixelsPerMillimetre;
    const bool m_isRaster;
    std::vector<Batch> m_batches;
    std::size_t m_last = 0;
};

class PainterSink final : public DisplaySink
{
public:
    PainterSink(QPainter &painter, Scene &scene, const PaintOptions &options, const QRectF &screen)
        : m_painter(painter), m_scene(scene), m_options(options), m_screen(screen), m_base(painter.worldTransform()),
          m_isRaster(isRaster(painter)), m_batches(painter, options.pixelsPerMillimetre)
    {
    }

    bool beginRecord(RecordId record) override
    {
        m_isHighlighted = m_options.highlighted && m_options.highlighted->contains(record);
        return !m_options.only || m_options.only->contains(record);
    }

    void line(std::span<const QPointF> points, const ResolvedStyle &style) override
    {
        m_batches.addLine(points, penOf(style));
    }

    void dot(QPointF point, const ResolvedStyle &style) override { m_batches.addDot(point, penOf(style)); }

    void fill(const QPainterPath &area, FillKind kind, const ResolvedStyle &style) override
    {
        flush();
        QColor color = kind == FillKind::Mask ? groundColor(m_options.ground) : QColor(colourOf(style));
        if (kind == FillKind::Dense)
            color.setAlpha(denseAlpha);
        else if (m_isHighlighted && kind == FillKind::Area)
            color.setAlpha(highlightFillAlpha);
        m_painter.fillPath(area, color);
    }

    void shade(const QPainterPath &area, const Gradient &gradient, const Matrix &toScreen,
               const ResolvedStyle &style) override
    {
        if (m_isHighlighted)
            return fill(area, FillKind::Area, style);
        flush();
        m_painter.fillPath(area, gradientBrush(gradient, toScreen));
    }

    void image(const Raster &raster, const QPainterPath &area, const Matrix &toScreen, QSize dots,
               const ResolvedStyle &style) override
    {
        flush();
        if (!raster.isTransparent || raster.opacity < 1.0)
            m_painter.fillPath(area, groundColor(m_options.ground));
        m_painter.save();
        if (raster.isClipped)
            m_painter.setClipPath(area, Qt::IntersectClip);
        m_painter.setOpacity(raster.opacity);
        m_painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
        drawPixels(m_painter, raster.pixels->levelFor(dots), planeTransform(toScreen), area.boundingRect());
        m_painter.restore();
        if (m_isHighlighted)
            fill(area, FillKind::Area, style);
    }

    void text(const TextRun &run, const Matrix &toScreen, const ResolvedStyle &style) override
    {
        const double width = std::hypot(toScreen.xAxis.x, toScreen.xAxis.y);
        const double area = std::abs(cross(toScreen.xAxis.xy(), toScreen.yAxis.xy()));
        if (!(area > 0.0) || !std::isfinite(area))
            return;
        if (area / width < readableText) {
            const std::array<QPointF, 2> ends = {flat(toScreen, {0.0, 0.5, 0.0}),
                                                 flat(toScreen, {run.width, 0.5, 0.0})};
            line(ends, style);
            return;
        }
        if (m_scene.fonts().isStroked(run.font)) {
            drawStrokes(run, toScreen, style);
            return;
        }
        flush();
        const QTransform place = planeTransform(toScreen);
        m_painter.setRenderHint(QPainter::Antialiasing, true);
        const bool isCached = m_isRaster ? area / width <= largestCachedText : m_options.textAsLetters;
        if (isCached && run.text.size() <= longestCachedText)
            drawCached(run, place, colourOf(style));
        else
            drawOutline(run, place, colourOf(style));
        m_painter.setRenderHint(QPainter::Antialiasing, m_options.antialias);
        m_painter.setWorldTransform(m_base);
    }

    void beginClip(const QPolygonF &polygon) override
    {
        flush();
        QPainterPath path;
        path.addPolygon(polygon);
        m_painter.save();
        m_painter.setClipPath(path, Qt::IntersectClip);
        if (m_options.clips)
            m_options.clips->begin(m_painter, path);
    }

    void endClip() override
    {
        flush();
        if (m_options.clips)
            m_options.clips->end(m_painter);
        m_painter.restore();
    }

    void flush() { m_batches.flush(); }

private:
    QRgb colourOf(const ResolvedStyle &style) const
    {
        return m_isHighlighted ? m_options.highlight.rgb() : style.colour;
    }

    /// Small text comes out of Qt's store of glyph pictures, which is ten times as fast as filling outlines.
    void drawCached(const TextRun &run, const QTransform &place, QRgb colour)
    {
        const double size = 1.0 / m_scene.fonts().capHeight(run.font);
        m_painter.setWorldTransform(QTransform::fromScale(size, -size) * place * m_base);
        m_painter.setFont(m_scene.fonts().face(run.font));
        m_painter.setPen(QColor(colour));
        m_painter.drawText(QPointF(0.0, 0.0), run.text);
    }

    void drawStrokes(const TextRun &run, const Matrix &toScreen, const ResolvedStyle &style)
    {
        forEachTextStroke(m_scene.fonts(), run, toScreen, m_screen,
                          [&](std::span<const QPointF> points) { line(points, style); });
    }

    void drawOutline(const TextRun &run, const QTransform &place, QRgb colour)
    {
        m_painter.setWorldTransform(place * m_base);
        m_painter.fillPath(m_scene.fonts().outline(run.font, run.text), QColor(colour));
    }

    Pen penOf(const ResolvedStyle &style) const
    {
        return {.colour = colourOf(style),
                .weight = m_options.pixelsPerMillimetre > 0.0 ? style.lineweight : 0,
                .isHighlighted = m_isHighlighted};
    }

    QPainter &m_painter;
    Scene &m_scene;
    const PaintOptions &m_options;
    const QRectF m_screen; ///< what lies beyond is not seen
    const QTransform m_base;
    const bool m_isRaster;
    LineBatches m_batches;
    bool m_isHighlighted = false;
};

} // namespace

PaintResult paintScene(QPainter &painter, Scene &scene, int block, const ViewTransform &view,
                       const PaintOptions &options)
{
    scene.prepare(block);
    const QRectF screen(QPointF(0.0, 0.0), view.screenSize());
    painter.save();
    painter.setClipRect(screen, Qt::IntersectClip);
    painter.setRenderHint(QPainter::Antialiasing, options.antialias);
    painter.setBrush(Qt::NoBrush);
    if (options.fillGround)
        painter.fillRect(screen, groundColor(options.ground));
    const QRectF seen = screen.adjusted(-margin, -margin, margin, margin);
    PainterSink sink(painter, scene, options, seen);
    WalkOptions walk{.view = seen,
                     .ground = options.ground,
                     .plottedOnly = options.plottedOnly,
                     .isRaster = isRaster(painter),
                     .dotsPerUnit = isRaster(painter) ? 1.0 : imageDotsPerInch / painter.device()->logicalDpiX()};
    drawing::WorkBudget work(walk.isRaster ? drawing::pictureWork : drawing::vectorWork);
    SceneWalker walker(scene, walk, sink, work);
    walker.walk(block, view.matrix());
    sink.flush();
    painter.restore();
    return {.isCutShort = walker.wasCutShort()};
}

} // namespace host::view
