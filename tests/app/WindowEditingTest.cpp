#include "host/app/window/MainWindow.h"
#include "host/app/window/canvas/DrawingCanvas.h"
#include "host/app/window/canvas/InPlaceEdit.h"
#include "host/app/window/canvas/ParagraphDialog.h"
#include "host/app/window/canvas/ValuesDialog.h"
#include "host/app/window/entry/CommandLine.h"
#include "host/app/window/files/PrintSettings.h"
#include "host/drawing/records/PageSetup.h"
#include "host/kernel/documents/Results.h"
#include "tests/app/AppFixture.h"
#include "tests/support/ModalAnswers.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTableWidget>
#include <QWheelEvent>

#include <functional>
#include <gtest/gtest.h>

using namespace host::app;
using namespace host::app::test;
using namespace Qt::StringLiterals;

namespace {

/// A window on a new drawing, in which (said) is what the texts say.
struct WindowEditing : testing::Test, TestFolder
{
    WindowEditing()
    {
        window = std::make_unique<MainWindow>(
            WorkbenchOptions{.home = path(u"home"_s), .module = path(u"none.so"_s), .tools = path(u"tools"_s)});
        window->show();
        window->start({});
        lisp(uR"((defun said (/ e r) (while (setq e (if e (entnext e) (entnext)))
            (if (assoc 1 (entget e)) (setq r (cons (cdr (assoc 1 (entget e))) r)))) (reverse r)))"_s);
    }

    QString lisp(const QString &text) { return window->document()->run(text).value; }
    void doubleClick(double x, double y)
    {
        QWidget &canvas = *window->canvas();
        const QPointF at = window->canvas()->toScreen({x, y, 0.0});
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::MouseButtonDblClick,
                                QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, at, canvas.mapToGlobal(at), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(&canvas, &event);
        }
        QCoreApplication::processEvents();
    }
    /// The line over the text gets another text and this key.
    void writeInPlace(const QString &text, int key)
    {
        auto *line = window->canvas()->findChild<InPlaceEdit *>();
        ASSERT_TRUE(line);
        line->setText(text);
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(line, &event);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    std::unique_ptr<MainWindow> window;
};

TEST_F(WindowEditing, TextsAreWrittenWhereTheyStand)
{
    lisp(u"(command \"TEXT\" '(0 0) 10 0 \"H\" \"ZOOM\" \"C\" '(0 0) 100)"_s);
    const QByteArray before = window->document()->drawing().toBytes();
    struct Row
    {
        QString written;
        int key;
        QString said;
    };
    const Row rows[] = {
        {u"left"_s, Qt::Key_Escape, u"(\"H\")"_s},
        {u"H"_s, Qt::Key_Return, u"(\"H\")"_s},
        {QString(), Qt::Key_Return, u"(\"H\")"_s},
        {u"(Hall)"_s, Qt::Key_Return, u"(\"(Hall)\")"_s},
        {u"!H \\P \"x\""_s, Qt::Key_Enter, u"(\"!H \\\\P \\\"x\\\"\")"_s},
        {u"'zoom"_s, Qt::Key_Enter, u"(\"'zoom\")"_s},
        {u"H\u00e4\u2300\u4e00"_s, Qt::Key_Return, u"(\"H\u00e4\u2300\u4e00\")"_s},
    };
    for (const Row &row : rows) {
        // Something of the first letter is here, whichever it is.
        lisp(u"(setq e (entlast))(entmod (subst '(1 . \"H\") (assoc 1 (entget e)) (entget e)))"_s);
        doubleClick(0.0, 5.0);
        writeInPlace(row.written, row.key);
        EXPECT_EQ(lisp(u"(said)"_s), row.said) << row.written.toStdString();
        const bool isChanged = row.said != rows[0].said;
        if (isChanged)
            window->enter(u"U"_s);
        EXPECT_EQ(window->document()->drawing().toBytes(), before) << row.written.toStdString();
    }
}

TEST_F(WindowEditing, WhatGoesOnTakesTheTextFirst)
{
    lisp(u"(command \"TEXT\" '(0 0) 10 0 \"H\" \"ZOOM\" \"C\" '(0 0) 100)"_s);
    auto *layouts = window->findChild<QTabBar *>(u"layouts"_s);
    const QList<std::function<void()>> ways = {
        [&] { layouts->setCurrentIndex(1); },
        [&] { window->findChild<QAction *>(u"_REGEN"_s)->trigger(); },
        [&] { window->findChild<QAction *>(u"eraseChosen"_s)->trigger(); },
    };
    for (qsizetype i = 0; i < ways.size(); ++i) {
        lisp(u"(setvar \"CTAB\" \"Model\")"_s);
        doubleClick(0.0, 5.0);
        auto *line = window->canvas()->findChild<InPlaceEdit *>();
        ASSERT_TRUE(line) << i;
        line->setText(u"H%1"_s.arg(i));
        ways[i]();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_FALSE(window->canvas()->findChild<InPlaceEdit *>()) << i;
        EXPECT_EQ(lisp(u"(said)"_s), u"(\"H%1\")"_s.arg(i));
    }
}

TEST_F(WindowEditing, LockedLayersAndWhatSaysNothingAreLeftAlone)
{
    lisp(
        u"(command \"TEXT\" '(0 0) 10 0 \"H\" \"LINE\" '(20 0) '(20 10) \"\" \"-LAYER\" \"LO\" \"0\" \"\" \"ZOOM\" \"C\" '(0 0) 100)"_s);
    for (const double x : {0.0, 20.0, -30.0}) {
        doubleClick(x, 5.0);
        EXPECT_FALSE(window->canvas()->findChild<InPlaceEdit *>()) << x;
    }
    EXPECT_EQ(window->commandLine().historyText().count(u"locked layer"_s), 1);
}

TEST_F(WindowEditing, ParagraphsKeepTheirCodes)
{
    ortakit::test::ModalAnswers answers;
    const QString content = u"{\\fArial|b1;one}\\Ptwo \\\\P %%c\u00a0x"_s;
    lisp(u"(command \"-MTEXT\" '(0 0) \"H\" 10 \"W\" 0 \"%1\" \"\" \"ZOOM\" \"C\" '(0 0) 100)"_s.arg(
        QString(content).replace(u'\\', u"\\\\"_s)));
    lisp(u"(sssetfirst nil (ssadd (entlast)))"_s);
    const QByteArray before = window->document()->drawing().toBytes();
    const auto writing = [](const QString &old, const QString &now) {
        return [old, now](QWidget *shown) {
            auto *text = shown->findChild<QPlainTextEdit *>();
            QString lines = text->document()->toRawText().replace(QChar::ParagraphSeparator, u'\n');
            EXPECT_EQ(lines, u"{\\fArial|b1;one}\ntwo \\\\P %%c\u00a0x"_s);
            text->setPlainText(lines.replace(old, now));
            static_cast<QDialog *>(shown)->accept();
        };
    };
    answers.drive(writing({}, {}));
    window->enter(u"TEXTEDIT"_s);
    EXPECT_EQ(window->document()->drawing().toBytes(), before) << "taken as it was";
    lisp(u"(sssetfirst nil (ssadd (entlast)))"_s);
    answers.drive(writing(u"one"_s, u"a\nb"_s));
    window->enter(u"ddedit"_s);
    EXPECT_TRUE(answers.isDone());
    EXPECT_EQ(lisp(u"(cdr (assoc 1 (entget (entlast))))"_s),
              u"\"{\\\\fArial|b1;a\\\\Pb}\\\\Ptwo \\\\\\\\P %%c\u00a0x\""_s);
}

TEST_F(WindowEditing, AttributesStandInATable)
{
    lisp(uR"((defun definition (tag value flags y) (entmake (list '(0 . "ATTDEF") (list 10 0.0 y 0.0) '(40 . 5.0)
            (cons 1 value) (cons 2 tag) (cons 3 "Which?") (cons 70 flags))))
        (entmake '((0 . "BLOCK") (2 . "Twins") (70 . 2) (10 0.0 0.0 0.0)))
        (definition "NO" "H" 0 0.0) (definition "FIX" "always" 2 10.0) (definition "NO" "H" 0 20.0)
        (entmake '((0 . "ENDBLK"))) (setvar "ATTREQ" 0)
        (command "-INSERT" "Twins" '(0 0) 1 "" 0 "ZOOM" "C" '(0 0) 100))"_s);
    ortakit::test::ModalAnswers answers;
    answers.drive([](QWidget *shown) {
        auto &table = *shown->findChild<QTableWidget *>();
        EXPECT_EQ(table.rowCount(), 3);
        EXPECT_EQ(table.item(2, 0)->text(), u"FIX"_s);
        EXPECT_FALSE(table.item(2, 2)->flags() & Qt::ItemIsEditable);
        table.item(1, 2)->setText(u"(2nd)"_s);
        table.item(0, 2)->setText({});
        static_cast<QDialog *>(shown)->accept();
    });
    doubleClick(0.0, 22.0);
    EXPECT_TRUE(answers.isDone());
    EXPECT_EQ(lisp(u"(said)"_s), u"(\"\" \"(2nd)\")"_s);
}

TEST_F(WindowEditing, ResultsAreListedShownAndSaved)
{
    lisp(uR"((command "LINE" '(0 0) '(10 0) "" "CIRCLE" '(50 50) 5)
        (results-begin "SWEEP") (results-add (entlast) "done" "made round")
        (results-add (entnext) "skipped" "too straight \"x\"") (results-add nil "skipped" "nothing") (results-end))"_s);
    auto *rows = window->findChild<QTableView *>(u"resultRows"_s);
    ASSERT_TRUE(rows && rows->isVisible());
    EXPECT_EQ(rows->model()->rowCount(), 3);
    emit rows->clicked(rows->model()->index(1, 0));
    EXPECT_EQ(lisp(u"(cdr (assoc 0 (entget (ssname (ssget \"_I\") 0))))"_s), u"\"LINE\""_s);
    EXPECT_NEAR(window->document()->view().centre.x, 5.0, 1e-9);
    window->findChild<QComboBox *>(u"resultsShown"_s)->setCurrentIndex(2);
    EXPECT_EQ(rows->model()->index(0, 2).data().toString(), u"too straight \"x\""_s);
    lisp(u"(entdel (entnext))"_s);
    emit rows->clicked(rows->model()->index(0, 0));
    EXPECT_TRUE(window->commandLine().historyText().contains(u"not in the drawing any more"_s));

    host::kernel::Document &document = *window->document();
    const QJsonObject list = QJsonDocument::fromJson(document.results().toJson(document.drawing())).object();
    EXPECT_EQ(list[u"title"].toString() + u'|' + QString::number(list[u"skipped"].toInt()), u"SWEEP|2"_s);
    EXPECT_EQ(list[u"results"].toArray()[0].toObject()[u"type"].toString(), u"CIRCLE"_s);
    ortakit::test::ModalAnswers answers;
    answers.choose(path(u"list.json"_s));
    window->findChild<QPushButton *>(u"saveResults"_s)->click();
    EXPECT_EQ(read(u"list.json"_s), document.results().toJson(document.drawing()));
}

TEST_F(WindowEditing, PrintsToAFileAndRemembersThePage)
{
    lisp(u"(command \"CIRCLE\" '(50 50) 40) (setvar \"CTAB\" \"Layout1\") (command \"LINE\" '(0 0) '(100 100) \"\")"_s);
    ortakit::test::ModalAnswers answers;
    answers.drive([](QWidget *shown) {
        shown->findChild<QComboBox *>(u"printPaper"_s)->setCurrentText(u"A3"_s);
        shown->findChild<QComboBox *>(u"printOrientation"_s)->setCurrentIndex(0);
        shown->findChild<QComboBox *>(u"printArea"_s)->setCurrentIndex(1);
        shown->findChild<QComboBox *>(u"printScale"_s)->setCurrentText(u"1:2"_s);
        shown->findChild<QCheckBox *>(u"printKeep"_s)->setChecked(true);
        static_cast<QDialog *>(shown)->accept();
    });
    answers.choose(path(u"page.pdf"_s));
    window->enter(u"print"_s);
    EXPECT_TRUE(answers.isDone());
    EXPECT_TRUE(read(u"page.pdf"_s).contains("1191")) << "A3 in points";
    const auto &drawing = window->document()->drawing();
    const auto page = host::drawing::readPageSetup(drawing, *host::drawing::findLayout(drawing, u"Layout1"_s));
    EXPECT_EQ(page.paper, (host::drawing::Vec2{420.0, 297.0}));
    EXPECT_DOUBLE_EQ(page.scale, 0.5);
    EXPECT_EQ(page.area, host::drawing::PlotArea::Extents);

    PrintSettings settings = settingsOfPage(*window->document(), u"Layout1"_s);
    EXPECT_EQ(settings.scale, u"1:2"_s);
    QString problem;
    const QImage preview = previewPage(*window->document(), settings, {420, 400}, problem);
    EXPECT_EQ(preview.size(), QSize(420, 297)) << problem.toStdString();
    int inked = 0;
    for (int x = 0; x < preview.width(); ++x)
        for (int y = 0; y < preview.height(); ++y)
            inked += qGray(preview.pixel(x, y)) < 255 ? 1 : 0;
    EXPECT_GT(inked, 20) << "a line over 50 mm";
    EXPECT_LT(inked, 2000);
    answers.drive([](QWidget *shown) { static_cast<QDialog *>(shown)->accept(); });
    answers.choose(path(u"nowhere/page.pdf"_s));
    window->enter(u"PLOT"_s);
    EXPECT_FALSE(QFile::exists(path(u"nowhere"_s)));
    EXPECT_TRUE(window->commandLine().historyText().contains(u"nowhere"_s)) << "told why";
}

TEST_F(WindowEditing, ViewportsAreEnteredMovedAndLocked)
{
    lisp(u"(command \"CIRCLE\" '(50 50) 40) (setvar \"CTAB\" \"Layout1\")"
         u"(command \"MVIEW\" '(0 0) '(100 50) \"ZOOM\" \"C\" '(60 30) 200)"_s);
    const auto seen = [this] { return lisp(u"(cdr (assoc 45 (entget (ssname (ssget \"X\" '((69 . 2))) 0))))"_s); };
    const auto wheel = [this](const QPointF &at) {
        QWheelEvent event(at, window->canvas()->mapToGlobal(at), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(window->canvas(), &event);
    };
    const QPointF inside = window->canvas()->toScreen({50.0, 25.0, 0.0});
    doubleClick(90.0, 45.0);
    EXPECT_EQ(lisp(u"(getvar \"CVPORT\")"_s), u"2"_s);
    const QString whole = seen();
    wheel(inside);
    EXPECT_NEAR(seen().toDouble() * 1.25, whole.toDouble(), 1e-6);
    window->enter(u"U"_s);
    EXPECT_EQ(seen(), whole);
    lisp(u"(command \"PSPACE\" \"MVIEW\" \"L\" \"ON\" (ssname (ssget \"X\" '((69 . 2))) 0) \"\" \"MSPACE\")"_s);
    const double height = window->document()->view().height;
    wheel(inside);
    EXPECT_EQ(seen(), whole) << "locked";
    EXPECT_LT(window->document()->view().height, height) << "the sheet moves";
    const QPointF outside(3.0, 3.0);
    QMouseEvent event(QEvent::MouseButtonDblClick, outside, window->canvas()->mapToGlobal(outside), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(window->canvas(), &event);
    QCoreApplication::processEvents();
    EXPECT_EQ(lisp(u"(getvar \"CVPORT\")"_s), u"1"_s);
}

} // namespace
