#include "dialogs/editalias/Dlg_QT_EditAlias.h"
#include "tests/dialogs/DialogTest.h"
#include "tests/support/PdfText.h"

#include <QElapsedTimer>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>

using namespace ortakit::test;
using namespace Qt::StringLiterals;

namespace {

const QString usedMessage = u"critical \"\" \"This alias already begin used for other command.\" OK"_s;

class EditAlias : public DialogTest<Dlg_QT_EditAlias>
{
protected:
    QTableWidget *table() const { return find<QTableWidget>("lstAlias"); }
    QString cell(int row, int column) const { return table()->item(row, column)->text(); }
    void setCell(int row, int column, const QString &text) { table()->item(row, column)->setText(text); }

    /// "LINE=L ARC=A" as the file has it.
    static QByteArray fileWith(const QString &pairs)
    {
        QString text = u"<aliases>"_s;
        for (const QString &pair : pairs.split(u' ', Qt::SkipEmptyParts))
            text += u"<record command=\"%1\" alias=\"%2\"/>"_s.arg(pair.section(u'=', 0, 0), pair.section(u'=', 1));
        return (text + u"</aliases>"_s).toUtf8();
    }
    static QString pairsOf(const QString &path)
    {
        QStringList pairs;
        for (const auto &pair : ortakit::readAliasFile(path).aliases)
            pairs.append(pair.command + u'=' + pair.alias);
        return pairs.join(u' ');
    }
    QString rows() const
    {
        QStringList pairs;
        for (int row = 0; row < table()->rowCount(); ++row)
            pairs.append(cell(row, 0) + u'=' + cell(row, 1));
        return pairs.join(u' ');
    }
    void showAliases(const QString &pairs)
    {
        host.writeFile(u"alias.xml"_s, fileWith(pairs));
        show();
    }
    void select(const QList<std::pair<int, int>> &cells)
    {
        table()->clearSelection();
        for (const auto &[row, column] : cells)
            table()->item(row, column)->setSelected(true);
    }
    void clickCell(int row, int column)
    {
        QTest::mouseClick(table()->viewport(), Qt::LeftButton, {},
                          table()->visualItemRect(table()->item(row, column)).center());
    }
    /// The editor that a double click opens.
    QLineEdit *editCell(int row, int column)
    {
        clickCell(row, column);
        QTest::mouseDClick(table()->viewport(), Qt::LeftButton, {},
                           table()->visualItemRect(table()->item(row, column)).center());
        return openEditor();
    }
    QLineEdit *openEditor() const
    {
        // One that has closed goes a moment later.
        for (auto *editor : table()->viewport()->findChildren<QLineEdit *>()) {
            if (editor->isVisible())
                return editor;
        }
        return nullptr;
    }
    void typeInto(int row, int column, const QString &text)
    {
        QLineEdit *editor = editCell(row, column);
        ASSERT_TRUE(editor);
        editor->selectAll();
        QTest::keyClicks(editor, text);
        QTest::keyClick(editor, Qt::Key_Return);
        settle();
    }
    /// Lets messages that come a moment later come.
    static void settle()
    {
        for (int i = 0; i < 5; ++i)
            QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QString aliasFile = host.path(u"alias.xml"_s);
};

TEST_F(EditAlias, EachShowingReadsTheHostsFile)
{
    showAliases(u"_LINE=L circle=c"_s);
    EXPECT_EQ(rows(), u"_LINE=L circle=c"_s);
    EXPECT_EQ(find<QLabel>("txAlias")->text(), aliasFile);
    EXPECT_EQ(table()->item(0, 0)->whatsThis(), u"LINE"_s);
    setCell(0, 1, u"LL"_s);
    click("ButtonCancel");
    EXPECT_EQ(pairsOf(aliasFile), u"_LINE=L circle=c"_s) << "cancelled";
    showWith(u"txalias=elsewhere\nlstalias=ARC^\n"_s);
    showAliases(u"ARC=A"_s);
    EXPECT_EQ(rows(), u"ARC=A"_s);
    EXPECT_EQ(find<QLabel>("txAlias")->text(), aliasFile);
}

TEST_F(EditAlias, FilesThatCannotBeReadAreSaidOverTheDialog)
{
    const struct
    {
        const char *name;
        QByteArray file;
        QString message;
        QString rows;
    } cases[] = {
        {"missing", {}, u"Error reading alias file."_s, {}},
        {"cut off", "<aliases><record command='LINE' alias='L'/><record", u"Premature end of document."_s, u"LINE=L"_s},
        {"text", "L LINE\n", u"Start tag expected."_s, {}},
    };
    for (const auto &row : cases) {
        QFile::remove(aliasFile);
        if (!row.file.isEmpty())
            host.writeFile(u"alias.xml"_s, row.file);
        ModalAnswers answers;
        answers.drive([this](QWidget *box) {
            EXPECT_TRUE(dialog->isVisible());
            box->close();
        });
        dialog->hide();
        dialog->show();
        settle();
        EXPECT_EQ(answers.shown(), QStringList{u"critical \"\" \"%1\" OK"_s.arg(row.message)}) << row.name;
        EXPECT_EQ(rows(), row.rows) << row.name;
    }
}

TEST_F(EditAlias, ConfirmingWritesWithoutAWord)
{
    showAliases(u"line=l ARC="_s);
    ModalAnswers answers;
    click("btnAdd");
    QTest::keyClicks(openEditor(), u"circle"_s);
    QTest::keyClick(openEditor(), Qt::Key_Tab);
    QTest::keyClicks(openEditor(), u"ci"_s);
    // The editor is still open.
    click("acceptButton");
    EXPECT_TRUE(isAccepted());
    EXPECT_EQ(answers.shown(), QStringList());
    EXPECT_EQ(pairsOf(aliasFile), u"CIRCLE=CI LINE=L"_s);
}

TEST_F(EditAlias, ConfirmingLeavesAFileThatTakesNothing)
{
    showAliases(u"LINE=L"_s);
    ASSERT_TRUE(QFile::remove(aliasFile));
    ASSERT_TRUE(QDir().mkpath(aliasFile));
    ModalAnswers answers;
    click("acceptButton");
    EXPECT_TRUE(isAccepted());
    EXPECT_EQ(answers.shown(), QStringList());
    EXPECT_TRUE(QFileInfo(aliasFile).isDir());
}

TEST_F(EditAlias, ConfirmingWaitsWhenTheOpenCellIsRefused)
{
    showAliases(u"LINE=L ARC=A"_s);
    editCell(1, 1);
    openEditor()->setText(u"l"_s);
    ModalAnswers answers;
    answers.press(QMessageBox::Ok);
    click("acceptButton");
    settle();
    EXPECT_EQ(answers.shown(), QStringList{usedMessage});
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(rows(), u"LINE=L ARC=A"_s);
}

TEST_F(EditAlias, KeysInACellBelongToTheCell)
{
    showAliases(u"LINE=L ARC=A"_s);
    typeInto(0, 1, u"LI"_s);
    EXPECT_EQ(cell(0, 1), u"LI"_s);
    EXPECT_TRUE(dialog->isVisible()) << "Enter";

    QTest::keyClick(editCell(0, 1), Qt::Key_Delete);
    QTest::keyClick(openEditor(), Qt::Key_Escape);
    settle();
    EXPECT_EQ(rows(), u"LINE=LI ARC=A"_s);
    EXPECT_TRUE(dialog->isVisible()) << "Escape";

    table()->setCurrentCell(1, 0);
    QTest::keyClick(table(), Qt::Key_F2);
    ASSERT_TRUE(openEditor());
    QTest::keyClick(openEditor(), Qt::Key_Escape);
    settle();
    ModalAnswers answers;
    answers.press(QMessageBox::Yes);
    QTest::keyClick(table(), Qt::Key_Delete);
    EXPECT_EQ(rows(), u"LINE=LI"_s);
}

TEST_F(EditAlias, AliasesOfOtherRowsAreRefused)
{
    const struct
    {
        const char *name;
        int clickedRow; ///< whose alias cell is clicked first; -1 for none
        int row;
        int column;
        QString text;
        QString after;
        bool refused;
    } cases[] = {
        {"free", 1, 1, 1, u"AR"_s, u"LINE=L ARC=AR MOVE="_s, false},
        {"used", 1, 1, 1, u"L"_s, u"LINE=L ARC=A MOVE="_s, true},
        {"used in another case", 1, 1, 1, u"l"_s, u"LINE=L ARC=A MOVE="_s, true},
        {"its own in another case", 1, 1, 1, u"a"_s, u"LINE=L ARC=a MOVE="_s, false},
        {"empty as another", 1, 1, 1, u""_s, u"LINE=L ARC=A MOVE="_s, true},
        {"a command that is an alias", 0, 1, 0, u"l"_s, u"LINE=L L=A MOVE="_s, true},
        {"a command that is the row's own alias", 0, 1, 0, u"a"_s, u"LINE=L a=A MOVE="_s, false},
        {"what was clicked comes back", 2, 1, 1, u"L"_s, u"LINE=L ARC= MOVE="_s, true},
    };
    for (const auto &row : cases) {
        showAliases(u"LINE=L ARC=A MOVE="_s);
        clickCell(row.clickedRow, 1);
        ModalAnswers answers;
        answers.press(QMessageBox::Ok);
        setCell(row.row, row.column, row.text);
        settle();
        EXPECT_EQ(answers.shown(), row.refused ? QStringList{usedMessage} : QStringList()) << row.name;
        EXPECT_EQ(rows(), row.after) << row.name;
    }
}

TEST_F(EditAlias, ACellReachedWithTheKeyboardGetsItsOwnTextBack)
{
    showAliases(u"LINE=L ARC=A"_s);
    clickCell(1, 1);
    ModalAnswers answers;
    answers.press(QMessageBox::Ok);
    click("btnAdd");
    QTest::keyClicks(openEditor(), u"MOVE"_s);
    QTest::keyClick(openEditor(), Qt::Key_Tab);
    QTest::keyClicks(openEditor(), u"l"_s);
    QTest::keyClick(openEditor(), Qt::Key_Return);
    settle();
    EXPECT_EQ(answers.shown(), QStringList{usedMessage});
    EXPECT_EQ(rows(), u"MOVE= LINE=L ARC=A"_s);
}

TEST_F(EditAlias, AddingAsksNothingAndEditsTheCommand)
{
    showAliases(u"LINE=L"_s);
    ModalAnswers answers;
    click("btnAdd");
    click("btnAdd");
    settle();
    EXPECT_EQ(answers.shown(), QStringList());
    EXPECT_EQ(rows(), u"= = LINE=L"_s);
    ASSERT_TRUE(openEditor());
    EXPECT_EQ(table()->currentRow(), 0);
    EXPECT_EQ(table()->currentColumn(), 0);
    EXPECT_EQ(table()->selectedItems(), QList{table()->item(0, 0)});
}

TEST_F(EditAlias, RemovingAsksForEachSelectedCell)
{
    const auto question = [](const char *command) {
        return u"question \"\" \"Are you sure you want to remove this alias for %1?\" Yes/No"_s.arg(
            QString::fromLatin1(command));
    };
    const auto yes = QMessageBox::Yes;
    const auto no = QMessageBox::No;
    const struct
    {
        const char *name;
        QList<std::pair<int, int>> selected;
        QList<QMessageBox::StandardButton> answers;
        QStringList shown;
        QString after;
    } cases[] = {
        {"nothing",
         {},
         {QMessageBox::Ok},
         {u"information \"\" \"Select the rows of table for remove.\" OK"_s},
         u"A=1 B=2 C=3 D=4"_s},
        {"one", {{1, 1}}, {yes}, {question("B")}, u"A=1 C=3 D=4"_s},
        {"one kept", {{1, 1}}, {no}, {question("B")}, u"A=1 B=2 C=3 D=4"_s},
        {"two", {{0, 0}, {1, 0}}, {yes, yes}, {question("A"), question("B")}, u"C=3 D=4"_s},
        {"two and all their cells",
         {{0, 0}, {0, 1}, {1, 0}, {1, 1}},
         {yes, yes, yes, yes},
         {question("A"), question("A"), question("B"), question("B")},
         u"C=3 D=4"_s},
        {"second thoughts",
         {{0, 0}, {0, 1}, {3, 0}, {3, 1}},
         {yes, no, no, yes},
         {question("A"), question("A"), question("D"), question("D")},
         u"B=2 C=3"_s},
    };
    for (const auto &row : cases) {
        showAliases(u"A=1 B=2 C=3 D=4"_s);
        select(row.selected);
        ModalAnswers answers;
        for (const auto button : row.answers)
            answers.press(button);
        click("btnDel");
        EXPECT_EQ(answers.shown(), row.shown) << row.name;
        EXPECT_EQ(rows(), row.after) << row.name;
    }
}

TEST_F(EditAlias, CleaningEmptiesTheTableAndNotTheFile)
{
    showAliases(u"LINE=L ARC=A"_s);
    ModalAnswers answers;
    answers.press(QMessageBox::No);
    click("btnClean");
    EXPECT_EQ(table()->rowCount(), 2);
    answers.press(QMessageBox::Yes);
    click("btnClean");
    EXPECT_EQ(table()->rowCount(), 0);
    EXPECT_EQ(answers.shown(),
              QStringList(2, u"question \"\" \"Are you sure you want to delete all alias?\" Yes/No"_s));
    EXPECT_EQ(pairsOf(aliasFile), u"LINE=L ARC=A"_s);
    click("acceptButton");
    EXPECT_EQ(pairsOf(aliasFile), QString());
}

TEST_F(EditAlias, SavingSaysWhatCameOfIt)
{
    showAliases(u"LINE=L"_s);
    setCell(0, 1, u"li"_s);
    ModalAnswers answers;
    answers.press(QMessageBox::Ok);
    click("btnSave");
    EXPECT_EQ(pairsOf(aliasFile), u"LINE=LI"_s);
    ASSERT_TRUE(QFile::remove(aliasFile));
    ASSERT_TRUE(QDir().mkpath(aliasFile));
    answers.press(QMessageBox::Ok);
    click("btnSave");
    EXPECT_EQ(answers.shown(), (QStringList{u"information \"Edit Alias\" \"The alias file has been saved.\" OK"_s,
                                            u"critical \"\" \"The alias file could not be saved.\" OK"_s}));
    EXPECT_EQ(rows(), u"LINE=li"_s);
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(EditAlias, AfterAnExportOkWritesTheExportedFile)
{
    showAliases(u"LINE=L"_s);
    const QString exported = host.path(u"mine.xml"_s);
    ModalAnswers answers;
    answers.choose({});
    click("btnExport");
    EXPECT_EQ(find<QLabel>("txAlias")->text(), aliasFile) << "cancelled";
    answers.choose(exported);
    answers.press(QMessageBox::Ok);
    click("btnExport");
    EXPECT_EQ(answers.shown().value(0), u"choose \"Save As\" \"%1\" \"Alias files (*.xml)|All files (*.*)\""_s.arg(
                                            QDir(host.path(u"Ortakit"_s)).absolutePath()));
    EXPECT_EQ(answers.shown().value(2), u"information \"Edit Alias\" \"The alias file has been exported.\" OK"_s);
    EXPECT_EQ(find<QLabel>("txAlias")->text(), exported);
    EXPECT_EQ(pairsOf(exported), u"LINE=L"_s);
    setCell(0, 1, u"LI"_s);
    click("acceptButton");
    EXPECT_EQ(pairsOf(exported), u"LINE=LI"_s);
    EXPECT_EQ(pairsOf(aliasFile), u"LINE=L"_s);
    show();
    EXPECT_EQ(find<QLabel>("txAlias")->text(), aliasFile);
    EXPECT_EQ(rows(), u"LINE=L"_s);
}

TEST_F(EditAlias, AnExportThatFailsIsSaid)
{
    showAliases(u"LINE=L"_s);
    ModalAnswers answers;
    answers.choose(u"/dev/full"_s);
    answers.press(QMessageBox::Yes);
    answers.press(QMessageBox::Ok);
    click("btnExport");
    EXPECT_EQ(answers.shown().last(), u"critical \"\" \"The alias file could not be exported.\" OK"_s);
}

TEST_F(EditAlias, ImportingReplacesTheTableOrNothing)
{
    const struct
    {
        const char *name;
        QByteArray file;
        QStringList messages;
        QString after;
    } cases[] = {
        {"aliases", fileWith(u"Arc=a MOVE=M"_s), {}, u"Arc=a MOVE=M"_s},
        {"list", "L LINE\n", {u"Start tag expected."_s, u"The alias file could not be imported."_s}, u"LINE=L"_s},
        {"cut off",
         "<a><record command='ARC' alias='A'/>",
         {u"Premature end of document."_s, u"The alias file could not be imported."_s},
         u"LINE=L"_s},
    };
    for (const auto &row : cases) {
        showAliases(u"LINE=L"_s);
        ModalAnswers answers;
        answers.choose(host.writeFile(u"import.txt"_s, row.file));
        QStringList shown = {
            u"choose \"Select the file to import\" \"%1\" \"Alias files (*.txt)|All files (*.*)\""_s.arg(
                QDir(host.path(u"Ortakit"_s)).absolutePath())};
        for (const QString &message : row.messages) {
            answers.press(QMessageBox::Ok);
            shown.append(u"critical \"\" \"%1\" OK"_s.arg(message));
        }
        click("btnImport");
        EXPECT_EQ(answers.shown(), shown) << row.name;
        EXPECT_EQ(rows(), row.after) << row.name;
        EXPECT_EQ(find<QLabel>("txAlias")->text(), aliasFile) << row.name;
        EXPECT_EQ(pairsOf(aliasFile), u"LINE=L"_s) << row.name;
    }
}

TEST_F(EditAlias, HeadingsSort)
{
    showAliases(u"MOVE=A ARC=M LINE=L"_s);
    for (const auto &[column, sorted] :
         {std::pair(0, u"ARC=M LINE=L MOVE=A"_s), {1, u"MOVE=A LINE=L ARC=M"_s}, {1, u"MOVE=A LINE=L ARC=M"_s}}) {
        QHeaderView *header = table()->horizontalHeader();
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                          {header->sectionViewportPosition(column) + 20, header->height() / 2});
        EXPECT_EQ(rows(), sorted) << column;
    }
}

TEST_F(EditAlias, PrintsAListInUpperCase)
{
    showAliases(u"_line=l CIRCLE=ci"_s);
    const QString file = host.path(u"list.pdf"_s);
    ModalAnswers answers;
    answers.drive(printingTo(file));
    click("btnPrint");
    EXPECT_EQ(pdfLines(file), (QStringList{u"_LINE .... L"_s, u"CIRCLE ... CI"_s}));
}

TEST_F(EditAlias, ManyAliasesAreLoadedCheckedSortedAndSaved)
{
    QStringList pairs;
    for (int i = 0; i < 100'000; ++i)
        pairs.append(u"COMMAND%1=C%1"_s.arg(i));
    host.writeFile(u"alias.xml"_s, fileWith(pairs.join(u' ')));
    QElapsedTimer timer;
    timer.start();
    show();
    setCell(50'000, 1, u"new"_s);
    table()->selectAll();
    table()->horizontalHeader()->sectionClicked(1);
    click("acceptButton");
    EXPECT_LT(timer.elapsed(), 20'000);
    EXPECT_EQ(ortakit::readAliasFile(aliasFile).aliases.size(), 100'000);
    RecordProperty("milliseconds", int(timer.elapsed()));
}

} // namespace
