#include "host/app/window/MainWindow.h"
#include "host/app/window/entry/CommandLine.h"
#include "host/app/window/frame/MenuIcons.h"
#include "host/app/window/frame/MenuTable.h"
#include "host/kernel/running/CommandTable.h"
#include "tests/app/AppFixture.h"
#include "tests/support/QtTestPrinters.h"

#include <QAction>
#include <QMenuBar>
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

} // namespace
} // namespace host::app
