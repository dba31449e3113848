// Texts of paragraphs and attributes, as releases from R2004 on have them.

#include "tests/dwg/making/Paragraphs.h"
#include "tests/dwg/making/ReadBack.h"

#include <gtest/gtest.h>

namespace host::dwg::test {

namespace {

constexpr Point placeOfParagraphs = {1.0, 2.0, 0.0};

constexpr const char *paragraphTags = "10 1.0|20 2.0|30 0.0|40 0.5|41 7.0|46 0.0|71 1|72 5|1 ";

/// What R2018 has behind the background of a text that is not annotative, up to the kind of columns.
void writePlaceAgain(ObjectWriter &o, int columns)
{
    o.flag(true);
    o.int16(4);
    o.flag(true);
    o.reference(0);
    o.int32(1);
    o.point({1.0, 0.0, 0.0});
    o.point({1.0, 2.0, 0.0});
    for (const double size : {7.0, 0.0, 6.5, 0.25})
        o.real(size);
    o.int16(columns);
}

void writeColumns(ObjectWriter &o, bool isAutomatic)
{
    o.int32(2);
    o.real(3.0);
    o.real(0.5);
    o.flag(isAutomatic);
    o.flag(false);
}

constexpr const char *columnTags = "101 Embedded Object|70 1|10 1.0|20 0.0|30 0.0|11 1.0|21 2.0|31 0.0|40 7.0|41 0.0|"
                                   "42 6.5|43 0.25|";

struct ColumnsRow
{
    const char *name;
    std::function<void(ObjectWriter &)> write;
    std::string tags;
};

const ColumnsRow columnsRows[] = {
    {"annotative", [](ObjectWriter &o) { o.flag(false); }, ""},
    {"none", [](ObjectWriter &o) { writePlaceAgain(o, 0); }, ""},
    {"static",
     [](ObjectWriter &o) {
         writePlaceAgain(o, 1);
         writeColumns(o, false);
     },
     std::string(columnTags) + "71 1|72 2|44 3.0|45 0.5|73 0|74 0|"},
    {"dynamic, of one height",
     [](ObjectWriter &o) {
         writePlaceAgain(o, 2);
         writeColumns(o, true);
     },
     std::string(columnTags) + "71 2|72 2|44 3.0|45 0.5|73 1|74 0|"},
    {"dynamic, with a height each",
     [](ObjectWriter &o) {
         writePlaceAgain(o, 2);
         writeColumns(o, false);
         o.real(4.0);
         o.real(2.5);
     },
     std::string(columnTags) + "71 2|72 2|44 3.0|45 0.5|73 0|74 0|46 4.0|46 2.5|"},
};

/// The text that an attribute has, with nothing left to be said but its size.
void writeText(ObjectWriter &o, std::string_view text)
{
    constexpr int onlyPlace = 0xff;
    o.small(onlyPlace);
    o.rawFlatPoint(1.0, 2.0);
    o.extrusion();
    o.thickness(0.0);
    o.rawReal(0.5);
    o.text(text);
    o.reference(MadeHandles::TextStyle);
}

void writeTag(ObjectWriter &o)
{
    o.text("TAG");
    o.int16(0);
    o.small(4);
    if (o.since(Release::R2007))
        o.flag(true);
}

/// The head that a text within an attribute has of its own: no owner to tell, by layer, with a reference for the
/// linetype.
void writeEmbeddedHead(ObjectWriter &o)
{
    o.values().pair(2);
    o.int32(0);
    o.flag(true);
    o.flag(false);
    o.int16(256);
    o.real(1.0);
    o.values().pair(3);
    o.values().pair(0);
    o.values().pair(0);
    o.small(0);
    for (int i = 0; i < 3; ++i)
        o.flag(false);
    o.int16(0);
    o.small(29);
    o.reference(MadeHandles::LayerZero);
    o.reference(MadeHandles::ByLayer);
}

/// An attribute of two paragraphs; `isDefinition`: ATTDEF.
void writeParagraphAttribute(ObjectWriter &o, bool isDefinition)
{
    writeText(o, "a");
    o.small(0);
    o.small(isDefinition ? 4 : 2);
    writeEmbeddedHead(o);
    writeParagraphs(o, placeOfParagraphs, 0.25, 6.5, "a\\Pb");
    o.int32(0);
    writePlaceAgain(o, 0);
    o.int16(3);
    o.values().rawBytes("xyz");
    o.reference(MadeHandles::Application);
    o.int16(0);
    writeTag(o);
    if (isDefinition) {
        o.small(0);
        o.text("Prompt");
    }
}

} // namespace

TEST(DwgTexts, ParagraphsHaveTheColumnsOfR2018)
{
    for (const ColumnsRow &row : columnsRows) {
        MadeDrawing drawing(Release::R2018);
        const std::uint64_t text = drawing.addEntity(0x2c, [&row](ObjectWriter &o) {
            writeParagraphs(o, placeOfParagraphs, 0.25, 6.5, "ab");
            o.int32(0);
            row.write(o);
        });
        const ReadBack read = readBack(drawing);
        EXPECT_EQ(read.problems(), "") << row.name;
        EXPECT_EQ(read.lastPart(text), paragraphTags + std::string("ab|73 1|44 1.0|") + row.tags) << row.name;
    }
}

TEST(DwgTexts, AttributesHaveAVersionFromR2010AndParagraphsFromR2018)
{
    const std::string embedded =
        "71 %|72 0|11 0.0|21 0.0|31 0.0|101 Embedded Object|" + std::string(paragraphTags) + "a\\Pb|73 1|44 1.0|";
    for (const bool isDefinition : {false, true}) {
        MadeDrawing drawing(Release::R2018);
        const std::uint64_t attribute = drawing.addEntity(
            isDefinition ? 3 : 2, [isDefinition](ObjectWriter &o) { writeParagraphAttribute(o, isDefinition); });
        const ReadBack read = readBack(drawing);
        std::string expected = embedded;
        expected.replace(expected.find('%'), 1, isDefinition ? "4" : "2");
        EXPECT_EQ(read.problems(), "");
        EXPECT_EQ(read.lastPart(attribute),
                  std::string("280 0|") + (isDefinition ? "3 Prompt|" : "") + "2 TAG|70 4|280 1|" + expected);
    }
    for (const Release release : {Release::R2004, Release::R2010, Release::R2013, Release::R2018}) {
        MadeDrawing drawing(release);
        const std::uint64_t attribute = drawing.addEntity(2, [](ObjectWriter &o) {
            writeText(o, "v");
            if (o.since(Release::R2010))
                o.small(0);
            if (o.since(Release::R2018))
                o.small(1);
            writeTag(o);
        });
        const ReadBack read = readBack(drawing);
        EXPECT_EQ(read.problems(), "");
        EXPECT_EQ(read.lastPart(attribute), release == Release::R2004 ? "2 TAG|70 4|" : "280 0|2 TAG|70 4|280 1|");
    }
}

TEST(DwgTexts, OfClassesThatAreNotKnownAreKeptAsBits)
{
    const std::pair<Release, std::string> rows[] = {
        {Release::R2007, "95 27|70 0|96 42|311 409840188000|93 8|310 A5|"},
        {Release::R2010, "95 29|70 0|162 42|311 409840188000|161 8|310 A5|"},
        {Release::R2013, "95 31|70 0|162 42|311 409840188000|161 8|310 A5|"},
        {Release::R2018, "71 33|97 0|70 0|162 42|311 409840188000|161 8|310 A5|"},
    };
    for (const auto &[release, tags] : rows) {
        MadeDrawing drawing(release);
        const std::uint64_t handle = drawing.addObject("SOMETHING", "NAME", [](ObjectWriter &o) {
            o.small(0xa5);
            o.text("ab");
            o.reference(MadeHandles::LayerZero);
        });
        // A length of one byte, 0x02, and two characters of two bytes, all two bits further.
        EXPECT_EQ(readBack(drawing).lastPart(handle), "90 499|91 500|" + tags + "340 10|94 0|");
    }
}

} // namespace host::dwg::test
