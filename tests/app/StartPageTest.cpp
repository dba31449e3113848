// The page that is shown while no drawing is open, and the drawings of lately.

#include "host/app/window/files/StartPage.h"

#include "host/app/window/MainWindow.h"
#include "host/app/window/files/RecentFiles.h"
#include "tests/app/AppFixture.h"
#include "tests/support/ModalAnswers.h"
#include "tests/support/QtTestPrinters.h"

#include <QAction>
#include <QDir>
#include <QDropEvent>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QUrl>

#include <gtest/gtest.h>

using namespace host::app;
using namespace host::app::test;
using namespace Qt::StringLiterals;

namespace host::app {
namespace {

struct StartPageTest : testing::Test, TestFolder
{
    StartPageTest()
    {
        qputenv("ORTAKIT_SAMPLES", path(u"samples"_s).toUtf8());
        write(u"samples/house.dxf"_s, smallDrawing());
    }
    ~StartPageTest() override { qunsetenv("ORTAKIT_SAMPLES"); }

    void openWindow(const QStringList &drawings = {})
    {
        window = std::make_unique<MainWindow>(
            WorkbenchOptions{.home = path(u"home"_s), .module = path(u"none.so"_s), .tools = path(u"none"_s)});
        window->show();
        window->start(drawings, MainWindow::Opening::AsUsual, MainWindow::WithoutDrawings::StartPage);
    }
    StartPage *page() const { return window->findChild<StartPage *>(); }
    QListWidget *list(const QString &name) const { return window->findChild<QListWidget *>(name); }
    /// The first lines: the names.
    static QStringList names(const QListWidget &list)
    {
        QStringList names;
        for (int i = 0; i < list.count(); ++i)
            names.append(list.item(i)->text().section(u'\n', 0, 0));
        return names;
    }
    QStringList recent() const
    {
        QStringList texts;
        for (const RecentFile &file : RecentFiles(path(u"home"_s)).all())
            texts.append((file.isPinned ? u"!"_s : QString()) + QFileInfo(file.path).fileName());
        return texts;
    }
    QMenu *recentMenu() const
    {
        auto *menu = window->findChild<QMenu *>(u"recentMenu"_s);
        emit menu->aboutToShow();
        return menu;
    }
    QAction *recentEntry(const QString &text) const
    {
        const QList<QAction *> entries = recentMenu()->actions();
        // What people see of the caption.
        const auto shown = [](const QAction *entry) {
            return entry->text().replace(u"&&"_s, u"\n"_s).remove(u'&').replace(u'\n', u'&');
        };
        const auto found =
            std::ranges::find_if(entries, [&](const QAction *entry) { return shown(entry).endsWith(text); });
        return found == entries.end() ? nullptr : *found;
    }

    std::unique_ptr<MainWindow> window;
    ortakit::test::ModalAnswers answers;
};

TEST_F(StartPageTest, IsThereWhileNoDrawingIs)
{
    openWindow();
    ASSERT_TRUE(page());
    EXPECT_EQ(window->tabs().count(), 1);
    EXPECT_EQ(window->document(), nullptr);
    EXPECT_EQ(names(*list(u"samples"_s)), QStringList{u"house"_s});
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return QDir(path(u"home/cache/pictures"_s)).entryList({u"*.png"_s}).size() == 1; }, 10'000));
    window->findChild<QPushButton *>(u"startNew"_s)->click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(page());
    EXPECT_EQ(window->tabs().count(), 1);
    ASSERT_TRUE(window->document());
    emit window->tabs().tabCloseRequested(0);
    QCoreApplication::processEvents();
    EXPECT_TRUE(page()) << "the last drawing was closed";

    emit list(u"samples"_s)->itemActivated(list(u"samples"_s)->item(0));
    ASSERT_TRUE(window->document());
    EXPECT_EQ(window->document()->path(), QString()) << "the sample itself is not to be changed";
    EXPECT_EQ(window->document()->drawing().toBytes(), smallDrawing());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    window->findChild<QAction *>(u"startPage"_s)->trigger();
    EXPECT_EQ(window->tabs().count(), 2);
    emit window->tabs().tabCloseRequested(0);
    EXPECT_EQ(window->tabs().count(), 1) << "it closes like a drawing";
    EXPECT_TRUE(window->close());
    EXPECT_EQ(recent(), QStringList()) << "neither a new drawing nor a sample has a file";
}

TEST_F(StartPageTest, RemembersDrawings)
{
    const QString a = write(u"a.dxf"_s, smallDrawing());
    const QString b = write(u"b&c.dxf"_s, smallDrawing());
    openWindow({a, b});
    EXPECT_FALSE(page());
    EXPECT_EQ(recent(), (QStringList{u"b&c.dxf"_s, u"a.dxf"_s}));
    EXPECT_TRUE(window->document()->saveAs(path(u"d.dxf"_s)));
    EXPECT_TRUE(window->close());
    QFile::remove(a);

    openWindow();
    EXPECT_EQ(names(*list(u"recentFiles"_s)), (QStringList{u"d.dxf"_s, u"b&c.dxf"_s, u"a.dxf"_s}));
    EXPECT_TRUE(list(u"recentFiles"_s)->item(2)->text().contains(u"not there"_s));
    EXPECT_FALSE(recentEntry(u"a.dxf"_s)->isEnabled());
    RecentFiles(path(u"home"_s)).setPinned(b, true);
    recentEntry(u"b&c.dxf (pinned)"_s)->trigger();
    EXPECT_EQ(window->document()->path(), b);
    recentEntry(u"Clear the list"_s)->trigger();
    EXPECT_EQ(recent(), QStringList{u"!b&c.dxf"_s}) << "pinned ones stay";
    for (int i = 0; i < 14; ++i)
        RecentFiles(path(u"home"_s)).add(path(u"many%1.dxf"_s.arg(i)));
    EXPECT_EQ(recent().size(), 11);
    EXPECT_EQ(recent().mid(0, 2), (QStringList{u"!b&c.dxf"_s, u"many13.dxf"_s}));
}

TEST_F(StartPageTest, OpensLastTimesDrawingsWhereThatIsWanted)
{
    openWindow({write(u"a.dxf"_s, smallDrawing()), write(u"b.dxf"_s, smallDrawing())});
    EXPECT_TRUE(window->close());
    openWindow();
    EXPECT_TRUE(page()) << "not unasked";
    window->findChild<QPushButton *>(u"startLastTime"_s)->click();
    EXPECT_EQ(window->tabs().count(), 2);
    EXPECT_EQ(window->tabs().tabText(1), u"b.dxf"_s);
    recentEntry(u"Open them at each start"_s)->trigger();
    EXPECT_TRUE(window->close());
    openWindow();
    EXPECT_EQ(window->tabs().count(), 2);
    EXPECT_TRUE(window->close());
    openWindow({path(u"a.dxf"_s)});
    EXPECT_EQ(window->tabs().count(), 1) << "others were asked for";
}

TEST_F(StartPageTest, TakesFilesThatAreDropped)
{
    openWindow();
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(write(u"a.dxf"_s, smallDrawing())),
                  QUrl::fromLocalFile(write(u"photo.PNG"_s, "no matter")), QUrl::fromLocalFile(path(u"samples"_s)),
                  QUrl(u"https://example.org/b.dxf"_s), QUrl::fromLocalFile(write(u"b.dxf"_s, smallDrawing()))});
    QDropEvent event(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    answers.press(QMessageBox::Ok);
    QCoreApplication::sendEvent(window.get(), &enter);
    QCoreApplication::sendEvent(window.get(), &event);
    QCoreApplication::processEvents();
    EXPECT_EQ(window->tabs().count(), 2);
    ASSERT_EQ(answers.shown().size(), 1);
    EXPECT_TRUE(answers.shown()[0].contains(u"photo.PNG is a picture or document, no drawing."_s));
    EXPECT_TRUE(answers.shown()[0].contains(u"samples is a folder."_s));
}

TEST_F(StartPageTest, PassesOverOddSettings)
{
    write(u"home/workbench.ini"_s, "[General]\nrecent=relative.dxf, \"\", /x/y.dxf\npinned=@Invalid()\ndrawings=5\n");
    openWindow();
    EXPECT_EQ(names(*list(u"recentFiles"_s)), QStringList{u"y.dxf"_s});
}

} // namespace
} // namespace host::app
