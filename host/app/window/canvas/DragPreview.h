#pragma once

#include "host/view/paint/ScenePainter.h"

#include <QPixmap>

#include <span>

namespace host::app {

/// Entities that hang at the pointer by a point of theirs, as a picture that is made once for a view and drawn where
/// the pointer is. What is drawn at each move of the pointer costs the same for one entity and for all of a drawing.
class DragPreview
{
public:
    /// `base` in world coordinates is what the pointer holds.
    DragPreview(const std::vector<drawing::RecordId> &records, drawing::Vec2 base);

    const view::RecordSet &records() const { return m_records; }
    /// Draws what can be seen when `base` is at `pointer`. The picture is made anew when view, ground or drawing have
    /// changed since; it is never larger than two canvases each way, as no place of the pointer shows more.
    void paint(QPainter &painter, view::Scene &scene, int space, const view::ViewTransform &view, view::Ground ground,
               QPointF pointer);

private:
    /// What the picture was made for.
    struct Basis
    {
        drawing::Vec2 center;
        double scale = 0.0;
        QSizeF screen;
        view::Ground ground = view::Ground::Black;
        int space = 0;
        double pixelRatio = 1.0;
        quint64 revision = 0;

        bool operator==(const Basis &) const = default;
    };

    void makePicture(view::Scene &scene, const Basis &basis);
    QRect reach(view::Scene &scene, int space, const view::ViewTransform &around) const;

    view::RecordSet m_records;
    drawing::Vec2 m_base;
    std::optional<Basis> m_basis;
    QPixmap m_picture;
    QPointF m_corner; ///< of the picture, from where `base` is
};

} // namespace host::app
