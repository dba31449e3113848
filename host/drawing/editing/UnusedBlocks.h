#pragma once

#include "host/drawing/records/Drawing.h"

#include <functional>

namespace host::drawing {

/// The block definitions that nothing in the drawing needs and whose names `isWanted` accepts: no entity of a layout
/// shows them, by themselves or within others, and no other record refers to them by handle or name. What a definition
/// needs that is not among them is needed. Layouts and external references with their parts are never among them.
/// Costs one pass over all records.
std::vector<RecordId> unusedBlocks(const Drawing &drawing, const std::function<bool(const QString &)> &isWanted);

} // namespace host::drawing
