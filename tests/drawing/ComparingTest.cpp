#include "host/drawing/comparing/DifferenceText.h"
#include "host/drawing/file/Save.h"
#include "host/drawing/records/Journal.h"
#include "tests/drawing/DrawingSample.h"
#include "tests/support/CaseFile.h"

#include <QTemporaryDir>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

/// "0 LINE 8 0" as lines of "0 LINE".
QByteArray pairLines(const QByteArray &words)
{
    const QByteArrayList parts = words.simplified().split(' ');
    QByteArray lines;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2)
        lines += parts[i] + ' ' + parts[i + 1] + '\n';
    return lines;
}

/// What a row's options say: rules, and how the text of the second drawing is changed.
struct RowOptions
{
    ComparisonRules rules;
    std::vector<std::pair<QByteArray, QByteArray>> edits;
};

RowOptions optionsOf(const ortakit::test::CaseRow &row)
{
    RowOptions options;
    for (const QByteArray &option : QByteArray::fromStdString(row.lines('!')).split(',')) {
        const QByteArray name = option.left(option.indexOf('=')).trimmed();
        const QByteArray value = option.mid(option.indexOf('=') + 1);
        if (name == "edit")
            options.edits.emplace_back(value.left(value.indexOf("=>")), value.mid(value.indexOf("=>") + 2));
        else if (name == "tolerance")
            options.rules.values.tolerance = value.toDouble();
        else if (name == "ignore")
            options.rules.values.ignored |= ignoredKind(QString::fromLatin1(value)).value();
        else if (name == "content")
            options.rules.matching = Matching::ByContent;
        else
            EXPECT_EQ(name, QByteArray()) << row.place;
    }
    return options;
}

/// What a mark has for both drawings, or for each behind " || ".
std::pair<QByteArray, QByteArray> bothOf(const ortakit::test::CaseRow &row, char mark)
{
    const QByteArray text = QByteArray::fromStdString(row.text(mark));
    const qsizetype split = text.indexOf("||");
    return split < 0 ? std::pair(text, text) : std::pair(text.left(split).trimmed(), text.mid(split + 2).trimmed());
}

QByteArray textOf(const QByteArray &version, const std::string &entities, const QByteArray &blocks)
{
    return sampleText(version.isEmpty() ? "AC1015" : version, pairLines(QByteArray::fromStdString(entities)),
                      pairLines(blocks));
}

QString told(const Comparison &comparison)
{
    const DifferenceText text(comparison);
    QStringList lines;
    for (const Difference &difference : comparison.differences)
        lines.append(text.line(difference));
    return lines.join(u'\n');
}

/// Rows of tests/drawing/data/comparing.cases.
TEST(Comparing, TellsWhatDiffers)
{
    const auto file = ortakit::test::readCases(ortakit::test::testFile("drawing/data/comparing.cases"));
    ASSERT_FALSE(file.groups.empty());
    for (const auto &group : file.groups) {
        for (const auto &row : group) {
            const RowOptions options = optionsOf(row);
            const auto [oldVersion, newVersion] = bothOf(row, '~');
            const auto [oldBlocks, newBlocks] = bothOf(row, '?');
            const auto before = readGood(textOf(oldVersion, row.text('<'), oldBlocks));
            QByteArray text = textOf(newVersion, row.text('>'), newBlocks);
            for (const auto &[old, now] : options.edits) {
                ASSERT_TRUE(text.contains(old)) << row.place;
                text.replace(old, now);
            }
            const auto after = readGood(text);
            const Comparison comparison = compareDrawings(*before, *after, options.rules);
            EXPECT_EQ(told(comparison), QString::fromStdString(row.lines('='))) << row.place << ' ' << row.source;
            EXPECT_EQ(told(compareDrawings(*after, *after, options.rules)), QString()) << row.place;
        }
    }
}

TEST(Comparing, EveryDrawingIsItself)
{
    SKIP_WITHOUT_CORPUS(forEachCorpusDrawing([](const Drawing &drawing) {
        for (const Matching matching : {Matching::Automatic, Matching::ByContent}) {
            const Comparison comparison = compareDrawings(drawing, drawing, {.matching = matching});
            EXPECT_EQ(told(comparison), QString()) << drawing.path().toStdString();
            EXPECT_GT(comparison.same, 0);
        }
    }));
}

TEST(Comparing, TheBinaryFormIsTheSameDrawing)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"binary.dxf"_s);
    SKIP_WITHOUT_CORPUS(forEachCorpusDrawing([&path](const Drawing &drawing) {
        const auto copy = readGood(drawing.toBytes());
        copy->setForm(FileForm::Binary);
        ASSERT_TRUE(saveCopy(*copy, path));
        const ReadResult binary = Drawing::open(path);
        ASSERT_TRUE(binary);
        EXPECT_EQ(told(compareDrawings(drawing, *binary.drawing)), QString()) << drawing.path().toStdString();
    }));
}

/// Records with other numbers as handles, and none that are the same: known by their content.
TEST(Comparing, GivesHandlesThatChangedNoWeight)
{
    QByteArray entities;
    QByteArray renumbered;
    for (int i = 0; i < 50; ++i) {
        const QByteArray place = QByteArray::number(i / 2);
        const QByteArray values = "\n8 0\n10 " + place + "\n20 0\n11 0\n21 5\n";
        entities += "0 LINE\n5 " + QByteArray::number(0x200 + i, 16) + values;
        renumbered += "0 LINE\n5 " + QByteArray::number(0x201 + i * 2, 16) +
                      (i == 31 ? "\n8 0\n10 99\n20 0\n11 0\n21 5\n" : values);
    }
    const auto before = sample("AC1015", entities);
    const auto after = sample("AC1015", renumbered);
    const Comparison comparison = compareDrawings(*before, *after);
    EXPECT_EQ(comparison.pairs.matching(), Matching::ByContent);
    EXPECT_EQ(told(comparison), u"~ LINE 21F: start point (15,0) -> (99,0)"_s);
    EXPECT_GT(told(compareDrawings(*before, *after, {.matching = Matching::ByHandle})).count(u'\n'), 70);
}

TEST(Comparing, TellsItsSums)
{
    const auto before = sample("AC1015", "0 LINE\n5 50\n8 A\n10 0\n20 0\n0 LINE\n5 51\n8 B\n10 4\n20 0\n");
    const auto after = sample("AC1015", "0 LINE\n5 50\n8 B\n10 0\n20 0\n0 POINT\n5 60\n8 A\n10 0\n20 0\n");
    const Tallies sums = tallied(compareDrawings(*before, *after));
    EXPECT_EQ(sums.all.count(), 3);
    EXPECT_EQ(sums.byType[u"LINE"_s].changed, 1);
    EXPECT_EQ(sums.byType[u"LINE"_s].removed, 1);
    EXPECT_EQ(sums.byLayer[u"B"_s].changed, 1);
    EXPECT_EQ(sums.byLayer[u"A"_s].added, 1);
}

} // namespace

} // namespace host::drawing
