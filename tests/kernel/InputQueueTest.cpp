#include "host/kernel/input/InputQueue.h"

#include "host/kernel/input/Keywords.h"

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
    queue.pushTyped(QStringLiteral("script"));
    queue.push(TextAnswer{QStringLiteral("b c")});
    queue.pushTyped(QStringLiteral("typed"));
    EXPECT_EQ(taken(2), "scriptb c") << "answers come whole and in order";
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
    EXPECT_EQ(queue.pushScript(QStringLiteral("x")), Taken);
    EXPECT_EQ(queue.pushScript(QString(64 * 1024 * 1024, u'y')), TooLong) << "with what waits";
    EXPECT_EQ(taken(), "x");
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

struct KeywordCase
{
    const char *keywords; ///< with a blank between
    const char *typed;
    const char *expected; ///< null: no match
};

const std::vector<KeywordCase> keywordCases = {
    {"Yes No", "y", "Yes"},       {"Yes No", "YES", "Yes"},        {"Yes No", "yess", nullptr},
    {"Yes No", "_No", "No"},      {"Yes No", "", nullptr},         {"Yes No", "_", nullptr},
    {"LType", "l", nullptr},      {"LType", "LT", "LType"},        {"LType", "lty", "LType"},
    {"LTYPE,LT", "lt", "LTYPE"},  {"LTYPE,LT", "ltyp", "LTYPE"},   {"LTYPE,LT", "l", nullptr},
    {"LTYPE,LT", "LTX", nullptr}, {"eXit", "x", "eXit"},           {"eXit", "xi", "eXit"},
    {"eXit", "ex", "eXit"},       {"eXit", "e", nullptr},          {"SAVE", "s", nullptr},
    {"SAVE", "save", "SAVE"},     {"BEgin Begone", "be", "BEgin"}, {"BEgin Begone", "begone", "Begone"},
    {"auto", "a", nullptr},       {"auto", "AUTO", "auto"},        {"2D 3D", "3d", "3D"},
};

TEST(Keywords, abbreviations)
{
    for (const KeywordCase &row : keywordCases) {
        SCOPED_TRACE(std::string(row.keywords) + " / " + row.typed);
        const QStringList keywords = QString::fromUtf8(row.keywords).split(u' ');
        const std::optional<QString> found = matchKeyword(QString::fromUtf8(row.typed), keywords);
        EXPECT_EQ(found.value_or(QStringLiteral("-")), QString::fromUtf8(row.expected ? row.expected : "-"));
    }
}

TEST(Keywords, namesToReadAndWhatIsTypedForThem)
{
    const QStringList keywords = {QStringLiteral(". for none,."), QStringLiteral("Enter to 0,5")};
    EXPECT_EQ(matchKeyword(QStringLiteral("."), keywords), QStringLiteral("."));
    EXPECT_EQ(matchKeyword(QStringLiteral(". for none"), keywords), QStringLiteral(".")) << "picked from a menu";
    EXPECT_EQ(matchKeyword(QStringLiteral(".x"), keywords), std::nullopt);
    EXPECT_EQ(matchKeyword(QStringLiteral("5"), keywords), QStringLiteral("Enter to 0")) << "not its beginning";
    EXPECT_EQ(formatPrompt(QStringLiteral("Path"), keywords.first(1), QStringLiteral("a b")),
              QStringLiteral("Path [. for none] <a b>: "));
}

} // namespace
