// What texts are taken apart into and, beyond the cases of shapes.txt, how they look.

#include "host/view/text/MTextParser.h"
#include "host/view/text/TextCodes.h"
#include "tests/view/Rendering.h"

#include <gtest/gtest.h>

namespace host::view::test {
namespace {

using namespace Qt::StringLiterals;
/// Tokens in short: words as they are, _ a blank, > a tab, / a new paragraph, |
/// a column, [a^b] [a/b] [a#b] stacks.
QString shortFormOfTokens(const std::vector<MTextToken> &tokens)
{
    using Kind = MTextToken::Kind;
    const QMap<Kind, QString> signs = {
        {Kind::Space, u"_"_s}, {Kind::Tab, u">"_s}, {Kind::NewLine, u"/"_s}, {Kind::NewColumn, u"|"_s}};
    const QMap<MTextToken::Bar, QString> bars = {
        {MTextToken::Bar::None, u"^"_s}, {MTextToken::Bar::Horizontal, u"/"_s}, {MTextToken::Bar::Diagonal, u"#"_s}};
    QString form;
    for (const MTextToken &token : tokens) {
        if (token.kind == Kind::Stack)
            form += u'[' + token.text + bars[token.bar] + token.lower + u']';
        else
            form += signs.value(token.kind, token.text);
    }
    return form;
}

TEST(MText, Structure)
{
    const std::pair<QString, QString> rows[] = {
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
        {u"unfinished \\"_s, u"unfinished_\\"_s},
        {u"unfinished \\H2.5"_s, u"unfinished_"_s},
        {u"unfinished \\S1/2"_s, u"unfinished_[1/2]"_s},
        {u"}}x{{{"_s, u"x"_s},
    };
    for (const auto &[text, tokens] : rows)
        EXPECT_EQ(shortFormOfTokens(MTextParser(text, {}).parse()), tokens) << text.toStdString();
}

TEST(MText, Formats)
{
    const MTextFormat start{.height = 2.0};
    const std::pair<QString, MTextFormat> rows[] = {
        {u"\\H5;x"_s, {.height = 5.0}},
        {u"\\H1.5x;x"_s, {.height = 3.0}},
        {u"\\H2x;\\H2x;x"_s, {.height = 8.0}},
        {u"{\\H5;a}x"_s, {.height = 2.0}},
        {u"\\Hrubbish;x"_s, {.height = 2.0}},
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
    for (const auto &[text, format] : rows) {
        const std::vector<MTextToken> tokens = MTextParser(text, start).parse();
        ASSERT_FALSE(tokens.empty());
        EXPECT_EQ(tokens.back().format, format) << text.toStdString();
    }
}

/// A code without its semicolon takes what can be meant, and no text with it.
TEST(MText, CodesWithoutTheirEnd)
{
    const MTextFormat plain;
    struct Row
    {
        QString text;
        QString tokens;
        MTextFormat last{};
    };
    const Row rows[] = {
        {u"\\H3Hello world; and"_s, u"Hello_world;_and"_s, {.height = 3.0}},
        {u"\\H2.5xbig"_s, u"big"_s, {.height = 2.5}},
        {u"\\H2. Next"_s, u"._Next"_s, {.height = 2.0}},
        {u"\\H1e2;x"_s, u"x"_s, {.height = 100.0}},
        {u"\\Hello; you"_s, u"\\Hello;_you"_s, plain},
        {u"\\H;x"_s, u"x"_s, plain},
        {u"\\W0.5wide"_s, u"wide"_s, {.widthFactor = 0.5}},
        {u"\\Q-15slanted"_s, u"slanted"_s, {.oblique = -15.0}},
        {u"\\T2 x"_s, u"_x"_s, {.tracking = 2.0}},
        {u"C:\\Temp"_s, u"C:\\Temp"_s, plain},
        {u"\\A110 kV"_s, u"10_kV"_s, {.raise = 1}},
        {u"\\C1Red {\\C2;green}"_s, u"Red_green"_s, {.colourIndex = 2}},
        {u"\\c255x"_s, u"x"_s, {.trueColour = 0xff0000}},
        {u"\\fTimes New Roman|b1|i0|c0|p18 Hello"_s, u"_Hello"_s, {.fontName = u"Times New Roman"_s, .isBold = true}},
        {u"\\Fromans.shx Hello"_s, u"_Hello"_s, {.fontName = u"romans.shx"_s}},
        {u"\\Fonts \\C1;x"_s, u"\\Fonts_x"_s, {.colourIndex = 1}},
        {u"\\pi-3,l3,t3 Hello; x"_s, u"_Hello;_x"_s, plain},
        {u"\\pxqcHello"_s, u"Hello"_s, plain},
        {u"\\program"_s, u"\\program"_s, plain},
        {u"\\S1/2 inch"_s, u"[1/2]_inch"_s, plain},
        {u"\\S+1^ -2 mm"_s, u"[+1^-2]_mm"_s, plain},
        {u"\\S1/2\\Pnext; x"_s, u"[1/2]/next;_x"_s, plain},
        {u"{\\S1#2}x;"_s, u"[1#2]x;"_s, plain},
        {u"\\Some text"_s, u"\\Some_text"_s, plain},
        {u"\\zq"_s, u"\\zq"_s, plain},
        {u"a}b{\\C1;c"_s, u"abc"_s, {.colourIndex = 1}},
    };
    for (const Row &row : rows) {
        const std::vector<MTextToken> tokens = MTextParser(row.text, plain).parse();
        EXPECT_EQ(shortFormOfTokens(tokens), row.tokens) << row.text.toStdString();
        EXPECT_TRUE(!tokens.empty() && tokens.back().format == row.last) << row.text.toStdString();
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
    const std::pair<QString, std::vector<TextPiece>> rows[] = {
        {u"plain"_s, {{.text = u"plain"_s}}},
        {u"a%%ub%%uc"_s, {{.text = u"a"_s}, {.text = u"b"_s, .isUnderlined = true}, {.text = u"c"_s}}},
        {u"%%o%%kx"_s, {{.text = u"x"_s, .isOverlined = true, .isStruck = true}}},
        {u"%%D%%P%%C%%%"_s, {{.text = u"\u00b0\u00b1\u2300%"_s}}},
        {u"%%065%%066"_s, {{.text = u"AB"_s}}},
        {u"%%127%%128%%129%%176"_s, {{.text = u"\u00b0\u00b1\u2300\u00b0"_s}}},
        {u"50% %"_s, {{.text = u"50% %"_s}}},
        {u"%%"_s, {{.text = u"%%"_s}}},
        {u""_s, {}},
    };
    for (const auto &[text, pieces] : rows)
        EXPECT_EQ(parseTextCodes(text), pieces) << text.toStdString();
}

const std::string textStyles = tableText("STYLE", "0 STYLE|2 STANDARD|70 0|40 0|41 1|50 0|71 0|42 2.5|3 txt|4 "
                                                  "|0 STYLE|2 WIDE|70 0|40 0|41 2|50 0|71 0|42 1|3 arial.ttf|4 ");

TEST(TextDrawing, WidthFactors)
{
    const auto width = [](const std::string &entity) {
        return Rendering({.entities = "0 TEXT|8 0|10 5|20 30|40 12" + entity, .tables = textStyles}).inkBox().width();
    };
    const double plain = width("|1 HHH");
    EXPECT_NEAR(width("|1 HHH|41 2"), 2.0 * plain, 2.5);
    EXPECT_NEAR(width("|1 HHH|7 WIDE|41 1"), plain, 8.0) << "the text's own factor goes before that of its style";
    EXPECT_GT(width("|1 HHH|7 WIDE"), 1.6 * plain);
    EXPECT_GT(width("|1 HHH|51 45"), plain + 8.0) << "slanted by as much as it is high";
}

TEST(TextDrawing, ColoursWithinMultiLineText)
{
    const Rendering shown(
        {.entities = "0 MTEXT|8 0|62 3|10 10|20 80|40 30|41 0|71 1|1 H{\\C1;H}H", .tables = textStyles});
    QRectF red;
    QRectF green;
    for (int x = 0; x < renderingSize; ++x) {
        for (int y = 0; y < renderingSize; ++y) {
            const QColor here = shown.image().pixelColor(x, y);
            if (here.red() > 200 && here.green() < 60)
                red |= QRectF(x, y, 1, 1);
            if (here.green() > 200 && here.red() < 60)
                green |= QRectF(x, y, 1, 1);
        }
    }
    ASSERT_FALSE(red.isNull());
    EXPECT_LT(green.left(), red.left());
    EXPECT_GT(green.right(), red.right());
}

TEST(TextDrawing, TinyTextIsALineAndNotNothing)
{
    const Rendering shown({.entities = "0 TEXT|8 0|10 20|20 30|40 1|1 HHHHHHHHHH", .tables = textStyles});
    EXPECT_EQ(shown.runs({20, 30.5}, {26, 30.5}), 1);
}

} // namespace
} // namespace host::view::test
