#pragma once

#include "host/drawing/geometry/EntityGeometry.h"

namespace host::drawing {

/// Whether all of the outline lies within the polygon, as seen from above. The polygon closes itself; fewer than three
/// corners hold nothing. Costs pieces of the outline times corners.
bool liesWithin(const Outline &outline, const Path &polygon);
/// Whether any of it lies within or crosses the polygon, as seen from above.
bool crosses(const Outline &outline, const Path &polygon);
/// Whether any of it crosses the open path, as seen from above.
bool crossesPath(const Outline &outline, const Path &path);

} // namespace host::drawing
