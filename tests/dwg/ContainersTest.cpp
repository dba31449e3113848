// Damage to what holds a drawing together, in files that are made here: what can be put right is, the rest is told, and
// everything that is not hit comes out.

#include "host/dwg/bits/ErrorCorrection.h"
#include "tests/dwg/making/ReadBack.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <random>

namespace host::dwg::test {

namespace {

/// A drawing with some circles, as a file.
FileBytes circles(Release release)
{
    MadeDrawing drawing(release);
    for (int i = 1; i <= 40; ++i) {
        drawing.addEntity(0x12, [i](ObjectWriter &o) {
            o.point({1.0 * i, -2.0, 0.0});
            o.real(0.5 + i);
            o.thickness(0.0);
            o.extrusion();
        });
    }
    return drawing.file();
}

struct DamageRow
{
    const char *name;
    Release release;
    std::function<void(FileBytes &)> damage;
    const char *told;       ///< all problems
    bool isAllThere = true; ///< the text is that of the whole file
};

void expectDamage(const DamageRow &row)
{
    FileBytes file = circles(row.release);
    const ReadBack whole = readBack(file);
    EXPECT_EQ(whole.problems(), "") << row.name;
    row.damage(file);
    const ReadBack read = readBack(file);
    EXPECT_EQ(read.problems(), row.told) << row.name;
    EXPECT_EQ(read.drawing.text == whole.drawing.text, row.isAllThere) << row.name;
}

void invert(FileBytes &file, std::size_t from, std::size_t count)
{
    for (std::size_t i = from; i < from + count; ++i)
        file[i] ^= 0xff;
}

const DamageRow correctedRows[] = {
    {"a byte of the header", Release::R2007, [](FileBytes &file) { file[0x90] ^= 1; },
     "1 damaged bytes were put right.\n"},
    {"as many bytes of the header as can be put right", Release::R2007,
     [](FileBytes &file) { invert(file, 0x80, 3 * 8); }, "24 damaged bytes were put right.\n"},
    {"the header", Release::R2007, [](FileBytes &file) { invert(file, 0x80, 3 * 8 + 1); },
     "The header of the file is damaged; its copy was read.\n"},
    {"the header and its copy", Release::R2007,
     [](FileBytes &file) {
         invert(file, 0x80, 0x100);
         invert(file, file.size() - 0x400, 0x100);
     },
     "The header of the file cannot be read.\nThe file has no map of its objects.\n", false},
    {"the file is cut behind its pages", Release::R2007, [](FileBytes &file) { file.resize(file.size() - 0x400); }, ""},
    // The header's variables are the first page, of two blocks.
    {"two bytes of each block of a page", Release::R2007, [](FileBytes &file) { invert(file, 0x480, 2 * 2); },
     "4 damaged bytes were put right.\n"},
};

} // namespace

TEST(DwgContainers, BlocksArePutRight)
{
    std::mt19937 random(7);
    for (const ErrorCode code : {ErrorCode::Maps, ErrorCode::Data}) {
        const std::size_t most = (correctedBlock - ownBytes(code)) / 2;
        for (int run = 0; run < 200; ++run) {
            FileBytes own(ownBytes(code));
            std::ranges::generate(own, [&] { return static_cast<std::uint8_t>(random()); });
            const FileBytes block = correctedBlocks(code, own);
            std::array<std::uint8_t, correctedBlock> damaged{};
            std::ranges::copy(block, damaged.begin());
            const std::size_t count = static_cast<std::size_t>(run) % (most + 1);
            for (std::size_t i = 0; i < count; ++i)
                damaged[(random() % 30) + i * 30] ^= static_cast<std::uint8_t>(1 + random() % 255);
            EXPECT_EQ(correctBlock(code, damaged), count);
            EXPECT_TRUE(std::ranges::equal(block, damaged));
        }
    }
}

TEST(DwgContainers, BlocksBeyondHelpAreLeftAsTheyAre)
{
    std::array<std::uint8_t, correctedBlock> block{};
    for (std::size_t i = 0; i < 9; ++i)
        block[20 * i] = static_cast<std::uint8_t>(i + 1);
    const auto before = block;
    EXPECT_FALSE(correctBlock(ErrorCode::Maps, block));
    EXPECT_EQ(block, before);
}

TEST(DwgContainers, DamageOfCorrectedPages)
{
    for (const DamageRow &row : correctedRows)
        expectDamage(row);
}

} // namespace host::dwg::test
