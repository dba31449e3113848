#include "host/view/paint/ViewTransform.h"

namespace host::view {

using drawing::Vec2;

namespace {

constexpr double smallestScale = 1e-14;
constexpr double largestScale = 1e12;
constexpr double farthestView = 1e15;

bool isUsableNumber(double value)
{
    return std::isfinite(value) && std::abs(value) <= farthestView;
}

} // namespace

void ViewTransform::resize(const QSizeF &screen)
{
    m_screen = {std::max(screen.width(), 1.0), std::max(screen.height(), 1.0)};
}

void ViewTransform::setView(Vec2 center, double pixelsPerUnit)
{
    if (isUsableNumber(center.x) && isUsableNumber(center.y))
        m_center = center;
    if (std::isfinite(pixelsPerUnit) && pixelsPerUnit > 0.0)
        m_scale = std::clamp(pixelsPerUnit, smallestScale, largestScale);
}

void ViewTransform::setHeight(Vec2 center, double height)
{
    setView(center, m_screen.height() / height);
}

void ViewTransform::fit(const drawing::Box &box, double margin)
{
    if (box.isEmpty())
        return;
    const double width = box.high.x - box.low.x;
    const double height = box.high.y - box.low.y;
    const double usable = std::clamp(1.0 - 2.0 * margin, 0.1, 1.0);
    double scale = std::numeric_limits<double>::infinity();
    if (width > 0.0)
        scale = m_screen.width() * usable / width;
    if (height > 0.0)
        scale = std::min(scale, m_screen.height() * usable / height);
    setView({box.low.x + width / 2.0, box.low.y + height / 2.0}, std::isfinite(scale) ? scale : 1.0);
}

void ViewTransform::zoomAt(QPointF screenPoint, double factor)
{
    const Vec2 fixed = toWorld(screenPoint);
    setView(m_center, m_scale * factor);
    const Vec2 moved = toWorld(screenPoint);
    setView(m_center + fixed - moved, m_scale);
}

void ViewTransform::pan(QPointF screenDistance)
{
    setView({m_center.x - screenDistance.x() / m_scale, m_center.y + screenDistance.y() / m_scale}, m_scale);
}

QPointF ViewTransform::toScreen(Vec2 world) const
{
    return {m_screen.width() / 2.0 + (world.x - m_center.x) * m_scale,
            m_screen.height() / 2.0 - (world.y - m_center.y) * m_scale};
}

Vec2 ViewTransform::toWorld(QPointF screen) const
{
    return {m_center.x + (screen.x() - m_screen.width() / 2.0) / m_scale,
            m_center.y - (screen.y() - m_screen.height() / 2.0) / m_scale};
}

QRectF ViewTransform::worldRect() const
{
    const Vec2 low = toWorld({0.0, m_screen.height()});
    return {low.x, low.y, m_screen.width() / m_scale, m_screen.height() / m_scale};
}

drawing::Matrix ViewTransform::matrix() const
{
    const QPointF origin = toScreen({0.0, 0.0});
    return {{m_scale, 0.0, 0.0}, {0.0, -m_scale, 0.0}, {0.0, 0.0, 1.0}, {origin.x(), origin.y(), 0.0}};
}

} // namespace host::view
