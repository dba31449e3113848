#include "host/view/paint/ScenePainter.h"

#include "host/view/display/RasterFiles.h"
#include "host/view/paint/LineBatches.h"
#include "host/view/paint/SceneWalker.h"
#include "host/view/paint/TextStrokes.h"

#include <QPainterPath>

#include <array>

namespace host::view {

namespace {

constexpr double readableText = 3.0;       ///< pixels; smaller texts are drawn as a line
constexpr double widestStroke = 1.0 / 6.0; ///< of a letter, in heights
constexpr double largestCachedText = 40.0;
constexpr qsizetype longestCachedText = 4096;
constexpr double margin = 4.0;             ///< pixels beyond the edge, for thick lines
constexpr double imageDotsPerInch = 300.0; ///< of pictures in files of lines
constexpr int denseAlpha = 110;
constexpr int highlightFillAlpha = 120;

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

class PainterSink final : public DisplaySink
{
public:
    /// Within `part` of the screen.
    PainterSink(QPainter &painter, Scene &scene, const PaintOptions &options, const QRectF &part)
        : m_painter(painter), m_scene(scene), m_options(options),
          m_seen(part.adjusted(-margin, -margin, margin, margin)), m_base(painter.worldTransform()),
          m_isRaster(isRaster(painter)), m_batches(painter, options.pixelsPerMillimetre, part)
    {
    }

    bool beginRecord(RecordId record) override
    {
        m_isHighlighted = m_options.look ? m_options.look->isDashed
                                         : m_options.highlighted && m_options.highlighted->contains(record);
        return (!m_options.only || m_options.only->contains(record)) &&
               (!m_options.except || !m_options.except->contains(record));
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
        const bool isStroked = m_scene.fonts().isStroked(run.font);
        // Lines stay exact in a file, which may be looked at in any size.
        if (area / width < readableText && (m_isRaster || !isStroked)) {
            const std::array<QPointF, 2> ends = {flat(toScreen, {0.0, 0.5, 0.0}),
                                                 flat(toScreen, {run.width, 0.5, 0.0})};
            line(ends, style);
            return;
        }
        if (isStroked) {
            drawStrokes(run, toScreen, style, area / width);
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
        m_batches.beginClip();
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
        m_batches.endClip();
    }

    void flush() { m_batches.flush(); }

private:
    QRgb colourOf(const ResolvedStyle &style) const
    {
        return m_options.look    ? m_options.look->colour.rgb()
               : m_isHighlighted ? m_options.highlight.rgb()
                                 : style.colour;
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

    /// With the weight of its style, or the widest that leaves letters of this height readable.
    void drawStrokes(const TextRun &run, const Matrix &toScreen, const ResolvedStyle &style, double height)
    {
        ResolvedStyle readable = style;
        if (m_options.pixelsPerMillimetre > 0.0) {
            const double widest = height * widestStroke / m_options.pixelsPerMillimetre * 100.0;
            readable.lineweight = static_cast<int>(std::min<double>(style.lineweight, widest));
        }
        forEachTextStroke(m_scene.fonts(), run, toScreen, m_seen,
                          [&](std::span<const QPointF> points) { line(points, readable); });
    }

    void drawOutline(const TextRun &run, const QTransform &place, QRgb colour)
    {
        m_painter.setWorldTransform(place * m_base);
        m_painter.fillPath(m_scene.fonts().outline(run.font, run.text), QColor(colour));
    }

    LinePen penOf(const ResolvedStyle &style) const
    {
        const int weight = m_options.look ? m_options.look->weight : style.lineweight;
        return {.colour = colourOf(style),
                .weight = m_options.pixelsPerMillimetre > 0.0 ? weight : 0,
                .isHighlighted = m_isHighlighted};
    }

    QPainter &m_painter;
    Scene &m_scene;
    const PaintOptions m_options;
    const QRectF m_seen; ///< what lies beyond is not seen
    const QTransform m_base;
    const bool m_isRaster;
    LineBatches m_batches;
    bool m_isHighlighted = false;
};

} // namespace

struct ScenePainting::Private
{
    Private(QPainter &ground, Scene &scene, const ViewTransform &view, const PaintOptions &options, const QRectF &part)
        : painter(ground), sink(ground, scene, options, part), work(options.work > 0    ? options.work
                                                                    : isRaster(painter) ? drawing::pictureWork
                                                                                        : drawing::vectorWork),
          walker(scene, walkOptions(ground, view, options), sink, work)
    {
    }

    static WalkOptions walkOptions(QPainter &ground, const ViewTransform &view, const PaintOptions &options)
    {
        const QRectF screen(QPointF(0.0, 0.0), view.screenSize());
        WalkOptions walk{.view = screen.adjusted(-margin, -margin, margin, margin),
                         .ground = options.ground,
                         .plottedOnly = options.plottedOnly,
                         .isRaster = isRaster(ground),
                         .dotsPerUnit = isRaster(ground) ? 1.0 : imageDotsPerInch / ground.device()->logicalDpiX()};
        if (options.part)
            walk.part = options.part->adjusted(-margin, -margin, margin, margin);
        return walk;
    }

    QPainter &painter;
    PainterSink sink;
    drawing::WorkBudget work;
    SceneWalker walker;
};

ScenePainting::ScenePainting(QPainter &painter, Scene &scene, int block, const ViewTransform &view,
                             const PaintOptions &options)
{
    scene.prepare(block);
    const QRectF screen(QPointF(0.0, 0.0), view.screenSize());
    const QRectF part = options.part ? *options.part & screen : screen;
    painter.save();
    painter.setClipRect(part, Qt::IntersectClip);
    painter.setRenderHint(QPainter::Antialiasing, options.antialias);
    painter.setBrush(Qt::NoBrush);
    if (options.fillGround)
        painter.fillRect(part, groundColor(options.ground));
    d = std::make_unique<Private>(painter, scene, view, options, part);
    d->walker.begin(block, view.matrix());
}

ScenePainting::~ScenePainting()
{
    d->painter.restore();
}

bool ScenePainting::paint(const std::function<bool()> &mayGoOn)
{
    const bool isDone = d->walker.goOn(mayGoOn);
    d->sink.flush();
    return isDone;
}

PaintResult ScenePainting::result() const
{
    return {.isCutShort = d->walker.wasCutShort(), .effort = d->walker.effort()};
}

void ScenePainting::paintAlone(QPainter &painter, Scene &scene, int block, RecordId record, const ViewTransform &view,
                               const PaintOptions &options)
{
    scene.prepare(block);
    const RecordSummary *summary = scene.find(block, record);
    if (!summary)
        return;
    const QRectF screen(QPointF(0.0, 0.0), view.screenSize());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, options.antialias);
    painter.setBrush(Qt::NoBrush);
    Private alone(painter, scene, view, options, options.part ? *options.part & screen : screen);
    alone.walker.walkRecord(scene.display(block), *summary, view.matrix());
    alone.sink.flush();
    painter.restore();
}

void paintRecord(QPainter &painter, Scene &scene, int block, RecordId record, const ViewTransform &view,
                 const PaintOptions &options)
{
    ScenePainting::paintAlone(painter, scene, block, record, view, options);
}

PaintResult paintScene(QPainter &painter, Scene &scene, int block, const ViewTransform &view,
                       const PaintOptions &options)
{
    ScenePainting painting(painter, scene, block, view, options);
    painting.paint();
    return painting.result();
}

} // namespace host::view
