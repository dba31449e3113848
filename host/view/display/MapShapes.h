#pragma once

#include "host/view/display/Display.h"

namespace host::view {

// Shapes moved into other coordinates. Any affine map will do: what becomes of an arc is an arc.

void mapPath(Path &points, const Matrix &map);
void mapCurve(Curve &curve, const Matrix &map);
/// Every kind of shape; of a reference the placement and what stands beside it, not the block.
void mapItem(DisplayItem &item, const Matrix &map);

} // namespace host::view
