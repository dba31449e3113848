#include "dialogs/getblockinfo/Dlg_QT_GetBlockInfo.h"
#include "tests/dialogs/DialogTest.h"

#include <QDialogButtonBox>

using namespace ortakit::test;
using namespace Qt::StringLiterals;

namespace {

class GetBlockInfo : public DialogTest<Dlg_QT_GetBlockInfo>
{
protected:
    void showBlocks(const QString &topLevel, const QString &withNested = {}, const QString &state = {})
    {
        dialog->setEntries({topLevel.split(u' '), withNested.split(u' ')});
        showWith(state);
    }
    QString rows() const { return tableText("blocksTable"); }
};

TEST_F(GetBlockInfo, ShowsBlocksThatHaveReferencesInOrder)
{
    const QString ascending = u"chair|9 DESK|10 Tree|100"_s;
    const QString descending = u"Tree|100 DESK|10 chair|9"_s;
    for (const int column : {0, 1}) {
        SetUp();
        showBlocks(u"DESK;10 GONE;0 Tree;100 chair;9 ODD;x NONE"_s);
        for (const QString &order : {ascending, descending, ascending}) {
            EXPECT_EQ(rows(), order) << column;
            clickHeader("blocksTable", column);
        }
    }
}

TEST_F(GetBlockInfo, NestedBlocksAreCountedOnDemand)
{
    showBlocks(u"A;1"_s, u"A;2 B;7"_s);
    EXPECT_EQ(rows(), u"A|1"_s);
    click("nestedCheckBox");
    EXPECT_EQ(rows(), u"A|2 B|7"_s);
    // The next call has its own blocks and keeps the choice.
    showBlocks(u"C;3"_s, u"C;4"_s);
    EXPECT_EQ(rows(), u"C|4"_s);
    dialog->setEntries({});
    show();
    EXPECT_EQ(rows(), QString());

    SetUp();
    showBlocks(u"A;1"_s, u"A;2"_s, u"nestedcheckbox=TRUE\n"_s);
    EXPECT_EQ(rows(), u"A|2"_s);
}

TEST_F(GetBlockInfo, ThreeWaysOutAccept)
{
    showBlocks(u"A;1"_s);
    click("exportTable");
    EXPECT_TRUE(isAccepted());
    EXPECT_EQ(dialog->resultText(), u"TABLE"_s);

    show();
    find<QDialogButtonBox>("buttonBox")->button(QDialogButtonBox::Close)->click();
    EXPECT_TRUE(isAccepted());
    EXPECT_EQ(dialog->resultText(), QString()) << "each showing begins anew";

    show();
    ModalAnswers answers;
    answers.drive([this](QWidget *picker) {
        EXPECT_TRUE(isAccepted()) << "the dialog has closed before the file is asked for";
        picker->close();
    });
    click("exportButton");
    EXPECT_TRUE(answers.isDone());
    EXPECT_EQ(dialog->resultText(), QString());
}

TEST_F(GetBlockInfo, TheFileHoldsWhatIsShown)
{
    const QString folder = host.path(u"reports"_s);
    const QString path = folder + u"/blocks.txt"_s;
    QDir().mkpath(folder);
    showBlocks(u"A;1 LONGNAME;30 GONE;0"_s);
    clickHeader("blocksTable", 1);
    shownChoosing("exportButton", path);
    EXPECT_EQ(FakeHost::readFile(path), "Name        Instances\r\nLONGNAME       30\r\nA              1\r\n");
    showBlocks(u""_s);
    EXPECT_TRUE(shownChoosing("exportButton", path, {QMessageBox::Yes}).value(0).contains(u" \"%1\""_s.arg(folder)));
    EXPECT_EQ(FakeHost::readFile(path), "Name Instances\r\n") << "the old file was longer";
}

TEST_F(GetBlockInfo, AFileThatCannotBeWrittenIsPassedOver)
{
    showBlocks(u"A;1"_s);
    EXPECT_EQ(shownChoosing("exportButton", u"/dev/full"_s, {QMessageBox::Yes}).size(), 2)
        << "the chooser and its question";
    EXPECT_TRUE(isAccepted());
}

} // namespace
