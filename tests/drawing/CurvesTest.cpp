#include "host/drawing/curves/EntityCurve.h"
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

} // namespace

} // namespace host::drawing
