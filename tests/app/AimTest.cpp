// Aiming in the window: switches, snaps for one point, what hangs at the pointer, lengths and angles typed there.

#include "host/app/window/MainWindow.h"
#include "host/app/window/canvas/DrawingCanvas.h"
#include "host/app/window/entry/CommandLine.h"
#include "host/kernel/documents/CurrentView.h"
#include "host/kernel/variables/SystemVariables.h"
#include "tests/app/AppFixture.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QTimer>
#include <QToolButton>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace host::app::test {
namespace {

struct AimTest : testing::Test, TestFolder
{
    AimTest()
    {
        const QString drawing = write(u"small.dxf"_s, smallDrawing());
        window = std::make_unique<MainWindow>(
            WorkbenchOptions{.home = path(u"home"_s), .module = path(u"none.so"_s), .tools = path(u"tools"_s)});
        window->show();
        window->start({drawing});
        lisp(u"(setvar \"OSMODE\" 0)(setvar \"AUTOSNAP\" 55)(setvar \"DYNMODE\" -3)"
             "(command \"ERASE\" \"ALL\" \"\" \"ZOOM\" \"C\" '(0 0) 40)"_s);
    }

    QString lisp(const QString &text) { return window->document()->run(text).value; }
    QToolButton &button(const char *name) { return *window->findChild<QToolButton *>(QString::fromLatin1(name)); }
    int value(QStringView name) { return window->document()->variables().integer(name); }
    /// One after the other, each once the prompt before it has been answered.
    void inTurn(std::vector<std::function<void()>> steps)
    {
        if (steps.empty())
            return;
        QTimer::singleShot(0, window.get(), [this, steps]() mutable {
            const std::function<void()> first = steps.front();
            steps.erase(steps.begin());
            inTurn(steps);
            first();
        });
    }
    QPointF onScreen(double x, double y)
    {
        const kernel::ViewState &view = window->document()->view();
        const QSize size = window->canvas()->size();
        const double scale = size.height() / view.height;
        return {size.width() / 2.0 + (x - view.centre.x) * scale, size.height() / 2.0 - (y - view.centre.y) * scale};
    }
    void mouse(QEvent::Type type, double x, double y, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QWidget &canvas = *window->canvas();
        QMouseEvent event(type, onScreen(x, y), canvas.mapToGlobal(onScreen(x, y)), button, button, modifiers);
        QCoreApplication::sendEvent(&canvas, &event);
    }
    void click(double x, double y)
    {
        mouse(QEvent::MouseMove, x, y);
        mouse(QEvent::MouseButtonPress, x, y);
        mouse(QEvent::MouseButtonRelease, x, y);
    }
    void key(int code)
    {
        QKeyEvent event(QEvent::KeyPress, code, Qt::NoModifier);
        QCoreApplication::sendEvent(window->commandLine().input(), &event);
    }
    void write(const char *text) { window->commandLine().input()->setText(QString::fromLatin1(text)); }
    using TestFolder::write;
    /// Whether something is drawn within a pixel of the place.
    bool isDrawn(double x, double y)
    {
        const QImage picture = window->canvas()->grab().toImage();
        const QPoint at = onScreen(x, y).toPoint();
        for (int i = 0; i < 9; ++i)
            if (picture.pixel(at.x() - 1 + i % 3, at.y() - 1 + i / 3) != picture.pixel(2, 2))
                return true;
        return false;
    }

    std::unique_ptr<MainWindow> window;
};

TEST_F(AimTest, SwitchesShowAndSetVariables)
{
    const struct
    {
        const char *button;
        const char *key;
        const char *variable;
        int bit;
        bool isOnWhenSet;
    } rows[] = {{"gridSwitch", "F7", "GRIDMODE", 1, true},
                {"gridSnapSwitch", "F9", "SNAPMODE", 1, true},
                {"orthoSwitch", "F8", "ORTHOMODE", 1, true},
                {"polarSwitch", "F10", "AUTOSNAP", 8, true},
                {"snapSwitch", "F3", "OSMODE", 16384, false}};
    lisp(u"(setvar \"OSMODE\" 33)"_s);
    for (const auto &row : rows) {
        SCOPED_TRACE(row.button);
        const QString variable = QString::fromLatin1(row.variable);
        QToolButton &shown = button(row.button);
        EXPECT_FALSE(shown.accessibleName().isEmpty());
        EXPECT_EQ(shown.defaultAction()->shortcut(), QKeySequence(QString::fromLatin1(row.key)));
        const bool wasOn = shown.isChecked();
        EXPECT_EQ(wasOn, ((value(variable) & row.bit) != 0) == row.isOnWhenSet);
        shown.defaultAction()->trigger();
        EXPECT_NE(shown.isChecked(), wasOn);
        EXPECT_EQ(shown.isChecked(), ((value(variable) & row.bit) != 0) == row.isOnWhenSet);
        lisp(u"(setvar \"%1\" (boole 6 (getvar \"%1\") %2))"_s.arg(variable).arg(row.bit));
        EXPECT_EQ(shown.isChecked(), wasOn) << "a program has set it";
        shown.defaultAction()->trigger();
        shown.defaultAction()->trigger();
    }
    EXPECT_EQ(value(u"OSMODE") & 16383, 33) << "the kinds stay chosen";
    lisp(u"(setvar \"OSMODE\" 0)"_s);
    EXPECT_FALSE(button("snapSwitch").isChecked());
    button("snapSwitch").defaultAction()->trigger();
    EXPECT_EQ(value(u"OSMODE"), 37) << "with nothing chosen the usual kinds";
}

TEST_F(AimTest, OrthoAndPolarTrackingExcludeEachOther)
{
    button("polarSwitch").defaultAction()->trigger();
    EXPECT_TRUE(button("polarSwitch").isChecked());
    button("orthoSwitch").defaultAction()->trigger();
    EXPECT_FALSE(button("polarSwitch").isChecked());
    EXPECT_EQ(value(u"ORTHOMODE"), 1);
    // In the middle of a command, and for the point that it asks for.
    inTurn({[&] {
                mouse(QEvent::MouseMove, 9.0, 6.0);
                button("orthoSwitch").defaultAction()->trigger();
                EXPECT_EQ(value(u"ORTHOMODE"), 0);
            },
            [&] { click(9.0, 6.0); }});
    window->enter(u"(setq p (getpoint '(0 0)))"_s);
    EXPECT_EQ(lisp(u"(equal p '(9 6 0) 0.1)"_s), u"T"_s);
    inTurn({[&] {
        button("orthoSwitch").defaultAction()->trigger();
        key(Qt::Key_Escape);
    }});
    window->enter(u"POINT"_s);
    EXPECT_EQ(value(u"ORTHOMODE"), 1) << "Esc is about the command";
}

TEST_F(AimTest, KindsOfSnapAreChosenInMenus)
{
    lisp(u"(setvar \"OSMODE\" 16385)"_s);
    emit button("snapSwitch").customContextMenuRequested({});
    auto *menu = button("snapSwitch").findChild<QMenu *>(u"runningSnaps"_s);
    ASSERT_TRUE(menu);
    EXPECT_TRUE(menu->actions().at(0)->isChecked());
    EXPECT_FALSE(menu->actions().at(1)->isChecked());
    menu->actions().at(1)->trigger();
    EXPECT_EQ(value(u"OSMODE"), 3) << "and they are switched on";
    menu->close();

    lisp(u"(command \"LINE\" '(0 0) '(10 0) \"\")(setvar \"OSMODE\" 0)"_s);
    inTurn({[&] {
                mouse(QEvent::MouseMove, 4.0, 0.1);
                mouse(QEvent::MouseButtonPress, 4.0, 0.1, Qt::RightButton, Qt::ShiftModifier);
                auto *kinds = window->canvas()->findChild<QMenu *>(u"nextPoint"_s);
                ASSERT_TRUE(kinds);
                kinds->actions().at(1)->trigger();
                kinds->close();
            },
            [&] { click(4.0, 0.1); }});
    window->enter(u"(setq p (getpoint))"_s);
    EXPECT_EQ(lisp(u"p"_s), u"(5.0 0.0 0.0)"_s);
}

TEST_F(AimTest, WhatIsEditedHangsAtThePointerAsItWillBe)
{
    struct Place
    {
        double x, y;
    };
    const struct
    {
        const char *name;
        const char *line; ///< up to the prompt that is looked at, of a line from 1,0 to 5,0
        Place pointer;
        Place ghost; ///< a place on it, clear of the crosshair and the rubber band
    } rows[] = {
        {"move", "(command \"MOVE\" \"L\" \"\" '(1 0) pause)", {-8.0, 6.0}, {-6.0, 6.0}},
        {"copy", "(command \"COPY\" \"L\" \"\" '(1 -3) pause \"\")", {-8.0, 6.0}, {-6.0, 9.0}},
        {"rotate", "(command \"ROTATE\" \"L\" \"\" '(0 -2) pause)", {0.0, 9.0}, {-2.0, 1.0}},
        {"rotateByReference", "(command \"ROTATE\" \"L\" \"\" '(0 -2) \"R\" 90 pause)", {-9.0, -2.0}, {-2.0, 1.0}},
        {"scale", "(command \"SCALE\" \"L\" \"\" '(0 -2) pause)", {-3.0, -2.0}, {14.0, 4.0}},
        {"scaleByReference", "(command \"SCALE\" \"L\" \"\" '(0 -2) \"R\" 2 pause)", {-6.0, -2.0}, {14.0, 4.0}},
        {"mirror", "(command \"MIRROR\" \"L\" \"\" '(-2 0) pause \"N\")", {-2.0, 8.0}, {-7.0, 0.0}},
        {"stretch", "(command \"STRETCH\" \"C\" '(6 1) '(4 -1) \"\" '(0 0) pause)", {0.0, 8.0}, {3.0, 4.0}},
        {"grip", "(command \"GRIPEDIT\" \"L\" \"\" '(5 0) \"\" pause)", {-4.0, 8.0}, {-1.5, 4.0}},
        {"insert", "(command \"-INSERT\" \"Bar\" pause 1 1 0)", {-8.0, 6.0}, {-6.0, 8.0}},
        {"insertTurned", "(command \"-INSERT\" \"Bar\" '(0 -2) 1 1 pause)", {0.0, 9.0}, {-2.0, 0.0}},
        {"paste",
         "(progn (command \"COPYBASE\" '(1 -3) \"L\" \"\") (command \"PASTECLIP\" pause))",
         {-8.0, 6.0},
         {-6.0, 9.0}},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        lisp(u"(command \"ERASE\" \"ALL\" \"\")(entmake '((0 . \"BLOCK\") (2 . \"Bar\") (70 . 0) (10 0.0 0.0 0.0)))"
             "(entmake '((0 . \"LINE\") (10 1.0 2.0 0.0) (11 5.0 2.0 0.0)))(entmake '((0 . \"ENDBLK\")))"
             "(command \"LINE\" '(1 0) '(5 0) \"\")"_s);
        inTurn({[&] {
            EXPECT_FALSE(isDrawn(row.ghost.x, row.ghost.y));
            mouse(QEvent::MouseMove, row.pointer.x, row.pointer.y);
            EXPECT_TRUE(isDrawn(row.ghost.x, row.ghost.y));
            click(row.pointer.x, row.pointer.y);
        }});
        window->enter(QString::fromLatin1(row.line));
        mouse(QEvent::MouseMove, 15.0, -15.0);
        EXPECT_TRUE(isDrawn(row.ghost.x, row.ghost.y)) << "that is how it came to be";
    }
}

TEST_F(AimTest, LengthAndAngleAreTypedWhileAiming)
{
    const auto ask = [this](std::vector<std::function<void()>> steps) {
        inTurn(std::move(steps));
        window->enter(u"(setq p (getpoint '(1 2)))"_s);
        return lisp(u"(mapcar '(lambda (v) (atof (rtos v 2 3))) p)"_s);
    };
    const auto aim = [this] { mouse(QEvent::MouseMove, 4.0, 6.0); };
    const auto typed = [this](const char *text, int code) {
        write(text);
        key(code);
    };
    lisp(u"(setvar \"DYNMODE\" 3)"_s);
    EXPECT_EQ(ask({[&] { aim(), typed("10", Qt::Key_Tab), typed("90", Qt::Key_Return); }}), u"(1.0 12.0 0.0)"_s);
    EXPECT_TRUE(window->commandLine().input()->text().isEmpty());
    EXPECT_EQ(ask({[&] { aim(), typed("10", Qt::Key_Tab), click(4.0, 6.0); }}), u"(7.0 10.0 0.0)"_s);
    EXPECT_EQ(ask({[&] { aim(), typed("", Qt::Key_Tab), typed("0", Qt::Key_Tab), typed("7", Qt::Key_Return); }}),
              u"(8.0 2.0 0.0)"_s);
    EXPECT_EQ(ask({[&] { aim(), typed("10", Qt::Key_Tab), key(Qt::Key_Backspace), typed("5,5", Qt::Key_Return); }}),
              u"(5.0 5.0 0.0)"_s)
        << "ordinary answers mean what they always mean";
    EXPECT_EQ(ask({[&] { aim(), typed("20", Qt::Key_Return); }}), u"(13.0 18.0 0.0)"_s);
}

TEST_F(AimTest, TheGridIsNeverTooDense)
{
    const auto linesAcross = [this] {
        const QImage picture = window->canvas()->grab().toImage();
        int lines = 0;
        const int y = picture.height() / 2 + 3;
        for (int x = 1; x < picture.width(); ++x)
            lines += picture.pixel(x, y) != picture.pixel(x - 1, y) && picture.pixel(x, y) != qRgb(0, 0, 0) ? 1 : 0;
        return lines;
    };
    const auto set = [this](const char *unit, const char *centre) {
        lisp(u"(setvar \"GRIDUNIT\" '(%1 %1))(command \"ZOOM\" \"C\" '(%2) 40)"_s.arg(QLatin1StringView(unit),
                                                                                      QLatin1StringView(centre)));
    };
    mouse(QEvent::Leave, 0, 0);
    EXPECT_EQ(linesAcross(), 0);
    lisp(u"(setvar \"GRIDMODE\" 1)"_s);
    const int width = window->canvas()->width();
    for (const char *centre : {"0.1 0.1", "5000000.1 4000000.1"}) {
        SCOPED_TRACE(centre);
        set("10", centre);
        const double apart = 10.0 * window->canvas()->height() / 40.0;
        EXPECT_NEAR(linesAcross(), width / apart, 1.0);
        set("0.001", centre);
        EXPECT_GT(linesAcross(), 10);
        EXPECT_LE(linesAcross(), width / 8 + 1);
    }
    lisp(u"(setvar \"GRIDDISPLAY\" 1)"_s);
    EXPECT_EQ(linesAcross(), 0) << "too dense, and not to be thinned out";
    lisp(u"(setvar \"GRIDDISPLAY\" 2)(setvar \"LIMMIN\" '(0 0))(setvar \"LIMMAX\" '(12 9))"_s);
    set("1", "0.1 5.1");
    EXPECT_EQ(linesAcross(), 13) << "up to the limits";
}

} // namespace
} // namespace host::app::test
