// DWG files as drawings: what a made file holds is there, and nothing is written over it. That each value of each type
// comes out right is looked at beside the reader itself.

#include "host/drawing/dwg/DwgText.h"
#include "host/drawing/file/Recovery.h"
#include "host/drawing/file/Save.h"
#include "host/drawing/file/XrecordInFile.h"
#include "host/drawing/geometry/TransformEntity.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/solids/SolidModel.h"
#include "tests/drawing/DrawingSample.h"
#include "tests/dwg/making/BinaryModel.h"
#include "tests/dwg/making/Circles.h"
#include "tests/dwg/making/EarlyFileMaker.h"
#include "tests/dwg/making/MadeDrawing.h"
#include "tests/dwg/making/TypeNumbers.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtEndian>

#include <random>
#include <sys/stat.h>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

using dwg::Release;
using dwg::test::MadeDrawing;
using dwg::test::ObjectWriter;

constexpr quint64 firstCircle = dwg::test::MadeHandles::First;
constexpr int circleCount = 3;

QByteArray bytesOf(const dwg::test::FileBytes &file)
{
    return {reinterpret_cast<const char *>(file.data()), qsizetype(file.size())};
}

QByteArray fileWithALoss()
{
    return bytesOf(dwg::test::circlesFile(Release::R2000, circleCount, 1));
}

class DwgReleases : public testing::TestWithParam<Release>
{
};

TEST_P(DwgReleases, OpenAsDrawingsThatAreSavedAsDxf)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"made.dwg"_s);
    const QByteArray file = bytesOf(dwg::test::circlesFile(GetParam(), circleCount));
    write(path, file);
    ReadResult read = Drawing::open(path);
    ASSERT_TRUE(read) << read.error.message().toStdString();
    Drawing &drawing = *read.drawing;
    EXPECT_TRUE(drawing.isFromDwg());
    EXPECT_EQ(int(drawing.version()), int(GetParam()));
    EXPECT_FALSE(drawing.readingNotes().hasFaults());
    EXPECT_FALSE(drawing.journal().isModified());
    EXPECT_EQ(drawing.entities().all().size(), std::size_t(circleCount));
    EXPECT_EQ(drawing.fields(drawing.find(Handle{firstCircle})),
              drawing.fields(readGood(drawing.toBytes())->find(Handle{firstCircle})));
    EXPECT_AUDIT_CLEAN(drawing);

    const QByteArray before = drawing.toBytes();
    drawing.setErased(drawing.find(Handle{firstCircle}), true);
    EXPECT_FALSE(save(drawing, path));
    EXPECT_EQ(contents(path), file) << "a DWG file is never written";
    drawing.journal().undo();
    EXPECT_EQ(drawing.toBytes(), before);
    const QString saved = folder.filePath(u"made.dxf"_s);
    ASSERT_TRUE(save(drawing, saved));
    EXPECT_EQ(contents(saved), before);
    EXPECT_FALSE(isDwgFile(saved));
    EXPECT_TRUE(isDwgFile(path));
}

INSTANTIATE_TEST_SUITE_P(Drawing, DwgReleases,
                         testing::Values(Release::R13, Release::R14, Release::R2000, Release::R2004, Release::R2007,
                                         Release::R2010, Release::R2013, Release::R2018),
                         [](const auto &row) { return "AC" + std::to_string(int(row.param)); });

TEST(DwgFiles, TellWhatCouldNotBeRead)
{
    const ReadResult read = Drawing::fromBytes(fileWithALoss());
    ASSERT_TRUE(read);
    const ReadingNotes &notes = read.drawing->readingNotes();
    EXPECT_EQ(notes.summary(), u"1 object could not be read"_s);
    EXPECT_EQ(notes.faults(10), QStringList{u"CIRCLE 43 could not be read: The object ends before its values do."_s});
    EXPECT_EQ(notes.faults(0), QStringList{u"and 1 more"_s});
    EXPECT_EQ(read.drawing->entities().all().size(), std::size_t(circleCount));

    const Recovered recovered = recoverDrawing(fileWithALoss());
    ASSERT_TRUE(recovered);
    EXPECT_EQ(recovered.report.dropped(), (QMap<QString, qint64>{{u"CIRCLE"_s, 1}}));
    EXPECT_EQ(recovered.drawing->entities().all().size(), std::size_t(circleCount));
}

TEST(DwgFiles, CountPartsOfTheFileApart)
{
    QByteArray file = fileWithALoss();
    // The second section of the table at the beginning has the classes, whose mark is damaged.
    const auto classes = qFromLittleEndian<quint32>(file.constData() + 0x19 + 9 + 1);
    file[classes] = char(~file[classes]);
    const ReadResult read = Drawing::fromBytes(file);
    ASSERT_TRUE(read);
    EXPECT_EQ(read.drawing->readingNotes().summary(), u"1 object and 1 part of the file could not be read"_s);

    const std::tuple<int, int, QString> rows[] = {
        {0, 0, {}},
        {0, 1, u"1 part of the file could not be read"_s},
        {0, 2, u"2 parts of the file could not be read"_s},
        {1, 3, u"1 object and 3 parts of the file could not be read"_s},
        {4, 0, u"4 objects could not be read"_s},
        {4, 1, u"4 objects and 1 part of the file could not be read"_s},
        {1000, 5, u"1000 objects and 5 parts of the file could not be read"_s},
    };
    for (const auto &[objects, parts, sentence] : rows)
        EXPECT_EQ((ReadingNotes{.lostObjects = objects, .lostParts = parts, .list = {}}).summary(), sentence);
}

TEST(DwgFiles, ListWhatIsLostInFront)
{
    using Kind = ReadingNote::Kind;
    const ReadingNotes notes{.lostObjects = 1,
                             .lostParts = 1,
                             .doubtfulCount = 2,
                             .mendedCount = 1,
                             .list = {{Kind::Doubtful, u"LINE"_s, u"2A"_s, u"a"_s},
                                      {Kind::Kept, {}, {}, u"b"_s},
                                      {Kind::Mended, {}, {}, u"m"_s},
                                      {Kind::Doubtful, {}, {}, u"c"_s},
                                      {Kind::Lost, {}, u"2B"_s, u"d"_s},
                                      {Kind::Lost, {}, {}, u"e"_s}}};
    const QString object = u"object 2B could not be read: d"_s;
    const QString line = u"LINE 2A may be wrong: a"_s;
    EXPECT_EQ(notes.faults(3), (QStringList{object, u"e"_s, line, u"and 2 more"_s}));
    EXPECT_EQ(notes.faults(5), (QStringList{object, u"e"_s, line, u"c"_s, u"m"_s}));
    EXPECT_EQ((ReadingNotes{.doubtfulCount = 1, .mendedCount = 1, .list = {}}).summary(),
              u"some of the file is not as expected; what was read of it may be wrong"_s);
    const ReadingNotes mended{.mendedCount = 1, .list = {}};
    EXPECT_EQ(mended.summary(), u"the file is damaged; the drawing is whole"_s);
    EXPECT_TRUE(mended.hasFaults());
    EXPECT_FALSE(mended.hasLost());
}

TEST(DwgFiles, HaveRegionsWithTheirModels)
{
    for (const Release release : {Release::R2007, Release::R2010}) {
        constexpr int regionType = 0x25;
        MadeDrawing made(release);
        made.addEntity(regionType,
                       [](ObjectWriter &o) { dwg::test::writeSolid(o, dwg::test::triangleModel(), false); });
        const ReadResult read = Drawing::fromBytes(bytesOf(made.file()));
        ASSERT_TRUE(read);
        EXPECT_FALSE(read.drawing->readingNotes().hasFaults());
        const RecordId region = read.drawing->find(Handle{dwg::test::MadeHandles::First});
        for (const double x : {1.0, 11.0}) {
            const SolidModel model = readSolidModel(read.drawing->tags(region));
            ASSERT_EQ(model.edges.size(), 3u);
            EXPECT_EQ(model.edges[0][0].startPoint(), (Vec3{x, 2.0, 0.0}));
            EXPECT_EQ(model.edges[1][0].endPoint(), (Vec3{x + 4.0, 5.0, 0.0}));
            const auto measures = measureRegion(model);
            ASSERT_TRUE(measures);
            EXPECT_DOUBLE_EQ(measures->area, 6.0);
            EXPECT_DOUBLE_EQ(measures->perimeter, 12.0);
            ASSERT_TRUE(transformEntity(*read.drawing, region, Matrix::translation({10.0, 0.0, 0.0})));
        }
        EXPECT_AUDIT_CLEAN(*read.drawing);
    }
}

TEST(DwgFiles, AreNoPipesToWaitFor)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"pipe.dwg"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    EXPECT_FALSE(isDwgFile(path));
}

TEST(DwgFiles, ThatCannotBeReadAtAllAreRefused)
{
    for (const QByteArray &bytes : {QByteArray("AC1015......"), QByteArray("AC9999") + QByteArray(500, '\1'),
                                    fileWithALoss().first(90), QByteArray("AC1032") + QByteArray(4096, '\0')}) {
        const ReadResult read = Drawing::fromBytes(bytes);
        EXPECT_FALSE(read);
        EXPECT_TRUE(read.error.message().startsWith(u"this DWG file cannot be read: "_s))
            << read.error.message().toStdString();
        EXPECT_EQ(recoverDrawing(bytes).error.message(), read.error.message());
    }
}

/// Whatever is changed in a file, what is read of it is a drawing; `count` times.
void expectDrawingsOfChanged(const QByteArray &file, int count, const std::string &name)
{
    std::mt19937 random(17);
    for (int run = 0; run < count; ++run) {
        QByteArray changed = file;
        for (unsigned left = 1 + random() % 20; left > 0; --left)
            changed[qsizetype(6 + random() % unsigned(file.size() - 6))] = char(random());
        const ReadResult read = Drawing::fromBytes(changed);
        EXPECT_FALSE(read.isDamaged) << name << ", run " << run << ": " << read.error.message().toStdString();
    }
}

TEST(DwgFiles, ThatAreDamagedMakeDrawingsOrNothing)
{
    for (const Release release : {Release::R13, Release::R2000, Release::R2004, Release::R2007, Release::R2018})
        expectDrawingsOfChanged(bytesOf(dwg::test::circlesFile(release, circleCount)), 200,
                                std::to_string(int(release)));
    const QString corpus = qEnvironmentVariable("ORTAKIT_CORPUS");
    SKIP_WITHOUT_CORPUS(!corpus.isEmpty());
    for (const QString &name : QDir(corpus + u"/../dwg"_s).entryList({u"*.dwg"_s}))
        expectDrawingsOfChanged(contents(corpus + u"/../dwg/"_s + name), 20, name.toStdString());
}

struct PageRow
{
    int number;
    const char *bytes;
    QString text;
};

TEST(DwgFiles, HaveTextsInThePageThatTheyTell)
{
    const PageRow rows[] = {
        {3, "\xF8", u"ř"_s},
        {11, "\x8E\x94\xE1\x82", u"Äößé"_s},
        {12, "\x8E\x94\xE1\x82\x9B", u"Äößéø"_s},
        {13, "\xFD", u"ř"_s},
        {22, "\x83\x5E", u"タ"_s},
        {23, "\x80", u"Ä"_s},
        {24, "\xA6\x5E", u"回"_s},
        {25, "\xC7\xD1", u"한"_s},
        {26, "\xD0\x65", u"한"_s},
        {27, "\x91", u"С"_s},
        {28, "\xF8", u"ř"_s},
        {29, "\xD1", u"С"_s},
        {30, "\xC4", u"Ä"_s},
        {31, "\xD6\xD0", u"中"_s},
        {32, "\xC1", u"Α"_s},
        {33, "\xFD", u"ı"_s},
        {34, "\xF9", u"ש"_s},
        {35, "\xC7", u"ا"_s},
        {36, "\xE0", u"ą"_s},
        {37, "\xA1", u"ก"_s},
        {38, "\x95\x5C\x83\x5E^", u"表タ^"_s},
        {39, "\xD6\xD0\xB6^", u"中禴"_s},
        {40, "\xC7\xD1", u"한"_s},
        {41, "\xA4\xA4", u"中"_s},
        {42, "\xD0\x65", u"한"_s},
        {44, "\xD0", u"Đ"_s},
    };
    for (const Release release : {Release::R13, Release::R2000, Release::R2004}) {
        for (const PageRow &row : rows) {
            MadeDrawing made(release);
            made.setCodePage(row.number);
            made.addText(row.bytes, row.bytes);
            const ReadResult read = Drawing::fromBytes(bytesOf(made.file()));
            ASSERT_TRUE(read) << read.error.message().toStdString();
            EXPECT_FALSE(read.drawing->readingNotes().hasFaults());
            const Dictionaries &dictionaries = read.drawing->dictionaries();
            EXPECT_EQ(dictionaries.xrecord(dictionaries.root(), row.text), FieldList({{1, row.text}})) << row.number;
        }
    }
}

TEST(DwgFiles, BeforeR13HaveTheLettersThatTheyAreWrittenWith)
{
    for (const Release release : {Release::R9, Release::R10, Release::R12}) {
        dwg::test::EarlyFileMaker made(release);
        made.addRecord(dwg::EarlyTableKind::Layers, 0, "H\x94he_\xE1\x82\x8E", "w7 w0");
        const ReadResult read = Drawing::fromBytes(bytesOf(made.file()));
        ASSERT_TRUE(read) << read.error.message().toStdString();
        EXPECT_EQ(read.drawing->readingNotes().doubtfulCount, 1);
        EXPECT_TRUE(isValid(read.drawing->tables().find(TableKind::Layer, u"Höhe ßéÄ")));
        // Saved as DXF they keep them.
        EXPECT_TRUE(isValid(readGood(read.drawing->toBytes())->tables().find(TableKind::Layer, u"Höhe ßéÄ")));
    }
}

TEST(DwgFiles, HaveNoRecordsWithinRecords)
{
    MadeDrawing made(Release::R2000);
    made.addObject(dwg::test::XrecordType, "BROKEN", [](ObjectWriter &o) {
        o.int32(2 * (2 + 2 + 1) + 3 + 1); // bytes of two texts under their codes
        for (const auto &[code, text] : {std::pair{0, "EOF"}, {1, "x"}}) {
            o.values().raw16(static_cast<std::uint32_t>(code));
            o.values().raw16(static_cast<std::uint32_t>(std::string_view(text).size()));
            o.values().byte(0x1e); // the code page
            o.values().rawBytes(text);
        }
        o.int16(1);
    });
    const ReadResult read = Drawing::fromBytes(bytesOf(made.file()));
    ASSERT_TRUE(read) << read.error.message().toStdString();
    EXPECT_EQ(read.drawing->readingNotes().doubtfulCount, 1);
    EXPECT_EQ(read.drawing->dictionaries().xrecord(read.drawing->dictionaries().root(), u"BROKEN"), fieldsOf("1 x"));
}

TEST(DwgFiles, GiveTheirRecordsAndTakeNone)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"timed.dwg"_s);
    MadeDrawing made(Release::R2000);
    made.addObject(dwg::test::XrecordType, "TIMES", [](ObjectWriter &o) {
        o.int32(2 + 4); // bytes of one number of 32 bits under its code
        o.values().raw16(90);
        o.values().raw32(4711);
        o.int16(1); // how records of other drawings are treated
    });
    const QByteArray file = bytesOf(made.file());
    write(path, file);
    QString error;
    const std::optional<FieldList> data = xrecordInFile(path, u"TIMES", &error);
    ASSERT_TRUE(data) << error.toStdString();
    EXPECT_EQ(*data, fieldsOf("90 4711"));
    EXPECT_TRUE(setXrecordInFile(path, u"TIMES"_s, fieldsOf("90 1")).error.contains(u"cannot write DWG files"_s));
    EXPECT_EQ(contents(path), file);
}

TEST(DwgFiles, OfOtherProgramsAreWhole)
{
    const QString corpus = qEnvironmentVariable("ORTAKIT_CORPUS");
    SKIP_WITHOUT_CORPUS(!corpus.isEmpty());
    for (const QString &folder : {corpus, corpus + u"/../dwg"_s}) {
        for (const QString &name : QDir(folder).entryList({u"*.dwg"_s})) {
            const ReadResult read = Drawing::open(QDir(folder).filePath(name));
            ASSERT_TRUE(read) << name.toStdString() << ": " << read.error.message().toStdString();
            EXPECT_EQ(read.drawing->readingNotes().faults(10), QStringList()) << name.toStdString();
            // The same text as DXF has nothing that recovering would mend.
            const Recovered recovered = recoverDrawing(read.drawing->toBytes());
            EXPECT_TRUE(recovered && recovered.report.isEmpty()) << name.toStdString();
            // The independent reader does not know what is older.
            if (read.drawing->version() >= Version::R12)
                EXPECT_AUDIT_CLEAN(*read.drawing);
        }
    }
}

} // namespace
} // namespace host::drawing
