#include "host/drawing/geometry/EntityGeometry.h"
#include "tests/drawing/DrawingSample.h"

#include <numbers>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

using std::numbers::pi;

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
    const std::tuple<Vec3, Vec3, Vec3> rows[] = {
        {{0, 0, 1}, {1, 0, 0}, {0, 1, 0}},  {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}}, {{0, 0, -5}, {-1, 0, 0}, {0, 1, 0}},
        {{0, 1, 0}, {-1, 0, 0}, {0, 0, 1}}, {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}},
    };
    for (const auto &[extrusion, xAxis, yAxis] : rows) {
        const Matrix matrix = Matrix::fromExtrusion(extrusion);
        expectNear(matrix.xAxis, xAxis);
        expectNear(matrix.yAxis, yAxis);
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

/// The cases of data/boxes.tags, where their form is told.
TEST(Geometry, BoxesOfEntities)
{
    QList<QByteArray> cases = contents(dataFile(u"boxes.tags"_s)).replace("\n|", "|").replace("\n\n", "@").split('@');
    const auto tagsOf = [](const QByteArray &text) { return text.mid(text.indexOf("\n0 ")).replace('|', '\n'); };
    const QByteArray blocks = tagsOf(cases.takeAt(1));
    for (const QByteArray &text : cases.mid(1)) {
        SCOPED_TRACE(text.toStdString());
        const QByteArray looks = text.trimmed().mid(text.trimmed().lastIndexOf('\n') + 1);
        const QList<QByteArray> points = looks.split(' ');
        const auto point = [&points](qsizetype i) { return fieldsOf("10 " + points[i])[0].point(); };
        const auto drawing = sample("AC1015", tagsOf(text.first(text.indexOf(looks))), blocks);
        const Outline outline = entityOutline(*drawing, drawing->entities().all().front());
        EXPECT_EQ(outline.isApproximate, points[0] == "within");
        if (points[0] == "box") {
            expectNear(outlineBox(outline).low, point(1), 0.01);
            expectNear(outlineBox(outline).high, point(2), 0.01);
        } else {
            EXPECT_EQ(flatDistance(outline, point(1).xy()), 0.0);
            EXPECT_GT(flatDistance(outline, point(3).xy()), 0.0);
        }
    }
}

TEST(Geometry, PickingAndWindows)
{
    const auto drawing =
        sample("AC1015", "0 LINE\n10 0\n20 0\n30 0\n11 10\n21 0\n31 0\n"
                         "0 HATCH\n10 0\n20 0\n30 0\n2 SOLID\n70 1\n71 0\n91 2\n92 3\n72 0\n73 1\n93 4\n10 0\n20 0\n10 "
                         "9\n20 0\n10 9\n20 9\n10 0\n20 9\n97 0\n"
                         "92 2\n72 0\n73 1\n93 4\n10 3\n20 3\n10 6\n20 3\n10 6\n20 6\n10 3\n20 6\n97 0\n"
                         "0 XLINE\n10 0\n20 50\n30 0\n11 1\n21 0\n31 0\n0 POINT\n10 5\n20 5\n30 0\n"
                         "0 VIEWPORT\n10 5\n20 5\n30 0\n40 9\n41 9\n69 1\n"
                         "0 VIEWPORT\n10 5\n20 5\n30 0\n40 8\n41 6\n69 2");
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
    EXPECT_TRUE(entityBox(*drawing, all[4]).isEmpty()) << "the sheet itself";
    EXPECT_EQ(entityBox(*drawing, all[5]).high, (Vec3{9, 8, 0}));
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
    const std::tuple<const char *, QByteArray, QByteArray> rows[] = {
        {"block in itself", "0 INSERT\n2 A", "0 BLOCK\n2 A\n10 0\n20 0\n0 INSERT\n2 A\n0 INSERT\n2 A\n0 ENDBLK\n"},
        {"doubling blocks", "0 INSERT\n2 B0", bomb},
        {"array without end", "0 INSERT\n2 A\n70 2000000000\n71 2000000000", "0 BLOCK\n2 A\n10 0\n20 0\n0 ENDBLK\n"},
        {"hatch with huge counts", "0 HATCH\n91 2000000000\n92 2\n72 0\n73 1\n93 2000000000\n10 0\n20 0", {}},
        {"mesh with huge counts", "0 POLYLINE\n70 16\n71 32767\n72 32767\n0 VERTEX\n10 0\n20 0\n0 SEQEND", {}},
        {"circle of no size", "0 CIRCLE\n10 1e300\n20 1e300\n40 1e308", {}},
        {"nothing given", "0 SPLINE\n0 ELLIPSE\n0 ARC\n0 LWPOLYLINE\n0 IMAGE\n0 MTEXT\n0 LEADER\n0 MLINE\n0 HATCH", {}},
    };
    for (const auto &[name, entity, blocks] : rows) {
        SCOPED_TRACE(name);
        const auto drawing = sample("AC1009", entity, blocks);
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
