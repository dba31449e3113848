#pragma once

#include "host/drawing/comparing/Ignoring.h"
#include "host/drawing/records/Drawing.h"

namespace host::drawing {

/// A number that two records share, in whatever drawings, whose type and values are the same; other records do next to
/// never. Handles do not count, neither the record's own nor those it refers to; the records' children do, and the half
/// of the ENTITIES section it stands in. Numbers are the same however they are spelt. Costs a pass over the tags.
quint64 contentHash(const Drawing &drawing, RecordId record, IgnoredKinds ignored);

} // namespace host::drawing
