#pragma once

#include "host/drawing/curves/CurveVertices.h"

namespace host::kernel {

/// What fills the gap where an offset polyline opens at a corner; the values of OFFSETGAPTYPE.
enum class OffsetGap : int
{
    Extend, ///< straight parts go on until they meet
    Round,
    Chamfer
};

/// The polylines that lie at a distance to the left of a flat one (to the right for a negative distance), in the same
/// coordinates. What would be nearer is left out, so that there may be several, or none where there is no room. Costs
/// n log n of its vertices.
std::vector<drawing::CurveVertices> offsetPolyline(const drawing::CurveVertices &polyline, double distance,
                                                   OffsetGap gap);

/// A smooth curve at a distance to the left of another as `normal` sees it: a spline close to it. Nothing where the
/// curve turns more sharply than that.
std::optional<drawing::Spline> offsetSpline(const drawing::EntityCurve &curve, const drawing::Vec3 &normal,
                                            double distance);

} // namespace host::kernel
