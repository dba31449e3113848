#include "host/view/text/MTextParser.h"
#include "host/view/text/TextCodes.h"

#include <gtest/gtest.h>

namespace host::view::test {
namespace {

using namespace Qt::StringLiterals;
using Kind = MTextToken::Kind;

/// Tokens in short: words as they are, _ a blank, > a tab, / a new paragraph, | a column, [a^b] [a/b] [a#b] stacks.
QString shortForm(const std::vector<MTextToken> &tokens)
{
    QString form;
    for (const MTextToken &token : tokens) {
        switch (token.kind) {
        case Kind::Word:
            form += token.text;
            break;
        case Kind::Space:
            form += u'_';
            break;
        case Kind::Tab:
            form += u'>';
            break;
        case Kind::NewLine:
            form += u'/';
            break;
        case Kind::NewColumn:
            form += u'|';
            break;
        case Kind::Stack:
            form += u"[%1%2%3]"_s.arg(token.text,
                                      token.bar == MTextToken::Bar::None         ? u"^"_s
                                      : token.bar == MTextToken::Bar::Horizontal ? u"/"_s
                                                                                 : u"#"_s,
                                      token.lower);
            break;
        }
    }
    return form;
}

TEST(MText, Structure)
{
    struct Row
    {
        QString text;
        QString tokens;
    };
    const std::vector<Row> rows = {
        {u""_s, u""_s},
        {u"one two"_s, u"one_two"_s},
        {u"a\\Pb\\P\\Pc"_s, u"a/b//c"_s},
        {u"a\\~b"_s, u"a\u00a0b"_s},
        {u"a\\\\b\\{c\\}"_s, u"a\\b{c}"_s},
        {u"a\tb\\Nc"_s, u"a>b|c"_s},
        {u"\\S1/2;\\S+0.1^-0.2;\\S3#4;"_s, u"[1/2][+0.1^-0.2][3#4]"_s},
        {u"\\Sa\\/b/c;x"_s, u"[a/b/c]x"_s},
        {u"%%c20 %%p1 45%%d 5%%%"_s, u"\u230020_\u00b11_45\u00b0_5%"_s},
        {u"{\\fArial|b1|i0|c0|p34;x}y"_s, u"xy"_s},
        {u"\\A1;\\pi-3,l3,t3;x"_s, u"x"_s},
        {u"\\zq"_s, u"q"_s},
        {u"unfinished \\"_s, u"unfinished_"_s},
        {u"unfinished \\H2.5"_s, u"unfinished_"_s},
        {u"unfinished \\S1/2"_s, u"unfinished_[1/2]"_s},
        {u"}}x{{{"_s, u"x"_s},
    };
    for (const Row &row : rows)
        EXPECT_EQ(shortForm(MTextParser(row.text, {}).parse()), row.tokens) << row.text.toStdString();
}

TEST(MText, Formats)
{
    struct Row
    {
        QString text; ///< the format of its last word is looked at
        MTextFormat format;
    };
    const MTextFormat start{.height = 2.0};
    const std::vector<Row> rows = {
        {u"\\H5;x"_s, {.height = 5.0}},
        {u"\\H1.5x;x"_s, {.height = 3.0}},
        {u"\\H2x;\\H2x;x"_s, {.height = 8.0}},
        {u"{\\H5;a}x"_s, {.height = 2.0}},
        {u"\\Hrubbish;x"_s, {.height = 1.0}},
        {u"\\H-4;x"_s, {.height = 2.0}},
        {u"\\W0.5;\\Q15;x"_s, {.height = 2.0, .widthFactor = 0.5, .oblique = 15.0}},
        {u"\\L\\O\\Kx"_s, {.height = 2.0, .isUnderlined = true, .isOverlined = true, .isStruck = true}},
        {u"\\La\\lx"_s, {.height = 2.0}},
        {u"\\C5;x"_s, {.height = 2.0, .colourIndex = 5}},
        {u"\\c255;x"_s, {.height = 2.0, .trueColour = 0xff0000}},
        {u"{\\C5;a{\\C6;b}c}x"_s, {.height = 2.0}},
        {u"\\fTimes New Roman|b1|i1|c0;x"_s,
         {.height = 2.0, .fontName = u"Times New Roman"_s, .isBold = true, .isItalic = true}},
        {u"\\Ftxt.shx;x"_s, {.height = 2.0, .fontName = u"txt.shx"_s}},
        {u"\\T2;\\A2;x"_s, {.height = 2.0, .tracking = 2.0, .raise = 2}},
    };
    for (const Row &row : rows) {
        const std::vector<MTextToken> tokens = MTextParser(row.text, start).parse();
        ASSERT_FALSE(tokens.empty());
        EXPECT_EQ(tokens.back().format, row.format) << row.text.toStdString();
    }
}

TEST(MText, DeepAndLongTextsEnd)
{
    EXPECT_EQ(MTextParser(QString(200'000, u'{') + u"x"_s, {}).parse().size(), 1U);
    EXPECT_EQ(MTextParser(u"\\S"_s.repeated(50'000), {}).parse().size(), 1U);
    EXPECT_EQ(MTextParser(u"a "_s.repeated(50'000), {}).parse().size(), 100'000U);
}

TEST(TextCodes, Pieces)
{
    struct Row
    {
        QString text;
        std::vector<TextPiece> pieces;
    };
    const std::vector<Row> rows = {
        {u"plain"_s, {{.text = u"plain"_s}}},
        {u"a%%ub%%uc"_s, {{.text = u"a"_s}, {.text = u"b"_s, .isUnderlined = true}, {.text = u"c"_s}}},
        {u"%%o%%kx"_s, {{.text = u"x"_s, .isOverlined = true, .isStruck = true}}},
        {u"%%D%%P%%C%%%"_s, {{.text = u"\u00b0\u00b1\u2300%"_s}}},
        {u"%%065%%066"_s, {{.text = u"AB"_s}}},
        {u"50% %"_s, {{.text = u"50% %"_s}}},
        {u"%%"_s, {{.text = u"%%"_s}}},
        {u""_s, {}},
    };
    for (const Row &row : rows)
        EXPECT_EQ(parseTextCodes(row.text), row.pieces) << row.text.toStdString();
}

} // namespace
} // namespace host::view::test
