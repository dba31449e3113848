// Table styles of R2010 and later, which the text form has in an older form with records beside them.

#include "tests/dwg/making/ReadBack.h"

#include <gtest/gtest.h>

namespace host::dwg::test {

namespace {

void writeLongColour(ObjectWriter &o, std::uint32_t colour)
{
    o.int16(0);
    o.int32(static_cast<std::int32_t>(colour));
    o.small(0);
}

/// A style with one border format for all places but the last.
void writeCellStyle(ObjectWriter &o, int number, std::string_view name, double height, std::uint32_t fill)
{
    o.int32(5);
    o.int16(1);
    o.int32(0);
    o.int32(0);
    writeLongColour(o, fill);
    o.int32(1);
    o.int32(0);
    o.int32(0);
    o.int32(512);
    o.int32(0);
    o.text("");
    o.real(0.0);
    o.real(1.0);
    o.int32(5);
    writeLongColour(o, 0xc2ff0000);
    o.reference(MadeHandles::TextStyle);
    o.real(height);
    o.int16(1);
    for (const double margin : {0.06, 0.07, 0.06, 0.06, 0.18, 0.18})
        o.real(margin);
    o.int32(1);
    o.int32(31);
    o.int32(0);
    o.int32(1);
    writeLongColour(o, 0xc3000003);
    o.int32(25);
    o.reference(0);
    o.int32(1);
    o.real(0.045);
    o.int32(number);
    o.int32(1);
    o.text(name);
}

void writeStyle(ObjectWriter &o)
{
    constexpr std::uint32_t none = 0xc8000000;
    o.small(0);
    o.text("Standard");
    o.int32(8);
    o.int32(101);
    o.reference(0, HandleReference::HardOwner);
    writeCellStyle(o, 4, "Table", 0.5, none);
    o.int32(3);
    int place = 1;
    for (const auto &[number, name] : {std::pair{1, "_TITLE"}, {2, "_HEADER"}, {3, "_DATA"}}) {
        o.int32(place++);
        writeCellStyle(o, number, name, number, number == 2 ? 0xc3000005 : none);
    }
}

constexpr std::uint64_t firstFree = 0x1000; // made drawings say so

std::string rowTags(const std::string &height, const std::string &fill)
{
    std::string tags = "7 Standard|140 " + height + "|170 5|62 1|420 16711680|" + fill + "|90 512|91 0|1 |";
    for (int i = 0; i < 6; ++i) {
        const auto code = [i](int first) { return std::to_string(first + i); };
        tags += i < 5 ? code(274) + " 25|" + code(284) + " 0|" + code(64) + " 3|"
                      : code(274) + " -2|" + code(284) + " 1|" + code(64) + " 0|";
    }
    return tags;
}

std::size_t occurrences(std::string_view text, std::string_view what)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(what); at != std::string_view::npos; at = text.find(what, at + 1))
        ++count;
    return count;
}

} // namespace

TEST(DwgTableStyles, HaveAnOlderFormWithTheirCellStylesBeside)
{
    MadeDrawing drawing(Release::R2010);
    const std::uint64_t style = drawing.addObject("TABLESTYLE", "STYLE", writeStyle);
    const ReadBack read = readBack(drawing);
    EXPECT_EQ(read.problems(), "");
    const std::string classic = "280 0|3 Standard|70 0|71 0|40 0.07|41 0.06|280 0|281 0|" +
                                rowTags("3.0", "63 7|283 0") + rowTags("1.0", "63 7|283 0") +
                                rowTags("2.0", "63 5|283 1");
    EXPECT_EQ(read.lastPart(style), classic);
    // With the handles that are free: a dictionary, the cell styles, the list of what is in an older form.
    EXPECT_NE(read.record(style).find("|102 {ACAD_XDICTIONARY|360 1000|102 }|"), std::string::npos);
    EXPECT_EQ(read.record(firstFree), "0 DICTIONARY|5 1000|330 40|100 AcDbDictionary|280 1|281 1|"
                                      "3 ACAD_ROUNDTRIP_2008_TABLESTYLE_CELLSTYLEMAP|360 1001|");
    const std::string map = read.lastPart(firstFree + 1);
    EXPECT_EQ(map.substr(0, map.find("|91")), "90 3|300 CELLSTYLE|1 TABLEFORMAT_BEGIN|90 5|170 1");
    EXPECT_EQ(occurrences(map, "CELLSTYLE_END|"), 3u) << "those of the rows, without that of the table";
    EXPECT_EQ(read.record(firstFree + 2), "0 XRECORD|5 1002|102 {ACAD_REACTORS|330 C|102 }|330 C|100 AcDbXrecord|280 1|"
                                          "90 1|330 40|");
    EXPECT_EQ(read.lastPart(MadeHandles::NamedObjects), "281 1|3 ACDB_RECOMPOSE_DATA|350 1002|3 STYLE|350 40|");
    EXPECT_EQ(read.variable("$HANDSEED"), "9 $HANDSEED|5 1003|");
    EXPECT_NE(read.drawing.text.find("CELLSTYLEMAP\n  2\nAcDbCellStyleMap\n"), std::string::npos);
}

TEST(DwgTableStyles, ShareTheDictionaryAndTheListThatAreThere)
{
    MadeDrawing drawing(Release::R2018);
    const std::uint64_t list = drawing.addObject(0x4f, "ACDB_RECOMPOSE_DATA", [](ObjectWriter &o) {
        BitWriter data;
        data.raw16(90);
        data.raw32(1);
        data.raw16(330);
        data.raw64(0x99);
        o.int32(static_cast<std::int32_t>(data.bytes().size()));
        for (const std::uint8_t byte : data.bytes())
            o.small(byte);
        o.int16(1);
    });
    const std::uint64_t style = drawing.addObject("TABLESTYLE", "STYLE", writeStyle);
    const std::uint64_t dictionary = drawing.addOwned(0x2a, style, [](ObjectWriter &o) {
        o.int32(1);
        o.int16(1);
        o.small(1);
        o.text("other");
        o.reference(MadeHandles::LayerZero, HandleReference::HardOwner);
    });
    drawing.head(style).dictionary = dictionary;
    const ReadBack read = readBack(drawing);
    EXPECT_EQ(read.problems(), "");
    EXPECT_EQ(read.lastPart(list), "280 1|90 1|330 41|330 99|");
    EXPECT_EQ(read.lastPart(dictionary), "280 1|281 1|3 ACAD_ROUNDTRIP_2008_TABLESTYLE_CELLSTYLEMAP|360 1000|"
                                         "3 other|360 10|");
    EXPECT_EQ(occurrences(read.record(firstFree), "CELLSTYLE_END|"), 3u);
}

} // namespace host::dwg::test
