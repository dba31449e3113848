#include "dialogs/importblockattributes/Dlg_QT_ImportBlockAttributes.h"
#include "tests/dialogs/DialogTest.h"
#include "tests/support/Texts.h"

namespace {

const QByteArray doorTable = testText("dialogs/importblockattributes/doors.txt");

class ImportBlockAttributes : public DialogTest<Dlg_QT_ImportBlockAttributes>
{
protected:
    QTableWidget *table() const { return find<QTableWidget>("Attributes"); }
    QString rows() const { return tableText("Attributes"); }
    QString headers() const
    {
        QStringList texts;
        for (int column = 0; column < table()->columnCount(); ++column)
            texts.append(table()->horizontalHeaderItem(column)->text());
        return texts.join(u'|');
    }
    void showFile(const QByteArray &content)
    {
        file = host.writeFile(u"doors.txt"_s, content);
        showWith({});
        enterText("AttributeFile", file);
    }
    QString shownFile() const { return fullText("AttributeFile"); }
    void clickCell(int row, int column, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mouseClick(table()->viewport(), Qt::LeftButton, modifiers,
                          table()->visualRect(table()->model()->index(row, column)).center());
    }
    void clickRow(int row, Qt::KeyboardModifiers modifiers = {})
    {
        const QHeaderView *header = table()->verticalHeader();
        QTest::mouseClick(header->viewport(), Qt::LeftButton, modifiers,
                          QPoint(5, header->sectionViewportPosition(row) + 5));
    }
    /// What the Lisp program finds under "attributes".
    QString handedOver()
    {
        for (const QString &line : savedState().split(u'\n')) {
            if (line.startsWith(u"attributes="_s))
                return line.mid(11);
        }
        return {};
    }
    /// "find and replace, OK, select all" as they are.
    QString states() const
    {
        return u"%1 %2 %3"_s.arg(isEnabled("groupSearch") ? u"find"_s : u"-"_s,
                                 isEnabled("acceptButton") ? u"ok"_s : u"-"_s,
                                 isChecked("selectAll") ? u"all"_s : u"-"_s);
    }
    QString file;
};

TEST_F(ImportBlockAttributes, AFileIsShownAsItsLinesAre)
{
    showWith({});
    EXPECT_EQ(focusName(), u"selectfile"_s);
    EXPECT_FALSE(isEnabled("selectAll"));
    showFile(doorTable);
    EXPECT_EQ(headers(), u"HANDLE|NAME|NUMBER"_s);
    EXPECT_EQ(rows(), u"'1A|DOOR|D-2 '1B|door|ABCabc '1C|GATE|-"_s);
    EXPECT_TRUE(isEnabled("selectAll"));
    EXPECT_TRUE(dialog->isVisible()) << "Enter in the field is not OK";
    showFile({});
    EXPECT_EQ(table()->columnCount() + table()->rowCount(), 0);
}

TEST_F(ImportBlockAttributes, EachShowingReadsTheFileOfTheState)
{
    file = host.writeFile(u"doors.txt"_s, doorTable);
    showWith(u"attributefile=%1\nattributes=HANDLE^x\nselectall=TRUE\n"_s.arg(file));
    EXPECT_EQ(table()->rowCount(), 3);
    EXPECT_EQ(states(), u"- - -"_s);
    host.writeFile(u"doors.txt"_s, "A\n1\n");
    show();
    EXPECT_EQ(rows(), u"1"_s);
    QFile::remove(file);
    ModalAnswers answers;
    show();
    EXPECT_EQ(answers.shown(), QStringList()) << "nothing is said about a file that is gone before it is needed";
}

TEST_F(ImportBlockAttributes, PathsThatLeadNowhereGiveTheLastOneBack)
{
    const std::pair<QString, QString> cases[] = {
        {{}, u"warning \"\" \"Filename can`t be empty\" OK"_s},
        {host.path({}), u"warning \"\" \"Cannot find the specified file.\" OK"_s},
    };
    for (const auto &[path, message] : cases) {
        SetUp();
        showWith({});
        EXPECT_EQ(shownEntering("AttributeFile", path), QStringList{message});
        EXPECT_EQ(shownFile(), QString());
        EXPECT_FALSE(isEnabled("selectAll"));
        showFile(doorTable);
        EXPECT_EQ(shownEntering("AttributeFile", path), QStringList{message});
        EXPECT_EQ(shownFile(), file);
        EXPECT_EQ(table()->rowCount(), 3);
        // Selecting does the same without a word, and ends there.
        const ModalAnswers answers;
        setText("AttributeFile", path);
        clickCell(0, 0);
        EXPECT_EQ(shownFile(), file);
        EXPECT_EQ(states(), u"- - -"_s);
        clickCell(1, 0);
        EXPECT_EQ(states(), u"find ok -"_s);
        EXPECT_EQ(answers.shown(), QStringList());
    }
}

TEST_F(ImportBlockAttributes, APathThatWasOnlyTypedCountsWhenItIsLeft)
{
    showFile(doorTable);
    const QString other = host.writeFile(u"other.txt"_s, "A\n1\n");
    find("AttributeFile")->setFocus();
    setText("AttributeFile", other);
    table()->setFocus();
    EXPECT_EQ(rows(), u"1"_s);
    find("AttributeFile")->setFocus();
    setText("AttributeFile", u"nowhere"_s);
    ModalAnswers answers;
    table()->setFocus();
    EXPECT_EQ(answers.shown(), QStringList());
    EXPECT_EQ(rows(), u"1"_s);
}

// Enter reads the file once, also where a message has taken the focus.
TEST_F(ImportBlockAttributes, WhatIsNoTableIsSaidOnceAndLeavesNone)
{
    showFile(doorTable);
    EXPECT_EQ(shownEntering("AttributeFile", host.writeFile(u"wide.txt"_s, QByteArray(20'000, '\t'))),
              QStringList{u"warning \"Import Block Attributes\" \"The table is too large.\" OK"_s});
    EXPECT_EQ(table()->rowCount() + table()->columnCount(), 0);
    EXPECT_FALSE(isEnabled("selectAll"));
}

TEST_F(ImportBlockAttributes, BrowsingTakesTheFile)
{
    showWith({});
    QDir().mkpath(host.path(u"tables"_s));
    file = host.writeFile(u"tables/doors.txt"_s, doorTable);
    const QString chooser = u"choose \"Select the file to import\" \"%1\" \"Attributes files (*.txt)\""_s;
    EXPECT_EQ(shownChoosing("selectfile", {}), QStringList{chooser.arg(host.path({}))});
    shownChoosing("selectfile", file);
    EXPECT_EQ(shownFile(), file);
    EXPECT_EQ(shownChoosing("selectfile", {}), QStringList{chooser.arg(host.path(u"tables"_s))});
    EXPECT_EQ(table()->rowCount(), 3);
}

TEST_F(ImportBlockAttributes, WhatIsEnabledFollowsTheSelection)
{
    showFile(doorTable);
    EXPECT_EQ(states(), u"- - -"_s);
    clickCell(1, 1);
    EXPECT_EQ(states(), u"find ok -"_s);
    click("selectAll");
    EXPECT_EQ(states(), u"find ok all"_s);
    EXPECT_EQ(table()->selectedItems().size(), 8) << "one cell has no item";
    QTest::keyClick(table(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(states(), u"find ok all"_s) << "nothing has changed";
    clickCell(1, 1, Qt::ControlModifier);
    EXPECT_EQ(states(), u"find ok -"_s);
    clickCell(1, 1, Qt::ControlModifier);
    EXPECT_EQ(states(), u"find ok -"_s) << "all cells check nothing";
    click("selectAll");
    click("selectAll");
    EXPECT_EQ(states(), u"- - -"_s);
    clickCell(0, 0);
    enterText("AttributeFile", file);
    EXPECT_EQ(states(), u"- - -"_s) << "a new table";
}

TEST_F(ImportBlockAttributes, ReplacingGoesThroughTheSelectedCells)
{
    const QString unchanged = u"'1A|DOOR|D-2 '1B|door|ABCabc '1C|GATE|-"_s;
    const std::tuple<const char *, QPoint, QString, QString, QString> cases[] = {
        {"any case, every occurrence", {2, 1}, u"abc"_s, u"X"_s, u"'1A|DOOR|D-2 '1B|door|XX '1C|GATE|-"_s},
        {"its own replacement is left", {1, 0}, u"o"_s, u"oo"_s, u"'1A|DooooR|D-2 '1B|door|ABCabc '1C|GATE|-"_s},
        {"nothing to find", {1, 0}, {}, u"X"_s, unchanged},
        {"no pattern", {2, 0}, u"."_s, u"X"_s, unchanged},
        {"a cell without an item", {2, 2}, u"a"_s, u"X"_s, unchanged},
    };
    for (const auto &[what, cell, found, replacement, after] : cases) {
        showFile(doorTable);
        clickCell(cell.y(), cell.x());
        setText("txsearch", found);
        setText("txreplace", replacement);
        EXPECT_EQ(shownBy("btReplace"), QStringList()) << what;
        EXPECT_EQ(rows(), after) << what;
        EXPECT_EQ(states(), u"find ok -"_s) << what;
    }
}

TEST_F(ImportBlockAttributes, EnterInTheFieldsReplaces)
{
    showFile(doorTable);
    clickRow(0);
    setText("txsearch", u"door"_s);
    find("txreplace")->setFocus();
    QTest::keyClicks(find("txreplace"), u"Gate"_s);
    QTest::keyClick(find("txreplace"), Qt::Key_Return);
    EXPECT_EQ(table()->item(0, 1)->text(), u"Gate"_s);
    EXPECT_TRUE(dialog->isVisible());
    table()->setFocus();
    QTest::keyClick(table(), Qt::Key_Return);
    EXPECT_TRUE(isAccepted());
}

TEST_F(ImportBlockAttributes, WholeRowsGoToLispInTheOrderOfTheirSelection)
{
    showFile(doorTable);
    clickRow(2);
    clickRow(0, Qt::ControlModifier);
    clickCell(1, 1, Qt::ControlModifier);
    click("acceptButton");
    EXPECT_TRUE(isAccepted());
    EXPECT_EQ(handedOver(), u"HANDLE\tNAME\tNUMBER^'1C\tGATE^'1A\tDOOR\tD-2"_s);

    show();
    click("selectAll");
    click("acceptButton");
    EXPECT_EQ(handedOver(), u"HANDLE\tNAME\tNUMBER^'1A\tDOOR\tD-2^'1B\tdoor\tABCabc^'1C\tGATE"_s);
    EXPECT_TRUE(savedState().startsWith(u"attributefile="_s + file + u"\n!action!=\n"_s));
}

TEST_F(ImportBlockAttributes, WithoutWholeRowsTheDialogStays)
{
    const QStringList noRows{u"information \"Import Block Attributes\" \"Select the rows of table for import.\" OK"_s};
    showFile(doorTable);
    clickCell(0, 0);
    EXPECT_EQ(shownBy("acceptButton"), noRows);
    EXPECT_TRUE(dialog->isVisible());
    // A selection that went while the path was wrong leaves the buttons as they were.
    setText("AttributeFile", u"nowhere"_s);
    table()->clearSelection();
    ASSERT_EQ(states(), u"find ok -"_s);
    EXPECT_TRUE(shownBy("btReplace").value(0).contains(u"Select items of table for search."_s));
    EXPECT_EQ(shownBy("acceptButton"), noRows);
    // A file that is gone is not imported.
    clickRow(0);
    QFile::remove(file);
    EXPECT_EQ(shownBy("acceptButton"), QStringList{u"warning \"\" \"Cannot find the specified file.\" OK"_s});
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(ImportBlockAttributes, HeadersSortAndTakeTheSelectionAlong)
{
    showFile("A\tB\nb\t2\nAC\t3\na\t1\nB\n");
    clickRow(2);
    clickHeader("Attributes", 1);
    EXPECT_EQ(rows(), u"B|- a|1 b|2 AC|3"_s);
    EXPECT_EQ(table()->currentRow(), 1);
    click("acceptButton");
    EXPECT_EQ(handedOver(), u"A\tB^a\t1"_s);
}

TEST_F(ImportBlockAttributes, CancellingLeavesTheTable)
{
    // About as much as is read at all.
    constexpr int count = 1'600'000;
    showFile(doorTable);
    const QString large = host.writeFile(u"large.txt"_s, "A\tB\tC\n" + QByteArray("b\ta\tc\n").repeated(count));
    const auto cancel = [](QWidget *progress) { progress->findChild<QPushButton *>()->click(); };
    ModalAnswers answers;
    answers.drive(cancel);
    enterText("AttributeFile", large);
    if (!answers.isDone())
        GTEST_SKIP() << "nobody waits for anything on this machine";
    EXPECT_EQ(shownFile(), file);
    EXPECT_EQ(rows(), u"'1A|DOOR|D-2 '1B|door|ABCabc '1C|GATE|-"_s);

    SetUp();
    answers.drive(cancel);
    showWith(u"attributefile=%1\n"_s.arg(large));
    ASSERT_TRUE(answers.isDone());
    EXPECT_EQ(shownFile() + rows(), QString());
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(ImportBlockAttributes, CanBeDestroyedWithASelectionAndTheFocusInTheField)
{
    showFile(doorTable);
    click("selectAll");
    find("AttributeFile")->setFocus();
    setText("AttributeFile", host.writeFile(u"other.txt"_s, doorTable));
    dialog.reset();
    EXPECT_FALSE(window.focusWidget());
}

} // namespace
