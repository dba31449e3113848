#pragma once

#include "host/dwg/bits/BitReader.h"

#include <optional>
#include <vector>

namespace host::dwg {

/// A spline of degree 3 by its control points.
struct FittedSpline
{
    std::vector<double> knots; ///< four more than points; they count the chords from the first point on
    std::vector<Point> points;
};

/// The spline through these points, as programs make it of files that have the points alone. A tangent at an end is a
/// direction with a length of 1, or 0 for none: the spline is not bent there then. Nothing for fewer than two points,
/// for points that follow themselves and for those that are no numbers. Takes time and memory as the points do.
std::optional<FittedSpline> splineThrough(const std::vector<Point> &points, const Point &startTangent,
                                          const Point &endTangent);

} // namespace host::dwg
