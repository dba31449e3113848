#pragma once

#include "host/view/HatchBoundary.h"

namespace host::view {

/// The lines of a hatch pattern, cut at its boundary.
struct HatchLines
{
    Segments pieces;
    bool isTooDense = false; ///< the bound was reached: pieces is empty, and the area is to be tinted
};

/// Lays the pattern's line families into the loops, filling every second area from outside in. Cost grows with what the
/// pattern shows inside the boundary, not with where the pattern starts; at most `mostPieces` pieces are made.
HatchLines hatchLines(const HatchData &hatch, std::int64_t mostPieces);

} // namespace host::view
