#include "host/app/window/entry/CommandLine.h"

#include "host/app/window/entry/PromptText.h"
#include "tests/support/QtTestPrinters.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

#include <gtest/gtest.h>

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
    line.input()->setText(u"draft"_s);
    QStringList seen;
    for (const int code : {Qt::Key_Up, Qt::Key_Up, Qt::Key_Up, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down}) {
        key(code);
        seen.append(line.input()->text());
    }
    EXPECT_EQ(seen, QStringList({u"(+ 1 2)"_s, u"LINE"_s, u"LINE"_s, u"(+ 1 2)"_s, u"draft"_s, u"draft"_s}));
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
