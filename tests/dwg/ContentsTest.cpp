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

TEST(DwgContents, PropertiesOfTheFileStandBehindEachOther)
{
    const auto summaryOf = [](Release release, const std::vector<std::string> &texts) {
        BitWriter writer;
        const auto write = [&](const std::string &text) {
            writer.raw16(static_cast<std::uint32_t>(text.size() + 1));
            for (const char c : text + '\0')
                release >= Release::R2007 ? writer.raw16(static_cast<std::uint8_t>(c)) : writer.byte(c);
        };
        for (std::size_t i = 0; i < 8; ++i)
            write(texts[i]);
        writer.rawBytes(std::string(3 * 8, '\1'));
        writer.raw16(static_cast<std::uint32_t>((texts.size() - 8) / 2));
        for (std::size_t i = 8; i < texts.size(); ++i)
            write(texts[i]);
        return FileBytes(writer.bytes());
    };
    const std::vector<std::string> texts = {"House",       "",       "Ann", "", "one\ntwo", "", "7",
                                            "http://base", "Client", "B^C", "", "x"};
    for (const Release release : {Release::R2004, Release::R2007, Release::R2018}) {
        const FileBytes bytes = summaryOf(release, texts);
        for (std::size_t size = 0; size <= bytes.size(); ++size) {
            Container container;
            container.release = release;
            container.summary = Bytes(bytes).first(size);
            std::string read;
            for (const FileProperty &property : readSummary(container))
                read += property.name + '=' + property.text + (property.isCustom ? "!" : "") + ';';
            const std::string all = "$TITLE=House;$SUBJECT=;$AUTHOR=Ann;$KEYWORDS=;$COMMENTS=one\ntwo;$LASTSAVEDBY=;"
                                    "$REVISIONNUMBER=7;Client=B^C!;=x!;";
            EXPECT_EQ(all.substr(0, read.size()), read) << size << " bytes";
            EXPECT_EQ(read == all, size == bytes.size()) << size << " bytes";
        }
        if (release == Release::R2007)
            continue;
        std::vector<MadeSection> sections = sectionsOf(MadeDrawing(release).parts());
        sections.push_back({.name = "AcDb:SummaryInfo", .bytes = bytes});
        const ReadBack drawing = readBack(pagedFile(release, sections));
        EXPECT_EQ(drawing.variable("$COMMENTS"), "9 $COMMENTS|1 one^Jtwo|");
        EXPECT_EQ(drawing.variable("$SUBJECT"), "");
        EXPECT_NE(drawing.drawing.text.find("$CUSTOMPROPERTYTAG\n  1\nClient\n  9\n$CUSTOMPROPERTY\n  1\nB^ C\n  9\n"
                                            "$CUSTOMPROPERTYTAG\n  1\n\n  9\n$CUSTOMPROPERTY\n  1\nx\n"),
                  std::string::npos);
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

TEST(DwgContents, ThePlotStyleOfNewObjectsIsThereWhereItsKindSaysSo)
{
    for (const Release release : {Release::R2000, Release::R2007, Release::R2018}) {
        MadeDrawing drawing(release);
        drawing.setHeader("$CEPSNTYPE", 3);
        drawing.setHeader("$CEPSNID", 0x51);
        const ReadBack read = readBack(drawing);
        EXPECT_NE(read.drawing.text.find("$CEPSNTYPE\n380\n3\n  9\n$CEPSNID\n390\n51\n"), std::string::npos);
        EXPECT_EQ(read.problems(), "") << "what stands behind it is found";
        EXPECT_EQ(readBack(MadeDrawing(release)).variable("$CEPSNID"), "");
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

TEST(DwgContents, NamesOfWhatIsLostAreThoseOfEveryDrawing)
{
    constexpr double lost = 0xbad;
    for (const Release release : {Release::R14, Release::R2000, Release::R2007, Release::R2018}) {
        MadeDrawing drawing(release);
        drawing.setHeader("$CLAYER", lost);
        drawing.setHeader("$CELTYPE", lost);
        const std::uint64_t circle = drawing.addEntity(0x12, [](ObjectWriter &o) {
            o.point({1.0, 2.0, 0.0});
            o.real(5.0);
            o.thickness(0.0);
            o.extrusion();
        });
        drawing.head(circle).layer = 0xbad;
        const ReadBack read = readBack(drawing);
        EXPECT_NE(read.record(circle).find("|8 0|"), std::string::npos) << read.record(circle);
        EXPECT_EQ(read.variable("$CLAYER") + read.variable("$CELTYPE"), "") << "they have their usual values";
        EXPECT_EQ(read.variable("$TEXTSTYLE"), "9 $TEXTSTYLE|7 Standard|");
    }
}

} // namespace host::dwg::test
