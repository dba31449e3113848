#include "host/kernel/input/InputQueue.h"

#include <gtest/gtest.h>

using namespace host::kernel;

namespace {

struct QueueCase
{
    const char *name;
    const char *typed;
    /// How each answer is asked for: c a command, w a word, l a whole line, x a word for a command.
    const char *requests;
    std::vector<const char *> expected;
};

PromptRequest requestFor(char kind)
{
    PromptRequest request;
    request.kind = kind == 'c' ? PromptKind::Command : kind == 'l' ? PromptKind::String : PromptKind::Point;
    request.allowSpaces = kind == 'l';
    request.forCommand = kind == 'x';
    return request;
}

const std::vector<QueueCase> queueCases = {
    {"a line of words", "line 0,0 1,1 \n", "cwww", {"line", "0,0", "1,1", ""}},
    {"lines of words", "line\n0,0\n\n", "cww", {"line", "0,0", ""}},
    {"line ends of other systems", "line\r\n0,0\r\n\r\n", "cww", {"line", "0,0", ""}},
    {"a line with blanks",
     "text 0,0 1 0 Hello, big world\nline\n",
     "cwwwlc",
     {"text", "0,0", "1", "0", "Hello, big world", "line"}},
    {"an expression", "(setq a\n  \")\" ; )\n b 2)\nline\n", "cc", {"(setq a\n  \")\" ; )\n b 2)", "line"}},
    {"an expression for a command's prompt", "line (list 1 2) 3,4\n", "cxx", {"line", "(list 1 2)", "3,4"}},
    {"a parenthesis in a program's prompt is text", "(a b)\n", "ww", {"(a", "b)"}},
    {"comments of a script", "; draws\n  ; a line\nline\n", "c", {"line"}},
    {"an empty line is an answer", "\nline\n", "cc", {"", "line"}},
    {"non-ASCII text", "Größe 日本\n", "ww", {"Größe", "日本"}},
};

TEST(InputQueue, promptsTakeAsMuchAsTheyWant)
{
    for (const QueueCase &row : queueCases) {
        SCOPED_TRACE(row.name);
        InputQueue queue;
        queue.pushTyped(QString::fromUtf8(row.typed));
        for (size_t i = 0; i < row.expected.size(); ++i) {
            ASSERT_FALSE(queue.isEmpty());
            const std::optional<InputAnswer> answer = queue.take(requestFor(row.requests[i]));
            ASSERT_TRUE(answer.has_value());
            EXPECT_EQ(std::get<TextAnswer>(*answer).text, QString::fromUtf8(row.expected[i]));
        }
        EXPECT_TRUE(queue.isEmpty());
    }
}

TEST(InputQueue, theBeginningOfAnExpressionWaits)
{
    InputQueue queue;
    queue.pushTyped(QStringLiteral("(setq a"));
    EXPECT_FALSE(queue.take(requestFor('c')).has_value());
    EXPECT_FALSE(queue.isEmpty());
    queue.pushTyped(QStringLiteral("1)"));
    EXPECT_EQ(std::get<TextAnswer>(*queue.take(requestFor('c'))).text, QStringLiteral("(setq a\n1)"));
    EXPECT_TRUE(queue.isEmpty());
}

TEST(InputQueue, answersComeWholeAndInOrder)
{
    InputQueue queue;
    queue.pushTyped(QStringLiteral("a"));
    queue.push(TextAnswer{QStringLiteral("b c")});
    queue.pushTyped(QStringLiteral("d"));
    EXPECT_EQ(std::get<TextAnswer>(*queue.take(requestFor('w'))).text, QStringLiteral("a"));
    EXPECT_EQ(std::get<TextAnswer>(*queue.take(requestFor('w'))).text, QStringLiteral("b c"));
    EXPECT_EQ(std::get<TextAnswer>(*queue.take(requestFor('w'))).text, QStringLiteral("d"));
}

TEST(InputQueue, scriptsComeBeforeWhatIsTypedAheadAndReplaceEachOther)
{
    using enum InputQueue::ScriptOutcome;
    InputQueue queue;
    const auto taken = [&queue](int count = 1) {
        std::string words;
        while (count-- > 0)
            words += std::get<TextAnswer>(*queue.take(requestFor('w'))).text.toStdString();
        return words;
    };
    queue.pushTyped(QStringLiteral("script typed"));
    EXPECT_EQ(taken(), "script");
    EXPECT_EQ(queue.pushScript(QStringLiteral("a b")), Taken);
    EXPECT_EQ(queue.pushScript(QStringLiteral("c d")), Taken) << "a was not begun";
    EXPECT_EQ(taken(3), "abc");
    EXPECT_EQ(queue.pushScript(QStringLiteral("e")), Replaced) << "d is left out";
    EXPECT_EQ(taken(2), "etyped");
    EXPECT_TRUE(queue.isEmpty());
    for (int round = 0; round < 3; ++round) {
        EXPECT_EQ(queue.pushScript(QStringLiteral("again\n\n")), Taken) << "nothing but blanks was left";
        EXPECT_EQ(taken(), "again");
    }
    queue.clear();
    queue.push(TextAnswer{QStringLiteral("x")});
    const QString large(32 * 1024 * 1024, u'y');
    EXPECT_EQ(queue.pushScript(large), Taken);
    EXPECT_EQ(queue.pushScript(large), TooLong);
    EXPECT_EQ(taken(2).size(), std::size_t(large.size()) + 1);
}

TEST(InputQueue, aLongScriptIsTakenInAReasonableTime)
{
    InputQueue queue;
    constexpr int count = 200'000;
    queue.pushTyped(QStringLiteral("1,1\n").repeated(count));
    int taken = 0;
    while (!queue.isEmpty() && queue.take(requestFor('w')))
        ++taken;
    EXPECT_EQ(taken, count);
}

} // namespace
