#include "host/app/window/entry/CommandLine.h"

#include "host/app/window/entry/PromptText.h"
#include "host/app/window/entry/SuggestionList.h"
#include "tests/support/QtTestPrinters.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QUrl>

#include <gtest/gtest.h>
#include <memory>

using namespace host::app;
using namespace Qt::StringLiterals;

namespace {

struct CommandLineTest : testing::Test
{
    CommandLineTest()
    {
        QObject::connect(&line, &CommandLine::entered, [this](const QString &text) { entered.append(text); });
        QObject::connect(&line, &CommandLine::optionPicked, [this](const QString &text) { picked.append(text); });
        QObject::connect(&line, &CommandLine::cancelled, [this] { ++cancels; });
    }

    void key(int code, const QString &text = {})
    {
        QKeyEvent event(QEvent::KeyPress, code, Qt::NoModifier, text);
        QCoreApplication::sendEvent(line.input(), &event);
    }
    void type(const QString &text)
    {
        for (const QChar c : text)
            key(c.toUpper().unicode(), QString(c)); // the codes of such keys are their characters
    }

    CommandLine line;
    QStringList entered;
    QStringList picked;
    int cancels = 0;
};

TEST_F(CommandLineTest, BlankEndsAnAnswerUnlessItBelongsToIt)
{
    struct Row
    {
        const char *name;
        QString typed;
        CommandLine::Space space;
        bool isUnfinished;
        QStringList entered;
    };
    const QList<Row> rows = {
        {"command", u"LINE 0,0 "_s, CommandLine::Space::Enters, false, {u"LINE"_s, u"0,0"_s}},
        {"only a blank", u" "_s, CommandLine::Space::Enters, false, {QString()}},
        {"expression", u"(+ 1 2) "_s, CommandLine::Space::Enters, false, {}},
        {"rest of an expression", u"x y "_s, CommandLine::Space::Enters, true, {}},
        {"text prompt", u"two words "_s, CommandLine::Space::IsText, false, {}},
    };
    for (const Row &row : rows) {
        entered.clear();
        line.input()->clear();
        line.setSpace(row.space);
        line.setUnfinished(row.isUnfinished);
        type(row.typed);
        EXPECT_EQ(entered, row.entered) << row.name;
    }
}

TEST_F(CommandLineTest, UpAndDownGoThroughWhatWasEntered)
{
    for (const QString &text : {u"LINE"_s, u"LINE"_s, QString(), u"(+ 1 2)"_s}) {
        line.input()->setText(text);
        key(Qt::Key_Return);
    }
    EXPECT_EQ(entered.size(), 4);
    QStringList seen;
    for (const int code : {Qt::Key_Up, Qt::Key_Up, Qt::Key_Up, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down}) {
        key(code);
        seen.append(line.input()->text());
    }
    EXPECT_EQ(seen, QStringList({u"(+ 1 2)"_s, u"LINE"_s, u"LINE"_s, u"(+ 1 2)"_s, QString(), QString()}));
}

// What is done to a line with the entries LINE, (setq a 1), ZOOM, (setq b 2), and what stands in it then: ^ is Up, v
// Down, R Ctrl+R, < backspace, ! Esc, T Tab, N a name that is offered, other characters themselves.
TEST_F(CommandLineTest, FindsAgainWhatWasEntered)
{
    const std::tuple<const char *, QString, QString> rows[] = {
        {"of those that begin alike", u"(^^"_s, u"(setq a 1)"_s},
        {"case does not matter, and the text stays where there is none", u"line^^"_s, u"LINE"_s},
        {"back to what was written", u"(^^vv"_s, u"("_s},
        {"none begins so", u"q^"_s, u"q"_s},
        {"anywhere in it", u"Rsetq"_s, u"(setq b 2)"_s},
        {"further back", u"RsetqRR"_s, u"(setq a 1)"_s},
        {"not found: what was found before stays", u"Rzoomx"_s, u"ZOOM"_s},
        {"a letter less", u"Rzoomx<<<<<line"_s, u"LINE"_s},
        {"what was written comes back", u"wRline!"_s, u"w"_s},
        {"the arrow ends seeking and goes on from there", u"Rsetq ^v"_s, u"(setq b 2)"_s},
    };
    for (const auto &[name, keys, expected] : rows) {
        line.setEntries({u"LINE"_s, u"(setq a 1)"_s, u"ZOOM"_s, u"(setq b 2)"_s});
        line.input()->clear();
        for (const QChar c : keys) {
            if (c == u'R') {
                QKeyEvent event(QEvent::KeyPress, Qt::Key_R, Qt::ControlModifier, u"\x12"_s);
                QCoreApplication::sendEvent(line.input(), &event);
                continue;
            }
            const QHash<QChar, int> codes = {
                {u'^', Qt::Key_Up}, {u'v', Qt::Key_Down}, {u'<', Qt::Key_Backspace}, {u'!', Qt::Key_Escape}};
            codes.contains(c) ? key(codes.value(c)) : type(c);
        }
        EXPECT_EQ(line.input()->text(), expected) << name;
        key(Qt::Key_Return);
        EXPECT_EQ(entered.takeLast(), expected) << name;
    }
    EXPECT_EQ(cancels, 0) << "Esc ended seeking only";
}

TEST_F(CommandLineTest, NamesAreChosenOrLeftAlone)
{
    line.setNames([](const QString &typed) {
        QList<Suggestion> names;
        for (const QString &name : {u"CIRCLE"_s, u"CIRKEL\u00dc"_s, u"COPY"_s})
            if (name.startsWith(typed.sliced(suggestedFrom(typed)), Qt::CaseInsensitive))
                names.append({name, u"help"_s});
        return names;
    });
    line.setEntries({u"LINE"_s});
    const std::tuple<QString, QList<int>, QString> rows[] = {
        {u"c"_s, {}, u"c"_s},
        {u"c"_s, {Qt::Key_Tab}, u"CIRCLE"_s},
        {u"_cir"_s, {Qt::Key_Tab, Qt::Key_Down}, u"_CIRKEL\u00dc"_s},
        {u"c"_s, {Qt::Key_Tab, Qt::Key_Up}, u"COPY"_s},
        {u"c"_s, {Qt::Key_Backtab}, u"COPY"_s},
        {u"x"_s, {Qt::Key_Tab}, u"x"_s},
        {QString(), {Qt::Key_Up}, u"x"_s},
    };
    for (const auto &[typed, keys, expected] : rows) {
        type(typed);
        for (const int code : keys)
            key(code);
        key(Qt::Key_Return);
        EXPECT_EQ(entered.takeLast(), expected);
        EXPECT_EQ(line.suggestions().topLevelItemCount(), 0) << "Enter takes the list away";
    }
    line.setSpace(CommandLine::Space::IsText);
    type(u"c"_s);
    EXPECT_EQ(line.suggestions().topLevelItemCount(), 0) << "a text is nobody's name";
}

TEST_F(CommandLineTest, FindsTextInWhatWasPrinted)
{
    line.print(u"first wall\nthen door\nlast wall\n"_s);
    auto *history = line.findChild<QPlainTextEdit *>(u"commandHistory"_s);
    auto *finder = line.findChild<QLineEdit *>(u"commandFinder"_s);
    const auto lineOf = [&] { return history->textCursor().blockNumber(); };
    QKeyEvent find(QEvent::KeyPress, Qt::Key_F, Qt::ControlModifier, u"\x06"_s);
    QCoreApplication::sendEvent(history, &find);
    ASSERT_FALSE(finder->isHidden());
    finder->setText(u"WALL"_s);
    emit finder->textEdited(finder->text());
    EXPECT_EQ(lineOf(), 2);
    emit finder->returnPressed();
    EXPECT_EQ(lineOf(), 0);
    emit finder->returnPressed();
    EXPECT_EQ(lineOf(), 2) << "it begins again at the end";
    EXPECT_EQ(history->textCursor().selectedText(), u"wall"_s);
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(finder, &escape);
    EXPECT_TRUE(finder->isHidden());
    EXPECT_EQ(cancels, 0);
}

TEST_F(CommandLineTest, CopiedEntitiesAreNoAnswer)
{
    const auto paste = [&](auto &&fill) {
        auto data = std::make_unique<QMimeData>();
        fill(*data);
        QGuiApplication::clipboard()->setMimeData(data.release());
        QKeyEvent event(QEvent::KeyPress, Qt::Key_V, Qt::ControlModifier, u"\x16"_s);
        QCoreApplication::sendEvent(line.input(), &event);
        return line.input()->text();
    };
    EXPECT_EQ(paste([](QMimeData &data) { data.setText(u"1,2"_s); }), u"1,2"_s);
    EXPECT_EQ(paste([](QMimeData &data) { data.setUrls({QUrl::fromLocalFile(u"/copied.dxf"_s)}); }), u"1,2"_s);
    QGuiApplication::clipboard()->clear();
}

TEST_F(CommandLineTest, LastPrintedLinesStayShownInALowerHistory)
{
    for (int row = 0; row < 100; ++row)
        line.print(u"row %1\n"_s.arg(row));
    const QScrollBar *bar = line.findChild<QPlainTextEdit *>(u"commandHistory"_s)->verticalScrollBar();
    line.resize(400, 300);
    line.show();
    QCoreApplication::processEvents();
    for (const int height : {600, 150}) {
        line.resize(400, height);
        QCoreApplication::processEvents();
        EXPECT_GT(bar->maximum(), 0);
        EXPECT_EQ(bar->value(), bar->maximum()) << height;
    }
}

TEST_F(CommandLineTest, EscEmptiesTheLineAndCancels)
{
    type(u"CIRC"_s);
    key(Qt::Key_Escape);
    EXPECT_EQ(line.input()->text(), QString());
    EXPECT_EQ(cancels, 1);
    EXPECT_TRUE(entered.isEmpty());
}

TEST_F(CommandLineTest, ClickedOptionsAnswer)
{
    line.setPrompt(u"\nSpecify next point or [Arc/LType/2/eXit now]: "_s);
    auto *label = line.findChild<QLabel *>(u"commandPrompt"_s);
    for (const QString &link : {u"option:A"_s, u"option:eXit%20now"_s})
        emit label->linkActivated(link);
    EXPECT_EQ(picked, QStringList({u"A"_s, u"eXit now"_s}));
    EXPECT_TRUE(label->text().contains(u"<a href=\"option:LT\">LType</a>"_s)) << label->text().toStdString();
    EXPECT_FALSE(label->text().contains(u'\n'));
}

TEST_F(CommandLineTest, KeysPressedElsewhereArrive)
{
    const auto take = [&](int code, const QString &text, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QKeyEvent event(QEvent::KeyPress, code, modifiers, text);
        return line.takeKey(&event);
    };
    EXPECT_TRUE(take(Qt::Key_L, u"l"_s));
    EXPECT_TRUE(take(Qt::Key_ParenLeft, u"("_s, Qt::ShiftModifier));
    EXPECT_EQ(line.input()->text(), u"l("_s);
    EXPECT_TRUE(take(Qt::Key_Return, u"\r"_s));
    EXPECT_EQ(entered, QStringList({u"l("_s}));
    EXPECT_FALSE(take(Qt::Key_S, u"\x13"_s, Qt::ControlModifier));
    EXPECT_FALSE(take(Qt::Key_F1, QString()));
}

TEST_F(CommandLineTest, PrintedTextStaysAsItIsButForDoubledLineFeeds)
{
    for (const QString &text : {u"\nselect: "_s, u"<b>1</b>\n"_s, u"\nnext: "_s, u"\n\nlast\n"_s})
        line.print(text);
    EXPECT_EQ(line.historyText(), u"select: <b>1</b>\nnext: \n\nlast\n"_s);
}

TEST(PromptText, ShowsTheLastLineWithOptionsAsLinks)
{
    const std::pair<QString, QString> rows[] = {
        {u"Command:"_s, u"Command:"_s},
        {u"\nfirst\nsecond <5>: "_s, u"second &lt;5&gt;: "_s},
        {u"Mode [On/OFf] <On>: "_s, u"Mode [<a href=\"option:O\">On</a>/<a href=\"option:OF\">OFf</a>] &lt;On&gt;: "_s},
        {u"Size [a&b/c/]: "_s, u"Size [<a href=\"option:a%26b\">a&amp;b</a>/<a href=\"option:c\">c</a>]: "_s},
        {u"Empty []: "_s, u"Empty []: "_s},
        {u"Odd ]a[: "_s, u"Odd ]a[: "_s},
        {QString(), QString()},
    };
    for (const auto &[prompt, html] : rows)
        EXPECT_EQ(promptHtml(prompt), html);
}

} // namespace
