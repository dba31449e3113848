// Colours, layers and what blocks pass on to their contents.

#include "tests/view/Rendering.h"

#include <gtest/gtest.h>

namespace host::view::test {
namespace {

const std::string layers = "0 LAYER|2 0|70 0|62 7|6 CONTINUOUS|0 LAYER|2 RED|70 0|62 1|6 CONTINUOUS"
                           "|0 LAYER|2 GREEN|70 0|62 3|6 CONTINUOUS|0 LAYER|2 OFF|70 0|62 -5|6 CONTINUOUS"
                           "|0 LAYER|2 FROZEN|70 1|62 5|6 CONTINUOUS|0 LAYER|2 TRUE|70 0|62 1|420 1193046|6 CONTINUOUS"
                           "|0 LAYER|2 UNPLOTTED|70 0|62 2|290 0|6 CONTINUOUS";

std::string line(const std::string &style)
{
    return "0 LINE|" + style + "|10 10|20 50|11 90|21 50";
}

constexpr const char *insert = "0 INSERT|8 RED|2 B|10 0|20 0";

TEST(StyleDrawing, Colours)
{
    const QColor nothing(0, 0, 0);
    struct Row
    {
        const char *name;
        std::string entities;
        std::string inBlock;
        QColor onBlack;
        QColor onWhite;
    };
    const QColor white(255, 255, 255);
    const QColor red(255, 0, 0);
    const QColor green(0, 255, 0);
    const QColor blue(0, 0, 255);
    const std::vector<Row> rows = {
        {"by layer", line("8 RED"), "", red, red},
        {"by layer, names in another case", line("8 red"), "", red, red},
        {"own index", line("8 RED|62 3"), "", green, green},
        {"seven is the opposite of the ground", line("8 0"), "", white, nothing},
        {"true colour goes before the index", line("8 RED|62 3|420 255"), "", blue, blue},
        {"true colour of a layer", line("8 TRUE"), "", QColor(0x12, 0x34, 0x56), QColor(0x12, 0x34, 0x56)},
        {"by block outside of blocks is seven", line("8 RED|62 0"), "", white, nothing},
        {"unknown layer is drawn as seven", line("8 NOSUCH"), "", white, nothing},
        {"layer off", line("8 OFF"), "", nothing, white},
        {"layer frozen", line("8 FROZEN"), "", nothing, white},
        {"invisible", line("8 RED|60 1"), "", nothing, white},
        {"in a block, own layer", insert, line("8 GREEN"), green, green},
        {"in a block on layer 0: the insert's layer", insert, line("8 0"), red, red},
        {"in a block by block: the insert's colour", "0 INSERT|8 RED|62 5|2 B|10 0|20 0", line("8 GREEN|62 0"), blue,
         blue},
        {"in a block by block: the insert's, by its layer", insert, line("8 GREEN|62 0"), red, red},
        {"insert frozen hides all", "0 INSERT|8 FROZEN|2 B|10 0|20 0", line("8 GREEN"), nothing, white},
        {"insert on a layer that is off leaves other layers", "0 INSERT|8 OFF|2 B|10 0|20 0", line("8 GREEN"), green,
         green},
        {"insert on a layer that is off hides layer 0", "0 INSERT|8 OFF|2 B|10 0|20 0", line("8 0"), nothing, white},
        {"in a block on a frozen layer", insert, line("8 FROZEN"), nothing, white},
        {"by block through two inserts", "0 INSERT|8 RED|62 5|2 C|10 0|20 0", line("8 GREEN|62 0"), blue, blue},
        {"layer 0 through two inserts", "0 INSERT|8 RED|2 C|10 0|20 0", line("8 0"), red, red},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        const DxfText text{.entities = row.entities,
                           .blocks =
                               blockText("B", row.inBlock) + "|" + blockText("C", "0 INSERT|8 0|62 0|2 B|10 0|20 0"),
                           .layers = layers};
        EXPECT_EQ(Rendering(text).color(50, 50).name(), row.onBlack.name());
        EXPECT_EQ(Rendering(text, {.ground = Ground::White}).color(50, 50).name(), row.onWhite.name());
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
    const DxfText text{.entities = line("8 UNPLOTTED"), .layers = layers};
    EXPECT_TRUE(Rendering(text).isInk(50, 50));
    EXPECT_FALSE(Rendering(text, {.plottedOnly = true}).isInk(50, 50));
}

TEST(StyleDrawing, FramesOfMasksAsTheDrawingSays)
{
    const struct
    {
        const char *setting; ///< empty: the drawing has none
        bool onScreen;
        bool onPaper;
    } rows[] = {{"", true, true}, {"0", false, false}, {"1", true, true}, {"2", true, false}};
    for (const auto &row : rows) {
        DxfText text{.entities = "0 WIPEOUT|8 0|10 20|20 20|11 60|21 0|12 0|22 60|13 1|23 1"};
        if (*row.setting)
            text.objects = "0 DICTIONARY|5 F1|100 AcDbDictionary|3 ACAD_WIPEOUT_VARS|350 F2"
                           "|0 WIPEOUTVARIABLES|5 F2|100 AcDbWipeoutVariables|70 " +
                           std::string(row.setting);
        EXPECT_EQ(Rendering(text).isInk(50, 20), row.onScreen) << row.setting;
        EXPECT_EQ(Rendering(text, {.plottedOnly = true}).isInk(50, 20), row.onPaper) << row.setting;
        EXPECT_FALSE(Rendering(text).isInk(50, 50)) << row.setting;
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
    const auto drawing = readDrawing({.entities = line("8 0|5 A1") + "|0 LINE|5 A2|8 0|10 10|20 20|11 90|21 20"});
    Scene scene(*drawing);
    const RecordSet selected{drawing->find({0xA1})};
    const PaintOptions options{.highlighted = &selected, .highlight = QColor(1, 200, 3)};
    const Rendering shown(scene, Scene::modelSpace, options);
    EXPECT_EQ(shown.color(10, 50), QColor(1, 200, 3));
    EXPECT_GT(shown.runs({10, 50}, {90, 50}), 5);
    EXPECT_EQ(shown.color(50, 20), QColor(255, 255, 255));
    EXPECT_EQ(shown.runs({10, 20}, {90, 20}), 1);
}

} // namespace
} // namespace host::view::test
