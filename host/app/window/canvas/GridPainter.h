#pragma once

#include "host/app/window/canvas/AimMarks.h"

namespace host::app {

/// Draws the grid (GRIDMODE) over a drawing, in the user's plane: lines by GRIDUNIT, every one of GRIDMAJOR stronger.
/// What is drawn already shines through. Lines are never closer than some eight pixels: where they would be, only
/// stronger ones are drawn (GRIDDISPLAY bit 2), or none. Without bit 1 it ends at the limits. Costs by the lines that
/// the canvas has room for.
void paintGrid(QPainter &painter, kernel::Document &document, const AimScreen &screen);

} // namespace host::app
