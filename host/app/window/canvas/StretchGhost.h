#pragma once

#include "host/app/window/canvas/GhostPicture.h"
#include "host/kernel/input/DragShape.h"

namespace host::app {

/// Entities of which only some points follow the pointer, in a drawing of their own that is stretched anew at each
/// move. Of many only the first are shown: more could not follow the hand.
class StretchGhost
{
public:
    /// `source` is copied from here and now.
    StretchGhost(const drawing::Drawing &source, const kernel::DragShape &shape,
                 const std::vector<drawing::RecordId> &entities);

    void paint(QPainter &painter, const drawing::Vec3 &by, const FlatMap &map, const GhostPicture::Look &look);

private:
    struct Entity
    {
        drawing::RecordId original;
        drawing::RecordId copy;
    };
    void renew();
    void stretch(const drawing::Vec3 &by);

    const kernel::DragShape &m_shape;
    std::unique_ptr<drawing::Drawing> m_original; ///< the copies as they were
    std::unique_ptr<drawing::Drawing> m_drawing;
    std::unique_ptr<view::Scene> m_scene;
    std::vector<Entity> m_entities;
    std::optional<drawing::Vec3> m_by;
    int m_moves = 0;
    GhostPicture m_picture;
};

} // namespace host::app
