#include "host/commands/draw/SplineFit.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace host::kernel {

using drawing::Spline;
using drawing::Vec3;

namespace {

/// One row of the equations for the derivatives at the points: lower * m[i-1] + middle * m[i] + upper * m[i+1] = right.
struct FitRow
{
    double lower = 0.0;
    double middle = 1.0;
    double upper = 0.0;
    Vec3 right;
};

/// Without the corners of a cyclic system.
std::vector<Vec3> solveRows(std::vector<FitRow> rows)
{
    for (std::size_t i = 1; i < rows.size(); ++i) {
        const double factor = rows[i].lower / rows[i - 1].middle;
        rows[i].middle -= factor * rows[i - 1].upper;
        rows[i].right = rows[i].right - rows[i - 1].right * factor;
    }
    std::vector<Vec3> solution(rows.size());
    for (std::size_t i = rows.size(); i-- > 0;) {
        const Vec3 next = i + 1 < rows.size() ? solution[i + 1] * rows[i].upper : Vec3{};
        solution[i] = (rows[i].right - next) * (1.0 / rows[i].middle);
    }
    return solution;
}

/// The first row's lower and the last row's upper belong to the neighbours across the seam.
std::vector<Vec3> solveCyclic(std::vector<FitRow> rows)
{
    const double top = rows.front().lower;
    const double bottom = rows.back().upper;
    // The corners are taken out as a product of two vectors, which a second solution puts back.
    const double gamma = -rows.front().middle;
    rows.front().middle -= gamma;
    rows.back().middle -= bottom * top / gamma;
    std::vector<FitRow> corners = rows;
    for (FitRow &row : corners)
        row.right = {};
    corners.front().right.x = gamma;
    corners.back().right.x = bottom;
    const std::vector<Vec3> plain = solveRows(std::move(rows));
    const std::vector<Vec3> aside = solveRows(std::move(corners));
    const double ratio = top / gamma;
    const double below = 1.0 + aside.front().x + ratio * aside.back().x;
    const Vec3 factor = (plain.front() + plain.back() * ratio) * (1.0 / below);
    std::vector<Vec3> solution(plain.size());
    for (std::size_t i = 0; i < plain.size(); ++i)
        solution[i] = plain[i] - factor * aside[i].x;
    return solution;
}

/// Points with parameters; a closed curve has its first point again at the end.
struct FitNodes
{
    std::vector<Vec3> points;
    std::vector<double> at;

    double step(std::size_t i) const { return at[i + 1] - at[i]; }
    Vec3 slope(std::size_t i) const { return (points[i + 1] - points[i]) * (1.0 / step(i)); }
    std::size_t last() const { return points.size() - 1; }
};

FitNodes nodesOf(const SplineFit &fit)
{
    FitNodes nodes{fit.points, {0.0}};
    if (fit.isClosed)
        nodes.points.push_back(fit.points.front());
    for (std::size_t i = 0; i < nodes.last(); ++i) {
        const double chord = (nodes.points[i + 1] - nodes.points[i]).length();
        const double step = fit.spacing == KnotSpacing::Uniform      ? 1.0
                            : fit.spacing == KnotSpacing::SquareRoot ? std::sqrt(chord)
                                                                     : chord;
        nodes.at.push_back(nodes.at.back() + step);
    }
    return nodes;
}

/// Continuous curvature at a point, with the stretches in front of and behind it.
FitRow smoothRow(const FitNodes &nodes, std::size_t before, std::size_t behind)
{
    const double first = nodes.step(before);
    const double second = nodes.step(behind);
    return {second, 2.0 * (first + second), first, (nodes.slope(before) * second + nodes.slope(behind) * first) * 3.0};
}

/// A tangent has the speed of the stretch that it belongs to.
Vec3 derivativeAlong(const Vec3 &tangent, const Vec3 &slope)
{
    return drawing::normalized(tangent) * slope.length();
}

std::vector<Vec3> openDerivatives(const FitNodes &nodes, const SplineFit &fit)
{
    const std::size_t last = nodes.last();
    std::vector<FitRow> rows(last + 1);
    const auto endRow = [&](std::size_t row, std::size_t stretch, const std::optional<Vec3> &tangent) {
        if (tangent)
            return FitRow{0.0, 1.0, 0.0, derivativeAlong(*tangent, nodes.slope(stretch))};
        return FitRow{row == 0 ? 0.0 : 1.0, 2.0, row == 0 ? 1.0 : 0.0, nodes.slope(stretch) * 3.0};
    };
    rows.front() = endRow(0, 0, fit.startTangent);
    for (std::size_t i = 1; i < last; ++i)
        rows[i] = smoothRow(nodes, i - 1, i);
    rows.back() = endRow(last, last - 1, fit.isClosed ? fit.startTangent : fit.endTangent);
    return solveRows(std::move(rows));
}

std::vector<Vec3> closedDerivatives(const FitNodes &nodes)
{
    const std::size_t count = nodes.last();
    std::vector<FitRow> rows;
    for (std::size_t i = 0; i < count; ++i)
        rows.push_back(smoothRow(nodes, i == 0 ? count - 1 : i - 1, i));
    std::vector<Vec3> derivatives = solveCyclic(std::move(rows));
    derivatives.push_back(derivatives.front());
    return derivatives;
}

/// The polar form of a stretch between two nodes, which gives control points.
Vec3 blossom(const FitNodes &nodes, const std::vector<Vec3> &derivatives, std::size_t stretch,
             const std::array<double, 3> &at)
{
    const double step = nodes.step(stretch);
    std::array<Vec3, 4> points = {nodes.points[stretch], nodes.points[stretch] + derivatives[stretch] * (step / 3.0),
                                  nodes.points[stretch + 1] - derivatives[stretch + 1] * (step / 3.0),
                                  nodes.points[stretch + 1]};
    for (std::size_t round = 0; round < 3; ++round) {
        const double t = (at[round] - nodes.at[stretch]) / step;
        for (std::size_t i = 0; i + round < 3; ++i)
            points[i] = points[i] * (1.0 - t) + points[i + 1] * t;
    }
    return points[0];
}

} // namespace

Spline splineThrough(const SplineFit &fit)
{
    const FitNodes nodes = nodesOf(fit);
    const bool isCyclic = fit.isClosed && !fit.startTangent && fit.points.size() > 2;
    const std::vector<Vec3> derivatives = isCyclic ? closedDerivatives(nodes) : openDerivatives(nodes, fit);
    Spline spline;
    spline.isClosed = fit.isClosed;
    spline.fitPoints = nodes.points;
    spline.knots.assign(3, nodes.at.front());
    spline.knots.insert(spline.knots.end(), nodes.at.begin(), nodes.at.end());
    spline.knots.insert(spline.knots.end(), 3, nodes.at.back());
    for (std::size_t i = 0; i + 4 < spline.knots.size(); ++i) {
        // Each stretch within the control point's reach gives the same: the one behind its middle knot is such a one.
        const std::size_t stretch = std::clamp<std::size_t>(i, 1, nodes.last()) - 1;
        spline.controlPoints.push_back(
            blossom(nodes, derivatives, stretch, {spline.knots[i + 1], spline.knots[i + 2], spline.knots[i + 3]}));
    }
    return spline;
}

Spline splineOver(std::vector<Vec3> controlPoints, int degree, bool isClosed)
{
    Spline spline;
    spline.degree = std::clamp(degree, 1, static_cast<int>(std::min<std::size_t>(controlPoints.size() - 1, 25)));
    spline.isClosed = isClosed;
    const auto order = static_cast<std::size_t>(spline.degree) + 1;
    const std::size_t wrapped = isClosed ? order - 1 : 0;
    for (std::size_t i = 0; i < wrapped; ++i)
        controlPoints.push_back(controlPoints[i]);
    spline.controlPoints = std::move(controlPoints);
    const std::size_t count = spline.controlPoints.size() + order;
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t inner = std::clamp(i, order - 1, count - order) - (order - 1);
        spline.knots.push_back(isClosed ? static_cast<double>(i) - static_cast<double>(order - 1)
                                        : static_cast<double>(inner));
    }
    return spline;
}

} // namespace host::kernel
