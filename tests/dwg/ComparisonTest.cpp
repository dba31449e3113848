// The comparison of two drawings itself, over drawings of a few records. Each row: what was read, what another program
// wrote, and the differences told. In the texts a blank ends a tag's group code, a semicolon the tag.

#include "tests/dwg/PairComparison.h"

#include <gtest/gtest.h>

namespace host::dwg::test {

namespace {

std::string asFile(std::string_view tags)
{
    std::string text;
    while (!tags.empty()) {
        const std::string_view tag = tags.substr(0, tags.find(';'));
        tags.remove_prefix(std::min(tags.size(), tag.size() + 1));
        const std::size_t blank = tag.find(' ');
        text += std::string(tag.substr(0, blank)) + '\n' + std::string(tag.substr(blank + 1)) + '\n';
    }
    return text;
}

std::string toldOf(std::string_view read, std::string_view expected)
{
    const PairOutcome outcome = comparePair(readTree(asFile(read)), readTree(asFile(expected)), "none");
    std::string told = std::to_string(outcome.equal) + " of " + std::to_string(outcome.all);
    for (const Difference &one : outcome.differences) {
        constexpr const char *kinds[] = {"different", "missing", "extra", "moved"};
        told += std::string(", ") + kinds[static_cast<int>(one.kind)] + ' ' + one.record;
    }
    return told;
}

struct ComparisonRow
{
    const char *name;
    const char *read;
    const char *expected;
    const char *told;
};

constexpr ComparisonRow comparisonRows[] = {
    {"Numbers", "0 SECTION;2 ENTITIES;0 LINE;5 A;10 0.1;11 1;0 LINE;5 B;10 0.3;0 ENDSEC",
     "0 SECTION;2 ENTITIES;0 LINE;5 A;10 0.10000000000000001;11 1.0;0 LINE;5 B;10 0.31;0 ENDSEC",
     "1 of 2, different LINE B"},
    {"VerticesThatWereNumberedAnew",
     "0 SECTION;2 ENTITIES;0 POLYLINE;5 A;0 VERTEX;5 B;10 1;0 VERTEX;5 C;10 2;0 SEQEND;5 D;330 A;0 ENDSEC",
     "0 SECTION;2 ENTITIES;0 POLYLINE;5 A;0 VERTEX;5 C;10 1;0 VERTEX;5 E;10 2;0 SEQEND;5 F;330 A;0 ENDSEC", "4 of 4"},
    {"DictionariesByName",
     "0 SECTION;2 OBJECTS;0 DICTIONARY;5 C;100 D;3 X;350 D;3 Y;350 E;0 XRECORD;5 D;1 x;0 XRECORD;5 E;1 y;0 ENDSEC",
     "0 SECTION;2 OBJECTS;0 DICTIONARY;5 C;100 D;3 X;350 E;3 Y;350 F;0 XRECORD;5 E;1 x;0 XRECORD;5 F;1 z;0 ENDSEC",
     "2 of 3, different XRECORD /Y"},
    {"BlocksByWhatShowsThem",
     "0 SECTION;2 TABLES;0 TABLE;2 BLOCK_RECORD;0 BLOCK_RECORD;5 1;2 *X1;0 BLOCK_RECORD;5 2;2 *X2;0 ENDTAB;0 ENDSEC;"
     "0 SECTION;2 BLOCKS;0 BLOCK;2 *X1;0 LINE;5 3;0 ENDBLK;0 BLOCK;2 *X2;0 ARC;5 4;0 ENDBLK;0 ENDSEC;"
     "0 SECTION;2 ENTITIES;0 INSERT;5 8;2 *X2;0 ENDSEC",
     "0 SECTION;2 TABLES;0 TABLE;2 BLOCK_RECORD;0 BLOCK_RECORD;5 9;2 *X7;0 ENDTAB;0 ENDSEC;"
     "0 SECTION;2 BLOCKS;0 BLOCK;2 *X7;0 ARC;5 3;0 ENDBLK;0 ENDSEC;"
     "0 SECTION;2 ENTITIES;0 INSERT;5 8;2 *X7;0 ENDSEC",
     "6 of 6, extra BLOCK_RECORD *X1, extra BLOCK *X1, extra LINE 3, extra ENDBLK #8"},
    {"Order", "0 SECTION;2 ENTITIES;0 LINE;5 A;0 LINE;5 B;0 LINE;5 C;0 ENDSEC",
     "0 SECTION;2 ENTITIES;0 LINE;5 C;0 LINE;5 A;0 LINE;5 B;0 ENDSEC", "3 of 3, moved LINE C"},
    {"AnotherBlock", "0 SECTION;2 BLOCKS;0 BLOCK;2 a;0 LINE;5 A;0 ENDBLK;0 BLOCK;2 b;0 ENDBLK;0 ENDSEC",
     "0 SECTION;2 BLOCKS;0 BLOCK;2 a;0 ENDBLK;0 BLOCK;2 b;0 LINE;5 A;0 ENDBLK;0 ENDSEC", "5 of 5, moved LINE A"},
    {"ReferencesToOthers",
     "0 SECTION;2 OBJECTS;0 DICTIONARY;5 C;3 X;350 D;0 XRECORD;5 D;330 C;0 XRECORD;5 E;330 D;0 ENDSEC",
     "0 SECTION;2 OBJECTS;0 DICTIONARY;5 C;3 X;350 E;0 XRECORD;5 E;330 C;0 XRECORD;5 D;330 C;0 ENDSEC",
     "2 of 3, missing XRECORD D, extra XRECORD E"},
    {"TextsToTheBlank", "0 SECTION;2 ENTITIES;0 TEXT;5 A;1  a;0 TEXT;5 B;70 1;0 ENDSEC",
     "0 SECTION;2 ENTITIES;0 TEXT;5 A;1 a;0 TEXT;5 B;70     1;0 ENDSEC", "1 of 2, different TEXT A"},
    {"WithoutHandles", "0 SECTION;2 ENTITIES;0 LINE;8 0;0 TEXT;1 a;0 LINE;8 1;0 ENDSEC",
     "0 SECTION;2 ENTITIES;0 LINE;8 0;0 LINE;8 1;0 ENDSEC", "2 of 2, extra TEXT #3"},
};

} // namespace

TEST(PairComparison, TellsWhatIsNotTheSame)
{
    for (const ComparisonRow &row : comparisonRows)
        EXPECT_EQ(toldOf(row.read, row.expected), row.told) << row.name;
}

TEST(PairComparison, ExplainsNoMoreThanItsGroups)
{
    const auto outcomeOf = [](const char *read, const char *expected) {
        const PairOutcome outcome = comparePair(readTree(asFile(read)), readTree(asFile(expected)), "none");
        return std::pair(outcome.explained(), outcome.unexplained());
    };
    EXPECT_EQ(outcomeOf("0 SECTION;2 HEADER;9 $TDCREATE;40 1;9 $LTSCALE;40 1;0 ENDSEC",
                        "0 SECTION;2 HEADER;9 $TDCREATE;40 2;9 $LTSCALE;40 2;0 ENDSEC"),
              std::pair(1, 1));
    EXPECT_EQ(outcomeOf("0 SECTION;2 HEADER;9 $TDCREATE;40 1;70 1;0 ENDSEC",
                        "0 SECTION;2 HEADER;9 $TDCREATE;40 2;70 2;0 ENDSEC"),
              std::pair(0, 1));
}

} // namespace host::dwg::test
