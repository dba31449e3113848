// Header variables and what stands beside them in sections of its own.

#include "host/dwg/contents/Contents.h"

#include "tests/dwg/making/ReadBack.h"

#include <gtest/gtest.h>

namespace host::dwg::test {

TEST(DwgContents, UnitsOfPatternsStandBehindADescription)
{
    struct Row
    {
        Release release;
        std::vector<std::uint8_t> bytes;
        std::optional<int> measurement;
    };
    const Row rows[] = {
        {Release::R2004, {0, 0, 1, 0}, 1},
        {Release::R2004, {2, 0, 'm', 0, 1, 0}, 1},
        {Release::R2018, {0, 0, 0, 0}, 0},
        {Release::R2018, {1, 0, 0, 0, 1, 0}, 1}, // a character has two bytes from R2007 on
        {Release::R2018, {2, 0, 'm', 0, 1, 0}, std::nullopt},
        {Release::R2004, {}, std::nullopt},
    };
    for (const Row &row : rows) {
        Container container;
        container.release = row.release;
        container.measurement = row.bytes;
        EXPECT_EQ(readMeasurement(container), row.measurement) << row.bytes.size();
    }
}

TEST(DwgContents, FramesOfReferencesAreAFlagBeforeR2010)
{
    for (const int value : {0, 1, 2}) {
        for (const Release release : {Release::R2004, Release::R2010, Release::R2018}) {
            MadeDrawing drawing(release);
            drawing.setHeader("$XCLIPFRAME", value);
            const std::string text =
                release == Release::R2004 ? value == 1 ? "290 1|" : "290 0|" : "280 " + std::to_string(value) + '|';
            EXPECT_EQ(readBack(drawing).variable("$XCLIPFRAME"), "9 $XCLIPFRAME|" + text);
        }
    }
}

TEST(DwgContents, StylesThatTheHeaderDoesNotNameAreTheUsualOnes)
{
    MadeDrawing drawing(Release::R2010);
    const std::uint64_t styles = drawing.addObject(0x2a, "ACAD_VISUALSTYLE", [](ObjectWriter &o) {
        o.int32(3);
        o.int16(1);
        o.small(0);
        for (const auto &[name, handle] :
             {std::pair{"Realistic", 0xa3}, std::pair{"Wireframe", 0xa0}, std::pair{"gone", 0}}) {
            o.text(name);
            o.reference(static_cast<std::uint64_t>(handle), HandleReference::SoftOwner);
        }
    });
    const ReadBack read = readBack(drawing);
    EXPECT_EQ(read.variable("$INTERFEREOBJVS"), "9 $INTERFEREOBJVS|345 A3|");
    EXPECT_EQ(read.variable("$INTERFEREVPVS"), "9 $INTERFEREVPVS|346 A0|");
    EXPECT_EQ(read.lastPart(styles), "281 1|3 Realistic|350 A3|3 Wireframe|350 A0|") << "entries that name nothing";
}

} // namespace host::dwg::test
