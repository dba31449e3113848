// What stands between a person and lost work: recovery after a crash, the question at closing, saves that fail.

#include "files/qt/Files.h"
#include "host/app/window/MainWindow.h"
#include "host/app/window/entry/CommandLine.h"
#include "host/app/window/files/ClosingQuestion.h"
#include "host/app/window/files/RecoveryDialog.h"
#include "host/drawing/records/Drawing.h"
#include "host/kernel/files/RecoveryCopy.h"
#include "tests/app/AppFixture.h"
#include "tests/support/ModalAnswers.h"
#include "tests/support/QtTestPrinters.h"

#include <QAbstractButton>
#include <QDir>
#include <QMessageBox>
#include <QTabWidget>
#include <QTest>
#include <QTreeWidget>

#include <gtest/gtest.h>

using namespace host::app;
using namespace host::app::test;
using namespace Qt::StringLiterals;

namespace host::app {
namespace {

struct NotLosingWork : testing::Test, TestFolder
{
    /// Without module and tools.
    void openWindow()
    {
        window = std::make_unique<MainWindow>(
            WorkbenchOptions{.home = path(u"home"_s), .module = path(u"none.so"_s), .tools = path(u"none"_s)});
        window->show();
    }
    /// What a killed program leaves of a drawing of this title.
    QString leave(const QString &title, const QByteArray &bytes, const QString &original = {}, int secondsAgo = 0)
    {
        const auto copy = kernel::RecoveryCopy::begin(path(u"home/recovery"_s), title);
        std::optional<kernel::FileStamp> base = kernel::FileStamp::of(original);
        if (const auto read = drawing::Drawing::open(original); base && read)
            base->setContent(*read.drawing);
        const kernel::RecoveryNote note{.title = title,
                                        .path = original,
                                        .time = QDateTime::currentDateTimeUtc().addSecs(-secondsAgo),
                                        .base = base};
        EXPECT_EQ(copy->write({bytes}, note, false), QString());
        return copy->file();
    }
    QStringList copies() const { return QDir(path(u"home/recovery"_s)).entryList({u"*.dxf"_s}, QDir::Files); }
    QStringList tabTexts() const
    {
        QStringList texts;
        for (int i = 0; i < window->tabs().count(); ++i)
            texts.append(window->tabs().tabText(i));
        return texts;
    }
    static void click(QWidget *dialog, const QString &button) { dialog->findChild<QAbstractButton *>(button)->click(); }
    /// Presses the button of a box that says this.
    void press(const QString &caption)
    {
        answers.drive([caption](QWidget *box) {
            for (QAbstractButton *button : qobject_cast<QMessageBox *>(box)->buttons())
                if (button->text().remove(u'&') == caption)
                    return button->click();
            ADD_FAILURE() << "no button " << caption.toStdString();
            box->close();
        });
    }
    static QTreeWidgetItem *row(QWidget *dialog, int number)
    {
        return dialog->findChild<QTreeWidget *>()->topLevelItem(number);
    }
    void change() { window->document()->run(u"(entmake '((0 . \"POINT\") (10 1.0 2.0 3.0)))"_s); }

    std::unique_ptr<MainWindow> window;
    ortakit::test::ModalAnswers answers;
};

TEST_F(NotLosingWork, OffersWhatAKilledProgramLeft)
{
    const QString drawing = write(u"small.dxf"_s, smallDrawing());
    const QByteArray newer = smallDrawing().replace("CIRCLE", "POINT");
    leave(u"small.dxf"_s, newer, drawing);
    leave(u"Drawing1"_s, smallDrawing(), {}, 60);
    openWindow();
    answers.drive([&](QWidget *dialog) {
        EXPECT_TRUE(qobject_cast<RecoveryDialog *>(dialog));
        EXPECT_EQ(row(dialog, 0)->text(0), u"small.dxf"_s) << "the newest first";
        EXPECT_EQ(row(dialog, 0)->text(3), QDir::toNativeSeparators(drawing));
        EXPECT_EQ(row(dialog, 1)->text(3), u"never saved"_s);
        const auto corner = [&] { return row(dialog, 1)->icon(0).pixmap(128, 96).toImage().pixelColor(2, 2); };
        EXPECT_TRUE(QTest::qWaitFor([&] { return corner().alpha() == 255; }, 10'000)) << "its picture";
        row(dialog, 1)->setCheckState(0, Qt::Unchecked);
        click(dialog, u"recoveryOpen"_s);
    });
    window->recover(MainWindow::Recovery::Ask);
    window->start({drawing});
    EXPECT_EQ(tabTexts(), QStringList{u"small.dxf (recovered)*"_s}) << "the file itself is not opened beside it";
    EXPECT_EQ(window->document()->drawing().toBytes(), newer);
    EXPECT_EQ(copies().size(), 2) << "nothing is lost by opening it";
    EXPECT_TRUE(window->document()->save());
    EXPECT_EQ(tabTexts(), QStringList{u"small.dxf"_s});
    EXPECT_EQ(read(u"small.dxf"_s), newer);
    EXPECT_TRUE(QTest::qWaitFor([&] { return copies().size() == 1; }, 10'000));
    window.reset();
    EXPECT_EQ(copies().size(), 1) << "what was not chosen is offered again";
}

TEST_F(NotLosingWork, KeepsWhatIsNotWantedNow)
{
    leave(u"a.dxf"_s, smallDrawing(), path(u"gone.dxf"_s));
    leave(u"b.dxf"_s, smallDrawing(), write(u"b.dxf"_s, "changed"), 60);
    openWindow();
    answers.drive([&](QWidget *dialog) { click(dialog, u"recoveryLater"_s); });
    window->recover(MainWindow::Recovery::Ask);
    EXPECT_EQ(window->tabs().count(), 0);
    EXPECT_EQ(copies().size(), 2);

    answers.drive([&](QWidget *dialog) {
        EXPECT_EQ(row(dialog, 0)->text(3), path(u"gone.dxf"_s) + u"\n(changed since by another program)"_s);
        row(dialog, 1)->setCheckState(0, Qt::Unchecked);
        answers.press(QMessageBox::Cancel);
        click(dialog, u"recoveryDiscard"_s);
        EXPECT_EQ(copies().size(), 2);
        answers.press(QMessageBox::Discard);
        click(dialog, u"recoveryDiscard"_s);
        EXPECT_EQ(copies().size(), 1);
        EXPECT_FALSE(dialog->findChild<QAbstractButton *>(u"recoveryOpen"_s)->isEnabled()) << "none is checked";
        dialog->close();
    });
    window->recover(MainWindow::Recovery::Ask);
    EXPECT_TRUE(answers.isDone());
    EXPECT_EQ(copies().size(), 1);
}

TEST_F(NotLosingWork, OpensAllWithoutAQuestionWhereThatIsWanted)
{
    leave(u"torn.dxf"_s, smallDrawing().first(smallDrawing().size() * 3 / 4));
    const QString none = leave(u"none.dxf"_s, "no drawing at all", {}, 60);
    openWindow();
    window->recover(MainWindow::Recovery::OpenAll);
    EXPECT_EQ(tabTexts(), QStringList{u"torn.dxf (recovered)*"_s});
    EXPECT_EQ(answers.shown().size(), 1) << "one cannot be opened, and that is told";
    EXPECT_TRUE(QFile::exists(none)) << "it stays for whoever can read it";
}

TEST_F(NotLosingWork, AsksOnceForAllAtClosing)
{
    const QStringList files = {write(u"a.dxf"_s, smallDrawing()), write(u"b.dxf"_s, smallDrawing()),
                               write(u"c.dxf"_s, smallDrawing())};
    openWindow();
    window->start(files);
    for (int i : {0, 1}) {
        window->tabs().setCurrentIndex(i);
        change();
    }
    answers.drive([&](QWidget *dialog) {
        EXPECT_TRUE(qobject_cast<ClosingQuestion *>(dialog));
        EXPECT_EQ(dialog->findChild<QTreeWidget *>()->topLevelItemCount(), 2) << "only those that were changed";
        click(dialog, u"closingCancel"_s);
    });
    EXPECT_FALSE(window->close());
    EXPECT_EQ(tabTexts(), (QStringList{u"a.dxf*"_s, u"b.dxf*"_s, u"c.dxf"_s}));
    answers.drive([&](QWidget *dialog) {
        row(dialog, 0)->setCheckState(0, Qt::Unchecked);
        click(dialog, u"closingSave"_s);
    });
    EXPECT_TRUE(window->close());
    EXPECT_EQ(read(u"a.dxf"_s), smallDrawing());
    EXPECT_NE(read(u"b.dxf"_s), smallDrawing());
}

TEST_F(NotLosingWork, StaysOpenWhereASaveFails)
{
    const QString vanishing = write(u"folder/a.dxf"_s, smallDrawing());
    const QString other = write(u"b.dxf"_s, smallDrawing());
    openWindow();
    window->start({vanishing, other});
    change();
    window->tabs().setCurrentIndex(0);
    change();
    QDir(path(u"folder"_s)).removeRecursively();
    answers.drive([&](QWidget *dialog) { click(dialog, u"closingSave"_s); });
    answers.press(QMessageBox::Cancel); // it could not be written
    EXPECT_FALSE(window->close());
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(tabTexts(), (QStringList{u"a.dxf*"_s, u"b.dxf"_s})) << "the other one was saved all the same";
    EXPECT_TRUE(answers.shown().last().contains(u"The drawing stays open."_s)) << answers.shown().last().toStdString();

    // Somewhere else it goes.
    answers.press(QMessageBox::Yes);
    press(u"Save as..."_s);
    answers.choose(path(u"saved.dxf"_s));
    EXPECT_TRUE(window->close()) << answers.shown().join(u'\n').toStdString();
    EXPECT_NE(read(u"saved.dxf"_s), QByteArray());
}

} // namespace
} // namespace host::app
