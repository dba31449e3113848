// What dimensions write, by their style.

#include "host/drawing/annotation/DimensionText.h"

#include <gtest/gtest.h>
#include <numbers>

namespace host::drawing {
namespace {

using namespace Qt::StringLiterals;
using Style = DimensionStyle;

struct LengthRow
{
    double length;
    void (*change)(Style &style);
    const char *text;
};

TEST(DimensionText, LengthsAreWrittenByTheStyle)
{
    const LengthRow rows[] = {
        {5.51052, [](Style &) {}, "5.5105"},
        {-0.0, [](Style &) {}, "0.0000"},
        {277.866, [](Style &s) { s.precision = 2, s.decimalSign = u',', s.zeros = 8; }, "277,87"},
        {0.5, [](Style &s) { s.precision = 2, s.zeros = 4 | 8; }, ".5"},
        {2.37, [](Style &s) { s.rounding = 0.25, s.precision = 2; }, "2.25"},
        {2.0, [](Style &s) { s.lengthFactor = 25.4, s.precision = 1; }, "50.8"},
        {2.0, [](Style &s) { s.lengthFactor = -25.4, s.precision = 1; }, "50.8"},
        {17.5, [](Style &s) { s.lengthMode = 1, s.precision = 2; }, "1.75E+01"},
        {17.5, [](Style &s) { s.lengthMode = 3, s.precision = 2; }, "1'-5.50\""},
        {17.5, [](Style &s) { s.lengthMode = 4, s.fractions = 2; }, "1'-5 1/2\""},
        {17.5, [](Style &s) { s.lengthMode = 4; }, "1'-5{\\H1x;\\S1/2;}\""},
        {17.5, [](Style &s) { s.lengthMode = 5, s.fractions = 1, s.toleranceHeight = 0.5; }, "17{\\H0.5x;\\S1#2;}"},
        {3.0, [](Style &s) { s.precision = 0, s.affix = u" mm"_s; }, "3 mm"},
        {3.0, [](Style &s) { s.precision = 0, s.affix = u"ca. <> m"_s; }, "ca. 3 m"},
        {3.0,
         [](Style &s) {
             s.precision = 0, s.hasTolerance = true, s.tolerancePrecision = 1, s.upperTolerance = 0.5,
             s.lowerTolerance = 0.5;
         },
         "3%%p0.5"},
        {3.0,
         [](Style &s) {
             s.precision = 0, s.hasTolerance = true, s.tolerancePrecision = 1, s.upperTolerance = 0.5,
             s.lowerTolerance = 0.2;
         },
         "3\\A1;{\\H1x;\\S+0.5^ -0.2;}"},
        {3.0,
         [](Style &s) { s.hasLimits = true, s.tolerancePrecision = 1, s.upperTolerance = 0.5, s.lowerTolerance = 0.2; },
         "\\A1;{\\H1x;\\S3.5^ 2.8;}"},
        {1.0, [](Style &s) { s.precision = 0, s.hasAlternate = true, s.alternatePrecision = 1; }, "1 [25.4]"},
        {1e300, [](Style &s) { s.lengthFactor = 1e12; }, ""},
    };
    for (const LengthRow &row : rows) {
        Style style;
        row.change(style);
        EXPECT_EQ(measuredText(style, row.length).toStdString(), row.text);
    }
}

TEST(DimensionText, AnglesAreWrittenByTheStyle)
{
    Style style;
    EXPECT_EQ(measuredAngleText(style, std::numbers::pi / 2), u"90%%d"_s);
    style.anglePrecision = 2;
    style.decimalSign = u',';
    EXPECT_EQ(measuredAngleText(style, 0.5), u"28,65%%d"_s);
    style.angleZeros = 2;
    EXPECT_EQ(measuredAngleText(style, std::numbers::pi / 8), u"22,5%%d"_s);
    style.angleMode = 3;
    EXPECT_EQ(measuredAngleText(style, 0.5), u"0,5r"_s);
}

TEST(DimensionText, AnOverrideStandsInPlaceOfTheValue)
{
    struct Row
    {
        DimensionKind kind;
        const char16_t *text;
        const char16_t *shown;
    };
    const Row rows[] = {
        {DimensionKind::Linear, u"", u"4"},
        {DimensionKind::Linear, u" ", u""},
        {DimensionKind::Linear, u"A", u"A"},
        {DimensionKind::Linear, u"<> x <>", u"4 x 4"},
        {DimensionKind::Aligned, u"", u"5"},
        {DimensionKind::Radius, u"", u"R10"},
        {DimensionKind::Diameter, u"(<>)", u"(%%c10)"},
        {DimensionKind::Ordinate, u"", u"6"},
    };
    Style style;
    style.precision = 0;
    for (const Row &row : rows) {
        const DimensionData data{.kind = row.kind,
                                 .definition = {0, 10},
                                 .first = {1, 4},
                                 .second = {5, 7},
                                 .third = {0, 0},
                                 .text = QString::fromUtf16(row.text)};
        EXPECT_EQ(dimensionText(data, style), QString::fromUtf16(row.shown));
    }
}

} // namespace
} // namespace host::drawing
