// Colours of colour books: within objects, and as objects of their own that entities refer to.

#include "host/dwg/objects/Colours.h"

#include "host/dwg/objects/Fields.h"
#include "tests/dwg/making/ReadBack.h"
#include "tests/dwg/making/TypeNumbers.h"

#include <gtest/gtest.h>

namespace host::dwg::test {

namespace {

constexpr Release releasesWithBooks[] = {Release::R2004, Release::R2007, Release::R2010, Release::R2013,
                                         Release::R2018};

constexpr std::uint32_t red = trueColour | 0xff0000;
constexpr const char *redTags = "62 1|420 16711680|430 RAL CLASSIC$RAL 3020|";

void writeRed(ObjectWriter &o)
{
    o.longColour(red, "RAL 3020", "RAL CLASSIC");
}

void writePoint(ObjectWriter &o)
{
    o.point({1.0, 2.0, 0.0});
    o.thickness(0.0);
    o.extrusion();
    o.real(0.0);
}

/// The tags between the layer's name and those of a point.
std::string entityTags(const ReadBack &read, std::uint64_t handle)
{
    const std::string record = read.record(handle);
    const std::size_t begin = record.find("|8 0|") + 5;
    return record.substr(begin, record.find("100 AcDbPoint") - begin);
}

struct LayerRow
{
    const char *name;
    bool isOn;
    MadeDrawing::Write colour;
    const char *tags; ///< from the colour on
};

} // namespace

TEST(DwgColours, OfBooksAreObjectsThatEntitiesHave)
{
    for (const Release release : releasesWithBooks) {
        MadeDrawing drawing(release);
        const std::uint64_t colour = drawing.addObject("DBCOLOR", "RAL CLASSIC$RAL 3020", writeRed);
        const std::uint64_t plain = drawing.addEntity(PointType, writePoint);
        drawing.head(plain).bookColour = colour;
        const std::uint64_t clear = drawing.addEntity(PointType, writePoint);
        drawing.head(clear).bookColour = colour;
        drawing.head(clear).transparency = 0x0200007f;
        const ReadBack read = readBack(drawing);
        EXPECT_EQ(read.problems(), "");
        EXPECT_EQ(read.lastPart(colour), redTags);
        EXPECT_EQ(entityTags(read, plain), redTags);
        EXPECT_EQ(entityTags(read, clear), std::string(redTags) + "440 33554559|");
    }
}

TEST(DwgColours, OfBooksMayHaveTheirNumberBesideThem)
{
    MadeDrawing drawing(Release::R2010);
    const std::uint64_t colour = drawing.addObject("DBCOLOR", "RAL CLASSIC$RAL 3020", writeRed);
    std::vector<std::uint64_t> points;
    for (const bool hasRgb : {false, true, true, false}) {
        points.push_back(drawing.addEntity(PointType, writePoint));
        drawing.head(points.back()).bookColour = colour;
        drawing.head(points.back()).hasRgbBesideBook = hasRgb;
        drawing.head(points.back()).transparency = 0x0200007f;
    }
    const ReadBack read = readBack(drawing);
    EXPECT_EQ(read.problems(), "");
    for (const std::uint64_t point : points)
        EXPECT_EQ(entityTags(read, point), std::string(redTags) + "440 33554559|");
}

TEST(DwgColours, OfBooksThatAreNotThereAreTold)
{
    for (const bool isColour : {true, false}) {
        MadeDrawing drawing(Release::R2010);
        // It ends early, or is none.
        const std::uint64_t other = isColour ? drawing.addObject("DBCOLOR", "NAME", [](ObjectWriter &o) { o.int16(0); })
                                             : drawing.addObject(PlaceholderType, "NAME", nullptr);
        const std::uint64_t point = drawing.addEntity(PointType, writePoint);
        drawing.head(point).colour = 5;
        drawing.head(point).bookColour = other;
        const ReadBack read = readBack(drawing);
        EXPECT_EQ(entityTags(read, point), "62 5|");
        EXPECT_NE(read.problems().find("POINT 41: The colour of a book that it has is not in the file.\n"),
                  std::string::npos);
        EXPECT_EQ(read.drawing.problems.lostCount(), 0u);
    }
}

TEST(DwgColours, OfLayersStayWhereTheyAreOff)
{
    const LayerRow rows[] = {
        {"true", true, [](ObjectWriter &o) { o.longColour(trueColour | 0xff00); }, "62 3|420 65280|6 "},
        {"true, off", false, [](ObjectWriter &o) { o.longColour(trueColour | 0xff00); }, "62 -3|420 65280|6 "},
        {"of a book", true, writeRed, "62 1|420 16711680|430 RAL CLASSIC$RAL 3020|6 "},
        {"of a book, off", false, writeRed, "62 -1|420 16711680|430 RAL CLASSIC$RAL 3020|6 "},
        {"named alone", true, [](ObjectWriter &o) { o.longColour(red, "Mine"); }, "62 1|420 16711680|430 Mine|6 "},
    };
    for (const Release release : releasesWithBooks) {
        for (const LayerRow &row : rows) {
            MadeDrawing drawing(release);
            const std::uint64_t layer = drawing.addEntry(LayerType, layerWriter("L", row.isOn, row.colour));
            const ReadBack read = readBack(drawing);
            EXPECT_EQ(read.problems(), "");
            EXPECT_EQ(read.lastPart(layer).find(row.tags), std::string_view("2 L|70 0|").size())
                << row.name << ": " << read.lastPart(layer);
        }
    }
}

TEST(DwgColours, HaveFurtherGroupsWhereTheTextFormHasThem)
{
    const std::pair<int, std::string> rows[] = {
        {62, "62 1|420 16711680|430 B$N|"}, {69, "69 1|427 16711680|437 B$N|"}, {70, "70 1|"}, {176, "176 1|"}};
    for (const auto &[code, expected] : rows) {
        const Names names;
        Fields fields(Release::R2018, names);
        fields.start({}, {}, {});
        fields.note(code, NotedColour{1, red, "B$N"});
        std::string tags;
        fields.forEachTag([&tags](int tagCode, std::string_view value) {
            tags += std::to_string(tagCode) + ' ' + std::string(value) + '|';
        });
        EXPECT_EQ(tags, expected);
    }
}

} // namespace host::dwg::test
