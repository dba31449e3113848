#pragma once

#include "host/drawing/math/Curves.h"
#include "host/kernel/running/CommandContext.h"

namespace host::kernel {

/// Makes a polyline in space through world points; a closed one does not repeat the first point. Nothing is made of
/// fewer than two points: noRecord then.
drawing::RecordId createSpacePolyline(CommandContext &context, const drawing::Path &path, bool isClosed);

/// Makes an entity of a type that early drawings do not have; in one of them the polyline along `path`, which is what
/// the entity looks like, in world coordinates.
drawing::RecordId createCurve(CommandContext &context, const drawing::FieldList &fields, const drawing::Path &path);

} // namespace host::kernel
