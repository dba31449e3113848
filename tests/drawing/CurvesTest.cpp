#include "host/drawing/curves/Crossings.h"
#include "host/drawing/curves/Offset.h"
#include "host/drawing/math/Quadrature.h"
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

TEST(Quadrature, OfNothingButRoundingComesToAnEnd)
{
    int calls = 0;
    const auto noise = [&](double x) {
        ++calls;
        return (x + 1e6) * (x + 3e6) - (x * x + 4e6 * x + 3e12);
    };
    EXPECT_NEAR(integral(noise, 0.0, 1.0), 0.0, 1.0);
    EXPECT_GT(calls, 1000);
    EXPECT_LT(calls, 100'000);
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

/// The curve that a record becomes in a drawing of its own.
EntityCurve made(const CurveRecord &record)
{
    const auto drawing = sample("AC1018");
    const CreateResult created = record.create(*drawing, Space::Model);
    EXPECT_TRUE(created) << created.error.toStdString();
    EXPECT_AUDIT_CLEAN(*drawing);
    return EntityCurve::ofEntity(*drawing, created.record).value();
}

TEST(Sections, AreWhatTheyWereOfTheCurve)
{
    for (const CurveRow &row : curveRows) {
        SCOPED_TRACE(row.name);
        const auto drawing = sample("AC1018", row.fields);
        const RecordId entity = drawing->entities().inSpace(Space::Model).front();
        const EntityCurve whole = *EntityCurve::ofEntity(*drawing, entity);
        const double from = at(whole, 0.23);
        const double to = at(whole, 0.71);
        const std::optional<CurveRecord> record = curveSection(*drawing, entity, from, to);
        EXPECT_EQ(record.has_value(), whole.kind() != EntityCurve::Kind::Leader);
        if (!record)
            continue;
        const EntityCurve part = made(*record);
        const double length = whole.distanceAt(to) - whole.distanceAt(from);
        EXPECT_NEAR(part.length(), length, 1e-8 * length);
        EXPECT_LE((part.startPoint() - whole.point(from)).length(), 1e-9);
        EXPECT_LE((part.endPoint() - whole.point(to)).length(), 1e-9);
        for (const double share : {0.1, 0.5, 0.8})
            EXPECT_TRUE(whole.parameterAt(part.point(at(part, share)))) << share;
        const std::optional<CurveRecord> rest = curveSection(*drawing, entity, to, from);
        EXPECT_EQ(rest.has_value(), whole.isClosed());
        if (rest) {
            EXPECT_NEAR(made(*rest).length(), whole.length() - length, 1e-8 * length);
        }
    }
}

TEST(Sections, GoOnBeyondTheEnds)
{
    const auto drawing =
        sample("AC1018", "0 LINE\n8 WALLS\n62 3\n10 0\n20 0\n11 3\n21 4\n0 ARC\n10 0\n20 0\n40 2\n50 0\n51 90\n"
                         "0 LWPOLYLINE\n90 3\n70 0\n10 0\n20 0\n40 1\n41 3\n10 4\n20 0\n40 3\n41 3\n42 1\n10 4\n20 2");
    const std::vector<RecordId> entities = drawing->entities().inSpace(Space::Model);
    const CurveRecord line = curveSection(*drawing, entities[0], -5, 10).value();
    EXPECT_LE((findField(line.head, 10)->point() - Vec3{-3, -4, 0}).length(), 1e-12);
    EXPECT_LE((findField(line.head, 11)->point() - Vec3{6, 8, 0}).length(), 1e-12);
    EXPECT_EQ(findField(line.head, 8)->text().toStdString(), "WALLS");
    const EntityCurve arc = made(curveSection(*drawing, entities[1], -pi / 2, pi).value());
    EXPECT_NEAR(arc.length(), 3 * pi, 1e-12);
    const CurveRecord polyline = curveSection(*drawing, entities[2], -0.5, 1.5).value();
    EXPECT_NEAR(made(polyline).length(), 6 + pi / 2, 1e-12);
    EXPECT_EQ(findField(polyline.head, 40)->real(), 1.0);
    const CurveRecord half = curveSection(*drawing, entities[2], 0.5, 1).value();
    EXPECT_EQ(findField(half.head, 40)->real(), 2.0);
    EXPECT_FALSE(curveSection(*drawing, entities[0], 3, 3));
    EXPECT_FALSE(curveSection(*drawing, entities[0], 4, 3));
}

struct OffsetRow
{
    const char *name;
    const char *fields;
    double distance;
    std::vector<double> areas; ///< or lengths, where open, sorted
};

const char *const rectangle = "0 LWPOLYLINE\n90 4\n70 1\n10 0\n20 0\n10 10\n20 0\n10 10\n20 4\n10 0\n20 4";
// Two rooms with a passage of width 1.
const char *const rooms =
    "0 LWPOLYLINE\n90 12\n70 1\n10 0\n20 0\n10 4\n20 0\n10 4\n20 1.5\n10 6\n20 1.5\n10 6\n20 0\n10 10\n20 0\n"
    "10 10\n20 4\n10 6\n20 4\n10 6\n20 2.5\n10 4\n20 2.5\n10 4\n20 4\n10 0\n20 4";

const OffsetRow offsetRows[] = {
    {"line", "0 LINE\n10 0\n20 0\n11 3\n21 4", 2, {5}},
    {"circle outwards", "0 CIRCLE\n10 0\n20 0\n40 5", 1, {36 * pi}},
    {"circle inwards", "0 CIRCLE\n10 0\n20 0\n40 5", -1, {16 * pi}},
    {"circle that vanishes", "0 CIRCLE\n10 0\n20 0\n40 5", -5, {}},
    {"arc", "0 ARC\n10 0\n20 0\n40 5\n50 0\n51 90", 1, {3 * pi}},
    {"rectangle outwards", rectangle, 1, {12 * 6}},
    {"rectangle inwards", rectangle, -1, {8 * 2}},
    {"rectangle that vanishes", rectangle, -2.5, {}},
    {"rooms", rooms, -0.25, {3.5 * 3.5 * 2 + 2.5 * 0.5}},
    {"rooms apart", rooms, -1, {4, 4}},
    {"angle inside", "0 LWPOLYLINE\n90 3\n70 0\n10 0\n20 0\n10 10\n20 0\n10 10\n20 10", -1, {18}},
    {"angle outside", "0 LWPOLYLINE\n90 3\n70 0\n10 0\n20 0\n10 10\n20 0\n10 10\n20 10", 1, {22}},
    {"corner that is cut away",
     "0 LWPOLYLINE\n90 4\n70 0\n10 0\n20 0\n10 10\n20 0\n10 11\n20 1\n10 11\n20 11",
     -5,
     {12}},
    {"slot",
     "0 LWPOLYLINE\n90 4\n70 1\n10 0\n20 0\n42 0\n10 4\n20 0\n42 1\n10 4\n20 2\n42 0\n10 0\n20 2\n42 1",
     1,
     {16 + 4 * pi}},
    {"slot inwards",
     "0 LWPOLYLINE\n90 4\n70 1\n10 0\n20 0\n42 0\n10 4\n20 0\n42 1\n10 4\n20 2\n42 0\n10 0\n20 2\n42 1",
     -0.5,
     {4 + pi / 4}},
    {"mirrored rectangle",
     "0 LWPOLYLINE\n90 4\n70 1\n10 0\n20 0\n10 10\n20 0\n10 10\n20 4\n10 0\n20 4\n210 0\n220 0\n230 -1",
     1,
     {72}},
};

TEST(Offsets, KeepTheirDistance)
{
    for (const OffsetRow &row : offsetRows) {
        SCOPED_TRACE(row.name);
        const auto drawing = sample("AC1018", row.fields);
        const RecordId entity = drawing->entities().inSpace(Space::Model).front();
        const EntityCurve original = *EntityCurve::ofEntity(*drawing, entity);
        std::vector<double> sizes;
        for (const CurveRecord &record : offsetCurve(*drawing, entity, row.distance, {0, 0, 1})) {
            const EntityCurve curve = made(record);
            sizes.push_back(curve.isClosed() ? curve.area() : curve.length());
            for (int i = 0; i < 100; ++i) {
                const Vec3 point = curve.point(at(curve, (i + 0.5) / 100));
                EXPECT_GE((original.point(original.closest(point)) - point).length(), std::abs(row.distance) - 1e-6);
                EXPECT_GT(offsetDistance(original, point, {0, 0, 1}) * row.distance, 0.0);
            }
        }
        std::ranges::sort(sizes);
        ASSERT_EQ(sizes.size(), row.areas.size());
        for (size_t i = 0; i < sizes.size(); ++i)
            EXPECT_NEAR(sizes[i], row.areas[i], 1e-6);
    }
}

TEST(Offsets, OfAnEllipseAreFitted)
{
    const auto drawing = sample("AC1018", curveRows[5].fields);
    const RecordId entity = drawing->entities().inSpace(Space::Model).front();
    const EntityCurve ellipse = *EntityCurve::ofEntity(*drawing, entity);
    const std::vector<CurveRecord> records = offsetCurve(*drawing, entity, 1.5, {0, 0, 1});
    ASSERT_EQ(records.size(), 1U);
    const EntityCurve curve = made(records.front());
    EXPECT_TRUE(curve.isClosed());
    for (int i = 0; i < 200; ++i) {
        const Vec3 point = curve.point(at(curve, i / 200.0));
        EXPECT_NEAR((ellipse.point(ellipse.closest(point)) - point).length(), 1.5, 2e-5);
    }
    // What is parallel to a closed convex curve is longer by a whole turn of the distance.
    EXPECT_NEAR(curve.length(), ellipse.length() + 2 * pi * 1.5, 1e-4);
}

} // namespace

} // namespace host::drawing
