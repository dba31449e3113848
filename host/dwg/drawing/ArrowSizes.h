#pragma once

#include "host/dwg/drawing/DrawingObjects.h"

namespace host::dwg {

/// The size of arrows that an object with this head draws by a dimension style: that of the style or, where the object
/// has its own, of its extended data, at the style's scale. 0 where the scale is that of the view, or there is no such
/// style.
double arrowSizeOf(const DrawingObjects &objects, const Names &names, const ObjectHead &head, std::uint64_t style);

} // namespace host::dwg
