#include "dialogs/importblockattributes/Dlg_QT_ImportBlockAttributes.h"
#include "tests/dialogs/DialogTest.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QPushButton>

using namespace ortakit::test;
using namespace Qt::StringLiterals;

namespace {

const QByteArray doors = "HANDLE\tNAME\tNUMBER\n"
                         "'1A\tDOOR\tD-2\n"
                         "'1B\tdoor\tABCabc\tsurplus\n"
                         "'1C\tGATE\n";

class ImportBlockAttributes : public DialogTest<Dlg_QT_ImportBlockAttributes>
{
protected:
    QTableWidget *table() const { return find<QTableWidget>("Attributes"); }
    /// Rows from top to bottom; "-" for a cell without an item.
    QString rows() const
    {
        QStringList rows;
        for (int row = 0; row < table()->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < table()->columnCount(); ++column)
                cells.append(table()->item(row, column) ? table()->item(row, column)->text() : u"-"_s);
            rows.append(cells.join(u'|'));
        }
        return rows.join(u' ');
    }
    QString headers() const
    {
        QStringList texts;
        for (int column = 0; column < table()->columnCount(); ++column)
            texts.append(table()->horizontalHeaderItem(column)->text());
        return texts.join(u'|');
    }
    void enterFile(const QString &path)
    {
        find("AttributeFile")->setFocus();
        setText("AttributeFile", path);
        QTest::keyClick(find("AttributeFile"), Qt::Key_Return);
    }
    void showFile(const QByteArray &content)
    {
        file = host.writeFile(u"doors.txt"_s, content);
        showWith({});
        enterFile(file);
    }
    QString shownFile() const { return find("AttributeFile")->property("value").toString(); }
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
    void clickHeader(int column)
    {
        const QHeaderView *header = table()->horizontalHeader();
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                          QPoint(header->sectionViewportPosition(column) + 10, header->height() / 2));
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
    static QString informed(const char *text)
    {
        return u"information \"Import Block Attributes\" \"%1\" OK"_s.arg(QString::fromLatin1(text));
    }
    static QString picked(const QString &folder)
    {
        return u"choose \"Select the file to import\" \"%1\" \"Attributes files (*.txt)\""_s.arg(folder);
    }

    QString file;
};

TEST_F(ImportBlockAttributes, AFileIsShownAsItsLinesAre)
{
    showWith({});
    EXPECT_EQ(focusName(), u"selectfile"_s);
    EXPECT_FALSE(isEnabled("selectAll"));
    showFile(doors);
    EXPECT_EQ(headers(), u"HANDLE|NAME|NUMBER"_s);
    EXPECT_EQ(rows(), u"'1A|DOOR|D-2 '1B|door|ABCabc '1C|GATE|-"_s);
    EXPECT_TRUE(isEnabled("selectAll"));
    EXPECT_EQ(table()->rowHeight(2), 18);
    EXPECT_EQ(table()->verticalHeader()->width(), 26);
    EXPECT_TRUE(dialog->isVisible()) << "Enter in the field is not OK";

    host.writeFile(u"doors.txt"_s, "A\n1\n");
    enterFile(file);
    EXPECT_EQ(headers() + u' ' + rows(), u"A 1"_s);
    host.writeFile(u"doors.txt"_s, {});
    enterFile(file);
    EXPECT_EQ(table()->columnCount() + table()->rowCount(), 0);
}

TEST_F(ImportBlockAttributes, EachShowingReadsTheFileOfTheState)
{
    file = host.writeFile(u"doors.txt"_s, doors);
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
    const struct
    {
        const char *name;
        QString path;
        QString message;
    } cases[] = {
        {"empty", {}, u"warning \"\" \"Filename can`t be empty\" OK"_s},
        {"missing", host.path(u"missing.txt"_s), u"warning \"\" \"Cannot find the specified file.\" OK"_s},
        {"a folder", host.path({}), u"warning \"\" \"Cannot find the specified file.\" OK"_s},
    };
    for (const auto &row : cases) {
        dialog = std::make_unique<Dlg_QT_ImportBlockAttributes>(&window);
        showWith({});
        ModalAnswers answers;
        answers.press(QMessageBox::Ok);
        enterFile(row.path);
        EXPECT_EQ(shownFile(), QString()) << row.name;
        EXPECT_FALSE(isEnabled("selectAll")) << row.name;
        showFile(doors);
        answers.press(QMessageBox::Ok);
        enterFile(row.path);
        EXPECT_EQ(shownFile(), file) << row.name;
        EXPECT_EQ(table()->rowCount(), 3) << row.name;
        EXPECT_EQ(answers.shown(), (QStringList{row.message, row.message})) << row.name;
        // Selecting does the same without a word, and ends there.
        setText("AttributeFile", row.path);
        clickCell(0, 0);
        EXPECT_EQ(shownFile(), file) << row.name;
        EXPECT_EQ(states(), u"- - -"_s) << row.name;
        clickCell(1, 0);
        EXPECT_EQ(states(), u"find ok -"_s) << row.name;
        EXPECT_EQ(answers.shown().size(), 2) << row.name;
    }
}

TEST_F(ImportBlockAttributes, APathThatWasOnlyTypedCountsWhenItIsLeft)
{
    showFile(doors);
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
TEST_F(ImportBlockAttributes, EnterReadsOnce)
{
    showWith({});
    setText("AttributeFile", host.writeFile(u"wide.txt"_s, QByteArray(20'000, '\t')));
    ModalAnswers answers;
    answers.press(QMessageBox::Ok);
    QTest::keyClick(find("AttributeFile"), Qt::Key_Return);
    EXPECT_EQ(answers.shown().filter(u"too large"_s).size(), 1);
}

TEST_F(ImportBlockAttributes, WhatIsNoTableIsSaidAndLeavesNone)
{
    const struct
    {
        const char *name;
        QByteArray content;
    } cases[] = {
        {"too wide", QByteArray(20'000, '\t')},
        {"too many cells", QByteArray(9'000, '\t') + QByteArray(3'000, '\n')},
    };
    for (const auto &row : cases) {
        showFile(doors);
        const QString other = host.writeFile(u"other.txt"_s, row.content);
        ModalAnswers answers;
        answers.press(QMessageBox::Ok);
        enterFile(other);
        EXPECT_EQ(answers.shown(), QStringList{u"warning \"Import Block Attributes\" \"The table is too large.\" OK"_s})
            << row.name;
        EXPECT_EQ(table()->rowCount() + table()->columnCount(), 0) << row.name;
        EXPECT_FALSE(isEnabled("selectAll")) << row.name;
    }
}

TEST_F(ImportBlockAttributes, BrowsingTakesTheFile)
{
    showWith({});
    QDir().mkpath(host.path(u"tables"_s));
    file = host.writeFile(u"tables/doors.txt"_s, doors);
    ModalAnswers answers;
    answers.choose({});
    click("selectfile");
    answers.choose(file);
    click("selectfile");
    EXPECT_EQ(shownFile(), file);
    EXPECT_EQ(table()->rowCount(), 3);
    answers.choose({});
    click("selectfile");
    EXPECT_EQ(answers.shown(),
              (QStringList{picked(host.path({})), picked(host.path({})), picked(host.path(u"tables"_s))}));
    EXPECT_EQ(table()->rowCount(), 3);
}

TEST_F(ImportBlockAttributes, WhatIsEnabledFollowsTheSelection)
{
    showFile(doors);
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
    QTest::keyClick(table(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(states(), u"find ok -"_s);
    enterFile(file);
    EXPECT_EQ(states(), u"- - -"_s) << "a new table";
}

TEST_F(ImportBlockAttributes, ReplacingGoesThroughTheSelectedCells)
{
    const struct
    {
        const char *name;
        QList<std::pair<int, int>> cells;
        QString find;
        QString replace;
        QString rows;
    } cases[] = {
        {"any case, every occurrence", {{1, 2}}, u"abc"_s, u"X"_s, u"'1A|DOOR|D-2 '1B|door|XX '1C|GATE|-"_s},
        {"selected cells only", {{0, 1}}, u"DOOR"_s, u"Hatch"_s, u"'1A|Hatch|D-2 '1B|door|ABCabc '1C|GATE|-"_s},
        {"taken away", {{0, 1}, {1, 1}}, u"O"_s, u""_s, u"'1A|DR|D-2 '1B|dr|ABCabc '1C|GATE|-"_s},
        {"its own replacement is left", {{0, 1}}, u"o"_s, u"oo"_s, u"'1A|DooooR|D-2 '1B|door|ABCabc '1C|GATE|-"_s},
        {"nothing to find", {{0, 1}}, u""_s, u"X"_s, u"'1A|DOOR|D-2 '1B|door|ABCabc '1C|GATE|-"_s},
        {"no pattern", {{0, 2}}, u"."_s, u"X"_s, u"'1A|DOOR|D-2 '1B|door|ABCabc '1C|GATE|-"_s},
        {"a cell without an item", {{2, 2}}, u"a"_s, u"X"_s, u"'1A|DOOR|D-2 '1B|door|ABCabc '1C|GATE|-"_s},
    };
    for (const auto &row : cases) {
        showFile(doors);
        for (const auto &[r, column] : row.cells)
            clickCell(r, column, Qt::ControlModifier);
        setText("txsearch", row.find);
        setText("txreplace", row.replace);
        ModalAnswers answers;
        click("btReplace");
        EXPECT_EQ(rows(), row.rows) << row.name;
        EXPECT_EQ(answers.shown(), QStringList()) << row.name;
        EXPECT_EQ(states(), u"find ok -"_s) << row.name;
    }
}

TEST_F(ImportBlockAttributes, EnterInTheFieldsReplaces)
{
    showFile(doors);
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
    showFile(doors);
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
    showFile(doors);
    clickCell(0, 0);
    ModalAnswers answers;
    answers.press(QMessageBox::Ok);
    click("acceptButton");
    EXPECT_TRUE(dialog->isVisible());
    // A selection that went while the path was wrong leaves the buttons as they were.
    setText("AttributeFile", u"nowhere"_s);
    table()->clearSelection();
    ASSERT_EQ(states(), u"find ok -"_s);
    answers.press(QMessageBox::Ok);
    click("btReplace");
    answers.press(QMessageBox::Ok);
    click("acceptButton");
    EXPECT_EQ(answers.shown(), (QStringList{informed("Select the rows of table for import."),
                                            informed("Select items of table for search."),
                                            informed("Select the rows of table for import.")}));
    // A file that is gone is not imported.
    clickRow(0);
    QFile::remove(file);
    answers.press(QMessageBox::Ok);
    click("acceptButton");
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(answers.shown().last(), u"warning \"\" \"Cannot find the specified file.\" OK"_s);
}

TEST_F(ImportBlockAttributes, HeadersSortAndTakeTheSelectionAlong)
{
    showFile("A\tB\nb\t2\nAC\t3\na\t1\nB\n");
    clickRow(2);
    clickHeader(0);
    EXPECT_EQ(rows(), u"a|1 AC|3 b|2 B|-"_s);
    clickHeader(1);
    EXPECT_EQ(rows(), u"B|- a|1 b|2 AC|3"_s);
    clickHeader(1);
    EXPECT_EQ(rows(), u"B|- a|1 b|2 AC|3"_s) << "always ascending";
    EXPECT_EQ(table()->currentRow(), 1);
    click("acceptButton");
    EXPECT_EQ(handedOver(), u"A\tB^a\t1"_s);
}

TEST_F(ImportBlockAttributes, CancellingLeavesTheTable)
{
    // About as much as is read at all.
    constexpr int count = 1'600'000;
    showFile(doors);
    const QString large = host.writeFile(u"large.txt"_s, "A\tB\tC\n" + QByteArray("b\ta\tc\n").repeated(count));
    const auto cancel = [](QWidget *progress) { progress->findChild<QPushButton *>()->click(); };
    ModalAnswers answers;
    answers.drive(cancel);
    enterFile(large);
    if (!answers.isDone())
        GTEST_SKIP() << "nobody waits for anything on this machine";
    EXPECT_EQ(shownFile(), file);
    EXPECT_EQ(rows(), u"'1A|DOOR|D-2 '1B|door|ABCabc '1C|GATE|-"_s);

    dialog = std::make_unique<Dlg_QT_ImportBlockAttributes>(&window);
    answers.drive(cancel);
    showWith(u"attributefile=%1\n"_s.arg(large));
    ASSERT_TRUE(answers.isDone());
    EXPECT_EQ(shownFile() + rows(), QString());
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(ImportBlockAttributes, CanBeDestroyedWithASelectionAndTheFocusInTheField)
{
    showFile(doors);
    click("selectAll");
    find("AttributeFile")->setFocus();
    setText("AttributeFile", host.writeFile(u"other.txt"_s, doors));
    dialog.reset();
    EXPECT_FALSE(window.focusWidget());
}

} // namespace
