#pragma once

#include "host/view/build/Scene.h"
#include "host/view/paint/ViewTransform.h"

#include <QPixmap>
#include <QPointF>

#include <optional>
#include <vector>

class QPainter;

namespace host::app {

/// The entity under the pointer, drawn bolder, with a small lock where its layer is locked. Where several lie on top of
/// each other the best match comes first and next() goes on to the others, for as long as the pointer stays.
class HoverMark
{
public:
    /// Looks what is within reach of a place of the space: pixels, and drawing units about the point. Costs by what is
    /// there, of which only a part is looked at where that is very much. True when another entity is marked than
    /// before.
    bool look(view::Scene &scene, int space, QPointF screen, drawing::Vec2 point, double reach);
    /// Marks nothing. True when something was marked.
    bool clear();
    /// Marks the one below; the first again after the last. False where there is no other.
    bool next();
    /// The marked one; noRecord for none.
    drawing::RecordId entity() const;
    /// The marked one where next() has led to it and the pointer is still there: what a click means then.
    drawing::RecordId chosenAt(QPointF screen) const;
    /// Over the picture of the scene. What is drawn is made once for a view.
    void paint(QPainter &painter, view::Scene &scene, int space, const view::ViewTransform &view, view::Ground ground);

private:
    /// What the picture was made for.
    struct Basis
    {
        drawing::RecordId entity;
        drawing::Vec2 center;
        double scale = 0.0;
        QSizeF screen;
        view::Ground ground = view::Ground::Black;
        double pixelRatio = 1.0;
        quint64 revision = 0;
        bool operator==(const Basis &) const = default;
    };
    void makePicture(view::Scene &scene, int space, const view::ViewTransform &view);
    bool isStill(QPointF screen) const;

    std::vector<drawing::RecordId> m_entities; ///< the best first
    std::size_t m_marked = 0;
    bool m_isCycled = false;
    QPointF m_place;
    std::optional<Basis> m_basis;
    QPixmap m_picture;
    QPoint m_corner;
    bool m_isLocked = false;
};

} // namespace host::app
