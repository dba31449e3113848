#pragma once

#include "host/drawing/math/Curves.h"

#include <optional>

namespace host::kernel {

/// How the parameters of a curve through points are spaced.
enum class KnotSpacing
{
    Chord,      ///< by the distances of the points
    SquareRoot, ///< by the roots of these
    Uniform
};

/// What a smooth curve is to pass, and how.
struct SplineFit
{
    std::vector<drawing::Vec3> points; ///< neighbours differ; of a closed curve the first is not there again
    bool isClosed = false;
    KnotSpacing spacing = KnotSpacing::Chord;
    std::optional<drawing::Vec3> startTangent; ///< direction alone; of a closed curve that of its seam
    std::optional<drawing::Vec3> endTangent;
};

/// The cubic curve with continuous curvature through the points: knots, control points and fit points. An end without
/// tangent runs out straight; a closed curve without one is smooth at its seam too. Two points at least. Costs a few
/// steps a point.
drawing::Spline splineThrough(const SplineFit &fit);

/// The curve that control points alone draw; a closed one joins smoothly. The degree is lowered to fit few points; two
/// at least, three for a closed one.
drawing::Spline splineOver(std::vector<drawing::Vec3> controlPoints, int degree, bool isClosed);

} // namespace host::kernel
