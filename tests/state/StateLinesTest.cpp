#include "state/exchange/StateLines.h"

#include "tests/support/ModuleTest.h"

namespace {

/// Lines written as one text with "|" between.
StateLines stored(const QString &text)
{
    StateLines lines;
    lines.assign(text.split(u'|', Qt::SkipEmptyParts));
    return lines;
}

using StateLinesRow = std::tuple<const char *, QString, QString, QString>;

TEST(StateLines, MergingReplacesByTheKeyAsItIsSpelled)
{
    // What is stored, what is merged into it, and what it is then.
    const StateLinesRow rows[] = {
        {"new keys go to the end", u"ab=1"_s, u"a=2|c=3"_s, u"ab=1|a=2|c=3"_s},
        {"the new line's key is lowered", u"flag=TRUE"_s, u"Flag=FALSE"_s, u"Flag=FALSE"_s},
        {"the stored line's is not", u"Flag=TRUE"_s, u"Flag=FALSE"_s, u"Flag=TRUE|Flag=FALSE"_s},
        {"a line that took a capital stays", u"flag=1"_s, u"Flag=2|flag=3|flag=4"_s, u"Flag=2|flag=4"_s},
        {"the key ends at the first equals sign", u"a=1"_s, u"a=b=c"_s, u"a=b=c"_s},
        {"every line of the key", u"a=1|b=2|a=3"_s, u"a=4"_s, u"a=4|b=2|a=4"_s},
        {"a bare key holds the place", u"_size|_offset"_s, u"size=1|_offset=2|_size=3"_s,
         u"_size=3|_offset=2|size=1"_s},
        {"a line without equals sign is its own key", {}, u"word|word"_s, u"word"_s},
        {"an empty key is a key", u"=1"_s, u"=2"_s, u"=2"_s},
        {"an action is keyed with its value", u"!action!get=A"_s, u"!action!GET=B|!action!=OK"_s,
         u"!action!GET=B|!action!=OK"_s},
    };
    for (const auto &[name, before, merged, expected] : rows) {
        StateLines lines = stored(before);
        for (const QString &line : merged.split(u'|'))
            lines.merge(line);
        EXPECT_EQ(lines.lines().join(u'|'), expected) << name;
    }
}

TEST(StateLines, LookupTakesTheFirstLineThatHoldsTheKeyAnywhere)
{
    const StateLinesRow rows[] = {
        {"no such key", u"a=1"_s, u"b"_s, {}},
        {"an empty key", u"=1|a=1"_s, {}, {}},
        {"a key without its equals sign", u"abc"_s, u"abc"_s, {}},
        {"any case of the key", u"Size=4"_s, u"sIZE"_s, u"4"_s},
        {"the end of another key", u"_dist_size=7|size=1"_s, u"size"_s, u"7"_s},
        {"unless its own line is first", u"size=1|_dist_size=7"_s, u"size"_s, u"1"_s},
        {"inside a value, whose line's value is then taken", u"note=the size=9"_s, u"size"_s, u"the size"_s},
        {"the value ends at the next equals sign", u"a=x=y"_s, u"a"_s, u"x"_s},
        {"an empty value hides the later one", u"a=|a=2"_s, u"a"_s, {}},
        {"letters of other scripts", u"ΜΕΓΕΘΟΣ=5"_s, u"μεγεθοσ"_s, u"5"_s},
        {"never across two lines", u"ab|c=3"_s, u"b\nc"_s, {}},
    };
    for (const auto &[name, lines, key, expected] : rows)
        EXPECT_EQ(stored(lines).lookup(key), expected) << name;

    StateLines lines;
    lines.merge(u"b=1"_s);
    EXPECT_EQ(lines.lookup(u"b"_s), u"1"_s);
    lines.merge(u"b=2"_s);
    EXPECT_EQ(lines.lookup(u"b"_s), u"2"_s) << "each change is seen";
    lines.prepend({u"ab=3"_s});
    EXPECT_EQ(lines.lookup(u"b"_s), u"3"_s);
}

TEST(StateLines, NumberedKeysAreFoundAsEachAlone)
{
    const StateLinesRow rows[] = {
        {"in the order of the numbers", u"style10=j|style2=b|style1=a"_s, u"style"_s, u"a b j"_s},
        {"not beyond the count", u"style11=k|style0=z|style99999999999=y"_s, u"style"_s, {}},
        {"the end of another key, the first of two", u"xSTYLE1=x|style1=a"_s, u"style"_s, u"x"_s},
        {"inside a value", u"note=my style3=c"_s, u"style"_s, u"my style3"_s},
        {"gaps and empty values", u"style1=|style1=a|style4=d"_s, u"style"_s, u"d"_s},
        {"other spellings of a number", u"style01=a|style+2=b|style 3=c"_s, u"style"_s, {}},
    };
    for (const auto &[name, all, key, expected] : rows) {
        const StateLines lines = stored(all);
        QStringList alone;
        for (int number = 1; number <= 10; ++number)
            alone.append(lines.lookup(key + QString::number(number)));
        alone.removeAll(QString());
        EXPECT_EQ(alone.join(u' '), expected) << name;
        EXPECT_EQ(lines.lookupNumbered(key, 10), alone) << name;
    }
}

} // namespace
