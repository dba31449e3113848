#include "host/drawing/curves/EntityCurve.h"

#include <numbers>

namespace host::drawing {

namespace {

/// Points that are so near count as one, in relation to what lies around.
constexpr double sameRatio = 1e-12;

double largestCoordinate(const Box &box)
{
    const auto of = [](const Vec3 &corner) {
        return std::max({std::abs(corner.x), std::abs(corner.y), std::abs(corner.z)});
    };
    const double largest = std::max(of(box.low), of(box.high));
    return std::isfinite(largest) ? largest : 0.0;
}

/// Points that lie in a plane when, and only when, the whole curve does.
Path framePoints(std::span<const CurvePiece> pieces)
{
    Path points;
    for (const CurvePiece &piece : pieces) {
        if (piece.isEndless())
            continue;
        points.push_back(piece.startPoint());
        points.push_back(piece.endPoint());
        if (piece.shape() == CurvePiece::Shape::Round) {
            points.push_back(piece.center() + piece.xAxis());
            points.push_back(piece.center() + piece.yAxis());
        }
        points.insert(points.end(), piece.span().points.begin(), piece.span().points.end());
    }
    return points;
}

/// At right angles to the plane, about which the curve goes counter-clockwise; zero for points in a line.
Vec3 planeDirection(const Path &points, std::span<const CurvePiece> pieces)
{
    if (points.empty())
        return {};
    Vec3 swept;
    for (const CurvePiece &piece : pieces)
        swept = swept + (piece.isEndless() ? Vec3{} : piece.sweptArea(points.front()));
    Vec3 farthest;
    for (const Vec3 &point : points) {
        const Vec3 way = point - points.front();
        farthest = way.length() > farthest.length() ? way : farthest;
    }
    Vec3 widest;
    for (const Vec3 &point : points) {
        const Vec3 side = cross(farthest, point - points.front());
        widest = side.length() > widest.length() ? side : widest;
    }
    if (widest.length() <= 1e-10 * dot(farthest, farthest))
        return {};
    return normalized(dot(swept, widest) < 0.0 ? widest * -1.0 : widest);
}

bool liesInPlane(const Path &points, const Vec3 &up, double tolerance)
{
    return std::ranges::all_of(
        points, [&](const Vec3 &point) { return std::abs(dot(point - points.front(), up)) <= tolerance; });
}

bool goesOnAt(const CurvePiece &piece)
{
    return piece.shape() != CurvePiece::Shape::Polynomial;
}

CurvePiece goingOn(const CurvePiece &piece, bool atStart, bool atEnd)
{
    const double endless = std::numeric_limits<double>::infinity();
    if (piece.shape() == CurvePiece::Shape::Straight)
        return piece.part(atStart ? -endless : piece.start(), atEnd ? endless : piece.end());
    if (piece.shape() == CurvePiece::Shape::Polynomial)
        return piece;
    if (atEnd)
        return piece.part(piece.start(), std::max(piece.end(), piece.start() + piece.turn()));
    return piece.part(std::min(piece.start(), piece.end() - piece.turn()), piece.end());
}

} // namespace

EntityCurve::EntityCurve(Kind kind, std::vector<CurvePiece> pieces, bool isClosed, const std::optional<Vec3> &normal)
    : m_kind(kind), m_pieces(std::move(pieces)), m_isClosed(isClosed), m_normal(normal)
{
    if (!m_isClosed && !isEndless() && length() > 0.0)
        m_isClosed = (startPoint() - endPoint()).length() <= sameRatio * largestCoordinate(box());
    const bool isSmooth = m_kind == Kind::Circle || m_kind == Kind::Ellipse || m_kind == Kind::Spline;
    if (m_isClosed && isSmooth && !isEndless()) {
        const Vec3 leaving = normalized(m_pieces.front().firstDerivative(startParameter()));
        const Vec3 arriving = normalized(m_pieces.back().firstDerivative(endParameter()));
        m_isPeriodic = (leaving - arriving).length() <= 1e-9;
    }
}

EntityCurve EntityCurve::line(const Vec3 &from, const Vec3 &to)
{
    return {Kind::Line, {CurvePiece::straight(from, to, 0.0, (to - from).length())}, false};
}

EntityCurve EntityCurve::through(const std::vector<Vec3> &points, bool isClosed)
{
    std::vector<CurvePiece> pieces;
    const size_t count = points.size();
    for (size_t i = 0; i < (isClosed ? count : count - 1); ++i) {
        const auto number = static_cast<double>(i);
        pieces.push_back(CurvePiece::straight(points[i], points[(i + 1) % count], number, number + 1.0));
    }
    if (pieces.empty())
        pieces.push_back(CurvePiece::straight(points.front(), points.front(), 0.0, 0.0));
    return {Kind::Polyline3d, std::move(pieces), isClosed};
}

EntityCurve EntityCurve::spline(const Spline &spline)
{
    std::vector<CurvePiece> pieces;
    for (BezierSpan &span : bezierSpans(spline))
        pieces.push_back(CurvePiece::polynomial(std::move(span)));
    return {Kind::Spline, std::move(pieces), false};
}

const CurvePiece &EntityCurve::pieceAt(double parameter) const
{
    const auto behind = std::upper_bound(m_pieces.begin(), m_pieces.end(), parameter,
                                         [](double value, const CurvePiece &piece) { return value < piece.start(); });
    return behind == m_pieces.begin() ? m_pieces.front() : *std::prev(behind);
}

const CurvePiece &EntityCurve::pieceFor(double &parameter) const
{
    const CurvePiece &piece = pieceAt(parameter);
    if ((m_isClosed && !m_isPeriodic) || !goesOnAt(piece))
        parameter = std::clamp(parameter, startParameter(), endParameter());
    return piece;
}

bool EntityCurve::isPlanar() const
{
    if (m_normal || m_kind == Kind::Line)
        return true;
    const Path points = framePoints(m_pieces);
    const Vec3 up = planeDirection(points, m_pieces);
    return liesInPlane(points, up, tolerance());
}

std::optional<Vec3> EntityCurve::normal() const
{
    if (m_normal || isEndless())
        return m_normal;
    const Path points = framePoints(m_pieces);
    const Vec3 up = planeDirection(points, m_pieces);
    if (up == Vec3{} || !liesInPlane(points, up, tolerance()))
        return {};
    return up;
}

Box EntityCurve::box() const
{
    Box box;
    for (const CurvePiece &piece : m_pieces)
        box.add(piece.box());
    return box;
}

std::optional<double> EntityCurve::parameterAt(const Vec3 &point) const
{
    const double parameter = closest(point);
    if (!((this->point(parameter) - point).length() <= tolerance()))
        return {};
    return parameter;
}

double EntityCurve::tolerance() const
{
    return std::max(1e-6, 1e-11 * largestCoordinate(box()));
}

double EntityCurve::length() const
{
    if (isEndless())
        return std::numeric_limits<double>::infinity();
    double sum = 0.0;
    for (const CurvePiece &piece : m_pieces)
        sum += piece.length();
    return sum;
}

double EntityCurve::distanceAt(double parameter) const
{
    if (isEndless())
        return m_pieces.front().length(0.0, parameter);
    const CurvePiece &last = pieceFor(parameter);
    double sum = 0.0;
    for (const CurvePiece *piece = m_pieces.data(); piece != &last; ++piece)
        sum += piece->length();
    return sum + last.length(last.start(), parameter);
}

std::optional<double> EntityCurve::parameterAtDistance(double distance) const
{
    const std::vector<double> found = parametersAtDistances({&distance, 1});
    return found.empty() ? std::nullopt : std::optional(found.front());
}

std::vector<double> EntityCurve::parametersAtDistances(std::span<const double> distances) const
{
    std::vector<double> found;
    auto next = distances.begin();
    if (isEndless()) {
        for (; next != distances.end(); ++next) {
            if (m_pieces.front().covers(m_pieces.front().parameterAfter(0.0, *next)))
                found.push_back(m_pieces.front().parameterAfter(0.0, *next));
        }
        return found;
    }
    double passed = 0.0;
    for (const CurvePiece &piece : m_pieces) {
        const double length = piece.length();
        const bool isLast = &piece == &m_pieces.back();
        const double slack = isLast ? 1e-9 * (passed + length) : 0.0; // sums of lengths are rounded
        for (; next != distances.end() && *next <= passed + length + slack; ++next) {
            if (*next >= -1e-9 * length)
                found.push_back(
                    std::clamp(piece.parameterAfter(piece.start(), *next - passed), piece.start(), piece.end()));
        }
        passed += length;
    }
    return found;
}

double EntityCurve::signedArea() const
{
    const std::optional<Vec3> up = normal();
    if (!up || isEndless())
        return 0.0;
    Vec3 sum;
    const Vec3 origin = startPoint();
    for (const CurvePiece &piece : m_pieces)
        sum = sum + piece.sweptArea(origin);
    return dot(sum, *up) / 2.0;
}

double EntityCurve::closest(const Vec3 &point, Extension extension) const
{
    if (extension != Extension::None)
        return extended(extension).closest(point);
    double best = startParameter();
    double distance = std::numeric_limits<double>::infinity();
    for (const CurvePiece &piece : m_pieces) {
        // Boxes save the search where it costs most.
        if (piece.shape() == CurvePiece::Shape::Polynomial && m_pieces.size() > 1) {
            const Box box = piece.box();
            const Vec3 inside{std::clamp(point.x, box.low.x, box.high.x), std::clamp(point.y, box.low.y, box.high.y),
                              std::clamp(point.z, box.low.z, box.high.z)};
            if ((inside - point).length() > distance)
                continue;
        }
        const double parameter = piece.closest(point);
        const double now = (piece.point(parameter) - point).length();
        if (now < distance) {
            distance = now;
            best = parameter;
        }
    }
    return best;
}

double EntityCurve::closestProjected(const Vec3 &point, const Vec3 &direction, Extension extension) const
{
    return flattened(direction).closest(flattening(direction).point(point), extension);
}

EntityCurve EntityCurve::extended(Extension extension) const
{
    EntityCurve curve = *this;
    if (m_isClosed || extension == Extension::None)
        return curve;
    const bool atStart = extension != Extension::End;
    const bool atEnd = extension != Extension::Start;
    if (curve.m_pieces.size() == 1) {
        curve.m_pieces.front() = goingOn(m_pieces.front(), atStart, atEnd);
        return curve;
    }
    if (atStart)
        curve.m_pieces.front() = goingOn(m_pieces.front(), true, false);
    if (atEnd)
        curve.m_pieces.back() = goingOn(m_pieces.back(), false, true);
    return curve;
}

EntityCurve EntityCurve::transformed(const Matrix &matrix) const
{
    EntityCurve curve = *this;
    for (CurvePiece &piece : curve.m_pieces)
        piece = piece.transformed(matrix);
    if (m_normal) {
        // At right angles to two directions of the plane, whatever the map does to angles.
        const Matrix plane = Matrix::fromExtrusion(*m_normal);
        const Vec3 normal = normalized(cross(matrix.direction(plane.xAxis), matrix.direction(plane.yAxis)));
        curve.m_normal = normal == Vec3{} ? std::nullopt : std::optional(normal);
    }
    return curve;
}

Matrix flattening(const Vec3 &direction)
{
    const Vec3 up = normalized(direction);
    return {Vec3{1, 0, 0} - up * up.x, Vec3{0, 1, 0} - up * up.y, Vec3{0, 0, 1} - up * up.z, {}};
}

EntityCurve EntityCurve::flattened(const Vec3 &direction) const
{
    return transformed(flattening(direction));
}

} // namespace host::drawing
