#pragma once

#include "host/drawing/math/Curves.h"

#include <optional>

namespace host::drawing {

// Splines taken to pieces and put together again, exactly but for rounding. A spline given here is valid, as
// Spline::isValid() has it.

/// What a spline is between two neighbouring knots: a curve of its own over a range of the spline's parameters.
struct BezierSpan
{
    double start = 0.0;
    double end = 0.0;
    std::vector<Vec3> points;    ///< degree + 1 of them; the curve runs from the first to the last
    std::vector<double> weights; ///< one a point, or none
};
/// The spans in order, those without extent left out. Costs the cube of the degree a span.
std::vector<BezierSpan> bezierSpans(const Spline &spline);

/// Neighbouring spans of one degree as one spline, over their parameters. Weights are made alike where spans meet.
Spline splineOfSpans(const std::vector<BezierSpan> &spans);
/// The same curve, over the same parameters, by more points; `degree` is not below its own.
BezierSpan elevatedSpan(const BezierSpan &span, std::size_t degree);
/// Likewise of a spline. Knots between its spans are there as often as the new degree says; of the same degree it is
/// left as it is.
Spline elevatedSpline(const Spline &spline, int degree);

/// The spline between two of its parameters, `from` below `to`, both within its range: the same curve with the same
/// parameters, by new knots at both ends. Closed ones come as open.
Spline splineSection(const Spline &spline, double from, double to);

/// Two splines of one degree, the second of which begins where the first one ends, as one. The parameters of the second
/// go on behind those of the first; the curve has a corner at the joint where the two have.
Spline splineChain(const Spline &first, const Spline &second);

/// The spline run the other way, over the same range of parameters.
Spline reversedSpline(const Spline &spline);

/// How the parameters of a curve are spaced at the points that it goes through.
enum class FitSpacing
{
    Chord,      ///< in proportion to the chords
    SquareRoot, ///< to their square roots
    Uniform
};

/// A cubic spline through points, with steady curvature. At its ends it
/// has the directions that are given, of length 1, and otherwise no curvature; a closed one goes on smoothly across its
/// first point, which need not be there twice. Equal neighbours count once. Not valid for fewer than two different
/// points. `fitPoints` holds the points.
Spline fittedSpline(const std::vector<Vec3> &points, bool isClosed, const std::optional<Vec3> &startDirection = {},
                    const std::optional<Vec3> &endDirection = {}, FitSpacing spacing = FitSpacing::Chord);

} // namespace host::drawing
