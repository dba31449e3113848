#include "host/view/paint/PixelLines.h"

#include <QPaintDevice>

#include <algorithm>
#include <cmath>

namespace host::view {

namespace {

constexpr int dashLength = 4;
constexpr int dashPeriod = 6;
/// Of pixels; farther than any view's lines reach, and few enough for the arithmetic below.
constexpr double farthest = 1e6;

bool hasFullColours(const QImage &image)
{
    return image.format() == QImage::Format_RGB32 || image.format() == QImage::Format_ARGB32 ||
           image.format() == QImage::Format_ARGB32_Premultiplied;
}

} // namespace

std::optional<PixelLines> PixelLines::of(QPainter &painter, const QRectF &part)
{
    QPaintDevice *device = painter.device();
    if (!device || device->devType() != QInternal::Image || painter.opacity() < 1.0 ||
        painter.compositionMode() != QPainter::CompositionMode_SourceOver) {
        return std::nullopt;
    }
    auto &image = static_cast<QImage &>(*device);
    if (!hasFullColours(image))
        return std::nullopt;
    const QTransform toPixels = painter.deviceTransform();
    return PixelLines(image, toPixels, toPixels.mapRect(part).toAlignedRect() & image.rect());
}

PixelLines::PixelLines(QImage &image, const QTransform &toPixels, const QRect &part)
    : m_bits(image.bits()), m_stride(image.bytesPerLine()), m_toPixels(toPixels), m_part(part)
{
}

void PixelLines::dot(QPointF point, QRgb colour)
{
    const QPointF at = m_toPixels.map(point);
    if (!(std::abs(at.x()) < farthest && std::abs(at.y()) < farthest))
        return;
    const QPoint pixel(static_cast<int>(std::floor(at.x() + 0.5)), static_cast<int>(std::floor(at.y() + 0.5)));
    if (m_part.contains(pixel))
        reinterpret_cast<QRgb *>(m_bits + pixel.y() * m_stride)[pixel.x()] = colour | 0xFF00'0000;
}

void PixelLines::line(std::span<const QPointF> points, QRgb colour, bool isDashed)
{
    m_phase = 0;
    QPointF from = m_toPixels.map(points.front());
    for (const QPointF &point : points.subspan(1)) {
        const QPointF to = m_toPixels.map(point);
        piece(from, to, colour | 0xFF00'0000, isDashed);
        from = to;
    }
}

void PixelLines::piece(QPointF from, QPointF to, QRgb colour, bool isDashed)
{
    const double reach = std::max({std::abs(from.x()), std::abs(from.y()), std::abs(to.x()), std::abs(to.y())});
    if (!(reach < farthest))
        return;
    const auto isInk = [&](std::int64_t step) { return !isDashed || (m_phase + step) % dashPeriod < dashLength; };
    if (std::abs(to.x() - from.x()) >= std::abs(to.y() - from.y())) {
        run(from.x(), from.y(), to.x(), to.y(), m_part.left(), m_part.right(), [&](int x, int y, std::int64_t step) {
            if (y >= m_part.top() && y <= m_part.bottom() && isInk(step))
                reinterpret_cast<QRgb *>(m_bits + y * m_stride)[x] = colour;
        });
    } else {
        run(from.y(), from.x(), to.y(), to.x(), m_part.top(), m_part.bottom(), [&](int y, int x, std::int64_t step) {
            if (x >= m_part.left() && x <= m_part.right() && isInk(step))
                reinterpret_cast<QRgb *>(m_bits + y * m_stride)[x] = colour;
        });
    }
}

/// One pixel a step along the longer way. Where each lies is worked out in whole numbers from the line's own start, so
/// that it is the same wherever the part to be painted begins.
template <class Put>
void PixelLines::run(double along, double across, double toAlong, double toAcross, int low, int high, const Put &put)
{
    constexpr double unit = 4294967296.0; ///< of the whole numbers, in a pixel
    const auto first = static_cast<std::int64_t>(std::floor(along + 0.5));
    const auto last = static_cast<std::int64_t>(std::floor(toAlong + 0.5));
    const double length = toAlong - along;
    const double slope = length != 0.0 ? (toAcross - across) / length : 0.0;
    const auto step = static_cast<std::int64_t>(slope * unit);
    const auto start = static_cast<std::int64_t>((across + (static_cast<double>(first) - along) * slope + 0.5) * unit);
    const std::int64_t direction = last >= first ? 1 : -1;
    const std::int64_t begin = std::max<std::int64_t>(std::min(first, last), low);
    const std::int64_t end = std::min<std::int64_t>(std::max(first, last), high);
    for (std::int64_t i = begin; i <= end; ++i) {
        const std::int64_t at = (start + (i - first) * step) >> 32;
        put(static_cast<int>(i), static_cast<int>(at), (i - first) * direction);
    }
    m_phase += std::abs(last - first);
}

} // namespace host::view
