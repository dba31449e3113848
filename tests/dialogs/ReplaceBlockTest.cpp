#include "dialogs/replaceblock/Dlg_QT_ReplaceBlock.h"
#include "state/DrawingPreview.h"
#include "tests/dialogs/DialogTest.h"
#include "tests/dialogs/NameTables.h"

using namespace ortakit::test;
using namespace Qt::StringLiterals;

namespace {

class ReplaceBlock : public DialogTest<Dlg_QT_ReplaceBlock>
{
protected:
    QTableWidget *left() const { return find<QTableWidget>("blocksTable"); }
    QTableWidget *right() const { return find<QTableWidget>("blocksTableRep"); }
    QString previewed(const char *preview) const { return find<DrawingPreview>(preview)->block(); }

    void showBlocks(const QString &names, const QString &state = {})
    {
        dialog->setBlocks(names.split(u' '));
        showWith(state);
    }
};

TEST_F(ReplaceBlock, DescriptionsGiveNamesAndNumbers)
{
    dialog->setBlocks({u"DOOR^^a^12^7"_s, u"WALL"_s, u"^^^3"_s, u"A B^x^y^none"_s, {}, u"DOOR^^^5"_s});
    QStringList found;
    for (const auto &block : dialog->blocks())
        found.append(block.name + u' ' + QString::number(block.number));
    EXPECT_EQ(found, QStringList({u"DOOR 12"_s, u"WALL 0"_s, u"A B 0"_s, u"DOOR 5"_s}));
    dialog->setBlocks({u"LAMP"_s});
    show();
    EXPECT_EQ(shownTexts(*left()), u"LAMP"_s);
    EXPECT_EQ(shownTexts(*right()), u"LAMP"_s);
}

TEST_F(ReplaceBlock, NamesOfDigitsAreNumbersThatFitOrTexts)
{
    const struct
    {
        QString name;
        QVariant cell;
    } rows[] = {
        {u"007"_s, 7},
        {u"0"_s, 0},
        {u"2147483647"_s, 2147483647},
        {u"2147483648"_s, u"2147483648"_s},
        {u"99999999999"_s, u"99999999999"_s},
        {u"00099999999999"_s, u"00099999999999"_s},
        {QString(100'000, u'9'), QString(100'000, u'9')},
        {u"7A"_s, u"7A"_s},
        {u"-7"_s, u"-7"_s},
        {u"1.0"_s, u"1.0"_s},
        {u"\u0667"_s, u"\u0667"_s},
    };
    for (const auto &row : rows) {
        showBlocks(row.name);
        const QVariant cell = left()->item(0, 0)->data(Qt::DisplayRole);
        EXPECT_EQ(cell, row.cell) << row.name.left(20).toStdString();
        EXPECT_EQ(cell.typeId(), row.cell.typeId()) << row.name.left(20).toStdString();
        left()->selectRow(0);
        EXPECT_EQ(previewed("PreviewBlock"), row.name) << "the preview is that of the block itself";
        EXPECT_EQ(savedState().section(u'\n', 0, 0), u"blockstable=%1^"_s.arg(row.cell.toString()));
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
        EXPECT_EQ(shownTexts(*left()), order);
        EXPECT_EQ(shownTexts(*right()), ascending) << "each table has its own order";
        EXPECT_EQ(left()->horizontalHeader()->sortIndicatorOrder() == Qt::AscendingOrder, order == ascending);
        EXPECT_EQ(selectedTexts(*left()), order == ascending ? u"9 door"_s : u"door 9"_s);
        EXPECT_EQ(previewed("PreviewBlock"), u"door"_s);
        clickHeader(*left());
    }
    clickHeader(*right());
    EXPECT_EQ(shownTexts(*right()), descending);
    EXPECT_EQ(selectedTexts(*right()), QString()) << "a click on the header selects nothing";
    show();
    EXPECT_EQ(shownTexts(*right()), descending) << "the order stays for the next showing";
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
    const QString select = u"warning \"\" \"You must first select the blocks to replace. \" OK"_s;
    const QString differ = u"warning \"\" \"\"Block to be replaced\" and \"Replacing block\" must be different.\" OK"_s;
    const QString indistinct = u"warning \"\" \"The block \"007\" is taken for 7, as another block of the drawing is. "
                               "Rename one of the two first.\" OK"_s;
    const struct
    {
        const char *what;
        QString blocks;
        QString replaced; ///< names
        QString replacing;
        QString message; ///< empty: accepted
    } rows[] = {
        {"nothing", u"DOOR WALL"_s, {}, {}, select},
        {"no replacing block", u"DOOR WALL"_s, u"DOOR"_s, {}, select},
        {"no block to replace", u"DOOR WALL"_s, {}, u"WALL"_s, select},
        {"the same", u"DOOR WALL"_s, u"DOOR"_s, u"DOOR"_s, differ},
        {"one of several", u"ARCH DOOR WALL"_s, u"ARCH DOOR WALL"_s, u"DOOR"_s, differ},
        {"a number and itself", u"007 WALL"_s, u"007"_s, u"007"_s, differ},
        {"different", u"DOOR WALL"_s, u"DOOR"_s, u"WALL"_s, {}},
        {"a number of its own", u"007 WALL"_s, u"007"_s, u"WALL"_s, {}},
        {"listed twice", u"007 007 WALL"_s, u"007"_s, u"WALL"_s, {}},
        {"what Lisp takes it for", u"007 7 WALL"_s, u"7"_s, u"WALL"_s, {}},
        {"what Lisp takes for another", u"007 7 WALL"_s, u"007 WALL"_s, u"7"_s, indistinct},
        {"the same on the right", u"007 7 WALL"_s, u"WALL"_s, u"007"_s, indistinct},
        {"neither is what it shows", u"007 07 WALL"_s, u"007"_s, u"WALL"_s, indistinct},
        {"too long to be the same", u"99999999999 1215752191 WALL"_s, u"99999999999"_s, u"1215752191"_s, {}},
    };
    for (const auto &row : rows) {
        showBlocks(row.blocks);
        choose(*left(), row.replaced);
        choose(*right(), row.replacing);
        ModalAnswers answers;
        answers.press(QMessageBox::Ok);
        click("acceptButton");
        EXPECT_EQ(answers.shown().value(0), row.message) << row.what;
        EXPECT_EQ(isAccepted(), row.message.isEmpty()) << row.what;
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

/// Counts how often a widget is painted.
class PaintCounter final : public QObject
{
public:
    int paints = 0;

    bool eventFilter(QObject *, QEvent *event) override
    {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

TEST_F(ReplaceBlock, SelectingAllOfManyBlocksDrawsOnePreview)
{
    QStringList names;
    for (int number = 0; number < 20'000; ++number)
        names.append(u"B%1"_s.arg(number));
    showBlocks(names.join(u' '));
    PaintCounter counter;
    find("PreviewBlock")->installEventFilter(&counter);
    QTest::keyClick(left(), Qt::Key_A, Qt::ControlModifier);
    QCoreApplication::processEvents();
    EXPECT_EQ(left()->selectionModel()->selectedRows().size(), 20'000);
    EXPECT_LE(counter.paints, 1);
}

} // namespace
