#include "host/view/ScenePainter.h"

#include "host/view/SceneWalker.h"

#include <array>

namespace host::view {

namespace {

constexpr double readableText = 2.5; ///< pixels; smaller texts are drawn as a line
constexpr double margin = 4.0;       ///< pixels beyond the edge, for thick lines
constexpr int denseAlpha = 110;
constexpr int highlightFillAlpha = 120;
constexpr std::size_t batchSize = 4096;

/// Hands lines over in batches of one pen: the painter's own overhead is what costs most with many short lines.
class PainterSink final : public DisplaySink
{
public:
    PainterSink(QPainter &painter, Scene &scene, const PaintOptions &options)
        : m_painter(painter), m_scene(scene), m_options(options), m_base(painter.worldTransform())
    {
    }

    bool beginRecord(RecordId record) override
    {
        m_isHighlighted = m_options.highlighted && m_options.highlighted->contains(record);
        return true;
    }

    void line(std::span<const QPointF> points, const ResolvedStyle &style) override
    {
        usePen(style);
        if (points.size() == 2) {
            m_lines.emplaceBack(points[0], points[1]);
            if (static_cast<std::size_t>(m_lines.size()) >= batchSize)
                flush();
        } else {
            m_painter.drawPolyline(points.data(), static_cast<int>(points.size()));
        }
    }

    void dot(QPointF point, const ResolvedStyle &style) override
    {
        usePen(style);
        m_dots.append(point);
        if (static_cast<std::size_t>(m_dots.size()) >= batchSize)
            flush();
    }

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
        flush();
        const QTransform place(toScreen.xAxis.x, toScreen.xAxis.y, toScreen.yAxis.x, toScreen.yAxis.y,
                               toScreen.origin.x, toScreen.origin.y);
        m_painter.setWorldTransform(place * m_base);
        m_painter.setRenderHint(QPainter::Antialiasing, true);
        m_painter.fillPath(m_scene.fonts().outline(run.font, run.text), QColor(colourOf(style)));
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
    }

    void endClip() override
    {
        flush();
        m_painter.restore();
        m_hasPen = false;
    }

    void flush()
    {
        if (!m_lines.isEmpty())
            m_painter.drawLines(m_lines);
        if (!m_dots.isEmpty())
            m_painter.drawPoints(m_dots.constData(), static_cast<int>(m_dots.size()));
        m_lines.clear();
        m_dots.clear();
    }

private:
    QRgb colourOf(const ResolvedStyle &style) const
    {
        return m_isHighlighted ? m_options.highlight.rgb() : style.colour;
    }

    void usePen(const ResolvedStyle &style)
    {
        const QRgb colour = colourOf(style);
        const int weight = m_options.pixelsPerMillimetre > 0.0 ? style.lineweight : 0;
        if (m_hasPen && colour == m_penColour && weight == m_penWeight && m_isHighlighted == m_isPenHighlighted)
            return;
        flush();
        m_hasPen = true;
        m_penColour = colour;
        m_penWeight = weight;
        m_isPenHighlighted = m_isHighlighted;
        const double width = weight / 100.0 * m_options.pixelsPerMillimetre;
        QPen pen(QColor(colour), width > 1.0 ? width : 0.0, m_isHighlighted ? Qt::DashLine : Qt::SolidLine,
                 Qt::RoundCap, Qt::RoundJoin);
        pen.setCosmetic(true);
        m_painter.setPen(pen);
    }

    QPainter &m_painter;
    Scene &m_scene;
    const PaintOptions &m_options;
    const QTransform m_base;
    QList<QLineF> m_lines;
    QList<QPointF> m_dots;
    bool m_hasPen = false;
    QRgb m_penColour = 0;
    int m_penWeight = 0;
    bool m_isPenHighlighted = false;
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
    PainterSink sink(painter, scene, options);
    WalkOptions walk{.view = screen.adjusted(-margin, -margin, margin, margin),
                     .ground = options.ground,
                     .plottedOnly = options.plottedOnly};
    SceneWalker walker(scene, walk, sink);
    walker.walk(block, view.matrix());
    sink.flush();
    painter.restore();
    return {.isCutShort = walker.wasCutShort()};
}

} // namespace host::view
