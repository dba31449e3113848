// Keys and mouse on the drawing: choosing, erasing, the clipboard, grips. A row
// is what a hand does and what is true then.

#include "host/app/window/MainWindow.h"
#include "host/app/window/canvas/DrawingCanvas.h"
#include "host/app/window/entry/CommandLine.h"
#include "tests/app/AppFixture.h"

#include <QApplication>
#include <QClipboard>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

using namespace host::app;
using namespace host::app::test;
using namespace Qt::StringLiterals;

namespace {

struct ChoosingRow
{
    const char *name;
    const char *steps; ///< with " ~ " between them
    const char *truth; ///< a Lisp expression, which is not nil
};

/// A window over the small drawing, and a hand that goes through steps while
/// commands wait for it:
///     enter TEXT, lisp EXPRESSION, new (drawing), key KEYS, click X,Y, shift
///     X,Y, ctrl X,Y, press X,Y, move X,Y, release X,Y
struct ChoosingTest : testing::TestWithParam<ChoosingRow>, TestFolder
{
    ChoosingTest()
    {
        QApplication::clipboard()->clear();
        window = std::make_unique<MainWindow>(
            WorkbenchOptions{.home = path(u"home"_s), .module = path(u"none.so"_s), .tools = path(u"none"_s)});
        window->show();
        window->start({write(u"small.dxf"_s, smallDrawing())});
        // Bars and tabs take their room with the next events: until then no place on the canvas stays where it is.
        EXPECT_TRUE(QTest::qWaitForWindowExposed(window.get()));
        QTest::qWait(1);
        window->canvas()->zoomExtents();
    }

    QPoint onScreen(const QString &point) const
    {
        const host::kernel::ViewState &view = window->document()->view();
        const QSize size = window->canvas()->size();
        const double scale = size.height() / view.height;
        const double x = point.section(u',', 0, 0).toDouble() - view.centre.x;
        const double y = point.section(u',', 1).toDouble() - view.centre.y;
        return QPointF(size.width() / 2.0 + x * scale, size.height() / 2.0 - y * scale).toPoint();
    }
    void pressKeys(const QString &keys)
    {
        const QKeyCombination combination = QKeySequence(keys)[0];
        QTest::keyClick(window->commandLine().input(), combination.key(), combination.keyboardModifiers());
    }
    void drag(QEvent::Type type, const QString &point, Qt::KeyboardModifiers modifiers = {})
    {
        const QPointF at = onScreen(point);
        QMouseEvent event(type, at, window->canvas()->mapToGlobal(at), Qt::LeftButton, Qt::LeftButton, modifiers);
        QCoreApplication::sendEvent(window->canvas(), &event);
    }
    void click(const QString &point, Qt::KeyboardModifiers modifiers = {})
    {
        drag(QEvent::MouseMove, point, modifiers);
        drag(QEvent::MouseButtonPress, point, modifiers);
        drag(QEvent::MouseButtonRelease, point, modifiers);
    }
    void take(const QString &step)
    {
        const QString verb = step.section(u' ', 0, 0);
        const QString rest = step.section(u' ', 1);
        if (verb == u"enter")
            window->enter(rest);
        else if (verb == u"lisp")
            EXPECT_TRUE(window->document()->run(rest).ok) << qPrintable(step);
        else if (verb == u"new")
            window->workbench().documents().create();
        else if (verb == u"key")
            pressKeys(rest);
        else if (verb == u"click" || verb == u"shift" || verb == u"ctrl")
            click(rest, verb == u"shift" ? Qt::ShiftModifier : verb == u"ctrl" ? Qt::ControlModifier : Qt::NoModifier);
        else if (verb == u"press" || verb == u"release" || verb == u"move")
            drag(verb == u"press"  ? QEvent::MouseButtonPress
                 : verb == u"move" ? QEvent::MouseMove
                                   : QEvent::MouseButtonRelease,
                 rest);
        else
            ADD_FAILURE() << "unknown step " << qPrintable(step);
    }
    /// Each step from an event of its own, also within the loops of prompts.
    void takeAll(const QString &steps)
    {
        QStringList left = steps.split(u" ~ "_s);
        QEventLoop all;
        int depth = 0;
        const std::function<void()> takeNext = [&] {
            if (left.isEmpty() && depth == 0)
                return all.quit();
            // What a step begins behind itself comes first.
            QTimer::singleShot(20, &all, takeNext);
            if (left.isEmpty())
                return;
            ++depth;
            take(left.takeFirst());
            --depth;
        };
        QTimer::singleShot(20000, &all, [&] {
            ADD_FAILURE() << "a prompt waits: " << qPrintable(window->commandLine().prompt());
            window->close();
            all.quit();
        });
        QTimer::singleShot(0, &all, takeNext);
        all.exec();
    }

    std::unique_ptr<MainWindow> window;
};

TEST_P(ChoosingTest, DoesWhatTheRowSays)
{
    takeAll(QString::fromLatin1(GetParam().steps));
    const host::kernel::RunResult result = window->document()->run(QString::fromLatin1(GetParam().truth));
    EXPECT_TRUE(result.ok && result.value != u"nil") << qPrintable(result.value + result.error) << '\n'
                                                     << qPrintable(window->commandLine().historyText());
}

// A LINE from 0,0 to 10,0 (handle 2A), a CIRCLE (2B) and a LINE (2C).
#define ON_RED_LAYER                                                                                                   \
    "lisp (command \"-LAYER\" \"N\" \"A\" \"C\" \"1\" \"A\" \"\" \"CHPROP\" "                                          \
    "(handent \"2A\") \"\" \"LA\" \"A\" \"\") ~ "
#define ALL "(sslength (ssget \"_X\"))"

INSTANTIATE_TEST_SUITE_P(
    Keys, ChoosingTest,
    testing::Values(
        ChoosingRow{"DeleteErasesTheChosen", "click 1,0 ~ key Del", "(null (entget (handent \"2A\")))"},
        ChoosingRow{"DeleteWithoutChosen", "key Del", "(= 3 " ALL ")"},
        ChoosingRow{"DeleteUndone", "click 1,0 ~ key Del ~ key Ctrl+Z", "(entget (handent \"2A\"))"},
        ChoosingRow{"DeleteInTheLine", "click 1,0 ~ key Z ~ key Del ~ key Esc", "(= 3 " ALL ")"},
        ChoosingRow{"AllErased", "key Ctrl+A ~ key Del", "(null (ssget \"_X\"))"},
        ChoosingRow{"AllButLocked",
                    "lisp (command \"-LAYER\" \"N\" \"A\" \"LO\" \"A\" \"\" "
                    "\"CHPROP\" (handent \"2A\") \"\" \"LA\" \"A\" "
                    "\"\") ~ key Ctrl+A ~ key Del",
                    "(= 1 " ALL ")"},
        ChoosingRow{"AllButOff",
                    "lisp (command \"-LAYER\" \"N\" \"A\" \"OFF\" \"A\" \"\" "
                    "\"CHPROP\" (handent \"2A\") \"\" \"LA\" "
                    "\"A\" \"\") ~ key Ctrl+A ~ key Del",
                    "(= 1 " ALL ")"},
        ChoosingRow{"AllOfTheSheetAlone", "lisp (setvar \"CTAB\" \"Layout1\") ~ key Ctrl+A ~ key Del", "(= 3 " ALL ")"},
        ChoosingRow{"AllAtAPrompt", "enter ERASE ~ key Ctrl+A ~ key Return", "(null (ssget \"_X\"))"},
        ChoosingRow{"EscDropsTheChosen", "key Ctrl+A ~ key Esc ~ key Del", "(= 3 " ALL ")"},
        ChoosingRow{"AskedForWithoutPickfirst",
                    "lisp (setvar \"PICKFIRST\" 0) ~ click 1,0 ~ enter ERASE ~ "
                    "click 10,0 ~ key Return",
                    "(= 2 " ALL ")"},
        ChoosingRow{"NounThenVerb", "click 1,0 ~ enter MOVE ~ enter 0,0 ~ enter 0,5",
                    "(equal '(0.0 5.0 0.0) (cdr (assoc 10 (entget (handent "
                    "\"2A\")))))"},
        ChoosingRow{"PropertiesOfTheNoun", ON_RED_LAYER "click 1,0 ~ enter MATCHPROP ~ click 2,10 ~ key Return",
                    "(= \"A\" (cdr (assoc 8 (entget (handent \"2C\")))))"},
        ChoosingRow{"StretchAsksAnew",
                    "click 1,0 ~ enter STRETCH ~ enter C ~ enter 9,9 ~ enter "
                    "11,11 ~ key Return ~ enter 0,0 ~ enter 1,1",
                    "(equal '(11.0 11.0 0.0) (cdr (assoc 11 (entget (handent "
                    "\"2C\")))))"},
        ChoosingRow{"CopyAndPaste", "click 1,0 ~ key Ctrl+C ~ key Ctrl+V ~ enter 0,20",
                    "(equal '(0.0 20.0 0.0) (cdr (assoc 10 (entget (entlast)))))"},
        ChoosingRow{"CopyByBasePoint",
                    "click 1,0 ~ key Ctrl+Shift+C ~ enter 5,0 ~ key Ctrl+V ~ enter "
                    "5,20",
                    "(equal '(0.0 20.0 0.0) (cdr (assoc 10 (entget (entlast)))))"},
        ChoosingRow{"PastedAsBlock", "click 1,0 ~ key Ctrl+C ~ key Ctrl+Shift+V ~ enter 0,20",
                    "(= \"INSERT\" (cdr (assoc 0 (entget (entlast)))))"},
        ChoosingRow{"CutAndPaste", "click 1,0 ~ key Ctrl+X ~ key Ctrl+V ~ enter 0,20",
                    "(and (null (entget (handent \"2A\"))) (= 3 " ALL "))"},
        ChoosingRow{"ToAnotherDrawing", ON_RED_LAYER "click 1,0 ~ key Ctrl+C ~ new ~ key Ctrl+V ~ enter 0,20",
                    "(and (= 1 " ALL ") (= 1 (cdr (assoc 62 (tblsearch \"LAYER\" \"A\")))))"},
        ChoosingRow{"ItsLayersStay",
                    ON_RED_LAYER "click 1,0 ~ key Ctrl+C ~ new ~ lisp (command "
                                 "\"-LAYER\" \"N\" \"A\" \"C\" \"3\" "
                                 "\"A\" \"\") ~ key Ctrl+V ~ enter 0,20",
                    "(and (= 1 " ALL ") (= 3 (cdr (assoc 62 (tblsearch \"LAYER\" \"A\")))))"},
        ChoosingRow{"ChosenByAProgram", "enter (sssetfirst nil (ssadd (handent \"2A\"))) ~ key Del", "(= 2 " ALL ")"},
        ChoosingRow{"ForgottenByOtherCommands",
                    "click 1,0 ~ enter LINE ~ enter 0,0 ~ enter 1,1 ~ key "
                    "Return ~ key Del",
                    "(= 4 " ALL ")"}),
    [](const auto &row) { return std::string(row.param.name); });

/// Where the group of the line 2A is, but for what the mouse's pixels leave
/// open.
#define NEAR(CODE, POINT) "(equal '" POINT " (cdr (assoc " CODE " (entget (handent \"2A\")))) 0.2)"

/// Two lines over the first one, the last of them on top.
#define PILE                                                                                                           \
    "lisp (progn (setvar \"GRIPS\" 0) (repeat 2 (entmake '((0 . \"LINE\") (10 "                                        \
    "0.0 0.0) (11 10.0 0.0)))) (setq top "                                                                             \
    "(entlast))) ~ "

INSTANTIATE_TEST_SUITE_P(
    Piles, ChoosingTest,
    testing::Values(ChoosingRow{"TheTopFirst", PILE "click 2,0 ~ key Del", "(and (null (entget top)) (= 4 " ALL "))"},
                    ChoosingRow{"TheNextByKey", PILE "move 2,0 ~ key Shift+Space ~ click 2,0 ~ key Del",
                                "(and (entget top) (entget (handent \"2A\")) (= 4 " ALL "))"},
                    ChoosingRow{"TheLastByKey",
                                PILE "move 2,0 ~ key Shift+Space ~ key Shift+Space ~ click "
                                     "2,0 ~ key Del",
                                "(null (entget (handent \"2A\")))"},
                    ChoosingRow{"RoundAgain",
                                PILE "move 2,0 ~ key Shift+Space ~ key Shift+Space ~ key "
                                     "Shift+Space ~ click 2,0 ~ key Del",
                                "(null (entget top))"},
                    ChoosingRow{"ForgottenElsewhere",
                                PILE "move 2,0 ~ key Shift+Space ~ move 8,0 ~ click 8,0 ~ key Del",
                                "(null (entget top))"},
                    ChoosingRow{"AtASelection",
                                PILE "enter ERASE ~ move 2,0 ~ key Shift+Space ~ click 2,0 ~ key Return",
                                "(and (entget top) (= 4 " ALL "))"},
                    ChoosingRow{"AtAnEntity",
                                PILE "enter (setq got (car (entsel))) ~ move 2,0 ~ key "
                                     "Shift+Space ~ key Shift+Space ~ click 2,0",
                                "(equal got (handent \"2A\"))"},
                    ChoosingRow{"ByCtrlAndClicks", PILE "ctrl 2,0 ~ ctrl 2,0 ~ ctrl 2,0 ~ key Del",
                                "(and (null (entget (handent \"2A\"))) (= 4 " ALL "))"}),
    [](const auto &row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(
    Grips, ChoosingTest,
    testing::Values(
        ChoosingRow{"MovesAnEnd", "click 2,0 ~ click 10,0 ~ enter 12,3", NEAR("11", "(12.0 3.0 0.0)")},
        ChoosingRow{"ByTwoClicks", "click 2,0 ~ click 10,0 ~ click 12,3", NEAR("11", "(12.0 3.0 0.0)")},
        ChoosingRow{"Dragged", "click 2,0 ~ press 10,0 ~ move 11,2 ~ move 12,3 ~ release 12,3",
                    NEAR("11", "(12.0 3.0 0.0)")},
        ChoosingRow{"ToAnotherGrip",
                    "click 2,0 ~ click 0,10 ~ click 2,10 ~ click 10,0 ~ click "
                    "10.1,10.1",
                    "(equal '(10.0 10.0 0.0) (cdr (assoc 11 (entget (handent "
                    "\"2A\")))))"},
        ChoosingRow{"SeveralHot", "click 2,0 ~ shift 0,0 ~ click 10,0 ~ enter 10,4", NEAR("10", "(0.0 4.0 0.0)")},
        ChoosingRow{"HotNoLonger", "click 2,0 ~ shift 0,0 ~ shift 0,0 ~ click 10,0 ~ enter 10,4",
                    NEAR("10", "(0.0 0.0 0.0)")},
        ChoosingRow{"SpaceGoesOn", "click 2,0 ~ click 10,0 ~ key Space ~ enter 11,1", NEAR("10", "(1.0 1.0 0.0)")},
        ChoosingRow{"WordsTurn", "click 2,0 ~ click 0,0 ~ enter SC ~ enter 2", NEAR("11", "(20.0 0.0 0.0)")},
        ChoosingRow{"EscLeaves", "click 2,0 ~ click 10,0 ~ key Esc", NEAR("11", "(10.0 0.0 0.0)")},
        ChoosingRow{"StayChosen", "click 2,0 ~ click 10,0 ~ enter 12,3 ~ key Del", "(= 2 " ALL ")"},
        ChoosingRow{"StayChosenAfterEsc", "click 2,0 ~ click 10,0 ~ key Esc ~ key Del", "(= 2 " ALL ")"},
        ChoosingRow{"OneUndoStep", "click 2,0 ~ click 10,0 ~ enter 12,3 ~ key Ctrl+Z", NEAR("11", "(10.0 0.0 0.0)")},
        ChoosingRow{"NoneWithoutGrips", "lisp (setvar \"GRIPS\" 0) ~ click 2,0 ~ click 10,0 ~ key Del",
                    "(= 2 " ALL ")"},
        ChoosingRow{"NoneOfTooMany",
                    "lisp (setvar \"GRIPOBJLIMIT\" 2) ~ key Ctrl+A ~ click "
                    "10,0 ~ key Del",
                    "(= nil (ssget \"_X\"))"},
        ChoosingRow{"NotOnLockedLayers",
                    "click 2,0 ~ lisp (command \"-LAYER\" \"LO\" \"0\" \"\") ~ "
                    "click 10,0 ~ key Esc ~ key Esc",
                    NEAR("11", "(10.0 0.0 0.0)")}),
    [](const auto &row) { return std::string(row.param.name); });

} // namespace
