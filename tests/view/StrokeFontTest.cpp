// Stroke fonts: the files that they are read from, the one that comes with the program, and what drawings expect of
// both.

#include "host/view/text/Fonts.h"
#include "tests/view/Rendering.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <thread>

namespace host::view::test {
namespace {

using namespace Qt::StringLiterals;
using drawing::readShapeFile;
using drawing::ShapeFile;
using drawing::TextCodec;

QByteArray word(std::size_t value)
{
    return QByteArray{} + char(value & 0xff) + char(value >> 8);
}

/// A letter 4 high and 2 wide that ends at 3: up, across, down; it hangs from its middle.
const QByteArray letterCodes("\x02\x0e\x08\xff\xfc\x01\x44\x20\x4c\x02\x10\x0e\x08\xfe\xfe\x00", 16);
const QByteArray fontHead("\x04\x02\x02\x00", 4);

struct CompiledShape
{
    std::size_t number;
    QByteArray codes;
};

QByteArray compiledFont(const std::vector<CompiledShape> &shapes)
{
    QByteArray index;
    QByteArray bodies;
    for (const CompiledShape &shape : shapes) {
        index += word(shape.number) + word(std::size_t(shape.codes.size()) + 1);
        bodies += '\0' + shape.codes;
    }
    return "CAD shapes 1.1\r\n\x1a" + word(0) + word(255) + word(shapes.size()) + index + bodies + "EOF";
}

QByteArray compiledUnicodeFont(const std::vector<CompiledShape> &shapes)
{
    const QByteArray head = QByteArray("Mine") + '\0' + QByteArray("\x04\x02\x02\x00\x00\x00", 6);
    QByteArray file =
        "CAD unifont 1.0\r\n\x1a" + word(shapes.size() + 1) + word(0) + word(std::size_t(head.size())) + head;
    for (const CompiledShape &shape : shapes)
        file += word(shape.number) + word(std::size_t(shape.codes.size()) + 1) + '\0' + shape.codes;
    return file + "EOF";
}

QByteArray compiledBigFont(const std::vector<CompiledShape> &shapes, bool isSwapped)
{
    const QByteArray signature = "CAD bigfont 1.0\r\n\x1a";
    QByteArray index;
    QByteArray bodies;
    const qsizetype start = signature.size() + 6 + 4 + 8 * qsizetype(shapes.size());
    for (const CompiledShape &shape : shapes) {
        const std::size_t number = isSwapped ? (shape.number & 0xff) << 8 | shape.number >> 8 : shape.number;
        index += word(number) + word(std::size_t(shape.codes.size()) + 1) + word(std::size_t(start + bodies.size())) +
                 word(0);
        bodies += '\0' + shape.codes;
    }
    return signature + word(8) + word(shapes.size()) + word(1) + word(0x81) + word(0xfe) + index + bodies;
}

/// "advance drop left right low high", or "none".
QString metrics(const StrokeFont &font, char32_t letter)
{
    const StrokeGlyph *glyph = font.find(letter);
    if (!glyph)
        return u"none"_s;
    QStringList numbers;
    for (const double value : {glyph->advance, glyph->drop, glyph->left, glyph->right, glyph->low, glyph->high})
        numbers.append(QString::number(std::round(value * 1000) / 1000 + 0.0));
    return numbers.join(u' ');
}

StrokeFont fontOf(const QByteArray &file, const char *page = "ANSI_1252", const QByteArray &bigFont = {})
{
    const auto read = [](const QByteArray &bytes) {
        return bytes.isEmpty() ? nullptr : std::make_shared<const ShapeFile>(readShapeFile(bytes));
    };
    return {read(file), read(bigFont), TextCodec::forCodePage(page)};
}

TEST(StrokeFont, EveryKindOfFileHasItsLetters)
{
    const QByteArray source = "2,14,8,(-1,-4),1,044,020,04C,2,010,14,8,(-2,-2),0\n";
    const QByteArray viaShape("\x07\x00\x41\x00", 4); // in a Unicode font, by a number of two codes
    struct Row
    {
        const char *name;
        StrokeFont font;
        char32_t letter;
        QString metrics;
    };
    const QString letter = u"0.75 1.5 0 0.5 0 1"_s;
    const Row rows[] = {
        {"source", fontOf("*0,4,mine\n4,2,2,0\n*65,16,a\n" + source), U'A', letter},
        {"source, another letter", fontOf("*0,4,mine\n4,2,2,0\n*65,16,a\n" + source), U'B', u"none"_s},
        {"source for one direction", fontOf("*0,4,mine\n4,2,0,0\n*65,6,a\n044,020,04C,2,010,0\n"), U'A',
         u"0.75 1.333 0 0.5 0 1"_s},
        {"Unicode source", fontOf("*UNIFONT,6,mine\n4,2,2,0,0,0\n*00416,16,a\n" + source), U'Ж', letter},
        {"compiled", fontOf(compiledFont({{0, fontHead}, {65, letterCodes}})), U'A', letter},
        {"degree sign", fontOf(compiledFont({{0, fontHead}, {127, letterCodes}})), U'°', letter},
        {"diameter sign", fontOf(compiledFont({{0, fontHead}, {129, letterCodes}})), U'\u2300', letter},
        {"by code page", fontOf(compiledFont({{0, fontHead}, {0xc6, letterCodes}}), "ANSI_1251"), U'Ж', letter},
        {"not by another", fontOf(compiledFont({{0, fontHead}, {0xc6, letterCodes}})), U'Ж', u"none"_s},
        {"compiled Unicode", fontOf(compiledUnicodeFont({{0x416, letterCodes}})), U'Ж', letter},
        {"letter in a letter", fontOf(compiledUnicodeFont({{0x41, letterCodes}, {0x391, viaShape}})), U'Α', letter},
        {"diameter in Unicode", fontOf(compiledUnicodeFont({{0x2205, letterCodes}})), U'\u2300', letter},
        {"a dash that looks alike", fontOf(compiledUnicodeFont({{'-', letterCodes}})), U'–', letter},
        {"big font", fontOf({}, "ANSI_932", compiledBigFont({{0, fontHead}, {0x8341, letterCodes}}, false)), U'ア',
         letter},
        {"big font, bytes swapped",
         fontOf({}, "ANSI_932", compiledBigFont({{0, fontHead}, {0x8341, letterCodes}}, true)), U'ア', letter},
        {"big font of another page",
         fontOf({}, "ANSI_936", compiledBigFont({{0, fontHead}, {0x8341, letterCodes}}, false)), U'ア', u"none"_s},
        {"small letter beside a big font",
         fontOf(compiledFont({{0, fontHead}, {65, letterCodes}}), "ANSI_932",
                compiledBigFont({{0, fontHead}, {0x8341, letterCodes}}, false)),
         U'A', letter},
    };
    for (const Row &row : rows)
        EXPECT_EQ(metrics(row.font, row.letter), row.metrics) << row.name;
}

/// Parts stand in big fonts with a place and a size: here half as wide as their cell, and a quarter as high.
TEST(StrokeFont, LettersOfParts)
{
    const QByteArray head("\x08\x00\x02\x08\x00", 5);
    const QByteArray square("\x84\x80\x8c\x88\x00", 5);
    const QByteArray whole("\x07\x00\x81\x40\x02\x04\x04\x02\x02\x80\x00", 11);
    const StrokeFont font =
        fontOf({}, "ANSI_932", compiledBigFont({{0, head}, {0x8140, square}, {0x8341, whole}}, false));
    EXPECT_EQ(metrics(font, U'ア'), u"1 1.333 0.25 0.75 0.5 0.75"_s);
}

TEST(StrokeFont, DamageIsNoLetterAndNoCrash)
{
    const QByteArray files[] = {compiledFont({{0, fontHead}, {65, letterCodes}}),
                                compiledUnicodeFont({{65, letterCodes}}),
                                compiledBigFont({{0, fontHead}, {0x8341, letterCodes}}, false)};
    for (const QByteArray &file : files)
        for (qsizetype size = 0; size < file.size(); ++size) {
            const ShapeFile read = readShapeFile(file.first(size));
            EXPECT_TRUE(!StrokeFont::isUsable(read) || !read.codes.isEmpty()) << size;
        }
    EXPECT_EQ(metrics(fontOf(compiledFont({{0, fontHead}, {65, QByteArray("\x04\xff").repeated(3) + "\xf0"}})), U'A'),
              u"none"_s)
        << "a letter a million times as wide as high";
    EXPECT_EQ(metrics(fontOf(compiledFont({{0, fontHead}, {65, QByteArray("\x14\x1c").repeated(3000)}})), U'A'),
              u"none"_s)
        << "a letter of six thousand lines";
}

TEST(PlainStrokeFont, HasTheLettersOfEurope)
{
    const std::pair<char32_t, char32_t> ranges[] = {{0x20, 0x7e},   {0xa0, 0x17e},  {0x391, 0x3a1},  {0x3a3, 0x3a9},
                                                    {0x3b1, 0x3c9}, {0x401, 0x45f}, {0x2018, 0x201a}};
    for (const auto &[first, last] : ranges)
        for (char32_t letter = first; letter <= last; ++letter) {
            const StrokeGlyph *glyph = plainStrokeFont().find(letter);
            if (!glyph) {
                ADD_FAILURE() << "no letter " << std::hex << unsigned(letter);
                continue;
            }
            EXPECT_TRUE(glyph->advance > 0.2 && glyph->advance < 1.7) << std::hex << unsigned(letter);
            EXPECT_TRUE(glyph->low >= -0.4 && glyph->high <= 1.5) << std::hex << unsigned(letter);
            EXPECT_TRUE(glyph->left >= -0.3 && glyph->right <= glyph->advance + 0.2) << std::hex << unsigned(letter);
        }
    EXPECT_EQ(metrics(plainStrokeFont(), U'H'), u"1.048 1.333 0 0.667 0 1"_s);
}

// What programs that drew texts centred and to the right in such a font wrote down.
TEST(PlainStrokeFont, IsAsWideAsDrawingsExpect)
{
    const std::pair<QString, double> rows[] = {
        {u"0.00"_s, 64.0}, {u"0.13"_s, 60.0}, {u"0.35"_s, 64.0},
        {u"2.11"_s, 51.0}, {u".047"_s, 64.0}, {u"1.58"_s, 60.0},
    };
    Fonts fonts;
    const int font = fonts.find({.name = u"simplex.shx"_s});
    for (const auto &[text, width] : rows)
        EXPECT_NEAR(fonts.inkWidth(font, text), width / 21.0, 0.05) << text.toStdString();
}

TEST(Fonts, StrokedOrNotByTheName)
{
    struct Row
    {
        FontRequest request;
        bool isStroked;
    };
    const Row rows[] = {
        {{.name = u"romans.shx"_s}, true},
        {{.name = u"C:\\fonts\\nobody-has-this.SHX"_s}, true},
        {{.name = u"txt"_s}, true},
        {{.name = u"nobodyhasthis"_s, .isFile = true}, true},
        {{.name = u"No Such Family"_s}, false},
        {{.name = u"arial.ttf"_s, .isFile = true}, false},
        {{.name = u"DejaVu Sans"_s, .isFile = true}, false},
        {{}, false},
        {{.isFile = true}, true},
    };
    Fonts fonts;
    for (const Row &row : rows)
        EXPECT_EQ(fonts.isStroked(fonts.find(row.request)), row.isStroked) << row.request.name.toStdString();
    EXPECT_THROW((void)fonts.width(4000, u"x"_s), std::out_of_range);
}

TEST(Fonts, ProportionsOfTheFontThatWasAskedFor)
{
    Fonts fonts;
    const auto width = [&](const char *name) {
        return fonts.width(fonts.find({.name = QString::fromLatin1(name)}), u"MMii"_s);
    };
    EXPECT_NEAR(width("monotxt.shx"), 4.0, 1e-9);
    EXPECT_LT(width("isocp.shx"), 0.9 * width("simplex.shx"));
    EXPECT_GT(width("txt.shx"), width("simplex.shx"));
    EXPECT_NEAR(fonts.width(fonts.find({.name = u"simplex"_s}), u"\u0e01"_s),
                fonts.width(fonts.find({.name = u"simplex"_s}), u"?"_s), 1e-9)
        << "a letter that no font has";
    EXPECT_NEAR(fonts.width(fonts.find({.name = u"gdt.shx"_s}), u"j\u2316J"_s),
                fonts.width(fonts.find({.name = u"simplex"_s}), u"\u2316\u2316J"_s), 1e-9)
        << "signs of tolerances under letters";
}

TEST(Fonts, FilesOfTheUser)
{
    QTemporaryDir folder;
    const auto write = [&](const QByteArray &bytes) {
        QFile file(folder.filePath(u"mine.shx"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    };
    write(compiledFont({{0, fontHead}, {65, letterCodes}}));
    const auto drawing = readDrawing({});
    drawing->setPath(folder.filePath(u"plan.dxf"_s));
    drawing::ShapeFiles files(drawing::namedFiles(*drawing));
    Fonts fonts;
    fonts.readFilesBy(files, "ANSI_1252");
    const int font = fonts.find({.name = u"MINE"_s, .isFile = true});
    const int found = fonts.find({.name = u"mine.shx"_s});
    EXPECT_TRUE(fonts.isStroked(font));
    EXPECT_NEAR(fonts.width(found, u"AA"_s), 1.5, 1e-9);
    EXPECT_NEAR(fonts.inkWidth(found, u"AA"_s), 1.25, 1e-9);
    EXPECT_FALSE(fonts.readAnew());
    write(compiledFont({{0, fontHead}, {65, QByteArray(letterCodes).replace("\x02\x10\x0e", "\x02\x20\x0e")}}));
    files.forget();
    EXPECT_TRUE(fonts.readAnew());
    EXPECT_NEAR(fonts.width(found, u"AA"_s), 2.0, 1e-9);
}

TEST(Fonts, WidthsAreTheSameFromSeveralThreads)
{
    Fonts alone;
    Fonts shared;
    const FontRequest requests[] = {{.name = u"txt.shx"_s}, {.name = u"Arial"_s}};
    const QString text = u"Stra\u00dfe 25 \u2300 \u0416 \u05d0\u05d1"_s;
    std::vector<std::thread> threads;
    std::array<double, 8> widths{};
    for (std::size_t i = 0; i < widths.size(); ++i)
        threads.emplace_back([&, i] { widths[i] = shared.width(shared.find(requests[i % 2]), text); });
    for (std::thread &thread : threads)
        thread.join();
    for (std::size_t i = 0; i < widths.size(); ++i)
        EXPECT_EQ(widths[i], alone.width(alone.find(requests[i % 2]), text)) << i;
}

} // namespace
} // namespace host::view::test
