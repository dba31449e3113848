#include "host/app/window/MainWindow.h"

#include "host/app/window/canvas/DrawingCanvas.h"
#include "host/app/window/entry/CommandLine.h"
#include "host/app/window/entry/LispConsole.h"
#include "host/app/window/frame/Preferences.h"
#include "host/kernel/input/UserInput.h"
#include "host/view/paint/ScenePainter.h"
#include "platform/kernel/CKvUtils.h"
#include "tests/app/AppFixture.h"
#include "tests/support/ModalAnswers.h"
#include "tests/support/QtTestPrinters.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QFile>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QProxyStyle>
#include <QRegularExpression>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>

#include <gtest/gtest.h>

using namespace host::app;
using namespace host::app::test;
using namespace Qt::StringLiterals;

namespace host::app {
namespace {

/// Counts how often a tab is measured, which each layout of the tabs does for all.
struct TabCountingStyle final : QProxyStyle
{
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                           const QWidget *widget) const override
    {
        measured += type == CT_TabBarTab ? 1 : 0;
        return QProxyStyle::sizeFromContents(type, option, size, widget);
    }
    mutable int measured = 0;
};

/// A window without module and tools but one, on the small drawing.
struct MainWindowTest : testing::Test, TestFolder
{
    MainWindowTest()
    {
        write(u"tools/sample.lsp"_s, R"(;;; menu: Sample tool | SAMPLETOOL | Prints
(defun c:sampletool () (princ "sample tool") (princ))
)");
        drawing = write(u"small.dxf"_s, smallDrawing());
        window = std::make_unique<MainWindow>(
            WorkbenchOptions{.home = path(u"home"_s), .module = path(u"none.so"_s), .tools = path(u"tools"_s)});
        window->show();
        window->start({drawing});
    }
    ~MainWindowTest() override { applyStyle(Style::Light); }

    QString history() { return window->commandLine().historyText(); }
    QString lisp(const QString &text) { return window->document()->run(text).value; }
    QAction *action(const QString &text)
    {
        const QList<QAction *> actions = window->findChildren<QAction *>();
        return *std::ranges::find(actions, text, &QAction::text);
    }
    /// While the next lines run, once an event loop or the interpreter lets events through.
    template <typename Body>
    void meanwhile(Body body)
    {
        QTimer::singleShot(0, window.get(), body);
    }
    void key(int code)
    {
        QKeyEvent event(QEvent::KeyPress, code, Qt::NoModifier);
        QCoreApplication::sendEvent(window->commandLine().input(), &event);
    }
    QPointF onScreen(double x, double y)
    {
        const kernel::ViewState &view = window->document()->view();
        const QSize size = window->canvas()->size();
        const double scale = size.height() / view.height;
        return {size.width() / 2.0 + (x - view.centre.x) * scale, size.height() / 2.0 - (y - view.centre.y) * scale};
    }
    void mouse(QEvent::Type type, double x, double y, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QWidget &canvas = *window->canvas();
        QMouseEvent event(type, onScreen(x, y), canvas.mapToGlobal(onScreen(x, y)), Qt::LeftButton, Qt::LeftButton,
                          modifiers);
        QCoreApplication::sendEvent(&canvas, &event);
    }
    void click(double x, double y, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        mouse(QEvent::MouseButtonPress, x, y, modifiers);
        mouse(QEvent::MouseButtonRelease, x, y, modifiers);
    }

    QString drawing;
    std::unique_ptr<MainWindow> window;
};

TEST_F(MainWindowTest, CommandsOpenAndCloseDrawings)
{
    const QString other = write(u"other.dxf"_s, smallDrawing());
    window->enter(u"(command \"OPEN\" \"%1\")"_s.arg(other));
    ASSERT_EQ(window->tabs().count(), 2);
    EXPECT_EQ(window->document()->title(), u"other.dxf"_s);
    // The canvas that has the key goes with the drawing.
    window->commandLine().input()->setText(u"CLOSE"_s);
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(window->canvas(), &enter);
    QCoreApplication::processEvents();
    ASSERT_EQ(window->tabs().count(), 1);
    EXPECT_EQ(window->document()->title(), u"small.dxf"_s);
    window->enter(u"QUIT"_s);
    QCoreApplication::processEvents();
    EXPECT_FALSE(window->isVisible());
}

TEST_F(MainWindowTest, WorksWithoutModuleAndSaysSo)
{
    EXPECT_TRUE(history().contains(u"none.so"_s)) << history().toStdString();
    EXPECT_TRUE(history().contains(u"Tools with dialogs will not work."_s));
    window->enter(u"SAMPLETOOL"_s);
    window->enter({});
    EXPECT_EQ(history().count(u"sample tool"_s), 2) << "an empty line repeats it";
}

TEST_F(MainWindowTest, LayoutsHaveTabsBelowTheDrawing)
{
    window->workbench().documents().create();
    auto *tabs = window->findChild<QTabBar *>(u"layouts"_s);
    ASSERT_TRUE(tabs);
    const auto texts = [tabs] {
        QStringList all;
        for (int i = 0; i < tabs->count(); ++i)
            all.append(tabs->tabText(i));
        return all.join(u'|');
    };
    EXPECT_EQ(texts(), u"Model|Layout1"_s);
    lisp(u"(command \"LAYOUT\" \"N\" \"Ground floor & first floor of the whole house\" \"CIRCLE\" '(0 0) 5)"_s);
    EXPECT_EQ(texts(), u"Model|Layout1|Ground floor && first floor of t\u2026"_s);
    EXPECT_TRUE(tabs->tabToolTip(2).contains(u"of the whole house"_s));

    window->canvas()->zoomBy(3.0);
    const double height = window->document()->view().height;
    tabs->setCurrentIndex(2);
    EXPECT_EQ(lisp(u"(substr (getvar \"CTAB\") 1 6)"_s), u"\"Ground\""_s);
    EXPECT_EQ(window->canvas()->report().drawn, 0);
    lisp(u"(command \"LINE\" '(10 10) '(20 20) \"\")"_s);
    EXPECT_EQ(window->canvas()->report().drawn, 1);
    lisp(u"(command \"ZOOM\" \"C\" '(15 15) 40)"_s);
    click(15, 15);
    EXPECT_EQ(window->document()->impliedSelection().size(), 1u) << "picks look at the sheet";
    tabs->setCurrentIndex(0);
    EXPECT_TRUE(window->document()->impliedSelection().empty());
    EXPECT_DOUBLE_EQ(window->document()->view().height, height) << "each keeps its view";
    tabs->setCurrentIndex(2);
    EXPECT_DOUBLE_EQ(window->document()->view().height, 40.0);

    lisp(u"(setvar \"CTAB\" \"layout1\")"_s);
    EXPECT_EQ(tabs->currentIndex(), 1);
    while (window->document()->isModified() && window->document()->undoSteps().canUndo())
        window->enter(u"U"_s);
    EXPECT_EQ(texts(), u"Model|Layout1"_s) << "undone";
    EXPECT_EQ(tabs->currentIndex(), 0);
}

TEST_F(MainWindowTest, EveryTabHasALispEngineOfItsOwn)
{
    window->enter(u"(setq who \"first\")"_s);
    window->workbench().documents().create();
    ASSERT_EQ(window->tabs().count(), 2);
    EXPECT_EQ(lisp(u"who"_s), u"nil"_s);
    window->enter(u"(setq who \"second\")"_s);
    window->tabs().setCurrentIndex(0);
    EXPECT_EQ(lisp(u"who"_s), u"\"first\""_s);
    EXPECT_TRUE(window->windowTitle().contains(u"small.dxf"_s));
}

TEST_F(MainWindowTest, ExpressionsMayComeInPieces)
{
    window->enter(u"(setq x"_s);
    EXPECT_EQ(window->commandLine().prompt(), u"(_>"_s);
    window->enter(u" (+ 1"_s);
    window->enter(u"2)) (setq y 4)"_s);
    EXPECT_EQ(lisp(u"(list x y)"_s), u"(3 4)"_s);
    EXPECT_EQ(window->commandLine().prompt(), u"Command:"_s);
    window->enter(u"(setq x (list"_s);
    action(u"&Sample tool"_s)->trigger();
    EXPECT_TRUE(history().contains(u"sample tool"_s)) << "the menu does not complete an expression";
    window->enter(u"(setq x (list \"("_s);
    key(Qt::Key_Escape);
    EXPECT_EQ(window->commandLine().prompt(), u"Command:"_s);
    window->enter(u"(setq x 7)"_s);
    EXPECT_EQ(lisp(u"x"_s), u"7"_s);
}

TEST_F(MainWindowTest, RecordsErrorsAndWhatCannotBePlayed)
{
    window->startRecording(path(u"out.txt"_s));
    window->enter(u"NOSUCH"_s);
    window->enter(u"(car 1)"_s);
    click(1.0, 0.0);
    window->enter(u"(setq n (sslength (ssget \"I\")))"_s);
    QTimer::singleShot(100, window.get(), [this] { key(Qt::Key_Escape); });
    window->enter(u"(progn (setq k 1) (while T))"_s);
    window->workbench().documents().create();
    const QString other = window->document()->title();
    window->enter(u"LINE 0,0 1,1  (setq m 1)"_s);
    window->tabs().setCurrentIndex(0);
    window->enter(u"(setq k 3)"_s);
    window->stopRecording();
    const QString recorded = QString::fromUtf8(read(u"out.txt"_s));
    EXPECT_EQ(recorded.section(u'\n', 1, 2), u"command NOSUCH\nexpect-error \"Unknown command \\\"NOSUCH\\\".\""_s);
    EXPECT_EQ(
        recorded.section(u'\n', 6),
        u"lisp (setq n (sslength (ssget \"I\")))\nlisp (sssetfirst nil nil)\nlisp (progn (setq k 1) (while T))\n"
        "# stopped with Esc, which a session cannot do here\n# opened: %1\n# in %1: command LINE\n# in %1: answer 0,0\n"
        "# in %1: answer 1,1\n# in %1: enter\n# in %1: lisp (setq m 1)\nlisp (setq k 3)\n"_s.arg(other));
    lisp(u"(setq n nil k nil)"_s);
    QString playable = recorded;
    const PlaybackResult played =
        window->play(parsePlayback(playable.remove(u"lisp (progn (setq k 1) (while T))\n"_s)), {});
    EXPECT_TRUE(played.ok) << played.message.toStdString();
    EXPECT_EQ(lisp(u"(list n k m)"_s), u"(1 3 nil)"_s);
    EXPECT_TRUE(window->document()->impliedSelection().empty());
}

/// The window with its Lisp console, and keys for that.
struct LispConsoleTest : MainWindowTest
{
    LispConsoleTest()
    {
        action(u"Lisp &console"_s)->trigger();
        window->activateWindow();
    }
    LispConsole &console() { return window->console(); }
    void press(int code, const QString &text = {})
    {
        QKeyEvent event(QEvent::KeyPress, code, Qt::NoModifier, text);
        QCoreApplication::sendEvent(console().input(), &event);
    }
    /// Lines as a person writes them, each ended by Enter.
    void write(const QString &lines)
    {
        for (const QChar c : lines)
            press(c == u'\n' ? int(Qt::Key_Return) : int(c.toUpper().unicode()), c == u'\n' ? u"\r"_s : QString(c));
        press(Qt::Key_Return, u"\r"_s);
    }
    QString written() { return console().input()->toPlainText(); }
};

TEST_F(LispConsoleTest, RunsWhatIsWrittenOnceItIsWhole)
{
    ASSERT_TRUE(console().isVisible());
    write(u"(setq x 1)\n(defun twice (n) ; of (n\n  (* 2 n))"_s);
    EXPECT_EQ(console().outputText(),
              u"lisp> (setq x 1)\n1\nlisp> (defun twice (n) ; of (n\n    >   (* 2 n))\nTWICE\n"_s);
    EXPECT_EQ(written(), QString());
    write(u"(princ \"a\n(b\") (twice 21) x"_s);
    EXPECT_TRUE(console().outputText().endsWith(u"a\n(b\n1\n"_s)) << console().outputText().toStdString();
    write(u"(princ)\n(twice\n nil)"_s);
    EXPECT_TRUE(console().outputText().contains(u"; error: bad argument type"_s))
        << console().outputText().toStdString();
    EXPECT_TRUE(console().outputText().contains(u"console:1"_s)) << console().outputText().toStdString();
    lisp(u"(setq elsewhere (getvar \"CTAB\"))"_s);
    write(u"(entdel (handent \"2A\"))"_s);
    action(u"&Undo"_s)->trigger();
    EXPECT_EQ(lisp(u"(cdr (assoc 0 (entget (handent \"2A\"))))"_s), u"\"LINE\""_s) << "one undo step";
    EXPECT_FALSE(console().outputText().contains(u"\"LINE\""_s)) << "what others run is not printed here";
}

TEST_F(LispConsoleTest, CompletesExplainsAndRemembers)
{
    console().input()->insertPlainText(u"(vl-string-tri"_s);
    press(Qt::Key_Tab);
    EXPECT_EQ(written(), u"(vl-string-trim"_s);
    EXPECT_TRUE(console().helpText().startsWith(u"(vl-string-trim "_s)) << console().helpText().toStdString();
    console().input()->insertPlainText(u" \" \" "_s);
    EXPECT_TRUE(console().helpText().startsWith(u"(vl-string-trim "_s)) << "the call that is being written";
    press(Qt::Key_Escape);
    EXPECT_EQ(written(), QString());
    console().input()->insertPlainText(u"(getvar \"OSMO"_s);
    press(Qt::Key_Tab);
    EXPECT_TRUE(console().helpText().startsWith(u"system variable OSMODE"_s));
    write(u"\")\n(setq a\n 2)"_s);
    press(Qt::Key_Up);
    EXPECT_EQ(written(), u"(setq a\n 2)"_s);
    press(Qt::Key_Up);
    EXPECT_EQ(written(), u"(setq a\n 2)"_s) << "within the form";
    console().input()->moveCursor(QTextCursor::Start);
    press(Qt::Key_Up);
    EXPECT_EQ(written(), u"(getvar \"OSMODE\")"_s);
    window->close();
    EXPECT_EQ(Preferences::load(path(u"home"_s)).forms.size(), 2);
}

TEST_F(LispConsoleTest, AsksAtTheCommandLineAndIsStoppedByEsc)
{
    meanwhile([this] { window->enter(u"12.5"_s); });
    write(u"(setq size (getreal \"\\nSize: \"))"_s);
    EXPECT_TRUE(console().outputText().endsWith(u"12.5\n"_s)) << console().outputText().toStdString();
    QTimer::singleShot(100, window.get(), [this] {
        write(u"(setq intruder T)"_s);
        press(Qt::Key_Escape);
    });
    write(u"(while T)"_s);
    EXPECT_TRUE(console().outputText().contains(u"A command is running"_s));
    EXPECT_EQ(lisp(u"intruder"_s), u"nil"_s);
    write(u"(setq alive T)"_s);
    EXPECT_EQ(lisp(u"alive"_s), u"T"_s);
}

TEST_F(LispConsoleTest, IsRecordedAsLinesThatPlay)
{
    const QString file = path(u"recorded.txt"_s);
    window->startRecording(file);
    write(u"(setq n 3) ; three\n(setq text\n \"a;b\nc\" #| 1)"_s.replace(u"#| 1"_s, u";| not\n this |;)"_s));
    window->stopRecording();
    EXPECT_TRUE(read(u"recorded.txt"_s).contains("lisp (setq text \"a;b\\nc\""))
        << read(u"recorded.txt"_s).toStdString();
    lisp(u"(setq n nil text nil)"_s);
    const PlaybackResult played = window->play(readPlayback(file), {});
    EXPECT_TRUE(played.ok) << played.message.toStdString();
    EXPECT_EQ(lisp(u"(list n text)"_s), u"(3 \"a;b\\nc\")"_s);
}

TEST_F(MainWindowTest, PromptsAreAnsweredByLineAndCanvas)
{
    meanwhile([this] {
        EXPECT_TRUE(window->commandLine().prompt().contains(u"Size"_s));
        window->enter(u"12.5"_s);
    });
    window->enter(u"(setq size (getreal \"\\nSize: \"))"_s);
    EXPECT_EQ(lisp(u"size"_s), u"12.5"_s);
    meanwhile([this] { click(3.0, 7.0); });
    window->enter(u"(setq p (getpoint \"\\nFrom: \"))"_s);
    EXPECT_EQ(lisp(u"(equal p '(3.0 7.0 0.0) 0.1)"_s), u"T"_s);
    meanwhile([this] { click(1.0, 0.0); });
    window->enter(u"(setq e (cdr (assoc 5 (entget (car (entsel))))))"_s);
    EXPECT_EQ(lisp(u"e"_s), u"\"2A\""_s);
    meanwhile([this] {
        click(10.5, 11.0);
        click(-0.5, -0.5);
        meanwhile([this] { window->enter({}); });
    });
    window->enter(u"(setq s (sslength (ssget)))"_s);
    EXPECT_EQ(lisp(u"s"_s), u"3"_s);
    EXPECT_EQ(window->commandLine().prompt(), u"Command:"_s);
}

TEST_F(MainWindowTest, DraggedEntitiesHangAtThePointer)
{
    kernel::Document &document = *window->document();
    const drawing::RecordId line = document.drawing().find(drawing::Handle{0x2A});
    /// Whether something is drawn within a pixel of the place.
    const auto isDrawn = [this](double x, double y) {
        const QImage picture = window->canvas()->grab().toImage();
        const QPoint at = onScreen(x, y).toPoint();
        const QRect around(at.x() - 1, at.y() - 1, 3, 3);
        const QRgb ground = picture.pixel(2, 2);
        const QImage part = picture.copy(around);
        for (int i = 0; i < 9; ++i)
            if (part.pixel(i % 3, i / 3) != ground)
                return true;
        return false;
    };
    meanwhile([&] {
        // Held two below itself, the line is two above the pointer, clear of the crosshair.
        mouse(QEvent::MouseMove, 1.0, 4.5);
        EXPECT_TRUE(isDrawn(6.0, 6.5));
        EXPECT_FALSE(isDrawn(6.0, 7.5));
        mouse(QEvent::MouseMove, 1.0, 5.5);
        EXPECT_FALSE(isDrawn(6.0, 6.5));
        EXPECT_TRUE(isDrawn(6.0, 7.5));
        window->canvas()->zoomBy(0.5);
        mouse(QEvent::MouseMove, 1.0, 5.5);
        EXPECT_TRUE(isDrawn(6.0, 7.5));
        click(1.0, 5.5);
    });
    drawing::Vec3 point;
    document.runAs(u"DRAG"_s, [&] {
        EXPECT_EQ(document.prompts().dragToPoint(u"\nTo: "_s, {0.0, -2.0, 0.0}, {line}, point), kRtNormal);
    });
    EXPECT_NEAR(point.y, 5.5, 0.1);
    EXPECT_FALSE(document.isModified());
    mouse(QEvent::MouseMove, 1.0, 5.5);
    EXPECT_FALSE(isDrawn(6.0, 7.5));
}

TEST_F(MainWindowTest, PointsSnapToWhatTheMarkSays)
{
    const auto hasMark = [this](double x, double y) {
        const QImage picture = window->canvas()->grab().toImage();
        const QPoint at = onScreen(x, y).toPoint();
        for (int i = -8; i <= 8; ++i)
            if (picture.pixelColor(at.x() + i, at.y() - 6) == QColor(0x2f, 0xc8, 0x5a))
                return true;
        return false;
    };
    lisp(u"(setvar \"OSMODE\" 1)"_s);
    mouse(QEvent::MouseMove, 4.0, 0.05);
    EXPECT_FALSE(hasMark(0.0, 0.0)) << "no point is asked for";
    meanwhile([&] {
        mouse(QEvent::MouseMove, 4.0, 0.05);
        EXPECT_TRUE(hasMark(0.0, 0.0));
        mouse(QEvent::MouseMove, 9.0, 0.05);
        EXPECT_TRUE(hasMark(10.0, 0.0));
        EXPECT_FALSE(hasMark(0.0, 0.0));
        click(4.0, 0.05);
    });
    window->enter(u"(setq p (getpoint))"_s);
    EXPECT_EQ(lisp(u"p"_s), u"(0.0 0.0 0.0)"_s);
    meanwhile([&] {
        window->enter(u"_mid"_s);
        meanwhile([&] {
            mouse(QEvent::MouseMove, 4.0, 0.05);
            EXPECT_TRUE(hasMark(5.0, 0.0)) << "the word goes before OSMODE";
            click(4.0, 0.05);
        });
    });
    window->enter(u"(setq p (getpoint))"_s);
    EXPECT_EQ(lisp(u"p"_s), u"(5.0 0.0 0.0)"_s);
}

TEST_F(MainWindowTest, ProgramsFollowThePointerAndDrawForTheMoment)
{
    meanwhile([this] {
        mouse(QEvent::MouseMove, 3.0, 4.0);
        meanwhile([this] {
            click(5.0, 6.0);
            meanwhile([this] {
                QKeyEvent typed(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, u"a"_s);
                QCoreApplication::sendEvent(window->canvas(), &typed);
            });
        });
    });
    window->enter(u"(setq e (list (grread T) (grread) (grread)))"_s);
    EXPECT_EQ(lisp(u"(mapcar 'car e)"_s), u"(5 3 2)"_s);
    EXPECT_EQ(lisp(u"(equal (mapcar 'cadr e) '((3.0 4.0 0.0) (5.0 6.0 0.0) 97) 0.1)"_s), u"T"_s);
    // A line between two rows of pixels may be drawn in either of them.
    const auto colour = [this] {
        const QPoint at = onScreen(7.0, 8.5).toPoint();
        const QImage picture = window->canvas()->grab().toImage();
        const QColor above = picture.pixelColor(at.x(), at.y() - 1);
        return above == picture.pixelColor(2, 2) ? picture.pixelColor(at) : above;
    };
    const QColor ground = colour();
    lisp(u"(grdraw '(2 8.5) '(8 8.5) 1)(grtext -1 \"Turn it\")"_s);
    EXPECT_EQ(colour(), QColor(Qt::red));
    EXPECT_EQ(window->findChild<QLabel *>(u"programText"_s)->text(), u"Turn it"_s);
    lisp(u"(redraw)(grtext)"_s);
    EXPECT_EQ(colour(), ground);
    EXPECT_EQ(window->findChild<QLabel *>(u"programText"_s)->text(), u""_s);
}

TEST_F(MainWindowTest, EscCancelsPromptsAndStopsEndlessLoops)
{
    meanwhile([this] { key(Qt::Key_Escape); });
    window->enter(u"(progn (getpoint \"From: \") (setq went-on T))"_s);
    EXPECT_EQ(lisp(u"went-on"_s), u"nil"_s);
    QTimer::singleShot(100, window.get(), [this] { key(Qt::Key_Escape); });
    window->enter(u"(while T)"_s);
    const QString script = write(u"again.scr"_s, "SCRIPT " + path(u"again.scr"_s).toUtf8() + "\n");
    QTimer::singleShot(100, window.get(), [this] { key(Qt::Key_Escape); });
    window->enter(u"SCRIPT "_s + script);
    window->enter(u"(setq alive T)"_s);
    EXPECT_EQ(lisp(u"alive"_s), u"T"_s) << "an earlier Esc must not stop the next run";
}

TEST_F(MainWindowTest, NothingElseStartsWhileSomethingRuns)
{
    bool checked = false;
    QTimer::singleShot(100, window.get(), [&] {
        checked = true;
        window->enter(u"(setq intruder T)"_s);
        EXPECT_FALSE(action(u"&New"_s)->isEnabled() || action(u"&Sample tool"_s)->isEnabled());
        EXPECT_FALSE(window->close());
        key(Qt::Key_Escape);
    });
    window->enter(u"(while T)"_s);
    EXPECT_TRUE(checked);
    EXPECT_EQ(lisp(u"intruder"_s), u"nil"_s);
    EXPECT_TRUE(history().contains(u"A command is running; Esc stops it."_s));
}

TEST_F(MainWindowTest, PointerChoosesEntities)
{
    const auto chosen = [this] { return window->document()->impliedSelection().size(); };
    click(1.0, 0.0);
    EXPECT_EQ(chosen(), 1u);
    click(1.0, 0.0, Qt::ShiftModifier);
    EXPECT_EQ(chosen(), 0u);
    mouse(QEvent::MouseButtonPress, -0.5, 8.0);
    mouse(QEvent::MouseMove, 8.0, 2.0);
    mouse(QEvent::MouseButtonRelease, 8.0, 2.0);
    EXPECT_EQ(chosen(), 1u) << "to the right: the circle that lies within";
    click(10.5, 11.0);
    click(8.0, -0.5);
    EXPECT_EQ(chosen(), 3u) << "to the left: the lines that are crossed as well";
    key(Qt::Key_Escape);
    EXPECT_EQ(chosen(), 0u);
}

TEST_F(MainWindowTest, ChangesAreMarkedAndAskedFor)
{
    ortakit::test::ModalAnswers user;
    EXPECT_FALSE(window->isWindowModified());
    window->enter(u"(entdel (handent \"2A\"))"_s);
    EXPECT_TRUE(window->isWindowModified());
    EXPECT_EQ(window->tabs().tabText(0), u"small.dxf*"_s);
    user.press(QMessageBox::Cancel);
    EXPECT_FALSE(window->close());
    window->enter(u"_U"_s);
    EXPECT_FALSE(window->isWindowModified());
    window->enter(u"(entdel (handent \"2A\"))"_s);
    user.press(QMessageBox::Yes);
    EXPECT_TRUE(window->close());
    EXPECT_EQ(window->tabs().count(), 0);
    ASSERT_EQ(user.shown().size(), 2);
    EXPECT_TRUE(user.shown()[0].contains(u"small.dxf was changed. Save it?"_s)) << user.shown()[0].toStdString();
    EXPECT_EQ(read(u"small.dxf"_s).count("\nLINE\n"), 1);
}

TEST_F(MainWindowTest, WhatIsReplacedIsAskedAboutByItsCompleteName)
{
    const std::tuple<QString, QString, QString> rows[] = {
        {u"Save &as..."_s, u"other"_s, u"other.dxf"_s},        {u"Save &as..."_s, u"third.dxf"_s, u"third.dxf"_s},
        {u"&PNG picture..."_s, u"plan"_s, u"plan.png"_s},      {u"&SVG drawing..."_s, u"plan.v2"_s, u"plan.v2.svg"_s},
        {u"P&DF page..."_s, u"plan.dxf"_s, u"plan.dxf.pdf"_s},
    };
    for (const auto &[menuEntry, typed, target] : rows) {
        SCOPED_TRACE(menuEntry.toStdString() + ' ' + typed.toStdString());
        write(target, "old");
        const auto isOld = [&, &file = target] { return read(file) == "old"; };
        ortakit::test::ModalAnswers user;
        user.choose(path(typed));
        user.press(QMessageBox::No);
        user.choose({});
        action(menuEntry)->trigger();
        EXPECT_TRUE(user.isDone() && isOld());
        user.choose(path(typed));
        user.press(QMessageBox::Yes);
        action(menuEntry)->trigger();
        EXPECT_TRUE(user.isDone() && !isOld());
        ASSERT_EQ(user.shown().size(), 5);
        EXPECT_TRUE(user.shown()[1].contains(target + u" already exists."_s)) << user.shown()[1].toStdString();
    }
}

TEST_F(MainWindowTest, ACancelledQuitClosesNothing)
{
    window->workbench().documents().create();
    window->workbench().documents().create();
    for (const int tab : {0, 2}) {
        window->tabs().setCurrentIndex(tab);
        window->enter(u"(command \"POINT\" '(1 1))"_s);
    }
    ortakit::test::ModalAnswers user;
    const auto press = [](const QString &button) {
        return [button](QWidget *dialog) { dialog->findChild<QAbstractButton *>(button)->click(); };
    };
    user.drive(press(u"closingCancel"_s));
    EXPECT_FALSE(window->close());
    EXPECT_EQ(window->tabs().count(), 3);
    user.drive(press(u"closingDiscard"_s));
    EXPECT_TRUE(window->close());
    EXPECT_TRUE(user.isDone());
    EXPECT_EQ(window->tabs().count(), 0);
}

TEST_F(MainWindowTest, WhatASelectionHasSoFarIsHighlighted)
{
    const auto highlighted = [this] {
        const QImage picture = window->canvas()->grab().toImage();
        int count = 0;
        for (int x = 0; x < picture.width(); ++x)
            for (int y = 0; y < picture.height(); ++y)
                count += picture.pixelColor(x, y) == host::view::PaintOptions().highlight;
        return count;
    };
    int one = 0;
    meanwhile([&] {
        EXPECT_EQ(highlighted(), 0);
        click(1.0, 0.0);
        meanwhile([&] {
            one = highlighted();
            click(1.0, 10.0);
            meanwhile([&] {
                EXPECT_GT(highlighted(), 1.5 * one);
                window->enter(u"_Undo"_s);
                meanwhile([&] {
                    EXPECT_NEAR(highlighted(), one, 0.1 * one) << "the pointer hides some";
                    window->enter({});
                });
            });
        });
    });
    window->enter(u"(setq s (sslength (ssget)))"_s);
    EXPECT_EQ(lisp(u"s"_s), u"1"_s);
    EXPECT_GT(one, 0);
    EXPECT_EQ(highlighted(), 0);
    one = 0;
    std::function<void()> look = [&] {
        if (window->commandLine().prompt() == u"Command:"_s)
            return meanwhile(look); // events were let through before there was a prompt
        one = highlighted();
        key(Qt::Key_Escape);
    };
    meanwhile(look);
    window->enter(u"move all "_s);
    EXPECT_GT(one, 0) << "by the command that asks for a base point";
    EXPECT_EQ(highlighted(), 0);
}

TEST_F(MainWindowTest, TheStatusBarSaysWhatIsMissing)
{
    const std::pair<QByteArray, QString> rows[] = {
        {smallDrawing(), u"All entities drawn"_s},
        {QByteArray(smallDrawing()).replace("0\nCIRCLE\n", "0\n3DSOLID\n"), u"1 not drawn (3DSOLID 1)"_s},
        {QByteArray(smallDrawing()).replace("0\nCIRCLE\n", "0\n<img src='a'>\n"), u"1 not drawn (<img src='a'> 1)"_s},
    };
    for (const auto &[bytes, text] : rows) {
        window->start({write(u"reported%1.dxf"_s.arg(text.size()), bytes)});
        const auto *label = window->findChild<QLabel *>(u"notDrawn"_s);
        EXPECT_EQ(label->text(), text);
        EXPECT_EQ(label->textFormat(), Qt::PlainText) << "a file's names are no markup, which could read files";
        EXPECT_TRUE(Qt::mightBeRichText(label->toolTip()) && !label->toolTip().contains(u"<img"_s));
    }
}

TEST_F(MainWindowTest, DroppedFilesOpen)
{
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(write(u"other.dxf"_s, smallDrawing())),
                  QUrl::fromLocalFile(write(u"extra.lsp"_s, "(setq extra T)"))});
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window.get(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent event(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    ortakit::test::ModalAnswers user;
    for (const auto &[button, extra] : {std::pair(u"No"_s, u"nil"_s), std::pair(u"Load once"_s, u"T"_s)}) {
        user.drive([button = button](QWidget *box) {
            for (QPushButton *each : box->findChildren<QPushButton *>())
                if (each->text().remove(u'&') == button)
                    return each->click();
        });
        QCoreApplication::sendEvent(window.get(), &enter);
        QCoreApplication::sendEvent(window.get(), &event);
        QCoreApplication::processEvents();
        EXPECT_EQ(window->tabs().count(), 2);
        EXPECT_EQ(lisp(u"extra"_s), extra);
    }
    ASSERT_EQ(user.shown().size(), 2);
    EXPECT_TRUE(QString(user.shown()[0]).remove(u'\n').contains(path(u"extra.lsp"_s))) << user.shown()[0].toStdString();
    user.press(QMessageBox::Ok);
    window->start({write(u"broken.dxf"_s, "0\nSECTION\n2\nENT")});
    ASSERT_EQ(user.shown().size(), 3);
    EXPECT_TRUE(user.shown()[2].contains(u"broken.dxf"_s));
    EXPECT_EQ(window->tabs().count(), 2);
}

/// Presses the button with this caption in the next box; without a mnemonic.
void pressNext(ortakit::test::ModalAnswers &user, const QString &caption)
{
    user.drive([caption](QWidget *box) {
        for (QAbstractButton *button : box->findChildren<QAbstractButton *>())
            if (button->text().remove(u'&') == caption)
                return button->click();
        ADD_FAILURE() << "no button " << caption.toStdString();
        box->close();
    });
}

TEST_F(MainWindowTest, AsksBeforeADrawingOfOthersIsOpenedOrReplaced)
{
    const QString theirs = write(u"theirs.dxf"_s, smallDrawing());
    kernel::Session second({.home = path(u"home2"_s), .supportFolders = {}, .helpFolder = {}});
    ASSERT_TRUE(second.documents().open(theirs));
    ortakit::test::ModalAnswers user;
    user.press(QMessageBox::Cancel);
    window->start({theirs});
    EXPECT_TRUE(user.shown().value(0).contains(u"theirs.dxf is open in another program ("_s));
    EXPECT_TRUE(user.shown().value(0).contains(u"replaces what is saved there"_s));
    EXPECT_EQ(window->tabs().count(), 1);
    const QString foreign = write(u"theirs.dwg"_s, dwgFile(2));
    ASSERT_TRUE(second.documents().open(foreign));
    user.press(QMessageBox::Cancel);
    window->start({foreign});
    EXPECT_TRUE(user.shown().value(1).contains(u"saved under another name"_s)) << "nothing replaces a DWG file";
    pressNext(user, u"Open read-only"_s);
    window->start({theirs});
    ASSERT_EQ(window->tabs().tabText(1), u"theirs.dxf (read only)"_s);
    const auto save = [&] { action(u"&Save"_s)->trigger(); };
    lisp(u"(entdel (entlast))"_s);
    const QString copy = path(u"copy.dxf"_s);
    pressNext(user, u"Save under another name..."_s);
    user.choose(drawing);
    user.press(QMessageBox::Yes);
    pressNext(user, u"Save under another name..."_s);
    user.choose(copy);
    save();
    EXPECT_TRUE(user.isDone());
    EXPECT_TRUE(user.shown().value(6).contains(u"small.dxf is open in this program"_s))
        << user.shown().join(u'\n').toStdString();
    EXPECT_EQ(window->tabs().tabText(1), u"copy.dxf"_s);

    write(u"copy.dxf"_s, "someone else's");
    lisp(u"(entdel (entlast))"_s);
    user.press(QMessageBox::Cancel);
    save();
    EXPECT_TRUE(user.shown().last().contains(u"copy.dxf was changed by another program"_s));
    EXPECT_TRUE(window->document()->isModified());
    pressNext(user, u"Save anyway"_s);
    save();
    EXPECT_FALSE(window->document()->isModified());
}

TEST_F(MainWindowTest, ManyTabsCostTheirNumberAndNotItsSquare)
{
    TabCountingStyle style;
    window->tabs().tabBar()->setStyle(&style);
    const auto measuredFor = [&](int count) {
        QStringList paths;
        for (int i = 0; i < count; ++i)
            paths.append(write(u"many%1of%2.dxf"_s.arg(i).arg(count), smallDrawing()));
        QCoreApplication::processEvents();
        style.measured = 0;
        window->start(paths);
        QCoreApplication::processEvents();
        EXPECT_EQ(window->document()->path(), paths.last());
        EXPECT_EQ(window->canvas() ? &window->canvas()->document() : nullptr, window->document());
        EXPECT_TRUE(window->tabs().tabBar()->isVisible());
        return style.measured;
    };
    const int few = measuredFor(5);
    const int many = measuredFor(30);
    EXPECT_GT(few, 0);
    EXPECT_LE(many, 12 * few) << "6 tabs, then 36";
    style.measured = 0;
    window->enter(u"(+ 1 2)"_s);
    EXPECT_LE(style.measured, 0) << "the titles are what they were";
    window->close();
    EXPECT_EQ(window->tabs().count(), 0);
    EXPECT_LE(style.measured, 12 * few) << "36 that go";
    window->tabs().tabBar()->setStyle(nullptr);
}

TEST_F(MainWindowTest, StyleChangesAllAndIsKnownToThePlatform)
{
    for (const bool isDark : {true, false}) {
        window->setStyleOfWindows(isDark ? Style::Dark : Style::Light);
        QCoreApplication::processEvents();
        EXPECT_EQ(CKvUtils::isDarkStyle(), isDark);
        const QPalette palette = window->commandLine().palette();
        EXPECT_EQ(palette.color(QPalette::Base).lightness() < 128, isDark);
        EXPECT_EQ(palette.color(QPalette::Text).lightness() < 128, !isDark);
    }
}

TEST_F(MainWindowTest, RemembersStyleGroundAndEntries)
{
    window->setStyleOfWindows(Style::Dark);
    window->commandLine().setEntries({u"LINE"_s});
    action(u"W&hite ground"_s)->trigger();
    ASSERT_TRUE(window->close());
    const Preferences kept = Preferences::load(path(u"home"_s));
    EXPECT_EQ(kept.style, Style::Dark);
    EXPECT_EQ(kept.ground, host::view::Ground::White);
    EXPECT_EQ(kept.entries, QStringList(u"LINE"_s));
    write(u"home/workbench.ini"_s, QByteArray(100, '\xff'));
    EXPECT_EQ(Preferences::load(path(u"home"_s)).style, Style::Light);
}

TEST_F(MainWindowTest, PlaysSessionsAndShowsWhatIsAsked)
{
    const PlaybackScript script =
        parsePlayback(uR"(lisp (setq p (getpoint "\nFrom: ")) ~ screenshot w.png ~ point 1,2 ~ expect-lisp p)"_s);
    PlaybackOptions options;
    options.outFolder = folder.path();
    const PlaybackResult result = window->play(script, options);
    EXPECT_TRUE(result.ok) << result.message.toStdString();
    EXPECT_EQ(QImage(path(u"w.png"_s)).size(), window->size());
    EXPECT_EQ(window->commandLine().prompt(), u"Command:"_s);
    window->enter(u"(setq after T)"_s);
    EXPECT_EQ(lisp(u"after"_s), u"T"_s);
}

/// The mnemonics of a menu and those below it, each menu by itself.
void checkMenu(const QList<QAction *> &actions, const QString &name)
{
    QSet<QChar> letters;
    for (QAction *action : actions) {
        if (const qsizetype place = action->text().indexOf(u'&'); place >= 0) {
            const QChar letter = action->text()[place + 1].toLower();
            EXPECT_FALSE(letters.contains(letter)) << name.toStdString() << ": " << action->text().toStdString();
            letters.insert(letter);
        }
        if (action->menu())
            checkMenu(action->menu()->actions(), action->text());
    }
    // Long menus run out of letters.
    for (const QAction *action : actions) {
        const auto isTaken = [&](QChar letter) { return !letter.isLetter() || letters.contains(letter.toLower()); };
        const bool hasNone = action->isEnabled() && !action->isSeparator() && !action->text().contains(u'&');
        EXPECT_TRUE(!hasNone || std::ranges::all_of(action->text(), isTaken)) << action->text().toStdString();
    }
}

TEST_F(MainWindowTest, MnemonicsAndShortcutsDoNotClash)
{
    checkMenu(window->menuBar()->actions(), u"menu bar"_s);
    QMap<QKeySequence, QString> shortcuts;
    for (const QAction *action : window->findChildren<QAction *>()) {
        if (action->shortcut().isEmpty())
            continue;
        EXPECT_FALSE(shortcuts.contains(action->shortcut()))
            << action->text().toStdString() << " and " << shortcuts.value(action->shortcut()).toStdString();
        shortcuts.insert(action->shortcut(), action->text());
    }
    EXPECT_GT(shortcuts.size(), 8);
}

TEST_F(MainWindowTest, UndoKeyMeansTheDrawingWhileNothingIsWritten)
{
    window->enter(u"(entdel (handent \"2A\"))"_s);
    const auto overridden = [this] {
        QKeyEvent event(QEvent::ShortcutOverride, Qt::Key_Z, Qt::ControlModifier, u"\x1a"_s);
        event.ignore();
        QCoreApplication::sendEvent(window->commandLine().input(), &event);
        return event.isAccepted();
    };
    EXPECT_FALSE(overridden());
    window->commandLine().input()->setText(u"text"_s);
    EXPECT_TRUE(overridden());
}

TEST_F(MainWindowTest, WheelKeepsWhatIsUnderThePointer)
{
    const QPointF at = onScreen(2.0, 3.0);
    QWidget &canvas = *window->canvas();
    QWheelEvent event(at, canvas.mapToGlobal(at), {}, {0, 240}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    const double before = window->document()->view().height;
    QCoreApplication::sendEvent(&canvas, &event);
    EXPECT_LT(window->document()->view().height, before);
    EXPECT_NEAR(onScreen(2.0, 3.0).x(), at.x(), 1e-6);
    EXPECT_NEAR(onScreen(2.0, 3.0).y(), at.y(), 1e-6);
}

QWidget *part(const QString &name)
{
    QWidget *dialog = QApplication::activeModalWidget();
    return dialog ? dialog->findChild<QWidget *>(name) : nullptr;
}

void press(const QString &name)
{
    if (auto *button = qobject_cast<QAbstractButton *>(part(name)))
        button->click();
}

TEST_F(MainWindowTest, RecordsASessionThatPlays)
{
    const QString everything = u"(progn (setq l nil e (entnext)) (while e (setq l (cons (cdr (entget e)) l) e "
                               "(entnext e))) l)"_s;
    defineSampleBox(*window->document());
    window->startRecording(path(u"out.txt"_s));
    {
        const Hands hands(
            {[&] { window->enter(u"1,1"_s); }, [&] { click(4.0, 3.0); }, [&] { window->enter(QString()); }});
        window->enter(u"LINE"_s);
        EXPECT_TRUE(hands.left.isEmpty());
    }
    {
        const Hands hands({[&] { click(5.0, 0.0); }, [&] { window->enter(QString()); }});
        window->enter(u"erase"_s);
    }
    {
        const Hands hands({[] { press(u"accept"_s); },
                           [] { QApplication::activeModalWidget()->findChild<QAbstractButton *>()->click(); },
                           [] { qobject_cast<QLineEdit *>(part(u"name"_s))->insert(u"a \"b\""_s); },
                           [] {
                               part(u"_dist_size"_s)->setFocus();
                               QKeyEvent up(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier);
                               QCoreApplication::sendEvent(part(u"_dist_size"_s), &up);
                           },
                           [] { press(u"accept"_s); }});
        window->enter(u"(if (samplebox) (entmake (list (cons 0 \"CIRCLE\") (cons 10 (list 1.0 2.0 0.0)) "
                      "(cons 40 (float (strlen entered))))))"_s);
    }
    {
        const Hands hands({[&] { window->enter(u"9,9"_s); }, [&] { key(Qt::Key_Escape); }});
        window->enter(u"line"_s);
    }
    const QString drawn = lisp(everything);
    window->stopRecording();
    const QString recorded = QString::fromUtf8(read(u"out.txt"_s));
    const QString point = recorded.section(u'\n', 3, 3);
    EXPECT_TRUE(point.startsWith(u"pick "_s)) << recorded.toStdString();
    EXPECT_EQ(
        QString(recorded).replace(point, u"PICK"_s).replace(QRegularExpression(u"(pickhandle 2A) .*"_s), u"\\1"_s),
        u"drawing small.dxf\ncommand LINE\nanswer 1,1\nPICK\nenter\ncommand erase\npickhandle 2A\nenter\n"
        "lisp (if (samplebox) (entmake (list (cons 0 \"CIRCLE\") (cons 10 (list 1.0 2.0 0.0)) (cons 40 (float "
        "(strlen entered))))))\ndialog SampleBox\n  click accept\nmessage \"Filename can`t be empty\" Ok\n"
        "  set name \"a \\\"b\\\"\"\n  set _dist_size 1.00\n  click accept\ncommand line\nanswer 9,9\ncancel\n"_s);
    window->start({write(u"again.dxf"_s, smallDrawing())});
    defineSampleBox(*window->document());
    EXPECT_NE(lisp(everything), drawn);
    const PlaybackResult played = window->play(readPlayback(path(u"out.txt"_s)), {});
    EXPECT_TRUE(played.ok) << played.message.toStdString();
    EXPECT_EQ(lisp(everything), drawn);
    EXPECT_TRUE(drawn.contains(u"(40 . 5.0)"_s)) << drawn.toStdString();
}

TEST_F(MainWindowTest, ExternalReferencesThatAreNotWholeAreToldOnce)
{
    write(u"hurt.dwg"_s, dwgFile(2, 1));
    window->start({write(u"host.dxf"_s, smallDrawing())});
    lisp(u"(entmake '((0 . \"BLOCK\") (2 . \"H\") (70 . 4) (10 0.0 0.0 0.0) (1 . \"hurt.dwg\")))"
         "(entmake '((0 . \"ENDBLK\")))(entmake '((0 . \"INSERT\") (2 . \"H\") (10 0.0 0.0 0.0)))"_s);
    const QString told = u"hurt.dwg: 1 object could not be read."_s;
    for (const char *look : {"_.ZOOM", "_.REGEN"}) {
        lisp(u"(command \"%1\")"_s.arg(QString::fromLatin1(look)) + u"(command)"_s);
        window->grab();
        EXPECT_EQ(history().count(told), 1) << look << '\n' << history().toStdString();
    }
    lisp(u"(command \"_.-XREF\" \"_Reload\" \"H\")"_s);
    window->grab();
    EXPECT_EQ(history().count(told), 2) << "reading it again was asked for, and the view does not say it too";
}

TEST_F(MainWindowTest, DwgFilesOpenWithWhatCouldNotBeReadAboveThem)
{
    auto *bar = window->findChild<QWidget *>(u"lossBar"_s);
    ASSERT_TRUE(bar && !bar->isVisible());
    const QByteArray file = dwgFile(2, 1);
    window->start({write(u"hurt.dwg"_s, file)});
    EXPECT_TRUE(bar->isVisible());
    EXPECT_EQ(window->document()->claim().change(), kernel::FileChange::None);
    EXPECT_EQ(bar->findChild<QLabel *>(u"lossText"_s)->text(), u"hurt.dwg: 1 object could not be read."_s);
    auto *list = bar->findChild<QListWidget *>(u"lossList"_s);
    EXPECT_FALSE(list->isVisible());
    bar->findChild<QAbstractButton *>(u"lossDetails"_s)->click();
    ASSERT_TRUE(list->isVisible() && list->count() == 1);
    EXPECT_EQ(list->item(0)->text(), u"CIRCLE 42 could not be read: The object ends before its values do."_s);
    window->workbench().documents().create();
    EXPECT_FALSE(bar->isVisible());

    window->tabs().setCurrentIndex(window->tabs().count() - 2);
    lisp(u"(command \"_.LINE\" \"0,0\" \"1,1\" \"\")"_s);
    ortakit::test::ModalAnswers answers;
    answers.drive([](QWidget *box) {
        const auto buttons = box->findChildren<QAbstractButton *>();
        const auto isOtherName = [](const QAbstractButton *button) { return button->text().contains(u"another"_s); };
        (*std::ranges::find_if(buttons, isOtherName))->click();
    });
    answers.choose(path(u"saved.dxf"_s));
    window->findChild<QAction *>(u"save"_s)->trigger();
    EXPECT_TRUE(answers.isDone());
    EXPECT_EQ(read(u"hurt.dwg"_s), file);
    EXPECT_EQ(read(u"saved.dxf"_s).count("\nCIRCLE\n"), 2);
    EXPECT_EQ(window->document()->title(), u"saved.dxf"_s);
    EXPECT_FALSE(bar->isVisible()) << "the new file has all that is in the drawing";
    EXPECT_FALSE(window->document()->drawing().isFromDwg());
    EXPECT_FALSE(window->document()->isModified());
}

TEST_F(MainWindowTest, WhatWasKeptBackStandsAboveTheDrawingAndCanBeAllowed)
{
    write(u"own.lsp"_s, "(setq ran (cons 1 ran))");
    auto *bar = window->findChild<QWidget *>(u"trustBar"_s);
    ASSERT_TRUE(bar && !bar->isVisible());
    const QString load = u"(load \"%1\" nil)"_s.arg(path(u"own.lsp"_s));
    const auto keepBack = [&] {
        // The question that comes first is answered with No.
        ortakit::test::ModalAnswers answers;
        answers.press(QMessageBox::No);
        lisp(u"(defun again () %1)(again)"_s.arg(load));
        QCoreApplication::processEvents();
    };
    keepBack();
    EXPECT_TRUE(bar->isVisible());
    EXPECT_TRUE(bar->findChild<QLabel *>(u"trustText"_s)->text().contains(u"own.lsp was not loaded"_s));
    bar->findChild<QAbstractButton *>(u"trustClose"_s)->click();
    window->workbench().documents().create();
    EXPECT_FALSE(bar->isVisible()) << "another drawing has its own";
    window->tabs().setCurrentIndex(0);
    EXPECT_TRUE(bar->isVisible());
    bar->findChild<QAbstractButton *>(u"trustDetails"_s)->click();
    bar->findChild<QAbstractButton *>(u"trustOnce"_s)->click();
    EXPECT_EQ(lisp(u"ran"_s), u"(1)"_s);
    EXPECT_EQ(lisp(u"(again) ran"_s), u"(1 1)"_s) << "for the session";
    QCoreApplication::processEvents();
    EXPECT_FALSE(bar->isVisible());
}

} // namespace
} // namespace host::app
