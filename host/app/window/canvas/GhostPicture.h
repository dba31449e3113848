#pragma once

#include "host/view/paint/ScenePainter.h"

#include <QPicture>
#include <QPixmap>

namespace host::app {

/// An affine map from a plane to the pixels of a canvas.
struct FlatMap
{
    drawing::Vec2 origin; ///< where 0,0 goes
    drawing::Vec2 xAxis;  ///< where the steps of one unit go
    drawing::Vec2 yAxis;

    QPointF toScreen(drawing::Vec2 p) const;
    drawing::Vec2 toPlane(QPointF screen) const;
    /// Pixels a unit, the same in all directions for what only turns, mirrors and scales evenly.
    double scale() const;
};

/// Part of what a scene shows, drawn again and again at other places: what hangs at the pointer. It is painted once
/// for a magnification; what is drawn at each move is that picture, whatever it holds. Of little it keeps the lines, so
/// that they stay sharp when they are turned, of much the pixels.
class GhostPicture
{
public:
    struct Look
    {
        QSize canvas;
        view::Ground ground = view::Ground::Black;
    };

    /// Draws a space or block of the scene under the map, all of it or the records of `only`, which stay the same ones.
    void paint(QPainter &painter, view::Scene &scene, int space, const view::RecordSet *only, const FlatMap &map,
               const Look &look);

private:
    /// What the picture was made for, but for scale and region.
    struct Basis
    {
        view::Ground ground = view::Ground::Black;
        int space = 0;
        double pixelRatio = 1.0;
        quint64 revision = 0;

        bool operator==(const Basis &) const = default;
    };

    void measure(view::Scene &scene, int space, const view::RecordSet *only);
    QRectF needed(const FlatMap &map, QSize canvas) const;
    void make(view::Scene &scene, const view::RecordSet *only, const QRectF &wanted, double scale);
    bool makeLines(view::Scene &scene, const view::PaintOptions &options);
    void makePixels(view::Scene &scene, const view::PaintOptions &options);

    std::optional<Basis> m_basis;
    QRectF m_content; ///< of what is drawn, in the plane; null for nothing
    std::size_t m_count = 0;
    bool m_isEndless = false;
    QRectF m_region;            ///< that the picture shows, in the plane
    view::ViewTransform m_view; ///< whose pixels are the picture's
    QPicture m_lines;
    QPixmap m_pixels; ///< null where the lines are kept
};

} // namespace host::app
