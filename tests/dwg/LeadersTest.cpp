// Leaders: the vertex of the hook line that files do not have, and the size of the text that they lead to.

#include "tests/dwg/making/Paragraphs.h"
#include "tests/dwg/making/ReadBack.h"

#include <gtest/gtest.h>

namespace host::dwg::test {

namespace {

/// A dimension style of R2000 or R2010 with a scale and a size of arrows; all else is 0.
void writeStyle(ObjectWriter &o, double scale, double arrow)
{
    const bool isLater = o.since(Release::R2007);
    const auto reals = [&o](int count) {
        for (int i = 0; i < count; ++i)
            o.real(0.0);
    };
    const auto numbers = [&o](int count) {
        for (int i = 0; i < count; ++i)
            o.int16(0);
    };
    const auto flags = [&o](int count) {
        for (int i = 0; i < count; ++i)
            o.flag(false);
    };
    const auto colours = [&o](int count) {
        for (int i = 0; i < count; ++i)
            o.colour(0);
    };
    o.entryHead("Arrows");
    o.text("");
    o.text("");
    o.real(scale);
    o.real(arrow);
    reals(isLater ? 9 : 7);
    numbers(isLater ? 1 : 0);
    colours(isLater ? 1 : 0);
    flags(6);
    numbers(isLater ? 4 : 3);
    reals(9);
    flags(1);
    numbers(1);
    flags(4);
    colours(3);
    numbers(11);
    flags(2);
    numbers(4);
    flags(1);
    numbers(1);
    if (isLater) {
        flags(2);
        for (int i = 0; i < 2; ++i) {
            o.real(0.0);
            o.text("");
        }
    }
    numbers(2);
    flags(1);
    for (int i = 0; i < (isLater ? 9 : 6); ++i)
        o.reference(0);
}

struct LeaderRow
{
    const char *name;
    int annotation; ///< 0 a text, 2 a block
    bool isCurve;
    double height; ///< where it comes from, 10 away from its end
    bool hooksAlong;
    double scale;
    bool hasOwnArrow; ///< of 0.5
    std::string hook; ///< x of the vertex that is added
};

const LeaderRow leaderRows[] = {
    {"steep", 0, false, 10.0, false, 2.0, false, "9.5"},
    {"steep, to the other side", 0, false, 10.0, true, 2.0, false, "10.5"},
    {"with an arrow of its own", 0, false, 10.0, false, 2.0, true, "9.0"},
    {"nearly level", 0, false, 1.0, false, 2.0, false, ""},
    {"a curve", 0, true, 10.0, false, 2.0, false, ""},
    {"of a block", 2, false, 10.0, false, 2.0, false, ""},
    {"at the scale of the view", 0, false, 10.0, false, 0.0, false, ""},
};

void writeLeader(ObjectWriter &o, const LeaderRow &row, std::uint64_t text, std::uint64_t style)
{
    o.flag(false);
    o.int16(row.annotation);
    o.int16(row.isCurve ? 1 : 0);
    o.int32(2);
    o.point({0.0, row.height, 0.0});
    o.point({10.0, 0.0, 0.0});
    o.point({});
    o.point({0.0, 0.0, 1.0});
    o.point({1.0, 0.0, 0.0});
    o.point({});
    o.point({});
    if (o.until(Release::R2007)) {
        o.real(0.5);
        o.real(4.0);
    }
    o.flag(row.hooksAlong);
    o.flag(true);
    o.int16(0);
    o.flag(false);
    o.flag(false);
    o.reference(text);
    o.reference(style);
}

void writeText(ObjectWriter &o)
{
    writeParagraphs(o, {10.0, 0.0, 0.0}, 0.5, 4.0, "ab");
    if (o.since(Release::R2004))
        o.int32(0);
}

/// Extended data of ACAD that give an arrow the size of 0.5: DSTYLE, its braces, 41 and the size.
std::string ownArrow(Release release)
{
    BitWriter data;
    data.byte(0);
    if (release >= Release::R2007) {
        data.raw16(6);
        for (const char c : std::string_view("DSTYLE"))
            data.raw16(static_cast<std::uint32_t>(c));
    } else {
        data.byte(6);
        data.raw16(30);
        data.rawBytes("DSTYLE");
    }
    data.byte(2);
    data.byte(0);
    data.byte(70);
    data.raw16(41);
    data.byte(40);
    data.rawReal(0.5);
    data.byte(2);
    data.byte(1);
    return {data.bytes().begin(), data.bytes().end()};
}

} // namespace

TEST(DwgLeaders, HookToTheirTextAndHaveItsSize)
{
    for (const Release release : {Release::R2000, Release::R2010}) {
        for (const LeaderRow &row : leaderRows) {
            MadeDrawing drawing(release);
            const std::uint64_t style =
                drawing.addEntry(0x45, [&row](ObjectWriter &o) { writeStyle(o, row.scale, 0.25); });
            const std::uint64_t text = drawing.addEntity(0x2c, writeText);
            const std::uint64_t leader =
                drawing.addEntity(0x2d, [&](ObjectWriter &o) { writeLeader(o, row, text, style); });
            if (row.hasOwnArrow)
                drawing.head(leader).extensions.push_back({MadeHandles::Application, ownArrow(release)});
            const ReadBack read = readBack(drawing);
            EXPECT_EQ(read.problems(), "") << row.name;
            const std::string size = "40 0.5|41 4.0|";
            const std::string start = "|10 0.0|20 " + std::to_string(static_cast<int>(row.height)) + ".0|30 0.0|";
            const std::string tags =
                row.hook.empty() ? size + "76 2" + start + "10 10.0|"
                                 : "75 1|" + size + "76 3" + start + "10 " + row.hook + "|20 0.0|30 0.0|10 10.0|";
            EXPECT_NE(read.lastPart(leader).find(tags), std::string::npos) << row.name << ": " << read.lastPart(leader);
        }
    }
}

} // namespace host::dwg::test
