#include "dialogs/replaceblocktoxref/Dlg_QT_ReplaceBlockToXref.h"
#include "state/widgets/DrawingPreview.h"
#include "tests/dialogs/NameTables.h"

using namespace ortakit::test;
using namespace Qt::StringLiterals;

namespace {

class ReplaceBlockToXref : public BlockDialogTest<Dlg_QT_ReplaceBlockToXref>
{
protected:
    ReplaceBlockToXref()
    {
        QDir(host.path({})).mkpath(u"refs/folder.dwg"_s);
        QDir(host.path({})).mkpath(u"other"_s);
        for (const char *name : {"a.dwg", "b.DWG", "c.dxf", "d.e.dwg", "dwg", "f.dwg.bak"})
            host.writeFile(u"refs/"_s + QLatin1String(name), "0\nEOF\n");
        host.writeFile(u"other/z.dwg"_s, "0\nEOF\n");
    }

    QString previewed() const { return find<DrawingPreview>("PreviewBlock2")->drawing(); }
    void showWithState(const QString &state) { showBlocks(u"DOOR WALL 7 007"_s, state); }

    QString refs = host.path(u"refs"_s);
    QString other = host.path(u"other"_s);
};

TEST_F(ReplaceBlockToXref, OffersDrawingsWithOneDot)
{
    showWithState(u"directory=%1\nblockstable=WALL^\n"_s.arg(refs));
    EXPECT_EQ(rightRows(), u"a.dwg b.DWG"_s);
    EXPECT_EQ(selectedTexts(*left()), u"WALL"_s);
    clickHeader("blocksTableRep");
    EXPECT_EQ(rightRows(), u"b.DWG a.dwg"_s);
    choose(*right(), u"b.DWG"_s);
    EXPECT_EQ(previewed(), refs + u"/b.DWG"_s);
}

TEST_F(ReplaceBlockToXref, ApplyWaitsForAReference)
{
    const std::tuple<QString, QString, bool> rows[] = {
        {{}, {}, false},
        {u"directory=%1\nblockstablerep=b.dwg^\n"_s.arg(refs), u"b.DWG"_s, true},
        {u"directory=%1\nblockstablerep=gone.dwg^\n"_s.arg(refs), {}, true},
        {u"blockstablerep=a.dwg^\n"_s, {}, false},
        {u"directory=%1\nblockstablerep=a.dwg^b.DWG^\n"_s.arg(refs), u"a.dwg"_s, true},
    };
    for (const auto &[state, selected, enabled] : rows) {
        SetUp();
        showWithState(state);
        EXPECT_EQ(selectedTexts(*right()), selected) << state.toStdString();
        EXPECT_EQ(isEnabled("acceptButton"), enabled) << state.toStdString();
    }
    SetUp();
    showWithState(u"directory=%1\n"_s.arg(refs));
    right()->selectRow(0);
    EXPECT_TRUE(isEnabled("acceptButton")) << "chosen by the user";
    show();
    EXPECT_FALSE(isEnabled("acceptButton")) << "the next showing goes by the state again";
}

TEST_F(ReplaceBlockToXref, ApplyChecksInOrder)
{
    const std::tuple<QString, QString, QString> rows[] = {
        {{}, {}, u"You must first select the blocks to replace."_s},
        {u"DOOR"_s, {}, u"You must first select the replacing reference."_s},
        {u"DOOR 007"_s, u"a.dwg"_s, u"\"007\" is taken for 7"_s},
        {u"DOOR WALL 7"_s, u"a.dwg"_s, {}},
    };
    for (const auto &[replaced, replacing, message] : rows) {
        showWithState(u"directory=%1\nblockstablerep=a.dwg^\n"_s.arg(refs));
        choose(*left(), replaced);
        choose(*right(), replacing);
        const QStringList shown = shownBy("acceptButton");
        EXPECT_TRUE(shown.join(u' ').contains(message) && shown.isEmpty() == message.isEmpty());
        EXPECT_EQ(isAccepted(), message.isEmpty()) << replaced.toStdString();
    }
    EXPECT_EQ(savedState(), u"blockstable=7^DOOR^WALL^\n!action!=OK\ndirectory=%1\nblockstablerep=a.dwg^\n"
                            "purgeitems=FALSE\n"_s.arg(refs));
}

TEST_F(ReplaceBlockToXref, AFolderIsTypedAndEnteredOrChosen)
{
    const QString notFound = u"warning \"\" \"Cannot find the specified Path.\" OK"_s;
    const std::tuple<QString, QStringList, QString> rows[] = {
        {other, {}, u"z.dwg"_s},
        {host.path(u"none"_s), {notFound}, {}},
        {refs, {}, u"a.dwg b.DWG"_s},
        {{}, {u"warning \"\" \"Path can`t be empty\" OK"_s}, {}},
    };
    showWithState(u"directory=%1\nblockstable=WALL^\nblockstablerep=a.dwg^\n"_s.arg(refs));
    for (const auto &[folder, message, found] : rows) {
        EXPECT_EQ(shownEntering("directory", folder), message) << folder.toStdString();
        EXPECT_EQ(rightRows(), found) << folder.toStdString();
        EXPECT_TRUE(dialog->isVisible()) << folder.toStdString();
    }
    for (const QString &chosen : {other, QString()}) {
        EXPECT_EQ(shownChoosing("selDirectory", chosen).size(), 1);
        EXPECT_EQ(rightRows(), u"z.dwg"_s) << "what is cancelled changes nothing";
    }
    EXPECT_EQ(missingInState({u"directory="_s + other}), QStringList());
}

// Else Lisp would look for the chosen file in another folder.
TEST_F(ReplaceBlockToXref, AFolderThatWasOnlyTypedCountsAtTheLatestAtApply)
{
    for (const bool leaves : {true, false}) {
        showWithState(u"directory=%1\nblockstable=WALL^\nblockstablerep=a.dwg^\n!action!=SETBLOCKS\n"_s.arg(refs));
        EXPECT_EQ(selectedTexts(*right()), u"a.dwg"_s);
        find("directory")->setFocus();
        setText("directory", other);
        if (leaves) {
            right()->setFocus();
            EXPECT_EQ(rightRows(), u"z.dwg"_s);
            EXPECT_EQ(previewed(), QString());
        }
        EXPECT_TRUE(shownBy("acceptButton").value(0).contains(u"replacing reference"_s)) << leaves;
        EXPECT_FALSE(isAccepted()) << leaves;
    }
}

TEST_F(ReplaceBlockToXref, ReturnInATableAppliesAndFilesOfTheNextShowingAreRead)
{
    showWithState(u"directory=%1\nblockstable=WALL^\nblockstablerep=z.dwg^\n"_s.arg(other));
    QTest::keyClick(right(), Qt::Key_Return);
    EXPECT_TRUE(isAccepted());
    host.writeFile(u"other/y.dwg"_s, "0\nEOF\n");
    show();
    EXPECT_EQ(rightRows(), u"y.dwg z.dwg"_s);
    EXPECT_EQ(selectedTexts(*right()), u"z.dwg"_s);
}

} // namespace
