#include "tests/view/Rendering.h"

#include <QTemporaryFile>

#include <gtest/gtest.h>

namespace host::view::test {
namespace {

const std::string linetypes = tableText(
    "LTYPE", "0 LTYPE|2 DASHED|70 0|3 x|72 65|73 2|40 20|49 10|74 0|49 -10|74 0"
             "|0 LTYPE|2 DASHDOT|70 0|3 x|72 65|73 4|40 20|49 10|74 0|49 -5|74 0|49 0|74 0|49 -5|74 0"
             "|0 LTYPE|2 TINY|70 0|3 x|72 65|73 2|40 0.2|49 0.1|74 0|49 -0.1|74 0"
             "|0 LTYPE|2 TEXT|70 0|3 x|72 65|73 2|40 50|49 20|74 0|49 -30|74 2|75 0|340 0|46 8|50 0|44 -22|45 -4|9 HH");

std::string line(const std::string &style)
{
    return "0 LINE|" + style + "|10 10|20 50|11 90|21 50";
}

TEST(LinetypeDrawing, DashesAndGaps)
{
    struct Row
    {
        const char *name;
        std::string entities;
        int runs;
        const char *ink;
        const char *blank;
        const char *header = "";
    };
    const std::string blocks = blockText("INHERITING", line("8 0|6 BYBLOCK")) + "|" +
                               blockText("OWN", "0 LINE|8 0|6 DASHED|10 10|20 50|11 50|21 50");
    const std::vector<Row> rows = {
        {"full", line("8 0"), 1, "50,50", ""},
        // Four repetitions fit; half a dash at each end.
        {"centred, both ends on a dash", line("8 0|6 DASHED"), 5, "11,50 89,50 30,50 50,50", "20,50 40,50 60,50"},
        {"by layer", line("8 D"), 5, "", "20,50"},
        {"own goes before the layer's", line("8 D|6 CONTINUOUS"), 1, "", ""},
        {"scale of the entity", line("8 0|6 DASHED|48 2"), 3, "50,50", "30,50 70,50"},
        {"scale of the drawing", line("8 0|6 DASHED"), 3, "50,50", "30,50", "9 $LTSCALE|40 2"},
        {"too long for one repetition", line("8 0|6 DASHED|48 5"), 1, "", ""},
        {"finer than pixels is drawn full", line("8 0|6 TINY"), 1, "", ""},
        {"unknown linetype is full", line("8 0|6 NOSUCH"), 1, "", ""},
        {"dots between dashes", line("8 0|6 DASHDOT"), 9, "20,50 30,50", "17,50 23,50"},
        {"by block", "0 INSERT|8 0|6 DASHED|2 INHERITING|10 0|20 0", 5, "", "20,50"},
        {"grows with the insert", "0 INSERT|8 0|2 OWN|10 -10|20 -50|41 2|42 2", 3, "50,50", "30,50"},
        {"every side of a polyline begins anew",
         "0 LWPOLYLINE|8 0|6 DASHED|90 3|70 0|10 10|20 50|10 25|20 50|10 90|20 50", 4, "15,50 25,50", ""},
        {"or not, when its pattern runs through",
         "0 LWPOLYLINE|8 0|6 DASHED|90 3|70 128|10 10|20 50|10 25|20 50|10 90|20 50", 5, "", "20,50"},
        {"infinite lines are dashed from their base", "0 XLINE|8 0|6 DASHED|10 25|20 50|11 1|21 0", 5, "30,50 70,50",
         "20,50 40,50"},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        const Rendering shown({.entities = row.entities,
                               .blocks = blocks,
                               .layers = "0 LAYER|2 D|70 0|62 7|6 DASHED",
                               .tables = linetypes,
                               .header = row.header});
        EXPECT_EQ(shown.runs({10, 50}, {90, 50}), row.runs);
        expectInk(shown, row.ink, row.blank);
    }
}

TEST(LinetypeDrawing, CurvesAreDashedAlongTheirWay)
{
    const Rendering shown({.entities = "0 CIRCLE|8 0|6 DASHED|10 50|20 50|40 40", .tables = linetypes});
    const Rendering full({.entities = "0 CIRCLE|8 0|10 50|20 50|40 40"});
    const double part = static_cast<double>(shown.inkPixels()) / static_cast<double>(full.inkPixels());
    EXPECT_GT(part, 0.4);
    EXPECT_LT(part, 0.65);
}

TEST(LinetypeDrawing, ShapesInThePatternAreReportedAsLeftOut)
{
    const std::string shaped = tableText(
        "LTYPE", "0 LTYPE|2 S|70 0|3 x|72 65|73 2|40 20|49 10|74 4|75 132|340 0|46 1|50 0|44 0|45 0|49 -10|74 0");
    const Rendering shown({.entities = line("8 0|6 S"), .tables = shaped});
    EXPECT_EQ(shown.runs({10, 50}, {90, 50}), 5);
    EXPECT_EQ(shown.report().simplified, (QMap<QString, qint64>{{QStringLiteral("LINE"), 1}}));
}

TEST(LinetypeDrawing, ShapesInThePatternAndShapesAreDrawnFromTheirFile)
{
    QTemporaryFile source;
    ASSERT_TRUE(source.open() && source.write("*132,9,TICK\n2,8,(0,10),1,0A0,0\n") > 0);
    source.close();
    const std::string tables =
        tableText("STYLE", "0 STYLE|5 2A|2 |70 1|40 0|41 1|50 0|71 0|42 1|3 my.shx|4 ") + "|" +
        tableText("LTYPE",
                  "0 LTYPE|2 S|70 0|3 x|72 65|73 2|40 20|49 10|74 4|75 132|340 2A|46 0.5|50 0|44 0|45 0|49 -10|74 0");
    const auto drawing = readDrawing(
        {.entities = line("8 0|6 S") + "|0 SHAPE|8 0|10 40|20 10|40 2|2 tick|50 90|0 SHAPE|8 0|10 10|20 90|40 1|2 LOST",
         .tables = tables});
    Scene scene(*drawing, {.file = [&](const QString &name) {
        return name == QStringLiteral("my.shp") ? source.fileName() : QString();
    }});
    const Rendering shown(scene, Scene::modelSpace);
    // Dashes end at 15, 35, ...; the shape of half its size stands there. The other one is turned to the left.
    expectInk(shown, "50,50 17,55 37,55 20,20", "25,20 20,50 13,55 23,55");
    EXPECT_EQ(shown.report().skipped, (QMap<QString, qint64>{{QStringLiteral("SHAPE"), 1}}));
    EXPECT_TRUE(shown.report().simplified.isEmpty());
}

TEST(LinetypeDrawing, TextsInThePattern)
{
    const Rendering shown({.entities = line("8 0|6 TEXT"), .tables = linetypes});
    // One repetition: a dash, a text of eight units' height in the gap, a dash.
    EXPECT_GT(shown.inkBox().height(), 6.0);
    EXPECT_LT(shown.inkBox().height(), 12.0);
    EXPECT_TRUE(shown.isInk(12, 50));
    EXPECT_TRUE(shown.isInk(88, 50));
}

} // namespace
} // namespace host::view::test
