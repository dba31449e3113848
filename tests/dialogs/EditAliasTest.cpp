#include "dialogs/editalias/Dlg_QT_EditAlias.h"
#include "tests/dialogs/DialogTest.h"
#include "tests/support/PdfText.h"

namespace {

const QString aliasInUse = u"critical \"\" \"This alias already begin used for other command.\" OK"_s;

class EditAlias : public DialogTest<Dlg_QT_EditAlias>
{
protected:
    QTableWidget *table() const { return find<QTableWidget>("lstAlias"); }
    void setCell(int row, int column, const QString &text) { table()->item(row, column)->setText(text); }
    /// "LINE=L ARC=A", as all the lists of pairs below.
    QString rows() const { return tableText("lstAlias").replace(u'|', u'='); }
    QString shownFile() const { return find<QLabel>("txAlias")->text(); }

    static QByteArray fileWith(const QString &pairs)
    {
        QString text = u"<aliases>"_s;
        for (const QString &pair : pairs.split(u' '))
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
    void showAliases(const QString &pairs)
    {
        host.writeFile(u"alias.xml"_s, fileWith(pairs));
        show();
    }
    QPoint placeOf(int row, int column) const { return table()->visualItemRect(table()->item(row, column)).center(); }
    void clickAlias(int row) { QTest::mouseClick(table()->viewport(), Qt::LeftButton, {}, placeOf(row, 1)); }
    /// Opens the editor of a cell with a double click.
    QLineEdit *editAlias(int row)
    {
        clickAlias(row);
        QTest::mouseDClick(table()->viewport(), Qt::LeftButton, {}, placeOf(row, 1));
        return openEditor();
    }
    QLineEdit *openEditor() const
    {
        settle(); // one that has closed goes a moment later
        return table()->viewport()->findChild<QLineEdit *>();
    }
    /// Types into the open editor and leaves it with `key`; messages that come a moment later come.
    void type(const QString &text, Qt::Key key)
    {
        ASSERT_TRUE(openEditor());
        QTest::keyClicks(openEditor(), text);
        QTest::keyClick(openEditor(), key);
        settle();
    }
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
    EXPECT_EQ(table()->item(0, 0)->whatsThis(), u"LINE"_s);
    setCell(0, 1, u"LL"_s);
    click("ButtonCancel");
    EXPECT_EQ(pairsOf(aliasFile), u"_LINE=L circle=c"_s) << "cancelled";
    showWith(u"txalias=elsewhere\nlstalias=ARC^\n"_s);
    EXPECT_EQ(rows(), u"_LINE=L circle=c"_s);
    EXPECT_EQ(shownFile(), aliasFile);
}

TEST_F(EditAlias, WhatCouldNotBeReadWholeIsSaidAndNotWrittenOverUnasked)
{
    const QByteArray damaged = "<aliases>\n<record command='LINE' alias='L'/><record";
    host.writeFile(u"alias.xml"_s, damaged);
    ModalAnswers reading;
    reading.drive([this](QWidget *box) {
        EXPECT_TRUE(dialog->isVisible());
        box->close();
    });
    dialog->show();
    settle();
    EXPECT_TRUE(reading.shown().value(0).contains(u"Premature end of document."_s));
    EXPECT_EQ(rows(), u"LINE=L"_s) << "what could be read";
    for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
        EXPECT_TRUE(shownBy("acceptButton", {answer})
                        .value(0)
                        .contains(u"could not be read whole (line 2: Premature end of document.)"_s));
        EXPECT_EQ(dialog->isVisible(), answer == QMessageBox::No);
        EXPECT_EQ(FakeHost::readFile(answer == QMessageBox::No ? aliasFile : aliasFile + u".kept"_s), damaged);
    }
    EXPECT_EQ(pairsOf(aliasFile), u"LINE=L"_s);
}

TEST_F(EditAlias, ConfirmingWritesWhatIsBeingTyped)
{
    showAliases(u"line=l ARC="_s);
    ModalAnswers answers;
    click("btnAdd");
    click("btnAdd");
    EXPECT_EQ(rows(), u"= = line=l ARC="_s) << "two empty aliases at once are no clash";
    type(u"circle"_s, Qt::Key_Tab);
    QTest::keyClicks(openEditor(), u"ci"_s);
    click("acceptButton");
    EXPECT_TRUE(isAccepted());
    EXPECT_EQ(answers.shown(), QStringList());
    EXPECT_EQ(pairsOf(aliasFile), u"CIRCLE=CI LINE=L"_s);
}

TEST_F(EditAlias, ConfirmingWaitsWhenTheOpenCellIsRefused)
{
    showAliases(u"LINE=L ARC=A"_s);
    editAlias(1)->setText(u"l"_s);
    const ModalAnswers answers;
    click("acceptButton");
    settle();
    EXPECT_EQ(answers.shown(), QStringList{aliasInUse});
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(rows(), u"LINE=L ARC=A"_s);
}

TEST_F(EditAlias, KeysInACellBelongToTheCell)
{
    showAliases(u"LINE=L ARC=A"_s);
    editAlias(0)->selectAll();
    type(u"LI"_s, Qt::Key_Return);
    EXPECT_TRUE(dialog->isVisible()) << "Enter";
    QTest::keyClick(editAlias(0), Qt::Key_Delete);
    type({}, Qt::Key_Escape);
    EXPECT_TRUE(dialog->isVisible()) << "Escape";
    EXPECT_EQ(rows(), u"LINE=LI ARC=A"_s);

    table()->setCurrentCell(1, 0);
    QTest::keyClick(table(), Qt::Key_F2);
    type({}, Qt::Key_Escape);
    ModalAnswers answers;
    answers.press(QMessageBox::Yes);
    QTest::keyClick(table(), Qt::Key_Delete);
    EXPECT_EQ(rows(), u"LINE=LI"_s);
}

TEST_F(EditAlias, AliasesOfOtherRowsAreRefused)
{
    // What goes into this column of ARC=A, after the click on the alias of that row; refused where it is in use.
    const std::tuple<const char *, int, int, QString, QString, bool> cases[] = {
        {"free", 1, 1, u"AR"_s, u"LINE=L ARC=AR MOVE="_s, false},
        {"used in another case", 1, 1, u"l"_s, u"LINE=L ARC=A MOVE="_s, true},
        {"its own in another case", 1, 1, u"a"_s, u"LINE=L ARC=a MOVE="_s, false},
        {"empty as another", 1, 1, u""_s, u"LINE=L ARC=A MOVE="_s, true},
        {"a command that is an alias", 0, 0, u"l"_s, u"LINE=L L=A MOVE="_s, true},
        {"a command that is the row's own alias", 0, 0, u"a"_s, u"LINE=L a=A MOVE="_s, false},
        {"what was clicked comes back", 2, 1, u"L"_s, u"LINE=L ARC= MOVE="_s, true},
    };
    for (const auto &[what, clicked, column, entered, after, refused] : cases) {
        showAliases(u"LINE=L ARC=A MOVE="_s);
        clickAlias(clicked);
        const ModalAnswers answers;
        setCell(1, column, entered);
        settle();
        EXPECT_EQ(answers.shown(), refused ? QStringList{aliasInUse} : QStringList()) << what;
        EXPECT_EQ(rows(), after) << what;
    }
}

TEST_F(EditAlias, ACellReachedWithTheKeyboardGetsItsOwnTextBack)
{
    showAliases(u"LINE=L ARC=A"_s);
    clickAlias(1);
    ModalAnswers answers;
    click("btnAdd");
    type(u"MOVE"_s, Qt::Key_Tab);
    type(u"l"_s, Qt::Key_Return);
    EXPECT_EQ(answers.shown(), QStringList{aliasInUse});
    EXPECT_EQ(rows(), u"MOVE= LINE=L ARC=A"_s);
}

TEST_F(EditAlias, RemovingAsksForEachSelectedCell)
{
    const QString question = u"question \"\" \"Are you sure you want to remove this alias for %1?\" Yes/No"_s;
    const auto yes = QMessageBox::Yes;
    const auto no = QMessageBox::No;
    const std::tuple<QList<QPoint>, QList<QMessageBox::StandardButton>, QString, QString> cases[] = {
        {{{1, 1}}, {no}, u"B"_s, u"A=1 B=2 C=3 D=4"_s},
        {{{0, 0}, {0, 1}}, {yes, yes}, u"AB"_s, u"C=3 D=4"_s},
        // Both cells of a row: the second answer counts as well, and the rows below have moved up by then.
        {{{0, 0}, {1, 0}, {0, 3}, {1, 3}}, {yes, yes, no, yes}, u"AADD"_s, u"B=2 C=3"_s},
    };
    for (const auto &[selected, answers, asked, after] : cases) {
        showAliases(u"A=1 B=2 C=3 D=4"_s);
        table()->clearSelection();
        for (const QPoint &cell : selected)
            table()->item(cell.y(), cell.x())->setSelected(true);
        QStringList shown;
        for (const QChar command : asked)
            shown.append(question.arg(command));
        EXPECT_EQ(shownBy("btnDel", answers), shown);
        EXPECT_EQ(rows(), after);
    }
    table()->clearSelection();
    EXPECT_EQ(shownBy("btnDel"), QStringList{u"information \"\" \"Select the rows of table for remove.\" OK"_s});
}

TEST_F(EditAlias, CleaningEmptiesTheTableAndNotTheFile)
{
    showAliases(u"LINE=L ARC=A"_s);
    for (const auto &answers : {QList{QMessageBox::No}, QList<QMessageBox::StandardButton>()}) // or closed
        EXPECT_EQ(shownBy("btnClean", answers).size(), 1);
    EXPECT_EQ(table()->rowCount(), 2);
    shownBy("btnClean", {QMessageBox::Yes});
    EXPECT_EQ(rows(), QString());
    EXPECT_EQ(pairsOf(aliasFile), u"LINE=L ARC=A"_s);
    click("acceptButton");
    EXPECT_EQ(pairsOf(aliasFile), QString());
}

TEST_F(EditAlias, SavingSaysWhatCameOfItAndConfirmingDoesNot)
{
    showAliases(u"LINE=L"_s);
    setCell(0, 1, u"li"_s);
    EXPECT_TRUE(shownBy("btnSave").value(0).contains(u"has been saved"_s));
    EXPECT_EQ(pairsOf(aliasFile), u"LINE=LI"_s);
    ASSERT_TRUE(QFile::remove(aliasFile));
    ASSERT_TRUE(QDir().mkpath(aliasFile));
    EXPECT_EQ(shownBy("btnSave"), QStringList{u"critical \"\" \"The alias file could not be saved.\" OK"_s});
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(shownBy("acceptButton"), QStringList());
    EXPECT_TRUE(isAccepted());
}

TEST_F(EditAlias, AfterAnExportOkWritesTheExportedFile)
{
    showAliases(u"LINE=L"_s);
    const QString exported = host.path(u"mine.xml"_s);
    shownChoosing("btnExport", {});
    EXPECT_EQ(shownFile(), aliasFile) << "cancelled";
    const QStringList shown = shownChoosing("btnExport", exported);
    EXPECT_TRUE(shown[0].startsWith(u"choose \"Save As\" \"%1\""_s.arg(QDir(host.path(u"Ortakit"_s)).absolutePath())));
    EXPECT_TRUE(shown.value(1).contains(u"has been exported"_s));
    EXPECT_EQ(shownFile(), exported);
    EXPECT_EQ(pairsOf(exported), u"LINE=L"_s);
    setCell(0, 1, u"LI"_s);
    click("acceptButton");
    EXPECT_EQ(pairsOf(exported), u"LINE=LI"_s);
    show();
    EXPECT_EQ(shownFile() + rows(), aliasFile + u"LINE=L"_s);
    EXPECT_EQ(shownChoosing("btnExport", u"/dev/full"_s, {QMessageBox::Yes, QMessageBox::Ok}).last(),
              u"critical \"\" \"The alias file could not be exported.\" OK"_s);
    EXPECT_EQ(shownBy("acceptButton", {QMessageBox::Ok}),
              QStringList{u"critical \"\" \"The alias file could not be saved.\" OK"_s});
    EXPECT_TRUE(isAccepted());
}

TEST_F(EditAlias, ImportingReplacesTheTableOrNothing)
{
    showAliases(u"LINE=L"_s);
    const QString torn = host.writeFile(u"torn.txt"_s, "<a><record command='ARC' alias='A'/>");
    EXPECT_EQ(shownChoosing("btnImport", torn).mid(1),
              (QStringList{u"critical \"\" \"Premature end of document.\" OK"_s,
                           u"critical \"\" \"The alias file could not be imported.\" OK"_s}));
    EXPECT_EQ(rows(), u"LINE=L"_s);
    EXPECT_EQ(shownChoosing("btnImport", host.writeFile(u"good.txt"_s, fileWith(u"Arc=a MOVE=M"_s))).size(), 1);
    EXPECT_EQ(rows(), u"Arc=a MOVE=M"_s);
    EXPECT_EQ(shownFile(), aliasFile);
    EXPECT_EQ(pairsOf(aliasFile), u"LINE=L"_s);
}

TEST_F(EditAlias, HeadingsSort)
{
    showAliases(u"MOVE=A ARC=M line=L"_s);
    table()->setCurrentCell(1, 1);
    clickHeader("lstAlias", 0);
    EXPECT_EQ(rows(), u"ARC=M line=L MOVE=A"_s);
    EXPECT_EQ(table()->selectedItems(), QList<QTableWidgetItem *>{table()->currentItem()});
    clickHeader("lstAlias", 1);
    EXPECT_EQ(rows(), u"MOVE=A line=L ARC=M"_s);
}

TEST_F(EditAlias, PrintsAListInUpperCase)
{
    // More than a page takes.
    showAliases(u"_line=l"_s + u" CIRCLE=ci"_s.repeated(150));
    const QString file = host.path(u"list.pdf"_s);
    ModalAnswers user;
    user.drive([](QWidget *shown) { shown->close(); });
    click("btnPrint");
    EXPECT_FALSE(QFile::exists(file));
    user.drive(printingTo(file));
    click("btnPrint");
    EXPECT_EQ(pdfLines(file), QStringList{u"_LINE .... L"_s} + QStringList(150, u"CIRCLE ... CI"_s));
    EXPECT_EQ(user.shown().size(), 2) << "no message";
    user.drive(printingTo(u"/dev/full"_s));
    user.press(QMessageBox::Yes); // write over what is there
    user.press(QMessageBox::Ok);
    click("btnPrint");
    EXPECT_EQ(user.shown().value(4), u"critical \"\" \"The document could not be printed.\" OK"_s);
}

} // namespace
