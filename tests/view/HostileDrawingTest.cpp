// Drawings made to hang, crash or fill the memory. Each is built, painted, measured and picked in.

#include "host/view/build/EntityExtents.h"
#include "host/view/paint/Picking.h"
#include "host/view/paint/SceneWalker.h"
#include "tests/view/Rendering.h"

#include <gtest/gtest.h>

namespace host::view::test {
namespace {

std::string repeated(const std::string &text, int times)
{
    std::string result;
    for (int i = 0; i < times; ++i)
        result += text;
    return result;
}

/// Blocks B0..Bn, each showing the next so many times in the same place.
std::string nestedBlocks(int levels, int times)
{
    std::string blocks = blockText("B" + std::to_string(levels), "0 LINE|8 0|10 10|20 10|11 90|21 40");
    for (int i = levels - 1; i >= 0; --i) {
        const std::string insert = "0 INSERT|8 0|2 B" + std::to_string(i + 1) + "|10 0|20 0";
        blocks += "|" + blockText("B" + std::to_string(i), insert + repeated("|" + insert, times - 1));
    }
    return blocks;
}

const std::string linesOfPattern = "|53 30|43 0|44 0|45 0|46 2|79 0";

/// A hatch whose boundary goes up and down `turns` times.
std::string zigzagHatch(int turns, const std::string &style, const std::string &lines = "|78 1" + linesOfPattern)
{
    std::string points;
    for (int i = 0; i < 2 * turns; ++i)
        points += "|10 " + std::to_string(10.0 + 40.0 * i / turns) + (i % 2 ? "|20 10" : "|20 90");
    return "0 HATCH|8 0|10 0|20 0|30 0|2 X|70 " + style + "|71 0|91 1|92 7|72 0|73 1|93 " + std::to_string(2 * turns) +
           points + "|97 0|75 0|76 1|52 0|41 1|77 0" + lines;
}

const std::string hatchRecord =
    "0 HATCH|8 0|10 0|20 0|30 0|2 X|70 0|71 0|91 1|92 7|72 0|73 1|93 4|10 10|20 10|10 90|20 "
    "10|10 90|20 90|10 10|20 90|97 0|75 0|76 1|52 0|41 1|77 0";

struct HostileRow
{
    const char *name;
    std::string entities;
    bool isShown = false; ///< something must be seen
    std::string blocks = {};
    std::string tables = {};
    std::string header = {};
};

void PrintTo(const HostileRow &row, std::ostream *out)
{
    *out << row.name;
}

std::vector<HostileRow> hostileRows()
{
    const std::string line = "0 LINE|8 0|10 0|20 0|11 5|21 5";
    const std::string lineBlock = blockText("B", line);
    return {
        {"not a number",
         "0 LINE|8 0|10 nan|20 inf|11 1|21 1|0 CIRCLE|8 0|10 1|20 1|40 nan|0 ARC|8 0|10 1|20 1|40 5|50 nan|51 inf"},
        {"beyond all numbers", "0 LINE|8 0|10 1e300|20 1e308|11 -1e308|21 1|0 CIRCLE|8 0|10 0|20 0|40 1e300"
                               "|0 TEXT|8 0|10 1e200|20 0|40 1e300|1 x|0 MTEXT|8 0|10 0|20 0|40 1e300|1 x"},
        {"large but drawn", "0 LINE|8 0|10 -1e12|20 50|11 1e12|21 50", true},
        {"zero sizes",
         "0 CIRCLE|8 0|10 50|20 50|40 0|0 LINE|8 0|10 50|20 50|11 50|21 50|0 ELLIPSE|8 0|10 50|20 50|11 0|21 0|40 0"
         "|0 TEXT|8 0|10 50|20 50|40 0|1 x|0 XLINE|8 0|10 0|20 0|11 0|21 0",
         true},
        {"angles of a million turns",
         "0 ARC|8 0|10 50|20 50|40 30|50 -1e9|51 1e12|0 ELLIPSE|8 0|10 50|20 50|11 40|21 0|40 0.5|41 -1e8|42 1e9",
         true},
        {"table whose cells claim all others",
         "0 ACAD_TABLE|8 0|100 AcDbTable|10 0|20 90" + repeated("|141 1", 300) + repeated("|142 1", 300) +
             repeated("|171 1|173 0|175 65535|176 65535", 90'000),
         true},
        {"dimension with a text of a hundred thousand letters",
         "0 DIMENSION|8 0|70 32|10 90|20 50|13 10|23 10|14 90|24 10|1 " + repeated("<>A", 33'000), true},
        {"leader with as many breaks as corners",
         "0 MULTILEADER|8 0|100 AcDbMLeader|300 CONTEXT_DATA{|302 LEADER{|304 LEADER_LINE{" +
             repeated("|10 10|20 10|10 90|20 50", 2'000) + repeated("|11 20|21 15|12 30|22 20", 2'000) +
             "|305 }|303 }|301 }|170 1",
         true},
        {"circle around the world", "0 CIRCLE|8 0|10 50|20 -1e9|40 1000000050", true},
        {"huge bulges",
         "0 LWPOLYLINE|8 0|90 3|70 1|43 1|10 10|20 10|42 1e300|10 90|20 10|42 -1e15|10 90|20 90|42 1e-300"},
        {"insert in itself", "0 INSERT|8 0|2 B|10 0|20 0", true, blockText("B", "0 INSERT|8 0|2 B|10 1|20 1|" + line)},
        {"two blocks in one another", "0 INSERT|8 0|2 A|10 0|20 0", true,
         blockText("A", "0 INSERT|8 0|2 B|10 0|20 0") + "|" + blockText("B", "0 INSERT|8 0|2 A|10 0|20 0|" + line)},
        {"model space in itself", "0 INSERT|8 0|2 *Model_Space|10 0|20 0|" + line, true},
        {"ten to the ninth lines by nesting", "0 INSERT|8 0|2 B0|10 0|20 0", true, nestedBlocks(9, 10)},
        {"a chain of thirty thousand blocks", "0 INSERT|8 0|2 B0|10 0|20 0|" + line, true, nestedBlocks(30'000, 1)},
        {"an area with thousands of teeth", zigzagHatch(3'000, "1"), true},
        {"a pattern of hundreds of families in teeth",
         zigzagHatch(1'000, "0", "|78 400" + repeated(linesOfPattern, 400)), true},
        {"a wide line of nothing but arcs",
         "0 LWPOLYLINE|8 0|90 3000|70 1|43 3" + repeated("|10 10|20 10|42 1|10 90|20 90|42 1", 1'500), true},
        {"dots by the thousand on every line", repeated("0 LINE|8 0|6 D|10 0|20 50|11 99|21 52|", 300) + line, true, "",
         tableText("LTYPE",
                   "0 LTYPE|2 D|70 0|3 x|72 65|73 300|40 0.5" + repeated("|49 0|74 0", 299) + "|49 -0.5|74 0")},
        {"array of 32767 by 32767 in view", "0 INSERT|8 0|2 B|10 0|20 0|70 32767|71 32767|44 0.001|45 0.001", true,
         lineBlock},
        {"array of a thousand million rows", "0 INSERT|8 0|2 B|10 0|20 0|70 1000000000|71 1000000000|44 10|45 10", true,
         lineBlock},
        {"the same cell a thousand million times", "0 INSERT|8 0|2 B|10 0|20 0|70 1000000000|71 1000000000|44 0|45 0",
         true, lineBlock},
        {"flat and infinite scales", "0 INSERT|8 0|2 B|10 0|20 0|41 0|42 0|43 0|0 INSERT|8 0|2 B|10 0|20 0|41 1e300",
         false, lineBlock},
        {"zero extrusion", "0 CIRCLE|8 0|10 50|20 50|40 30|210 0|220 0|230 0", true},
        {"pattern finer than atoms", hatchRecord + "|78 1|53 45|43 0|44 0|45 0|46 1e-12|79 0", true},
        {"pattern of dashes finer than atoms", hatchRecord + "|78 1|53 0|43 0|44 0|45 0|46 1|79 2|49 1e-13|49 -1e-13",
         true},
        {"pattern without spacing", hatchRecord + "|78 1|53 0|43 0|44 0|45 0|46 0|79 0"},
        {"pattern starting beyond reach", hatchRecord + "|78 1|53 0|43 1e15|44 1e15|45 0|46 1|79 0"},
        {"hatch that promises more than it has",
         "0 HATCH|8 0|10 0|20 0|30 0|2 X|70 1|71 0|91 2000000000|92 7|72 0|73 1|93 2000000000|10 10|20 10|10 90"},
        {"hatch of one point", "0 HATCH|8 0|10 0|20 0|30 0|2 X|70 1|71 0|91 1|92 7|72 0|73 1|93 1|10 10|20 10|97 0"},
        {"spline with a hundred thousand knots",
         "0 SPLINE|8 0|70 8|71 3|72 100000|73 99996" + repeated("|40 1", 100'000) + repeated("|10 5|20 5", 99'996)},
        {"spline of degree a million",
         "0 SPLINE|8 0|70 8|71 1000000|72 4|73 2|40 0|40 0|40 1|40 1|10 1|20 1|10 9|20 9"},
        {"mesh that promises a million rows",
         "0 POLYLINE|8 0|66 1|70 16|71 1000000|72 1000000|0 VERTEX|8 0|10 1|20 1|0 SEQEND|8 0"},
        {"faces of vertices that are not there", "0 POLYLINE|8 0|66 1|70 64|0 VERTEX|8 0|10 1|20 1|70 192|0 VERTEX|8 "
                                                 "0|70 128|71 7|72 -9|73 2147483647|0 SEQEND|8 0"},
        {"linetype of a million million dashes", "0 LINE|8 0|6 D|10 -1e12|20 50|11 1e12|21 50", true, "",
         tableText("LTYPE", "0 LTYPE|2 D|70 0|3 x|72 65|73 2|40 2|49 1|74 0|49 -1|74 0")},
        {"linetype without length", "0 LINE|8 0|6 D|10 0|20 50|11 99|21 50", true, "",
         tableText("LTYPE", "0 LTYPE|2 D|70 0|3 x|72 65|73 2|40 0|49 0|74 0|49 0|74 0")},
        {"text of a hundred thousand characters", "0 TEXT|8 0|10 0|20 50|40 5|1 " + std::string(100'000, 'x'), true},
        {"text in multi-line text of a hundred thousand words",
         "0 MTEXT|8 0|10 0|20 90|40 1|41 1e-9|1 " + repeated("xx ", 100'000), true},
        {"text in multi-line text of ten million characters",
         "0 MTEXT|8 0|10 0|20 90|40 1|41 20" + repeated("|3 " + std::string(99, 'x') + " ", 100'000) + "|1 end", true},
        {"multiple line with a hundred thousand corners",
         "0 MLINE|8 0|2 STANDARD|40 1|70 0|71 1|72 100000|73 1|10 0|20 0" +
             repeated("|11 10|21 10|12 1|22 1|13 0|23 1|74 1|41 0|75 0|11 90|21 90|12 1|22 1|13 0|23 1|74 1|41 0|75 0",
                      50'000),
         true},
        {"multileader with a hundred thousand corners",
         "0 MULTILEADER|8 0|100 AcDbMLeader|300 CONTEXT_DATA{|302 LEADER{|304 LEADER_LINE{" +
             repeated("|10 10|20 10|10 90|20 50", 50'000) + "|305 }|303 }|301 }|170 1",
         true},
        {"viewport looking at itself",
         "0 VIEWPORT|8 0|10 50|20 50|40 90|41 90|68 2|69 2|12 0|22 0|45 1e-300|16 0|26 0|36 0|" + line, true},
        {"point marks beyond the screen", "0 POINT|8 0|10 50|20 50", false, "", "",
         "9 $PDMODE|70 99|9 $PDSIZE|40 1e300"},
    };
}

class HostileDrawing : public testing::TestWithParam<HostileRow>
{
};

TEST_P(HostileDrawing, IsDrawnWithinBounds)
{
    const HostileRow &row = GetParam();
    const auto drawing =
        readDrawing({.entities = row.entities, .blocks = row.blocks, .tables = row.tables, .header = row.header});
    ASSERT_TRUE(drawing);
    Scene scene(*drawing);
    const Rendering shown(scene, Scene::modelSpace);
    EXPECT_TRUE(!row.isShown || !shown.inkBox().isNull());
    // The same again from very far, from very near, and fitted where that is another view.
    QImage image(60, 60, QImage::Format_RGB32);
    QPainter painter(&image);
    ViewTransform view(image.size());
    for (const double scale : {1e-9, 1e6, 1e12}) {
        view.setView({50.0, 50.0}, scale);
        paintScene(painter, scene, Scene::modelSpace, view);
    }
    view.fit(scene.extents(Scene::modelSpace));
    if (view.scale() < 0.2 || view.scale() > 2.0)
        paintScene(painter, scene, Scene::modelSpace, view);
    pickAt(scene, Scene::modelSpace, {50, 50}, 5.0);
    pickRectangle(scene, Scene::modelSpace, {0, 0}, {60, 60}, PickMode::Window);
    pickRectangle(scene, Scene::modelSpace, {5, 5}, {6, 6}, PickMode::Crossing);
    EntityExtents extents(*drawing);
    for (const RecordId entity : drawing->entities().all())
        extents.of(entity);
}

INSTANTIATE_TEST_SUITE_P(All, HostileDrawing, testing::ValuesIn(hostileRows()), [](const auto &row) {
    std::string name = row.param.name;
    std::ranges::replace_if(
        name, [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); }, '_');
    return name;
});

TEST(HostileDrawing, WhatIsPlainIsDrawnBehindWhatMultiplies)
{
    const std::string top = "0 LINE|8 0|62 1|10 0|20 95|11 99|21 95";
    const std::pair<std::string, std::string> rows[] = {
        {"0 INSERT|8 0|2 B0|10 0|20 0", nestedBlocks(9, 10)},
        {repeated("0 INSERT|8 0|2 B1|10 0|20 0|70 500|71 500|44 0.6|45 0.6|", 120) + "0 INSERT|8 0|2 B1|10 0|20 0",
         nestedBlocks(1, 1)},
        {"0 INSERT|8 0|2 B0|10 0|20 0", nestedBlocks(40, 1)},
    };
    for (const auto &[entities, blocks] : rows) {
        const auto drawing = readDrawing({.entities = entities + "|" + top, .blocks = blocks});
        Scene scene(*drawing);
        QImage image(200, 200, QImage::Format_RGB32);
        QPainter painter(&image);
        ViewTransform view(image.size());
        view.setHeight({50, 50}, 100);
        EXPECT_TRUE(paintScene(painter, scene, Scene::modelSpace, view).isCutShort) << entities.substr(0, 60);
        EXPECT_EQ(image.pixelColor(100, 10), QColor(Qt::red)) << entities.substr(0, 60);
    }
}

/// Takes nothing in.
class NoSink final : public DisplaySink
{
public:
    void line(std::span<const QPointF>, const ResolvedStyle &) override {}
    void dot(QPointF, const ResolvedStyle &) override {}
    void fill(const QPainterPath &, FillKind, const ResolvedStyle &) override {}
    void text(const TextRun &, const Matrix &, const ResolvedStyle &) override {}
    void beginClip(const QPolygonF &) override {}
    void endClip() override {}
};

struct Work
{
    std::int64_t display = 0; ///< that went into the shapes
    std::int64_t walk = 0;    ///< into one look at them
};

Work workOf(const DxfText &text)
{
    const auto drawing = readDrawing(text);
    Scene scene(*drawing);
    scene.prepare(Scene::modelSpace);
    Work work;
    const BlockDisplay &shown = scene.display(Scene::modelSpace);
    for (const RecordSummary &record : shown.records) {
        RecordDisplay made;
        work.display += scene.shown(shown, record, made).work;
    }
    drawing::WorkBudget budget(drawing::pictureWork);
    NoSink sink;
    SceneWalker walker(scene, {.view = QRectF(0, 0, 200, 200), .isRaster = true}, sink, budget);
    walker.walk(Scene::modelSpace, Matrix::scaling({2.0, 2.0, 2.0}));
    EXPECT_FALSE(walker.wasCutShort());
    work.walk = drawing::pictureWork - budget.left();
    return work;
}

TEST(HostileDrawing, WorkGrowsWithTheInput)
{
    const auto insert = [](int columns) {
        return DxfText{.entities = "0 INSERT|8 0|2 B|10 0|20 0|71 20|45 4|44 0.04|70 " + std::to_string(columns),
                       .blocks = blockText("B", "0 LINE|8 0|10 0|20 0|11 5|21 5")};
    };
    const auto dashed = [](int lines) {
        return DxfText{.entities = repeated("0 LINE|8 0|6 D|10 0|20 50|11 99|21 52|", lines) + "0 POINT|8 0|10 1|20 1",
                       .tables = tableText("LTYPE", "0 LTYPE|2 D|70 0|3 x|72 65|73 4|40 2|49 0|74 0|49 -1|74 0|49 0|74 "
                                                    "0|49 -1|74 0")};
    };
    const auto loop = [](int turns) { return DxfText{.entities = zigzagHatch(turns, "0")}; };
    const std::tuple<const char *, std::function<DxfText(int)>, int> rows[] = {
        {"cells of an array", insert, 1'000}, {"dashes", dashed, 200}, {"loop of a hatch", loop, 200}};
    for (const auto &[name, drawing, count] : rows) {
        const Work once = workOf(drawing(count));
        const Work twice = workOf(drawing(2 * count));
        EXPECT_GT(once.walk, count) << name;
        EXPECT_LE(twice.walk, once.walk * 21 / 10 + 10) << name;
        EXPECT_LE(twice.display, once.display * 21 / 10 + 10) << name;
    }
    // What stands once in the file costs nothing.
    EXPECT_EQ(workOf({.entities = repeated("0 LINE|8 0|10 0|20 0|11 99|21 99|", 5'000) + "0 INSERT|8 0|2 B|10 0|20 0",
                      .blocks = blockText("B", "0 CIRCLE|8 0|10 50|20 50|40 40")})
                  .walk,
              0);
}

TEST(HostileDrawing, FarMagnificationKeepsCurvesInPlace)
{
    // A millionth of a unit a pixel: the arc's own point must still be under the middle of the view.
    const auto drawing = readDrawing({.entities = "0 CIRCLE|8 0|10 0|20 0|40 1000"});
    Scene scene(*drawing);
    QImage image(100, 100, QImage::Format_RGB32);
    ViewTransform view(image.size());
    view.setView({1000.0 * std::cos(1.0), 1000.0 * std::sin(1.0)}, 1e6);
    QPainter painter(&image);
    paintScene(painter, scene, Scene::modelSpace, view);
    painter.end();
    bool isInk = false;
    for (int x = 48; x <= 52; ++x)
        isInk |= (image.pixel(x, 50) & 0xffffff) != 0;
    EXPECT_TRUE(isInk);
}

} // namespace
} // namespace host::view::test
