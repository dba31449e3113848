#include "host/drawing/references/PlotStyleFile.h"
#include "host/view/paint/Export.h"
#include "tests/view/Rendering.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace host::view::test {
namespace {

using namespace Qt::StringLiterals;
using drawing::PlotStyle;
using drawing::PlotStyleReading;
using drawing::readPlotStyles;

/// A file with this content; the numbers before it have four bytes each, or eight.
QByteArray packed(const QByteArray &kind, const QByteArray &text, int numberSize = 4)
{
    return "PIAFILEVERSION_2.0," + kind + "VER1,compress\r\npmzlibcodec" + QByteArray(3 * numberSize, '\7') +
           qCompress(text).sliced(4);
}

/// "color=1|screen=50" as the style at a place, called by what stands in front of the first "|".
QByteArray styleText(int place, const QByteArray &properties)
{
    QByteArray lines = "  name=\"" + properties + '\n';
    lines.replace('|', "\n  ");
    return ' ' + QByteArray::number(place) + "{\n" + lines + " }\n";
}

const QByteArray weightText = "custom_lineweight_table{\n 0=0.00\n 1=0.25\n 2=1.00\n 3=99\n 4=x\n}\n";

QByteArray tableOf(const QByteArray &kind, const QByteArray &styles)
{
    return packed(kind, "description=\"\nplot_style{\n" + styles + "}\n" + weightText);
}

TEST(PlotStyles, AreReadAsTheyStand)
{
    const std::pair<const char *, PlotStyle> rows[] = {
        {"A", {.name = u"A"_s}},
        {"A|color=-1|lineweight=0|linetype=31|screen=100", {.name = u"A"_s}},
        {"A|color=-1039526882", {.name = u"A"_s, .colour = 0x0A141E}},
        {"A|color=5|mode_color=-16777216|color_policy=1", {.name = u"A"_s, .colour = 0}},
        {"A|color=-1006698496", {.name = u"A"_s, .colour = 0xFF0000}},
        {"A|color=-1073741824", {.name = u"A"_s}},
        {"A|color=1e300|screen=nan|linetype=-7|lineweight=77", {.name = u"A"_s}},
        {"A|color_policy=3|screen=40", {.name = u"A"_s, .isGrey = true, .screening = 40}},
        {"A|screen=900|linetype=0|lineweight=2", {.name = u"A"_s, .linetype = 0, .lineweight = 100}},
        {"A|linetype=30|lineweight=3", {.name = u"A"_s, .linetype = 30, .lineweight = 211}},
        {"A|lineweight=4|inner{|screen=5|}", {.name = u"A"_s}},
    };
    for (const auto &[text, style] : rows) {
        SCOPED_TRACE(text);
        const PlotStyleReading byName = readPlotStyles(tableOf("STB", styleText(0, text)));
        ASSERT_TRUE(byName.table) << byName.error.toStdString();
        ASSERT_TRUE(byName.table->named(u"a"_s));
        EXPECT_EQ(*byName.table->named(u"a"_s), style);
        const PlotStyleReading byColour = readPlotStyles(tableOf("CTB", styleText(254, text)));
        ASSERT_TRUE(byColour.table && byColour.table->ofColour(255));
        EXPECT_EQ(*byColour.table->ofColour(255), style);
        EXPECT_EQ(*byColour.table->ofColour(1), PlotStyle{});
    }
}

TEST(PlotStyles, OfDamagedFilesAreRefused)
{
    const QByteArray good = tableOf("CTB", styleText(0, "A|screen=7"));
    const std::pair<QByteArray, const char *> rows[] = {
        {{}, "it is no table of plot styles"},
        {"PIAFILEVERSION_2.0,PMPVER1,compress\r\npmzlibcodec", "it is no table of plot styles"},
        {"PIAFILEVERSION_2.0,CTBVER1,compress", "it is no table of plot styles"},
        {good.first(55), "its content cannot be unpacked"},
        {good.first(good.size() - 9), "its content cannot be unpacked"},
        {packed("CTB", QByteArray(20'000'000, ' ')), "its content cannot be unpacked"},
        {good + QByteArray(70'000, '\0'), "it is too large for a table of plot styles"},
    };
    for (const auto &[bytes, error] : rows) {
        const PlotStyleReading reading = readPlotStyles(bytes);
        EXPECT_FALSE(reading.table) << error;
        EXPECT_EQ(reading.error, QString::fromLatin1(error));
    }
    for (const QByteArray &odd :
         {QByteArray("x"), QByteArray(100'000, '{').replace("{", "a{\n"), QByteArray("}\n}\n=\n")})
        EXPECT_EQ(readPlotStyles(packed("STB", odd)).error, u"it holds no plot styles"_s);
    const PlotStyleReading wide = readPlotStyles(packed("STB", "plot_style{\n0{\nname=\"W\n}\n}", 8));
    EXPECT_TRUE(wide.table && wide.table->named(u"w"_s)) << "numbers of eight bytes";
}

class PlottedTest : public testing::Test
{
protected:
    QTemporaryDir m_folder;

    void write(const QString &name, const QByteArray &bytes)
    {
        QFile file(m_folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QImage plotted(const drawing::Drawing &drawing, ExportOptions options, QString *lack = nullptr)
    {
        options.pixels = QSize(100, 100);
        options.sheet.window = Box{{0, 0, 0}, {100, 100, 0}};
        const ExportResult result = exportPng(drawing, m_folder.filePath(u"p.png"_s), options);
        EXPECT_TRUE(result) << result.error.toStdString();
        if (lack && !result.pages.empty())
            *lack = result.pages.front().lack;
        return QImage(m_folder.filePath(u"p.png"_s));
    }
};

std::shared_ptr<const drawing::PlotStyleTable> tableFrom(const QByteArray &bytes)
{
    return std::make_shared<drawing::PlotStyleTable>(readPlotStyles(bytes).table.value());
}

/// An area of 20 by 20 around the point, in the style of the groups.
std::string area(int x, int y, const std::string &groups)
{
    const auto number = [](int value) { return std::to_string(value); };
    return "0 SOLID|" + groups + "|100 AcDbTrace|10 " + number(x - 10) + "|20 " + number(y - 10) + "|11 " +
           number(x + 10) + "|21 " + number(y - 10) + "|12 " + number(x - 10) + "|22 " + number(y + 10) + "|13 " +
           number(x + 10) + "|23 " + number(y + 10);
}

QString colourAt(const QImage &image, int x, int y)
{
    return image.pixelColor(x, 100 - y).name();
}

TEST_F(PlottedTest, ColoursAreThoseOfTheTable)
{
    const auto drawing = readDrawing({.entities = area(20, 20, "8 0|62 1") + "|" + area(50, 20, "8 green") + "|" +
                                                  area(80, 20, "8 0|420 255") + "|" + area(20, 60, "8 0|62 5") +
                                                  "|0 INSERT|8 green|62 1|2 B|10 50|20 60",
                                      .blocks = blockText("B", area(0, 0, "8 0|62 0") + "|" + area(30, 0, "8 0")),
                                      .layers = "0 LAYER|2 green|70 0|62 3|6 Continuous"});
    const QByteArray styles =
        styleText(0, "R|color=-1023410096") + styleText(2, "G|color_policy=2") + styleText(4, "B|screen=50");
    const struct
    {
        const char *what;
        ExportOptions options;
        const char *red, *green, *trueColour, *blue, *byBlock, *inLayer;
    } rows[] = {
        {"none", {}, "#ff0000", "#00ff00", "#0000ff", "#0000ff", "#ff0000", "#00ff00"},
        {"by colours",
         {.plotStyles = tableFrom(tableOf("CTB", styles))},
         "#000050",
         "#7f7f7f",
         "#0000ff",
         "#8080ff",
         "#000050",
         "#7f7f7f"},
        {"monochrome",
         {.plotStyles = std::make_shared<drawing::PlotStyleTable>(*drawing::builtInPlotStyles(u"Monochrome.ctb"_s))},
         "#000000",
         "#000000",
         "#0000ff",
         "#000000",
         "#000000",
         "#000000"},
        {"monochrome on black",
         {.ground = Ground::Black,
          .plotStyles = std::make_shared<drawing::PlotStyleTable>(*drawing::builtInPlotStyles(u"monochrome"_s))},
         "#ffffff",
         "#ffffff",
         "#0000ff",
         "#ffffff",
         "#ffffff",
         "#ffffff"},
        {"a quarter",
         {.plotStyles = std::make_shared<drawing::PlotStyleTable>(*drawing::builtInPlotStyles(u"Screening 25%.ctb"_s))},
         "#ffbfbf",
         "#bfffbf",
         "#0000ff",
         "#bfbfff",
         "#ffbfbf",
         "#bfffbf"},
        {"no styles",
         {.plotStyles = tableFrom(tableOf("STB", {}))},
         "#ff0000",
         "#00ff00",
         "#0000ff",
         "#0000ff",
         "#ff0000",
         "#00ff00"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        const QImage image = plotted(*drawing, row.options);
        EXPECT_EQ(colourAt(image, 20, 20), QLatin1StringView(row.red));
        EXPECT_EQ(colourAt(image, 50, 20), QLatin1StringView(row.green));
        EXPECT_EQ(colourAt(image, 80, 20), QLatin1StringView(row.trueColour));
        EXPECT_EQ(colourAt(image, 20, 60), QLatin1StringView(row.blue));
        EXPECT_EQ(colourAt(image, 50, 60), QLatin1StringView(row.byBlock));
        EXPECT_EQ(colourAt(image, 80, 60), QLatin1StringView(row.inLayer));
    }
}

TEST_F(PlottedTest, NamesComeFromEntityLayerAndBlock)
{
    const auto drawing = readDrawing(
        {.entities = area(20, 20, "8 0|390 B1") + "|" + area(50, 20, "8 walls") + "|" + area(80, 20, "8 walls|380 2") +
                     "|" + area(20, 60, "8 0|390 FFFF") + "|0 INSERT|8 0|390 B1|100 AcDbBlockReference|2 B|10 50|20 60",
         .blocks = blockText("B", area(0, 0, "8 0|380 1") + "|" + area(30, 0, "8 walls|380 0")),
         .layers = "0 LAYER|2 walls|70 0|62 3|6 Continuous|390 B2",
         .objects = "0 DICTIONARY|5 D0|3 ACAD_PLOTSTYLENAME|350 D1|0 ACDBDICTIONARYWDFLT|5 D1|330 D0|3 Normal|350 B0|3 "
                    "Red|350 B1|3 Blue|350 B2|340 B0|0 ACDBPLACEHOLDER|5 B0|330 D1"});
    const QByteArray styles =
        styleText(0, "Normal") + styleText(1, "RED|color=-1023475712") + styleText(2, "blue|color=-1023410100");
    const QImage image = plotted(*drawing, {.plotStyles = tableFrom(tableOf("STB", styles))});
    EXPECT_EQ(colourAt(image, 20, 20), u"#ff0000"_s) << "its own";
    EXPECT_EQ(colourAt(image, 50, 20), u"#00004c"_s) << "the layer's";
    EXPECT_EQ(colourAt(image, 80, 20), u"#00ff00"_s) << "the default one";
    EXPECT_EQ(colourAt(image, 20, 60), u"#000000"_s) << "a handle that leads nowhere";
    EXPECT_EQ(colourAt(image, 50, 60), u"#ff0000"_s) << "by block";
    EXPECT_EQ(colourAt(image, 80, 60), u"#00004c"_s) << "by layer within a block";
}

TEST_F(PlottedTest, LinesHaveTheWeightAndDashesOfTheirStyle)
{
    const auto drawing = readDrawing({.entities = "0 LINE|8 0|62 1|10 0|20 50|11 100|21 50"});
    const auto runs = [&](const QByteArray &properties, int *width) {
        const ExportResult result =
            exportPng(*drawing, m_folder.filePath(u"l.png"_s),
                      {.sheet = {.paper = QSizeF(100, 100), .scale = 1.0, .window = Box{{0, 0, 0}, {100, 100, 0}}},
                       .dotsPerInch = 254.0,
                       .plotStyles = tableFrom(tableOf("CTB", styleText(0, properties)))});
        EXPECT_TRUE(result) << result.error.toStdString();
        const QImage image(m_folder.filePath(u"l.png"_s));
        int found = 0;
        for (int x = 1; x < image.width(); ++x)
            found += image.pixelColor(x, 500).green() < 128 && image.pixelColor(x - 1, 500).green() >= 128 ? 1 : 0;
        *width = 0;
        for (int y = 0; y < image.height(); ++y)
            *width += image.pixelColor(10, y).green() < 128 ? 1 : 0;
        return found;
    };
    int width = 0;
    runs("R|lineweight=2", &width);
    EXPECT_EQ(width, 10) << "a millimetre at ten pixels each";
    runs("R", &width);
    EXPECT_NEAR(width, 2.5, 0.6) << "the default weight";
    const int dashes = runs("R|linetype=5", &width);
    EXPECT_NEAR(dashes, 13, 1) << "five millimetres and a gap of half of that";
}

/// A sheet of 100 by 100 with a red area, whose page names the table.
std::unique_ptr<drawing::Drawing> pageWith(const std::string &table, const std::string &flags)
{
    return readDrawing(
        {.entities = area(50, 50, "67 1|8 0|62 1"),
         .blocks = blockText("*Paper_Space", ""),
         .tables = tableText("BLOCK_RECORD", "0 BLOCK_RECORD|5 E1|2 *Paper_Space"),
         .objects = "0 DICTIONARY|5 D0|3 ACAD_LAYOUT|350 D1|0 DICTIONARY|5 D1|330 D0|3 Plan|350 A1|0 LAYOUT|5 A1|"
                    "100 AcDbPlotSettings|7 " +
                    table + "|70 " + flags + "|74 5|72 1|44 100|45 100|142 1|143 1|100 AcDbLayout|1 Plan|71 1|330 E1"});
}

TEST_F(PlottedTest, PagesNameTheirTables)
{
    write(u"grey.ctb"_s, tableOf("CTB", styleText(0, "R|color_policy=2")));
    write(u"broken.ctb"_s, "no table");
    const struct
    {
        const char *table;
        const char *flags;
        const char *colour;
        const char *lack;
        ExportOptions options = {};
    } rows[] = {
        {"grey.ctb", "160", "#575757", ""},
        {"grey.ctb", "128", "#ff0000", ""},
        {"grey.ctb", "160", "#ff0000", "", {.withPlotStyles = false}},
        {"grey.ctb",
         "128",
         "#000000",
         "",
         {.plotStyles = std::make_shared<drawing::PlotStyleTable>(*drawing::builtInPlotStyles(u"monochrome"_s))}},
        {"monochrome.ctb", "160", "#000000", ""},
        {"other.ctb", "160", "#ff0000", "the plot styles other.ctb are left out: it is not found"},
        {"../grey.ctb", "160", "#ff0000", "the plot styles ../grey.ctb are left out: it is not found"},
        {"broken.ctb", "160", "#ff0000", "the plot styles broken.ctb are left out: it is no table of plot styles"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.table);
        const auto drawing = pageWith(row.table, row.flags);
        drawing->setPath(m_folder.filePath(u"a.dxf"_s));
        ExportOptions options = row.options;
        options.layouts = {u"Plan"_s};
        QString lack;
        const QImage image = plotted(*drawing, options, &lack);
        EXPECT_EQ(colourAt(image, 50, 50), QLatin1StringView(row.colour));
        EXPECT_EQ(lack, QLatin1StringView(row.lack));
    }
}

} // namespace
} // namespace host::view::test
