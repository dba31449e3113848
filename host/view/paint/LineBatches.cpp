#include "host/view/paint/LineBatches.h"

#include <QPaintEngine>
#include <QPen>

namespace host::view {

namespace {

constexpr std::size_t mostBatches = 24;
constexpr qsizetype batchSize = 8192;
/// In pixels lines up to this width are drawn as thin as can be: smooth wider ones take twenty times as long.
constexpr double thinPixels = 1.5;

} // namespace

bool isRaster(const QPainter &painter)
{
    return painter.paintEngine() && painter.paintEngine()->type() == QPaintEngine::Raster;
}

LineBatches::LineBatches(QPainter &painter, double pixelsPerMillimetre, const QRectF &part)
    : m_painter(painter), m_pixelsPerMillimetre(pixelsPerMillimetre), m_isRaster(isRaster(painter)),
      m_pixels(PixelLines::of(painter, part)), m_isSmooth(painter.testRenderHint(QPainter::Antialiasing))
{
}

PixelLines *LineBatches::pixelsFor(const LinePen &pen)
{
    if (!m_pixels || m_clips > 0 || widthOf(pen) > 0.0)
        return nullptr;
    // Smooth lines that wait are passed over by dots of their own kind of thinness.
    if (!m_isSmooth && !m_batches.empty())
        flush();
    return &*m_pixels;
}

void LineBatches::addLine(std::span<const QPointF> points, const LinePen &pen)
{
    if (PixelLines *pixels = m_isSmooth ? nullptr : pixelsFor(pen))
        return pixels->line(points, pen.colour, pen.isHighlighted);
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

void LineBatches::addDot(QPointF point, const LinePen &pen)
{
    if (PixelLines *pixels = pixelsFor(pen))
        return pixels->dot(point, pen.colour);
    Batch &batch = batchFor(pen);
    batch.dots.append(point);
    flushWhenFull(batch.dots.size());
}

void LineBatches::flush()
{
    for (Batch &batch : m_batches) {
        m_painter.setPen(painterPen(batch.pen));
        m_painter.drawLines(batch.lines);
        m_painter.drawPoints(batch.dots.constData(), static_cast<int>(batch.dots.size()));
    }
    m_batches.clear();
    m_last = 0;
}

LineBatches::Batch &LineBatches::batchFor(const LinePen &pen)
{
    if (m_last < m_batches.size() && m_batches[m_last].pen == pen)
        return m_batches[m_last];
    // Where lines go into pixels in their order, they keep it within clips as well.
    if (widthOf(pen) > 0.0 || (m_pixels && !m_isSmooth) || m_batches.size() == mostBatches)
        flush();
    const auto known = std::ranges::find(m_batches, pen, &Batch::pen);
    m_last = static_cast<std::size_t>(known - m_batches.begin());
    return known != m_batches.end() ? *known : m_batches.emplace_back(Batch{.pen = pen});
}

void LineBatches::flushWhenFull(qsizetype count)
{
    if (count >= batchSize)
        flush();
}

double LineBatches::widthOf(const LinePen &pen) const
{
    const double width = pen.weight / 100.0 * m_pixelsPerMillimetre;
    return width > (m_isRaster ? thinPixels : 1.0) ? width : 0.0;
}

QPen LineBatches::painterPen(const LinePen &pen) const
{
    QPen made(QColor(pen.colour), widthOf(pen), pen.isHighlighted ? Qt::DashLine : Qt::SolidLine, Qt::RoundCap,
              Qt::RoundJoin);
    made.setCosmetic(true);
    return made;
}

} // namespace host::view
