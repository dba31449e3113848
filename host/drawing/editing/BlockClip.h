#pragma once

#include "host/drawing/math/Curves.h"
#include "host/drawing/math/Matrix.h"
#include "host/drawing/records/Drawing.h"

namespace host::drawing {

// The boundary that a block reference is cut off at. Drawings of R12 keep none.

enum class ClipSide
{
    Inside, ///< what lies within the boundary is seen
    Outside
};

/// Cuts a reference off at a polygon, in place of the boundary that it has. `corners` are flat, in a plane that `plane`
/// leads from to the world; two stand for the rectangle between them. False when the drawing cannot keep it, or the
/// reference is flattened by its scales.
bool setBlockClip(Drawing &drawing, RecordId insert, const Path &corners, const Matrix &plane, ClipSide side);
/// Whether there is a boundary, switched on or off.
bool hasBlockClip(const Drawing &drawing, RecordId insert);
void switchBlockClip(Drawing &drawing, RecordId insert, bool isOn);
/// False when there is none.
bool eraseBlockClip(Drawing &drawing, RecordId insert);
/// The boundary in world coordinates, as it was drawn; empty when there is none.
Path blockClipBoundary(const Drawing &drawing, RecordId insert);

} // namespace host::drawing
