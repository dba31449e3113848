#include "state/StateLines.h"

#include "tests/support/QtTestPrinters.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct MergeRow
{
    const char *name;
    QStringList stored;
    QStringList merged;
    QStringList expected;
};

TEST(StateLines, MergingReplacesByTheKeyAsItIsSpelled)
{
    const MergeRow rows[] = {
        {"new keys go to the end", {u"a=1"_s}, {u"b=2"_s, u"c=3"_s}, {u"a=1"_s, u"b=2"_s, u"c=3"_s}},
        {"a key keeps its place", {u"a=1"_s, u"b=2"_s}, {u"a=9"_s}, {u"a=9"_s, u"b=2"_s}},
        {"the new line's key is lowered", {u"flag=TRUE"_s}, {u"Flag=FALSE"_s}, {u"Flag=FALSE"_s}},
        {"the stored line's is not", {u"Flag=TRUE"_s}, {u"Flag=FALSE"_s}, {u"Flag=TRUE"_s, u"Flag=FALSE"_s}},
        {"a line that took a capital is no longer replaced",
         {u"flag=1"_s},
         {u"Flag=2"_s, u"flag=3"_s, u"flag=4"_s},
         {u"Flag=2"_s, u"flag=4"_s}},
        {"a longer key is another key", {u"ab=1"_s}, {u"a=2"_s}, {u"ab=1"_s, u"a=2"_s}},
        {"the key ends at the first equals sign", {u"a=1"_s}, {u"a=b=c"_s}, {u"a=b=c"_s}},
        {"every stored line of the key is replaced",
         {u"a=1"_s, u"b=2"_s, u"a=3"_s},
         {u"a=4"_s},
         {u"a=4"_s, u"b=2"_s, u"a=4"_s}},
        {"a bare key holds the place for its line",
         {u"_dist_size"_s, u"_dist_offset"_s},
         {u"size=1"_s, u"_dist_offset=2"_s, u"_dist_size=3"_s},
         {u"_dist_size=3"_s, u"_dist_offset=2"_s, u"size=1"_s}},
        {"a line without equals sign is its own key", {}, {u"word"_s, u"word"_s}, {u"word"_s}},
        {"an empty key is a key", {u"=1"_s}, {u"=2"_s}, {u"=2"_s}},
        {"an action with a value is keyed with it",
         {u"!action!get_block=Door"_s},
         {u"!action!GET_BLOCK=Window"_s, u"!action!=OK"_s},
         {u"!action!GET_BLOCK=Window"_s, u"!action!=OK"_s}},
    };
    for (const MergeRow &row : rows) {
        StateLines lines;
        lines.assign(row.stored);
        for (const QString &line : row.merged)
            lines.merge(line);
        EXPECT_EQ(lines.lines(), row.expected) << row.name;
    }
}

struct LookupRow
{
    const char *name;
    QStringList stored;
    QString key;
    QString expected;
};

TEST(StateLines, LookupTakesTheFirstLineThatHoldsTheKeyAnywhere)
{
    const LookupRow rows[] = {
        {"the line of the key", {u"a=1"_s, u"b=2"_s}, u"b"_s, u"2"_s},
        {"no such key", {u"a=1"_s}, u"b"_s, {}},
        {"an empty key", {u"=1"_s, u"a=1"_s}, {}, {}},
        {"a key without its equals sign", {u"abc"_s}, u"abc"_s, {}},
        {"any case of the key", {u"Size=4"_s}, u"sIZE"_s, u"4"_s},
        {"the end of another key", {u"_dist_size=7"_s, u"size=1"_s}, u"size"_s, u"7"_s},
        {"unless its own line is first", {u"size=1"_s, u"_dist_size=7"_s}, u"size"_s, u"1"_s},
        {"inside a value, whose line's value is then taken", {u"note=the size=9"_s}, u"size"_s, u"the size"_s},
        {"the value ends at the next equals sign", {u"a=x=y"_s}, u"a"_s, u"x"_s},
        {"an empty value hides the later one", {u"a="_s, u"a=2"_s}, u"a"_s, {}},
        {"the older of two spellings", {u"Flag=TRUE"_s, u"flag=FALSE"_s}, u"flag"_s, u"TRUE"_s},
        {"the action in any case", {u"!action!=CREATE"_s}, u"!Action!"_s, u"CREATE"_s},
        {"letters of other scripts", {u"ΜΕΓΕΘΟΣ=5"_s}, u"μεγεθοσ"_s, u"5"_s},
        {"never across two lines", {u"ab"_s, u"c=3"_s}, u"b\nc"_s, {}},
    };
    for (const LookupRow &row : rows) {
        StateLines lines;
        lines.assign(row.stored);
        EXPECT_EQ(lines.lookup(row.key), row.expected) << row.name;
    }
}

TEST(StateLines, NumberedKeysAreFoundAsEachAlone)
{
    const LookupRow rows[] = {
        {"in the order of the numbers", {u"style2=b"_s, u"style1=a"_s}, u"style"_s, u"a b"_s},
        {"ten is not one", {u"style10=j"_s, u"style1=a"_s}, u"style"_s, u"a j"_s},
        {"not beyond the count", {u"style11=k"_s, u"style0=z"_s, u"style99999999999=y"_s}, u"style"_s, {}},
        {"the end of another key, the first of two", {u"xSTYLE1=x"_s, u"style1=a"_s}, u"style"_s, u"x"_s},
        {"inside a value", {u"note=my style3=c"_s}, u"style"_s, u"my style3"_s},
        {"gaps and empty values", {u"style1="_s, u"style1=a"_s, u"style4=d"_s}, u"style"_s, u"d"_s},
        {"other spellings of a number", {u"style01=a"_s, u"style+2=b"_s, u"style 3=c"_s}, u"style"_s, {}},
    };
    for (const LookupRow &row : rows) {
        StateLines lines;
        lines.assign(row.stored);
        QStringList alone;
        for (int number = 1; number <= 10; ++number)
            alone.append(lines.lookup(row.key + QString::number(number)));
        alone.removeAll(QString());
        EXPECT_EQ(alone.join(u' '), row.expected) << row.name;
        EXPECT_EQ(lines.lookupNumbered(row.key, 10), alone) << row.name;
    }
}

TEST(StateLines, LookupSeesEveryChange)
{
    StateLines lines;
    lines.merge(u"b=1"_s);
    EXPECT_EQ(lines.lookup(u"b"_s), u"1"_s);
    lines.merge(u"b=2"_s);
    EXPECT_EQ(lines.lookup(u"b"_s), u"2"_s);
    lines.prepend({u"ab=3"_s});
    EXPECT_EQ(lines.lookup(u"b"_s), u"3"_s);
    lines.assign({});
    EXPECT_EQ(lines.lookup(u"b"_s), QString());
}

} // namespace
