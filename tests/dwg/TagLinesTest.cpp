// Tags as lines of text: numbers, texts, and the orders that types of objects bring them into.

#include "host/dwg/objects/TagLines.h"

#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace host::dwg::test {

namespace {

std::string linesOf(const TagLines &tags)
{
    std::string lines;
    tags.write(lines);
    return lines;
}

/// "10a 20b": tags of one letter each, as arrange() is told of them.
TagLines tagsOf(std::initializer_list<std::pair<int, const char *>> rows)
{
    TagLines tags;
    for (const auto &[code, text] : rows)
        tags.addText(code, text);
    return tags;
}

std::string valuesOf(const TagLines &tags)
{
    std::string values;
    tags.forEach([&](int, std::string_view value) { values += value; });
    return values;
}

} // namespace

TEST(TagLines, NumbersHaveTheirShortestDigits)
{
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    const std::pair<double, const char *> rows[] = {
        {0.0, "0.0"},
        {-0.0, "-0.0"},
        {7.0, "7.0"},
        {-12.5, "-12.5"},
        {0.1, "0.1"},
        {1e-9, "1e-09"},
        {12345.0, "12345.0"},
        {10000.0, "10000.0"},
        {100000.0, "100000.0"},
        {-1234500.0, "-1234500.0"},
        {1e15, "1000000000000000.0"},
        {1e16, "1e+16"},
        {123456789012345678901.0, "1.2345678901234568e+20"},
        {0.0001, "0.0001"},
        {0.00009, "9e-05"},
        {0.00010000000000000002, "0.00010000000000000002"},
        {1e300, "1e+300"},
        {none, "0.0"},
        {1.0 / 3.0, "0.3333333333333333"},
        {9007199254740993.0, "9007199254740992.0"},
        {999999999999999.0, "999999999999999.0"},
    };
    for (const auto &[value, text] : rows) {
        TagLines tags;
        tags.addReal(40, value);
        EXPECT_EQ(linesOf(tags), " 40\n" + std::string(text) + '\n');
    }
}

TEST(TagLines, HaveTheirCodesInThreePlaces)
{
    TagLines tags;
    tags.addInteger(0, -5);
    tags.addHandle(5, 0x1f0);
    tags.addHandle(330, 0);
    tags.addBytes(310, std::string_view("\x00\xff\x1a", 3));
    tags.addText(1071, "^ and\n");
    tags.addText(-3, "far");
    tags.addText(32000, "");
    EXPECT_EQ(linesOf(tags), "  0\n-5\n  5\n1F0\n330\n0\n310\n00FF1A\n1071\n^  and^J\n -3\nfar\n32000\n\n");
    EXPECT_EQ(valuesOf(tags), "-51F0000FF1A^  and^Jfar");
}

TEST(TagLines, StandInTheOrderOfTheirCodes)
{
    const std::initializer_list<std::pair<int, const char *>> rows = {{40, "a"}, {10, "b"}, {40, "c"}, {1, "d"},
                                                                      {10, "e"}, {40, "f"}, {2, "g"}};
    const auto arranged = [&](std::size_t from, std::initializer_list<int> codes) {
        TagLines tags = tagsOf(rows);
        tags.arrange(from, codes);
        return valuesOf(tags);
    };
    EXPECT_EQ(arranged(0, {}), "abcdefg");
    EXPECT_EQ(arranged(0, {10}), "beacdfg");
    EXPECT_EQ(arranged(0, {2, 10, 40}), "gbeacfd");
    EXPECT_EQ(arranged(3, {40, 10}), "abcfedg") << "from the fourth on";
    EXPECT_EQ(arranged(0, {40, 10, 40}), "abecfdg") << "one, then the others";
    EXPECT_EQ(arranged(0, {40, 10, 40, 1, 40}), "abecdfg");
    EXPECT_EQ(arranged(0, {7, 8}), "abcdefg");
}

TEST(TagLines, AreMovedAndTakenBack)
{
    TagLines tags = tagsOf({{1, "a"}, {2, "b"}, {3, "c"}, {4, "d"}});
    tags.moveRange(2, 3, 0);
    EXPECT_EQ(valuesOf(tags), "cabd");
    tags.drop(2);
    tags.addText(5, "e");
    EXPECT_EQ(linesOf(tags), "  3\nc\n  1\na\n  5\ne\n");
    tags.clear(100);
    tags.addText(1, "f");
    tags.addText(1, "g");
    tags.drop(1);
    tags.addText(1, "h");
    EXPECT_EQ(linesOf(tags), "  1\nf\n  1\nh\n");
}

TEST(TagLines, GrowWithWhatIsAdded)
{
    std::mt19937 random(6);
    TagLines tags;
    std::string expected;
    for (int i = 0; i < 2000; ++i) {
        const std::string text(random() % 300, static_cast<char>('a' + i % 26));
        tags.addText(i % 1071, text);
        expected += text;
    }
    EXPECT_EQ(tags.count(), 2000u);
    EXPECT_EQ(valuesOf(tags), expected);
}

} // namespace host::dwg::test
