#include "host/app/window/MainWindow.h"
#include "host/app/window/canvas/DrawingCanvas.h"
#include "host/app/window/entry/CommandLine.h"
#include "host/app/window/entry/RightButton.h"
#include "host/app/window/frame/CommandPalette.h"
#include "host/app/window/frame/MenuIcons.h"
#include "host/app/window/frame/MenuTable.h"
#include "host/kernel/running/CommandTable.h"
#include "tests/app/AppFixture.h"
#include "tests/support/QtTestPrinters.h"

#include <QAction>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <QTimer>
#include <QToolBar>

#include <gtest/gtest.h>

using namespace host::app;
using namespace host::app::test;
using namespace Qt::StringLiterals;

namespace host::app {
namespace {

struct MenusTest : testing::Test, TestFolder
{
    MenusTest()
    {
        write(u"tools/sample.lsp"_s, ";;; menu: Break up | BREAKUP | Breaks & mends | Lines\n"
                                     ";;; menu: Count | COUNT | Counts\n(defun c:breakup () (setq up T))\n");
        open();
    }
    void open()
    {
        window = std::make_unique<MainWindow>(
            WorkbenchOptions{.home = path(u"home"_s), .module = path(u"none.so"_s), .tools = path(u"tools"_s)});
        window->show();
        window->start({write(u"small.dxf"_s, smallDrawing())});
    }
    QAction *action(const QString &name) { return window->findChild<QAction *>(name); }
    QString lisp(const QString &text) { return window->document()->run(text).value; }

    std::unique_ptr<MainWindow> window;
};

TEST_F(MenusTest, EveryRowIsAnEntryThatCanDoWhatItSays)
{
    QSet<QString> seen;
    QSet<QString> icons;
    for (const MenuRow &row : menuRows()) {
        const QString does = QString::fromLatin1(row.does);
        if (row.isSeparator() || row.isPlace())
            continue;
        EXPECT_FALSE(seen.contains(does)) << row.does << " is there twice";
        seen.insert(does);
        const auto *entry = action(does);
        ASSERT_TRUE(entry) << row.does;
        EXPECT_FALSE(entry->statusTip().isEmpty()) << row.does;
        EXPECT_EQ(entry->shortcut().toString(), QString::fromLatin1(row.keys));
        EXPECT_TRUE(!row.isLine() || kernel::CommandTable::find(row.command())) << row.does << " is no command";
        EXPECT_EQ(entry->icon().isNull(), row.toolbar[0] == '\0') << row.does;
        icons.insert(QString::fromLatin1(row.icon));
    }
    for (const QString &icon : menuIconNames()) {
        EXPECT_TRUE(icons.contains(icon)) << icon.toStdString() << " is not used";
        const QImage image = menuIcon(icon).pixmap(QSize(20, 20), 2.0).toImage();
        EXPECT_EQ(image.width(), 40);
        EXPECT_TRUE(image.pixelColor(0, 0).alpha() == 0 && image != QImage(image.size(), image.format()));
    }
}

TEST_F(MenusTest, ToolsStandBelowWhatTheyWorkOn)
{
    const auto *lines = qobject_cast<QMenu *>(action(u"BREAKUP"_s)->parent());
    ASSERT_TRUE(lines);
    EXPECT_EQ(lines->title().remove(u'&'), u"Lines"_s);
    EXPECT_EQ(action(u"BREAKUP"_s)->statusTip(), u"Breaks & mends (BREAKUP)"_s);
    EXPECT_EQ(qobject_cast<QMenu *>(action(u"COUNT"_s)->parent())->title(), u"&Tools"_s);
    action(u"BREAKUP"_s)->trigger();
    EXPECT_EQ(lisp(u"up"_s), u"T"_s);
}

TEST_F(MenusTest, OnlyWhatDoesNoHarmIsCalledInTheMiddleOfAPrompt)
{
    QString enabled;
    QTimer::singleShot(0, window.get(), [&] {
        for (const char *name : {"new", "_LINE", "_REGEN", "_ZOOM", "_ORTHO", "zoomIn", "COUNT"})
            enabled += action(QString::fromLatin1(name))->isEnabled() ? u'1' : u'0';
        QTimer::singleShot(0, window.get(), [&] {
            window->enter(u"ON"_s);
            QTimer::singleShot(0, window.get(), [&] { window->enter(u"1,1 5,3 "_s); });
        });
        action(u"_ORTHO"_s)->trigger();
    });
    window->enter(u"LINE"_s);
    EXPECT_EQ(enabled, u"0001110"_s);
    EXPECT_EQ(lisp(u"(list (getvar \"ORTHOMODE\") (cdr (assoc 11 (entget (entlast)))))"_s), u"(1 (5.0 3.0 0.0))"_s);
    EXPECT_TRUE(action(u"_LINE"_s)->isEnabled());
}

TEST_F(MenusTest, ToolbarsStayHidden)
{
    auto *bar = window->findChild<QToolBar *>(u"ModifyBar"_s);
    ASSERT_TRUE(bar && bar->isVisible());
    bar->toggleViewAction()->trigger();
    ASSERT_TRUE(window->close());
    open();
    EXPECT_FALSE(window->findChild<QToolBar *>(u"ModifyBar"_s)->isVisible());
    EXPECT_TRUE(window->findChild<QToolBar *>(u"DrawBar"_s)->isVisible());
}

TEST(FuzzyScore, PutsWhatIsMeantFirst)
{
    // Of each row the first text fits better than the second.
    const std::tuple<QString, QString, QString> rows[] = {
        {u"line"_s, u"Draw > Line"_s, u"Draw > Polyline"_s},
        {u"lin"_s, u"Format > Linetype"_s, u"Draw > Polyline"_s},
        {u"pol"_s, u"Draw > Polyline"_s, u"Draw > Multipoint line"_s},
        {u"draw arc"_s, u"Draw > Arc"_s, u"Draw > Search"_s},
        {u"\u00fcb"_s, u"\u00dcBER"_s, u"\u00dcxB"_s},
        {u"zex"_s, u"View > Zoom extents"_s, u"Erase"_s},
    };
    for (const auto &[sought, better, worse] : rows)
        EXPECT_GT(fuzzyScore(sought, better), fuzzyScore(sought, worse)) << sought.toStdString();
    EXPECT_EQ(fuzzyScore(u"linez", u"Draw > Line"), -1);
    EXPECT_EQ(fuzzyScore(u"arc nothing", u"Draw > Arc"), -1);
}

TEST_F(MenusTest, PaletteFindsRunsAndRemembers)
{
    action(u"palette"_s)->trigger();
    auto *palette = window->findChild<CommandPalette *>(u"palette"_s);
    auto *field = palette->findChild<QLineEdit *>(u"paletteField"_s);
    ASSERT_TRUE(palette->isVisible());
    EXPECT_GT(palette->shownTitles().size(), 800);
    const auto press = [&](int code) {
        QKeyEvent event(QEvent::KeyPress, code, Qt::NoModifier);
        QCoreApplication::sendEvent(field, &event);
        QCoreApplication::processEvents();
    };
    const std::pair<QString, QString> rows[] = {{u"line"_s, u"Draw > Line"_s},
                                                {u"break up"_s, u"Tools > Lines > Break up"_s},
                                                {u"DIMARC"_s, u"Dimension > Arc length"_s},
                                                {u"osmode"_s, u"OSMODE"_s},
                                                {u"BHATCH"_s, u"BHATCH"_s}};
    for (const auto &[sought, expected] : rows) {
        field->setText(sought);
        EXPECT_EQ(palette->shownTitles().value(0), expected);
    }
    field->setText(u"break up"_s);
    press(Qt::Key_Return);
    EXPECT_FALSE(palette->isVisible());
    EXPECT_EQ(lisp(u"up"_s), u"T"_s);
    field->setText(u"redo"_s);
    press(Qt::Key_Return); // there is nothing to redo
    EXPECT_EQ(palette->recent(), QStringList(u"BREAKUP"_s));
    ASSERT_TRUE(window->close());
    open();
    action(u"palette"_s)->trigger();
    palette = window->findChild<CommandPalette *>(u"palette"_s);
    EXPECT_EQ(palette->shownTitles().value(0), u"Tools > Lines > Break up"_s) << "what was run last comes first";
}

TEST_F(MenusTest, RightButtonIsEnterOrAMenuAsTheVariableSays)
{
    const auto at = [](bool prompt, bool options, bool chosen) {
        return RightButtonPlace{.isPrompt = prompt, .hasOptions = options, .isChosen = chosen};
    };
    const std::tuple<int, RightButtonPlace, bool> rows[] = {
        {0, at(false, false, false), false}, {1, at(false, false, false), true}, {2, at(false, false, false), false},
        {2, at(false, false, true), true},   {3, at(true, true, false), false},  {4, at(true, false, false), true},
        {8, at(true, false, false), false},  {8, at(true, true, false), true},   {16, at(false, false, true), false},
    };
    for (const auto &[bits, place, expected] : rows)
        EXPECT_EQ(wantsShortcutMenu(bits, place), expected) << bits;
    const auto press = [this](QEvent::Type type) {
        QMouseEvent event(type, QPointF(50, 50), window->canvas()->mapToGlobal(QPointF(50, 50)), Qt::RightButton,
                          Qt::RightButton, Qt::NoModifier);
        QCoreApplication::sendEvent(window->canvas(), &event);
        QCoreApplication::processEvents();
    };
    window->enter(u"BREAKUP"_s);
    lisp(u"(setq up nil)"_s);
    press(QEvent::MouseButtonPress);
    EXPECT_EQ(lisp(u"up"_s), u"nil"_s) << "held so far";
    press(QEvent::MouseButtonRelease);
    EXPECT_EQ(lisp(u"up"_s), u"T"_s) << "a click repeats the last command";
    lisp(u"(setvar \"SHORTCUTMENU\" 11) (setq up nil)"_s);
    press(QEvent::MouseButtonPress);
    auto *menu = window->findChild<QMenu *>(u"shortcutMenu"_s);
    ASSERT_TRUE(menu);
    EXPECT_EQ(menu->actions().first()->text(), u"Repeat BREAKUP"_s);
    menu->actions().first()->trigger();
    QCoreApplication::processEvents();
    EXPECT_EQ(lisp(u"up"_s), u"T"_s);
}

} // namespace
} // namespace host::app
