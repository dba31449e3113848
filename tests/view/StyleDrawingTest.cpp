// Colours, layers, linetypes and what blocks pass on to their contents.

#include "tests/view/Rendering.h"

#include <QTemporaryFile>

#include <gtest/gtest.h>

namespace host::view::test {
namespace {

const std::string styleLayers =
    "0 LAYER|2 0|70 0|62 7|6 CONTINUOUS|0 LAYER|2 RED|70 0|62 1|6 CONTINUOUS"
    "|0 LAYER|2 GREEN|70 0|62 3|6 CONTINUOUS|0 LAYER|2 OFF|70 0|62 -5|6 CONTINUOUS"
    "|0 LAYER|2 FROZEN|70 1|62 5|6 CONTINUOUS|0 LAYER|2 TRUE|70 0|62 1|420 1193046|6 CONTINUOUS"
    "|0 LAYER|2 UNPLOTTED|70 0|62 2|290 0|6 CONTINUOUS";

const std::string linetypes = tableText(
    "LTYPE", "0 LTYPE|2 DASHED|70 0|3 x|72 65|73 2|40 20|49 10|74 0|49 -10|74 0"
             "|0 LTYPE|2 TEXT|70 0|3 x|72 65|73 2|40 50|49 20|74 0|49 -30|74 2|75 0|340 0|46 8|50 0|44 -22|45 -4|9 HH"
             "|0 LTYPE|2 S|70 0|3 x|72 65|73 2|40 20|49 10|74 4|75 132|340 2A|46 0.5|50 0|44 0|45 0|49 -10|74 0");

std::string styledLine(const std::string &style)
{
    return "0 LINE|" + style + "|10 10|20 50|11 90|21 50";
}

constexpr const char *styledInsert = "0 INSERT|8 RED|2 B|10 0|20 0";

TEST(StyleDrawing, Colours)
{
    const QColor nothing(0, 0, 0);
    const QColor white(255, 255, 255);
    const QColor red(255, 0, 0);
    const QColor green(0, 255, 0);
    const QColor blue(0, 0, 255);
    const std::tuple<const char *, std::string, std::string, QColor, QColor> rows[] = {
        {"by layer", styledLine("8 RED"), "", red, red},
        {"by layer, names in another case", styledLine("8 red"), "", red, red},
        {"own index", styledLine("8 RED|62 3"), "", green, green},
        {"seven is the opposite of the ground", styledLine("8 0"), "", white, nothing},
        {"true colour goes before the index", styledLine("8 RED|62 3|420 255"), "", blue, blue},
        {"true colour of a layer", styledLine("8 TRUE"), "", QColor(0x12, 0x34, 0x56), QColor(0x12, 0x34, 0x56)},
        {"by block outside of blocks is seven", styledLine("8 RED|62 0"), "", white, nothing},
        {"unknown layer is drawn as seven", styledLine("8 NOSUCH"), "", white, nothing},
        {"layer off", styledLine("8 OFF"), "", nothing, white},
        {"layer frozen", styledLine("8 FROZEN"), "", nothing, white},
        {"invisible", styledLine("8 RED|60 1"), "", nothing, white},
        {"in a block, own layer", styledInsert, styledLine("8 GREEN"), green, green},
        {"in a block on layer 0: the insert's layer", styledInsert, styledLine("8 0"), red, red},
        {"in a block by block: the insert's colour", "0 INSERT|8 RED|62 5|2 B|10 0|20 0", styledLine("8 GREEN|62 0"),
         blue, blue},
        {"in a block by block: the insert's, by its layer", styledInsert, styledLine("8 GREEN|62 0"), red, red},
        {"insert frozen hides all", "0 INSERT|8 FROZEN|2 B|10 0|20 0", styledLine("8 GREEN"), nothing, white},
        {"insert on a layer that is off leaves other layers", "0 INSERT|8 OFF|2 B|10 0|20 0", styledLine("8 GREEN"),
         green, green},
        {"insert on a layer that is off hides layer 0", "0 INSERT|8 OFF|2 B|10 0|20 0", styledLine("8 0"), nothing,
         white},
        {"in a block on a frozen layer", styledInsert, styledLine("8 FROZEN"), nothing, white},
        {"by block through two inserts", "0 INSERT|8 RED|62 5|2 C|10 0|20 0", styledLine("8 GREEN|62 0"), blue, blue},
        {"layer 0 through two inserts", "0 INSERT|8 RED|2 C|10 0|20 0", styledLine("8 0"), red, red},
    };
    for (const auto &[name, entities, inBlock, onBlack, onWhite] : rows) {
        SCOPED_TRACE(name);
        const DxfText text{.entities = entities,
                           .blocks = blockText("B", inBlock) + "|" + blockText("C", "0 INSERT|8 0|62 0|2 B|10 0|20 0"),
                           .layers = styleLayers};
        EXPECT_EQ(Rendering(text).color(50, 50).name(), onBlack.name());
        EXPECT_EQ(Rendering(text, {.ground = Ground::White}).color(50, 50).name(), onWhite.name());
    }
}

TEST(StyleDrawing, ColourTable)
{
    const std::vector<std::pair<int, const char *>> rows = {
        {1, "#ff0000"},   {2, "#ffff00"},   {3, "#00ff00"},  {4, "#00ffff"},  {5, "#0000ff"},   {6, "#ff00ff"},
        {10, "#ff0000"},  {11, "#ff7f7f"},  {30, "#ff7f00"}, {50, "#ffff00"}, {90, "#00ff00"},  {130, "#00ffff"},
        {170, "#0000ff"}, {210, "#ff00ff"}, {12, "#a50000"}, {15, "#7f3f3f"}, {250, "#333333"}, {255, "#ffffff"},
    };
    for (const auto &[index, name] : rows)
        EXPECT_EQ(aciColor(index, Ground::Black).name().toStdString(), name) << "index " << index;
    for (const int outside : {-3, 0, 256, 100000})
        EXPECT_EQ(aciColor(outside, Ground::White), aciColor(7, Ground::White)) << outside;
}

TEST(StyleDrawing, UnplottedLayersAreOnScreenOnly)
{
    const DxfText text{.entities = styledLine("8 UNPLOTTED"), .layers = styleLayers};
    EXPECT_TRUE(Rendering(text).isInk(50, 50));
    EXPECT_FALSE(Rendering(text, {.plottedOnly = true}).isInk(50, 50));
}

TEST(StyleDrawing, FramesOfMasksAsTheDrawingSays)
{
    const std::tuple<const char *, bool, bool> rows[] = {
        {"", true, true}, {"0", false, false}, {"1", true, true}, {"2", true, false}};
    for (const auto &[setting, onScreen, onPaper] : rows) {
        DxfText text{.entities = "0 WIPEOUT|8 0|10 20|20 20|11 60|21 0|12 0|22 60|13 1|23 1"};
        if (*setting)
            text.objects = "0 DICTIONARY|5 F1|100 AcDbDictionary|3 ACAD_WIPEOUT_VARS|350 F2"
                           "|0 WIPEOUTVARIABLES|5 F2|100 AcDbWipeoutVariables|70 " +
                           std::string(setting);
        EXPECT_EQ(Rendering(text).isInk(50, 20), onScreen) << setting;
        EXPECT_EQ(Rendering(text, {.plottedOnly = true}).isInk(50, 20), onPaper) << setting;
        EXPECT_FALSE(Rendering(text).isInk(50, 50)) << setting;
    }
}

TEST(StyleDrawing, LineweightsWhenAskedFor)
{
    const DxfText text{.entities = "0 LINE|8 0|370 200|10 10|20 50|11 90|21 50"};
    EXPECT_FALSE(Rendering(text).isInk(50, 53));
    EXPECT_TRUE(Rendering(text, {.pixelsPerMillimetre = 8.0}).isInk(50, 53)) << "two millimetres are sixteen pixels";
}

TEST(StyleDrawing, HighlightedRecordsAreDashedInTheirColour)
{
    const auto drawing = readDrawing({.entities = styledLine("8 0|5 A1") + "|0 LINE|5 A2|8 0|10 10|20 20|11 90|21 20"});
    Scene scene(*drawing);
    const RecordSet selected{drawing->find({0xA1})};
    const PaintOptions options{.highlighted = &selected, .highlight = QColor(1, 200, 3)};
    const Rendering shown(scene, Scene::modelSpace, options);
    EXPECT_EQ(shown.color(10, 50), QColor(1, 200, 3));
    EXPECT_GT(shown.runs({10, 50}, {90, 50}), 5);
    EXPECT_EQ(shown.color(50, 20), QColor(255, 255, 255));
    EXPECT_EQ(shown.runs({10, 20}, {90, 20}), 1);
}

TEST(StyleDrawing, CurvesAreDashedAlongTheirWay)
{
    const Rendering shown({.entities = "0 CIRCLE|8 0|6 DASHED|10 50|20 50|40 40", .tables = linetypes});
    const Rendering full({.entities = "0 CIRCLE|8 0|10 50|20 50|40 40"});
    const double part = static_cast<double>(shown.inkPixels()) / static_cast<double>(full.inkPixels());
    EXPECT_GT(part, 0.4);
    EXPECT_LT(part, 0.65);
}

TEST(StyleDrawing, ShapesInThePatternAreReportedAsLeftOut)
{
    const Rendering shown({.entities = styledLine("8 0|6 S"), .tables = linetypes});
    EXPECT_EQ(shown.runs({10, 50}, {90, 50}), 5);
    EXPECT_EQ(shown.report().simplified, (QMap<QString, qint64>{{QStringLiteral("LINE"), 1}}));
}

TEST(StyleDrawing, ShapesInThePatternAndShapesAreDrawnFromTheirFile)
{
    QTemporaryFile source;
    ASSERT_TRUE(source.open() && source.write("*132,9,TICK\n2,8,(0,10),1,0A0,0\n") > 0);
    source.close();
    const std::string tables =
        tableText("STYLE", "0 STYLE|5 2A|2 |70 1|40 0|41 1|50 0|71 0|42 1|3 my.shx|4 ") + "|" + linetypes;
    const auto drawing =
        readDrawing({.entities = styledLine("8 0|6 S") +
                                 "|0 SHAPE|8 0|10 40|20 10|40 2|2 tick|50 90|0 SHAPE|8 0|10 10|20 90|40 1|2 LOST",
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

TEST(StyleDrawing, TextsInThePattern)
{
    const Rendering shown({.entities = styledLine("8 0|6 TEXT"), .tables = linetypes});
    // One repetition: a dash, a text of eight units' height in the gap, a dash.
    EXPECT_GT(shown.inkBox().height(), 6.0);
    EXPECT_LT(shown.inkBox().height(), 12.0);
    EXPECT_TRUE(shown.isInk(12, 50));
    EXPECT_TRUE(shown.isInk(88, 50));
}

} // namespace
} // namespace host::view::test
