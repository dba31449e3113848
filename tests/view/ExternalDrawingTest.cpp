// Drawings that are seen in others through external references.

#include "host/drawing/records/Blocks.h"
#include "host/view/build/EntityExtents.h"
#include "host/view/paint/Picking.h"
#include "tests/view/Rendering.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace host::view::test {
using namespace Qt::StringLiterals;

namespace {

const std::string overlay = "8";

/// A block that stands for a drawing, and its insert at the origin.
std::string referenceTo(const std::string &name, const std::string &path, const std::string &flags = "4")
{
    return "0 BLOCK|8 0|2 " + name + "|70 " + flags + "|10 0|20 0|30 0|3 " + name + "|1 " + path + "|0 ENDBLK|8 0";
}

std::string insertOf(const std::string &name, const std::string &tags = "|10 0|20 0")
{
    return "0 INSERT|8 0|2 " + name + tags;
}

std::string lineAt(double y, const std::string &tags = "|8 0")
{
    return "0 LINE" + tags + "|10 20|20 " + std::to_string(y) + "|11 80|21 " + std::to_string(y);
}

class ExternalDrawing : public testing::Test
{
protected:
    void write(const QString &name, const DxfText &text) const
    {
        QFile file(m_folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(dxfBytes(text));
    }

    std::unique_ptr<drawing::Drawing> host(const DxfText &text) const
    {
        auto drawing = readDrawing(text);
        drawing->setPath(m_folder.filePath(u"host.dxf"_s));
        return drawing;
    }

    QTemporaryDir m_folder;
};

TEST_F(ExternalDrawing, IsFoundAndShown)
{
    ASSERT_TRUE(QDir(m_folder.path()).mkdir(u"sub"_s));
    write(u"site.dxf"_s, {.entities = lineAt(50)});
    write(u"sub/deep.dxf"_s, {.entities = insertOf("NEXT"), .blocks = referenceTo("NEXT", "next.dxf")});
    write(u"sub/next.dxf"_s, {.entities = lineAt(50)});
    for (const char *path : {"site.dxf", ".\\site.dxf", "Z:\\far\\away\\site.dxf", "/far/site.dxf", "site.dwg", "site",
                             "sub\\deep.dxf", "SITE.DWG", "Sub\\DEEP"}) {
        for (const char *flags : {"4", "8", "12"}) {
            SCOPED_TRACE(path);
            const auto drawing = host({.entities = insertOf("SITE"), .blocks = referenceTo("SITE", path, flags)});
            Scene scene(*drawing);
            expectInk(Rendering(scene, Scene::modelSpace), "50,50", "50,60 0,0");
            EXPECT_TRUE(scene.report(Scene::modelSpace).isWhole());
            EXPECT_NEAR(scene.extents(Scene::modelSpace).high.x, 80.0, 1e-9);
        }
    }
}

TEST_F(ExternalDrawing, ThatIsNotToBeHadIsAMarkWithItsName)
{
    write(u"damaged.dxf"_s, {});
    QFile damaged(m_folder.filePath(u"damaged.dxf"_s));
    ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
    damaged.write("0\nSECTION\n2\nENTITIES\nxyz\n");
    damaged.close();
    QFile foreign(m_folder.filePath(u"foreign.dwg"_s));
    ASSERT_TRUE(foreign.open(QIODevice::WriteOnly));
    foreign.write("AC1032" + QByteArray(1000, '\7'));
    foreign.close();
    QFile sparse(m_folder.filePath(u"sparse.dxf"_s));
    ASSERT_TRUE(sparse.open(QIODevice::WriteOnly) && sparse.resize(3'000'000'000));
    sparse.close();
    for (const char *path :
         {"gone.dxf", "damaged.dxf", "foreign.dwg", "sparse.dxf", "/dev/zero", "/proc/self/maps", ".."}) {
        SCOPED_TRACE(path);
        const auto drawing = host({.entities = insertOf("SITE", "|10 10|20 20"),
                                   .blocks = referenceTo("SITE", path),
                                   .header = "9 $TEXTSIZE|40 5"});
        Scene scene(*drawing);
        const Rendering shown(scene, Scene::modelSpace);
        EXPECT_TRUE(shown.isInk(10, 20) && shown.isInk(10, 30) && shown.isInk(12, 20)) << "the frame";
        EXPECT_NEAR(shown.inkBox().height(), 10.0, 1.0);
        EXPECT_EQ(scene.report(Scene::modelSpace).skipped.value(u"XREF"_s), 1);
    }
}

TEST_F(ExternalDrawing, LayersHaveNamesOfTheirOwnInItsHost)
{
    write(u"site.dxf"_s,
          {.entities = lineAt(20, "|8 WALL") + "|" + lineAt(30, "|8 DOOR") + "|" + lineAt(40) + "|" +
                       lineAt(50, "|8 WALL|6 DASHED") + "|" + lineAt(60, "|8 OFF") + "|" + lineAt(70, "|8 ON"),
           .layers = "0 LAYER|2 WALL|70 0|62 1|6 CONTINUOUS|0 LAYER|2 DOOR|70 0|62 3|6 CONTINUOUS"
                     "|0 LAYER|2 OFF|70 0|62 -1|6 CONTINUOUS|0 LAYER|2 ON|70 0|62 1|6 CONTINUOUS",
           .tables = tableText("LTYPE", "0 LTYPE|2 DASHED|70 0|3 x|72 65|73 2|40 20|49 10|74 0|49 -10|74 0")});
    // The bar of these names parts tags in the texts of tests.
    DxfText text{.entities = "0 INSERT|8 BLUE|2 SITE|10 0|20 0|" + lineAt(80, "|8 WALL"),
                 .blocks = referenceTo("SITE", "site.dxf"),
                 .layers = "0 LAYER|2 BLUE|70 0|62 5|6 CONTINUOUS|0 LAYER|2 SITE~DOOR|70 0|62 2|6 CONTINUOUS"
                           "|0 LAYER|2 SITE~ON|70 1|62 1|6 CONTINUOUS"};
    QByteArray bytes = dxfBytes(text);
    const auto read = drawing::Drawing::fromBytes(bytes.replace('~', '|')).drawing;
    ASSERT_TRUE(read);
    read->setPath(m_folder.filePath(u"host.dxf"_s));
    Scene scene(*read);
    const Rendering shown(scene, Scene::modelSpace);
    EXPECT_EQ(shown.color(50, 20), QColor(Qt::red)) << "its own look";
    EXPECT_EQ(shown.color(50, 30), QColor(Qt::yellow)) << "the host's entry goes first";
    EXPECT_EQ(shown.color(50, 40), QColor(Qt::blue)) << "layer 0 is the insert's";
    EXPECT_EQ(shown.runs({15, 50}, {85, 50}), 4) << "its own linetype";
    EXPECT_FALSE(shown.isInk(50, 60)) << "off in its own file";
    EXPECT_FALSE(shown.isInk(50, 70)) << "frozen by the host";
    EXPECT_EQ(shown.color(50, 80), QColor(Qt::white)) << "the host's layer of the same name is another";
}

TEST_F(ExternalDrawing, StandsWhereItsBasePointSays)
{
    write(u"site.dxf"_s, {.entities = lineAt(50), .header = "9 $INSBASE|10 20|20 50|30 0"});
    const auto drawing =
        host({.entities = insertOf("SITE", "|10 40|20 10|41 0.5|42 0.5"), .blocks = referenceTo("SITE", "site.dxf")});
    Scene scene(*drawing);
    expectInk(Rendering(scene, Scene::modelSpace), "40,10 69,10", "38,10 72,10");
    EntityExtents extents(*drawing);
    const Box box = extents.of(drawing->entities().all().front());
    EXPECT_NEAR(box.high.x, 70.0, 1e-9);
}

TEST_F(ExternalDrawing, IsCutOffAtTheClipOfItsInsert)
{
    write(u"site.dxf"_s, {.entities = lineAt(50)});
    const std::string identity = "|40 1|40 0|40 0|40 0|40 0|40 1|40 0|40 0|40 0|40 0|40 1|40 0";
    const auto drawing = host({.entities = insertOf("SITE", "|102 {ACAD_XDICTIONARY|360 B1|102 }|10 0|20 0"),
                               .blocks = referenceTo("SITE", "site.dxf"),
                               .objects = "0 DICTIONARY|5 B1|3 ACAD_FILTER|360 B2|0 DICTIONARY|5 B2|3 SPATIAL|360 B3"
                                          "|0 SPATIAL_FILTER|5 B3|70 2|10 40|20 40|10 60|20 60|210 0|220 0|230 1|11 0"
                                          "|21 0|31 0|71 1|72 0|73 0" +
                                          identity + identity});
    Scene scene(*drawing);
    expectInk(Rendering(scene, Scene::modelSpace), "50,50", "30,50 70,50");
}

TEST_F(ExternalDrawing, WithinAnotherIsShownButNoOverlayAndNoCircle)
{
    write(u"a.dxf"_s, {.entities = lineAt(20) + "|" + insertOf("B") + "|" + insertOf("OVER") + "|" + insertOf("HOST"),
                       .blocks = referenceTo("B", "b.dxf") + "|" + referenceTo("OVER", "c.dxf", overlay) + "|" +
                                 referenceTo("HOST", "host.dxf")});
    write(u"b.dxf"_s, {.entities = lineAt(30) + "|" + insertOf("A") + "|" + insertOf("B"),
                       .blocks = referenceTo("A", "a.dxf") + "|" + referenceTo("B", "b.dxf")});
    write(u"c.dxf"_s, {.entities = lineAt(40)});
    const DxfText text{.entities = insertOf("A") + "|" + insertOf("SELF") + "|" + lineAt(50),
                       .blocks = referenceTo("A", "a.dxf") + "|" + referenceTo("SELF", "host.dxf")};
    write(u"host.dxf"_s, text);
    const auto drawing = host(text);
    Scene scene(*drawing);
    expectInk(Rendering(scene, Scene::modelSpace), "50,20 50,30 50,50", "50,40");
    EXPECT_TRUE(scene.report(Scene::modelSpace).isWhole());
}

TEST_F(ExternalDrawing, ManyOfThemEnd)
{
    for (int i = 0; i < 40; ++i) {
        const std::string next = std::to_string(i + 1);
        write(u"n%1.dxf"_s.arg(i),
              {.entities = lineAt(i) + "|" + insertOf("N") + "|" + insertOf("M"),
               .blocks = referenceTo("N", "n" + next + ".dxf") + "|" + referenceTo("M", "n" + next + ".dxf")});
    }
    const auto drawing = host({.entities = insertOf("N"), .blocks = referenceTo("N", "n0.dxf")});
    Scene scene(*drawing);
    EXPECT_TRUE(Rendering(scene, Scene::modelSpace).isInk(50, 10));
}

TEST_F(ExternalDrawing, IsPickedAsItsInsertAndReadAgain)
{
    write(u"site.dxf"_s, {.entities = lineAt(50)});
    write(u"other.dxf"_s, {.entities = lineAt(70)});
    const auto drawing = host({.entities = insertOf("SITE"), .blocks = referenceTo("SITE", "site.dxf")});
    Scene scene(*drawing);
    const RecordId insert = drawing->entities().all().front();
    EXPECT_EQ(pickAt(scene, Scene::modelSpace, {50, 50}, 1.0), insert);
    EXPECT_FALSE(isValid(pickAt(scene, Scene::modelSpace, {50, 30}, 1.0)));
    write(u"site.dxf"_s, {.entities = lineAt(30)});
    EXPECT_TRUE(Rendering(scene, Scene::modelSpace).isInk(50, 50)) << "until it is asked for";
    scene.regenerate();
    expectInk(Rendering(scene, Scene::modelSpace), "50,30", "50,50");
    const RecordId block = drawing->blocks().find(u"SITE");
    drawing::FieldList fields = drawing->fields(block);
    drawing::setField(fields, 1, u"other.dxf"_s);
    ASSERT_TRUE(drawing->setFields(block, fields));
    expectInk(Rendering(scene, Scene::modelSpace), "50,70", "50,30");
    drawing::setField(fields, 1, u"gone.dxf"_s);
    ASSERT_TRUE(drawing->setFields(block, fields));
    EXPECT_FALSE(Rendering(scene, Scene::modelSpace).isInk(50, 70));
    EXPECT_EQ(scene.report(Scene::modelSpace).skipped.value(u"XREF"_s), 1);
}

} // namespace
} // namespace host::view::test
