#pragma once

#include "host/app/window/canvas/StretchGhost.h"

namespace host::kernel {
class Document;
}

namespace host::app {

/// What hangs at the pointer while a prompt waits: entities, a block or another drawing, as they will be. What is drawn
/// at each move of the pointer costs the same for one entity and for all of a drawing; of what is stretched, only what
/// crosses the border of the window costs by its number, up to a limit.
class DragPreview
{
public:
    /// Document and scene, which shows its drawing, must outlive it. `space` of the scene is where the entities are.
    DragPreview(kernel::Document &document, view::Scene &scene, int space, kernel::Dragged shape);

    /// What is on its way, of the drawing.
    const std::vector<drawing::RecordId> &records() const { return m_shape->entities; }
    /// With `place` for an answer; world coordinates. `view` is that of the canvas.
    void paint(QPainter &painter, const view::ViewTransform &view, const GhostPicture::Look &look,
               const drawing::Vec3 &place);

private:
    void sortStretched();
    FlatMap flat(const view::ViewTransform &view, const drawing::Matrix &map) const;

    kernel::Document &m_document;
    view::Scene *m_scene;
    int m_space;
    kernel::Dragged m_shape;
    view::RecordSet m_whole; ///< the records that follow as a whole
    std::unique_ptr<view::Scene> m_ownScene;
    GhostPicture m_picture;
    std::unique_ptr<StretchGhost> m_stretched; ///< null for nothing
};

} // namespace host::app
