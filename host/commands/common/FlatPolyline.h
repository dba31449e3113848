#pragma once

#include "host/drawing/records/Record.h"
#include "host/drawing/tags/Tag.h"

namespace host::kernel {

class CommandContext;

/// Makes a polyline of an LWPOLYLINE's fields in the current space, as CommandContext::create does: in a drawing whose
/// version has no such entity it becomes a POLYLINE with vertices. The fields are in their usual order: 38 in front of
/// the points, and what belongs to a point (40, 41, 42) behind it. noRecord, with the reason printed, when it cannot be
/// made.
drawing::RecordId createFlatPolyline(CommandContext &context, const drawing::FieldList &light);

} // namespace host::kernel
