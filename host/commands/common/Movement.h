#pragma once

#include "host/kernel/input/DragShape.h"
#include "host/kernel/running/Dialogue.h"

#include <functional>

namespace host::kernel {

class CommandContext;

/// A displacement, typed as a point: the way from the user's origin to it, in world coordinates.
Dialogue<drawing::Vec3> askDisplacement(CommandContext &context);

/// How far something moves, in world coordinates: by a base point and a second point, or a displacement; an empty
/// second point takes the first one as the displacement. `shape` says what hangs at the pointer meanwhile, for a base.
using ShapeFrom = std::function<Dragged(const drawing::Vec3 &base)>;
Dialogue<drawing::Vec3> askMovement(CommandContext &context, ShapeFrom shape);

} // namespace host::kernel
