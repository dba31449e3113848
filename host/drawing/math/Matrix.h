#pragma once

#include "host/drawing/math/Vec.h"

namespace host::drawing {

/// An affine map of space: where the three unit vectors and the origin go. The default one changes nothing.
struct Matrix
{
    Vec3 xAxis{1.0, 0.0, 0.0};
    Vec3 yAxis{0.0, 1.0, 0.0};
    Vec3 zAxis{0.0, 0.0, 1.0};
    Vec3 origin; ///< what (0 0 0) becomes

    bool operator==(const Matrix &) const = default;

    Vec3 point(const Vec3 &p) const { return xAxis * p.x + yAxis * p.y + zAxis * p.z + origin; }
    /// A direction: as point(), without the origin.
    Vec3 direction(const Vec3 &d) const { return xAxis * d.x + yAxis * d.y + zAxis * d.z; }
    /// How much larger volumes become: negative for a map that mirrors, 0 for one that flattens space.
    double determinant() const { return dot(xAxis, cross(yAxis, zAxis)); }
    /// The map back. A matrix that flattens space has none: the identity comes back then, as for one whose determinant
    /// is too small to divide by.
    Matrix inverted() const;

    static Matrix translation(const Vec3 &by);
    /// Radians, counter-clockwise round the z axis through `center`.
    static Matrix rotation(double angle, const Vec3 &center = {});
    /// `center` stays where it is. A factor of 0 flattens.
    static Matrix scaling(const Vec3 &factors, const Vec3 &center = {});
    /// Reflection in the line through two points, seen from above; heights stay. Two equal points stand for the line
    /// along x.
    static Matrix mirror(const Vec3 &first, const Vec3 &second);
    /// The object coordinate system of an extrusion direction (group 210) by the arbitrary-axis rule: maps object
    /// coordinates to world coordinates. A zero direction counts as (0 0 1).
    static Matrix fromExtrusion(const Vec3 &extrusion);
};

/// First `right`, then `left`: (left * right).point(p) is left.point(right.point(p)).
Matrix operator*(const Matrix &left, const Matrix &right);

} // namespace host::drawing
