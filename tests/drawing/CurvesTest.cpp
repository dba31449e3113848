#include "host/drawing/curves/Crossings.h"
#include "tests/drawing/DrawingSample.h"

#include <numbers>

namespace host::drawing {

namespace {

/// An entity with numbers that are known beforehand: NaN where only the quadrature of the tests is there to compare.
struct CurveRow
{
    const char *name;
    const char *fields;
    double start;
    double end;
    double length;
    double area;
};

constexpr double unknown = std::numeric_limits<double>::quiet_NaN();
using std::numbers::pi;

const CurveRow curveRows[] = {
    {"line", "0 LINE\n10 1\n20 2\n30 3\n11 4\n21 6\n31 3", 0, 5, 5, 0},
    {"circle", "0 CIRCLE\n10 1\n20 2\n30 0\n40 3", 0, 2 * pi, 6 * pi, 9 * pi},
    {"tilted circle", "0 CIRCLE\n10 1\n20 2\n30 5\n40 3\n210 1\n220 1\n230 1", 0, 2 * pi, 6 * pi, 9 * pi},
    {"arc over the x axis", "0 ARC\n10 1\n20 2\n30 0\n40 2\n50 270\n51 90", 1.5 * pi, 2.5 * pi, 2 * pi, 2 * pi},
    {"mirrored arc", "0 ARC\n10 1\n20 2\n30 0\n40 2\n50 10\n51 100\n210 0\n220 0\n230 -1", pi / 18, pi / 1.8, pi,
     pi - 2},
    {"ellipse", "0 ELLIPSE\n10 1\n20 2\n30 0\n11 4\n21 0\n31 0\n40 0.5\n41 0\n42 6.283185307179586", 0, 2 * pi,
     19.376896441095351, 8 * pi},
    {"part of a thin ellipse", "0 ELLIPSE\n10 1\n20 2\n30 0\n11 3\n21 3\n31 0\n40 0.01\n41 1\n42 5", 1, 5, unknown,
     unknown},
    {"light polyline with arcs",
     "0 LWPOLYLINE\n90 4\n70 1\n10 0\n20 0\n42 0\n10 4\n20 0\n42 1\n10 4\n20 2\n42 0\n10 0\n20 2\n42 1", 0, 4,
     8 + 2 * pi, 8 + pi},
    {"open polyline with equal corners",
     "0 LWPOLYLINE\n90 4\n70 0\n10 0\n20 0\n10 4\n20 0\n10 4\n20 0\n42 -1\n10 4\n20 2", 0, 3, 4 + pi, unknown},
    {"polyline in space",
     "0 POLYLINE\n66 1\n70 8\n10 0\n20 0\n30 0\n0 VERTEX\n10 0\n20 0\n30 0\n70 32\n0 VERTEX\n10 3\n20 4\n30 0\n70 32\n"
     "0 VERTEX\n10 3\n20 4\n30 12\n70 32\n0 SEQEND",
     0, 2, 17, 30},
    {"rational quarter",
     "0 SPLINE\n70 8\n71 2\n72 6\n73 3\n40 0\n40 0\n40 0\n40 1\n40 1\n40 1\n10 1\n20 0\n30 0\n10 1\n20 1\n30 0\n"
     "10 0\n20 1\n30 0\n41 1\n41 0.7071067811865476\n41 1",
     0, 1, pi / 2, pi / 4 - 0.5},
    {"cubic in space",
     "0 SPLINE\n70 8\n71 3\n72 9\n73 5\n40 0\n40 0\n40 0\n40 0\n40 2\n40 5\n40 5\n40 5\n40 5\n10 0\n20 0\n30 0\n10 1\n"
     "20 4\n30 1\n10 4\n20 5\n30 -2\n10 6\n20 0\n30 3\n10 9\n20 2\n30 0",
     0, 5, unknown, 0},
    {"through points",
     "0 SPLINE\n70 0\n71 3\n74 4\n11 0\n21 0\n31 0\n11 3\n21 3\n31 0\n11 6\n21 0\n31 0\n11 9\n21 3\n31 0", 0,
     9 * std::numbers::sqrt2, unknown, unknown},
    {"round through points",
     "0 SPLINE\n70 1\n71 3\n74 4\n11 2\n21 0\n31 0\n11 0\n21 2\n31 0\n11 -2\n21 0\n31 0\n11 0\n21 -2\n31 0", 0,
     8 * std::numbers::sqrt2, unknown, unknown},
    {"leader", "0 LEADER\n71 1\n72 0\n76 3\n10 0\n20 0\n30 0\n10 3\n20 4\n30 0\n10 8\n20 4\n30 0", 0, 2, 10, 10},
};

/// Of a drawing with one entity.
EntityCurve curveOf(const QByteArray &fields)
{
    const auto drawing = sample("AC1018", fields);
    return EntityCurve::ofEntity(*drawing, drawing->entities().inSpace(Space::Model).front()).value();
}

double at(const EntityCurve &curve, double share)
{
    return curve.startParameter() + (curve.endParameter() - curve.startParameter()) * share;
}

/// By chords so short that the sum is good to a millionth.
struct Summed
{
    double length = 0.0;
    Vec3 area;
    double nearest = std::numeric_limits<double>::infinity();
};
Summed summed(const EntityCurve &curve, const Vec3 &from)
{
    constexpr int chords = 60000; // a multiple of the numbers of vertices above
    Summed sum;
    Vec3 before = curve.startPoint();
    for (int i = 1; i <= chords; ++i) {
        const Vec3 point = curve.point(at(curve, static_cast<double>(i) / chords));
        sum.length += (point - before).length();
        sum.area = sum.area + cross(before - curve.startPoint(), point - before) * 0.5;
        sum.nearest = std::min(sum.nearest, (point - from).length());
        before = point;
    }
    return sum;
}

void expectSameCurve(const EntityCurve &curve)
{
    for (const double share : {0.0, 0.11, 0.37, 0.5, 0.79, 0.96}) {
        const double parameter = at(curve, share);
        const Vec3 point = curve.point(parameter);
        const double found = curve.parameterAt(point).value_or(unknown);
        EXPECT_LE((curve.point(found) - point).length(), 1e-9) << share;
        const double along = curve.distanceAt(parameter);
        EXPECT_NEAR(curve.distanceAt(curve.parameterAtDistance(along).value_or(unknown)), along, 1e-8) << share;
        const double step = 1e-5 * (curve.endParameter() - curve.startParameter());
        const Vec3 slope = (curve.point(parameter + step) - curve.point(parameter - step)) * (0.5 / step);
        const Vec3 bend =
            (curve.firstDerivative(parameter + step) - curve.firstDerivative(parameter - step)) * (0.5 / step);
        if (share > 0.0 && share != 0.5) { // there may be a corner
            EXPECT_LE((curve.firstDerivative(parameter) - slope).length(), 1e-6 * (1 + slope.length())) << share;
            EXPECT_LE((curve.secondDerivative(parameter) - bend).length(), 1e-5 * (1 + bend.length())) << share;
        }
    }
}

TEST(EntityCurve, AgreesWithQuadrature)
{
    for (const CurveRow &row : curveRows) {
        SCOPED_TRACE(row.name);
        const EntityCurve curve = curveOf(row.fields);
        EXPECT_NEAR(curve.startParameter(), row.start, 1e-12);
        EXPECT_NEAR(curve.endParameter(), row.end, 1e-12);
        expectSameCurve(curve);
        for (const Vec3 &from : {Vec3{2, 1, 0}, Vec3{-7, 9, 4}, Vec3{1, 2, 0.001}}) {
            const Summed sum = summed(curve, from);
            EXPECT_NEAR(curve.length(), sum.length, 1e-6 * sum.length);
            EXPECT_NEAR((curve.point(curve.closest(from)) - from).length(), sum.nearest, 1e-3);
            EXPECT_LE((curve.point(curve.closest(from)) - from).length(), sum.nearest + 1e-12);
            if (curve.isPlanar()) {
                EXPECT_NEAR(curve.area(), sum.area.length(), 1e-6 * (1.0 + sum.area.length()));
            }
        }
        if (!std::isnan(row.length)) {
            EXPECT_NEAR(curve.length(), row.length, 1e-10 * row.length);
        }
        if (!std::isnan(row.area)) {
            EXPECT_NEAR(curve.area(), row.area, 1e-10 * (1 + row.area));
        }
    }
}

TEST(EntityCurve, PassesFitPointsSmoothly)
{
    const EntityCurve round = curveOf(curveRows[13].fields);
    EXPECT_TRUE(round.isPeriodic());
    for (const Vec3 &point : {Vec3{2, 0, 0}, Vec3{0, 2, 0}, Vec3{-2, 0, 0}, Vec3{0, -2, 0}})
        EXPECT_TRUE(round.parameterAt(point).has_value());
    const double joint = 2 * std::numbers::sqrt2;
    EXPECT_LE((round.secondDerivative(joint - 1e-9) - round.secondDerivative(joint + 1e-9)).length(), 1e-6);
    EXPECT_LE((round.secondDerivative(1e-9) - round.secondDerivative(4 * joint - 1e-9)).length(), 1e-6);
}

TEST(EntityCurve, TellsWhatItIs)
{
    EXPECT_TRUE(curveOf(curveRows[1].fields).isPeriodic());
    EXPECT_FALSE(curveOf(curveRows[7].fields).isPeriodic());
    EXPECT_TRUE(curveOf(curveRows[7].fields).isClosed());
    EXPECT_FALSE(curveOf(curveRows[8].fields).isClosed());
    EXPECT_FALSE(curveOf(curveRows[11].fields).isPlanar());
    EXPECT_TRUE(curveOf(curveRows[10].fields).isPlanar());
    const auto drawing =
        sample("AC1018", "0 LINE\n10 1\n20 1\n11 1\n21 1\n0 LWPOLYLINE\n90 0\n70 0\n0 TEXT\n10 0\n20 0\n40 1\n1 x\n"
                         "0 SPLINE\n71 3\n10 0\n20 0\n10 1\n20 0\n0 CIRCLE\n10 0\n20 0\n40 0");
    for (const RecordId entity : drawing->entities().inSpace(Space::Model))
        EXPECT_FALSE(EntityCurve::ofEntity(*drawing, entity)) << drawing->typeName(entity).toByteArray().toStdString();
}

EntityCurve segmentCurve(double x1, double y1, double x2, double y2)
{
    return EntityCurve::line({x1, y1, 0}, {x2, y2, 0});
}

/// Two curves and the points that they share.
struct CrossingRow
{
    const char *name;
    EntityCurve first;
    EntityCurve second;
    std::vector<Vec3> points; ///< along the first one
};

TEST(Crossings, AreThoseOfGeometry)
{
    const EntityCurve circle = curveOf("0 CIRCLE\n10 0\n20 0\n40 5");
    const EntityCurve ellipse =
        curveOf("0 ELLIPSE\n10 0\n20 0\n30 0\n11 4\n21 0\n31 0\n40 0.5\n41 0\n42 6.283185307179586");
    const EntityCurve arc = curveOf("0 ARC\n10 0\n20 0\n40 5\n50 0\n51 90");
    const EntityCurve square = curveOf("0 LWPOLYLINE\n90 4\n70 1\n10 0\n20 0\n10 4\n20 0\n10 4\n20 4\n10 0\n20 4");
    const EntityCurve cubic = curveOf("0 SPLINE\n71 3\n72 8\n73 4\n40 0\n40 0\n40 0\n40 0\n40 1\n40 1\n40 1\n40 1\n"
                                      "10 0\n20 0\n30 0\n10 0\n20 4\n30 0\n10 4\n20 -4\n30 0\n10 4\n20 0\n30 0");
    const double y = std::sqrt(25.0 - 9.0);
    const CrossingRow rows[] = {
        {"lines", segmentCurve(0, 0, 4, 4), segmentCurve(0, 4, 4, 0), {{2, 2, 0}}},
        {"lines at an end", segmentCurve(0, 0, 4, 4), segmentCurve(4, 4, 9, 1), {{4, 4, 0}}},
        {"lines too short", segmentCurve(0, 0, 1, 1), segmentCurve(0, 4, 4, 0), {}},
        {"extended", segmentCurve(0, 0, 1, 1).extended(Extension::End), segmentCurve(0, 4, 4, 0), {{2, 2, 0}}},
        {"extended at the wrong end",
         segmentCurve(0, 0, 1, 1).extended(Extension::Start),
         segmentCurve(0, 4, 4, 0),
         {}},
        {"one behind the other", segmentCurve(0, 0, 4, 0), segmentCurve(4, 0, 9, 0), {{4, 0, 0}}},
        {"one upon the other", segmentCurve(0, 0, 4, 0), segmentCurve(2, 0, 9, 0), {}},
        {"lines above each other", segmentCurve(0, 0, 4, 4), EntityCurve::line({0, 4, 1}, {4, 0, 1}), {}},
        {"circle", segmentCurve(3, -9, 3, 9), circle, {{3, -y, 0}, {3, y, 0}}},
        {"tangent", segmentCurve(-9, 5, 9, 5), circle, {{0, 5, 0}}},
        {"through a circle's plane", EntityCurve::line({3, 4, -1}, {3, 4, 1}), circle, {{3, 4, 0}}},
        {"arc", segmentCurve(3, -9, 3, 9), arc, {{3, y, 0}}},
        {"whole turn of an arc", segmentCurve(3, -9, 3, 9), arc.extended(Extension::End), {{3, -y, 0}, {3, y, 0}}},
        {"circles", circle, curveOf("0 CIRCLE\n10 6\n20 0\n40 5"), {{3, 4, 0}, {3, -4, 0}}},
        {"circles that touch", circle, curveOf("0 CIRCLE\n10 8\n20 0\n40 3"), {{5, 0, 0}}},
        {"circle within another", circle, curveOf("0 CIRCLE\n10 1\n20 0\n40 2"), {}},
        {"the same circle", circle, circle, {}},
        {"circles of two planes",
         circle,
         curveOf("0 CIRCLE\n10 0\n20 0\n40 5\n210 1\n220 0\n230 0"),
         {{0, 5, 0}, {0, -5, 0}}},
        {"ellipse", segmentCurve(-9, 0, 9, 0), ellipse, {{-4, 0, 0}, {4, 0, 0}}},
        {"ellipse touched", segmentCurve(-9, 2, 9, 2), ellipse, {{0, 2, 0}}},
        {"ellipse and circle",
         curveOf("0 CIRCLE\n10 0\n20 0\n40 3"),
         ellipse,
         {{std::sqrt(20.0 / 3.0), std::sqrt(7.0 / 3.0), 0},
          {-std::sqrt(20.0 / 3.0), std::sqrt(7.0 / 3.0), 0},
          {-std::sqrt(20.0 / 3.0), -std::sqrt(7.0 / 3.0), 0},
          {std::sqrt(20.0 / 3.0), -std::sqrt(7.0 / 3.0), 0}}},
        {"ellipse and circle that touch", curveOf("0 CIRCLE\n10 0\n20 0\n40 2"), ellipse, {{0, 2, 0}, {0, -2, 0}}},
        {"through a corner", segmentCurve(-1, -1, 9, 9), square, {{0, 0, 0}, {4, 4, 0}}},
        {"a corner of itself", square, segmentCurve(-1, 1, 1, -1), {{0, 0, 0}}},
        {"spline", segmentCurve(-1, 0, 9, 0), cubic, {{0, 0, 0}, {2, 0, 0}, {4, 0, 0}}},
        {"spline and its like",
         cubic,
         cubic.transformed(Matrix::mirror({0, 0, 0}, {1, 0, 0})),
         {{0, 0, 0}, {2, 0, 0}, {4, 0, 0}}},
        {"the same spline", cubic, cubic, {}},
        {"endless line and spline", curveOf("0 XLINE\n10 2\n20 900\n30 0\n11 0\n21 1\n31 0"), cubic, {{2, 0, 0}}},
    };
    for (const CrossingRow &row : rows) {
        SCOPED_TRACE(row.name);
        const std::vector<CurveCrossing> found = crossings(row.first, row.second);
        EXPECT_EQ(found.size(), row.points.size());
        for (size_t i = 0; i < std::min(found.size(), row.points.size()); ++i) {
            EXPECT_LE((found[i].point - row.points[i]).length(), 2e-6) << testing::PrintToString(found[i].point);
            EXPECT_LE((row.second.point(found[i].second) - row.points[i]).length(), 2e-6);
        }
    }
}

TEST(Crossings, OfManyCurvesCostLittle)
{
    // A comb: 20,000 short lines across a zigzag of as many pieces.
    std::vector<EntityCurve> teeth;
    std::vector<Vec3> zigzag;
    for (int i = 0; i < 20000; ++i) {
        teeth.push_back(segmentCurve(i + 0.5, -1, i + 0.5, 2));
        zigzag.push_back({static_cast<double>(i), static_cast<double>(i % 2), 0});
    }
    const EntityCurve curve = EntityCurve::through(zigzag);
    EXPECT_EQ(CurveCrosser(std::move(teeth)).crossings(curve).size(), 19999U);
    EXPECT_TRUE(selfCrossings(curve).empty());
}

TEST(Crossings, OfACurveWithItself)
{
    EXPECT_TRUE(selfCrossings(curveOf("0 CIRCLE\n10 0\n20 0\n40 5")).empty());
    const EntityCurve bow = EntityCurve::through({{0, 0, 0}, {4, 4, 0}, {4, 0, 0}, {0, 4, 0}}, true);
    const std::vector<CurveCrossing> found = selfCrossings(bow);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_DOUBLE_EQ(found.front().first, 0.5);
    EXPECT_DOUBLE_EQ(found.front().second, 2.5);
}

} // namespace

} // namespace host::drawing
