#include "dialogs/replaceblock/Dlg_QT_ReplaceBlock.h"
#include "state/widgets/DrawingPreview.h"
#include "tests/dialogs/NameTables.h"

using namespace ortakit::test;
using namespace Qt::StringLiterals;

namespace {

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

} // namespace
