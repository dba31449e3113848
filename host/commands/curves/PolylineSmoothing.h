#pragma once

#include "host/commands/curves/EditedPolyline.h"

namespace host::kernel {

/// A vertex of an old polyline, with its flags (group 70 of the VERTEX).
struct SmoothVertex : EditedVertex
{
    qint64 flags = 0;
};

/// How splines smooth polylines.
struct SplineSmoothing
{
    int degree = 3;   ///< 2 or 3
    int segments = 8; ///< drawn for each stretch between corners

    /// As SPLINETYPE and SPLINESEGS say.
    static SplineSmoothing of(CommandContext &context);
    /// Group 75 of the POLYLINE.
    qint64 kind() const { return degree == 2 ? 5 : 6; }
};

/// The vertices of a polyline that is drawn smooth as it says: by pairs of arcs through its corners, by a spline with
/// its corners as control points; just its corners without smoothing.
std::vector<SmoothVertex> smoothed(const EditedPolyline &polyline, const SplineSmoothing &spline);

} // namespace host::kernel
