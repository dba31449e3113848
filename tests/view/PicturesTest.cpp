// What drawings of other programs look like: where they have ink, of which colour, and which texts.
//
// The pictures are in foreign.pictures: the name of a file in the folder that ORTAKIT_CORPUS names, and below it rows
// of letters, one for each cell of the picture: r y g c b m for the colour that most of its ink has, w for grey and
// white, a dot for no ink, a tilde for so little that it does not matter. With ORTAKIT_RENEW=1 the file is written anew
// from what is drawn now; the difference is then to be looked at, beside scripts/compare-view.

#include "host/drawing/records/Symbols.h"
#include "host/view/paint/Export.h"
#include "host/view/paint/SceneWalker.h"

#include <QDir>
#include <QFile>
#include <QPainterPath>
#include <QRegularExpression>
#include <QSet>

#include <array>
#include <gtest/gtest.h>
#include <map>

namespace host::view::test {
namespace {

using namespace Qt::StringLiterals;

constexpr QSize pictureSize{1000, 750};
constexpr QSize cellSize{20, 50};
/// Shares of a cell's pixels: with more it has ink, below the other one it has none.
constexpr double certainInk = 0.01;
constexpr double certainlyBlank = 0.001;
/// A colour that so much of a cell's ink has is one of its colours.
constexpr double presentColour = 0.2;

constexpr QLatin1StringView colourLetters("rygcbmw");

qsizetype colourClass(const QColor &colour)
{
    if (colour.hsvSaturation() < 80)
        return colourLetters.size() - 1;
    return (colour.hsvHue() + 30) / 60 % 6;
}

/// The ink of one cell.
struct Cell
{
    std::array<int, colourLetters.size()> pixels{};
    int total = 0;

    double share() const { return static_cast<double>(total) / (cellSize.width() * cellSize.height()); }
    QChar letter() const
    {
        if (share() < certainInk)
            return share() < certainlyBlank ? u'.' : u'~';
        return colourLetters[std::ranges::max_element(pixels) - pixels.begin()];
    }
    bool fits(QChar wanted) const
    {
        if (wanted == u'.' || wanted == u'~')
            return wanted == u'~' || share() < certainInk;
        const auto colour = static_cast<std::size_t>(colourLetters.indexOf(wanted));
        return share() > certainlyBlank && pixels[colour] >= presentColour * total;
    }
};

Cell cellAt(const QImage &image, int column, int row)
{
    Cell cell;
    const QRgb ground = groundColor(Ground::Black).rgb();
    for (int y = row * cellSize.height(); y < (row + 1) * cellSize.height(); ++y) {
        for (int x = column * cellSize.width(); x < (column + 1) * cellSize.width(); ++x) {
            if (image.pixel(x, y) == ground)
                continue;
            ++cell.pixels[static_cast<std::size_t>(colourClass(image.pixelColor(x, y)))];
            ++cell.total;
        }
    }
    return cell;
}

QStringList lettersOf(const QImage &image)
{
    QStringList rows;
    for (int row = 0; row < image.height() / cellSize.height(); ++row) {
        QString line;
        for (int column = 0; column < image.width() / cellSize.width(); ++column)
            line += cellAt(image, column, row).letter();
        rows.append(line);
    }
    return rows;
}

/// Cells that are not as they are wanted, each with its place.
QStringList wrongCells(const QImage &image, const QStringList &wanted)
{
    QStringList wrong;
    for (qsizetype row = 0; row < wanted.size(); ++row) {
        for (qsizetype column = 0; column < wanted[row].size(); ++column) {
            const Cell cell = cellAt(image, static_cast<int>(column), static_cast<int>(row));
            if (!cell.fits(wanted[row][column]))
                wrong.append(u"column %1 row %2: %3 in place of %4"_s.arg(column)
                                 .arg(row)
                                 .arg(cell.letter())
                                 .arg(wanted[row][column]));
        }
    }
    return wrong;
}

/// Collects the texts of a walk.
class TextSink final : public DisplaySink
{
public:
    void line(std::span<const QPointF>, const ResolvedStyle &) override {}
    void dot(QPointF, const ResolvedStyle &) override {}
    void fill(const QPainterPath &, FillKind, const ResolvedStyle &) override {}
    void text(const TextRun &run, const Matrix &, const ResolvedStyle &) override { m_texts += run.text + u' '; }
    void beginClip(const QPolygonF &) override {}
    void endClip() override {}

    const QString &texts() const { return m_texts; }

private:
    QString m_texts;
};

QString textsShown(Scene &scene)
{
    scene.prepare(Scene::modelSpace);
    TextSink sink;
    drawing::WorkBudget work(drawing::vectorWork);
    SceneWalker walker(scene, {.collapseSmall = false}, sink, work);
    walker.walk(Scene::modelSpace, {});
    return sink.texts();
}

/// Words of plain letters in the texts of model space on layers that are seen; codes may hide in others.
QStringList wordsToSee(const drawing::Drawing &drawing)
{
    static const QRegularExpression plain(u"^[A-Za-z]{3,}$"_s);
    QSet<QString> hidden;
    for (const drawing::Layer &layer : drawing::allLayers(drawing)) {
        if (layer.isOff || layer.isFrozen)
            hidden.insert(layer.name.toCaseFolded());
    }
    QStringList words;
    for (const RecordId record : drawing.entities().inSpace(drawing::Space::Model)) {
        const drawing::TagList tags = drawing.tags(record);
        const bool isSeen = tags.integer(60) == 0 && !hidden.contains(tags.text(8).toCaseFolded());
        if (isSeen && drawing.isType(record, "TEXT"))
            words += tags.text(1).split(u' ').filter(plain);
    }
    return words;
}

QString picturesPath()
{
    return qEnvironmentVariable("ORTAKIT_SOURCE") + u"/tests/view/foreign.pictures"_s;
}

std::map<QString, QStringList> knownPictures()
{
    QFile file(picturesPath());
    std::map<QString, QStringList> pictures;
    QString name;
    const QStringList lines =
        file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).split(u'\n') : QStringList();
    for (const QString &line : lines) {
        if (line.endsWith(".dxf"_L1))
            name = line;
        else if (!line.isEmpty())
            pictures[name].append(line);
    }
    return pictures;
}

void writePictures(const std::map<QString, QStringList> &pictures)
{
    QFile file(picturesPath());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    for (const auto &[name, rows] : pictures)
        file.write((name + u'\n' + rows.join(u'\n') + u"\n\n"_s).toUtf8());
}

TEST(Pictures, OfOtherProgramsDrawingsAreAsKnown)
{
    const QDir folder(qEnvironmentVariable("ORTAKIT_CORPUS"));
    if (!qEnvironmentVariableIsSet("ORTAKIT_CORPUS"))
        GTEST_SKIP() << "ORTAKIT_CORPUS does not name a folder of drawings";
    const bool isRenewed = qEnvironmentVariableIsSet("ORTAKIT_RENEW");
    std::map<QString, QStringList> known = knownPictures();
    for (const QString &name : folder.entryList({u"*.dxf"_s}, QDir::Files)) {
        SCOPED_TRACE(name.toStdString());
        const drawing::ReadResult read = drawing::Drawing::open(folder.filePath(name));
        if (!read)
            continue;
        const QImage image = picture(*read.drawing, pictureSize, Ground::Black);
        if (isRenewed)
            known[name] = lettersOf(image);
        EXPECT_FALSE(known[name].isEmpty()) << "no picture is known";
        EXPECT_EQ(wrongCells(image, known[name]).join(u'\n').toStdString(), "");
        Scene scene(static_cast<const drawing::Drawing &>(*read.drawing));
        const QString shown = textsShown(scene);
        for (const QString &word : wordsToSee(*read.drawing))
            EXPECT_TRUE(shown.contains(word)) << word.toStdString();
    }
    if (isRenewed)
        writePictures(known);
}

} // namespace
} // namespace host::view::test
