#include "host/drawing/math/Curves.h"

#include "host/drawing/math/SplineEdit.h"

#include <QtGlobal>

#include <array>
#include <numbers>

namespace host::drawing {

namespace {

constexpr double pi = std::numbers::pi;

/// How many pieces a turn of `sweep` radians takes.
int pieceCount(double radius, double sweep, const Flatness &flatness)
{
    double step = flatness.maximumAngle;
    if (flatness.chordError > 0.0) {
        const double ratio = std::min(1.0, flatness.chordError / std::max(radius, 1e-300));
        step = std::min(2.0 * std::acos(1.0 - ratio), pi / 4.0);
    }
    const double wanted = std::ceil(std::abs(sweep) / std::max(step, 1e-6));
    return static_cast<int>(std::clamp(wanted, 1.0, static_cast<double>(std::max(1, flatness.maximumPieces))));
}

/// The sweep from `start` to `end` counter-clockwise, in (0, 2 pi].
double sweepBetween(double start, double end)
{
    double sweep = std::fmod(end - start, 2.0 * pi);
    if (sweep <= 1e-12)
        sweep += 2.0 * pi;
    return sweep;
}

/// Appends a stretch of a curve so finely that the middle of each piece is near its chord.
class CurveSampler
{
public:
    CurveSampler(const Spline &spline, const Flatness &flatness, Path &path)
        : m_spline(spline), m_flatness(flatness), m_path(path)
    {
    }

    void append(double from, double to)
    {
        constexpr int firstPieces = 4;
        Vec3 begin = m_spline.point(from);
        for (int i = 1; i <= firstPieces; ++i) {
            const double end = from + (to - from) * i / firstPieces;
            const Vec3 endPoint = m_spline.point(end);
            split(from + (to - from) * (i - 1) / firstPieces, begin, end, endPoint, 0);
            begin = endPoint;
        }
    }

private:
    void split(double from, const Vec3 &begin, double to, const Vec3 &end, int depth)
    {
        constexpr int maximumDepth = 7;
        const double middle = (from + to) / 2.0;
        const Vec3 middlePoint = m_spline.point(middle);
        const bool isFull = m_path.size() >= static_cast<size_t>(std::max(1, m_flatness.maximumPieces));
        if (depth >= maximumDepth || isFull || isFlat(begin, middlePoint, end)) {
            m_path.push_back(end);
            return;
        }
        split(from, begin, middle, middlePoint, depth + 1);
        split(middle, middlePoint, to, end, depth + 1);
    }

    bool isFlat(const Vec3 &begin, const Vec3 &middle, const Vec3 &end) const
    {
        const Vec3 first = middle - begin;
        const Vec3 second = end - middle;
        if (m_flatness.chordError > 0.0)
            return (middle - (begin + end) * 0.5).length() <= m_flatness.chordError;
        const double turn = std::atan2(cross(first, second).length(), dot(first, second));
        return turn <= m_flatness.maximumAngle;
    }

    const Spline &m_spline;
    const Flatness &m_flatness;
    Path &m_path;
};

} // namespace

Path arcPath(const Vec3 &center, double radius, double start, double end, const Flatness &flatness)
{
    const double sweep = sweepBetween(start, end);
    const int pieces = pieceCount(std::abs(radius), sweep, flatness);
    Path path;
    path.reserve(static_cast<size_t>(pieces) + 1);
    for (int i = 0; i <= pieces; ++i) {
        const double angle = start + sweep * i / pieces;
        path.push_back(center + Vec3{std::cos(angle) * radius, std::sin(angle) * radius, 0.0});
    }
    return path;
}

Path circlePath(const Vec3 &center, double radius, const Flatness &flatness)
{
    Path path = arcPath(center, radius, 0.0, 2.0 * pi, flatness);
    path.back() = path.front();
    return path;
}

BulgeArc bulgeArc(Vec2 from, Vec2 to, double bulge)
{
    const Vec2 chord = to - from;
    const double length = chord.length();
    if (bulge == 0.0 || length == 0.0)
        return {};
    BulgeArc arc;
    arc.sweep = 4.0 * std::atan(bulge);
    arc.radius = length * (1.0 + bulge * bulge) / (4.0 * std::abs(bulge));
    const double toCenter = (1.0 - bulge * bulge) / (4.0 * bulge);
    arc.center = (from + to) * 0.5 + Vec2{-chord.y, chord.x} * toCenter;
    arc.startAngle = std::atan2(from.y - arc.center.y, from.x - arc.center.x);
    return arc;
}

void appendBulge(Path &path, const Vec3 &from, const Vec3 &to, double bulge, const Flatness &flatness)
{
    const BulgeArc arc = bulgeArc(from.xy(), to.xy(), bulge);
    if (arc.radius > 0.0 && std::isfinite(arc.radius)) {
        const int pieces = pieceCount(arc.radius, arc.sweep, flatness);
        for (int i = 1; i < pieces; ++i) {
            const double angle = arc.startAngle + arc.sweep * i / pieces;
            path.push_back({arc.center.x + std::cos(angle) * arc.radius, arc.center.y + std::sin(angle) * arc.radius,
                            from.z + (to.z - from.z) * i / pieces});
        }
    }
    path.push_back(to);
}

Path ellipsePath(const Vec3 &center, const Vec3 &majorAxis, const Vec3 &extrusion, double ratio, double startParameter,
                 double endParameter, const Flatness &flatness)
{
    const Vec3 minorAxis = cross(normalized(extrusion), majorAxis) * ratio;
    const double sweep = sweepBetween(startParameter, endParameter);
    const int pieces = pieceCount(majorAxis.length(), sweep, flatness);
    Path path;
    path.reserve(static_cast<size_t>(pieces) + 1);
    for (int i = 0; i <= pieces; ++i) {
        const double t = startParameter + sweep * i / pieces;
        path.push_back(center + majorAxis * std::cos(t) + minorAxis * std::sin(t));
    }
    return path;
}

double ellipseParameter(double angle, double ratio)
{
    if (!(std::abs(ratio) > 0.0) || !std::isfinite(angle))
        return angle;
    const double nearest = std::atan2(std::sin(angle), std::abs(ratio) * std::cos(angle));
    return nearest + std::round((angle - nearest) / (2.0 * pi)) * 2.0 * pi;
}

bool Spline::isValid() const
{
    const auto order = static_cast<size_t>(degree) + 1;
    const bool isSized = degree >= 1 && degree <= highestDegree && controlPoints.size() >= order &&
                         knots.size() == controlPoints.size() + order &&
                         (weights.empty() || weights.size() == controlPoints.size());
    return isSized && std::is_sorted(knots.begin(), knots.end()) && firstParameter() < lastParameter();
}

double Spline::firstParameter() const
{
    return knots[static_cast<size_t>(degree)];
}

double Spline::lastParameter() const
{
    return knots[controlPoints.size()];
}

Vec3 Spline::point(double parameter) const
{
    const auto p = static_cast<size_t>(degree);
    const double u = std::clamp(parameter, firstParameter(), lastParameter());
    const auto first = knots.begin() + degree;
    const auto last = knots.begin() + static_cast<qsizetype>(controlPoints.size());
    auto span = static_cast<size_t>(std::upper_bound(first, last, u) - knots.begin()) - 1;
    span = std::min(span, controlPoints.size() - 1);

    // De Boor's scheme on points multiplied by their weights.
    std::array<Vec3, highestDegree + 1> points;
    std::array<double, highestDegree + 1> factors;
    for (size_t i = 0; i <= p; ++i) {
        factors[i] = weights.empty() ? 1.0 : weights[span - p + i];
        points[i] = controlPoints[span - p + i] * factors[i];
    }
    for (size_t round = 1; round <= p; ++round) {
        for (size_t i = p; i >= round; --i) {
            const double low = knots[span - p + i];
            const double width = knots[span + 1 + i - round] - low;
            const double t = width > 0.0 ? (u - low) / width : 0.0;
            points[i] = points[i - 1] * (1.0 - t) + points[i] * t;
            factors[i] = factors[i - 1] * (1.0 - t) + factors[i] * t;
        }
    }
    return factors[p] != 0.0 ? points[p] * (1.0 / factors[p]) : points[p];
}

Path splinePath(const Spline &spline, const Flatness &flatness)
{
    if (!spline.isValid()) {
        const Spline fitted = fittedSpline(spline.fitPoints, spline.isClosed);
        // Points that are one still show where they are.
        if (fitted.isValid())
            return splinePath(fitted, flatness);
        return spline.fitPoints.size() >= 2 ? spline.fitPoints : Path();
    }
    Path path{spline.point(spline.firstParameter())};
    CurveSampler sampler(spline, flatness, path);
    for (size_t i = static_cast<size_t>(spline.degree); i < spline.controlPoints.size(); ++i) {
        if (spline.knots[i] < spline.knots[i + 1])
            sampler.append(spline.knots[i], spline.knots[i + 1]);
    }
    return path;
}

} // namespace host::drawing
