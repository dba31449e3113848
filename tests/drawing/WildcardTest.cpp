#include "host/drawing/selection/Wildcard.h"

#include <QString>

#include <gtest/gtest.h>

namespace host::drawing {
namespace {

using namespace Qt::StringLiterals;

TEST(Wildcard, Patterns)
{
    const struct
    {
        const char *text;
        const char *pattern;
        bool matches;
    } rows[] = {
        {"LINE", "line", true},
        {"LINE", "LIN", false},
        {"POLYLINE", "*LINE", true},
        {"LINES", "*LINE", false},
        {"aXbXc", "a*X?", true},
        {"", "?", false},
        {"A1", "@#", true},
        {"1A", "@#", false},
        {"A-1", "@.#", true},
        {"AB1", "@.#", false},
        {"w", "[xyz]", false},
        {"w", "[~xyz]", true},
        {"q", "[a-p]", false},
        {"A", "[a-p]", true},
        {"]", "[]]", true},
        {"-", "[a-]", true},
        {"ARC", "LINE,ARC", true},
        {"LINE", "~LINE", false},
        {"LINE", "~ARC,~LINE", true},
        {"a,b", "a`,b", true},
        {"a", "a`,b", false},
        {"*U1", "`*U*", true},
        {"[x", "[x", true},
        {"a,b", "[,]", false},
        {",", "[,]", true},
        {"é", "@", true},
        {"x", "", false},
        {"", "", true},
        {"x", "y,", false},
    };
    for (const auto &row : rows)
        EXPECT_EQ(matchesWildcard(QString::fromUtf8(row.text), QString::fromUtf8(row.pattern)), row.matches)
            << row.text << " against " << row.pattern;
    EXPECT_FALSE(matchesWildcard(u"LINE", u"line", Qt::CaseSensitive));
}

TEST(Wildcard, ManyStarsAndOpenBracketsDoNotHang)
{
    const QString text(20000, u'a');
    const QString pattern = u"*a"_s.repeated(500) + u"b"_s;
    EXPECT_FALSE(matchesWildcard(text, pattern));
    EXPECT_FALSE(matchesWildcard(u"CIRCLE", u"LINE,[[,"_s.repeated(200000)));
}

} // namespace
} // namespace host::drawing
