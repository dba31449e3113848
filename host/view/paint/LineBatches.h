#pragma once

#include "host/view/paint/PixelLines.h"

#include <QList>
#include <QPainter>

#include <optional>
#include <span>
#include <vector>

namespace host::view {

/// Whether what is painted becomes pixels.
bool isRaster(const QPainter &painter);

struct LinePen
{
    QRgb colour = 0;
    int weight = 0; ///< hundredths of a millimetre
    bool isHighlighted = false;

    bool operator==(const LinePen &) const = default;
};

/// Draws lines and dots. Thin dots on a picture go straight into its pixels, and so do thin lines that nobody smooths.
/// Others are collected by pen, so that the painter draws many with one pen at a time: changing pens costs more than
/// drawing a short line. Between two calls of flush() those of different thin pens may change places, which can be told
/// only by the one pixel where they cross; thick ones keep their order.
class LineBatches
{
public:
    /// Draws within `part` of the painter's plane, to which its clip is set.
    LineBatches(QPainter &painter, double pixelsPerMillimetre, const QRectF &part);

    void addLine(std::span<const QPointF> points, const LinePen &pen);
    void addDot(QPointF point, const LinePen &pen);
    void flush();
    /// Until the matching end only the painter knows what is to be seen.
    void beginClip() { ++m_clips; }
    void endClip() { --m_clips; }

private:
    struct Batch
    {
        LinePen pen;
        QList<QLineF> lines{};
        QList<QPointF> dots{};
    };

    /// What the pen draws straight into pixels with; null for the painter.
    PixelLines *pixelsFor(const LinePen &pen);
    Batch &batchFor(const LinePen &pen);
    void flushWhenFull(qsizetype count);
    /// Pixels; 0 for lines as thin as can be.
    double widthOf(const LinePen &pen) const;
    QPen painterPen(const LinePen &pen) const;

    QPainter &m_painter;
    const double m_pixelsPerMillimetre;
    const bool m_isRaster;
    std::optional<PixelLines> m_pixels;
    const bool m_isSmooth;
    int m_clips = 0;
    std::vector<Batch> m_batches;
    std::size_t m_last = 0;
};

} // namespace host::view
