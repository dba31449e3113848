// Objects of classes, made bit by bit in each release that has them: what is read of them is what was written, in the
// order of the text form. Bits that are left over make a proxy of the object.

#include "tests/dwg/ClassRows.h"
#include "tests/dwg/FieldWords.h"
#include "tests/dwg/making/ReadBack.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace host::dwg::test {

namespace {

constexpr Release releases[] = {Release::R13,   Release::R14,   Release::R2000, Release::R2004,
                                Release::R2007, Release::R2010, Release::R2013, Release::R2018};

std::uint64_t add(MadeDrawing &drawing, const ClassRow &row, const std::string &fields)
{
    return row.isEntity ? drawing.addEntity(row.name, writerOf(fields))
                        : drawing.addObject(row.name, "IT", writerOf(fields));
}

std::vector<ClassRow> allRows()
{
    std::vector<ClassRow> rows;
    for (const auto some : {classRows(), tableRows()})
        rows.insert(rows.end(), some.begin(), some.end());
    return rows;
}

/// Expects that an object with these fields becomes a proxy, and that nothing is lost.
void expectKept(const ClassRow &row, const std::string &fields)
{
    MadeDrawing drawing(row.first);
    const std::uint64_t handle = add(drawing, row, fields);
    const ReadBack read = readBack(drawing);
    EXPECT_EQ(read.record(handle).substr(0, 12), "0 ACAD_PROXY") << row.name << ": " << fields;
    EXPECT_NE(read.problems().find("has another form than is known"), std::string::npos) << row.name << ": " << fields;
    EXPECT_EQ(read.drawing.problems.lostCount(), 0u) << row.name << ": " << fields;
}

/// The tags of a class's own.
std::string ownTags(const std::string &record, bool isEntity)
{
    std::size_t at = record.find("|100 ");
    if (isEntity && at != std::string::npos)
        at = record.find("|100 ", at + 1);
    return at != std::string::npos ? record.substr(at + 1) : std::string();
}

const TextNode *recordOf(const TextTree &tree, std::string_view type)
{
    const auto found = std::ranges::find_if(
        tree.nodes, [type](const TextNode &node) { return !node.tags.empty() && node.type() == type; });
    return found != tree.nodes.end() ? &*found : nullptr;
}

/// The values of a group code behind tags with this value: at most `within` tags behind, where it is not 0.
std::vector<std::string> valuesBehind(const TextNode &node, std::string_view mark, int code, std::size_t within = 0)
{
    std::vector<std::string> values;
    std::size_t behind = node.tags.size();
    bool isBehind = false;
    for (const TextTag &tag : node.tags) {
        if (tag.value == mark) {
            isBehind = true;
            behind = 0;
            continue;
        }
        ++behind;
        if (isBehind && tag.code == code && (within == 0 || behind <= within))
            values.push_back(tag.value);
    }
    return values;
}

} // namespace

TEST(DwgClasses, AreReadAsTheyWereWritten)
{
    for (const ClassRow &row : allRows()) {
        for (const Release release : releases) {
            if (release < row.first || release > row.last)
                continue;
            MadeDrawing drawing(release);
            const std::uint64_t handle = add(drawing, row, row.fields);
            const ReadBack read = readBack(drawing);
            EXPECT_EQ(ownTags(read.record(handle), row.isEntity), row.tags) << row.name << static_cast<int>(release);
            EXPECT_EQ(read.problems(), "") << row.name << static_cast<int>(release);
        }
    }
}

TEST(DwgClasses, WhatLeavesBitsOverIsKeptAsItIs)
{
    for (const ClassRow &row : allRows()) {
        for (const char *more : {" b0", " c1", " h50"})
            expectKept(row, row.fields + more);
    }
}

TEST(DwgClasses, WhatEndsEarlyIsKeptAsItIs)
{
    for (const ClassRow &row : allRows()) {
        // Numbers alone, as many as there are.
        if (std::string_view(row.name) == "ACDBPERSSUBENTMANAGER")
            continue;
        const std::size_t end = row.fields.find_last_not_of(' ');
        const std::size_t last = row.fields.rfind(' ', end);
        expectKept(row, row.fields.substr(0, last));
        if (const std::size_t half = row.fields.find(' ', row.fields.size() / 2); half < last)
            expectKept(row, row.fields.substr(0, half));
    }
}

TEST(DwgClasses, ATableOfADrawingHasTheCellsOfItsContent)
{
    const char *corpus = std::getenv("ORTAKIT_CORPUS");
    const std::filesystem::path path = std::filesystem::path(corpus ? corpus : "") / "example_2000.dwg";
    if (!corpus || !std::filesystem::exists(path))
        GTEST_SKIP() << "ORTAKIT_CORPUS names no folder with the drawing";
    std::ifstream file(path, std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
    const ReadBack read = readBack(FileBytes(bytes.begin(), bytes.end()));
    const TextNode *table = recordOf(read.tree, "ACAD_TABLE");
    const TextNode *content = recordOf(read.tree, "TABLECONTENT");
    ASSERT_TRUE(table && content);
    // A text for each cell, empty ones too; the content has one for those that are not.
    std::vector<std::string> texts = valuesBehind(*table, "AcDbTable", 1);
    EXPECT_EQ(texts.size(), 180u);
    std::erase(texts, "");
    EXPECT_EQ(texts, (std::vector<std::string>{"test", "test", "xx", "xx", "xx", "xx", "xx"}));
    std::vector<std::string> values = valuesBehind(*content, "VALUE", 1, 2);
    std::erase(values, "");
    EXPECT_EQ(texts, values);
    EXPECT_EQ(valuesBehind(*table, "AcDbTable", 141), valuesBehind(*content, "TABLEROW_BEGIN", 40, 2));
    EXPECT_EQ(valuesBehind(*table, "AcDbTable", 142), valuesBehind(*content, "TABLECOLUMN_BEGIN", 40, 2));
    std::size_t links = 0;
    for (const TextNode &node : read.tree.nodes)
        links += !node.tags.empty() && node.type() == "DIMASSOC" ? 1 : 0;
    EXPECT_EQ(links, 8u);
}

TEST(DwgClasses, JoggedRadiusThatDoesNotMeasureItsDistanceIsKeptAsItIs)
{
    MadeDrawing drawing(Release::R2018);
    const std::uint64_t handle =
        drawing.addEntity("LARGE_RADIAL_DIMENSION", writerOf(dimensionHead + "p3,4,0 p9,9,0 d1 p0,0,0 p5,5,0 h0 h1D"));
    const ReadBack read = readBack(drawing);
    EXPECT_EQ(read.record(handle).substr(0, 12), "0 ACAD_PROXY");
}

TEST(DwgClasses, EmbeddedObjectsStandWhereTheirDataSays)
{
    MadeDrawing drawing(Release::R2000);
    const std::uint64_t handle = drawing.addEntity(0x4a, [](ObjectWriter &o) {
        BitWriter data;
        data.raw16(0x5580);
        for (const double ordinate : {1.0, 9.0, 0.0, 8.0, 9.0, 0.0, 8.0, 2.0, 0.0, 1.0, 2.0, 0.0})
            data.rawReal(ordinate);
        data.rawBytes(std::string(128 - data.position() / 8, '\x7f'));
        o.int16(2);
        o.int16(1);
        o.int32(128);
        o.values().append(data);
        o.small(3);
    });
    const ReadBack read = readBack(drawing);
    const std::string tags = read.lastPart(handle);
    EXPECT_EQ(tags.substr(0, tags.find("310")), "70 2|10 1.0|20 9.0|30 0.0|11 8.0|21 2.0|31 0.0|72 1|90 128|");
    EXPECT_EQ(tags.substr(tags.size() - 6), "1 OLE|");
    EXPECT_EQ(read.problems(), "");
}

TEST(DwgClasses, EmbeddedDataIsThereWholeOrNotAtAll)
{
    for (const bool isWhole : {true, false}) {
        MadeDrawing drawing(Release::R2004);
        const std::uint64_t handle = drawing.addObject(0x51, "IT", [isWhole](ObjectWriter &o) {
            o.int32(isWhole ? 3 : 2);
            o.values().rawBytes("abc");
        });
        const ReadBack read = readBack(drawing);
        EXPECT_EQ(read.lastPart(handle), isWhole ? "90 3|310 616263|" : "");
        EXPECT_EQ(read.drawing.problems.lostCount(), isWhole ? 0u : 1u);
    }
}

} // namespace host::dwg::test
