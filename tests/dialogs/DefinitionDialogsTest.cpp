// The dialogs that add a named definition to a file: of a linetype, and of a shape.

#include "dialogs/makelinestyle/Dlg_QT_MakeLineStyle.h"
#include "dialogs/makeshape/Dlg_QT_MakeShape.h"
#include "tests/dialogs/DialogTest.h"

namespace {

template <class Dialog>
class DefinitionDialogTest : public DialogTest<Dialog>
{
protected:
    DefinitionDialogTest(const char *field, const char *list, const QString &messageTitle)
        : fileField(field), table(list), title(messageTitle)
    {
    }

    /// What is said about names beside that of a definition of `file`, which is of this `kind`; `accepted` are files
    /// and names that nothing is said about.
    void checkNames(const QString &kind, const QString &nameFor, const QString &file, const QString &existing,
                    const QList<std::pair<QString, QString>> &accepted)
    {
        const QString refusal = u"information \"%1\" \"%2\" OK"_s.arg(title);
        const QString exists =
            u"question \"%1\" \"%2 already exists, you want to replace it?\" Yes/No"_s.arg(title, kind);
        const auto none = QMessageBox::NoButton;
        std::vector<std::tuple<QString, QString, QString, QMessageBox::StandardButton>> rows{
            {{}, {}, refusal.arg(u"You must select a file. "_s), none},
            {file, {}, refusal.arg(u"You must provide a name for the %1. "_s.arg(nameFor)), none},
            {file, existing + u" 2"_s, refusal.arg(kind + u" names cannot include blank spaces."_s), none},
            {file, existing, exists, QMessageBox::No},
            {file, existing.toLower(), exists, QMessageBox::Yes},
        };
        for (const auto &[path, name] : accepted)
            rows.emplace_back(path, name, QString(), QMessageBox::Yes);
        for (const auto &[path, name, message, answer] : rows) {
            this->show();
            this->setText(fileField, path);
            this->setText("name", name);
            EXPECT_EQ(this->shownBy("acceptButton", message == exists ? QList{answer} : decltype(QList{answer})()),
                      message.isEmpty() ? QStringList() : QStringList{message});
            EXPECT_EQ(this->isAccepted(), answer == QMessageBox::Yes) << name.toStdString();
        }
    }
    /// The path typed into its field: Enter lists the file and does not confirm.
    void checkEnterInFileField(const QString &path)
    {
        this->showWith({});
        EXPECT_EQ(this->focusName(), u"selectfile"_s);
        this->enterText(fileField, path);
        EXPECT_TRUE(this->dialog->isVisible());
        EXPECT_EQ(rows().size(), 2);
        this->enterText("name", u"FREE"_s);
        EXPECT_TRUE(this->isAccepted());
    }
    QStringList rows() const { return this->tableRows(table); }

    const char *fileField;
    const char *table;
    QString title;
};

class MakeLineStyle : public DefinitionDialogTest<Dlg_QT_MakeLineStyle>
{
protected:
    MakeLineStyle() : DefinitionDialogTest("Linetypefile", "LinetypefileLst", u"Make Linestyle"_s) {}
    void showWithFile(const QString &file) { showWith(u"linetypefile=%1\n"_s.arg(file)); }

    QString lines = host.writeFile(u"my.lin"_s, "*GAS,Gas line\nA,1,-1\n*Wall\nA,2\n");
};

TEST_F(MakeLineStyle, ShowsWhatTheFileDefinesAtEachShowing)
{
    showWithFile(lines);
    EXPECT_EQ(rows(), (QStringList{u"GAS|Gas line"_s, u"Wall|"_s}));
    EXPECT_EQ(focusName(), u"name"_s);

    // A file that is one line is shown as far as anybody reads.
    host.writeFile(u"my.lin"_s, "*GAS," + QByteArray(100'000, 'g') + "\nA,1\n");
    show();
    EXPECT_EQ(rows(), QStringList{u"GAS|"_s + QString(500, u'g') + QChar(0x2026)});
    ASSERT_TRUE(QFile::remove(lines));
    show();
    EXPECT_EQ(rows(), QStringList());
    SetUp();
    checkEnterInFileField(host.writeFile(u"my.lin"_s, "*A,a\nA,1\n*B,b\nA,2\n"));
}

TEST_F(MakeLineStyle, NameIsChecked)
{
    checkNames(u"Linestyle"_s, u"Linestyle"_s, lines, u"GAS"_s,
               {{lines, u"GAS\t2"_s}, {host.path(u"new.lin"_s), u"GAS"_s}}); // a tab is no blank
}

TEST_F(MakeLineStyle, BrowsingTakesOnlyLinetypeFiles)
{
    const std::pair<QString, bool> choices[] = {
        {host.writeFile(u"other.lin"_s, "*A,b\nA,1\n"), true},
        {host.path(u"new.lin"_s), true},
        {host.writeFile(u"notes.txt"_s, "*A,b\n"), false},
        {{}, false},
    };
    for (const auto &[chosen, taken] : choices) {
        showWithFile(lines);
        const QStringList shown = shownChoosing("selectfile", chosen);
        EXPECT_TRUE(shown[0].contains(u" \"%1\" "_s.arg(QFileInfo(lines).absolutePath())));
        EXPECT_EQ(shown.value(1).contains(u"format of the file is not valid"_s), !taken && !chosen.isEmpty());
        EXPECT_EQ(fullText("Linetypefile"), taken ? chosen : lines);
        EXPECT_NE(rows().size() == 2, taken) << chosen.toStdString();
        SetUp();
    }
}

class MakeShape : public DefinitionDialogTest<Dlg_QT_MakeShape>
{
protected:
    MakeShape() : DefinitionDialogTest("shapeFile", "lstShapes", u"Make Shape"_s) {}

    QString shapes = host.writeFile(u"my.shp"_s, "*1,3,BOX\n1,16,0\n*2,2\n16,0\n");
};

TEST_F(MakeShape, NameIsCheckedAmongThoseOfTheFile)
{
    showWith(u"shapefile=%1\n"_s.arg(shapes));
    EXPECT_EQ(rows(), (QStringList{u"1|BOX"_s, u"2|"_s}));
    EXPECT_EQ(focusName(), u"name"_s);
    checkNames(u"Shape"_s, u"shape"_s, shapes, u"BOX"_s,
               {{shapes, u"BOX2"_s}, {host.path(u"new.txt"_s), u"BOX"_s}}); // any file name will do
    SetUp();
    checkEnterInFileField(shapes);
}

TEST_F(MakeShape, BrowsingStartsInTheFolderOfTheFile)
{
    const QString folder = host.path(u"shapes"_s);
    ASSERT_TRUE(QDir().mkpath(folder));
    const QString home = QDir(host.path({})).absolutePath();
    const QString chooser = u"choose \"Select shape file\" \"%1\" \"Shape files (*.shp)|All files (*.*)\""_s;
    const std::pair<QString, QString> starts[] = {
        {{}, home},           {folder + u"/new.shp"_s, folder}, {folder + u"/missing/new.shp"_s, home},
        {u"new.shp"_s, home}, {u"./new.shp"_s, home},
    };
    show();
    for (const auto &[file, start] : starts) {
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

} // namespace
