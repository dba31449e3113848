// What each type of entity looks like: points that must be drawn and points that must not.

#include "tests/view/Rendering.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace host::view::test {
using namespace Qt::StringLiterals;

namespace {

struct ShapeRow
{
    const char *name;
    std::string entities;
    const char *ink;   ///< points as "50,30 12,11"
    const char *blank; ///< likewise
    DxfText rest = {}; ///< of the drawing
};

void checkRows(const std::vector<ShapeRow> &rows, const std::string &blocks = {})
{
    for (const ShapeRow &row : rows) {
        SCOPED_TRACE(row.name);
        DxfText text = row.rest;
        text.entities = row.entities;
        text.blocks = blocks;
        const Rendering shown(text);
        expectInk(shown, row.ink, row.blank);
        EXPECT_EQ(shown.report().skippedCount(), 0);
    }
}

TEST(EntityDrawing, LinesAndCurves)
{
    checkRows({
        {"line", "0 LINE|8 0|10 10|20 10|11 90|21 50", "50,30 12,11", "50,40 5,8"},
        {"circle", "0 CIRCLE|8 0|10 50|20 50|40 30", "80,50 50,20 71.2,71.2", "50,50"},
        {"arc over the start of the circle", "0 ARC|8 0|10 50|20 50|40 30|50 300|51 60", "80,50 65,24 65,76",
         "20,50 50,80"},
        {"arc with negative extrusion is mirrored", "0 ARC|8 0|10 -50|20 50|40 30|50 300|51 60|210 0|220 0|230 -1",
         "20,50 35,24", "80,50"},
        {"half an ellipse", "0 ELLIPSE|8 0|10 50|20 50|11 40|21 0|40 0.5|41 0|42 3.14159265", "50,70 90,50 10,50",
         "50,30"},
        {"ellipse seen from below runs the other way",
         "0 ELLIPSE|8 0|10 50|20 50|11 40|21 0|40 0.5|41 0|42 3.14159265|210 0|220 0|230 -1", "50,30", "50,70"},
        {"spline through control points",
         "0 SPLINE|8 0|70 8|71 3|72 8|73 4|40 0|40 0|40 0|40 0|40 1|40 1|40 1|40 1"
         "|10 10|20 10|10 10|20 90|10 90|20 90|10 90|20 10",
         "50,70 10,10 90,10", "50,90 10,60"},
        {"spline through fit points", "0 SPLINE|8 0|70 8|71 3|74 3|11 10|21 10|11 50|21 60|11 90|21 10",
         "10,10 50,60 90,10", "50,20"},
        {"point", "0 POINT|8 0|10 40|20 40", "40,40", "43,40"},
        {"point as a cross of ten units",
         "0 POINT|8 0|10 40|20 40",
         "31,40 40,49 45,40",
         "47,47 40,53",
         {.header = "9 $PDMODE|70 34|9 $PDSIZE|40 20"}},
        {"ray", "0 RAY|8 0|10 50|20 50|11 1|21 0", "60,50 99,50", "40,50"},
        {"construction line", "0 XLINE|8 0|10 50|20 50|11 1|21 1", "5,5 95,95", "5,95"},
    });
}

TEST(EntityDrawing, Polylines)
{
    const std::string vertices =
        "|0 VERTEX|8 0|10 10|20 10|42 1|0 VERTEX|8 0|10 90|20 10|0 VERTEX|8 0|10 90|20 90|0 SEQEND|8 0";
    checkRows({
        {"bulge bends to the right of the way", // a positive bulge runs counter-clockwise
         "0 LWPOLYLINE|8 0|90 2|70 0|10 10|20 60|42 1|10 70|20 60", "40,30 10,60", "40,60 40,90"},
        {"closed light polyline", "0 LWPOLYLINE|8 0|90 3|70 1|10 10|20 10|10 90|20 10|10 90|20 90", "50,50", ""},
        {"open light polyline", "0 LWPOLYLINE|8 0|90 3|70 0|10 10|20 10|10 90|20 10|10 90|20 90", "50,10", "50,50"},
        {"old polyline with a bulge", "0 POLYLINE|8 0|66 1|70 0" + vertices, "90,50 10,10", "50,10 50,50"},
        {"spline-fitted polyline leaves out its frame",
         "0 POLYLINE|8 0|66 1|70 4|0 VERTEX|8 0|10 10|20 10|70 8|0 VERTEX|8 0|10 50|20 90|70 16"
         "|0 VERTEX|8 0|10 90|20 10|70 8|0 SEQEND|8 0",
         "50,10", "30,50 50,90"},
        {"wide polyline is filled, mitred at its corner",
         "0 LWPOLYLINE|8 0|90 3|70 0|43 20|10 20|20 20|10 80|20 20|10 80|20 80", "50,12 50,28 88,12 72,60",
         "50,35 12,20 60,60"},
        {"tapering polyline", "0 LWPOLYLINE|8 0|90 2|70 0|10 10|20 50|40 40|41 0|10 90|20 50", "12,66 50,55 85,50",
         "70,60 50,65"},
        {"wide arc", "0 LWPOLYLINE|8 0|90 2|70 1|43 10|10 30|20 50|42 1|10 70|20 50|42 1", "50,66 50,74 50,34 66,50",
         "50,50 50,80"},
        {"polyline in space",
         "0 POLYLINE|8 0|66 1|70 9|0 VERTEX|8 0|10 10|20 10|30 5|70 32|0 VERTEX|8 0|10 90|20 10|30 9|70 32"
         "|0 VERTEX|8 0|10 90|20 90|70 32|0 SEQEND|8 0",
         "50,10 50,50", "30,60"},
        {"mesh of two by three",
         "0 POLYLINE|8 0|66 1|70 16|71 2|72 3|0 VERTEX|8 0|10 10|20 10|70 64|0 VERTEX|8 0|10 50|20 10|70 64"
         "|0 VERTEX|8 0|10 90|20 10|70 64|0 VERTEX|8 0|10 10|20 50|70 64|0 VERTEX|8 0|10 50|20 50|70 64"
         "|0 VERTEX|8 0|10 90|20 50|70 64|0 SEQEND|8 0",
         "30,10 70,50 50,30 10,30", "30,30"},
        {"faces with an invisible edge",
         "0 POLYLINE|8 0|66 1|70 64|71 3|72 1|0 VERTEX|8 0|10 10|20 10|70 192|0 VERTEX|8 0|10 90|20 10|70 192"
         "|0 VERTEX|8 0|10 90|20 90|70 192|0 VERTEX|8 0|70 128|71 1|72 -2|73 3|0 SEQEND|8 0",
         "50,10 50,50", "90,50"},
        {"multiline, two elements",
         "0 MLINE|8 0|2 STANDARD|71 1|72 2|73 2|10 10|20 50|11 10|21 50|12 1|22 0|13 0|23 1|74 2|41 0|41 0|75 0"
         "|74 2|41 -10|41 0|75 0|11 90|21 50|12 1|22 0|13 0|23 1|74 2|41 0|41 0|75 0|74 2|41 -10|41 0|75 0",
         "50,50 50,40", "50,45"},
        {"leader with its arrow",
         "0 LEADER|8 0|3 S|71 1|72 0|76 2|10 10|20 50|10 90|20 50",
         "60,50 30,52 30,48",
         "60,54 12,54",
         {.tables = tableText("DIMSTYLE", "0 DIMSTYLE|2 S|40 1|41 24")}},
        {"multi-leader with its landing and text",
         "0 MULTILEADER|8 0|100 AcDbMLeader|270 2|300 CONTEXT_DATA{|40 1|10 60|20 60|41 20|140 8|290 1|304 HH"
         "|12 62|22 70|13 1|23 0|43 0|170 1|171 1|296 0|302 LEADER{|290 1|291 1|10 40|20 60|11 1|21 0|90 0"
         "|40 15|304 LEADER_LINE{|10 10|20 10|91 0|305 }|303 }|301 }|170 1",
         "25,35 50,60 12,13 65,60", "20,60 58,60"},
    });
}

TEST(EntityDrawing, Areas)
{
    checkRows({
        {"solid has its corners crosswise", "0 SOLID|8 0|10 10|20 10|11 90|21 10|12 10|22 90|13 90|23 90",
         "50,50 20,80 80,20", "95,50"},
        {"solid of three corners", "0 SOLID|8 0|10 10|20 10|11 90|21 10|12 10|22 90|13 10|23 90", "20,20 30,50",
         "80,80"},
        {"face without its second edge", "0 3DFACE|8 0|70 2|10 10|20 10|11 90|21 10|12 90|22 90|13 10|23 90",
         "50,10 50,90 10,50", "90,50 50,50"},
        {"mask covers what was drawn before, not what comes after",
         "0 LINE|8 0|10 0|20 40|11 100|21 40"
         "|0 WIPEOUT|8 0|10 20|20 20|11 60|21 0|12 0|22 60|13 1|23 1|71 1|91 2|14 -0.5|24 -0.5|14 0.5|24 0.5"
         "|0 LINE|8 0|10 0|20 60|11 100|21 60",
         "10,40 50,60", "50,40"},
        {"text with the ground behind it",
         "0 LINE|8 0|10 0|20 50|11 100|21 50|0 MTEXT|8 0|10 30|20 60|40 20|41 40|71 1|90 3|63 1|45 1.5|1 %%032",
         "10,50 90,50", "45,50"},
        {"text with a colour behind it", "0 MTEXT|8 0|10 30|20 60|40 20|41 40|71 1|90 1|63 1|45 1.5|1 %%032",
         "45,50 32,62", "10,50"},
        {"picture shows its frame", "0 IMAGE|8 0|10 20|20 20|11 1|21 0|12 0|22 1|13 60|23 40", "50,20 50,60 80,40",
         "50,40"},
    });
}

std::string squareLoop(int flags, int low, int high)
{
    const std::string l = std::to_string(low);
    const std::string h = std::to_string(high);
    return "|92 " + std::to_string(flags) + "|72 0|73 1|93 4|10 " + l + "|20 " + l + "|10 " + h + "|20 " + l + "|10 " +
           h + "|20 " + h + "|10 " + l + "|20 " + h + "|97 0";
}

const std::string square = "|91 1" + squareLoop(7, 10, 90);
const std::string twoSquares = "|91 2" + squareLoop(7, 10, 90) + squareLoop(22, 40, 60);
const std::string threeSquares = "|91 3" + squareLoop(7, 10, 90) + squareLoop(22, 30, 70) + squareLoop(22, 45, 55);

/// Filled, but for what the pattern says.
std::string hatch(const std::string &loops, int style = 0, const std::string &pattern = {})
{
    return "0 HATCH|8 0|10 0|20 0|30 0|210 0|220 0|230 1|2 X|70 " + std::string(pattern.empty() ? "1" : "0") + "|71 0" +
           loops + "|75 " + std::to_string(style) + "|76 1" + pattern + "|98 0";
}

TEST(EntityDrawing, Hatches)
{
    const std::string lines = "|52 0|41 1|77 0|78 1|53 0|43 0|44 5|45 0|46 20|79 0";
    const std::string dashes = "|52 0|41 1|77 0|78 1|53 0|43 0|44 50|45 0|46 100|79 2|49 10|49 -10";
    const std::string upright = "|52 0|41 1|77 0|78 1|53 90|43 50|44 0|45 -100|46 0|79 0";
    checkRows({
        {"solid", hatch(square), "50,50 12,12", "5,50"},
        {"island", hatch(twoSquares), "20,50 50,80", "50,50"},
        {"island ignored", hatch(twoSquares, 2), "20,50 50,50", ""},
        {"area within an island", hatch(threeSquares), "20,50 50,50", "35,35"},
        {"outermost area alone", hatch(threeSquares, 1), "20,50", "50,50 35,35"},
        {"lines twenty apart", hatch(square, 0, lines), "50,25 50,45 11,65", "50,35 5,45"},
        {"lines stop at an island", hatch(twoSquares, 0, lines), "30,45 70,45", "50,45"},
        {"dashes are counted from the pattern's base", hatch(square, 0, dashes), "25,50 45,50 85,50",
         "15,50 35,50 75,50"},
        {"upright line", hatch(square, 0, upright), "50,20 50,80", "50,95 40,50"},
        {"boundary of a line and an arc",
         hatch("|91 1|92 1|93 2|72 1|10 20|20 50|11 80|21 50|72 2|10 50|20 50|40 30|50 0|51 180|73 1|97 0"),
         "50,70 30,55", "50,40 25,75"},
        {"clockwise arc",
         hatch("|91 1|92 1|93 2|72 2|10 50|20 50|40 30|50 0|51 180|73 0|72 1|10 20|20 50|11 80|21 50|97 0"), "50,30",
         "50,60"},
        {"ellipse", hatch("|91 1|92 1|93 1|72 3|10 50|20 50|11 40|21 0|40 0.25|50 0|51 360|73 1|97 0"),
         "50,50 80,50 50,57", "50,65 85,58"},
        {"spline edge",
         hatch("|91 1|92 1|93 2|72 4|94 3|73 0|74 0|95 8|96 4|40 0|40 0|40 0|40 0|40 1|40 1|40 1|40 1"
               "|10 10|20 20|10 10|20 90|10 90|20 90|10 90|20 20|97 0|72 1|10 90|20 20|11 10|21 20|97 0"),
         "50,60 50,30", "50,80 15,80"},
        {"bulged boundary", hatch("|91 1|92 7|72 1|73 1|93 2|10 20|20 50|42 1|10 80|20 50|42 1|97 0"), "50,30 50,70",
         "25,25"},
    });
}

TEST(EntityDrawing, Inserts)
{
    const std::string tick = "0 LINE|8 0|10 0|20 0|11 10|21 0|0 LINE|8 0|10 0|20 0|11 0|21 5";
    const std::string blocks =
        blockText("TICK", tick) + "|" + blockText("OUTER", "0 INSERT|8 0|2 TICK|10 10|20 10|41 2|42 2") +
        "|0 BLOCK|8 0|2 BASED|70 0|10 5|20 5|30 0|0 LINE|8 0|10 5|20 5|11 15|21 5|0 ENDBLK|8 0|" +
        blockText("LONG", "0 LINE|8 0|10 0|20 50|11 100|21 50") + "|" +
        blockText("ASKING", "0 LINE|8 0|10 0|20 0|11 20|21 0|0 ATTDEF|8 0|10 0|20 20|40 20|1 HHH|2 T|3 ?|70 0");
    const std::string window =
        "0 DICTIONARY|5 B1|3 ACAD_FILTER|360 B2|0 DICTIONARY|5 B2|3 SPATIAL|360 B3|0 SPATIAL_FILTER|5 B3|70 2"
        "|10 30|20 30|10 70|20 70|210 0|220 0|230 1|11 0|21 0|31 0|71 1|72 0|73 0"
        "|40 1|40 0|40 0|40 0|40 0|40 1|40 0|40 0|40 0|40 0|40 1|40 0"
        "|40 1|40 0|40 0|40 0|40 0|40 1|40 0|40 0|40 0|40 0|40 1|40 0";
    checkRows(
        {
            {"moved", "0 INSERT|8 0|2 TICK|10 40|20 40", "45,40 40,43", "45,43 5,0"},
            {"turned", "0 INSERT|8 0|2 TICK|10 40|20 40|50 90", "40,45 37,40", "45,40"},
            {"mirrored", "0 INSERT|8 0|2 TICK|10 40|20 40|41 -1", "35,40 40,43", "45,40"},
            {"nested, both scaled", "0 INSERT|8 0|2 OUTER|10 20|20 20|41 2|42 2", "60,40 40,55", "45,45 85,40"},
            {"array", "0 INSERT|8 0|2 TICK|10 10|20 10|70 3|71 2|44 30|45 40", "15,10 45,10 75,10 45,50 75,50",
             "25,10 45,90"},
            {"turned array runs with its turn", "0 INSERT|8 0|2 TICK|10 50|20 10|50 90|70 2|44 40", "50,15 50,55",
             "90,10"},
            {"base point", "0 INSERT|8 0|2 BASED|10 50|20 50", "55,50", "55,55"},
            {"negative extrusion", "0 INSERT|8 0|2 TICK|10 -60|20 40|210 0|220 0|230 -1", "55,40 60,43", "65,40"},
            {"dimension shows its block", "0 DIMENSION|8 0|2 LONG|10 0|20 0|70 0", "50,50", ""},
            {"every cell of an array has the attributes",
             "0 INSERT|8 0|66 1|2 ASKING|10 10|20 10|70 2|44 50|0 ATTRIB|8 0|10 10|20 40|40 20|1 HHH|2 T|70 0|0 "
             "SEQEND|8 0",
             "20,10 70,10 12.5,50 62.5,50", "45,10"},
            {"attribute value shows, its definition does not",
             "0 INSERT|8 0|66 1|2 ASKING|10 50|20 50|0 ATTRIB|8 0|10 10|20 10|40 20|1 HHH|2 T|70 0|0 SEQEND|8 0",
             "12.5,20", "52.5,80 52.5,75"},
            {"clipped to its window",
             "0 INSERT|8 0|102 {ACAD_XDICTIONARY|360 B1|102 }|2 LONG|10 0|20 0",
             "50,50",
             "20,50 80,50",
             {.objects = window}},
        },
        blocks);
}

TEST(EntityDrawing, SpacesAndViewports)
{
    const DxfText text{.entities = "0 LINE|8 0|10 0|20 2|11 10|21 2"
                                   "|0 LINE|8 0|67 1|10 10|20 90|11 90|21 90"
                                   "|0 VIEWPORT|8 0|67 1|10 50|20 40|40 60|41 40|68 2|69 2|12 5|22 2|16 0|26 0|36 1"
                                   "|17 0|27 0|37 0|45 10|90 0"};
    const Rendering model(text);
    EXPECT_TRUE(model.isInk(5, 2));
    EXPECT_FALSE(model.isInk(50, 90));
    const Rendering paper(text, {}, Scene::paperSpace);
    EXPECT_TRUE(paper.isInk(50, 90)) << "the sheet's own line";
    EXPECT_TRUE(paper.isInk(50, 20)) << "the frame of the viewport";
    EXPECT_TRUE(paper.isInk(50, 40)) << "the model, four times as large, in its middle";
    EXPECT_TRUE(paper.isInk(32, 40));
    EXPECT_FALSE(paper.isInk(25, 40)) << "the model's line ends at 30";
    EXPECT_FALSE(paper.isInk(5, 2)) << "the model itself is not on the sheet";
}

TEST(EntityDrawing, SortHandlesOrderWhatCoversWhat)
{
    const std::string red = "0 SOLID|5 A1|8 0|62 1|10 10|20 10|11 90|21 10|12 10|22 90|13 90|23 90";
    const std::string blue = "0 SOLID|5 A2|8 0|62 5|10 10|20 10|11 90|21 10|12 10|22 90|13 90|23 90";
    EXPECT_EQ(Rendering({.entities = red + "|" + blue}).color(50, 50), QColor(0, 0, 255));
    const std::string table = "0 SORTENTSTABLE|5 B1|330 1F|331 A1|5 A2|331 A2|5 A1";
    EXPECT_EQ(Rendering({.entities = red + "|" + blue, .objects = table}).color(50, 50), QColor(255, 0, 0));
}

/// A drawing beside a file "note.txt".
std::unique_ptr<drawing::Drawing> besideNote(const QTemporaryDir &folder, const QByteArray &note,
                                             const std::string &entities)
{
    QFile file(folder.filePath(u"note.txt"_s));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(note);
    auto drawing = readDrawing({.entities = entities});
    drawing->setPath(folder.filePath(u"a.dxf"_s));
    return drawing;
}

TEST(EntityDrawing, RemoteTextShowsItsFile)
{
    QTemporaryDir folder;
    const auto drawing = besideNote(folder, "H\nH\n", "0 RTEXT|8 0|10 20|20 60|40 12|50 0|70 0|1 note.txt");
    Scene scene(*drawing);
    const QRectF ink = Rendering(scene, Scene::modelSpace).inkBox();
    EXPECT_NEAR(ink.bottom(), 72.0, 1.0) << "the first of two lines stands on the insertion point";
    EXPECT_NEAR(ink.top(), 40.0, 1.0) << "the second five thirds of the height below";
    EXPECT_EQ(scene.report(Scene::modelSpace).drawn, 1);
    const Rendering unread({.entities = "0 RTEXT|8 0|10 20|20 80|40 12|50 0|70 0|1 /dev/zero"});
    EXPECT_LT(unread.inkBox().height(), 20.0) << "the name alone";
    EXPECT_EQ(unread.report().simplified, (QMap<QString, qint64>{{QStringLiteral("RTEXT"), 1}}));
}

TEST(EntityDrawing, RemoteTextShowsTheValueOfItsExpressionUntilTheNextRegeneration)
{
    QTemporaryDir folder;
    const auto width = [](Scene &scene) { return Rendering(scene, Scene::modelSpace).inkBox().width(); };
    const auto drawing = readDrawing({.entities = "0 RTEXT|8 0|10 10|20 60|40 8|50 0|70 1|1 $(upper,$(getvar,note))"});
    QString note = u"h"_s;
    Scene scene(*drawing, {.variable = [&note](const QString &name) {
        return name == u"note" ? std::optional(note) : std::nullopt;
    }});
    const double oneLetter = width(scene);
    EXPECT_NEAR(oneLetter, 5.5, 2.0) << "the value's one letter, not the expression";
    EXPECT_EQ(scene.report(Scene::modelSpace).drawn, 1) << "as it is, not simplified";
    note = u"hhhh"_s;
    EXPECT_EQ(width(scene), oneLetter);
    scene.regenerate();
    EXPECT_GT(width(scene), 3.0 * oneLetter);

    const struct
    {
        const char *what;
        QByteArray bytes;
        int flags;
        int letters;
    } rows[] = {
        {"codes are plain text", "{\\LHH}", 0, 6},
        {"codes count where the record says so", "{\\LHH}", 2, 2},
        {"UTF-16",
         QByteArray("\xFF\xFE"
                    "H\0\r\0\n\0H\0",
                    10),
         0, 1},
        {"no UTF-8", "\xC4\xC4", 0, 2},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        const auto one = besideNote(folder, row.bytes,
                                    "0 RTEXT|8 0|10 10|20 60|40 8|70 " + std::to_string(row.flags) + "|1 .\\note.txt");
        Scene shown(*one);
        EXPECT_NEAR(width(shown) / oneLetter, row.letters, 0.35 * row.letters + 0.3);
        EXPECT_EQ(shown.report(Scene::modelSpace).drawn, 1);
    }
}

TEST(EntityDrawing, WhatCannotBeDrawnIsCounted)
{
    const Rendering shown({.entities = "0 LINE|8 0|10 10|20 10|11 90|21 10|0 3DSOLID|8 0|0 3DSOLID|8 0|0 OLE2FRAME|8 0"
                                       "|0 INSERT|8 0|2 GONE|10 1|20 1|0 DIMENSION|8 0|2 *D9"
                                       "|0 IMAGE|8 0|10 20|20 20|11 1|21 0|12 0|22 1|13 60|23 40"
                                       "|0 LINE|8 0|60 1|10 10|20 30|11 90|21 30|0 INSERT|8 0|2 B|10 0|20 0"
                                       "|0 INSERT|8 0|2 SITE|10 0|20 0",
                           .blocks = blockText("B", "0 BODY|8 0|0 CIRCLE|8 0|10 50|20 50|40 10") +
                                     "|0 BLOCK|8 0|2 SITE|70 4|10 0|20 0|30 0|3 SITE|1 site.dwg|0 ENDBLK|8 0"});
    EXPECT_EQ(shown.report().summary(),
              QStringLiteral("3 drawn, 1 invisible, 1 simplified (IMAGE 1), 7 skipped "
                             "(3DSOLID 2, BODY 1, DIMENSION 1, INSERT 1, OLE2FRAME 1, XREF 1)"));
    EXPECT_EQ(shown.report().missing(),
              QStringLiteral("7 not drawn (3DSOLID 2, BODY 1, DIMENSION 1, INSERT 1, OLE2FRAME "
                             "1, XREF 1), 1 drawn in part (IMAGE 1)"));
    EXPECT_FALSE(shown.isInk(50, 30)) << "the invisible line";
}

} // namespace
} // namespace host::view::test
