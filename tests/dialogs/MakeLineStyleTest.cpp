#include "dialogs/makelinestyle/Dlg_QT_MakeLineStyle.h"
#include "tests/dialogs/DefinitionDialogTest.h"

#include <QDir>

using namespace ortakit::test;
using namespace Qt::StringLiterals;

namespace {

class MakeLineStyle : public DefinitionDialogTest<Dlg_QT_MakeLineStyle>
{
protected:
    MakeLineStyle() : DefinitionDialogTest("Linetypefile", u"Make Linestyle"_s) {}
    QStringList rows() const { return tableRows("LinetypefileLst"); }
    QString path() const { return find("Linetypefile")->property("value").toString(); }
    void showWithFile(const QString &file) { showWith(u"linetypefile=%1\n"_s.arg(file)); }

    QString lines = host.writeFile(u"my.lin"_s, "*GAS,Gas line\nA,1,-1\n*Wall\nA,2\n");
};

const QString notValid = u"information \"Invalid file format\" \"The format of the file is not valid. \" OK"_s;

TEST_F(MakeLineStyle, ShowsWhatTheFileDefines)
{
    showWithFile(lines);
    EXPECT_EQ(rows(), (QStringList{u"GAS|Gas line"_s, u"Wall|"_s}));
    EXPECT_EQ(focusName(), u"name"_s);

    // Each showing reads the file anew: the tool has added a linetype meanwhile.
    host.writeFile(u"my.lin"_s, "*NEW,n\nA,1\n");
    show();
    EXPECT_EQ(rows(), QStringList{u"NEW|n"_s});
    ASSERT_TRUE(QFile::remove(lines));
    show();
    EXPECT_EQ(rows(), QStringList());
}

TEST_F(MakeLineStyle, NameIsChecked)
{
    const QString noFile = u"You must select a file. "_s;
    const QString noName = u"You must provide a name for the Linestyle. "_s;
    const QString blank = u"Linestyle names cannot include blank spaces."_s;
    const QString exists = u"Linestyle already exists, you want to replace it?"_s;
    checkNames({
        {"nothing at all", {}, {}, noFile},
        {"no file, bad name", {}, u"a b"_s, noFile},
        {"no name", lines, {}, noName},
        {"a blank", lines, u"GAS 2"_s, blank},
        {"nothing but a blank", lines, u" "_s, blank},
        {"existing, kept", lines, u"GAS"_s, exists, QMessageBox::No},
        {"existing in other case, kept", lines, u"wALL"_s, exists, QMessageBox::No},
        {"existing, replaced", lines, u"gas"_s, exists, QMessageBox::Yes},
        {"a tab is no blank", lines, u"GAS\t2"_s},
        {"new file", host.path(u"new.lin"_s), u"GAS"_s},
    });
}

TEST_F(MakeLineStyle, BrowsingTakesOnlyLinetypeFiles)
{
    const struct
    {
        const char *name;
        const char *bytes; ///< null: no such file
        bool taken;
    } table[] = {
        {"other.lin", "*A,b\nA,1\n", true},
        {"new.lin", nullptr, true},
        {"comment.lin", "; mine\n*A,b\n", false},
        {"notes.txt", "*A,b\n", false},
    };
    for (const auto &row : table) {
        const QString name = QString::fromLatin1(row.name);
        const QString chosen = row.bytes ? host.writeFile(name, row.bytes) : host.path(name);
        dialog = std::make_unique<Dlg_QT_MakeLineStyle>(&window);
        showWithFile(lines);
        ModalAnswers answers;
        answers.choose(chosen);
        if (!row.taken)
            answers.press(QMessageBox::Ok);
        click("selectfile");
        const QString asked = u"choose \"Specify Linestyle file\" \"%1\" \"Linestyle files (*.lin)\""_s.arg(
            QFileInfo(lines).absolutePath());
        EXPECT_EQ(answers.shown(), QStringList{asked} + (row.taken ? QStringList() : QStringList{notValid}))
            << row.name;
        EXPECT_EQ(path(), row.taken ? chosen : lines) << row.name;
        EXPECT_EQ(rows().size(), !row.taken ? 2 : row.bytes ? 1 : 0) << row.name;
    }
    ModalAnswers answers;
    answers.choose({});
    click("selectfile");
    EXPECT_EQ(path(), lines);
}

TEST_F(MakeLineStyle, LongPathsAreShownShortAndSavedWhole)
{
    const QString folder = QString(150, u'x');
    ASSERT_TRUE(QDir(host.path({})).mkpath(folder));
    const QString file = host.writeFile(folder + u"/my.lin"_s, "*GAS,g\n");
    showWithFile(file);
    EXPECT_TRUE(text("Linetypefile").contains(u'\u2026'));
    EXPECT_EQ(rows(), QStringList{u"GAS|g"_s});
    setText("name", u"WATER"_s);
    setText("description", u"Water, cold"_s);
    click("acceptButton");
    EXPECT_TRUE(isAccepted());
    EXPECT_EQ(savedState(), u"linetypefile=%1\n!action!=\nname=WATER\ndescription=Water, cold\n"_s.arg(file));
}

TEST_F(MakeLineStyle, EnterInTheFileFieldListsTheFileAndStays)
{
    checkEnterInFileField(lines, "LinetypefileLst");
}

} // namespace
