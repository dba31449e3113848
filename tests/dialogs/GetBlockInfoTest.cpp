#include "dialogs/getblockinfo/Dlg_QT_GetBlockInfo.h"
#include "tests/dialogs/DialogTest.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHeaderView>

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
    QString rows() const { return tableRows("blocksTable").join(u' '); }
    void clickHeader(int column)
    {
        const QHeaderView *header = find<QTableWidget>("blocksTable")->horizontalHeader();
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                          QPoint(header->sectionViewportPosition(column) + 10, header->height() / 2));
    }
    /// What the file holds that is chosen for the report; when there is one, the user agrees to lose it.
    QByteArray report(ModalAnswers &answers)
    {
        const QString path = host.path(u"reports/blocks.txt"_s);
        QDir().mkpath(host.path(u"reports"_s));
        answers.choose(path);
        if (QFileInfo::exists(path))
            answers.press(QMessageBox::Yes);
        click("exportButton");
        return FakeHost::readFile(path);
    }
};

TEST_F(GetBlockInfo, ShowsBlocksThatHaveReferencesInOrder)
{
    const struct
    {
        const char *name;
        QList<int> headerClicks;
        QString rows;
    } cases[] = {
        {"at first", {}, u"chair|9 DESK|10 Tree|100"_s},
        {"the name once", {0}, u"Tree|100 DESK|10 chair|9"_s},
        {"the name twice", {0, 0}, u"chair|9 DESK|10 Tree|100"_s},
        {"the number once", {1}, u"Tree|100 DESK|10 chair|9"_s},
        {"the number twice", {1, 1}, u"chair|9 DESK|10 Tree|100"_s},
    };
    for (const auto &row : cases) {
        dialog = std::make_unique<Dlg_QT_GetBlockInfo>(&window);
        showBlocks(u"DESK;10 GONE;0 Tree;100 chair;9 ODD;x NONE"_s);
        for (const int column : row.headerClicks)
            clickHeader(column);
        EXPECT_EQ(rows(), row.rows) << row.name;
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

    dialog = std::make_unique<Dlg_QT_GetBlockInfo>(&window);
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
    EXPECT_EQ(dialog->resultText(), QString()) << "each showing begins anew";
    find<QDialogButtonBox>("buttonBox")->button(QDialogButtonBox::Close)->click();
    EXPECT_TRUE(isAccepted());
    EXPECT_EQ(dialog->resultText(), QString());

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
    showBlocks(u"A;1 LONGNAME;30 GONE;0"_s);
    clickHeader(1);
    ModalAnswers answers;
    EXPECT_EQ(report(answers), "Name        Instances\r\nLONGNAME       30\r\nA              1\r\n");
    showBlocks(u""_s);
    EXPECT_EQ(report(answers), "Name Instances\r\n") << "the old file was longer";
    const auto asked = [](const QString &folder) {
        return u"choose \"Resulting file\" \"%1\" \"Text files (*.txt)\""_s.arg(folder);
    };
    EXPECT_EQ(answers.shown().filter(u"choose"_s), (QStringList{asked(host.path({})), asked(host.path(u"reports"_s))}));
}

TEST_F(GetBlockInfo, AFileThatCannotBeWrittenIsPassedOver)
{
    showBlocks(u"A;1"_s);
    ModalAnswers answers;
    answers.choose(u"/dev/full"_s);
    answers.press(QMessageBox::Yes);
    click("exportButton");
    EXPECT_TRUE(isAccepted());
    EXPECT_EQ(answers.shown().size(), 2) << "the file dialog and its question";
}

} // namespace
