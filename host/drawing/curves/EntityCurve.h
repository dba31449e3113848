#pragma once

#include "host/drawing/curves/CurvePiece.h"
#include "host/drawing/records/Drawing.h"

#include <optional>
#include <span>

namespace host::drawing {

/// At which of its ends a curve is thought to go on: straight pieces straight, round ones all round. Closed curves,
/// splines and helices do not.
enum class Extension : quint8
{
    None,
    Start,
    End,
    Both
};

/// An entity as an exact curve in world coordinates. A value that does not depend on the drawing.
///
/// Parameters are those customary in the field: of a LINE and a RAY the distance from the start, of an XLINE that from
/// its base point, of ARC and CIRCLE angles in radians of their object coordinates, of an ELLIPSE its own parameter, of
/// polylines and leaders the number of the vertex, from 0, and the share of the way to the next one (of the angle, on
/// an arc), of splines and helices the knots. They run from startParameter() to endParameter(), always upwards: an arc
/// that crosses the x axis ends above 2 pi. RAY and XLINE have infinite ones.
///
/// Parameters beyond the range are taken where the curve can be thought to go on there, see Extension; splines and
/// closed curves give their nearer end.
class EntityCurve
{
public:
    enum class Kind : quint8
    {
        Line,
        Ray,
        ConstructionLine,
        Arc,
        Circle,
        Ellipse,
        LightPolyline,
        Polyline,   ///< in one plane
        Polyline3d, ///< straight pieces in space
        Spline,     ///< helices and leaders with a curved line as well
        Leader
    };

    /// Nothing for what is no curve (meshes and texts are none) and for records that describe none: without extent in
    /// any vertex, with coordinates that are not finite, splines with weights that are not positive.
    static std::optional<EntityCurve> ofEntity(const Drawing &drawing, RecordId entity);
    /// A straight piece, as LINE has it.
    static EntityCurve line(const Vec3 &from, const Vec3 &to);
    /// Straight pieces through points, as a polyline in space has them. At least one point.
    static EntityCurve through(const std::vector<Vec3> &points, bool isClosed = false);
    static EntityCurve spline(const Spline &spline);
    /// Pieces that follow each other. `normal` as normal() gives it.
    EntityCurve(Kind kind, std::vector<CurvePiece> pieces, bool isClosed, const std::optional<Vec3> &normal = {});

    Kind kind() const { return m_kind; }
    /// Not empty; neighbours share their parameter. A piece may be without length where vertices are the same.
    std::span<const CurvePiece> pieces() const { return m_pieces; }
    /// The piece of a parameter; of two the later one.
    const CurvePiece &pieceAt(double parameter) const;
    double startParameter() const { return m_pieces.front().start(); }
    double endParameter() const { return m_pieces.back().end(); }
    Vec3 startPoint() const { return m_pieces.front().startPoint(); }
    Vec3 endPoint() const { return m_pieces.back().endPoint(); }
    bool isEndless() const { return m_pieces.front().isEndless() || m_pieces.back().isEndless(); }
    /// Whether it ends where it began, by its record or by its points.
    bool isClosed() const { return m_isClosed; }
    /// Whether it goes round and round without a corner at its end: circles, whole ellipses, periodic splines.
    bool isPeriodic() const { return m_isPeriodic; }
    /// Whether it lies in one plane; straight lines do.
    bool isPlanar() const;
    /// The direction of its plane: that of its object coordinates, where it has some; that by which it goes round
    /// counter-clockwise, where it has none. Nothing for straight lines and curves in no plane.
    std::optional<Vec3> normal() const;
    /// Infinite for endless ones.
    Box box() const;

    Vec3 point(double parameter) const { return pieceFor(parameter).point(parameter); }
    Vec3 firstDerivative(double parameter) const { return pieceFor(parameter).firstDerivative(parameter); }
    Vec3 secondDerivative(double parameter) const { return pieceFor(parameter).secondDerivative(parameter); }
    /// The parameter of a point on the curve; nothing when it is farther off than tolerance().
    std::optional<double> parameterAt(const Vec3 &point) const;
    /// Within which a point counts as on the curve: a millionth of a unit, and more for coordinates of millions.
    double tolerance() const;

    // Lengths are exact for lines, circles and their polylines; ellipses and splines have them to about one part in
    // 10^11. Each call goes along the pieces.
    /// Infinite for endless ones.
    double length() const;
    /// From the start (of an XLINE: from its base point). Negative in front of it.
    double distanceAt(double parameter) const;
    /// Nothing for a distance that the curve does not have.
    std::optional<double> parameterAtDistance(double distance) const;
    /// The same for many, which are sorted, in one go along the curve; as many as the curve has.
    std::vector<double> parametersAtDistances(std::span<const double> distances) const;
    /// The area within it, or between it and the straight line from its end to its start; 0 for straight lines. Parts
    /// that go round the other way count off. Never negative.
    double area() const { return std::abs(signedArea()); }
    /// Positive when it goes round counter-clockwise about normal().
    double signedArea() const;

    /// The parameter of the nearest point; of several the first.
    double closest(const Vec3 &point, Extension extension = Extension::None) const;
    /// The same as seen along `direction`: of all points the one whose place in the picture is nearest.
    double closestProjected(const Vec3 &point, const Vec3 &direction, Extension extension = Extension::None) const;

    /// The curve going on as far as it can. Straight ends become endless; round ones whole turns.
    EntityCurve extended(Extension extension) const;
    EntityCurve transformed(const Matrix &matrix) const;
    /// Laid flat along a direction onto the plane through the world's origin. Parameters stay.
    EntityCurve flattened(const Vec3 &direction) const;

private:
    /// The piece that answers for a parameter, which is changed to one that it can answer.
    const CurvePiece &pieceFor(double &parameter) const;

    Kind m_kind;
    std::vector<CurvePiece> m_pieces;
    bool m_isClosed = false;
    bool m_isPeriodic = false;
    std::optional<Vec3> m_normal;
};

/// The map onto the plane through the origin at right angles to `direction`.
Matrix flattening(const Vec3 &direction);

/// Reads a SPLINE record, or the spline that a HELIX has; the result need not be valid.
Spline readSpline(const TagList &tags);
/// The spline a record shows: the one that it has, or the one through its fit points with the directions at their ends
/// that it has.
Spline shownSpline(const TagList &tags);

} // namespace host::drawing
