// Drawings of which another program made the text form: pairs NAME.dwg and NAME.dxf in the folder "dwg" beside the one
// that ORTAKIT_CORPUS names. What differs, and why, is in docs/dwg.md. ORTAKIT_PAIRS set: each difference is printed.

#include "host/dwg/drawing/DrawingText.h"
#include "tests/dwg/PairComparison.h"
#include "tests/dwg/PairExplanations.h"

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
    int mostUnexplained; ///< differences that no row of PairExplanations.cpp explains
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
    for (const Difference &one : outcome.differences) {
        constexpr const char *kinds[] = {"different", "missing", "extra", "moved"};
        std::cout << "  " << kinds[static_cast<int>(one.kind)] << ' ' << one.record << ": " << one.told;
        if (!one.why.empty())
            std::cout << "  [" << one.why << ']';
        std::cout << '\n';
    }
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
    const std::string twin = contentOf(folder / (row.name + std::string(".dxf")));
    const PairOutcome outcome = comparePair(readTree(drawing.text), readTree(twin), row.name);
    using enum Difference::Kind;
    std::cout << row.name << ": " << outcome.equal << " of " << outcome.all << " records equal, "
              << outcome.count(Different) << " different, " << outcome.count(Missing) << " missing, "
              << outcome.count(Extra) << " extra, " << outcome.count(Moved) << " moved; " << outcome.explained()
              << " explained, " << outcome.unexplained() << " not\n";
    if (std::getenv("ORTAKIT_PAIRS"))
        printOutcome(outcome);
    EXPECT_EQ(drawing.problems.lostCount(), 0u);
    for (const Problem &problem : drawing.problems.list())
        EXPECT_FALSE(problem.text.find("checksum") != std::string::npos) << problem.text;
    EXPECT_GE(outcome.equal, row.leastEqual);
    EXPECT_EQ(outcome.all, row.all);
    EXPECT_LE(outcome.unexplained(), row.mostUnexplained);
    EXPECT_EQ(idleExplanations(row.name, outcome.differences), "");
}

INSTANTIATE_TEST_SUITE_P(Dwg, Pairs,
                         testing::Values(PairRow{"r9_entities", 150, 154, 0}, PairRow{"r11_entities", 180, 184, 0},
                                         PairRow{"r13_example", 5662, 5691, 0}, PairRow{"r14_leader", 363, 400, 0},
                                         PairRow{"r2000_entities", 263, 275, 0}, PairRow{"r2000_leader", 466, 479, 0},
                                         PairRow{"r2000_sample", 241, 421, 0}, PairRow{"r2004_leader", 470, 483, 0},
                                         PairRow{"r2007_circle", 459, 481, 0}, PairRow{"r2007_line", 464, 486, 0},
                                         PairRow{"r2007_text", 460, 482, 0}, PairRow{"r2010_leader", 508, 523, 0},
                                         PairRow{"r2013_leader", 464, 472, 0}, PairRow{"r2018_leader", 384, 468, 0},
                                         PairRow{"r2018_sample", 407, 416, 0}),
                         [](const auto &row) { return std::string(row.param.name); });

TEST(Dwg, EveryObjectOfADrawingIsTakenOnce)
{
    const std::filesystem::path folder = pairsFolder();
    if (folder.empty() || !std::filesystem::exists(folder / "r2004_leader.dwg"))
        GTEST_SKIP() << "ORTAKIT_CORPUS names no folder with pairs beside it";
    const DrawingText drawing = readText(contentOf(folder / "r2004_leader.dwg"));
    std::size_t handles = 0;
    for (const TextNode &node : readTree(drawing.text).nodes)
        handles += node.handle.empty() ? 0 : 1;
    EXPECT_EQ(handles, drawing.objectCount);
    EXPECT_TRUE(drawing.text.ends_with("  0\nEOF\n"));
}

} // namespace host::dwg::test
