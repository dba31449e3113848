#pragma once

#include "host/view/build/Scene.h"

#include <limits>
#include <vector>

namespace host::view {

// Finding records of a space by where they are seen. What is hidden by its layer is not found. Lengths and points are
// drawing units.

/// The record whose lines come closest to the point, at most `aperture` away; inside an area counts less than any line
/// in reach. Of equals the one drawn last; noRecord when there is none.
RecordId pickAt(Scene &scene, int block, Vec2 point, double aperture);
/// All records within the aperture, the best first. At most so many are looked at, or a few more.
std::vector<RecordId> pickAllAt(Scene &scene, int block, Vec2 point, double aperture,
                                std::size_t most = std::numeric_limits<std::size_t>::max());

enum class PickMode
{
    Window,  ///< wholly within
    Crossing ///< within, or crossing the edge
};
/// In drawing order.
std::vector<RecordId> pickRectangle(Scene &scene, int block, Vec2 corner, Vec2 opposite, PickMode mode);

} // namespace host::view
