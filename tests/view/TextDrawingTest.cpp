// Where texts stand and how large they are. Glyphs depend on the machine's fonts, so boxes of ink are compared with a
// tolerance; the capital H is used because it fills its height and is as good as symmetric.

#include "tests/view/Rendering.h"

#include <gtest/gtest.h>

namespace host::view::test {
namespace {

constexpr double tolerance = 2.0;

const std::string styles = tableText(
    "STYLE",
    "0 STYLE|2 STANDARD|70 0|40 0|41 1|50 0|71 0|42 2.5|3 txt|4 |0 STYLE|2 WIDE|70 0|40 0|41 2|50 0|71 0|42 1|3 "
    "arial.ttf|4 "
    "|0 STYLE|2 BACK|70 0|40 0|41 1|50 0|71 2|42 1|3 txt|4 |0 STYLE|2 DOWN|70 4|40 0|41 1|50 0|71 0|42 1|3 txt|4 ");

/// `sides`: left, right, bottom and top of the ink as "20 - 30 50", - where it does not matter.
void expectBox(const QRectF &ink, const char *sides)
{
    ASSERT_FALSE(ink.isNull()) << "nothing drawn";
    const QStringList wanted = QString::fromLatin1(sides).split(u' ');
    const double found[] = {ink.left(), ink.right(), ink.top(), ink.bottom()};
    for (qsizetype i = 0; i < 4; ++i) {
        if (wanted[i] != u"-") {
            EXPECT_NEAR(found[i], wanted[i].toDouble(), tolerance) << "side " << i;
        }
    }
}

TEST(TextDrawing, PlacesAndSizes)
{
    struct Row
    {
        const char *name;
        const char *entity;
        const char *sides; ///< as expectBox() takes them
    };
    const std::vector<Row> rows = {
        {"left", "0 TEXT|8 0|10 20|20 30|40 20|1 HH", "21.5 - 30 50"},
        {"centre", "0 TEXT|8 0|10 0|20 0|11 50|21 30|40 20|1 H|72 1", "43 57 30 50"},
        {"right", "0 TEXT|8 0|10 0|20 0|11 80|21 30|40 20|1 HH|72 2", "- 78.5 30 50"},
        {"middle", "0 TEXT|8 0|10 0|20 0|11 50|21 50|40 20|1 H|72 4", "43 57 40 60"},
        {"top left", "0 TEXT|8 0|10 0|20 0|11 20|21 70|40 20|1 H|72 0|73 3", "21.5 - 50 70"},
        {"middle left", "0 TEXT|8 0|10 0|20 0|11 20|21 50|40 20|1 H|72 0|73 2", "- - 40 60"},
        {"bottom leaves room for tails", "0 TEXT|8 0|10 0|20 0|11 20|21 30|40 20|1 H|72 0|73 1", "- - 36.6 -"},
        {"aligned grows to fill its width", "0 TEXT|8 0|10 10|20 20|11 90|21 20|40 5|1 HHH|72 3", "12.5 87.5 20 -"},
        {"fit keeps its height", "0 TEXT|8 0|10 10|20 20|11 90|21 20|40 20|1 HH|72 5", "14 86 20 40"},
        {"turned", "0 TEXT|8 0|10 60|20 20|40 20|50 90|1 HH", "40 60 21.5 -"},
        {"backward", "0 TEXT|8 0|10 60|20 30|40 20|71 2|1 HH", "- 58.5 30 50"},
        {"upside down", "0 TEXT|8 0|10 20|20 60|40 20|71 4|1 HH", "21.5 - 40 60"},
        {"backward by its style", "0 TEXT|8 0|7 BACK|10 60|20 30|40 20|1 HH", "- 58.5 - -"},
        {"negative extrusion", "0 TEXT|8 0|10 -60|20 30|40 20|1 HH|210 0|220 0|230 -1", "- 58.5 30 50"},
        {"degree sign is one character", "0 TEXT|8 0|10 20|20 30|40 20|1 %%d|41 1", "- 29 - 51"},
        {"multi-line, top left", "0 MTEXT|8 0|10 20|20 80|40 20|41 0|71 1|1 HH", "21.5 - 60 80"},
        {"multi-line, middle centre", "0 MTEXT|8 0|10 50|20 50|40 20|41 0|71 5|1 H", "43 57 40 60"},
        {"multi-line, bottom right", "0 MTEXT|8 0|10 80|20 20|40 20|41 0|71 9|1 HH", "- 78.5 20 40"},
        {"second line five thirds below", "0 MTEXT|8 0|10 20|20 80|40 12|41 0|71 1|1 H\\PH", "- - 48 80"},
        {"exact half line spacing", "0 MTEXT|8 0|10 20|20 80|40 12|41 0|71 1|73 2|44 0.9|1 H\\PH", "- - 50 80"},
        {"wrapped at its width", "0 MTEXT|8 0|10 20|20 80|40 12|41 30|71 1|1 HH HH", "- - 48 80"},
        {"turned by its direction", "0 MTEXT|8 0|10 60|20 20|40 20|41 0|71 7|11 0|21 1|31 0|1 HH", "40 60 21.5 -"},
        {"own height for a stretch", "0 MTEXT|8 0|10 20|20 80|40 10|41 0|71 1|1 {\\H30;H}H", "- - 50 80"},
        {"underlined", "0 MTEXT|8 0|10 20|20 80|40 20|41 0|71 1|1 \\LH", "- - 56 80"},
        {"underlined by switches", "0 TEXT|8 0|10 20|20 40|40 20|1 %%uH", "- - 36 60"},
        {"attribute definition shows its tag", "0 ATTDEF|8 0|10 20|20 30|40 20|1 xx|3 p|2 HH|70 0", "21.5 - 30 50"},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        expectBox(Rendering({.entities = row.entity, .tables = styles}).inkBox(), row.sides);
    }
}

TEST(TextDrawing, WidthFactors)
{
    const auto width = [](const std::string &entity) {
        return Rendering({.entities = "0 TEXT|8 0|10 5|20 30|40 12" + entity, .tables = styles}).inkBox().width();
    };
    const double plain = width("|1 HHH");
    EXPECT_NEAR(width("|1 HHH|41 2"), 2.0 * plain, 2.5);
    EXPECT_NEAR(width("|1 HHH|7 WIDE|41 1"), plain, 4.0) << "the text's own factor goes before that of its style";
    EXPECT_GT(width("|1 HHH|7 WIDE"), 1.6 * plain);
    EXPECT_GT(width("|1 HHH|51 45"), plain + 8.0) << "slanted by as much as it is high";
}

TEST(TextDrawing, ColoursWithinMultiLineText)
{
    const Rendering shown({.entities = "0 MTEXT|8 0|62 3|10 10|20 80|40 30|41 0|71 1|1 H{\\C1;H}H", .tables = styles});
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
    const Rendering shown({.entities = "0 TEXT|8 0|10 20|20 30|40 1|1 HHHHHHHHHH", .tables = styles});
    EXPECT_EQ(shown.runs({20, 30.5}, {26, 30.5}), 1);
}

} // namespace
} // namespace host::view::test
