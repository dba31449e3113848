// The sheets of layouts: what of a drawing lies where on paper.

#include "host/view/paint/Export.h"
#include "tests/view/Rendering.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace host::view::test {
namespace {

using namespace Qt::StringLiterals;

/// "Plan" is the sheet in use, "Detail" one at rest; both with the plot settings given. On each a line along x from the
/// origin, one millimetre wide, and one along y from 20,10 on the layer "thin".
DxfText sheets(const std::string &plan, const std::string &detail = {})
{
    const std::string lines = "|8 0|370 100|100 AcDbLine|10 0|20 0|11 100|21 0|0 LINE|67 1|8 thin|370 0|10 20|20 10|"
                              "11 20|21 60";
    const auto layout = [](const std::string &handle, const std::string &name, const std::string &order,
                           const std::string &entry, const std::string &settings) {
        return "0 LAYOUT|5 " + handle + "|330 D1|100 AcDbPlotSettings|" + settings + "|100 AcDbLayout|1 " + name +
               "|70 1|71 " + order + "|10 0|20 0|11 50|21 40|330 " + entry;
    };
    const std::string entries =
        "0 BLOCK_RECORD|5 E0|2 *Model_Space|0 BLOCK_RECORD|5 E1|2 *Paper_Space|0 BLOCK_RECORD|5 E2|2 *Paper_Space0";
    return {.entities =
                "0 LINE|67 1" + lines + "|0 LINE|8 0|10 0|20 0|11 10|21 10|0 TEXT|8 0|10 1|20 8|40 1|7 FACE|1 Words",
            .blocks = blockText("*Model_Space", "") + "|" + blockText("*Paper_Space", "") + "|" +
                      blockText("*Paper_Space0", "0 LINE" + lines),
            .layers = "0 LAYER|2 thin|70 0|62 1|6 Continuous|370 0",
            .tables = tableText("BLOCK_RECORD", entries) + "|" +
                      tableText("VIEW", "0 VIEW|2 corner|70 0|40 20|41 40|10 20|20 10") + "|" +
                      tableText("STYLE", "0 STYLE|2 FACE|70 0|40 0|41 1|50 0|71 0|42 1|3 arial.ttf|4 "),
            .objects = "0 DICTIONARY|5 D0|3 ACAD_LAYOUT|350 D1|0 DICTIONARY|5 D1|330 D0|3 Model|350 A0|3 Plan|350 A1|"
                       "3 Detail|350 A2|" +
                       layout("A0", "Model", "0", "E0", "70 128|74 1|72 1|44 210|45 297|142 1|143 1") + "|" +
                       layout("A1", "Plan", "1", "E1", plan) + "|" +
                       layout("A2", "Detail", "2", "E2", detail.empty() ? plan : detail)};
}

/// A sheet of 100 by 80 with margins of 5, 10, 15 and 20 on the left and on, one to one.
const std::string usualPage = "70 128|72 1|73 0|74 5|44 100|45 80|40 5|41 10|42 15|43 20|142 1|143 1";

std::string with(std::string page, std::initializer_list<std::pair<std::string, std::string>> changes)
{
    for (const auto &[from, to] : changes) {
        const std::size_t at = (page + "|").find(from + "|");
        page.replace(at, from.size(), to);
    }
    return page;
}

class SheetsTest : public testing::Test
{
protected:
    QTemporaryDir m_folder;
    QString path(const QString &name) const { return m_folder.filePath(name); }

    /// A pixel a millimetre.
    QImage sheet(const DxfText &text, ExportOptions options)
    {
        options.dotsPerInch = 25.4;
        const ExportResult result = exportPng(*readDrawing(text), path(u"a.png"_s), options);
        EXPECT_TRUE(result) << result.error.toStdString();
        return QImage(path(u"a.png"_s));
    }

    QByteArray read(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

/// Whether something is drawn within a pixel of a point in millimetres from the lower left corner of the sheet.
bool isInkAt(const QImage &sheet, int x, int y)
{
    for (int dx = -1; dx <= 1; ++dx)
        for (int dy = -1; dy <= 1; ++dy)
            if (const QPoint at(x + dx, sheet.height() - 1 - y + dy);
                sheet.rect().contains(at) && qGray(sheet.pixel(at)) < 200)
                return true;
    return false;
}

struct SheetRow
{
    const char *what;
    std::string page;
    QSize size;
    std::vector<QPoint> ink; ///< millimetres from the lower left corner of the sheet
    std::vector<QPoint> blank;
    SheetWish wish{};
};

TEST_F(SheetsTest, LieAsTheirPageSetupHasThem)
{
    const Box window{{0, 0, 0}, {40, 20, 0}};
    const std::vector<SheetRow> rows = {
        {"from the corner of what is printed, cut off at the margin",
         usualPage,
         {100, 80},
         {{7, 10}, {83, 10}, {25, 40}},
         {{3, 10}, {88, 10}, {50, 30}}},
        {"turned: the margins go round",
         with(usualPage, {{"73 0", "73 1"}}),
         {80, 100},
         {{12, 15}, {57, 15}, {30, 45}},
         {{8, 15}, {63, 15}}},
        {"turned the other way",
         with(usualPage, {{"73 0", "73 3"}}),
         {80, 100},
         {{22, 5}, {68, 5}, {40, 35}},
         {{18, 5}, {72, 5}}},
        {"upside down", with(usualPage, {{"73 0", "73 2"}}), {100, 80}, {{17, 20}, {93, 20}}, {{13, 20}, {97, 20}}},
        {"moved", "46 20|47 30|" + usualPage, {100, 80}, {{27, 40}, {45, 56}}, {{21, 40}, {27, 10}}},
        {"a scale of its own", with(usualPage, {{"143 1", "143 2"}}), {100, 80}, {{53, 10}, {15, 30}}, {{58, 10}}},
        {"inches", with(usualPage, {{"72 1", "72 0"}, {"142 1", "142 0.1"}}), {100, 80}, {{56, 36}}, {{25, 40}}},
        {"extents, as large as fits",
         with(usualPage, {{"70 128", "70 148|75 0"}, {"74 5", "74 1"}}),
         {100, 80},
         {{6, 11}, {84, 11}, {21, 40}},
         {{50, 40}}},
        {"limits", with(usualPage, {{"74 5", "74 2"}}), {100, 80}, {{7, 10}, {54, 10}, {25, 40}}, {{57, 10}, {25, 53}}},
        {"a window",
         with(usualPage, {{"74 5", "74 4|48 10|49 5|140 30|141 40"}}),
         {100, 80},
         {{15, 20}, {15, 40}},
         {{15, 47}, {7, 10}}},
        {"a window in the middle",
         with(usualPage, {{"70 128", "70 132"}, {"74 5", "74 4|48 10|49 5|140 30|141 40"}}),
         {100, 80},
         {{45, 23}, {45, 48}},
         {{15, 20}}},
        {"a view",
         with(usualPage, {{"74 5", "74 3|6 Corner"}}),
         {100, 80},
         {{7, 10}, {44, 10}, {25, 28}},
         {{47, 10}, {25, 32}}},
        {"a view that is not there: extents",
         with(usualPage, {{"74 5", "74 3|6 none"}}),
         {100, 80},
         {{7, 10}, {83, 10}},
         {{3, 10}}},
        {"other paper: all of the sheet on it",
         usualPage,
         {200, 160},
         {{14, 20}, {193, 20}, {50, 60}},
         {{5, 20}},
         {.paper = QSizeF(200, 160)}},
        {"other paper lies as the page does",
         with(usualPage, {{"73 0", "73 1"}}),
         {160, 200},
         {{24, 30}, {60, 90}},
         {{17, 30}},
         {.paper = QSizeF(200, 160), .turnsPaper = true}},
        {"other paper from its corner: the sheet as it stands",
         usualPage,
         {200, 160},
         {{2, 0}, {78, 0}, {20, 30}},
         {{2, 20}, {120, 0}},
         {.paper = QSizeF(200, 160), .isSheet = true}},
        {"the same, moved and enlarged",
         usualPage,
         {200, 160},
         {{34, 10}, {70, 70}},
         {{20, 10}},
         {.paper = QSizeF(200, 160), .scale = 2.0, .offset = drawing::Vec2{30, 10}, .isSheet = true}},
        {"a window so far from the corner",
         usualPage,
         {100, 80},
         {{7, 14}, {43, 14}},
         {{3, 14}, {7, 10}},
         {.scale = 1.0, .window = window, .offset = drawing::Vec2{0, 4}}},
        {"another scale", usualPage, {100, 80}, {{53, 10}, {15, 30}}, {{58, 10}}, {.scale = 0.5}},
        {"another window", usualPage, {100, 80}, {{7, 16}, {45, 44}}, {{88, 16}, {45, 58}}, {.window = window}},
        {"no paper: everything on A4",
         with(usualPage, {{"44 100", "44 0"}}),
         {297, 210},
         {{12, 22}, {285, 22}},
         {{5, 22}}},
        {"margins that leave nothing do not count",
         with(usualPage, {{"40 5", "40 90"}}),
         {100, 80},
         {{2, 0}, {98, 0}},
         {{2, 10}}},
        {"numbers that are none", with(usualPage, {{"143 1", "143 0"}, {"40 5", "40 nan"}}), {100, 80}, {{2, 11}}, {}},
    };
    for (const SheetRow &row : rows) {
        SCOPED_TRACE(row.what);
        const QImage image = sheet(sheets(row.page), {.layouts = {u"PLAN"_s}, .sheet = row.wish});
        EXPECT_EQ(image.size(), row.size);
        for (const QPoint &at : row.ink)
            EXPECT_TRUE(isInkAt(image, at.x(), at.y())) << at.x() << ',' << at.y();
        for (const QPoint &at : row.blank)
            EXPECT_FALSE(isInkAt(image, at.x(), at.y())) << at.x() << ',' << at.y();
    }
}

/// Pixels across the line along x.
int lineWidth(const QImage &image, int x)
{
    int width = 0;
    for (int y = 0; y < image.height(); ++y)
        width += qGray(image.pixel(x, y)) < 128 ? 1 : 0;
    return width;
}

TEST_F(SheetsTest, LinesHaveTheirWeights)
{
    const auto width = [this](const std::string &page, double dots, bool withLineweights = true) {
        const ExportOptions options{.layouts = {u"Plan"_s}, .dotsPerInch = dots, .withLineweights = withLineweights};
        EXPECT_TRUE(exportPng(*readDrawing(sheets(page)), path(u"w.png"_s), options));
        const QImage image(path(u"w.png"_s));
        return lineWidth(image, image.width() / 2);
    };
    const std::string raised = "47 10|" + usualPage;
    EXPECT_EQ(width(raised, 254), 10) << "a millimetre of ten pixels";
    EXPECT_EQ(width(raised, 508), 20);
    EXPECT_EQ(width(raised, 254, false), 1);
    EXPECT_EQ(width(with(raised, {{"70 128", "70 0"}}), 254), 1) << "the page has lineweights off";
    EXPECT_NEAR(width(with(raised, {{"70 128", "70 192"}, {"142 1", "142 0.5"}}), 254), 5, 1) << "weights are scaled";
    EXPECT_EQ(width(with(raised, {{"142 1", "142 0.5"}}), 254), 10);
}

TEST_F(SheetsTest, AreThereWithoutLayoutsOfTheirOwn)
{
    const std::string line = "0 LINE|67 1|8 0|10 0|20 0|11 10|21 10";
    for (const char *objects : {"", "0 DICTIONARY|5 D0|3 ACAD_LAYOUT|350 D1|0 DICTIONARY|5 D1|330 D0"}) {
        const QImage image = sheet({.entities = line, .objects = objects}, {.layouts = {u"Layout1"_s}});
        EXPECT_EQ(image.size(), QSize(297, 210)) << objects;
        EXPECT_FALSE(isBlank(image));
    }
}

TEST_F(SheetsTest, PagesOfAPdfHaveTheirOwnSizes)
{
    const auto drawing = readDrawing(sheets(usualPage, with(usualPage, {{"44 100", "44 594"}, {"45 80", "45 420"}})));
    const ExportOptions options{.layouts = {u"plan"_s, u"DETAIL"_s, u"model"_s}};
    const ExportResult result = exportPdf(*drawing, path(u"a.pdf"_s), options);
    ASSERT_TRUE(result) << result.error.toStdString();
    ASSERT_EQ(result.pages.size(), 3u);
    EXPECT_EQ(result.pages[1].layout, u"Detail"_s);
    EXPECT_EQ(result.pages[1].report.drawn, 2);
    const QString text = QString::fromLatin1(read(u"a.pdf"_s));
    QStringList boxes;
    for (auto it = QRegularExpression(u"MediaBox \\[0 0 (\\d+)\\S* (\\d+)"_s).globalMatch(text); it.hasNext();) {
        const auto match = it.next();
        boxes.append(match.captured(1) + u'x' + match.captured(2));
    }
    EXPECT_EQ(boxes.join(u' '), u"283x227 1684x1191 595x842"_s);
    EXPECT_FALSE(exportPdf(*drawing, path(u"b.pdf"_s), {.layouts = {u"Plan"_s, u"Other"_s}}));
    EXPECT_FALSE(QFile::exists(path(u"b.pdf"_s)));
}

TEST_F(SheetsTest, SvgIsClippedAndHasTextAsAsked)
{
    const auto drawing = readDrawing(sheets(usualPage));
    ASSERT_TRUE(exportSvg(*drawing, path(u"a.svg"_s), {.layouts = {u"Plan"_s}}));
    QXmlStreamReader xml(read(u"a.svg"_s));
    QStringList clips;
    QString width;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == u"svg")
            width = xml.attributes().value(u"width"_s).toString();
        if (xml.isStartElement() && xml.attributes().hasAttribute(u"clip-path"_s))
            clips.append(xml.attributes().value(u"clip-path"_s).toString());
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    EXPECT_EQ(clips, QStringList(u"url(#clip0)"_s));
    EXPECT_EQ(width, u"100mm"_s);
    EXPECT_TRUE(read(u"a.svg"_s).contains("M50,200L850,200L850,700L50,700")) << "what can be printed";
    EXPECT_FALSE(read(u"a.svg"_s).contains("-98765"));
    for (const TextForm form : {TextForm::Outlines, TextForm::Letters}) {
        ASSERT_TRUE(exportSvg(*drawing, path(u"t.svg"_s), {.text = form}));
        EXPECT_EQ(read(u"t.svg"_s).contains(">Words<"), form == TextForm::Letters);
    }
}

TEST_F(SheetsTest, ShowOnlyTheLayersThatAreAskedFor)
{
    const DxfText text = sheets("47 10|" + usualPage);
    const QImage thin = sheet(text, {.layouts = {u"Plan"_s}, .layers = u"T*"_s});
    EXPECT_TRUE(isInkAt(thin, 25, 40));
    EXPECT_FALSE(isInkAt(thin, 15, 20));
    const QImage others = sheet(text, {.layouts = {u"Plan"_s}, .layers = u"~thin,walls"_s});
    EXPECT_FALSE(isInkAt(others, 25, 40));
    EXPECT_TRUE(isInkAt(others, 15, 20));
}

TEST_F(SheetsTest, GoIntoTheMiddleOfSoManyPixels)
{
    const ExportOptions options{.layouts = {u"Plan"_s}, .ground = Ground::Black, .pixels = QSize(300, 80)};
    ASSERT_TRUE(exportPng(*readDrawing(sheets("47 10|" + usualPage)), path(u"m.png"_s), options));
    const QImage image(path(u"m.png"_s));
    EXPECT_EQ(image.size(), QSize(300, 80));
    EXPECT_GT(image.pixelColor(150, 80 - 20).red(), 100) << "the line, at 20 from below";
    EXPECT_EQ(image.pixelColor(103, 80 - 20), QColor(Qt::black)) << "the margin of the sheet";
    const ExportResult large = exportPng(*readDrawing(sheets(usualPage)), path(u"l.png"_s),
                                         {.sheet = {.paper = QSizeF(5000, 10)}, .dotsPerInch = 100.0});
    EXPECT_TRUE(large.error.contains(u"19685 by 39 pixels; 16000"_s)) << large.error.toStdString();
}

} // namespace
} // namespace host::view::test
