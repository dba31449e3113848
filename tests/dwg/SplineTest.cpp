// Splines that files have by the points they go through: what they are worked out to.

#include "host/dwg/objects/SplineFit.h"
#include "tests/dwg/making/ReadBack.h"

#include <cmath>
#include <gtest/gtest.h>

namespace host::dwg::test {

namespace {

double near(const Point &one, const Point &other)
{
    return std::hypot(one.x - other.x, one.y - other.y, one.z - other.z);
}

/// The point at a parameter, between control points that are drawn together step by step.
Point pointAt(const FittedSpline &spline, double parameter)
{
    const std::vector<double> &knots = spline.knots;
    std::size_t span = 3;
    while (span + 1 < spline.points.size() && knots[span + 1] <= parameter)
        ++span;
    std::vector<Point> row(spline.points.begin() + static_cast<std::ptrdiff_t>(span) - 3,
                           spline.points.begin() + static_cast<std::ptrdiff_t>(span) + 1);
    for (std::size_t level = 1; level <= 3; ++level) {
        for (std::size_t i = 3; i >= level; --i) {
            const std::size_t at = span + i - 3;
            const double part = (parameter - knots[at]) / (knots[at + 4 - level] - knots[at]);
            row[i] = {row[i - 1].x + part * (row[i].x - row[i - 1].x), row[i - 1].y + part * (row[i].y - row[i - 1].y),
                      row[i - 1].z + part * (row[i].z - row[i - 1].z)};
        }
    }
    return row[3];
}

/// The second difference of points close to each other, for a step of 1e-3: how much the curve is bent there.
double bendAt(const FittedSpline &spline, double parameter)
{
    constexpr double step = 1e-3;
    const Point before = pointAt(spline, parameter - step);
    const Point here = pointAt(spline, parameter);
    const Point behind = pointAt(spline, parameter + step);
    return near({before.x + behind.x, before.y + behind.y, before.z + behind.z}, {2 * here.x, 2 * here.y, 2 * here.z}) /
           (step * step);
}

const std::vector<Point> waves = {{0, 0, 0}, {1, 2, 0}, {3, 1, 1}, {4, 4, 2}, {8, 3, 0}, {9, 0, -1}};

} // namespace

TEST(DwgSplines, GoThroughTheirPoints)
{
    for (std::size_t count = 2; count <= waves.size(); ++count) {
        const std::vector<Point> points(waves.begin(), waves.begin() + static_cast<std::ptrdiff_t>(count));
        for (const Point &tangent : {Point(), Point{0, 1, 0}}) {
            const auto spline = splineThrough(points, tangent, {});
            ASSERT_TRUE(spline) << count;
            ASSERT_EQ(spline->points.size(), count + 2);
            ASSERT_EQ(spline->knots.size(), count + 6);
            for (std::size_t i = 0; i + 1 < count; ++i)
                EXPECT_LT(near(pointAt(*spline, spline->knots[i + 3]), points[i]), 1e-12) << count << ' ' << i;
            EXPECT_EQ(spline->points.back(), points.back());
        }
    }
}

TEST(DwgSplines, BeginAndEndAsTheirTangentsSay)
{
    const auto bent = splineThrough(waves, {0.6, 0.8, 0}, {0, 0, -1});
    const auto natural = splineThrough(waves, {}, {});
    ASSERT_TRUE(bent && natural);
    constexpr double step = 1e-6;
    const double end = bent->knots.back();
    EXPECT_LT(near(pointAt(*bent, step), {0.6 * step, 0.8 * step, 0}), 1e-10);
    EXPECT_LT(near(pointAt(*bent, end - step), {9, 0, -1 + step}), 1e-10);
    // Where no tangent is given, the curve is straight at its end: its bend goes to 0 there.
    EXPECT_LT(bendAt(*natural, 0.0), 1e-2 * bendAt(*natural, natural->knots[4]));
    EXPECT_LT(bendAt(*natural, end), 1e-2 * bendAt(*natural, natural->knots[4]));
    EXPECT_GT(bendAt(*bent, 0.0), 0.1 * bendAt(*bent, bent->knots[4]));
}

TEST(DwgSplines, AreNotMadeOfWhatHasNone)
{
    constexpr double infinite = std::numeric_limits<double>::infinity();
    EXPECT_FALSE(splineThrough({}, {}, {}));
    EXPECT_FALSE(splineThrough({{1, 2, 3}}, {}, {}));
    EXPECT_FALSE(splineThrough({{1, 2, 3}, {1, 2, 3}}, {}, {}));
    EXPECT_FALSE(splineThrough({{1, 2, 3}, {4, 5, 6}, {4, 5, 6}, {7, 8, 9}}, {}, {}));
    EXPECT_FALSE(splineThrough({{0, 0, 0}, {infinite, 0, 0}}, {}, {}));
    EXPECT_FALSE(splineThrough({{0, 0, 0}, {std::nan(""), 0, 0}}, {}, {}));
    EXPECT_FALSE(splineThrough({{-1e308, 0, 0}, {1e308, 0, 0}}, {}, {}));
}

TEST(DwgSplines, HaveTheirControlPointsInTheTextForm)
{
    const auto told = [](Release release, double tolerance, const std::vector<Point> &points) {
        MadeDrawing drawing(release);
        const std::uint64_t spline = drawing.addEntity(0x24, [&](ObjectWriter &o) {
            o.int32(2);
            if (o.since(Release::R2013)) {
                o.int32(0);
                o.int32(0);
            }
            o.int32(3);
            o.real(tolerance);
            o.point({});
            o.point({});
            o.int32(static_cast<std::int32_t>(points.size()));
            for (const Point &point : points)
                o.point(point);
        });
        const ReadBack read = readBack(drawing);
        EXPECT_EQ(read.problems(), "");
        return read.lastPart(spline);
    };
    const std::string plane = "210 0.0|220 0.0|230 1.0|70 1064|71 3|";
    const std::string ends = "11 0.0|21 0.0|31 2.0|11 3.0|21 0.0|31 2.0|";
    const std::vector<Point> straight = {{0, 0, 2}, {3, 0, 2}};
    for (const Release release : {Release::R13, Release::R2000, Release::R2018})
        EXPECT_EQ(told(release, 1e-10, straight),
                  plane +
                      "72 8|73 4|74 2|42 1e-09|43 1e-10|44 1e-10|40 0.0|40 0.0|40 0.0|40 0.0|40 3.0|40 3.0|40 3.0|"
                      "40 3.0|10 0.0|20 0.0|30 2.0|10 1.0|20 0.0|30 2.0|10 2.0|20 0.0|30 2.0|10 3.0|20 0.0|30 2.0|" +
                      ends);
    // It may pass its points at a distance: how, is not known here.
    EXPECT_EQ(told(Release::R2000, 0.5, straight), plane + "72 0|73 0|74 2|44 0.5|" + ends);
}

} // namespace host::dwg::test
