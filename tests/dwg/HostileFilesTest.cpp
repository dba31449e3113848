// Files that are cut off, changed or made up. Nothing of them may crash, hang or grow; what is lost is told.

#include "host/dwg/drawing/DrawingText.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <random>

namespace host::dwg::test {

namespace {

using File = std::vector<std::uint8_t>;

/// One small drawing of each kind of container; empty without the folder of drawings made elsewhere.
std::vector<File> samples()
{
    std::vector<File> files;
    const char *corpus = std::getenv("ORTAKIT_CORPUS");
    for (const char *name : {"r2000_sample.dwg", "r2000_entities.dwg", "r2018_sample.dwg", "r2004_leader.dwg",
                             "r2007_line.dwg", "r9_entities.dwg", "r11_entities.dwg"}) {
        if (!corpus)
            break;
        std::ifstream file(std::filesystem::path(corpus).parent_path() / "dwg" / name, std::ios::binary);
        if (file)
            files.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    return files;
}

/// Reads it, and checks what holds of any file.
DrawingText readAny(const File &file)
{
    DrawingText drawing = readDrawing(file);
    EXPECT_LE(drawing.text.size(), 1000 * file.size() + 100000);
    EXPECT_LE(drawing.problems.list().size(), Problems::mostKept);
    EXPECT_TRUE(!drawing.text.empty() || drawing.problems.lostCount() > 0);
    return drawing;
}

} // namespace

TEST(HostileDwg, LookAlikesAreNoDrawings)
{
    for (const std::string_view start : {"", "A", "AC1015", "AC1099", "PK\3\4", "  0\nSECTION\n", "AC10x5"}) {
        for (const std::size_t size : {start.size(), std::size_t(0x100), std::size_t(5000)}) {
            File file(start.begin(), start.end());
            file.resize(std::max(size, file.size()));
            EXPECT_TRUE(readAny(file).text.empty()) << start << ' ' << size;
        }
    }
}

TEST(HostileDwg, FilesMayEndAnywhere)
{
    const std::vector<File> files = samples();
    if (files.empty())
        GTEST_SKIP() << "ORTAKIT_CORPUS names no folder with pairs beside it";
    for (const File &file : files) {
        // Each place in the headers, then in steps that meet all places within units of any size.
        for (std::size_t length = 0; length < file.size(); length += length < 0x200 ? 1 : 97)
            readAny(File(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(length)));
    }
}

TEST(HostileDwg, BytesMayBeOthers)
{
    const std::vector<File> files = samples();
    if (files.empty())
        GTEST_SKIP() << "ORTAKIT_CORPUS names no folder with pairs beside it";
    std::mt19937 random(20);
    for (const File &file : files) {
        for (int run = 0; run < 150; ++run) {
            File changed = file;
            const int changes = 1 << run % 7;
            for (int i = 0; i < changes; ++i)
                changed[random() % changed.size()] ^= static_cast<std::uint8_t>(1 << random() % 8);
            readAny(changed);
        }
    }
}

TEST(HostileDwg, AWrongChecksumIsToldAndReadingGoesOn)
{
    const std::vector<File> files = samples();
    if (files.empty())
        GTEST_SKIP() << "ORTAKIT_CORPUS names no folder with pairs beside it";
    File file = files.front();
    // The checksum of the table of sections of R2000, which has six records.
    file[0x19 + 6 * 9] ^= 0xff;
    const DrawingText drawing = readAny(file);
    EXPECT_EQ(drawing.problems.lostCount(), 0u);
    ASSERT_EQ(drawing.problems.list().size(), 1u);
    EXPECT_EQ(drawing.problems.list()[0].message(), "The table of sections is damaged; its copy was read.");
    EXPECT_TRUE(drawing.text == readAny(files.front()).text);
}

} // namespace host::dwg::test
