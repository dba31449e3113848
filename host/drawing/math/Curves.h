#pragma once

#include "host/drawing/math/Matrix.h"

#include <vector>

namespace host::drawing {

using Path = std::vector<Vec3>;

/// How finely curves become straight pieces.
struct Flatness
{
    /// Largest distance between curve and chord, in drawing units. 0: maximumAngle decides instead.
    double chordError = 0.0;
    double maximumAngle = 0.0873; ///< largest turn of one piece, in radians (5 degrees)
    int maximumPieces = 2000;     ///< of one curve
};

/// Points on a circular arc in the x-y plane, both ends included, counter-clockwise from `start` to `end` (radians; an
/// end not behind the start means once round).
Path arcPath(const Vec3 &center, double radius, double start, double end, const Flatness &flatness = {});
/// All round, the first point again as the last one.
Path circlePath(const Vec3 &center, double radius, const Flatness &flatness = {});

/// A circular arc through two points, as polylines have it.
struct BulgeArc
{
    Vec2 center;
    double radius = 0.0;
    double startAngle = 0.0; ///< at the first point, radians
    double sweep = 0.0;      ///< signed; positive is counter-clockwise
};
/// The arc of a segment: `bulge` is the tangent of a quarter of the swept angle. A zero bulge has no arc: radius 0.
BulgeArc bulgeArc(Vec2 from, Vec2 to, double bulge);
/// Appends the points of the segment behind `from` up to and with `to`, which rise evenly from the one to the other.
void appendBulge(Path &path, const Vec3 &from, const Vec3 &to, double bulge, const Flatness &flatness = {});

/// Points on an ellipse; `majorAxis` from center to the end of the longer axis, parameters in radians (0 and 2 pi:
/// whole).
Path ellipsePath(const Vec3 &center, const Vec3 &majorAxis, const Vec3 &extrusion, double ratio, double startParameter,
                 double endParameter, const Flatness &flatness = {});

/// The parameter of the point of an ellipse that lies in a direction: both angles in radians from its major axis,
/// `ratio` that of the minor axis to the major one. Whole turns stay whole turns. A ratio of 0 has no such point: the
/// angle itself.
double ellipseParameter(double angle, double ratio);

/// A B-spline; with weights a rational one.
struct Spline
{
    static constexpr int highestDegree = 25;

    int degree = 3;            ///< 1 to highestDegree
    bool isClosed = false;     ///< counts for fit points alone
    std::vector<double> knots; ///< controlPoints + degree + 1 of them
    std::vector<Vec3> controlPoints;
    std::vector<double> weights; ///< one a control point, or none
    std::vector<Vec3> fitPoints; ///< what the curve was drawn through; looked at where control points are not valid

    /// Whether knots, weights and control points go together, which all below takes for granted.
    bool isValid() const;
    /// The parameters between which the curve runs.
    double firstParameter() const;
    double lastParameter() const;
    /// Parameters outside of the curve give its nearer end. Costs the square of the degree.
    Vec3 point(double parameter) const;
};
/// Empty for a spline with neither valid control points nor two fit points. From fit points alone a smooth curve is run
/// through them.
Path splinePath(const Spline &spline, const Flatness &flatness = {});

} // namespace host::drawing
