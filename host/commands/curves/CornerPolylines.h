#pragma once

#include "host/commands/curves/CornerCut.h"
#include "host/commands/curves/CornerSides.h"

namespace host::kernel {

// Corners of which a polyline is one side or both. Each gives an empty text when it was made, else why not; then
// nothing has changed.

/// Where the ways of two sides lead, when they are cut: directions of length 1 in user coordinates, from the ends of
/// the cut to what stays.
struct KeptWays
{
    drawing::Vec2 first;
    drawing::Vec2 second;
};

/// Makes one polyline of two sides and the cut between them. Each side is a LINE, an ARC or the end of an open
/// polyline; its last stretch gets longer or shorter.
QString joinPolylines(CommandContext &context, CornerChanges &changes, const CornerSide &first,
                      const CornerSide &second, const CutEnds &ends, const KeptWays &kept);

/// A corner of one polyline: between straight stretches that are neighbours or have one between them, or that are the
/// ends of an open one, which is closed so; or, round, between neighbours of which one at least is an arc.
QString cutWithin(CommandContext &context, CornerChanges &changes, const CornerCut &cut, const CornerSide &first,
                  const CornerSide &second);

} // namespace host::kernel
