#pragma once

#include "host/drawing/math/WorkBudget.h"
#include "host/view/build/Scene.h"

#include <vector>

namespace host::view {

/// An entity near a point, in the space itself or in a block that is shown there.
struct NearEntity
{
    RecordId entity = noRecord;
    Matrix toWorld{};       ///< from the coordinates of its block
    bool isInBlock = false; ///< otherwise it stands in the space itself
};

/// The entities that may have something within `reach` of the point as seen from above: their boxes do. References are
/// among them, and so is what they show, nested blocks opened, each cell of an array by itself; what other drawings and
/// viewports show is not. Entities of layers that are off or frozen are left out. Found through the scene's indexes, so
/// that it costs by what is near; `work` loses a unit for each, and ends the search when it is used up.
std::vector<NearEntity> entitiesNear(Scene &scene, int block, Vec2 point, double reach, drawing::WorkBudget &work);

} // namespace host::view
