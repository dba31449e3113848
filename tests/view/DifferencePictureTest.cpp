#include "host/view/paint/DifferencePicture.h"

#include "tests/view/Rendering.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace host::view::test {
namespace {

using namespace Qt::StringLiterals;

/// A frame from corner to corner, and what differs within. Pictures have a pixel for a drawing unit.
std::string framed(const std::string &entities)
{
    return "0 LWPOLYLINE|5 90|8 0|90 4|70 1|10 0|20 0|10 400|20 0|10 400|20 300|10 0|20 300" + entities;
}

std::string lineAt(const char *handle, int y)
{
    return "|0 LINE|5 " + std::string(handle) + "|8 0|10 50|20 " + std::to_string(y) + "|11 350|21 " +
           std::to_string(y);
}

const std::string block = "0 LINE|5 81|8 0|10 0|20 0|11 100|21 0";

class DifferencePictureTest : public testing::Test
{
protected:
    /// The picture of two drawings; what the report says goes to m_result.
    QImage drawn(const DxfText &before, const DxfText &after, const QString &layout = {})
    {
        const auto old = readDrawing(before);
        const auto now = readDrawing(after);
        m_comparison.emplace(drawing::compareDrawings(*old, *now));
        const QString path = m_folder.filePath(u"a.png"_s);
        m_result = exportDifferences(*m_comparison, path, {.layout = layout, .pixels = {800, 620}});
        return QImage(path);
    }

    /// How many of the picture's pixels are of that colour or a lighter shade of it.
    static int pixels(const QImage &image, int hue)
    {
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) {
                const QColor color = image.pixelColor(x, y);
                count += color.hsvSaturation() > 120 && std::abs(color.hsvHue() - hue) < 15 ? 1 : 0;
            }
        return count;
    }

    QTemporaryDir m_folder;
    std::optional<drawing::Comparison> m_comparison;
    ExportResult m_result;
};

constexpr int red = 0;
constexpr int orange = 36;
constexpr int green = 147;
constexpr int blue = 220;

TEST_F(DifferencePictureTest, TellsWhatIsGoneNewAndChanged)
{
    const QImage same = drawn({.entities = framed(lineAt("91", 100))}, {.entities = framed(lineAt("91", 100))});
    const QImage image = drawn({.entities = framed(lineAt("91", 100) + lineAt("92", 150))},
                               {.entities = framed(lineAt("92", 200) + lineAt("93", 250))});
    ASSERT_TRUE(m_result) << m_result.error.toStdString();
    // Beyond what the line at the foot shows of each. What was is dashed, and so has fewer pixels.
    for (const auto &[hue, least] : {std::pair(red, 200), {orange, 100}, {green, 500}, {blue, 500}})
        EXPECT_GT(pixels(image, hue), pixels(same, hue) + least) << hue;
    EXPECT_GT(pixels(image, green) - pixels(same, green), pixels(image, red) - pixels(same, red));
}

TEST_F(DifferencePictureTest, ShowsInsertsOfABlockThatChanged)
{
    const std::string insert = framed("|0 INSERT|5 91|8 0|2 B|10 50|20 100");
    const QImage same = drawn({.entities = insert, .blocks = blockText("B", block)},
                              {.entities = insert, .blocks = blockText("B", block)});
    const std::string turned = "0 LINE|5 81|8 0|10 0|20 0|11 100|21 90";
    const QImage image = drawn({.entities = insert, .blocks = blockText("B", block)},
                               {.entities = insert, .blocks = blockText("B", turned)});
    EXPECT_GT(pixels(image, blue), pixels(same, blue) + 100);
    EXPECT_GT(pixels(image, orange), pixels(same, orange) + 50);
}

TEST_F(DifferencePictureTest, RingsWhatIsTooSmall)
{
    const QImage same = drawn({.entities = framed("")}, {.entities = framed("")});
    const QImage image = drawn({.entities = framed("")}, {.entities = framed("|0 POINT|5 91|8 0|10 200|20 150")});
    EXPECT_GT(pixels(image, green), pixels(same, green) + 20);
}

TEST_F(DifferencePictureTest, WritesEachFormAndSaysWhyNot)
{
    const auto old = readDrawing({.entities = framed(lineAt("91", 100))});
    const auto now = readDrawing({.entities = framed(lineAt("91", 150))});
    const drawing::Comparison comparison = drawing::compareDrawings(*old, *now);
    for (const auto &[name, head] : {std::pair("a.svg", "<?xml"), {"a.pdf", "%PDF"}}) {
        const QString path = m_folder.filePath(QString::fromLatin1(name));
        EXPECT_TRUE(exportDifferences(comparison, path)) << name;
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << name;
        EXPECT_TRUE(file.readAll().startsWith(head)) << name;
    }
    EXPECT_TRUE(exportDifferences(comparison, u"/none/a.png"_s).error.contains(u"a.png"_s));
    EXPECT_TRUE(exportDifferences(comparison, m_folder.filePath(u"b.png"_s), {.layout = u"none"_s})
                    .error.contains(u"no layout named none"_s));
    EXPECT_FALSE(QFile::exists(m_folder.filePath(u"b.png"_s)));
}

} // namespace
} // namespace host::view::test
