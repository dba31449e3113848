#pragma once

#include "host/commands/common/UserPlane.h"
#include "host/kernel/input/DragShape.h"

namespace host::kernel {

// What hangs at the pointer while edits ask for their last point, each by the map that the edit will use. Places on the
// base itself say nothing.

/// Turned round `centre` by the angle from the user's x axis to the place, less `reference` (radians). A place that
/// counts from another point than the centre counts from `from`.
Dragged turnedBy(const UserPlane &plane, std::vector<drawing::RecordId> entities, const drawing::Vec3 &centre,
                 double reference = 0.0, std::optional<drawing::Vec3> from = {});

/// Larger by the distance to the place in relation to `reference`.
Dragged scaledBy(const UserPlane &plane, std::vector<drawing::RecordId> entities, const drawing::Vec3 &centre,
                 double reference = 1.0, std::optional<drawing::Vec3> from = {});

/// Mirrored in the line from `first` to the place, in the user's plane.
Dragged mirroredIn(const UserPlane &plane, std::vector<drawing::RecordId> entities, const drawing::Vec3 &first);

} // namespace host::kernel
