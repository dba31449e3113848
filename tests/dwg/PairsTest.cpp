// Drawings of which another program made the text form: pairs NAME.dwg and NAME.dxf in the folder "dwg" beside the one
// that ORTAKIT_CORPUS names. What differs, and why, is in docs/dwg.md. ORTAKIT_PAIRS set: each difference is printed.

#include "host/dwg/drawing/DrawingText.h"
#include "tests/dwg/PairComparison.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iostream>
#include <iterator>

namespace host::dwg::test {

namespace {

struct PairRow
{
    const char *name;
    int leastEqual; ///< of `all` records
    int all;
};

std::string contentOf(const std::filesystem::path &path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

DrawingText readText(const std::string &bytes)
{
    return readDrawing({reinterpret_cast<const std::uint8_t *>(bytes.data()), bytes.size()});
}

std::filesystem::path pairsFolder()
{
    const char *corpus = std::getenv("ORTAKIT_CORPUS");
    return corpus ? std::filesystem::path(corpus).parent_path() / "dwg" : std::filesystem::path();
}

void printOutcome(const PairOutcome &outcome)
{
    for (const std::string &difference : outcome.different)
        std::cout << "  different " << difference << '\n';
    for (const std::string &name : outcome.missing)
        std::cout << "  missing " << name << '\n';
    for (const std::string &name : outcome.extra)
        std::cout << "  extra " << name << '\n';
}

class Pairs : public testing::TestWithParam<PairRow>
{
};

} // namespace

TEST_P(Pairs, HaveTheSameRecords)
{
    const PairRow &row = GetParam();
    const std::filesystem::path folder = pairsFolder();
    if (folder.empty() || !std::filesystem::exists(folder / (row.name + std::string(".dwg"))))
        GTEST_SKIP() << "ORTAKIT_CORPUS names no folder with pairs beside it";
    const DrawingText drawing = readText(contentOf(folder / (row.name + std::string(".dwg"))));
    const TextRecords read = readRecords(drawing.text);
    const PairOutcome outcome = comparePair(read, readRecords(contentOf(folder / (row.name + std::string(".dxf")))));
    std::cout << row.name << ": " << outcome.equal << " of " << outcome.all() << " records equal, "
              << outcome.different.size() << " different, " << outcome.missing.size() << " missing, "
              << outcome.extra.size() << " extra\n";
    if (std::getenv("ORTAKIT_PAIRS"))
        printOutcome(outcome);
    EXPECT_EQ(drawing.problems.lostCount(), 0u);
    EXPECT_GE(outcome.equal, row.leastEqual);
    EXPECT_EQ(outcome.all(), row.all);
}

INSTANTIATE_TEST_SUITE_P(Dwg, Pairs,
                         testing::Values(PairRow{"r13_example", 457, 5691}, PairRow{"r14_leader", 263, 400},
                                         PairRow{"r2000_entities", 261, 275}, PairRow{"r2000_leader", 460, 479},
                                         PairRow{"r2000_sample", 240, 420}, PairRow{"r2004_leader", 463, 483},
                                         PairRow{"r2007_circle", 450, 481}, PairRow{"r2007_line", 455, 486},
                                         PairRow{"r2007_text", 451, 482}, PairRow{"r2010_leader", 493, 523},
                                         PairRow{"r2013_leader", 450, 465}, PairRow{"r2018_leader", 372, 460},
                                         PairRow{"r2018_sample", 390, 409}),
                         [](const auto &row) { return std::string(row.param.name); });

TEST(Dwg, EveryObjectOfADrawingIsTakenOnce)
{
    const std::filesystem::path folder = pairsFolder();
    if (folder.empty() || !std::filesystem::exists(folder / "r2004_leader.dwg"))
        GTEST_SKIP() << "ORTAKIT_CORPUS names no folder with pairs beside it";
    const DrawingText drawing = readText(contentOf(folder / "r2004_leader.dwg"));
    std::size_t handles = 0;
    for (const auto &[name, record] : readRecords(drawing.text))
        handles += name[0] != '$' && record[0].value != "CLASS" ? 1 : 0;
    EXPECT_EQ(handles, drawing.objectCount);
    EXPECT_TRUE(drawing.text.ends_with("  0\nEOF\n"));
}

} // namespace host::dwg::test
