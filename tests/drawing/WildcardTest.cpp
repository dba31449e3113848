#include "host/drawing/Wildcard.h"

#include <QString>

#include <gtest/gtest.h>

namespace host::drawing {
namespace {

using namespace Qt::StringLiterals;

TEST(Wildcard, Patterns)
{
    const struct
    {
        QString text;
        QString pattern;
        bool matches;
    } rows[] = {
        {u"LINE"_s, u"LINE"_s, true},
        {u"LINE"_s, u"line"_s, true},
        {u"LINE"_s, u"LIN"_s, false},
        {u"LINE"_s, u"*LINE"_s, true},
        {u"POLYLINE"_s, u"*LINE"_s, true},
        {u"LINES"_s, u"*LINE"_s, false},
        {u"aXbXc"_s, u"a*X?"_s, true},
        {u""_s, u"*"_s, true},
        {u""_s, u"?"_s, false},
        {u"A1"_s, u"@#"_s, true},
        {u"1A"_s, u"@#"_s, false},
        {u"A-1"_s, u"@.#"_s, true},
        {u"AB1"_s, u"@.#"_s, false},
        {u"x"_s, u"[xyz]"_s, true},
        {u"w"_s, u"[xyz]"_s, false},
        {u"w"_s, u"[~xyz]"_s, true},
        {u"m"_s, u"[a-p]"_s, true},
        {u"q"_s, u"[a-p]"_s, false},
        {u"M"_s, u"[a-p]"_s, true},
        {u"]"_s, u"[]]"_s, true},
        {u"-"_s, u"[a-]"_s, true},
        {u"ARC"_s, u"LINE,ARC"_s, true},
        {u"ARC"_s, u"~LINE"_s, true},
        {u"LINE"_s, u"~LINE"_s, false},
        {u"LINE"_s, u"~ARC,~LINE"_s, true},
        {u"a,b"_s, u"a`,b"_s, true},
        {u"a"_s, u"a`,b"_s, false},
        {u"*U1"_s, u"`*U*"_s, true},
        {u"XU1"_s, u"`*U*"_s, false},
        {u"[x"_s, u"[x"_s, true},
        {u"a,b"_s, u"[,]"_s, false},
        {u","_s, u"[,]"_s, true},
        {u"é"_s, u"@"_s, true},
        {u"x"_s, u""_s, false},
        {u""_s, u""_s, true},
        {u"x"_s, u"y,"_s, false},
    };
    for (const auto &row : rows)
        EXPECT_EQ(matchesWildcard(row.text, row.pattern), row.matches)
            << row.text.toStdString() << " against " << row.pattern.toStdString();
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
