// What is recorded of dialogs and of what is done beside prompts, and that it plays.

#include "host/app/playback/SessionPlayer.h"
#include "host/app/playback/SessionRecorder.h"
#include "host/lisp/Interpreter.h"
#include "tests/app/AppFixture.h"
#include "tests/support/QtTestPrinters.h"

#include <QApplication>
#include <QMenu>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>
#include <QTranslator>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <gtest/gtest.h>

using namespace host::app;
using namespace host::app::test;
using namespace Qt::StringLiterals;

namespace {

/// Lists and what else dialogs have beside fields and buttons.
struct ListsBox : QDialog
{
    explicit ListsBox(QWidget *parent) : QDialog(parent), pages(new QTabWidget)
    {
        setObjectName(u"ListsBox"_s);
        pages->setObjectName(u"pages"_s);
        table.setObjectName(u"table"_s);
        tree.setObjectName(u"tree"_s);
        for (int row = 0; row < 4; ++row) {
            auto *first = new QTableWidgetItem(u"row %1"_s.arg(row));
            first->setCheckState(Qt::Unchecked);
            table.setItem(row, 0, first);
            table.setItem(row, 1, new QTableWidgetItem(u"value"_s));
        }
        table.setSelectionBehavior(QAbstractItemView::SelectRows);
        auto *top = new QTreeWidgetItem(&tree, {u"walls"_s});
        for (const QString &name : {u"outer"_s, u"inner ones"_s})
            (new QTreeWidgetItem(top, {name}))->setCheckState(0, Qt::Unchecked);
        tree.expandAll();
        pages->addTab(&table, u"&Rows"_s);
        pages->addTab(&tree, u"&Tree"_s);
        auto *kinds = new QPushButton(u"Kinds"_s);
        auto *menu = new QMenu(kinds);
        for (const QString &kind : {u"&Solid"_s, u"Dashed"_s})
            connect(menu->addAction(kind), &QAction::triggered, this, [this, kind] { chosenKind = kind; });
        kinds->setMenu(menu);
        kinds->setObjectName(u"kinds"_s);
        auto *ok = new QPushButton(u"OK"_s);
        ok->setObjectName(u"ok"_s);
        connect(ok, &QPushButton::clicked, this, &QDialog::accept);
        auto *layout = new QVBoxLayout(this);
        for (QWidget *widget : std::initializer_list<QWidget *>{pages, kinds, ok})
            layout->addWidget(widget);
    }
    ~ListsBox() override { pages->clear(); }

    /// What the person made of it.
    QString state() const
    {
        QStringList all{QString::number(pages->currentIndex()), chosenKind};
        for (int row = 0; row < table.rowCount(); ++row)
            all.append(QString::number(table.item(row, 0)->checkState()) + table.item(row, 1)->text() +
                       (table.item(row, 0)->isSelected() ? u"!"_s : QString()));
        for (int i = 0; i < 2; ++i)
            all.append(QString::number(tree.topLevelItem(0)->child(i)->checkState(0)) +
                       (tree.topLevelItem(0)->child(i)->isSelected() ? u"!"_s : QString()));
        return all.join(u';');
    }

    QTabWidget *pages;
    QTableWidget table{4, 2};
    QTreeWidget tree;
    QString chosenKind;
};

struct RecordingTest : testing::Test, HostFixture
{
    RecordingTest()
    {
        document->interpreter().define(
            "listsbox",
            [this](host::lisp::Arguments &) {
                ListsBox box(nullptr);
                box.exec();
                states.append(box.state());
                return host::lisp::Value();
            },
            host::lisp::Arity::any());
    }

    /// Runs the expression while `hands` do something, and gives what was recorded of it.
    QString recorded(const QString &expression, QList<std::function<void()>> acts)
    {
        SessionRecorder recorder(session, path(u"out.txt"_s));
        recorder.takeExpression(expression);
        const Hands hands(std::move(acts));
        EXPECT_TRUE(document->run(expression).ok);
        EXPECT_TRUE(hands.left.isEmpty());
        EXPECT_EQ(QString::fromUtf8(read(u"out.txt"_s)), recorder.text()) << "written as it came";
        return recorder.text().section(u'\n', 2);
    }
    void expectPlays()
    {
        const PlaybackResult played = runSession(QString::fromUtf8(read(u"out.txt"_s)), *document, {});
        EXPECT_TRUE(played.ok) << played.message.toStdString();
    }
    template <typename Widget = QWidget>
    static Widget *part(const QString &name)
    {
        QWidget *dialog = QApplication::activeModalWidget();
        return dialog ? dialog->findChild<Widget *>(name) : nullptr;
    }
    static void clickOn(const QString &name) { QTest::mouseClick(part(name), Qt::LeftButton); }
    static void clickRow(const QString &name, const QModelIndex &index, Qt::KeyboardModifiers modifiers = {})
    {
        auto *view = part<QAbstractItemView>(name);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, modifiers, view->visualRect(index).center());
    }
    static void chooseInMenu(const QString &text)
    {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu) << text.toStdString();
        for (QAction *action : menu->actions())
            if (action->text() == text)
                QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
        if (text.isEmpty())
            QTest::keyClick(menu, Qt::Key_Escape);
    }

    QStringList states;
};

TEST_F(RecordingTest, ListsTabsAndMenusOfDialogs)
{
    const auto cell = [](int row, int column) { return part<QTableWidget>(u"table"_s)->model()->index(row, column); };
    const auto leaf = [](int row) {
        auto *tree = part<QTreeWidget>(u"tree"_s);
        return tree->model()->index(row, 0, tree->model()->index(0, 0));
    };
    const QString lines = recorded(
        u"(listsbox)"_s,
        {[&] { clickRow(u"table"_s, cell(1, 1)); }, [&] { clickRow(u"table"_s, cell(3, 1), Qt::ControlModifier); },
         [&] { part<QTableWidget>(u"table"_s)->item(2, 0)->setCheckState(Qt::Checked); },
         [&] { part<QTableWidget>(u"table"_s)->edit(cell(0, 1)); },
         [] { QTest::keyClicks(QApplication::focusWidget(), u"12 mm"_s); },
         [] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); },
         [] {
             auto *bar = part<QTabWidget>(u"pages"_s)->tabBar();
             QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(1).center());
         },
         [&] { clickRow(u"tree"_s, leaf(1)); },
         [&] { part<QTreeWidget>(u"tree"_s)->topLevelItem(0)->child(0)->setCheckState(0, Qt::Checked); },
         [] { clickOn(u"kinds"_s); }, [] { chooseInMenu({}); }, [] { clickOn(u"kinds"_s); },
         [] { chooseInMenu(u"Dashed"_s); }, [] { clickOn(u"ok"_s); }});
    EXPECT_EQ(lines, u"dialog ListsBox\n"
                     "  row table #1 #3\n"
                     "  check-row table #2 yes\n"
                     "  cell table 0 1 \"12 mm\"\n"
                     "  set pages Tree\n"
                     "  row tree \"inner ones\"\n"
                     "  check-row tree outer yes\n"
                     "  click kinds\n"
                     "menu Dashed\n"
                     "  click ok\n"_s);
    expectPlays();
    ASSERT_EQ(states.size(), 2);
    EXPECT_EQ(states[0], u"1;Dashed;012 mm;0value!;2value;0value!;2;0!"_s);
    EXPECT_EQ(states[1], states[0]);
}

TEST_F(RecordingTest, ViewsAreToldOnceSomethingFollows)
{
    SessionRecorder recorder(session, path(u"out.txt"_s));
    host::kernel::ViewState view = document->view();
    view.pixels = {400, 200};
    for (const double height : {50.0, 20.0, 10.0}) {
        view.centre = {height, 5.0};
        view.height = height;
        document->setView(view);
        recorder.takeView();
    }
    recorder.takeExpression(u"(setq seen (getvar \"VIEWSIZE\"))"_s);
    EXPECT_EQ(read(u"out.txt"_s), "drawing small.dxf\nview 0,0 20,10\nlisp (setq seen (getvar \"VIEWSIZE\"))\n");
    view.height = 99.0;
    view.pixels = {100, 100};
    document->setView(view);
    expectPlays();
    EXPECT_EQ(document->view().height, 20.0) << "all of the box is seen";
    EXPECT_EQ(document->view().centre, (host::drawing::Vec2{10.0, 5.0}));
    EXPECT_FALSE(runSession(u"view 1,1 1,1"_s, *document, {}).ok);
}

/// Two keywords in another language, while it is there.
struct OtherWords final : QTranslator
{
    OtherWords() { QCoreApplication::installTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        static const QHash<QByteArray, QString> words = {{"Yes", u"Ja"_s}, {"Close", u"Schließen"_s}};
        return context == QByteArrayView("Keywords") ? words.value(source) : QString();
    }
};

// What a person answers in another language plays in English, and the other way about.
TEST_F(RecordingTest, KeywordsAreRecordedSoThatEveryLanguageTakesThem)
{
    auto words = std::make_unique<OtherWords>();
    auto recorder = std::make_unique<SessionRecorder>(session, path(u"out.txt"_s));
    emit session.input().taken({}, host::kernel::TextAnswer{u"LINE"_s});
    for (const QString &answer : {u"20,0"_s, u"21,0"_s, u"21,1"_s, u"s"_s})
        session.input().push(host::kernel::TextAnswer{answer});
    ASSERT_TRUE(document->runCommand(u"LINE"_s).ok);
    recorder.reset();
    EXPECT_EQ(QString::fromUtf8(read(u"out.txt"_s)).section(u'\n', 1),
              u"command LINE\nanswer 20,0\nanswer 21,0\nanswer 21,1\nanswer _Close\n");
    expectPlays();
    words.reset();
    expectPlays();
    EXPECT_TRUE(runSession(u"expect-count LINE 11"_s, *document, {}).ok) << "two were there, three came each time";
}

TEST_F(RecordingTest, DrawingsThatComeAndGoAreComments)
{
    SessionRecorder recorder(session, path(u"out.txt"_s));
    host::kernel::Document *other = session.documents().create();
    recorder.takeExpression(u"(setq x 1)"_s);
    const QString title = other->title();
    session.documents().close(other);
    recorder.takeExpression(u"(setq y 2)"_s);
    EXPECT_EQ(
        QString::fromUtf8(read(u"out.txt"_s)),
        u"drawing small.dxf\n# opened: %1\n# in %1: lisp (setq x 1)\n# closed: %1\nlisp (setq y 2)\n"_s.arg(title));
    expectPlays();
}

} // namespace
