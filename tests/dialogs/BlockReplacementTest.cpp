// The dialogs that replace blocks: by another of the drawing, and by a drawing file.

#include "dialogs/replaceblock/Dlg_QT_ReplaceBlock.h"
#include "dialogs/replaceblocktoxref/Dlg_QT_ReplaceBlockToXref.h"
#include "state/widgets/DrawingPreview.h"
#include "tests/dialogs/NameTables.h"

namespace {

/// A dialog that replaces the blocks of its left table.
template <class Dialog>
class BlockDialogTest : public DialogTest<Dialog>
{
protected:
    QTableWidget *left() const { return this->template find<QTableWidget>("blocksTable"); }
    QTableWidget *right() const { return this->template find<QTableWidget>("blocksTableRep"); }
    QString leftRows() const { return this->tableText("blocksTable"); }
    QString rightRows() const { return this->tableText("blocksTableRep"); }
    /// `names` have blanks between.
    void showBlocks(const QString &names, const QString &state = {})
    {
        this->dialog->setBlocks(names.split(u' '));
        this->showWith(state);
    }
};

class ReplaceBlock : public BlockDialogTest<Dlg_QT_ReplaceBlock>
{
protected:
    QString previewed(const char *preview) const { return find<DrawingPreview>(preview)->block(); }
};

TEST_F(ReplaceBlock, DescriptionsGiveNamesAndNumbers)
{
    dialog->setBlocks({u"DOOR^^a^12^7"_s, u"WALL"_s, u"^^^3"_s, u"A B^x^y^none"_s, {}, u"DOOR^^^5"_s});
    QStringList found;
    for (const auto &block : dialog->blocks())
        found.append(block.name + u' ' + QString::number(block.number));
    EXPECT_EQ(found, QStringList({u"DOOR 12"_s, u"WALL 0"_s, u"A B 0"_s, u"DOOR 5"_s}));
}

TEST_F(ReplaceBlock, NamesOfDigitsAreNumbersThatFitOrTexts)
{
    const std::pair<QString, QVariant> rows[] = {
        {u"007"_s, 7},
        {u"2147483647"_s, 2147483647},
        {u"2147483648"_s, u"2147483648"_s},
        {QString(100'000, u'9'), QString(100'000, u'9')},
        {u"7A"_s, u"7A"_s},
        {u"-7"_s, u"-7"_s},
        {u"\u0667"_s, u"\u0667"_s},
    };
    for (const auto &[name, shownCell] : rows) {
        showBlocks(name);
        EXPECT_EQ(left()->item(0, 0)->data(Qt::DisplayRole), shownCell) << name.left(20).toStdString();
        EXPECT_EQ(left()->item(0, 0)->data(Qt::DisplayRole).typeId(), shownCell.typeId());
        left()->selectRow(0);
        EXPECT_EQ(previewed("PreviewBlock"), name) << "the preview is that of the block itself";
        EXPECT_EQ(savedState().section(u'\n', 0, 0), u"blockstable=%1^"_s.arg(shownCell.toString()));
    }
}

TEST_F(ReplaceBlock, EachClickOnTheHeaderTurnsTheOrderAndKeepsTheSelection)
{
    showBlocks(u"door 100 Window 9 ARCH 007 99999999999"_s, u"blockstable=door^9^\n"_s);
    const QString ascending = u"7 9 100 99999999999 ARCH door Window"_s;
    const QString descending = u"Window door ARCH 99999999999 100 9 7"_s;
    left()->setCurrentCell(left()->row(left()->findItems(u"door"_s, Qt::MatchExactly)[0]), 0,
                           QItemSelectionModel::NoUpdate);
    for (const QString &order : {ascending, descending, ascending, descending}) {
        EXPECT_EQ(leftRows(), order);
        EXPECT_EQ(rightRows(), ascending) << "each table has its own order";
        EXPECT_EQ(left()->horizontalHeader()->sortIndicatorOrder() == Qt::AscendingOrder, order == ascending);
        EXPECT_EQ(selectedTexts(*left()), order == ascending ? u"9 door"_s : u"door 9"_s);
        EXPECT_EQ(previewed("PreviewBlock"), u"door"_s);
        clickHeader("blocksTable");
    }
    clickHeader("blocksTableRep");
    EXPECT_EQ(rightRows(), descending);
    EXPECT_EQ(selectedTexts(*right()), QString()) << "a click on the header selects nothing";
    show();
    EXPECT_EQ(rightRows(), descending) << "the order stays for the next showing";
}

TEST_F(ReplaceBlock, TheStateSelectsOnEachShowingAndSetsTheRestAfterSetBlocks)
{
    const QString blocks = u"DOOR WALL 007 12"_s;
    showBlocks(blocks, u"blockstable=WALL^door^\nblockstablerep=12^\nattsync=TRUE\n!action!=OK\n"_s);
    EXPECT_EQ(selectedTexts(*left()), u"DOOR WALL"_s);
    EXPECT_EQ(selectedTexts(*right()), u"12"_s);
    EXPECT_TRUE(isChecked("attsync"));

    left()->clearSelection();
    showBlocks(blocks, u"blockstable=007^\nattsync=FALSE\n!action!=OK\n"_s);
    EXPECT_EQ(selectedTexts(*left()), u"7"_s) << "a name that was picked in the drawing";
    EXPECT_EQ(selectedTexts(*right()), u"12"_s);
    EXPECT_TRUE(isChecked("attsync")) << "left as it was";

    showBlocks(blocks, u"blockstable=7^WALL^GONE^\nattsync=FALSE\n!action!=SETBLOCKS\n"_s);
    EXPECT_EQ(selectedTexts(*left()), u"7 WALL"_s);
    EXPECT_FALSE(isChecked("attsync"));
}

TEST_F(ReplaceBlock, ApplyChecksInOrder)
{
    const QString select = u"You must first select the blocks to replace."_s;
    const QString differ = u"\"Block to be replaced\" and \"Replacing block\" must be different."_s;
    const QString indistinct = u"\"007\" is taken for 7, as another block of the drawing is."_s;
    // Names in both tables, those that are replaced and replacing, and what is said; nothing: accepted.
    const std::tuple<QString, QString, QString, QString> rows[] = {
        {u"DOOR WALL"_s, u"DOOR"_s, {}, select},
        {u"DOOR WALL"_s, {}, u"WALL"_s, select},
        {u"ARCH DOOR WALL"_s, u"ARCH DOOR WALL"_s, u"DOOR"_s, differ},
        {u"007 007 WALL"_s, u"007"_s, u"WALL"_s, {}},
        // Lisp gets the number that a name of digits is taken for.
        {u"007 7 WALL"_s, u"7"_s, u"WALL"_s, {}},
        {u"007 7 WALL"_s, u"007 WALL"_s, u"7"_s, indistinct},
        {u"007 7 WALL"_s, u"WALL"_s, u"007"_s, indistinct},
        {u"007 07 WALL"_s, u"007"_s, u"WALL"_s, indistinct},
        {u"99999999999 1215752191 WALL"_s, u"99999999999"_s, u"1215752191"_s, {}},
    };
    for (const auto &[blocks, replaced, replacing, message] : rows) {
        showBlocks(blocks);
        choose(*left(), replaced);
        choose(*right(), replacing);
        const std::string what = qPrintable(blocks + u": "_s + replaced + u" by "_s + replacing);
        const QStringList shown = shownBy("acceptButton");
        EXPECT_TRUE(shown.join(u' ').contains(message) && shown.isEmpty() == message.isEmpty()) << what;
        EXPECT_EQ(isAccepted(), message.isEmpty()) << what;
    }
    EXPECT_EQ(dialog->state().action(), u"OK"_s);
}

TEST_F(ReplaceBlock, SpecifyingBlocksHandsBackWhatIsChosen)
{
    showBlocks(u"DOOR WALL"_s);
    choose(*left(), u"WALL"_s);
    click("selblocks");
    EXPECT_TRUE(isAccepted());
    EXPECT_EQ(savedState(), u"blockstable=WALL^\n!action!=GETBLOCKS\npurgeitems=FALSE\nattsync=FALSE\n"_s);
}

TEST_F(ReplaceBlock, TheFocusIsWhereSomethingIsMissing)
{
    showBlocks(u"DOOR WALL"_s);
    EXPECT_EQ(focusName(), u"blocksTable"_s);
    showBlocks(u"DOOR WALL"_s, u"blockstable=WALL^\n"_s);
    EXPECT_EQ(focusName(), u"blocksTableRep"_s);
    EXPECT_EQ(previewed("PreviewBlock"), u"WALL"_s);
    EXPECT_EQ(previewed("PreviewBlock2"), QString());
    QTest::keyClick(right(), Qt::Key_Down);
    EXPECT_EQ(previewed("PreviewBlock2"), selectedTexts(*right()));
}

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
    EXPECT_EQ(savedState(), uR"(blockstable=7^DOOR^WALL^
!action!=OK
directory=%1
blockstablerep=a.dwg^
purgeitems=FALSE
)"_s.arg(refs));
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
        EXPECT_TRUE(shownChoosing("selDirectory", chosen).join(u' ').startsWith(u"choose \"Select folder\" "_s));
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
