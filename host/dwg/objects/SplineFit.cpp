#include "host/dwg/objects/SplineFit.h"

#include <cmath>

namespace host::dwg {

namespace {

constexpr int degree = 3;

Point shifted(const Point &one, const Point &other, double factor = 1.0)
{
    return {one.x + factor * other.x, one.y + factor * other.y, one.z + factor * other.z};
}

Point times(const Point &one, double factor)
{
    return {one.x * factor, one.y * factor, one.z * factor};
}

double lengthOf(const Point &point)
{
    return std::sqrt(point.x * point.x + point.y * point.y + point.z * point.z);
}

/// The first and the last knot stand there four times.
std::vector<double> knotsOf(const std::vector<Point> &points)
{
    std::vector<double> knots(degree + 1, 0.0);
    for (std::size_t i = 1; i < points.size(); ++i)
        knots.push_back(knots.back() + lengthOf(shifted(points[i], points[i - 1], -1.0)));
    knots.insert(knots.end(), degree, knots.back());
    return knots;
}

/// One of the equations for the control points between the two ends: of its point and its neighbours.
struct SplineEquation
{
    double before = 0.0;
    double here = 1.0;
    double behind = 0.0;
    Point value;
};

/// For a tangent at an end: the point beside it. `span` is the chord there, `reach` the knots that the second point
/// from the end is over; `from` is the end, `side` 1 at the start and -1 at the end.
SplineEquation endEquation(const Point &from, const Point &tangent, double span, double reach, double side)
{
    SplineEquation row;
    if (tangent != Point()) {
        row.value = shifted(from, tangent, side * span / degree);
        return row;
    }
    row.here = 1.0 / span + 1.0 / reach;
    (side > 0 ? row.behind : row.before) = -1.0 / reach;
    row.value = times(from, 1.0 / span);
    return row;
}

/// For the spline to go through the point at the knot `k`.
SplineEquation innerEquation(const std::vector<double> &knots, std::size_t k, const Point &point)
{
    const double wide = knots[k + 1] - knots[k - 1];
    const double ahead = knots[k + 1] - knots[k];
    const double back = knots[k] - knots[k - 1];
    SplineEquation row;
    row.before = ahead * ahead / ((knots[k + 1] - knots[k - 2]) * wide);
    row.behind = back * back / ((knots[k + 2] - knots[k - 1]) * wide);
    row.here = 1.0 - row.before - row.behind;
    row.value = point;
    return row;
}

/// From the first row to the last one, and back.
std::vector<Point> solved(std::vector<SplineEquation> rows)
{
    for (std::size_t i = 1; i < rows.size(); ++i) {
        const double factor = rows[i].before / rows[i - 1].here;
        rows[i].here -= factor * rows[i - 1].behind;
        rows[i].value = shifted(rows[i].value, rows[i - 1].value, -factor);
    }
    std::vector<Point> points(rows.size());
    for (std::size_t i = rows.size(); i-- > 0;) {
        const Point rest = i + 1 < rows.size() ? shifted(rows[i].value, points[i + 1], -rows[i].behind) : rows[i].value;
        points[i] = times(rest, 1.0 / rows[i].here);
    }
    return points;
}

} // namespace

std::optional<FittedSpline> splineThrough(const std::vector<Point> &points, const Point &startTangent,
                                          const Point &endTangent)
{
    const std::size_t count = points.size();
    if (count < 2)
        return std::nullopt;
    FittedSpline spline{knotsOf(points), {}};
    const std::vector<double> &knots = spline.knots;
    for (std::size_t k = degree + 1; k < count + degree; ++k) {
        if (!(knots[k] > knots[k - 1]) || !std::isfinite(knots[k]))
            return std::nullopt;
    }
    std::vector<SplineEquation> rows;
    rows.push_back(endEquation(points.front(), startTangent, knots[4], knots[5], 1.0));
    for (std::size_t i = 1; i + 1 < count; ++i)
        rows.push_back(innerEquation(knots, i + degree, points[i]));
    const double last = knots.back();
    rows.push_back(endEquation(points.back(), endTangent, last - knots[count + 1], last - knots[count], -1.0));
    spline.points = solved(std::move(rows));
    spline.points.insert(spline.points.begin(), points.front());
    spline.points.push_back(points.back());
    return spline;
}

} // namespace host::dwg
