#pragma once

#include "host/drawing/math/Matrix.h"

#include <QPointF>
#include <QRectF>
#include <QSizeF>

namespace host::view {

/// Which part of the drawing plane is seen, and how large. World y points up, screen y down; screen units are pixels.
///
/// Every operation keeps the view usable: sizes and magnifications that are zero, not finite or beyond what
/// double-precision coordinates can tell apart are put right or ignored.
class ViewTransform
{
public:
    /// 100 by 100 pixels around the origin, at 1:1.
    ViewTransform() = default;
    explicit ViewTransform(const QSizeF &screen) { resize(screen); }

    QSizeF screenSize() const { return m_screen; }
    /// What is in the middle stays there.
    void resize(const QSizeF &screen);

    /// What is seen in the middle of the screen.
    drawing::Vec2 center() const { return m_center; }
    /// Pixels a drawing unit: 1e-14 to 1e12.
    double scale() const { return m_scale; }
    /// A center farther than 1e15 or not finite, and a scale that is not positive, leave what was there.
    void setView(drawing::Vec2 center, double pixelsPerUnit);
    /// Shows `height` drawing units from bottom to top.
    void setHeight(drawing::Vec2 center, double height);
    /// In drawing units.
    double height() const { return m_screen.height() / m_scale; }

    /// Shows the whole box in the middle with `margin` (a part of the screen) left free on each side. A box without
    /// extent is shown at 1:1 in the middle, an empty one changes nothing.
    void fit(const drawing::Box &box, double margin = 0.03);
    /// Magnifies by `factor`; what is under the screen point stays there.
    void zoomAt(QPointF screenPoint, double factor);
    /// Shifts what is seen by so many pixels, as a hand would a sheet of paper.
    void pan(QPointF screenDistance);

    QPointF toScreen(drawing::Vec2 world) const;
    drawing::Vec2 toWorld(QPointF screen) const;
    double toWorldLength(double pixels) const { return pixels / m_scale; }
    /// The part of the plane that is seen; its top is the smallest y, at the bottom of the screen.
    QRectF worldRect() const;
    /// World to screen as a map, the same as toScreen(); z is kept out of x and y.
    drawing::Matrix matrix() const;

private:
    QSizeF m_screen{100.0, 100.0}; ///< at least one pixel each way
    drawing::Vec2 m_center;
    double m_scale = 1.0;
};

} // namespace host::view
