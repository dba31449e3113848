// Damage to what holds a drawing together, in files that are made here: what can be put right is, the rest is told, and
// everything that is not hit comes out.

#include "host/dwg/bits/Checksums.h"
#include "host/dwg/container/Container.h"
#include "host/dwg/container/CorrectedPages.h"
#include "host/dwg/container/Pages.h"
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
    std::size_t mended = 0; ///< how many of the problems nothing is left of
};

void expectDamage(
    const DamageRow &row, void (*prepare)(FileBytes &) = [](FileBytes &) {})
{
    FileBytes file = circles(row.release);
    prepare(file);
    const ReadBack whole = readBack(file);
    EXPECT_EQ(whole.problems(), "") << row.name;
    row.damage(file);
    const ReadBack read = readBack(file);
    EXPECT_EQ(read.problems(), row.told) << row.name;
    EXPECT_EQ(read.drawing.problems.count(Problem::Kind::Mended), row.mended) << row.name;
    EXPECT_EQ(read.drawing.text == whole.drawing.text, row.isAllThere)
        << row.name << ", " << static_cast<int>(row.release);
}

void invert(FileBytes &file, std::size_t from, std::size_t count)
{
    for (std::size_t i = from; i < from + count; ++i)
        file[i] ^= 0xff;
}

/// Changes the own bytes of a page of R2007 and makes its blocks anew, so that nothing is put right.
void rewritePage(FileBytes &file, std::size_t place, std::size_t blocks, ErrorCode code,
                 const std::function<void(FileBytes &)> &change)
{
    const Bytes page = Bytes(file).subspan(place, blocks * correctedBlock);
    FileBytes own = ownBytesOf(page, code);
    change(own);
    std::ranges::copy(correctedBlocks(code, own), file.begin() + static_cast<std::ptrdiff_t>(place));
}

constexpr std::size_t correctedHead = 32; ///< in front of the header's numbers

/// Changes a byte of the header of R2007, in front and in its copy at the end.
void changeHeaders(FileBytes &file, const std::function<void(FileBytes &)> &change)
{
    for (const std::size_t place : {std::size_t(0x80), file.size() - 0x400})
        rewritePage(file, place, 3, ErrorCode::Maps, change);
}

/// A number of the header, with checksums that fit.
void changeNumber(FileBytes &file, std::size_t number)
{
    changeHeaders(file, [number](FileBytes &own) {
        own[correctedHead + 8 * number] ^= 1;
        const auto plain = own.begin() + correctedHead;
        const auto store = [](std::uint64_t value, FileBytes::iterator to) {
            for (int i = 0; i < 8; ++i)
                *to++ = static_cast<std::uint8_t>(value >> 8 * i);
        };
        store(0, plain + 33 * 8);
        store(headerChecksum2007({plain, 34 * 8}), plain + 33 * 8);
        store(headerChecksum2007({plain, 34 * 8}), own.begin() + 16);
    });
}

const DamageRow correctedRows[] = {
    {"a byte of the header", Release::R2007, [](FileBytes &file) { file[0x90] ^= 1; },
     "1 damaged byte was put right.\n", true, 1},
    {"as many bytes of the header as can be put right", Release::R2007,
     [](FileBytes &file) { invert(file, 0x80, 3 * 8); }, "24 damaged bytes were put right.\n", true, 1},
    {"the header", Release::R2007, [](FileBytes &file) { invert(file, 0x80, 3 * 8 + 1); },
     "The header of the file is damaged; its copy was read.\n", true, 1},
    {"the header and its copy", Release::R2007,
     [](FileBytes &file) {
         invert(file, 0x80, 0x100);
         invert(file, file.size() - 0x400, 0x100);
     },
     "The header of the file cannot be read.\nThe file has no map of its objects.\nThe file has no objects.\n", false},
    {"the file is cut behind its pages", Release::R2007, [](FileBytes &file) { file.resize(file.size() - 0x400); }, ""},
    {"a number of the header that its blocks do not tell", Release::R2007,
     [](FileBytes &file) {
         rewritePage(file, 0x80, 3, ErrorCode::Maps, [](FileBytes &own) { own[correctedHead + 8] ^= 1; });
     },
     "The header of the file is damaged; its copy was read.\n", true, 1},
    {"the same in its copy", Release::R2007,
     [](FileBytes &file) { changeHeaders(file, [](FileBytes &own) { own[correctedHead + 8] ^= 1; }); },
     "The checksum of the file's header does not fit.\n"},
    {"the checksum of the packed header", Release::R2007,
     [](FileBytes &file) { changeHeaders(file, [](FileBytes &own) { own[16] ^= 1; }); },
     "The checksum of the file's header does not fit.\n"},
    {"the checksum of the packed map of pages", Release::R2007, [](FileBytes &file) { changeNumber(file, 2); },
     "The checksum of the map of pages does not fit.\n"},
    {"the checksum of the map of sections", Release::R2007, [](FileBytes &file) { changeNumber(file, 21); },
     "The checksum of the map of sections does not fit.\n"},
    {"a byte behind what a page has", Release::R2007,
     [](FileBytes &file) { rewritePage(file, 0x480, 2, ErrorCode::Data, [](FileBytes &own) { own[499] ^= 1; }); }, ""},
    {"a byte of a page that its blocks do not tell", Release::R2007,
     [](FileBytes &file) {
         rewritePage(file, 0x480, 2, ErrorCode::Data, [](FileBytes &own) { own[0] ^= 1; });
         file[0x480 + 20] ^= 1; // which they do tell
     },
     "The checksum of a page of the section AcDb:Header does not fit.\n"
     "The mark in front of the header's variables is missing.\nThe header's variables cannot be read.\n"
     "The header does not tell where the tables are; they were looked for.\n",
     false},
    // The header's variables are the first page, of two blocks.
    {"two bytes of each block of a page", Release::R2007, [](FileBytes &file) { invert(file, 0x480, 2 * 2); },
     "4 damaged bytes were put right.\n", true, 1},
};

/// Where the pages of a paged file are: those of the sections in their order, the map of sections, the map of pages.
std::vector<std::size_t> pagePlaces(const FileBytes &file)
{
    std::vector<std::size_t> places;
    for (std::size_t at = pagesStart; at < file.size(); at += pageUnit) {
        if (dataPageAt(file, at) || mapPageAt(file, at, MapType::Sections) || mapPageAt(file, at, MapType::Pages))
            places.push_back(at);
    }
    return places;
}

void damagePage(FileBytes &file, std::size_t fromEnd, std::size_t offset)
{
    const std::vector<std::size_t> places = pagePlaces(file);
    file[places[places.size() - 1 - fromEnd] + offset] ^= 0xff;
}

constexpr std::size_t pageMap = 0;
constexpr std::size_t sectionMap = 1;
constexpr std::size_t lastObjects = 2; ///< the page with the last objects, of three

const DamageRow pagedRows[] = {
    {"the header", Release::R2004, [](FileBytes &file) { file[0x90] ^= 1; },
     "The header of the file is damaged; its copy was read.\n", true, 1},
    {"the header, with other bytes behind its copy", Release::R2018,
     [](FileBytes &file) {
         invert(file, 0x80, 0x6c);
         file.resize(file.size() + 100);
     },
     "The header of the file is damaged; its copy was read.\n", true, 1},
    {"the checksum of the header and its copy", Release::R2010,
     [](FileBytes &file) {
         file[0x80 + 0x68] ^= 1;
         file.resize(file.size() - 0x6c);
     },
     "The checksum of the file's header does not fit.\n"},
    {"the checksum of the map of pages", Release::R2004, [](FileBytes &file) { damagePage(file, pageMap, 0x10); },
     "The checksum of the map of pages does not fit.\n"},
    {"the map of pages", Release::R2013, [](FileBytes &file) { damagePage(file, pageMap, 0); },
     "The map of the file's pages cannot be read; pages were looked for.\n"},
    {"sizes in the map of pages", Release::R2010,
     [](FileBytes &file) {
         // Behind the head and the length of the plain bytes: the size of the first page, so all others stand
         // elsewhere.
         damagePage(file, pageMap, 0x14 + 2 + 4);
     },
     "The checksum of the map of pages does not fit.\n"},
    {"the checksum of the map of sections", Release::R2004, [](FileBytes &file) { damagePage(file, sectionMap, 0x10); },
     "The checksum of the map of sections does not fit.\n"},
    {"the map of sections", Release::R2004, [](FileBytes &file) { damagePage(file, sectionMap, 0); },
     "The map of the file's sections cannot be read.\nThe file has no map of its objects.\nThe file has no objects.\n",
     false},
    {"the head of a page", Release::R2004, [](FileBytes &file) { damagePage(file, lastObjects, 0x18); },
     "The head of a page of the section AcDb:AcDbObjects is damaged.\n"},
    {"the kind of a page", Release::R2018, [](FileBytes &file) { damagePage(file, lastObjects, 0); },
     "The head of a page of the section AcDb:AcDbObjects is damaged.\n"},
    {"the last byte of a page, which is filled up", Release::R2010,
     [](FileBytes &file) { damagePage(file, lastObjects, dataPageHead + 0x400); },
     "The checksum of a page of the section AcDb:AcDbObjects does not fit.\n"},
};

// In files up to R2000 the records of the table of sections stand from here on: number, place and size of each.
constexpr std::size_t tableRecords = 0x19;

std::uint32_t placeOf(const FileBytes &file, std::size_t section)
{
    BitReader reader(file, (tableRecords + 9 * section + 1) * 8, file.size() * 8);
    return reader.raw32();
}

constexpr std::size_t headerSection = 0;
constexpr std::size_t classesSection = 1;
constexpr std::size_t mapSection = 2;

/// The drawings have 22 objects that each has, and 40 circles.
const DamageRow locatorRows[] = {
    {"the place of the header", Release::R2000, [](FileBytes &file) { file[tableRecords + 1] ^= 1; },
     "The table of sections is damaged; its copy was read.\n"},
    {"the count of sections", Release::R13, [](FileBytes &file) { file[tableRecords - 1] = 0xff; },
     "The table of sections is damaged; its copy was read.\n"},
    // Which units patterns are in is told there alone.
    {"the table of sections and its copy", Release::R14,
     [](FileBytes &file) {
         invert(file, tableRecords, 5 * 9);
         file.resize(file.size() - 50);
     },
     "The checksum of the table of sections does not fit.\nThe file has no map of its objects.\n"
     "62 objects were found without the map of objects.\n",
     false},
    {"the checksum of the header's variables", Release::R2000,
     [](FileBytes &file) { file[placeOf(file, classesSection) - 18] ^= 1; },
     "The checksum of the header's variables does not fit.\n"},
    {"the mark behind the header's variables", Release::R14,
     [](FileBytes &file) { file[placeOf(file, classesSection) - 1] ^= 1; },
     "The mark behind the header's variables is missing.\n"},
    {"the mark in front of the classes", Release::R2000,
     [](FileBytes &file) { file[placeOf(file, classesSection)] ^= 1; },
     "The mark in front of the classes is missing.\nThe classes cannot be read.\n"},
    {"the checksum of the map of objects", Release::R13,
     [](FileBytes &file) { file[placeOf(file, mapSection)] ^= 0x10; },
     "The map of objects ends within a run.\n62 objects were found without the map of objects.\n"},
    {"a place in the map of objects", Release::R2000,
     [](FileBytes &file) { file[placeOf(file, mapSection) + 4] ^= 0x10; },
     "The checksum of a run of the map of objects does not fit.\n62 objects were found without the map of objects.\n"},
    {"the map of objects", Release::R2018, [](FileBytes &file) { damagePage(file, lastObjects + 3, dataPageHead + 3); },
     "The checksum of a page of the section AcDb:Handles does not fit.\n"
     "A page of the section AcDb:Handles cannot be read.\n"
     "The map of objects ends within a run.\n62 objects were found without the map of objects.\n"},
};

constexpr std::size_t previewSize = 16 + 4 + 5; ///< mark, length, one picture of four bytes

/// Puts a preview at the end, which the file's first bytes tell. Up to R2000 their checksum would not fit.
void addPreview(FileBytes &file)
{
    const std::size_t place = file.size();
    std::ranges::copy(markBytes(SectionMark::Preview), std::back_inserter(file));
    for (const std::uint8_t byte : {5, 0, 0, 0, 1, 2, 3, 4, 5})
        file.push_back(byte);
    for (std::size_t i = 0; i < 4; ++i)
        file[0x0d + i] = static_cast<std::uint8_t>(place >> 8 * i);
}

std::uint8_t &inPreview(FileBytes &file, std::size_t offset)
{
    return file[file.size() - previewSize + offset];
}

const DamageRow previewRows[] = {
    {"its place", Release::R2007, [](FileBytes &file) { file[0x0d] ^= 0x10; },
     "The preview is not where the file tells; it was found by its mark.\n"},
    {"its place, which is outside of the file", Release::R2018, [](FileBytes &file) { file[0x10] = 0xff; },
     "The preview is not where the file tells; it was found by its mark.\n"},
    {"its mark", Release::R2004, [](FileBytes &file) { inPreview(file, 3) ^= 1; }, "The preview cannot be found.\n",
     false},
    {"its length", Release::R2004, [](FileBytes &file) { inPreview(file, 16) = 6; },
     "The preview ends before its pictures do.\n", false},
    {"the file is cut within its length", Release::R2013, [](FileBytes &file) { file.resize(file.size() - 7); },
     "The preview ends before its pictures do.\n", false},
    {"it has no pictures", Release::R2010, [](FileBytes &file) { inPreview(file, 20) = 0; }, "", false},
};

} // namespace

TEST(DwgContainers, PreviewsAreFoundAndToldWhereTheyAreNot)
{
    for (const DamageRow &row : previewRows)
        expectDamage(row, addPreview);
}

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

TEST(DwgContainers, DamageOfPages)
{
    for (const DamageRow &row : pagedRows)
        expectDamage(row);
}

TEST(DwgContainers, DamageOfTheTableOfSectionsAndOfTheMapOfObjects)
{
    for (const DamageRow &row : locatorRows)
        expectDamage(row);
}

TEST(DwgContainers, TablesAreFoundWithoutTheHeader)
{
    for (const Release release : {Release::R13, Release::R2000, Release::R2007, Release::R2018}) {
        MadeDrawing drawing(release);
        const std::uint64_t circle = drawing.addEntity(0x12, [](ObjectWriter &o) {
            o.point({});
            o.real(2.0);
            o.thickness(0.0);
            o.extrusion();
        });
        MadeParts parts = drawing.parts();
        parts.header.resize(20);
        const ReadBack read = readBack(madeFile(parts));
        EXPECT_EQ(read.problems(), "The header's variables end too early.\n"
                                   "The header does not tell where the tables are; they were looked for.\n");
        const ReadBack whole = readBack(drawing);
        for (const std::uint64_t handle :
             {circle, std::uint64_t(MadeHandles::LayerZero), std::uint64_t(MadeHandles::NamedObjects)})
            EXPECT_EQ(read.record(handle), whole.record(handle));
        EXPECT_LT(read.drawing.text.find("CIRCLE"), read.drawing.text.find("OBJECTS"));
        EXPECT_EQ(read.variable("$CLAYER") + read.variable("$DIMSCALE"), "") << "what is not there is not 0";
    }
}

TEST(DwgContainers, WhatIsInFrontOfDamageInAPageIsThere)
{
    FileBytes file = circles(Release::R2010);
    const ReadBack whole = readBack(file);
    // The number that says how many plain bytes stand in the page: too many.
    damagePage(file, lastObjects, dataPageHead);
    const ReadBack read = readBack(file);
    EXPECT_TRUE(read.problems().starts_with("The checksum of a page of the section AcDb:AcDbObjects does not fit.\n"
                                            "A page of the section AcDb:AcDbObjects cannot be read.\n"))
        << read.problems();
    EXPECT_EQ(read.record(0x40), whole.record(0x40));
    EXPECT_EQ(read.record(0x40 + 39), "");
}

} // namespace host::dwg::test
