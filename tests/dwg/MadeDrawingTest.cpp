// Drawings that are made here, in each release and container, and read again: what stands in them comes out.

#include "host/dwg/container/PageCompression.h"
#include "tests/dwg/making/ReadBack.h"
#include "tests/dwg/making/TypeNumbers.h"

#include <gtest/gtest.h>
#include <random>

namespace host::dwg::test {

namespace {

class MadeFiles : public testing::TestWithParam<Release>
{
};

void writeCircle(ObjectWriter &o)
{
    o.point({1.5, -2.0, 0.0});
    o.real(5.0);
    o.thickness(0.25);
    o.extrusion({0.0, 0.0, -1.0});
}

void tellOwner(MadeHead &head)
{
    head.space = 0;
    head.owner = MadeHandles::ModelSpace;
}

} // namespace

TEST_P(MadeFiles, AreReadAsTheyWereMade)
{
    MadeDrawing drawing(GetParam());
    const std::uint64_t circle = drawing.addEntity(0x12, writeCircle);
    drawing.head(circle).colour = 3;
    drawing.head(circle).reactors = {MadeHandles::LayerZero};
    drawing.addEntity(0x28, [](ObjectWriter &o) {
        o.point({0.0, 0.0, 0.0});
        o.point({1.0, 0.0, 0.0});
    });
    // A text that does not fit into the 15 bits of its length, and characters of one to four bytes.
    const std::string wide = GetParam() >= Release::R2007 ? "a\xc3\xa4\xe2\x82\xac\xf0\x9f\x98\x80" : "abcd";
    const std::string text = wide + std::string(3000, 'x');
    const std::uint64_t variable = drawing.addObject("DICTIONARYVAR", "CLEF", [text](ObjectWriter &o) {
        o.small(0);
        o.text(text);
    });
    drawing.head(variable).dictionary = drawing.addOwned(0x2a, variable, [](ObjectWriter &o) {
        o.int32(0);
        if (o.release() == Release::R14)
            o.small(0);
        if (o.since(Release::R2000)) {
            o.int16(1);
            o.small(1);
        }
    });
    drawing.setHeader("$LTSCALE", 2.5);

    const ReadBack read = readBack(drawing);
    EXPECT_EQ(read.problems(), "");
    EXPECT_EQ(read.record(circle), "0 CIRCLE|5 40|102 {ACAD_REACTORS|330 10|102 }|330 1D|100 AcDbEntity|8 0|62 3|"
                                   "100 AcDbCircle|39 0.25|10 1.5|20 -2.0|30 0.0|40 5.0|210 0.0|220 0.0|230 -1.0|");
    EXPECT_EQ(read.record(variable), "0 DICTIONARYVAR|5 42|102 {ACAD_XDICTIONARY|360 43|102 }|330 C|"
                                     "100 DictionaryVariables|280 0|1 " +
                                         text + '|');
    EXPECT_EQ(read.lastPart(MadeHandles::NamedObjects),
              GetParam() >= Release::R2000 ? "281 1|3 CLEF|350 42|" : "3 CLEF|350 42|");
    EXPECT_EQ(read.variable("$LTSCALE"), "9 $LTSCALE|40 2.5|");
    EXPECT_LT(read.drawing.text.find("AcDbRay"), read.drawing.text.find("OBJECTS"));
}

TEST_P(MadeFiles, HaveAsManyObjectsAsAreAdded)
{
    MadeDrawing drawing(GetParam());
    constexpr std::size_t count = 5000;
    for (std::size_t i = 0; i < count; ++i)
        drawing.addEntity(0x12, writeCircle);
    const ReadBack read = readBack(drawing);
    EXPECT_EQ(read.problems(), "");
    EXPECT_EQ(read.drawing.objectCount, MadeDrawing(GetParam()).parts().objects.size() + count);
    EXPECT_EQ(read.lastPart(0x40 + count - 1), read.lastPart(0x40));
}

// Most heads are those of entities before, and are taken over from there: none but those that are the same.
TEST_P(MadeFiles, EntitiesHaveTheirOwnHeads)
{
    struct Row
    {
        void (*change)(MadeHead &head);
        std::string owner; ///< and what else stands in front of "AcDbEntity"
        std::string tags;  ///< behind it
    };
    const std::string usualOwner = "330 1D|";
    const std::string usualTags = "8 0|";
    constexpr std::uint64_t layer = MadeHandles::First;
    const std::string graphics = GetParam() >= Release::R2010 ? "160 3|310 000102|" : "92 3|310 000102|";
    const std::string weight = GetParam() >= Release::R2000 ? "370 30|" : "";
    const std::vector<Row> rows = {
        {[](MadeHead &) {}, usualOwner, usualTags},
        {[](MadeHead &head) { head.colour = 3; }, usualOwner, "8 0|62 3|"},
        {[](MadeHead &head) { head.layer = layer; }, usualOwner, "8 WALL|"},
        {[](MadeHead &head) { head.isVisible = false; }, usualOwner, "8 0|60 1|"},
        {tellOwner, usualOwner, usualTags},
        {[](MadeHead &head) { head.space = 1; }, "330 1A|", "67 1|8 0|"},
        {[](MadeHead &head) { head.linetypeScale = 0.5; }, usualOwner, "8 0|48 0.5|"},
        {[](MadeHead &head) {
             head.linetypeScale = 0.5;
             head.graphics = std::string("\0\1\2", 3);
             head.weight = 8;
         },
         usualOwner, "8 0|48 0.5|" + graphics + weight},
        {[](MadeHead &head) { head.reactors = {0x10}; }, "102 {ACAD_REACTORS|330 10|102 }|" + usualOwner, usualTags},
        {[](MadeHead &head) { head.reactors = {0x11}; }, "102 {ACAD_REACTORS|330 11|102 }|" + usualOwner, usualTags},
        {[](MadeHead &head) { head.tellsNeighbours = false; }, usualOwner, usualTags},
        {[](MadeHead &head) {
             tellOwner(head);
             head.isOwnerCounted = true;
         },
         usualOwner, usualTags},
        {[](MadeHead &head) {
             tellOwner(head);
             head.isOwnerCounted = true;
             ++head.owner; // as far away as that of the one before
         },
         "330 1E|", usualTags},
    };
    MadeDrawing drawing(GetParam());
    ASSERT_EQ(drawing.addEntry(LayerType, layerWriter("WALL", true, [](ObjectWriter &o) { o.colour(1); })), layer);
    // Each one twice in a row, and again after all others.
    std::vector<std::pair<std::uint64_t, const Row *>> entities;
    for (std::size_t i = 0; i < 4 * rows.size(); ++i) {
        const Row &row = rows[i / 2 % rows.size()];
        entities.emplace_back(drawing.addEntity(CircleType, writeCircle), &row);
        row.change(drawing.head(entities.back().first));
    }
    const ReadBack read = readBack(drawing);
    EXPECT_EQ(read.problems(), "");
    for (const auto &[handle, row] : entities) {
        const std::string record = read.record(handle);
        EXPECT_EQ(record.substr(record.find('|', record.find("|5 ") + 1)),
                  '|' + row->owner + "100 AcDbEntity|" + row->tags + "100 AcDbCircle|" + read.lastPart(handle));
    }
}

TEST(MadePages, UnpackToWhatWasPacked)
{
    std::mt19937 random(7);
    for (int run = 0; run < 400; ++run) {
        // From nothing that comes again to one byte alone; long enough for all distances and lengths.
        const std::size_t size = 4 + random() % (run % 10 == 0 ? 0x7400 : 600);
        const unsigned letters = 1 + random() % 255;
        FileBytes bytes(size);
        for (std::size_t i = 0; i < size; ++i)
            bytes[i] =
                static_cast<std::uint8_t>(i > 40 && random() % 50 != 0 ? bytes[i - 1 - i % 37] : random() % letters);
        if (run % 3 == 0) // the same far behind
            bytes.insert(bytes.end(), bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(size / 2));
        bytes.resize(std::min<std::size_t>(bytes.size(), 0x7400));
        for (const FileBytes &packed : {packedTight(bytes), packedPlain(bytes)}) {
            FileBytes page(bytes.size());
            EXPECT_TRUE(unpackPage(packed, page)) << run;
            EXPECT_EQ(page, bytes) << run;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Dwg, MadeFiles,
                         testing::Values(Release::R13, Release::R14, Release::R2000, Release::R2004, Release::R2007,
                                         Release::R2010, Release::R2013, Release::R2018),
                         [](const auto &row) { return "AC" + std::to_string(static_cast<int>(row.param)); });

} // namespace host::dwg::test
