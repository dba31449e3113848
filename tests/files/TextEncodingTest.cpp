// Bytes of editors of all times and countries.

#include "files/TextEncoding.h"

#include <gtest/gtest.h>

using namespace std::string_literals;

namespace {

struct EncodingRow
{
    const char *name;
    std::string bytes;
    const char *codePage;
    std::string text;
};

class TextEncoding : public testing::TestWithParam<EncodingRow>
{
};

TEST_P(TextEncoding, isReadAsUtf8)
{
    EXPECT_EQ(files::utf8Text(GetParam().bytes, GetParam().codePage), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Files, TextEncoding,
                         testing::Values(EncodingRow{"empty", "", "", ""},
                                         EncodingRow{"utf8", "(a \"ä€\")", "936", "(a \"ä€\")"},
                                         EncodingRow{"utf8WithMark", "\xEF\xBB\xBFä", "", "ä"},
                                         EncodingRow{"markAlone", "\xEF\xBB\xBF", "", ""},
                                         EncodingRow{"utf16Little", "\xFF\xFE(\0\xE4\0\xAC\x20"s, "", "(ä€"},
                                         EncodingRow{"utf16Big", "\xFE\xFF\0(\0\xE4\x20\xAC"s, "", "(ä€"},
                                         EncodingRow{"utf16OddByte",
                                                     "\xFF\xFE"
                                                     "a\0b"s,
                                                     "", "a\uFFFD"},
                                         EncodingRow{"utf16HalfPair", "\xFF\xFE\x3D\xD8x\0"s, "", "\uFFFDx"},
                                         EncodingRow{"utf16PairWhole", "\xFF\xFE\x3D\xD8\x00\xDE"s, "", "\U0001F600"},
                                         EncodingRow{"utf16Unmarked", "(\0a\0)\0\n\0"s, "", "(a)\n"},
                                         EncodingRow{"utf16UnmarkedBig", "\0(\0a\0)\0\n"s, "", "(a)\n"},
                                         EncodingRow{"western", "T\xFCr \x80\x81\x9F", "", "Tür €\u0081Ÿ"},
                                         EncodingRow{"cyrillic", "\xCF\xF0\xE8", "ANSI_1251", "При"},
                                         EncodingRow{"chinese", "\xCE\xC4\xD7\xD6\"", "GBK", "文字\""},
                                         // The second byte of a character may be one that means something by itself.
                                         EncodingRow{"japanese", "(\"\x95\x5C\")", "Shift_JIS", "(\"表\")"},
                                         EncodingRow{"korean", "\xC7\xD1", "ansi_949", "한"},
                                         EncodingRow{"taiwanese", "\xA4\xA4", "BIG5", "中"},
                                         EncodingRow{"cutInACharacter", "a\xCE", "936", "a\uFFFD"},
                                         EncodingRow{"unknownPage", "\xE4", "NOSUCH", "ä"},
                                         EncodingRow{"nameTooLong", "\xE4", "99999999999", "ä"}),
                         [](const auto &row) { return row.param.name; });

TEST(CodePages, areKnownByTheirCustomaryNames)
{
    EXPECT_EQ(files::codePageName("ansi_936"), "CP936");
    EXPECT_EQ(files::codePageName("windows-1250"), "CP1250");
    EXPECT_EQ(files::codePageName("sjis"), "CP932");
    EXPECT_EQ(files::codePageName("utf8"), "UTF-8");
    EXPECT_EQ(files::codePageName(""), "");
    EXPECT_EQ(files::codePageName("7"), "");
    EXPECT_EQ(files::codePageName("../x"), "");
}

} // namespace
