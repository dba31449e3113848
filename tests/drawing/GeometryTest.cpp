#include "host/drawing/geometry/EntityGeometry.h"
#include "tests/drawing/DrawingSample.h"

#include <numbers>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

constexpr double pi = std::numbers::pi;

void expectNear(const Vec3 &a, const Vec3 &b, double tolerance = 1e-9)
{
    EXPECT_LE((a - b).length(), tolerance) << testing::PrintToString(a) << " and " << testing::PrintToString(b);
}

TEST(Matrix, ComposesAndInverts)
{
    const Matrix matrix = Matrix::translation({1, 2, 3}) * Matrix::rotation(pi / 2) * Matrix::scaling({2, 3, 4});
    expectNear(matrix.point({1, 0, 0}), {1, 4, 3});
    expectNear(matrix.inverted().point(matrix.point({5, 6, 7})), {5, 6, 7});
    expectNear(Matrix::rotation(pi, {1, 1, 0}).point({0, 0, 0}), {2, 2, 0});
    expectNear(Matrix::mirror({0, 0, 0}, {1, 1, 0}).point({3, 0, 5}), {0, 3, 5});
    EXPECT_EQ(Matrix::scaling({0, 1, 1}).inverted(), Matrix());
}

TEST(Matrix, FollowsTheArbitraryAxisRule)
{
    const struct
    {
        Vec3 extrusion;
        Vec3 xAxis;
        Vec3 yAxis;
    } rows[] = {
        {{0, 0, 1}, {1, 0, 0}, {0, 1, 0}},  {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}}, {{0, 0, -5}, {-1, 0, 0}, {0, 1, 0}},
        {{0, 1, 0}, {-1, 0, 0}, {0, 0, 1}}, {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}},
    };
    for (const auto &row : rows) {
        const Matrix matrix = Matrix::fromExtrusion(row.extrusion);
        expectNear(matrix.xAxis, row.xAxis);
        expectNear(matrix.yAxis, row.yAxis);
    }
}

TEST(Curves, BulgesAreArcs)
{
    const BulgeArc half = bulgeArc({0, 0}, {2, 0}, 1.0); // counter-clockwise: below the chord
    EXPECT_NEAR(half.radius, 1.0, 1e-12);
    EXPECT_NEAR(half.sweep, pi, 1e-12);
    Path path{{0, 0, 0}};
    appendBulge(path, {0, 0, 0}, {2, 0, 0}, 1.0);
    double lowest = 0;
    for (const Vec3 &point : path)
        lowest = std::min(lowest, point.y);
    EXPECT_NEAR(lowest, -1.0, 1e-3);
    const BulgeArc quarter = bulgeArc({1, 0}, {0, 1}, std::tan(pi / 8));
    EXPECT_NEAR(quarter.center.x, 0.0, 1e-12);
    EXPECT_NEAR(quarter.center.y, 0.0, 1e-12);
    EXPECT_NEAR(bulgeArc({1, 0}, {0, 1}, -std::tan(pi / 8)).center.x, 1.0, 1e-12);
    EXPECT_EQ(bulgeArc({1, 0}, {1, 0}, 1.0).radius, 0.0);
}

TEST(Curves, SplinesRunThroughTheirShape)
{
    Spline circle; // a quarter circle as a rational curve of degree 2
    circle.degree = 2;
    circle.knots = {0, 0, 0, 1, 1, 1};
    circle.controlPoints = {{1, 0, 0}, {1, 1, 0}, {0, 1, 0}};
    circle.weights = {1, std::sqrt(0.5), 1};
    ASSERT_TRUE(circle.isValid());
    for (const Vec3 &point : splinePath(circle))
        EXPECT_NEAR(point.length(), 1.0, 1e-12);
    expectNear(splinePath(circle).front(), {1, 0, 0});
    expectNear(splinePath(circle).back(), {0, 1, 0});

    Spline fit;
    fit.fitPoints = {{0, 0, 0}, {1, 1, 0}, {2, 0, 0}};
    const Path path = splinePath(fit);
    for (const Vec3 &wanted : fit.fitPoints)
        EXPECT_TRUE(std::any_of(path.begin(), path.end(), [&](const Vec3 &p) { return (p - wanted).length() < 1e-9; }));

    Spline bad = circle;
    bad.knots = {0, 1};
    EXPECT_TRUE(splinePath(bad).empty());
    bad.knots = {0, 0, 0, 0, 0, 0};
    EXPECT_TRUE(splinePath(bad).empty());
    bad = circle;
    bad.degree = 1000;
    EXPECT_TRUE(splinePath(bad).empty());
}

TEST(Geometry, BoxesOfEntities)
{
    const struct
    {
        const char *name;
        QByteArray entity;
        const char *box; ///< its lowest and its highest corner
    } rows[] = {
        {"line", "0 LINE\n10 1\n20 5\n30 0\n11 4\n21 2\n31 7", "1,2,0 4,5,7"},
        {"circle", "0 CIRCLE\n10 5\n20 5\n30 0\n40 2", "3,3,0 7,7,0"},
        {"mirrored circle", "0 CIRCLE\n10 5\n20 5\n30 0\n40 2\n210 0\n220 0\n230 -1", "-7,3,0 -3,7,0"},
        {"arc over zero", "0 ARC\n10 0\n20 0\n30 0\n40 2\n50 270\n51 90", "0,-2,0 2,2,0"},
        {"ellipse", "0 ELLIPSE\n10 0\n20 0\n30 0\n11 0\n21 4\n31 0\n40 0.5\n41 0\n42 6.283185307", "-2,-4,0 2,4,0"},
        {"light polyline with arc", "0 LWPOLYLINE\n90 2\n70 0\n38 3\n10 0\n20 0\n42 -1\n10 2\n20 0", "0,0,3 2,1,3"},
        {"wide polyline", "0 LWPOLYLINE\n90 2\n70 0\n43 2\n10 0\n20 0\n10 10\n20 0", "0,-1,0 10,1,0"},
        {"closed polyline", "0 POLYLINE\n70 1\n0 VERTEX\n10 0\n20 0\n30 0\n0 VERTEX\n10 2\n20 0\n30 0\n42 1\n0 SEQEND",
         "0,0,0 2,1,0"},
        {"polyline in space", "0 POLYLINE\n70 8\n0 VERTEX\n10 0\n20 0\n30 5\n0 VERTEX\n10 2\n20 3\n30 9\n0 SEQEND",
         "0,0,5 2,3,9"},
        {"spline frame left out",
         "0 POLYLINE\n70 4\n0 VERTEX\n70 16\n10 99\n20 0\n30 0\n0 VERTEX\n70 8\n10 1\n20 1\n30 0\n0 VERTEX\n70 8\n10 "
         "2\n20 2\n30 0\n0 SEQEND",
         "1,1,0 2,2,0"},
        {"solid", "0 SOLID\n10 0\n20 0\n11 4\n21 0\n12 0\n22 3\n13 4\n23 3", "0,0,0 4,3,0"},
        {"insert", "0 INSERT\n2 UNIT\n10 10\n20 10\n30 0\n41 2\n42 3\n50 90", "7,10,0 10,12,0"},
        {"array of inserts", "0 INSERT\n2 UNIT\n10 0\n20 0\n30 0\n70 3\n71 2\n44 10\n45 5", "0,0,0 21,6,0"},
        {"nested", "0 INSERT\n2 OUTER\n10 100\n20 0\n30 0", "102,0,0 104,2,0"},
        {"mirrored insert", "0 INSERT\n2 UNIT\n10 5\n20 0\n30 0\n41 -1", "4,0,0 5,1,0"},
        {"dimension", "0 DIMENSION\n2 UNIT2\n10 50\n20 50\n30 0", "0,0,0 1,1,0"},
        {"hatch",
         "0 HATCH\n10 0\n20 0\n30 0\n210 0\n220 0\n230 1\n2 SOLID\n70 1\n71 0\n91 1\n92 1\n93 2\n72 1\n10 0\n20 0\n11 "
         "4\n21 0\n72 2\n10 2\n20 0\n40 2\n50 0\n51 180\n73 1\n97 0",
         "0,0,0 4,2,0"},
        {"clipped image", "0 IMAGE\n10 0\n20 0\n30 0\n11 0.5\n21 0\n31 0\n12 0\n22 0.5\n32 0\n13 20\n23 10\n280 0",
         "0,0,0 10,5,0"},
    };
    const QByteArray blocks =
        "0 BLOCK\n8 0\n2 UNIT\n70 0\n10 1\n20 1\n30 0\n0 SOLID\n10 1\n20 1\n11 2\n21 1\n12 1\n22 2\n13 2\n23 2\n0 "
        "ATTDEF\n10 900\n20 0\n40 1\n1 x\n0 ENDBLK\n"
        "0 BLOCK\n8 0\n2 UNIT2\n70 0\n10 0\n20 0\n30 0\n0 LINE\n10 0\n20 0\n30 0\n11 1\n21 1\n31 0\n0 ENDBLK\n"
        "0 BLOCK\n8 0\n2 OUTER\n70 0\n10 0\n20 0\n30 0\n0 INSERT\n2 UNIT\n10 2\n20 0\n30 0\n41 2\n42 2\n0 ENDBLK\n";
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        const auto drawing = sample("AC1009", row.entity, blocks);
        const Box box = entityBox(*drawing, drawing->entities().all().front());
        const QList<QByteArray> corners = QByteArray(row.box).split(' ');
        expectNear(box.low, fieldsOf("10 " + corners[0])[0].point(), 0.01);
        expectNear(box.high, fieldsOf("10 " + corners[1])[0].point(), 0.01);
    }
}

TEST(Geometry, TextsHaveBoxesWhereTheyStand)
{
    const struct
    {
        const char *name;
        QByteArray entity;
        Vec2 inside;
        Vec2 outside;
    } rows[] = {
        {"left", "0 TEXT\n10 0\n20 0\n40 2\n1 abcd", {1, 1}, {-1, 1}},
        {"right", "0 TEXT\n10 0\n20 0\n40 2\n1 abcd\n72 2\n11 10\n21 0", {9, 1}, {11, 1}},
        {"middle", "0 TEXT\n10 0\n20 0\n40 2\n1 abcd\n72 4\n11 10\n21 10", {10, 10}, {10, 12}},
        {"turned", "0 TEXT\n10 0\n20 0\n40 2\n1 abcd\n50 90", {-1, 1}, {1, 1}},
        {"fit", "0 TEXT\n10 0\n20 0\n40 1\n1 a\n72 5\n11 20\n21 0", {19, 0.5}, {21, 0.5}},
        {"paragraph, top left", "0 MTEXT\n10 0\n20 0\n40 2\n71 1\n1 ab\\Pcd", {1, -4}, {1, 1}},
        {"paragraph, bottom right", "0 MTEXT\n10 0\n20 0\n40 2\n71 9\n1 abcd", {-1, 1}, {1, 1}},
        {"paragraph without its codes", "0 MTEXT\n10 0\n20 0\n40 1\n71 1\n1 {\\fArial|b0;a}", {0.5, -0.5}, {3, -0.5}},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        const auto drawing = sample("AC1015", row.entity);
        const Outline outline = entityOutline(*drawing, drawing->entities().all().front());
        EXPECT_TRUE(outline.isApproximate);
        EXPECT_EQ(flatDistance(outline, row.inside), 0.0);
        EXPECT_GT(flatDistance(outline, row.outside), 0.0);
    }
}

TEST(Geometry, PickingAndWindows)
{
    const auto drawing =
        sample("AC1015", "0 LINE\n10 0\n20 0\n30 0\n11 10\n21 0\n31 0\n"
                         "0 HATCH\n10 0\n20 0\n30 0\n2 SOLID\n70 1\n71 0\n91 2\n92 3\n72 0\n73 1\n93 4\n10 0\n20 0\n10 "
                         "9\n20 0\n10 9\n20 9\n10 0\n20 9\n97 0\n"
                         "92 2\n72 0\n73 1\n93 4\n10 3\n20 3\n10 6\n20 3\n10 6\n20 6\n10 3\n20 6\n97 0\n"
                         "0 XLINE\n10 0\n20 50\n30 0\n11 1\n21 0\n31 0\n0 POINT\n10 5\n20 5\n30 0");
    const std::vector<RecordId> all = drawing->entities().all();
    const Outline line = entityOutline(*drawing, all[0]);
    EXPECT_DOUBLE_EQ(flatDistance(line, {5, 3}), 3.0);
    EXPECT_DOUBLE_EQ(flatDistance(line, {13, 4}), 5.0);
    const Outline hatch = entityOutline(*drawing, all[1]);
    EXPECT_EQ(flatDistance(hatch, {1, 1}), 0.0);
    EXPECT_DOUBLE_EQ(flatDistance(hatch, {4, 4.5}), 1.0) << "in the island";
    const Outline endless = entityOutline(*drawing, all[2]);
    EXPECT_NEAR(flatDistance(endless, {1e6, 49}), 1.0, 1e-6);
    EXPECT_TRUE(entityBox(*drawing, all[2]).isEmpty());
    EXPECT_EQ(flatDistance(Outline(), {0, 0}), std::numeric_limits<double>::infinity());

    const Outline point = entityOutline(*drawing, all[3]);
    const struct
    {
        const char *name;
        const Outline &outline;
        Box window;
        bool isWithin;
        bool isCrossed;
    } rows[] = {
        {"around a line", line, {{-1, -1, 0}, {11, 1, 0}}, true, true},
        {"a part of it", line, {{-1, -1, 0}, {9, 1, 0}}, false, true},
        {"without a corner inside", line, {{4, -1, 0}, {5, 1, 0}}, false, true},
        {"beside it", line, {{4, 1, 0}, {5, 2, 0}}, false, false},
        {"wholly inside the filled area", hatch, {{1, 1, 0}, {2, 2, 0}}, false, true},
        {"in the island", hatch, {{4, 4, 0}, {5, 5, 0}}, false, false},
        {"over an endless line", endless, {{100, 0, 0}, {101, 100, 0}}, false, true},
        {"very large", endless, {{-1e12, -1e12, 0}, {1e12, 1e12, 0}}, false, true},
        {"of no size", point, {{5, 5, 0}, {5, 5, 0}}, true, true},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(liesWithin(row.outline, row.window), row.isWithin) << row.name;
        EXPECT_EQ(crosses(row.outline, row.window), row.isCrossed) << row.name;
    }
}

TEST(Geometry, HostileDrawingsEnd)
{
    QByteArray bomb;
    for (int i = 0; i < 30; ++i) {
        const QByteArray next = QByteArray::number(i + 1);
        bomb += "0 BLOCK\n8 0\n2 B" + QByteArray::number(i) + "\n10 0\n20 0\n0 INSERT\n2 B" + next + "\n0 INSERT\n2 B" +
                next + "\n0 ENDBLK\n";
    }
    const struct
    {
        const char *name;
        QByteArray entity;
        QByteArray blocks;
    } rows[] = {
        {"block in itself", "0 INSERT\n2 A", "0 BLOCK\n2 A\n10 0\n20 0\n0 INSERT\n2 A\n0 INSERT\n2 A\n0 ENDBLK\n"},
        {"doubling blocks", "0 INSERT\n2 B0", bomb},
        {"array without end", "0 INSERT\n2 A\n70 2000000000\n71 2000000000", "0 BLOCK\n2 A\n10 0\n20 0\n0 ENDBLK\n"},
        {"hatch with huge counts", "0 HATCH\n91 2000000000\n92 2\n72 0\n73 1\n93 2000000000\n10 0\n20 0", {}},
        {"mesh with huge counts", "0 POLYLINE\n70 16\n71 32767\n72 32767\n0 VERTEX\n10 0\n20 0\n0 SEQEND", {}},
        {"circle of no size", "0 CIRCLE\n10 1e300\n20 1e300\n40 1e308", {}},
        {"nothing given", "0 SPLINE\n0 ELLIPSE\n0 ARC\n0 LWPOLYLINE\n0 IMAGE\n0 MTEXT\n0 LEADER\n0 MLINE\n0 HATCH", {}},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        const auto drawing = sample("AC1009", row.entity, row.blocks);
        for (const RecordId id : drawing->entities().all())
            entityBox(*drawing, id);
    }
}

TEST(Geometry, BoxCacheFollowsChanges)
{
    const auto drawing =
        sample("AC1009", "0 INSERT\n5 50\n2 A\n10 0\n20 0\n0 POINT\n5 51\n10 3\n20 3\n30 0",
               "0 BLOCK\n5 60\n2 A\n10 0\n20 0\n0 LINE\n5 61\n10 0\n20 0\n30 0\n11 1\n21 1\n31 0\n0 ENDBLK\n");
    BoxCache cache(*drawing);
    const RecordId insert = drawing->find({0x50});
    expectNear(cache.box(insert).high, {1, 1, 0});
    FieldList fields = drawing->fields(drawing->find({0x61}));
    setField(fields, 11, Vec3{7, 7, 0});
    drawing->setFields(drawing->find({0x61}), fields);
    expectNear(cache.box(insert).high, {7, 7, 0});
    const RecordId added = drawing->entities().create(fieldsOf("0 POINT|10 20,20,0")).record;
    EXPECT_EQ(cache.touching(drawing->entities().all(), {{15, 15, 0}, {25, 25, 0}}), std::vector{added});
}

} // namespace
} // namespace host::drawing
