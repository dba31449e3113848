#pragma once

#include "host/drawing/math/Matrix.h"
#include "host/drawing/records/Drawing.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace host::kernel {

/// What hangs at the pointer while a prompt waits: as it will be if the place under the pointer is the answer. Who
/// shows it asks for the map at each move of the pointer, so that this must cost next to nothing.
///
/// It shows entities of the space that is worked on, or the contents of a block in the block's coordinates, or the
/// model space of another drawing.
struct DragShape
{
    /// From where it is drawn to where it goes, both world coordinates; nothing for a place that cannot be answered.
    using Map = std::function<std::optional<drawing::Matrix>(const drawing::Vec3 &place)>;

    std::vector<drawing::RecordId> entities{};
    QString block{};                                  ///< in place of the entities, where it is not empty
    std::shared_ptr<const drawing::Drawing> source{}; ///< likewise; it must not change
    Map map;
    /// For entities that change their form: changes a copy of one, which is in a drawing with others, by the way that
    /// the map shifts by.
    std::function<void(drawing::Drawing &copies, drawing::RecordId copy, drawing::RecordId original,
                       const drawing::Vec3 &by)>
        change{};
    /// Which points follow such a change: what has its box within them follows as a whole. Without it nothing does.
    std::function<bool(drawing::RecordId original, const drawing::Vec3 &point)> isCaught{};
};

using Dragged = std::shared_ptr<const DragShape>;

/// Entities that are shifted by the way from `base` to the place.
inline Dragged movedBy(std::vector<drawing::RecordId> entities, const drawing::Vec3 &base)
{
    return std::make_shared<const DragShape>(DragShape{
        .entities = std::move(entities), .map = [base](const drawing::Vec3 &place) -> std::optional<drawing::Matrix> {
            return drawing::Matrix::translation(place - base);
        }});
}

} // namespace host::kernel
