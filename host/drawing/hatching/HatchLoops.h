#pragma once

#include "host/drawing/hatching/PlaneGraph.h"
#include "host/drawing/records/Drawing.h"

namespace host::drawing {

/// A loop as a polyline has it.
struct LoopPolyline
{
    struct Corner
    {
        Vec2 point;
        double bulge = 0.0;
    };
    std::vector<Corner> corners;
};
/// Nothing for loops with stretches that are neither straight nor of circles.
std::optional<LoopPolyline> loopPolyline(const PlaneGraph::Loop &loop);

/// What group 92 says of a boundary path.
enum HatchPathFlag : qint64
{
    OuterPath = 1,
    PolylinePath = 2,
    DerivedPath = 4,
    TextPath = 8,
    OutermostPath = 16
};

/// The groups of one boundary path of a HATCH, from 92 on. `handles` are of the entities that it follows: none for a
/// hatch that is not associative. The loop is in object coordinates.
FieldList hatchPath(const PlaneGraph::Loop &loop, qint64 flags, const std::vector<Handle> &handles, Version version);

} // namespace host::drawing
