#include "dialogs/lispexplorer/Dlg_QT_LispExplorer.h"
#include "tests/dialogs/DialogTest.h"
#include "tests/support/Texts.h"

#include <QListWidget>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QStackedWidget>

namespace {

QStringList itemTexts(const QListWidget *list)
{
    QStringList texts;
    for (int row = 0; row < list->count(); ++row)
        texts.append(list->item(row)->text());
    return texts;
}

class LispExplorer : public DialogTest<Dlg_QT_LispExplorer>
{
protected:
    LispExplorer() { QDir().mkpath(folder); }

    QListWidget *files() const { return find<QListWidget>("List_files"); }
    QListWidget *functions() const { return find<QListWidget>("List_functions"); }
    QPlainTextEdit *viewer() const { return find<QPlainTextEdit>("tx_EditLisp"); }
    QTableWidget *table() const { return find<QTableWidget>("tableFunctions"); }
    QWidget *page() const { return find<QStackedWidget>("stack1")->currentWidget(); }
    void write(const QString &name, const QByteArray &content) { host.writeFile(u"lisp/"_s + name, content); }
    void scan(const QString &path) { enterText("TxDirectory", path); }
    void selectFile(const QString &name)
    {
        const QList<QListWidgetItem *> found = files()->findItems(name, Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1) << name.toStdString();
        files()->setCurrentItem(found.front());
    }
    /// Shows the dialog with this one file open.
    void open(const QByteArray &source)
    {
        write(u"plan.lsp"_s, source);
        show();
        scan(folder);
        selectFile(u"plan.lsp"_s);
    }

    const QString folder = host.path(u"lisp"_s);
};

TEST_F(LispExplorer, ListsLispFilesByWhatStandsBehindTheLastDot)
{
    const QStringList expected = {u"B.LSP"_s,         u"c.d.Lsp"_s,   u"lsp"_s,
                                  u"größe maß.lsp"_s, u"!;'\".lsp"_s, u"new\nline.lsp"_s};
    for (const QString &name : expected + QStringList{u"a.lsp.bak"_s, u"lsp.txt"_s, u"xlsp"_s, u"a.lsp."_s})
        write(name, "(defun a () 1)");
    QDir(folder).mkdir(u"folder.lsp"_s);
    show();
    scan(folder);
    EXPECT_EQ(files()->count(), expected.size());
    for (const QString &name : expected) {
        selectFile(name);
        EXPECT_EQ(itemTexts(functions()), QStringList{u"a"_s}) << name.toStdString();
    }
}

TEST_F(LispExplorer, ScanningStartsAnew)
{
    open("(defun a () 1)");
    functions()->setCurrentRow(0);
    ASSERT_TRUE(isEnabled("Bt_Load"));
    for (const QString &path : {QString(), folder + u"/missing"_s, folder + u"/plan.lsp"_s, folder}) {
        scan(path);
        EXPECT_EQ(files()->count(), path == folder ? 1 : 0) << path.toStdString();
        EXPECT_EQ(functions()->count(), 0);
        EXPECT_EQ(viewer()->toPlainText(), QString());
        EXPECT_EQ(enabledOf(u"Bt_Load txSearch"_s), path == folder ? u"Bt_Load"_s : QString());
    }
    EXPECT_TRUE(dialog->isVisible()) << "Enter in the folder field does nothing else";
    setText("TxDirectory", u"/somewhere/else"_s);
    const ModalAnswers answers;
    selectFile(u"plan.lsp"_s);
    EXPECT_EQ(itemTexts(functions()), QStringList{u"a"_s}) << "files are those of the scanned folder";
}

TEST_F(LispExplorer, ShowsThePartThatIsChosen)
{
    open("; adds\n\n(defun add (a b)\n\t(+ a b)\n)\n(defun nothing ())");
    EXPECT_EQ(itemTexts(functions()), (QStringList{u"add"_s, u"nothing"_s}));
    functions()->setCurrentRow(0);
    auto *format = find<QComboBox>("Cb_Format");
    EXPECT_EQ(format->currentText(), u"Both"_s);
    EXPECT_EQ(viewer()->toPlainText(), u"; adds\n\n(defun add (a b)\n    (+ a b)\n)"_s);
    format->setCurrentText(u"Header Only"_s);
    EXPECT_EQ(viewer()->toPlainText(), u"; adds\n\n(defun add (a b)"_s);
    format->setCurrentText(u"Function Only"_s);
    EXPECT_EQ(viewer()->toPlainText(), u"(defun add (a b)\n    (+ a b)\n)"_s);
    functions()->setCurrentRow(1);
    EXPECT_EQ(viewer()->toPlainText(), u"(defun nothing ())"_s);
}

TEST_F(LispExplorer, WhatNobodyReadsIsCutOffAndSaysSo)
{
    open("(defun wide () " + QByteArray("(a b) ").repeated(100'000) + ")\n(defun long ()" +
         QByteArray("\n").repeated(100'009) + ")");
    functions()->setCurrentRow(0);
    EXPECT_EQ(viewer()->toPlainText().size(), 10'001);
    EXPECT_TRUE(viewer()->toPlainText().endsWith(u'\u2026'));
    functions()->setCurrentRow(1);
    EXPECT_EQ(viewer()->blockCount(), 100'001);
    EXPECT_TRUE(viewer()->toPlainText().endsWith(u"\n; 10 more lines"_s));
}

TEST_F(LispExplorer, AFileThatCannotBeReadIsSaidAndLeavesNothing)
{
    write(u"gone.lsp"_s, "(defun b () 1)");
    open("(defun a () 1)");
    functions()->setCurrentRow(0);
    QFile::remove(folder + u"/gone.lsp"_s);
    ModalAnswers answers;
    selectFile(u"gone.lsp"_s);
    EXPECT_EQ(answers.shown(), QStringList{u"information \"Error\" \"No such file or directory\" OK"_s});
    EXPECT_EQ(functions()->count(), 0);
    EXPECT_EQ(viewer()->toPlainText(), QString());
}

TEST_F(LispExplorer, BrowsingStartsAtTheHostsFolderAndScans)
{
    write(u"plan.lsp"_s, {});
    show();
    EXPECT_TRUE(shownChoosing("bt_Directory", folder)
                    .value(0)
                    .startsWith(u"choose \"Specify a folder for lisp files\" \"%1\""_s.arg(QFileInfo(folder).path())));
    EXPECT_EQ(text("TxDirectory"), folder);
    EXPECT_EQ(itemTexts(files()), QStringList{u"plan.lsp"_s});
}

TEST_F(LispExplorer, EnterSearchesForwardAndWraps)
{
    open("(defun a ()\n (Car b)\n (car c))");
    EXPECT_FALSE(isEnabled("txSearch"));
    functions()->setCurrentRow(0);
    EXPECT_EQ(enabledOf(u"txSearch bt_Search"_s), u"txSearch"_s);
    for (const int line : {1, 2, 1}) {
        enterText("txSearch", u"CAR"_s);
        EXPECT_EQ(viewer()->textCursor().selectedText().toLower(), u"car"_s);
        EXPECT_EQ(viewer()->textCursor().blockNumber(), line);
    }
    EXPECT_TRUE(dialog->isVisible());
    setText("txSearch", u"c.r"_s);
    EXPECT_TRUE(shownBy("bt_Search").value(0).contains(u"No matches found for 'c.r'"_s));
    EXPECT_TRUE(viewer()->textCursor().atStart());
}

TEST_F(LispExplorer, TypingASearchTextMovesNothing)
{
    open("(defun a ()\n" + QByteArray("(setq a 1)\n").repeated(500) + ")\n(defun b ())");
    functions()->setCurrentRow(0);
    viewer()->verticalScrollBar()->setValue(200);
    find("txSearch")->setFocus();
    QTest::keyClicks(find("txSearch"), u"setq"_s);
    EXPECT_EQ(viewer()->verticalScrollBar()->value(), 200);
    EXPECT_EQ(functions()->currentRow(), 0);
    functions()->setCurrentRow(1);
    EXPECT_EQ(viewer()->verticalScrollBar()->value(), 0);
}

TEST_F(LispExplorer, LoadsTheSelectedFile)
{
    const QStringList names = {u"plan.lsp"_s, u"PLAN.LSP"_s, u"lsp"_s};
    for (const QString &name : names)
        write(name, {});
    show();
    scan(folder);
    for (const QString &name : names) {
        selectFile(name);
        EXPECT_TRUE(shownBy("Bt_Load").value(0).contains(u"The file has been loaded."_s));
    }
    files()->clearSelection();
    EXPECT_EQ(shownBy("Bt_Load"), QStringList()) << "nothing selected";
    EXPECT_EQ(host.document().lisp().loadedFiles(),
              (QStringList{folder + u"/plan.lsp"_s, folder + u"/PLAN.LSP"_s, folder + u"/lsp.lsp"_s}));
}

const QByteArray symbolCatalogue = testText("dialogs/lispexplorer/catalogue");

TEST_F(LispExplorer, ShowsAndDumpsWhatTheCatalogueSays)
{
    dialog->readCatalogue(host.writeFile(u"catalogue"_s, symbolCatalogue));
    dialog->beginWithLoaded();
    show();
    EXPECT_EQ(page()->objectName(), u"page_2"_s);
    const std::tuple<const char *, QString, QString> kinds[] = {
        {"isVariables", u"Value"_s, u"pi|REAL|3.14 title|STR|Ground floor"_s},
        {"isFunctions", u"Type"_s, u"car|SUBR|Built in short||"_s},
        {"isCommands", u"Type"_s, u"C:B|USUBR|Lisp C:A|USUBR|Lisp"_s},
    };
    for (const auto &[button, lastHeader, rows] : kinds) {
        click(button);
        EXPECT_EQ(tableText("tableFunctions"), rows) << button;
        EXPECT_EQ(table()->horizontalHeaderItem(2)->text(), lastHeader) << button;
    }
    clickHeader("tableFunctions");
    EXPECT_EQ(tableText("tableFunctions"), u"C:A|USUBR|Lisp C:B|USUBR|Lisp"_s);

    ModalAnswers answers;
    dialog->readCatalogue(host.path(u"missing"_s));
    EXPECT_TRUE(answers.shown().value(0).contains(u"No such file or directory"_s));
    click("isVariables");
    EXPECT_EQ(table()->rowCount(), 2) << "the symbols stay";

    const QString dump = host.path(u"all.dmp"_s);
    EXPECT_EQ(shownChoosing("btnExport", host.path(u"missing/all.dmp"_s)).size(), 1) << "nobody is told";
    shownChoosing("btnExport", dump);
    EXPECT_TRUE(FakeHost::readFile(dump).startsWith(";(setq C:B <b>)\n;(setq C:A <a>)\n"));
}

TEST_F(LispExplorer, ShownAgainItReadsTheFolderAnewOnThePageThatWasLeft)
{
    open("(defun a () 1)");
    functions()->setCurrentRow(0);
    setText("txSearch", u"a"_s);
    write(u"new.lsp"_s, {});
    show();
    EXPECT_EQ(files()->count(), 2);
    EXPECT_EQ(text("txSearch"), QString());
    EXPECT_EQ(enabledOf(u"Bt_Load txSearch"_s), u"Bt_Load"_s);
    EXPECT_EQ(page()->objectName(), u"page"_s);
    EXPECT_EQ(focusName(), u"TxDirectory"_s);

    click("isKora");
    dialog->readCatalogue(host.writeFile(u"catalogue"_s, symbolCatalogue));
    show();
    EXPECT_EQ(page()->objectName(), u"page_2"_s);
    EXPECT_EQ(table()->rowCount(), 2);
    click("isUser");
    EXPECT_EQ(page()->objectName(), u"page"_s);
}

TEST_F(LispExplorer, EnterPressesOnlyTheFocusedButton)
{
    write(u"plan.lsp"_s, "(defun a () 1)");
    show();
    scan(folder);
    for (const char *name : {"List_files", "List_functions", "tx_EditLisp", "TxDirectory"}) {
        find(name)->setFocus();
        EXPECT_EQ(files()->selectedItems().size(), 1) << "opened by the focus";
        QTest::keyClick(find(name), Qt::Key_Enter);
        EXPECT_TRUE(dialog->isVisible()) << name;
    }
    ModalAnswers answers;
    answers.choose({});
    find("bt_Directory")->setFocus();
    QTest::keyClick(find("bt_Directory"), Qt::Key_Return);
    EXPECT_EQ(answers.shown().size(), 1);
}

} // namespace
