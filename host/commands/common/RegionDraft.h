#pragma once

#include "host/drawing/hatching/PlaneGraph.h"
#include "host/drawing/solids/RegionRecord.h"

namespace host::kernel {

class CommandContext;

/// Why a closed loop makes no region.
enum class LoopFault
{
    None,
    Crossing, ///< it meets itself
    NotFlat,
    Degenerate ///< it encloses nothing
};

struct LoopCheck
{
    LoopFault fault = LoopFault::None;
    drawing::Vec3 normal{}; ///< of its plane, of length 1; to the side that the z axis of the world points to
};
/// Looks at a loop whose edges follow each other. Costs n log n of its edges and their crossings.
LoopCheck checkLoop(const drawing::RegionLoop &loop);

/// Pieces that follow each other as edges: the spans of a spline are one, and pieces without length are left out.
drawing::RegionLoop regionEdges(std::span<const drawing::CurvePiece> pieces);
/// A loop of a graph, mapped.
drawing::RegionLoop regionLoop(const drawing::PlaneGraph::Loop &loop, const drawing::Matrix &map);

/// Makes a REGION in the current space. noRecord, with the reason printed, where the drawing has no such entities.
drawing::RecordId createRegion(CommandContext &context, const std::vector<drawing::RegionFace> &faces,
                               const drawing::Vec3 &normal);

} // namespace host::kernel
