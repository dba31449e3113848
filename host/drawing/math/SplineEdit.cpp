#include "host/drawing/math/SplineEdit.h"

#include <array>

namespace host::drawing {

namespace {

/// A control point times its weight, with the weight beside it.
struct Weighted
{
    Vec3 point;
    double weight = 1.0;

    Weighted towards(const Weighted &other, double t) const
    {
        return {point * (1.0 - t) + other.point * t, weight * (1.0 - t) + other.weight * t};
    }
    Vec3 plain() const { return weight != 0.0 ? point * (1.0 / weight) : point; }
};

Weighted weightedPoint(const Spline &spline, size_t index)
{
    const double weight = spline.weights.empty() ? 1.0 : spline.weights[index];
    return {spline.controlPoints[index] * weight, weight};
}

/// The polar form of the stretch between knots `span` and `span` + 1: with all arguments equal the point there, with
/// knots for arguments a control point. `arguments` are as many as the degree.
Weighted polarForm(const Spline &spline, size_t span, const double *arguments)
{
    const auto degree = static_cast<size_t>(spline.degree);
    std::array<Weighted, Spline::highestDegree + 1> row;
    for (size_t i = 0; i <= degree; ++i)
        row[i] = weightedPoint(spline, span - degree + i);
    for (size_t round = 1; round <= degree; ++round) {
        for (size_t i = degree; i >= round; --i) {
            const double low = spline.knots[span - degree + i];
            const double width = spline.knots[span + 1 + i - round] - low;
            row[i] = row[i - 1].towards(row[i], width > 0.0 ? (arguments[round - 1] - low) / width : 0.0);
        }
    }
    return row[degree];
}

size_t spanAt(const Spline &spline, double parameter)
{
    const auto first = spline.knots.begin() + spline.degree;
    const auto last = spline.knots.begin() + static_cast<qsizetype>(spline.controlPoints.size());
    return static_cast<size_t>(std::upper_bound(first, last, parameter) - spline.knots.begin()) - 1;
}

/// The middle of the longest stretch between neighbours of the sorted `knots` from `first` to `last`.
double inLongestStretch(const std::vector<double> &knots, size_t first, size_t last)
{
    size_t best = first;
    for (size_t i = first; i < last; ++i) {
        if (knots[i + 1] - knots[i] > knots[best + 1] - knots[best])
            best = i;
    }
    return (knots[best] + knots[best + 1]) / 2.0;
}

/// Points with the parameters at which a curve passes them.
struct PassedPoints
{
    FitSpacing spacing = FitSpacing::Chord;
    std::vector<Vec3> points{};
    std::vector<double> at{};

    double width(size_t i) const { return at[i + 1] - at[i]; }
    Vec3 slope(size_t i) const { return (points[i + 1] - points[i]) * (1.0 / width(i)); }
    void add(const Vec3 &point)
    {
        at.push_back(at.empty() ? 0.0 : at.back() + step((point - points.back()).length()));
        points.push_back(point);
    }
    double step(double chord) const
    {
        if (spacing == FitSpacing::Uniform)
            return 1.0;
        return spacing == FitSpacing::SquareRoot ? std::sqrt(chord) : chord;
    }
};

/// Whether two points differ by rounding alone.
bool isSamePlace(const Vec3 &a, const Vec3 &b)
{
    return (a - b).length() <= 1e-14 * (a.length() + b.length());
}

/// Directions at points of a cubic through them, from the demand that curvature is steady there: one row each of a
/// system that couples neighbours alone.
std::vector<Vec3> steadySlopes(const PassedPoints &passed, const std::optional<Vec3> &start,
                               const std::optional<Vec3> &end)
{
    const size_t last = passed.points.size() - 1;
    std::vector<double> above(last + 1);
    std::vector<Vec3> slopes(last + 1);
    // Elimination from the first row down ...
    above[0] = start ? 0.0 : 0.5;
    slopes[0] = start ? *start * passed.slope(0).length() : passed.slope(0) * 1.5;
    for (size_t i = 1; i < last; ++i) {
        const double left = passed.width(i - 1);
        const double right = passed.width(i);
        const Vec3 wanted = (passed.slope(i - 1) * right + passed.slope(i) * left) * 3.0;
        const double pivot = 2.0 * (left + right) - right * above[i - 1];
        above[i] = left / pivot;
        slopes[i] = (wanted - slopes[i - 1] * right) * (1.0 / pivot);
    }
    slopes[last] = end ? *end * passed.slope(last - 1).length()
                       : (passed.slope(last - 1) * 3.0 - slopes[last - 1]) * (1.0 / (2.0 - above[last - 1]));
    // ... and up again.
    for (size_t i = last; i > 0; --i)
        slopes[i - 1] = slopes[i - 1] - slopes[i] * above[i - 1];
    return slopes;
}

/// The same for points that go round, the last one being the first again. What is far away hardly matters, so the
/// round is gone on with on both sides.
std::vector<Vec3> steadySlopesAround(const PassedPoints &passed)
{
    constexpr size_t enough = 40; // points, each of which lessens what the end does to a quarter
    const size_t count = passed.points.size() - 1;
    PassedPoints around{passed.spacing};
    const size_t first = count - enough % count;
    for (size_t i = 0; i <= count + 2 * enough; ++i)
        around.add(passed.points[(first + i) % count]);
    const std::vector<Vec3> slopes = steadySlopes(around, {}, {});
    const auto begin = slopes.begin() + enough;
    return {begin, begin + static_cast<qsizetype>(count) + 1};
}

/// The polar form of one stretch of such a curve: with knots for arguments a control point.
Vec3 cubicPolarForm(const PassedPoints &passed, const std::vector<Vec3> &slopes, size_t stretch,
                    const std::array<double, 3> &arguments)
{
    const double width = passed.width(stretch);
    const Vec3 &from = passed.points[stretch];
    const Vec3 &to = passed.points[stretch + 1];
    std::array<Vec3, 4> row = {from, from + slopes[stretch] * (width / 3.0), to - slopes[stretch + 1] * (width / 3.0),
                               to};
    for (size_t round = 0; round < 3; ++round) {
        const double t = (arguments[round] - passed.at[stretch]) / width;
        for (size_t i = 0; i + round < 3; ++i)
            row[i] = row[i] * (1.0 - t) + row[i + 1] * t;
    }
    return row[0];
}

} // namespace

std::vector<BezierSpan> bezierSpans(const Spline &spline)
{
    const auto degree = static_cast<size_t>(spline.degree);
    std::vector<BezierSpan> spans;
    for (size_t k = degree; k < spline.controlPoints.size(); ++k) {
        if (!(spline.knots[k] < spline.knots[k + 1]))
            continue;
        BezierSpan &span = spans.emplace_back();
        span.start = spline.knots[k];
        span.end = spline.knots[k + 1];
        std::array<double, Spline::highestDegree + 1> arguments;
        arguments.fill(span.start);
        for (size_t i = 0; i <= degree; ++i) {
            const Weighted made = polarForm(spline, k, arguments.data());
            span.points.push_back(made.plain());
            if (!spline.weights.empty())
                span.weights.push_back(made.weight);
            arguments[degree > i ? degree - 1 - i : 0] = span.end;
        }
    }
    return spans;
}

Spline splineOfSpans(const std::vector<BezierSpan> &spans)
{
    const bool isRational = std::ranges::any_of(spans, [](const BezierSpan &span) { return !span.weights.empty(); });
    const size_t degree = spans.front().points.size() - 1;
    Spline spline;
    spline.degree = static_cast<int>(degree);
    spline.knots = {spans.front().start};
    for (const BezierSpan &span : spans) {
        const bool isFirst = spline.controlPoints.empty();
        spline.knots.insert(spline.knots.end(), degree, span.start);
        const auto weightOf = [&span](size_t i) { return span.weights.empty() ? 1.0 : span.weights[i]; };
        const double factor = isFirst || !isRational ? 1.0 : spline.weights.back() / weightOf(0);
        for (size_t i = isFirst ? 0 : 1; i <= degree; ++i) {
            spline.controlPoints.push_back(span.points[i]);
            if (isRational)
                spline.weights.push_back(weightOf(i) * factor);
        }
    }
    spline.knots.insert(spline.knots.end(), degree + 1, spans.back().end);
    return spline;
}

BezierSpan elevatedSpan(const BezierSpan &span, size_t degree)
{
    BezierSpan made = span;
    while (made.points.size() <= degree) {
        const BezierSpan low = made;
        const size_t count = low.points.size(); // the degree that is made
        const auto at = [&low](size_t i) {
            const double weight = low.weights.empty() ? 1.0 : low.weights[i];
            return Weighted{low.points[i] * weight, weight};
        };
        made.points.push_back(low.points.back());
        if (!low.weights.empty())
            made.weights.push_back(low.weights.back());
        for (size_t i = 1; i < count; ++i) {
            const Weighted between = at(i).towards(at(i - 1), static_cast<double>(i) / static_cast<double>(count));
            made.points[i] = between.plain();
            if (!made.weights.empty())
                made.weights[i] = between.weight;
        }
    }
    return made;
}

Spline elevatedSpline(const Spline &spline, int degree)
{
    if (spline.degree >= degree)
        return spline;
    std::vector<BezierSpan> spans = bezierSpans(spline);
    for (BezierSpan &span : spans)
        span = elevatedSpan(span, static_cast<size_t>(degree));
    return splineOfSpans(spans);
}

Spline splineSection(const Spline &spline, double from, double to)
{
    const auto degree = static_cast<size_t>(spline.degree);
    Spline section;
    section.degree = spline.degree;
    section.knots.assign(degree + 1, from);
    for (const double knot : spline.knots) {
        if (knot > from && knot < to)
            section.knots.push_back(knot);
    }
    section.knots.insert(section.knots.end(), degree + 1, to);
    for (size_t i = 0; i + degree + 1 < section.knots.size(); ++i) {
        const size_t span = spanAt(spline, inLongestStretch(section.knots, i, i + degree + 1));
        const Weighted made = polarForm(spline, span, section.knots.data() + i + 1);
        section.controlPoints.push_back(made.plain());
        if (!spline.weights.empty())
            section.weights.push_back(made.weight);
    }
    return section;
}

Spline splineChain(const Spline &first, const Spline &second)
{
    // Both are brought to ends that their control points touch.
    Spline chain = splineSection(first, first.firstParameter(), first.lastParameter());
    Spline rest = splineSection(second, second.firstParameter(), second.lastParameter());
    const bool isRational = !chain.weights.empty() || !rest.weights.empty();
    const double shift = chain.knots.back() - rest.knots.front();
    if (isRational) {
        chain.weights.resize(chain.controlPoints.size(), 1.0);
        rest.weights.resize(rest.controlPoints.size(), 1.0);
        const double factor = chain.weights.back() / rest.weights.front();
        for (size_t i = 1; i < rest.weights.size(); ++i)
            chain.weights.push_back(rest.weights[i] * factor);
    }
    chain.knots.pop_back();
    for (auto knot = rest.knots.begin() + rest.degree + 1; knot != rest.knots.end(); ++knot)
        chain.knots.push_back(*knot + shift);
    chain.controlPoints.insert(chain.controlPoints.end(), rest.controlPoints.begin() + 1, rest.controlPoints.end());
    return chain;
}

Spline reversedSpline(const Spline &spline)
{
    Spline reversed = spline;
    const double sum = spline.knots.front() + spline.knots.back();
    std::ranges::reverse(reversed.knots);
    for (double &knot : reversed.knots)
        knot = sum - knot;
    std::ranges::reverse(reversed.controlPoints);
    std::ranges::reverse(reversed.weights);
    std::ranges::reverse(reversed.fitPoints);
    return reversed;
}

Spline fittedSpline(const std::vector<Vec3> &points, bool isClosed, const std::optional<Vec3> &startDirection,
                    const std::optional<Vec3> &endDirection, FitSpacing spacing)
{
    Spline spline;
    spline.fitPoints = points;
    spline.isClosed = isClosed;
    PassedPoints passed{spacing};
    for (const Vec3 &point : points) {
        if (passed.points.empty() || !isSamePlace(point, passed.points.back()))
            passed.add(point);
    }
    if (isClosed && passed.points.size() > 1 && !isSamePlace(passed.points.front(), passed.points.back()))
        passed.add(passed.points.front());
    if (passed.points.size() < 2)
        return spline;
    const bool isRound = isClosed && passed.points.size() > 3;
    const std::vector<Vec3> slopes =
        isRound ? steadySlopesAround(passed) : steadySlopes(passed, startDirection, endDirection);
    const size_t last = passed.points.size() - 1;
    spline.knots.assign(3, 0.0);
    spline.knots.insert(spline.knots.end(), passed.at.begin(), passed.at.end());
    spline.knots.insert(spline.knots.end(), 3, passed.at.back());
    for (size_t i = 0; i + 4 < spline.knots.size(); ++i) {
        const size_t stretch = std::min(i > 0 ? i - 1 : 0, last - 1);
        spline.controlPoints.push_back(
            cubicPolarForm(passed, slopes, stretch, {spline.knots[i + 1], spline.knots[i + 2], spline.knots[i + 3]}));
    }
    return spline;
}

} // namespace host::drawing
