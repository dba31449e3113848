#include "dialogs/makelinestyle/Dlg_QT_MakeLineStyle.h"
#include "tests/dialogs/DefinitionDialogTest.h"

using namespace ortakit::test;
using namespace Qt::StringLiterals;

namespace {

class MakeLineStyle : public DefinitionDialogTest<Dlg_QT_MakeLineStyle>
{
protected:
    MakeLineStyle() : DefinitionDialogTest("Linetypefile", u"Make Linestyle"_s) {}
    QStringList rows() const { return tableRows("LinetypefileLst"); }
    void showWithFile(const QString &file) { showWith(u"linetypefile=%1\n"_s.arg(file)); }

    QString lines = host.writeFile(u"my.lin"_s, "*GAS,Gas line\nA,1,-1\n*Wall\nA,2\n");
};

TEST_F(MakeLineStyle, ShowsWhatTheFileDefines)
{
    showWithFile(lines);
    EXPECT_EQ(rows(), (QStringList{u"GAS|Gas line"_s, u"Wall|"_s}));
    EXPECT_EQ(focusName(), u"name"_s);

    // A file that is one line is shown as far as anybody reads.
    host.writeFile(u"my.lin"_s, "*GAS," + QByteArray(100'000, 'g') + "\nA,1\n");
    show();
    EXPECT_EQ(rows(), QStringList{u"GAS|"_s + QString(500, u'g') + QChar(0x2026)});

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
        {"no name", lines, {}, noName},
        {"a blank", lines, u"GAS 2"_s, blank},
        {"existing, kept", lines, u"GAS"_s, exists, QMessageBox::No},
        {"existing, replaced", lines, u"gas"_s, exists, QMessageBox::Yes},
        {"a tab is no blank", lines, u"GAS\t2"_s},
        {"new file", host.path(u"new.lin"_s), u"GAS"_s},
    });
}

TEST_F(MakeLineStyle, BrowsingTakesOnlyLinetypeFiles)
{
    const std::pair<QString, bool> rows[] = {
        {host.writeFile(u"other.lin"_s, "*A,b\nA,1\n"), true},
        {host.path(u"new.lin"_s), true},
        {host.writeFile(u"comment.lin"_s, "; mine\n*A,b\n"), false},
        {host.writeFile(u"notes.txt"_s, "*A,b\n"), false},
    };
    for (const auto &[chosen, taken] : rows) {
        SetUp();
        showWithFile(lines);
        const QStringList shown = shownChoosing("selectfile", chosen);
        EXPECT_TRUE(shown[0].contains(u" \"%1\" "_s.arg(QFileInfo(lines).absolutePath())));
        EXPECT_EQ(shown.value(1).contains(u"format of the file is not valid"_s), !taken);
        EXPECT_EQ(fullText("Linetypefile"), taken ? chosen : lines);
        EXPECT_NE(tableRows("LinetypefileLst").size() == 2, taken) << chosen.toStdString();
    }
    shownChoosing("selectfile", {});
    EXPECT_EQ(fullText("Linetypefile"), lines) << "cancelled";
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
