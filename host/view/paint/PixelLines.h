#pragma once

#include <QImage>
#include <QPainter>
#include <QTransform>

#include <optional>
#include <span>

namespace host::view {

/// Draws lines one pixel thin, in full colours and without smoothing, straight into the pixels of a picture: several
/// times as fast as a painter, and what a line covers does not depend on which part of the picture is painted.
class PixelLines
{
public:
    /// For a painter on such a picture; nothing for any other. `part` is in the painter's units;
    /// only pixels wholly or partly in it are drawn. The picture must stay where it is while this is used.
    static std::optional<PixelLines> of(QPainter &painter, const QRectF &part);

    /// Points in the painter's units. Dashes are four pixels long and two apart, and run through the corners.
    void line(std::span<const QPointF> points, QRgb colour, bool isDashed);
    void dot(QPointF point, QRgb colour);

private:
    PixelLines(QImage &image, const QTransform &toPixels, const QRect &part);
    void piece(QPointF from, QPointF to, QRgb colour, bool isDashed);
    template <class Put>
    void run(double along, double across, double toAlong, double toAcross, int low, int high, const Put &put);

    uchar *m_bits;
    qsizetype m_stride; ///< bytes from one row to the next
    QTransform m_toPixels;
    QRect m_part;
    std::int64_t m_phase = 0; ///< pixels of the dashed line so far
};

} // namespace host::view
