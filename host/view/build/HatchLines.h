#pragma once

#include "host/view/build/HatchBoundary.h"

namespace host::view {

/// The lines of a hatch pattern, cut at its boundary.
struct HatchLines
{
    Segments pieces;
    bool isTooDense = false; ///< there are too many: pieces is empty, and the area is to be tinted
};

/// Lays the pattern's line families into the loops, filling every second area from outside in. Cost grows with what the
/// pattern shows inside the boundary, not with where the pattern starts. At most `mostPieces` pieces are made, and no
/// more than `work` grants, whose units pay for each piece and for looking at the boundary once a line family. What
/// would be more is known before any piece is made.
HatchLines hatchLines(const HatchData &hatch, std::int64_t mostPieces, drawing::WorkBudget &work);

} // namespace host::view
