#include "host/app/window/canvas/GhostPicture.h"

#include <QPainter>

#include <cmath>

namespace host::app {

using drawing::Vec2;

namespace {

/// Up to so many records, and bytes of them, are kept as lines.
constexpr std::size_t mostAsLines = 300;
constexpr int mostLineBytes = 512 * 1024;
/// A picture of lines shows all there is, up to this size in pixels.
constexpr double largestOfLines = 20'000.0;
/// Room round the records' boxes for the marks of points, in pixels.
constexpr double ghostBorder = 8.0;

QRectF boundsOf(const drawing::Box &box)
{
    return QRectF(QPointF(box.low.x, box.low.y), QPointF(box.high.x, box.high.y));
}

/// From the pixels of a picture to those of the canvas.
QTransform between(const view::ViewTransform &picture, const FlatMap &map)
{
    const auto through = [&](QPointF pixel) { return map.toScreen(picture.toWorld(pixel)); };
    // Far enough apart for numbers as large as coordinates are.
    constexpr double reach = 1000.0;
    const QPointF origin = through({0.0, 0.0});
    const QPointF x = (through({reach, 0.0}) - origin) / reach;
    const QPointF y = (through({0.0, reach}) - origin) / reach;
    return QTransform(x.x(), x.y(), y.x(), y.y(), origin.x(), origin.y());
}

bool onlyShifts(const QTransform &transform)
{
    constexpr double tiny = 1e-6;
    return std::abs(transform.m11() - 1.0) < tiny && std::abs(transform.m22() - 1.0) < tiny &&
           std::abs(transform.m12()) < tiny && std::abs(transform.m21()) < tiny;
}

} // namespace

QPointF FlatMap::toScreen(Vec2 p) const
{
    const Vec2 at = origin + xAxis * p.x + yAxis * p.y;
    return {at.x, at.y};
}

Vec2 FlatMap::toPlane(QPointF screen) const
{
    const Vec2 away = Vec2{screen.x(), screen.y()} - origin;
    const double area = drawing::cross(xAxis, yAxis);
    return {drawing::cross(away, yAxis) / area, drawing::cross(xAxis, away) / area};
}

double FlatMap::scale() const
{
    return std::sqrt(std::abs(drawing::cross(xAxis, yAxis)));
}

void GhostPicture::paint(QPainter &painter, view::Scene &scene, int space, const view::RecordSet *only,
                         const FlatMap &map, const Look &look)
{
    const double scale = map.scale();
    if (!(scale > 0.0) || !std::isfinite(scale))
        return;
    const Basis now{look.ground, space, painter.device()->devicePixelRatioF(), scene.drawing().revision()};
    const bool isOther = m_basis != now;
    if (isOther)
        measure(scene, space, only);
    m_basis = now;
    const QRectF wanted = needed(map, look.canvas);
    if (wanted.isEmpty())
        return;
    constexpr double coarsest = 2.0;
    const double magnified = scale / m_view.scale();
    // What only shifts is to be as sharp as the drawing; what grows is painted anew now and then.
    const bool fits =
        std::abs(magnified - 1.0) < 1e-9 || (!m_lines.isNull() && magnified < coarsest && magnified > 1.0 / coarsest);
    if (isOther || !fits || !m_region.contains(wanted))
        make(scene, only, wanted, scale);
    const QTransform transform = between(m_view, map);
    painter.save();
    if (m_pixels.isNull()) {
        painter.setTransform(transform, true);
        painter.drawPicture(0, 0, m_lines);
    } else if (onlyShifts(transform)) {
        painter.drawPixmap(QPointF(transform.dx(), transform.dy()), m_pixels);
    } else {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.setTransform(transform, true);
        painter.drawPixmap(QPointF(), m_pixels);
    }
    painter.restore();
}

void GhostPicture::measure(view::Scene &scene, int space, const view::RecordSet *only)
{
    scene.prepare(space);
    const view::BlockDisplay &block = scene.display(space);
    m_count = only ? only->size() : block.records.size();
    m_isEndless = !only && block.isEndless;
    drawing::Box box = only ? drawing::Box() : block.box;
    if (only) {
        for (const drawing::RecordId record : *only) {
            const view::RecordSummary *summary = scene.find(space, record);
            if (!summary)
                continue;
            m_isEndless |= summary->isEndless;
            box.add(summary->box);
        }
    }
    m_content = box.isEmpty() ? QRectF() : boundsOf(box);
}

/// What of the plane can be seen on the canvas, as far as there is something.
QRectF GhostPicture::needed(const FlatMap &map, QSize canvas) const
{
    drawing::Box seen;
    const QRectF corners(QPointF(), canvas);
    for (const QPointF &corner : {corners.topLeft(), corners.topRight(), corners.bottomLeft(), corners.bottomRight()}) {
        const Vec2 at = map.toPlane(corner);
        seen.add(drawing::Vec3{at.x, at.y, 0.0});
    }
    const double border = ghostBorder / map.scale();
    return m_isEndless ? boundsOf(seen) : boundsOf(seen) & m_content.adjusted(-border, -border, border, border);
}

void GhostPicture::make(view::Scene &scene, const view::RecordSet *only, const QRectF &wanted, double scale)
{
    const double border = ghostBorder / scale;
    const QRectF all = m_content.adjusted(-border, -border, border, border);
    const bool isSmall = m_count <= mostAsLines;
    const bool showsAll = isSmall && !m_isEndless && std::max(all.width(), all.height()) * scale < largestOfLines;
    // With some more than is seen now, for the next moves.
    const QRectF grown =
        wanted.adjusted(-wanted.width() / 2, -wanted.height() / 2, wanted.width() / 2, wanted.height() / 2);
    m_region = showsAll ? all : m_isEndless ? grown : grown & all;
    const QSizeF pixels(std::ceil(m_region.width() * scale), std::ceil(m_region.height() * scale));
    m_view = view::ViewTransform(pixels);
    m_view.setView({m_region.center().x(), m_region.center().y()}, scale);
    view::PaintOptions options;
    options.ground = m_basis->ground;
    options.fillGround = false;
    options.only = only;
    m_pixels = {};
    if (!isSmall || !makeLines(scene, options))
        makePixels(scene, options);
}

bool GhostPicture::makeLines(view::Scene &scene, const view::PaintOptions &options)
{
    m_lines = QPicture();
    QPainter painter(&m_lines);
    view::paintScene(painter, scene, m_basis->space, m_view, options);
    painter.end();
    return m_lines.size() <= uint(mostLineBytes);
}

void GhostPicture::makePixels(view::Scene &scene, const view::PaintOptions &options)
{
    m_lines = QPicture();
    m_pixels = QPixmap((m_view.screenSize() * m_basis->pixelRatio).toSize());
    m_pixels.setDevicePixelRatio(m_basis->pixelRatio);
    m_pixels.fill(Qt::transparent);
    QPainter painter(&m_pixels);
    view::paintScene(painter, scene, m_basis->space, m_view, options);
}

} // namespace host::app
