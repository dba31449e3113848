#include "host/drawing/curves/CurvePiece.h"

#include "host/drawing/math/Angles.h"
#include "host/drawing/math/Quadrature.h"

#include <array>
#include <numbers>

namespace host::drawing {

namespace {

/// A row of control points multiplied by their weights, worked on in place.
struct BezierRow
{
    std::array<Vec3, Spline::highestDegree + 1> points;
    std::array<double, Spline::highestDegree + 1> weights;
    size_t count;

    explicit BezierRow(const BezierSpan &span) : count(span.points.size())
    {
        for (size_t i = 0; i < count; ++i) {
            weights[i] = span.weights.empty() ? 1.0 : span.weights[i];
            points[i] = span.points[i] * weights[i];
        }
    }
    /// One round of de Casteljau's scheme: one point less.
    void step(double t)
    {
        --count;
        for (size_t i = 0; i < count; ++i) {
            points[i] = points[i] * (1.0 - t) + points[i + 1] * t;
            weights[i] = weights[i] * (1.0 - t) + weights[i + 1] * t;
        }
    }
};

/// Value and derivatives of numerator and denominator at a share of the way.
struct BezierJet
{
    std::array<Vec3, 3> point;
    std::array<double, 3> weight{};

    BezierJet(const BezierSpan &span, double share)
    {
        BezierRow row(span);
        const auto degree = static_cast<double>(row.count - 1);
        while (row.count > 3)
            row.step(share);
        if (row.count == 3) {
            point[2] = (row.points[0] - row.points[1] * 2.0 + row.points[2]) * (degree * (degree - 1.0));
            weight[2] = (row.weights[0] - row.weights[1] * 2.0 + row.weights[2]) * (degree * (degree - 1.0));
            row.step(share);
        }
        if (row.count == 2) {
            point[1] = (row.points[1] - row.points[0]) * degree;
            weight[1] = (row.weights[1] - row.weights[0]) * degree;
            row.step(share);
        }
        point[0] = row.points[0];
        weight[0] = row.weights[0];
    }
    Vec3 value() const { return point[0] * (1.0 / weight[0]); }
    Vec3 first() const { return (point[1] - value() * weight[1]) * (1.0 / weight[0]); }
    Vec3 second() const { return (point[2] - first() * (2.0 * weight[1]) - value() * weight[2]) * (1.0 / weight[0]); }
};

BezierSpan bezierHalf(const BezierSpan &span, double share, bool isFirst)
{
    BezierRow row(span);
    BezierSpan half;
    const auto keep = [&](size_t i) {
        half.points.push_back(row.points[i] * (1.0 / row.weights[i]));
        if (!span.weights.empty())
            half.weights.push_back(row.weights[i]);
    };
    for (keep(isFirst ? 0 : row.count - 1); row.count > 1;) {
        row.step(share);
        keep(isFirst ? 0 : row.count - 1);
    }
    if (!isFirst) {
        std::ranges::reverse(half.points);
        std::ranges::reverse(half.weights);
    }
    const double middle = span.start + (span.end - span.start) * share;
    half.start = isFirst ? span.start : middle;
    half.end = isFirst ? middle : span.end;
    return half;
}

/// Lowest and highest value of a coordinate of a round piece: center + x cos + y sin over a range of angles.
std::pair<double, double> roundExtent(double center, double x, double y, double low, double high)
{
    const auto at = [&](double angle) { return center + x * std::cos(angle) + y * std::sin(angle); };
    std::pair<double, double> extent = std::minmax(at(low), at(high));
    const double crest = std::atan2(y, x);
    const double half = std::numbers::pi;
    // Of crests and troughs in turn the first two say all, and angles so large that half a turn is lost in them end.
    const double first = std::ceil((low - crest) / half);
    for (const double turned : {first, first + 1.0}) {
        const double angle = crest + turned * half;
        if (angle > high)
            break;
        extent.first = std::min(extent.first, at(angle));
        extent.second = std::max(extent.second, at(angle));
    }
    return extent;
}

} // namespace

double shareAlong(const Vec3 &from, const Vec3 &to, const Vec3 &point)
{
    const Vec3 way = to - from;
    const double square = dot(way, way);
    return square > 0.0 ? std::clamp(dot(point - from, way) / square, 0.0, 1.0) : 0.0;
}

CurvePiece CurvePiece::straight(const Vec3 &from, const Vec3 &to, double start, double end)
{
    CurvePiece piece = endless(from, end > start ? (to - from) * (1.0 / (end - start)) : Vec3{}, start, end);
    piece.m_base = start;
    return piece;
}

CurvePiece CurvePiece::endless(const Vec3 &origin, const Vec3 &direction, double start, double end)
{
    CurvePiece piece;
    piece.m_origin = origin;
    piece.m_xAxis = direction;
    piece.m_start = start;
    piece.m_end = end;
    return piece;
}

CurvePiece CurvePiece::round(const Vec3 &center, const Vec3 &xAxis, const Vec3 &yAxis, double from, double to,
                             double start, double end)
{
    CurvePiece piece;
    piece.m_shape = Shape::Round;
    piece.m_origin = center;
    piece.m_xAxis = xAxis;
    piece.m_yAxis = yAxis;
    piece.m_angle = from;
    piece.m_base = start;
    piece.m_rate = end > start ? (to - from) / (end - start) : 1.0;
    piece.m_start = start;
    piece.m_end = end;
    return piece;
}

CurvePiece CurvePiece::polynomial(BezierSpan span)
{
    constexpr size_t mostPoints = Spline::highestDegree + 1;
    if (span.points.size() > mostPoints)
        return straight(span.points.front(), span.points.back(), span.start, span.end);
    CurvePiece piece;
    piece.m_shape = Shape::Polynomial;
    piece.m_start = span.start;
    piece.m_end = span.end;
    piece.m_span = std::move(span);
    return piece;
}

Vec3 CurvePiece::point(double parameter) const
{
    const double along = parameter - m_base;
    switch (m_shape) {
    case Shape::Straight:
        return m_origin + m_xAxis * along;
    case Shape::Round:
        return m_origin + m_xAxis * std::cos(angleAt(parameter)) + m_yAxis * std::sin(angleAt(parameter));
    case Shape::Polynomial:
        break;
    }
    return BezierJet(m_span, (parameter - m_span.start) / (m_span.end - m_span.start)).value();
}

Vec3 CurvePiece::firstDerivative(double parameter) const
{
    if (m_shape == Shape::Straight)
        return m_xAxis;
    const double angle = angleAt(parameter);
    if (m_shape == Shape::Round)
        return (m_yAxis * std::cos(angle) - m_xAxis * std::sin(angle)) * m_rate;
    const double width = m_span.end - m_span.start;
    return BezierJet(m_span, (parameter - m_span.start) / width).first() * (1.0 / width);
}

Vec3 CurvePiece::secondDerivative(double parameter) const
{
    if (m_shape == Shape::Straight)
        return {};
    if (m_shape == Shape::Round)
        return (point(parameter) - m_origin) * (-m_rate * m_rate);
    const double width = m_span.end - m_span.start;
    return BezierJet(m_span, (parameter - m_span.start) / width).second() * (1.0 / (width * width));
}

bool CurvePiece::isCircular() const
{
    const double size = std::max(m_xAxis.length(), m_yAxis.length());
    return m_shape == Shape::Round && std::abs(m_xAxis.length() - m_yAxis.length()) <= 1e-12 * size &&
           std::abs(dot(m_xAxis, m_yAxis)) <= 1e-12 * size * size;
}

double CurvePiece::turn() const
{
    return m_rate != 0.0 ? wholeTurn / std::abs(m_rate) : wholeTurn;
}

double CurvePiece::parameterOfAngle(double angle) const
{
    if (m_rate == 0.0)
        return m_start;
    const double any = m_base + (angle - m_angle) / m_rate;
    // Rounding alone takes no angle round the circle.
    const double slack = 1e-12 * turn();
    const double inside = any - std::floor((any - m_start + slack) / turn()) * turn();
    const double before = inside - turn();
    return inside > m_end && m_start - before < inside - m_end ? before : inside;
}

CurvePiece CurvePiece::part(double start, double end) const
{
    CurvePiece piece = *this;
    piece.m_start = start;
    piece.m_end = end;
    if (m_shape != Shape::Polynomial)
        return piece;
    const double width = m_span.end - m_span.start;
    if (end < m_span.end)
        piece.m_span = bezierHalf(piece.m_span, (end - m_span.start) / width, true);
    if (start > m_span.start)
        piece.m_span = bezierHalf(piece.m_span, (start - m_span.start) / (piece.m_span.end - m_span.start), false);
    piece.m_span.start = start;
    piece.m_span.end = end;
    return piece;
}

CurvePiece CurvePiece::transformed(const Matrix &matrix) const
{
    CurvePiece piece = *this;
    piece.m_origin = matrix.point(m_origin);
    piece.m_xAxis = matrix.direction(m_xAxis);
    piece.m_yAxis = matrix.direction(m_yAxis);
    for (Vec3 &point : piece.m_span.points)
        point = matrix.point(point);
    return piece;
}

double CurvePiece::deviation() const
{
    if (m_shape == Shape::Straight)
        return 0.0;
    if (m_shape == Shape::Round) {
        const double half = std::min(std::abs((m_end - m_start) * m_rate) / 2.0, std::numbers::pi);
        const double size = isCircular() ? m_xAxis.length() : std::hypot(m_xAxis.length(), m_yAxis.length());
        const double quarter = std::sin(half / 2.0);
        return size * 2.0 * quarter * quarter;
    }
    double farthest = 0.0;
    const Vec3 &from = m_span.points.front();
    const Vec3 &to = m_span.points.back();
    for (const Vec3 &point : m_span.points)
        farthest = std::max(farthest, (point - (from + (to - from) * shareAlong(from, to, point))).length());
    return farthest;
}

Box CurvePiece::box() const
{
    Box box;
    if (m_shape == Shape::Straight) {
        const auto extent = [&](double origin, double direction) {
            const auto at = [&](double along) { return direction == 0.0 ? origin : origin + direction * along; };
            return std::minmax({at(m_start - m_base), at(m_end - m_base)});
        };
        const auto [x, y, z] =
            std::array{extent(m_origin.x, m_xAxis.x), extent(m_origin.y, m_xAxis.y), extent(m_origin.z, m_xAxis.z)};
        return {{x.first, y.first, z.first}, {x.second, y.second, z.second}};
    }
    if (m_shape == Shape::Round) {
        const auto [low, high] = std::minmax({angleAt(m_start), angleAt(m_end)});
        const auto x = roundExtent(m_origin.x, m_xAxis.x, m_yAxis.x, low, high);
        const auto y = roundExtent(m_origin.y, m_xAxis.y, m_yAxis.y, low, high);
        const auto z = roundExtent(m_origin.z, m_xAxis.z, m_yAxis.z, low, high);
        return {{x.first, y.first, z.first}, {x.second, y.second, z.second}};
    }
    for (const Vec3 &point : m_span.points)
        box.add(point);
    return box;
}

double CurvePiece::length(double from, double to) const
{
    if (m_shape == Shape::Straight)
        return from == to ? 0.0 : m_xAxis.length() * (to - from);
    if (isCircular())
        return m_xAxis.length() * std::abs(m_rate) * (to - from);
    return integral([&](double parameter) { return firstDerivative(parameter).length(); }, from, to);
}

double CurvePiece::parameterAfter(double from, double distance) const
{
    if (m_shape == Shape::Straight || isCircular()) {
        const double speed = firstDerivative(from).length();
        return speed > 0.0 ? from + distance / speed : from;
    }
    // Newton's rule, held within what is known to lie on both sides.
    double low = distance < 0.0 ? (m_shape == Shape::Round ? from - turn() : m_start) : from;
    double high = distance < 0.0 ? from : (m_shape == Shape::Round ? from + turn() : m_end);
    double at = std::clamp(from + distance / std::max(length() / std::max(m_end - m_start, 1e-300), 1e-300), low, high);
    double passed = length(from, at);
    for (int i = 0; i < 60; ++i) {
        const double missing = distance - passed;
        (missing > 0.0 ? low : high) = at;
        const double speed = firstDerivative(at).length();
        double next = speed > 0.0 ? at + missing / speed : (low + high) / 2.0;
        if (!(next > low && next < high))
            next = (low + high) / 2.0;
        if (std::abs(next - at) <= 1e-15 * (std::abs(next) + std::abs(m_end - m_start)))
            return next;
        passed += length(at, next);
        at = next;
    }
    return at;
}

Vec3 CurvePiece::sweptArea(const Vec3 &origin) const
{
    if (m_shape == Shape::Straight)
        return cross(startPoint() - origin, endPoint() - origin);
    if (m_shape == Shape::Round)
        return cross(m_origin - origin, endPoint() - startPoint()) +
               cross(m_xAxis, m_yAxis) * (angleAt(m_end) - angleAt(m_start));
    const auto part = [&](double Vec3::*axis) {
        return integral(
            [&](double parameter) { return cross(point(parameter) - origin, firstDerivative(parameter)).*axis; },
            m_start, m_end);
    };
    return {part(&Vec3::x), part(&Vec3::y), part(&Vec3::z)};
}

double CurvePiece::closest(const Vec3 &point) const
{
    if (m_shape == Shape::Straight) {
        const double square = dot(m_xAxis, m_xAxis);
        return square > 0.0 ? std::clamp(m_base + dot(point - m_origin, m_xAxis) / square, m_start, m_end) : m_start;
    }
    if (!isCircular())
        return closestByHalves(point);
    const Vec3 out = point - m_origin;
    const double parameter = parameterOfAngle(std::atan2(dot(out, m_yAxis), dot(out, m_xAxis)));
    if (covers(parameter))
        return parameter;
    const bool isStartNearer = (startPoint() - point).length() <= (endPoint() - point).length();
    return isStartNearer ? m_start : m_end;
}

namespace {

/// Looks for the nearest point of a piece, leaving out what cannot hold it.
class NearestSearch
{
public:
    NearestSearch(const CurvePiece &piece, const Vec3 &point) : m_piece(piece), m_point(point)
    {
        offer(piece.start());
        offer(piece.end());
    }
    double parameter() const { return m_best; }

    void look(const CurvePiece &part, int depth)
    {
        const Vec3 from = part.startPoint();
        const Vec3 to = part.endPoint();
        const double share = shareAlong(from, to, m_point);
        const double deviation = part.deviation();
        if ((from + (to - from) * share - m_point).length() - deviation >= m_distance)
            return;
        if (depth == 0 || deviation <= 1e-3 * (to - from).length())
            return offer(descend(part, part.start() + (part.end() - part.start()) * share));
        const double middle = (part.start() + part.end()) / 2.0;
        const CurvePiece first = part.part(part.start(), middle);
        const CurvePiece second = part.part(middle, part.end());
        offer(middle);
        const bool isFirstNearer = (from - m_point).length() <= (to - m_point).length();
        look(isFirstNearer ? first : second, depth - 1);
        look(isFirstNearer ? second : first, depth - 1);
    }

private:
    void offer(double parameter)
    {
        const double distance = (m_piece.point(parameter) - m_point).length();
        if (distance < m_distance || (distance == m_distance && parameter < m_best)) {
            m_distance = distance;
            m_best = parameter;
        }
    }

    /// From a parameter to where the way to the point is at right angles to the curve.
    double descend(const CurvePiece &part, double at) const
    {
        for (int i = 0; i < 30; ++i) {
            const Vec3 way = m_piece.point(at) - m_point;
            const Vec3 first = m_piece.firstDerivative(at);
            const double slope = dot(way, first);
            const double square = dot(first, first);
            const double bend = square + dot(way, m_piece.secondDerivative(at));
            const double by = slope / (bend > 0.0 ? bend : square);
            if (!std::isfinite(by))
                break;
            const double next = std::clamp(at - by, part.start(), part.end());
            if (std::abs(next - at) <= 1e-15 * (std::abs(next) + std::abs(m_piece.end() - m_piece.start())))
                return next;
            at = next;
        }
        return at;
    }

    const CurvePiece &m_piece;
    const Vec3 &m_point;
    double m_best = 0.0;
    double m_distance = std::numeric_limits<double>::infinity();
};

} // namespace

double CurvePiece::closestByHalves(const Vec3 &point) const
{
    constexpr int mostHalvings = 9;
    NearestSearch search(*this, point);
    search.look(*this, mostHalvings);
    return search.parameter();
}

} // namespace host::drawing
