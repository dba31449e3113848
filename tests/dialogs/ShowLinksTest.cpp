#include "dialogs/showlinks/Dlg_QT_ShowLinks.h"
#include "state/tables/TableSelection.h"
#include "tests/dialogs/DialogTest.h"

#include <QDesktopServices>
#include <QScrollBar>
#include <QUrl>

namespace {

/// Takes the URLs of some schemes in place of the desktop.
class Desktop : public QObject
{
    Q_OBJECT

public:
    Desktop()
    {
        for (const QString &scheme : schemes)
            QDesktopServices::setUrlHandler(scheme, this, "open");
    }
    ~Desktop() override
    {
        for (const QString &scheme : schemes)
            QDesktopServices::unsetUrlHandler(scheme);
    }

    QStringList opened;

public slots:
    void open(const QUrl &url) { opened.append(url.toString()); }

private:
    const QStringList schemes{u"file"_s, u"http"_s, u"https"_s, u"news"_s};
};

const QByteArray threeLinks = "2F^http://b.org^LINE^Model\n30^http://A.org^TEXT^Model\n31^plan=1.pdf^LINE^Layout1\n";

class ShowLinks : public DialogTest<Dlg_QT_ShowLinks>
{
protected:
    QTableWidget *table() const { return find<QTableWidget>("tableUrl"); }
    QString shown() const { return tableText("tableUrl"); }
    QByteArray written() const { return FakeHost::readFile(linkFile); }
    void writeLinks(const QByteArray &lines) { linkFile = host.writeFile(u"links=1.txt"_s, lines); }
    void showLinks(const QString &action = {}, const QByteArray &lines = threeLinks)
    {
        writeLinks(lines);
        showWith(u"linkfile=%1\n!action!=%2\n"_s.arg(linkFile, action));
    }
    void choose(const QList<int> &rows) const { selectRows(table(), rows); }
    void remove(const QList<int> &rows)
    {
        choose(rows);
        shownBy("btnRemoveUrl", {QMessageBox::Ok});
    }

    QString linkFile;
};

TEST_F(ShowLinks, ListsTheLinksOfTheFile)
{
    const QString buttons = u"btnShowUrl btnRemoveUrl btnShowEntity"_s;
    showLinks();
    EXPECT_EQ(shown(), u"2F|http://b.org|LINE|Model 30|http://A.org|TEXT|Model 31|plan=1.pdf|LINE|Layout1"_s);
    EXPECT_EQ(table()->columnWidth(0), 0);
    EXPECT_EQ(table()->item(2, 1)->toolTip(), u"plan=1.pdf"_s) << "whole, however narrow its column is";
    EXPECT_EQ(enabledOf(buttons), QString());
    choose({1});
    EXPECT_EQ(enabledOf(buttons), buttons);
}

TEST_F(ShowLinks, WithoutAFileThereAreNoneAndNothingIsMade)
{
    for (const QString &state : {QString(), u"linkfile=%1\n"_s.arg(host.path(u"none/links.txt"_s))}) {
        SetUp();
        showWith(state);
        EXPECT_EQ(table()->rowCount(), 0);
        click("btnClose");
        EXPECT_TRUE(isAccepted());
        EXPECT_FALSE(QFile::exists(host.path(u"none"_s)));
    }
}

TEST_F(ShowLinks, CloseWritesTheLinksAndWhatWasRemoved)
{
    showLinks();
    choose({2, 0});
    EXPECT_EQ(shownBy("btnRemoveUrl", {QMessageBox::Cancel}),
              QStringList{u"warning \"Warning\" \"Remove urls for selected items?\" OK/Cancel"_s});
    EXPECT_EQ(table()->rowCount(), 3);
    {
        ModalAnswers answers;
        answers.drive([](QWidget *box) { QTest::keyClick(box, Qt::Key_Return); });
        click("btnRemoveUrl");
    }
    EXPECT_EQ(shown(), u"30|http://A.org|TEXT|Model"_s);
    EXPECT_FALSE(isEnabled("btnRemoveUrl"));
    click("btnClose");
    EXPECT_TRUE(isAccepted());
    EXPECT_EQ(written(), "30^http://A.org^TEXT^Model\r\nREMOVE^2F\r\nREMOVE^31\r\n");
    EXPECT_EQ(savedState(), u"linkfile=%1\n!action!=OK\n"_s.arg(linkFile)) << "with the \"=\" in its name";
}

TEST_F(ShowLinks, ShowEntityWritesTheSelectedLinksAndKeepsTheRemovals)
{
    showLinks();
    remove({0});
    choose({0, 1});
    click("btnShowEntity");
    EXPECT_TRUE(isAccepted());
    EXPECT_EQ(written(), "30^http://A.org^TEXT^Model\r\n31^plan=1.pdf^LINE^Layout1\r\n");
    EXPECT_EQ(savedState(), u"linkfile=%1\n!action!=SHOWENTITY\ntableurl=30^31^\n"_s.arg(linkFile));

    showLinks(u"RETURN"_s, "31^plan=1.pdf^LINE^Layout1\n32^x^TEXT^Model\n");
    EXPECT_EQ(shown(), u"31|plan=1.pdf|LINE|Layout1 32|x|TEXT|Model"_s);
    click("btnClose");
    EXPECT_EQ(written(), "31^plan=1.pdf^LINE^Layout1\r\n32^x^TEXT^Model\r\nREMOVE^2F\r\n");
}

// Else the removals of one run would reach the drawing with the next, or those that were cancelled.
TEST_F(ShowLinks, RemovalsBelongToTheirRun)
{
    const QByteArray one = "2F^http://b.org^LINE^Model\r\n";
    const QByteArray two = "30^http://A.org^TEXT^Model\r\n31^plan=1.pdf^LINE^Layout1\r\n";
    // How the run is left in which the first link was removed, the action of the next call and the links of its file,
    // and what is written when that is closed.
    const std::tuple<const char *, QString, QByteArray, QByteArray> rows[] = {
        {"btnShowEntity", u"RETURN"_s, two, two + "REMOVE^2F\r\n"},
        {"btnShowEntity", u"RETURN"_s, one, one},
        {"btnShowEntity", u"return"_s, one, two + "REMOVE^2F\r\n"},
        {"btnShowEntity", {}, one, two + "REMOVE^2F\r\n"},
        {"btnShowEntity", u"START"_s, two, two}, // a run that was left while its entity was shown does not come back
        {"btnClose", u"OK"_s, one + two, one + two},
        {nullptr, u"OK"_s, one + two, one + two},
    };
    for (const auto &[exit, action, links, closed] : rows) {
        SetUp();
        showLinks();
        remove({0});
        choose({0});
        if (exit)
            click(exit);
        else
            QTest::keyClick(dialog.get(), Qt::Key_Escape);
        showLinks(action, links);
        click("btnClose");
        EXPECT_EQ(written(), closed) << (exit ? exit : "Escape") << " then " << action.toStdString();
    }
}

TEST_F(ShowLinks, NoRowIsSelectedThatTheStateNames)
{
    for (const QString &action : {u"START"_s, u"RETURN"_s}) {
        writeLinks(threeLinks);
        showWith(u"linkfile=%1\n!action!=%2\ntableurl=30^\n"_s.arg(linkFile, action));
        EXPECT_EQ(ortakit::rowsWithSelection(*table()), QList<int>());
        EXPECT_FALSE(isEnabled("btnRemoveUrl"));
    }
}

TEST_F(ShowLinks, ReplacesInTheUrlsOfTheSelectedRows)
{
    showLinks({}, "h^http://h.org/h^h^h\n30^HTTP^h^h\n31^h^h^h\n");
    EXPECT_TRUE(shownBy("btnReplace").value(0).contains(u"Select the rows of table for searching."_s));
    choose({0, 1});
    setText("txreplace", u"[hh]"_s);
    click("btnReplace");
    EXPECT_TRUE(shown().startsWith(u"h|http://h.org/h|h|h "_s)) << "nothing to look for";
    enterText("txsearch", u"h"_s);
    EXPECT_TRUE(dialog->isVisible()) << "Return replaces";
    EXPECT_EQ(shown(), u"h|[hh]ttp://[hh].org/[hh]|h|h 30|HTTP|h|h 31|h|h|h"_s);
}

TEST_F(ShowLinks, OpensWhatTheCellSaysAndNothingElse)
{
    Desktop desktop;
    const QString file = host.writeFile(u"www plan.pdf"_s, "");
    const QString local = QUrl::fromLocalFile(file).toString();
    const QString starter = host.writeFile(u"plan\u202Efdp.desktop"_s, "");
    const QString deep = u"news://a.org/"_s + QString(200, u'x');
    // The URL, what is opened, and what the question shows that comes first, but for its line ends.
    const std::tuple<QString, QString, QString> rows[] = {
        {file, local, file},
        {u"www.a.org/b c"_s, u"http://www.a.org/b c"_s, {}},
        {u"https://a.org/$(x);y"_s, u"https://a.org/$(x);y"_s, {}},
        {u"--version"_s, {}, {}},
        {u"calc.exe"_s, {}, {}},
        {u"www plan.pdf"_s, local, file},
        {u":/images/help.png"_s, {}, {}},
        {{}, {}, {}},
        {local, local, file},
        {QFileInfo(starter).fileName(), QUrl::fromLocalFile(starter).toString(),
         u"plan\\U+202Efdp.desktopIt is a program"_s},
        {u"\\\\computer\\share\\run.exe"_s, {}, {}},
        {u"file://computer/share/run.exe"_s, u"file://computer/share/run.exe"_s, u"//computer/share/run.exeIt is"_s},
        {deep, deep, deep},
        {u"news:\u202E"_s, u"news:\u202E"_s, u"news:%E2%80%AE"_s},
        {u"JavaScript:alert(1)"_s, {}, {}},
        {u"data:text/html,x"_s, {}, {}},
        {u"news:"_s + QString(3000, u'x'), {}, {}},
    };
    for (const auto &[url, opened, question] : rows) {
        SetUp();
        // Which is not in the folder that the program runs in.
        host.document().fakeDatabase().setFilename(host.path(u"drawing.dxf"_s));
        showLinks({}, "2F^" + url.toUtf8() + "^LINE^Model\n30^http://x^LINE^Model\n");
        choose({0});
        for (const bool agrees : {false, true}) {
            desktop.opened.clear();
            const QList<QMessageBox::StandardButton> answers{agrees ? QMessageBox::Open : QMessageBox::Cancel};
            const QString boxes = shownBy("btnShowUrl", question.isEmpty() ? decltype(answers)() : answers).join(u' ');
            EXPECT_EQ(boxes.contains(u"Unable to display the link."_s), opened.isEmpty()) << url.toStdString();
            EXPECT_EQ(boxes.contains(u"Open this link?"_s), !question.isEmpty()) << url.toStdString();
            EXPECT_TRUE(QString(boxes).remove(u'\n').contains(question)) << boxes.toStdString();
            EXPECT_EQ(desktop.opened.join(u' '), agrees || question.isEmpty() ? opened : QString())
                << url.toStdString();
        }
    }
    choose({0, 1});
    EXPECT_TRUE(shownBy("btnShowUrl").value(0).contains(u"Select one row of table for show."_s));
}

TEST_F(ShowLinks, AClickOnAHeaderSorts)
{
    showLinks();
    choose({0});
    clickHeader("tableUrl", 1);
    EXPECT_TRUE(shown().startsWith(u"30|http://A.org|TEXT|Model 2F|"_s));
    EXPECT_EQ(ortakit::rowsWithSelection(*table()), QList<int>{1});
    click("btnClose");
    EXPECT_TRUE(written().startsWith("30^")) << "top to bottom";
}

TEST_F(ShowLinks, SortingWithNothingSelectedDoesNotScroll)
{
    QByteArray lines;
    for (int link = 0; link < 200; ++link)
        lines += "2F^" + QByteArray::number(999 - link) + "^LINE^Model\n";
    showLinks({}, lines);
    table()->setCurrentCell(0, 1, QItemSelectionModel::NoUpdate);
    clickHeader("tableUrl", 1);
    EXPECT_EQ(table()->currentRow(), 199);
    EXPECT_EQ(table()->verticalScrollBar()->value(), 0);
}

// A find text that is longer than its field is shown shortened where it is only told.
TEST_F(ShowLinks, FindTextsOfTheStateAreWhole)
{
    const QString longText = u"http://"_s + QString(300, u'x');
    writeLinks("2F^" + longText.toUtf8() + "^LINE^Model\r\n");
    showWith(u"txsearch=%1\ntxreplace=...\nlinkfile=%2\n"_s.arg(longText, linkFile));
    table()->selectRow(0);
    click("btnReplace");
    EXPECT_EQ(table()->item(0, 1)->text(), u"..."_s);
}

} // namespace

#include "ShowLinksTest.moc"
