#pragma once

#include "host/drawing/math/Matrix.h"
#include "host/drawing/math/SplineEdit.h"

#include <vector>

namespace host::drawing {

/// A smooth stretch of a curve in space, over a range of the curve's parameters: straight, round (of a circle, an
/// ellipse or an affine image of one) or polynomial (a Bézier curve, which may be rational). A value; only the
/// polynomial one costs memory beyond itself.
///
/// Straight and round pieces go on beyond their range when they are asked there; polynomial ones too, but what they do
/// there means nothing.
class CurvePiece
{
public:
    enum class Shape : quint8
    {
        Straight,
        Round,
        Polynomial
    };

    /// From one point to another, at parameters `start` and `end`.
    static CurvePiece straight(const Vec3 &from, const Vec3 &to, double start, double end);
    /// Through `origin`, which has parameter 0, as far per unit of the parameter as `direction` says. `start` and `end`
    /// may be infinite.
    static CurvePiece endless(const Vec3 &origin, const Vec3 &direction, double start, double end);
    /// center + xAxis cos(angle) + yAxis sin(angle), the angles in radians from `from` at `start` to `to` at `end`;
    /// clockwise where `to` is less. The axes may be any two directions.
    static CurvePiece round(const Vec3 &center, const Vec3 &xAxis, const Vec3 &yAxis, double from, double to,
                            double start, double end);
    /// The weights are positive. Of a degree that no spline may have it is the straight line between its ends.
    static CurvePiece polynomial(BezierSpan span);

    Shape shape() const { return m_shape; }
    double start() const { return m_start; }
    double end() const { return m_end; }
    bool isEndless() const { return !std::isfinite(m_start) || !std::isfinite(m_end); }
    /// Whether a parameter lies within the range, up to `slack`.
    bool covers(double parameter, double slack = 0.0) const
    {
        return parameter >= m_start - slack && parameter <= m_end + slack;
    }

    Vec3 point(double parameter) const;
    Vec3 firstDerivative(double parameter) const;
    Vec3 secondDerivative(double parameter) const;
    Vec3 startPoint() const { return point(m_start); }
    Vec3 endPoint() const { return point(m_end); }

    // Of round pieces.
    const Vec3 &center() const { return m_origin; }
    const Vec3 &xAxis() const { return m_xAxis; }
    const Vec3 &yAxis() const { return m_yAxis; }
    /// Whether it is of a circle.
    bool isCircular() const;
    double angleAt(double parameter) const { return m_angle + (parameter - m_base) * m_rate; }
    /// The parameter of an angle in radians; `angle` plus whole turns is taken so that the parameter is as near to the
    /// range as can be, and not below its start when there is a choice.
    double parameterOfAngle(double angle) const;
    /// By how much the parameter grows in a whole turn.
    double turn() const;

    // Of polynomial pieces.
    const BezierSpan &span() const { return m_span; }

    /// The same curve over another range. Polynomial pieces are cut there: both ends lie within their range.
    CurvePiece part(double start, double end) const;
    CurvePiece transformed(const Matrix &matrix) const;
    /// How far it runs from its chord: no point of it is farther from the straight line between its ends than this.
    /// Not above the exact value times a small factor; 0 for straight pieces.
    double deviation() const;
    /// Holds the piece; exact but for polynomials, whose control points it holds. Infinite for endless pieces.
    Box box() const;

    /// Between two parameters, negative when the second is less. Exact but for ellipses and polynomials, see
    /// integral().
    double length(double from, double to) const;
    double length() const { return length(m_start, m_end); }
    /// The parameter to which it is so far from `from`; may lie behind the end. Negative distances go backwards.
    double parameterAfter(double from, double distance) const;
    /// Twice the area that a line from `origin` to the piece passes over, as a vector at right angles to it.
    Vec3 sweptArea(const Vec3 &origin) const;
    /// The parameter within the range whose point is nearest; the first of several.
    double closest(const Vec3 &point) const;

private:
    double closestByHalves(const Vec3 &point) const;

    Shape m_shape = Shape::Straight;
    double m_start = 0.0;
    double m_end = 0.0;
    double m_base = 0.0; ///< the parameter where a straight piece is at its origin, a round one at its angle
    Vec3 m_origin;       ///< or center
    Vec3 m_xAxis;        ///< or what a straight piece goes per unit
    Vec3 m_yAxis;
    double m_angle = 0.0;
    double m_rate = 1.0; ///< radians per unit of the parameter
    BezierSpan m_span;
};

/// The point of the line between two points that is nearest to `point`, as the share of the way, 0 to 1.
double shareAlong(const Vec3 &from, const Vec3 &to, const Vec3 &point);

} // namespace host::drawing
