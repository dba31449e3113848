// What drawings look like beyond the shapes of shapes.txt: spaces, order, remote texts and what cannot be drawn.

#include "tests/view/Rendering.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace host::view::test {
using namespace Qt::StringLiterals;

namespace {

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

TEST(EntityDrawing, ViewportsOfLayoutsThatWereNotShownHaveNoNumbers)
{
    const std::string line = "0 LINE|8 0|10 0|20 2|11 10|21 2|";
    const std::string sheet = "0 VIEWPORT|8 0|67 1|10 50|20 50|40 80|41 80|68 0|69 0|12 50|22 50|16 0|26 0|36 1"
                              "|17 0|27 0|37 0|45 80|90 0|";
    const std::string other = "0 VIEWPORT|8 0|67 1|10 50|20 40|40 60|41 40|68 0|69 0|12 5|22 2|16 0|26 0|36 1"
                              "|17 0|27 0|37 0|45 10|90 ";
    const Rendering paper({.entities = line + sheet + other + "0"}, {}, Scene::paperSpace);
    EXPECT_TRUE(paper.isInk(50, 20)) << "the frame of the viewport";
    EXPECT_TRUE(paper.isInk(50, 40)) << "what it shows";
    EXPECT_FALSE(paper.isInk(50, 90)) << "the sheet itself has no frame";
    const Rendering off({.entities = line + sheet + other + "131072"}, {}, Scene::paperSpace);
    EXPECT_TRUE(off.isInk(50, 20));
    EXPECT_FALSE(off.isInk(50, 40)) << "it is off";
}

TEST(EntityDrawing, ViewportsAreSeenThroughWhenTheirFramesAreHidden)
{
    const std::string viewport = "0 VIEWPORT|8 FRAMES|67 1|10 50|20 40|40 60|41 40|68 2|69 2|12 5|22 2|16 0|26 0|36 1"
                                 "|17 0|27 0|37 0|45 10|90 0";
    for (const std::string layer : {"70 0|62 -7", "70 1|62 7"}) {
        const Rendering paper(
            {.entities = viewport + "|0 LINE|8 0|10 0|20 2|11 10|21 2", .layers = "0 LAYER|2 FRAMES|" + layer}, {},
            Scene::paperSpace);
        EXPECT_TRUE(paper.isInk(50, 40)) << layer;
        EXPECT_FALSE(paper.isInk(50, 20)) << layer;
    }
}

TEST(EntityDrawing, ViewportsOfAllVersionsFreezeLayers)
{
    const std::string viewport = "0 VIEWPORT|8 0|67 1|10 50|20 40|40 60|41 40|68 2|69 2|";
    const std::string own = "12 5|22 2|16 0|26 0|36 1|17 0|27 0|37 0|45 10|90 0|";
    const std::string ofOld =
        "1001 ACAD|1000 MVIEW|1002 {|1070 16|1010 0|1020 0|1030 0|1010 0|1020 0|1030 1|1040 0|1040 10"
        "|1040 5|1040 2|1040 50|1040 0|1040 0|1070 0|1070 100|1070 1|1070 0|1070 0|1070 0|1070 0"
        "|1070 0|1040 0|1040 0|1040 0|1040 1|1040 1|1040 1|1040 1|1070 0|1002 {|";
    for (const std::string &form : {own + "331 A7", own + "341 A7", ofOld + "1003 hidden|1002 }|1002 }"}) {
        const Rendering paper(
            {.entities = viewport + form + "|0 LINE|8 0|10 0|20 2|11 10|21 2|0 INSERT|8 0|2 B|10 0|20 0",
             .blocks = blockText("B", "0 LINE|8 HIDDEN|10 0|20 4|11 10|21 4|0 LINE|8 0|10 0|20 0|11 10"
                                      "|21 0"),
             .layers = "0 LAYER|5 A7|2 HIDDEN|70 0|62 7"},
            {}, Scene::paperSpace);
        EXPECT_TRUE(paper.isInk(50, 40)) << form;
        EXPECT_TRUE(paper.isInk(50, 32)) << form;
        EXPECT_FALSE(paper.isInk(50, 48)) << form;
    }
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

    const std::tuple<const char *, QByteArray, int, int> rows[] = {
        {"codes are plain text", "{\\LHH}", 0, 6},
        {"codes count where the record says so", "{\\LHH}", 2, 2},
        {"UTF-16",
         QByteArray("\xFF\xFE"
                    "H\0\r\0\n\0H\0",
                    10),
         0, 1},
        {"no UTF-8", "\xC4\xC4", 0, 2},
    };
    for (const auto &[what, bytes, flags, letters] : rows) {
        SCOPED_TRACE(what);
        const auto one =
            besideNote(folder, bytes, "0 RTEXT|8 0|10 10|20 60|40 8|70 " + std::to_string(flags) + "|1 .\\note.txt");
        Scene shown(*one);
        EXPECT_NEAR(width(shown) / oneLetter, letters, 0.35 * letters + 0.3);
        EXPECT_EQ(shown.report(Scene::modelSpace).drawn, 1);
    }
}

/// As records keep the text of a model: every letter but blanks as what it lacks to 159.
std::string enciphered(std::string text)
{
    for (char &letter : text)
        letter = letter == ' ' ? letter : static_cast<char>(159 - letter);
    return text;
}

/// A solid whose text has these records, as the reader of drawings takes it.
std::unique_ptr<drawing::Drawing> solidOf(const std::vector<std::string> &records)
{
    std::string entity = "0 3DSOLID|8 0|100 AcDbModelerGeometry|70 1";
    for (const std::string &record : records) {
        std::string text = enciphered(record);
        std::ranges::replace(text, '|', '~'); // which stands between the tags here, and for a sign that none has
        entity += "|1 " + text;
    }
    QByteArray bytes = dxfBytes({.entities = entity});
    return drawing::Drawing::fromBytes(bytes.replace('~', '|')).drawing;
}

TEST(EntityDrawing, SolidsShowTheEdgesOfTheirModel)
{
    // An edge from 0,0 to 40,0 and half a circle over it, twice as large and moved by 10,10.
    std::vector<std::string> records = {
        "106 12 1 0",
        "body $-1 $1 $-1 $9 #",
        "edge $-1 $2 $3 $-1 $6 0 #",
        "vertex $-1 $1 $4 #",
        "vertex $-1 $1 $5 #",
        "point $-1 0 0 0 #",
        "point $-1 40 0 0 #",
        "straight-curve $-1 0 0 0 1 0 0 0 0 #",
        "edge $-1 $2 $3 $-1 $8 0 #",
        "ellipse-curve $-1 20 0 0 0 0 -1 20 0 0 1 #",
        "transform $-1 1 0 0 0 1 0 0 0 1 10 10 0 2 0 0 0 #",
        "plane-surface $-1 0 0 0 0 0 1 1 0 0 0 0 0 0 #",
        "End-of-ACIS-data",
    };
    const auto drawing = solidOf(records);
    Scene scene(*drawing);
    expectInk(Rendering(scene, Scene::modelSpace), "50,10 50,50 21.7,38.3", "50,30 50,70");
    EXPECT_EQ(scene.report(Scene::modelSpace).drawn, 1);
    records[9] = "intcurve-curve $-1 0 { exactcur nubs 3 0 } #";
    const auto odd = solidOf(records);
    EXPECT_EQ(Scene(*odd).report(Scene::modelSpace).simplified.value(u"3DSOLID"_s), 1) << "the line alone";
    for (std::string &record : records)
        record = record.substr(0, record.size() / 2) + " $4 $99999999999999999999 $0 1e400 #";
    const auto damaged = solidOf(records);
    EXPECT_EQ(Scene(*damaged).report(Scene::modelSpace).skippedCount(), 1);
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
