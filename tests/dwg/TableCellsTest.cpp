// The cells of a table of R2018, which are made of its content: those that another program made of the same content,
// whose text form has both, so that it is written as the file would have it, tag for tag. And cells with looks of their
// own.

#include "tests/dwg/FieldWords.h"
#include "tests/dwg/making/ReadBack.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <span>

namespace host::dwg::test {

namespace {

std::vector<TextTag> tagsOfRecord(const TextTree &tree, std::string_view type, std::string_view firstClass)
{
    for (const TextNode &node : tree.nodes) {
        if (node.tags.empty() || node.type() != type)
            continue;
        auto begin = std::ranges::find(node.tags, firstClass, &TextTag::value);
        return {begin, node.tags.end()};
    }
    return {};
}

/// Tags that name what follows in the text form, and have no field.
bool isNameOfPart(const TextTag &tag)
{
    constexpr std::string_view names[] = {
        "COLUMN", "CELL",    "ROW",        "COLUMNTABLEFORMAT", "CELLTABLEFORMAT", "ROWTABLEFORMAT", "TABLEFORMAT",
        "VALUE",  "CONTENT", "CUSTOMDATA", "CONTENTFORMAT",     "GRIDFORMAT",      "MARGIN"};
    return tag.code == 100 || tag.code == 304 || tag.code == 309 || tag.value.ends_with("_BEGIN") ||
           (tag.code >= 300 && std::ranges::find(names, tag.value) != std::end(names));
}

void writeTag(ObjectWriter &o, const TextTag &tag)
{
    if (isNameOfPart(tag))
        return;
    if (tag.code == 1 || (tag.code >= 300 && tag.code <= 302))
        return o.text(tag.value);
    if (tag.code == 62) {
        o.int16(0);
        o.int32(static_cast<std::int32_t>(0xc3000000 + static_cast<std::uint32_t>(std::stoi(tag.value))));
        return o.small(0);
    }
    if (tag.code >= 90 && tag.code < 100)
        return o.int32(std::stoi(tag.value));
    if (tag.code >= 170)
        return tag.code >= 330 ? o.reference(std::stoull(tag.value, nullptr, 16)) : o.int16(std::stoi(tag.value));
    o.real(std::stod(tag.value));
}

void writeTable(ObjectWriter &o, const std::vector<TextTag> &content)
{
    o.point({1.0, 2.0, 0.0});
    o.flag(true);
    o.flag(true);
    o.real(0.0);
    o.point({0.0, 0.0, 1.0});
    o.flag(false);
    o.reference(MadeHandles::ModelSpace);
    o.small(0);
    o.reference(0);
    o.int32(0);
    o.int32(0);
    for (const TextTag &tag : content)
        writeTag(o, tag);
    o.int16(38);
    o.point({1.0, 0.0, 0.0});
    o.int32(0);
    o.int32(1);
    o.point({0.0, 0.0, 0.0});
    o.int32(0);
    o.int32(9);
}

std::string lineOf(const TextTag &tag)
{
    return std::to_string(tag.code) + ' ' + trimmed(tag.value);
}

/// A cell's own format, and what the older form has of it.
struct LookRow
{
    const char *name;
    std::string content; ///< the format of the content, behind the flag that tells whether there is one
    std::string format;  ///< the cell's, behind its kind
    int flags;
    std::string tags;
};

/// The format of a content: what differs, and values that no style has.
std::string contentFormat(int flags, double height)
{
    return "s1 l" + std::to_string(flags) + " l0 l512 l0 t d0 d1 l5 K3 h11 d" + std::to_string(height) + ' ';
}

/// A cell's, with the same content, which is `fill` and has borders.
std::string cellFormat(int flags, const std::string &fill, const std::string &borders)
{
    return "s1 l" + std::to_string(flags) + " l0 " + fill + " l1 " + contentFormat(flags & 0x1ff, 2.5).substr(3) +
           "s0 " + borders;
}

const LookRow lookRows[] = {
    {"as its style", "s0 ", cellFormat(0, "K5", "l1 l1 l0 l1 K5 l50 h0 l1 d0 "), 0, ""},
    {"no format", "s0 ", "s0 ", 0, ""},
    {"aligned", "s0 ", cellFormat(0x10, "K257", "l0 "), 1, "170 5|"},
    {"text", "s0 ", cellFormat(0xe0, "K257", "l0 "), 0x38, "64 3|7 Standard|140 2.5|"},
    {"content in its own way", contentFormat(0x80, 4.0), cellFormat(0x90, "K257", "l0 "), 0x21, "170 5|140 4.0|"},
    {"content alone", contentFormat(0xa0, 4.0), "s0 ", 0x28, "64 3|140 4.0|"},
    {"filled", "s0 ", cellFormat(0x200, "K#c2ff0000", "l0 "), 6, "283 1|63 1|421 16711680|"},
    {"not filled", "s0 ", cellFormat(0x200, "K257", "l0 "), 2, "283 0|"},
    {"hidden side, wide top", "s0 ", cellFormat(0, "K257", "l2 l32 l16 l1 K0 l-2 h0 l1 d0 l1 l10 l1 K5 l50 h0 l0 d0 "),
     0x8440, "69 5|279 50|285 0|"},
    {"sides at once, inner ones have no groups", "s0 ", cellFormat(0, "K257", "l1 l31 l26 l1 K6 l25 h0 l0 d0 "),
     0x37740, "69 6|279 25|289 1|66 6|276 25|286 1|68 6|278 25|288 1|"},
};

/// A table of one column with a row for each look.
std::string tableOfLooks(std::span<const LookRow> rows, const std::string &text)
{
    std::string words =
        "p1,2,0 b1 b1 d0 p0,0,1 b0 h1D c0 h0 l0 l0 t t l1 t l0 l0 l3 s0 l0 d40 l" + std::to_string(rows.size()) + ' ';
    for (const LookRow &row : rows)
        words += "l1 l0 t l0 l0 l0 l1 l1 l2 l4 t" + text + " l0 t t" + text + " l0 " + row.content + "l1 " +
                 row.format + "l3 l0 l0 l0 l2 s0 l3 d9 ";
    return words + "l0 l4 s0 l0 h50 s38 p1,0,0 l0 l1 p0,0,0 l0 l1";
}

} // namespace

TEST(DwgTables, CellsLookAsTheyDifferFromTheirStyle)
{
    for (const Release release : {Release::R2013, Release::R2018}) {
        MadeDrawing drawing(release);
        const std::uint64_t table = drawing.addEntity("ACAD_TABLE", writerOf(tableOfLooks(lookRows, "Hi")));
        const ReadBack read = readBack(drawing);
        EXPECT_EQ(read.problems(), "");
        std::string cells = read.lastPart(table);
        for (const LookRow &row : lookRows) {
            cells.erase(0, std::min(cells.size(), cells.find("|91 ", cells.find("171 1|")) + 1));
            EXPECT_EQ(cells.substr(0, cells.find("92 0|301")),
                      "91 " + std::to_string(row.flags) + "|178 0|145 0.0|" + row.tags)
                << row.name;
        }
    }
}

TEST(DwgTables, LongTextsOfCellsStandInParts)
{
    MadeDrawing drawing(Release::R2018);
    const std::string text = std::string(250, 'x') + "yz";
    const std::uint64_t table =
        drawing.addEntity("ACAD_TABLE", writerOf(tableOfLooks(std::span(lookRows).first(1), text)));
    const ReadBack read = readBack(drawing);
    EXPECT_EQ(read.problems(), "");
    const std::string part = text.substr(0, 250);
    const std::string cells = read.lastPart(table);
    EXPECT_NE(cells.find("|90 4|2 " + part + "|1 yz|94 0|300 |303 " + part + "|302 yz|304 ACVALUE_END|"),
              std::string::npos)
        << cells;
}

TEST(DwgTables, HaveTheCellsThatAnotherProgramMakesOfTheirContent)
{
    const char *corpus = std::getenv("ORTAKIT_CORPUS");
    const std::filesystem::path path = std::filesystem::path(corpus ? corpus : "") / "table_with_blocks.dxf";
    if (!corpus || !std::filesystem::exists(path))
        GTEST_SKIP() << "ORTAKIT_CORPUS names no folder with the drawing";
    std::ifstream file(path, std::ios::binary);
    const TextTree told = readTree(std::string{std::istreambuf_iterator<char>(file), {}});
    const std::vector<TextTag> content = tagsOfRecord(told, "TABLECONTENT", "AcDbLinkedData");
    ASSERT_FALSE(content.empty());
    MadeDrawing drawing(Release::R2018);
    drawing.addEntity("ACAD_TABLE", [&content](ObjectWriter &o) { writeTable(o, content); });
    const ReadBack read = readBack(drawing);
    EXPECT_EQ(read.problems(), "");
    std::vector<TextTag> cells = tagsOfRecord(read.tree, "ACAD_TABLE", "AcDbTable");
    const std::vector<TextTag> expected = tagsOfRecord(told, "ACAD_TABLE", "AcDbTable");
    // Fifty cells of sixteen tags.
    ASSERT_GT(expected.size(), 800u);
    ASSERT_EQ(cells.size(), expected.size());
    for (std::size_t i = 0; i < cells.size(); ++i) {
        // The block is another one.
        if (expected[i].code == 343)
            continue;
        EXPECT_EQ(lineOf(cells[i]), lineOf(expected[i])) << "tag " << i;
    }
}

} // namespace host::dwg::test
