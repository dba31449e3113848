// The cells of a table of R2018, which are made of its content: those that another program made of the same content.
// Its text form has both, so the content is written as the file would have it, tag for tag.

#include "tests/dwg/making/ReadBack.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

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

} // namespace

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
