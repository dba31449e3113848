#pragma once

#include "host/drawing/math/Vec.h"
#include "host/kernel/running/Dialogue.h"

#include <QString>

namespace host::kernel {

class CommandContext;

/// A displacement, typed as a point: the way from the user's origin to it, in world coordinates.
Dialogue<drawing::Vec3> askDisplacement(CommandContext &context);

/// How far something moves, in world coordinates: by a base point and a second point, or a displacement; an empty
/// second point takes the first one as the displacement.
Dialogue<drawing::Vec3> askMovement(CommandContext &context);

} // namespace host::kernel
