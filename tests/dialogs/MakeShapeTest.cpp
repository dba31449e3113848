#include "dialogs/makeshape/Dlg_QT_MakeShape.h"
#include "tests/dialogs/DefinitionDialogTest.h"

using namespace ortakit::test;
using namespace Qt::StringLiterals;

namespace {

class MakeShape : public DefinitionDialogTest<Dlg_QT_MakeShape>
{
protected:
    MakeShape() : DefinitionDialogTest("shapeFile", u"Make Shape"_s) {}
    QStringList rows() const { return tableRows("lstShapes"); }

    QString shapes = host.writeFile(u"my.shp"_s, "*1,3,BOX\n1,16,0\n*2,2\n16,0\n");
};

TEST_F(MakeShape, ShowsWhatTheFileDefines)
{
    showWith(u"shapefile=%1\n"_s.arg(shapes));
    EXPECT_EQ(rows(), (QStringList{u"1|BOX"_s, u"2|"_s}));
    EXPECT_EQ(focusName(), u"name"_s);
    host.writeFile(u"my.shp"_s, ";; nothing yet\n");
    show();
    EXPECT_EQ(rows(), QStringList());
}

TEST_F(MakeShape, NameIsChecked)
{
    const QString exists = u"Shape already exists, you want to replace it?"_s;
    checkNames({
        {"nothing at all", {}, {}, u"You must select a file. "_s},
        {"no name", shapes, {}, u"You must provide a name for the shape. "_s},
        {"a blank", shapes, u"BOX 2"_s, u"Shape names cannot include blank spaces."_s},
        {"existing, kept", shapes, u"box"_s, exists, QMessageBox::No},
        {"existing, replaced", shapes, u"bOx"_s, exists, QMessageBox::Yes},
        {"new", shapes, u"BOX2"_s},
        {"any file name will do", host.path(u"new.txt"_s), u"BOX"_s},
    });
}

TEST_F(MakeShape, BrowsingStartsInTheFolderOfTheFile)
{
    const QString folder = host.path(u"shapes"_s);
    ASSERT_TRUE(QDir().mkpath(folder));
    const QString home = QDir(host.path({})).absolutePath();
    const QString chooser = u"choose \"Select shape file\" \"%1\" \"Shape files (*.shp)|All files (*.*)\""_s;
    const std::pair<QString, QString> rows[] = {
        {{}, home},           {folder + u"/new.shp"_s, folder}, {folder + u"/missing/new.shp"_s, home},
        {u"new.shp"_s, home}, {u"./new.shp"_s, home},
    };
    show();
    for (const auto &[file, start] : rows) {
        setText("shapeFile", file);
        EXPECT_EQ(shownChoosing("selectfile", {}), QStringList{chooser.arg(start)});
        EXPECT_EQ(text("shapeFile"), file) << "cancelled";
    }
    // What the file holds does not matter.
    const QString chosen = host.writeFile(u"text.shp"_s, "no shape at all\n");
    EXPECT_EQ(shownChoosing("selectfile", chosen).size(), 1);
    EXPECT_EQ(text("shapeFile"), chosen);
}

TEST_F(MakeShape, PathsAreShownAndSavedAsTheyAre)
{
    for (const QString &folder : {QString(120, u'x'), u"three...dots"_s}) {
        SetUp();
        ASSERT_TRUE(QDir(host.path({})).mkpath(folder));
        const QString file = host.writeFile(folder + u"/my.shp"_s, "*1,3,BOX\n");
        showWith(u"shapefile=%1\n"_s.arg(file));
        EXPECT_EQ(text("shapeFile"), file);
        setText("name", u"NEW"_s);
        setText("resolution", u" 1e2 "_s);
        click("acceptButton");
        EXPECT_EQ(savedState(), u"shapefile=%1\n!action!=\nname=NEW\nresolution= 1e2 \n"_s.arg(file));
    }
}

TEST_F(MakeShape, EnterInTheFileFieldListsTheFileAndStays)
{
    checkEnterInFileField(shapes, "lstShapes");
}

} // namespace
