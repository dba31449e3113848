#include "host/app/window/help/HelpWindow.h"

#include "host/app/window/MainWindow.h"
#include "host/app/window/entry/CommandLine.h"
#include "host/app/window/entry/LispConsole.h"
#include "host/app/window/frame/AppStyle.h"
#include "host/app/window/help/HelpBrowser.h"
#include "host/app/window/help/HelpKey.h"
#include "platform/kernel/CKvHelp.h"
#include "tests/app/AppFixture.h"
#include "tests/support/QtTestPrinters.h"

#include <QAction>
#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTreeWidget>

#include <gtest/gtest.h>

using namespace host::app;
using namespace host::app::test;
using namespace Qt::StringLiterals;

namespace {

/// A small book in a folder of its own.
struct HelpPages : testing::Test, TestFolder
{
    HelpPages()
    {
        write(u"help/index.html"_s, "start");
        write(u"help/break.html"_s, "<h1 id='break'>Break</h1><p>Cuts lines. <img src='pictures/x.png'></p>");
        write(u"help/lisp.html"_s, "<h1>Lisp</h1><table><tr><td id='command-line'>LINE</td></tr></table>");
        write(u"help/contents.tsv"_s,
              "0\tindex.html\tContents\n0\t\tTools\n1\tbreak.html\tBreak\n1\tlisp.html\tLisp\n");
        write(u"help/topics.tsv"_s,
              "7\tbreak.html\ndialog samplebox\tlisp.html\ncommand line\tlisp.html#command-line\n"
              "command sampletool\tbreak.html\nfunction car\tlisp.html#f\nwindow layerspanel\tbreak.html\n"
              "variable osmode\tlisp.html#v\nmenu save\tindex.html#s\n");
        write(u"help/search.tsv"_s,
              "break.html#break\tBreak\tBreak\tCuts lines open, line by line, and draws symbols.\n"
              "lisp.html#x\tLisp\tOf lines\tLines, lines, lines, lines and lines. Émile was here.\n"
              "lisp.html#command-line\tLisp\tLINE\tDraws straight segments\n"
              "lisp.html#e\tLisp\tOutline\tNo such word begins here\n");
    }
    QString help() const { return path(u"help"_s); }
};

TEST_F(HelpPages, FindWordsTheBestFirst)
{
    const HelpBook book(help());
    const auto found = [&](const char *sought) {
        QStringList headings;
        for (const HelpBook::Hit &hit : book.search(QString::fromUtf8(sought)))
            headings.append(hit.heading);
        return headings.join(u',');
    };
    EXPECT_EQ(found("line"), u"LINE,Of lines,Break"_s) << "what is called so, then where headings say it";
    EXPECT_EQ(found("LINES draw"), u"Break"_s) << "all words";
    EXPECT_EQ(found("lines zebra"), u"Of lines,Break"_s) << "some words where no section has all";
    EXPECT_EQ(found("émi"), u"Of lines"_s);
    EXPECT_EQ(found("  "), QString());
    EXPECT_EQ(found("zebra"), QString());
    EXPECT_EQ(HelpBook(path(u"none"_s)).search(u"line"_s).size(), 0);
    write(u"help/search.tsv"_s,
          "a#a\tA\tA\t" + QByteArray("word ").repeated(100) + "needle " + QByteArray("word ").repeated(100) + "\n");
    const QString excerpt = HelpBook(help()).search(u"needle"_s).value(0).excerpt;
    EXPECT_TRUE(excerpt.contains(u"needle"_s) && excerpt.size() < 150) << excerpt.toStdString();
    EXPECT_TRUE(excerpt.startsWith(u'…') && excerpt.endsWith(u'…'));
}

/// The window of the help over a widget that stands for the program's.
struct HelpWindowTest : HelpPages
{
    HelpWindowTest() : window(owner) { window.showPage(help(), u"break.html"_s); }
    ~HelpWindowTest() override { applyStyle(Style::Light); }

    HelpBrowser &page() { return *window.findChild<HelpBrowser *>(); }
    QString shown() { return page().source().fileName() + u'#' + page().source().fragment(); }
    template <typename Part>
    Part &part(const char *name)
    {
        return *window.findChild<Part *>(QString::fromLatin1(name));
    }

    QWidget owner;
    HelpWindow window;
};

TEST_F(HelpWindowTest, ContentsAndPageFollowEachOther)
{
    auto &contents = part<QTreeWidget>("helpContents");
    ASSERT_TRUE(contents.currentItem());
    EXPECT_EQ(contents.currentItem()->text(0), u"Break"_s);
    contents.setCurrentItem(contents.topLevelItem(1)->child(1));
    EXPECT_EQ(shown(), u"lisp.html#"_s);
    contents.setCurrentItem(contents.topLevelItem(1));
    EXPECT_EQ(shown(), u"lisp.html#"_s) << "a part is no page";
    part<QAction>("helpBack").trigger();
    EXPECT_EQ(shown(), u"break.html#"_s);
    EXPECT_EQ(contents.currentItem()->text(0), u"Break"_s);
    part<QAction>("helpForward").trigger();
    EXPECT_EQ(shown(), u"lisp.html#"_s);
}

TEST_F(HelpWindowTest, SearchLeadsToThePlaceAndMarksIt)
{
    part<QLineEdit>("helpSearch").setText(u"lin"_s);
    auto &hits = part<QListWidget>("helpHits");
    EXPECT_TRUE(hits.isVisible());
    ASSERT_GT(hits.count(), 2);
    for (int row = 0; row < hits.count(); ++row)
        if (hits.item(row)->text().startsWith(u"LINE –"_s))
            hits.setCurrentRow(row);
    EXPECT_EQ(shown(), u"lisp.html#command-line"_s);
    const QList<QTextEdit::ExtraSelection> marks = page().extraSelections();
    ASSERT_EQ(marks.size(), 2) << "the row that was meant, and the word";
    for (const QTextEdit::ExtraSelection &mark : marks)
        EXPECT_TRUE(mark.cursor.block().text().contains(u"LINE"_s));
    part<QLineEdit>("helpSearch").setText(u"zebra"_s);
    emit part<QLineEdit>("helpSearch").returnPressed();
    EXPECT_EQ(hits.count(), 1) << "the words that nothing was found";
    EXPECT_EQ(shown(), u"lisp.html#command-line"_s);
    part<QLineEdit>("helpSearch").clear();
    EXPECT_TRUE(part<QTreeWidget>("helpContents").isVisible());
    EXPECT_EQ(page().extraSelections().size(), 1) << "the row alone";
}

TEST_F(HelpWindowTest, DarkPagesHaveDarkPictures)
{
    for (const auto &[name, colour] : {std::pair("x.png", Qt::white), std::pair("x-dark.png", Qt::black)}) {
        QImage image(2000, 10, QImage::Format_RGB32);
        image.fill(colour);
        write(u"help/pictures/none"_s, {});
        ASSERT_TRUE(image.save(path(u"help/pictures/"_s + QString::fromLatin1(name))));
    }
    const auto picture = [this] {
        return page().loadResource(QTextDocument::ImageResource, QUrl(u"pictures/x.png"_s)).value<QImage>();
    };
    EXPECT_EQ(picture().pixelColor(0, 0), QColor(Qt::white));
    EXPECT_EQ(picture().width(), 640) << "no wider than the page";
    applyStyle(Style::Dark);
    QCoreApplication::processEvents();
    EXPECT_EQ(picture().pixelColor(0, 0), QColor(Qt::black));
}

TEST_F(HelpWindowTest, LinksLeadToPagesBesideAndNowhereElse)
{
    QStringList refused;
    QObject::connect(&window, &HelpWindow::refused, &window,
                     [&](const QUrl &link) { refused.append(link.toString()); });
    const auto press = [this](const QUrl &link) { emit page().anchorClicked(link); };
    press(QUrl::fromLocalFile(write(u"help/deep/9.html"_s, "x")));
    press(QUrl::fromLocalFile(write(u"9.html"_s, "x")));
    press(QUrl(u"ftp://a.org"_s));
    EXPECT_EQ(refused.size(), 3);
    EXPECT_EQ(shown(), u"break.html#"_s);
    QUrl beside = QUrl::fromLocalFile(path(u"help/lisp.html"_s));
    beside.setFragment(u"command-line"_s);
    press(beside);
    EXPECT_EQ(shown(), u"lisp.html#command-line"_s);
    EXPECT_EQ(refused.size(), 3);
}

/// The program's window, whose help is the small book.
struct WindowHelp : HelpPages
{
    WindowHelp()
    {
        qputenv("ORTAKIT_HELP", help().toUtf8());
        write(u"tools/sample.lsp"_s,
              ";;; menu: Sample tool | SAMPLETOOL | Asks\n(defun c:sampletool () (getint \"Number: \"))\n");
        window = std::make_unique<MainWindow>(
            WorkbenchOptions{.home = path(u"home"_s), .module = path(u"none.so"_s), .tools = path(u"tools"_s)});
        qunsetenv("ORTAKIT_HELP");
        window->show();
        window->start({write(u"small.dxf"_s, smallDrawing())});
    }
    static HelpWindow *open()
    {
        for (QWidget *each : QApplication::topLevelWidgets())
            if (auto *found = qobject_cast<HelpWindow *>(each))
                return found;
        return nullptr;
    }
    static QString shown()
    {
        const QUrl page = open() ? open()->findChild<HelpBrowser *>()->source() : QUrl();
        return page.fileName() + (page.hasFragment() ? u'#' + page.fragment() : QString());
    }
    /// F1 with the keyboard in a widget.
    static void press(QWidget &widget)
    {
        widget.setFocus();
        QKeyEvent key(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &key);
    }

    std::unique_ptr<MainWindow> window;
};

TEST_F(WindowHelp, F1IsAboutWhatTheKeyboardIsAt)
{
    QLineEdit &line = *window->findChild<QLineEdit *>(u"commandInput"_s);
    QPlainTextEdit &console = *window->console().input();
    struct
    {
        QWidget &widget;
        const char *text;
        int place;
        const char *page;
    } const rows[] = {
        {line, "_.line", 0, "lisp.html#command-line"},
        {line, "(car x)", 3, "lisp.html#f"},
        {line, "", 0, "index.html"},
        {console, "(list (car x))", 8, "lisp.html#f"},
        {console, "(c:sampletool)", 5, "break.html"},
        {console, "(getvar \"OSMODE\")", 12, "lisp.html#v"},
        {console, "(nothing)", 3, "index.html"},
        {*window->findChild<QWidget *>(u"layersPanel"_s), "", 0, "break.html"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.text);
        if (auto *field = qobject_cast<QLineEdit *>(&row.widget)) {
            field->setText(QString::fromLatin1(row.text));
            field->setCursorPosition(row.place);
        } else if (auto *text = qobject_cast<QPlainTextEdit *>(&row.widget)) {
            text->setPlainText(QString::fromLatin1(row.text));
            QTextCursor cursor = text->textCursor();
            cursor.setPosition(row.place);
            text->setTextCursor(cursor);
        }
        press(row.widget);
        EXPECT_EQ(shown().toStdString(), row.page);
    }
}

TEST_F(WindowHelp, F1IsAboutTheEntryOfAMenuAndASetting)
{
    QMenu menu;
    menu.addAction(u"Line"_s)->setObjectName(u"_LINE"_s);
    menu.addAction(u"Save"_s)->setObjectName(u"save"_s);
    for (const auto &[number, page] : {std::pair(0, "lisp.html#command-line"), std::pair(1, "index.html#s")}) {
        menu.setActiveAction(menu.actions().at(number));
        press(menu);
        EXPECT_EQ(shown().toStdString(), page);
    }
    QDialog settings;
    settings.setObjectName(u"settingsWindow"_s);
    auto *box = new QLineEdit(&settings);
    box->setObjectName(u"OSMODE.1"_s);
    press(*box);
    EXPECT_EQ(shown(), u"lisp.html#v"_s);
}

TEST_F(WindowHelp, F1IsAboutTheCommandThatRuns)
{
    const Hands hands({[this] {
                           window->findChild<QAction *>(u"help"_s)->trigger();
                           EXPECT_EQ(shown(), u"break.html"_s);
                       },
                       [this] { window->enter(u"1"_s); }});
    window->enter(u"SAMPLETOOL"_s);
    EXPECT_TRUE(hands.left.isEmpty());
}

TEST_F(WindowHelp, StandsInFrontOfAModalDialogAndOutlivesIt)
{
    defineSampleBox(*window->document());
    for (int round = 0; round < 2; ++round) {
        const Hands hands({[] {
            QWidget *box = QApplication::activeModalWidget();
            ASSERT_TRUE(box);
            box->setObjectName(u"unknown"_s);
            GetKvHelp()->Help({}, 7, false, nullptr, 0);
            EXPECT_EQ(shown(), u"break.html"_s);
            box->setObjectName(u"SampleBox"_s);
            GetKvHelp()->Help({}, 7, false, nullptr, 0);
            EXPECT_EQ(shown(), u"lisp.html"_s) << "a dialog with a page of its own";
            GetKvHelp()->Help({}, 0, true, nullptr, 0);
            EXPECT_EQ(shown(), u"lisp.html"_s) << "what is open is kept";
            ASSERT_TRUE(open());
            EXPECT_EQ(open()->parentWidget(), box) << "a modal dialog blocks all but its own windows";
            EXPECT_TRUE(open()->isVisible());
            box->close();
        }});
        window->enter(u"(samplebox)"_s);
        ASSERT_TRUE(open());
        EXPECT_TRUE(open()->isVisible());
        EXPECT_EQ(open()->parentWidget(), window.get());
    }
}

} // namespace
