// Texts in code pages: which page the text form names, and that their bytes come through it whole.

#include "tests/dwg/making/EarlyFileMaker.h"
#include "tests/dwg/making/Paragraphs.h"
#include "tests/dwg/making/ReadBack.h"
#include "tests/dwg/making/TypeNumbers.h"

#include <gtest/gtest.h>

namespace host::dwg::test {

namespace {

constexpr Release releasesWithPages[] = {Release::R13, Release::R14, Release::R2000, Release::R2004};

struct PageTextRow
{
    int codePage;
    std::string text;
    std::string expected;
};

// In pages with characters of two bytes the second one may be a ^, which begins an escape in the text form.
const PageTextRow pageTextRows[] = {
    {38, "\x83\x5e", "\x83\x5e"},
    {38, "\xb6^\x83^^", "\xb6^ \x83^^ "},
    {22, "\x83\x5e", "\x83\x5e"},
    {39, "\xb6^^", "\xb6^^ "},
    {24, "\xa6\x5e\n", "\xa6\x5e^J"},
    {42, "\xa6\n", "\xa6^J"},
    {40, "\xa6", "\xa6"},
    {30, "\xb6^", "\xb6^ "},
    {30, std::string("before\0behind", 13), "before"},
    {30, "\\U+2205 %%c", "\\U+2205 %%c"},
};

std::string textOf(const ReadBack &read, std::uint64_t handle)
{
    const std::string part = read.lastPart(handle);
    const std::size_t begin = part.find("|1 ") + 3;
    return part.substr(begin, part.find('|', begin) - begin);
}

std::string earlyPage(Release release, std::string_view layer)
{
    EarlyFileMaker maker(release);
    maker.addRecord(EarlyTableKind::Layers, 0, layer, "w7 w0");
    const ReadBack read = readBack(maker.file());
    EXPECT_NE(read.drawing.text.find(layer), std::string::npos);
    EXPECT_EQ(read.problems().find("does not tell the code page") != std::string::npos,
              layer.find_first_not_of("LAYER") != std::string_view::npos);
    return read.variable("$DWGCODEPAGE");
}

} // namespace

TEST(DwgCodePages, BytesOfTextsComeThrough)
{
    for (const Release release : releasesWithPages) {
        for (const PageTextRow &row : pageTextRows) {
            MadeDrawing drawing(release);
            drawing.setCodePage(row.codePage);
            const std::uint64_t text = drawing.addText("NAME", row.text);
            const ReadBack read = readBack(drawing);
            EXPECT_EQ(read.problems(), "");
            EXPECT_EQ(textOf(read, text), row.expected) << static_cast<int>(release) << ", page " << row.codePage;
        }
    }
}

TEST(DwgCodePages, LongTextsAreCutBetweenCharacters)
{
    struct LongTextRow
    {
        Release release;
        int codePage;
        const char *character;
        std::size_t length; ///< of the first part, in bytes
    };
    // Escapes are characters; from R2007 on units of UTF-16 are counted, of which the last row's have two.
    const LongTextRow rows[] = {{Release::R2000, 30, "\x83\x41", 250},
                                {Release::R2000, 38, "\x83\x41", 1 + 249 * 2},
                                {Release::R2000, 30, "\\U+2022", 1 + 249 * 7},
                                {Release::R2004, 30, "\\M+1955C", 1 + 249 * 8},
                                {Release::R2000, 30, "\\U+20", 250},
                                {Release::R2007, 30, "b", 250},
                                {Release::R2018, 30, "\u00e4", 1 + 249 * 2},
                                {Release::R2018, 30, "\u2022", 1 + 249 * 3},
                                {Release::R2018, 30, "\U0001f600", 1 + 124 * 4}};
    for (const LongTextRow &row : rows) {
        MadeDrawing drawing(row.release);
        drawing.setCodePage(row.codePage);
        std::string text = "a";
        for (int i = 0; i < 280; ++i)
            text += row.character;
        const std::uint64_t handle = drawing.addEntity(0x2c, [&text](ObjectWriter &o) {
            writeParagraphs(o, {1.0, 2.0, 0.0}, 0.25, 6.5, text);
            if (o.since(Release::R2004))
                o.int32(0); // no background
            if (o.since(Release::R2018))
                o.flag(false);
        });
        const ReadBack read = readBack(drawing);
        EXPECT_EQ(read.problems(), "");
        const std::string tags = read.lastPart(handle);
        const std::size_t begin = tags.find("|3 ") + 3;
        EXPECT_EQ(tags.find('|', begin) - begin, row.length) << row.character;
        EXPECT_EQ(tags.substr(begin, row.length), text.substr(0, row.length)) << row.character;
    }
}

TEST(DwgCodePages, UnitsOfUtf16BecomeUtf8)
{
    const std::pair<std::u16string, std::string> rows[] = {
        {u"\u00e4\u4e2d", "\u00e4\u4e2d"},
        {u"a\U0001f600", "a\U0001f600"},
        {{'a', 0xd83d, 'b'}, "a\ufffdb"},
        {{0xde00}, "\ufffd"},
        {{0xd83d, 0xd83d, 0xde00}, "\ufffd\U0001f600"},
        {{'a', 'b', 'c', 0xd83d}, "abc\ufffd"},
        {{'a', 0, 'b'}, "a"},
        {{0x4e2d, 'a', 'b', 'c', 0},
         "\u4e2d"
         "abc"},
        {u"^\n\\U+2205", "^ ^J\\U+2205"},
    };
    for (const auto &[units, expected] : rows) {
        MadeDrawing drawing(Release::R2010);
        const std::uint64_t application = drawing.addEntry(ApplicationType, [&units = units](ObjectWriter &o) {
            o.texts().shortInteger(static_cast<int>(units.size()));
            for (const char16_t unit : units)
                o.texts().raw16(unit);
            o.int16(0);
            o.small(0);
            o.reference(0);
        });
        const ReadBack read = readBack(drawing);
        EXPECT_EQ(read.problems(), "");
        EXPECT_EQ(read.lastPart(application), "2 " + expected + "|70 0|");
    }
}

TEST(DwgCodePages, NumbersThatNoPageHasAreTold)
{
    for (const int codePage : {0, 45, 200}) {
        MadeDrawing drawing(Release::R2000);
        drawing.setCodePage(codePage);
        const ReadBack read = readBack(drawing);
        EXPECT_EQ(read.problems(), "The code page has the number " + std::to_string(codePage) +
                                       ", which is none that is known; texts are read as ANSI_1252.\n");
        EXPECT_EQ(read.variable("$DWGCODEPAGE"), "9 $DWGCODEPAGE|3 ANSI_1252|");
    }
}

TEST(DwgCodePages, BeforeR13LettersTellThem)
{
    const std::string dos = "9 $DWGCODEPAGE|3 dos850|";
    const std::string cyrillic = "9 $DWGCODEPAGE|3 dos866|";
    const std::pair<const char *, std::string> rows[] = {
        {"LAYER", ""},
        {"H\x94he", dos},
        {"H\x99HE", dos},
        {"T\x9aR", dos},
        {"caf\x82s", dos},
        {"\x84u\xe1"
         "ere",
         ""},                      // no letter with others on both sides
        {"H\xf6he", ""},           // Windows
        {"pe\x9aka", ""},          // Windows, in small letters
        {"\x93word\x94 \x97", ""}, // quotes and a dash
        {"\x82\x61\x82\x62\x82\x63", ""},
        {"\x92\xa5\xaa\xe1\xe2", cyrillic},     // a capital and small letters
        {"\x9d\x92\x80\x86 H\x94he", cyrillic}, // capitals with one that is late in the alphabet
        {"\x8f\x8b\x80\x8d", ""},               // capitals of other alphabets of DOS, too
        {"\xd2\xe5\xea\xf1\xf2", ""},           // the first word by Windows
        {"\xef\xeb\xe0\xed", ""},               // small letters by both
        {"\xd6\xd0\xce\xc4", ""},               // Chinese
        {"\xa0\x82\xa2\x82\xa4", ""},           // no word: a capital inside
        {"\x9d\xe2 \xa4\xa0", ""},              // too short
    };
    for (const auto &[layer, expected] : rows) {
        for (const Release release : {Release::R9, Release::R10, Release::R12})
            EXPECT_EQ(earlyPage(release, layer), expected) << layer;
    }
}

} // namespace host::dwg::test
