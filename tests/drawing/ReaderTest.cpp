#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/Journal.h"
#include "tests/drawing/DrawingSample.h"

#include <QDir>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

QByteArray withLineEnds(QByteArray text, const QByteArray &lineEnd)
{
    return text.replace("\n", lineEnd);
}

const QByteArray oldLine = "0 LINE\n5 50\n8 0\n10 0\n20 0\n30 0\n11 1\n21 1\n31 0\n";

/// What must read, and be written as it was.
TEST(Reader, KeepsOddFilesAsTheyAre)
{
    const QByteArray plain = sampleText("AC1009", oldLine);
    const std::pair<const char *, QByteArray> rows[] = {
        {"plain", plain},
        {"CR LF", withLineEnds(plain, "\r\n")},
        {"CR alone", withLineEnds(plain, "\r")},
        {"CR CR LF", withLineEnds(plain, "\r\r\n")},
        {"mixed line ends", withLineEnds(plain.first(200), "\r\n") + plain.mid(200)},
        {"CR and LF mixed", withLineEnds(plain.first(200), "\r") + plain.mid(200)},
        {"no padding", plain.trimmed().replace("\n  ", "\n").replace("\n ", "\n")},
        {"blanks behind codes", QByteArray(plain).replace("  0\n", "  0 \t\n")},
        {"no final line end", plain.chopped(1)},
        {"bytes behind EOF", plain + "and more\n\n\x1A"},
        {"tags behind EOF", plain + "  0\nSECTION\n"},
        {"comment on top", "999\nmade by hand\n" + plain},
        {"comment inside", QByteArray(plain).replace("  8\n0\n", "999\nhere\n  8\n0\n")},
        {"byte order mark", "\xEF\xBB\xBF" + plain},
        {"lower-case structure", QByteArray(plain).replace("SECTION", "section").replace("EOF", "eof")},
        {"unknown section",
         QByteArray(plain).replace("  0\nEOF", tagLines("0 SECTION\n2 MINE\n0 THING\n1 x\n0 ENDSEC\n") + "  0\nEOF")},
        {"numbers spelt oddly", QByteArray(plain).replace(" 10\n0\n", " 10\n  +1.50E+01  \n")},
        {"bytes of no encoding", QByteArray(plain).replace("  8\n0\n", "  8\n\x81\xFF\xC3\n")},
        {"handle twice", sampleText("AC1009", oldLine + oldLine)},
        {"vertex without polyline", sampleText("AC1009", "0 VERTEX\n8 0\n10 0\n20 0\n30 0\n0 SEQEND\n8 0")},
        {"polyline without end", sampleText("AC1009", "0 POLYLINE\n8 0\n0 VERTEX\n8 0\n" + oldLine)},
        {"EOF alone", "0\nEOF\n"},
        {"negative count", QByteArray(plain).replace(" 70\n1\n", " 70\n-2147483648\n")},
    };
    for (const auto &[name, bytes] : rows) {
        SCOPED_TRACE(name);
        const ReadResult result = Drawing::fromBytes(bytes);
        ASSERT_TRUE(result) << result.error.message().toStdString();
        EXPECT_EQ(result.drawing->toBytes(), bytes);
        EXPECT_FALSE(result.drawing->journal().isModified());
    }
}

TEST(Reader, SaysWhatIsWrongAndWhere)
{
    const QByteArray head = tagLines("0 SECTION\n2 TABLES\n");
    const std::tuple<const char *, QByteArray, QByteArray> rows[] = {
        {"empty", "", "the file is empty"},
        {"blank", " \r\n\r\n", "the file is empty"},
        {"binary without tags", binaryMark().toByteArray(),
         "tag 1 of the binary file: the file is cut off: it ends before EOF"},
        {"binary with a code too large", binaryMark().toByteArray() + QByteArray("\0\0SECTION\0\x30\x04", 12),
         "tag 2 of the binary file: group code expected, found 1072"},
        {"binary with a record too many", binaryMark().toByteArray() + QByteArray("\0\0LINE\0\0\0EOF\0", 13),
         "tag 1 of the binary file: this is not a DXF file: section expected, found \"LINE\""},
        {"binary sent as text", QByteArray("AutoCAD Binary DXF\n\x1A\0", 21),
         "this is a binary DXF file whose first bytes are damaged, as by a transfer as text"},
        {"packed", QByteArray("\x1F\x8B\x08\0", 4), "this is a packed file; unpack it first"},
        {"UTF-16", QByteArray("\xFF\xFE\x30\0\r\0\n\0", 8), "this is a UTF-16 text file, not a DXF file"},
        {"picture", QByteArray("\x89PNG\r\n\x1A\n\0\0", 10),
         "line 1: this is not a DXF file: group code expected, found \"?PNG\""},
        {"text", "Dear Sir,\nhello\n", "line 1: this is not a DXF file: group code expected, found \"Dear Sir,\""},
        {"numbers", "1\n2\n3\n4\n", "line 5: this is not a DXF file: it has no sections"},
        {"entity first", "0\nLINE\n8\n0\n", "line 2: this is not a DXF file: section expected, found \"LINE\""},
        {"line lost", head + "abc\n", "line 5: group code expected, found \"abc\""},
        {"code too large", head + "1072\nx\n", "line 5: group code expected, found \"1072\""},
        {"code with letters", head + " 10x\n5\n", "line 5: group code expected, found \" 10x\""},
        {"long line quoted short", head + QByteArray(60, 'x') + "\n",
         "line 5: group code expected, found \"" + QByteArray(40, 'x') + "...\""},
        {"no section name", tagLines("0 SECTION\n0 ENDSEC\n0 EOF\n"), "line 4: the section has no name"},
        {"entry without table", head + tagLines("0 LAYER\n2 A\n"),
         "line 6: \"LAYER\" stands outside of the tables: TABLE is missing"},
        {"table in table", head + tagLines("0 TABLE\n2 LAYER\n0 TABLE\n"),
         "line 10: TABLE inside a table: ENDTAB is missing"},
        {"table not closed", head + tagLines("0 TABLE\n2 LAYER\n0 ENDSEC\n"),
         "line 10: the section ends inside a table: ENDTAB is missing"},
        {"block in block", tagLines("0 SECTION\n2 BLOCKS\n0 BLOCK\n2 A\n0 BLOCK\n"),
         "line 10: BLOCK inside a block: ENDBLK is missing"},
        {"section in section", head + tagLines("0 SECTION\n"), "line 6: SECTION inside a section: ENDSEC is missing"},
        {"end in section", head + tagLines("0 EOF\n"), "line 6: EOF inside a section: ENDSEC is missing"},
        {"record between sections", head + tagLines("0 ENDSEC\n0 LINE\n"),
         "line 8: \"LINE\" stands outside of the sections"},
        {"cut off", head + tagLines("0 ENDSEC\n"), "line 7: the file is cut off: it ends before EOF"},
        {"cut off behind a code", head + tagLines("0 ENDSEC\n") + "  0\n",
         "line 8: the file is cut off: it ends before EOF"},
    };
    for (const auto &[name, bytes, message] : rows) {
        SCOPED_TRACE(name);
        const ReadResult result = Drawing::fromBytes(bytes);
        ASSERT_FALSE(result);
        EXPECT_EQ(result.error.message().toUtf8(), message);
    }
}

TEST(Reader, FilesThatCannotBeOpenedAreNamed)
{
    for (const QString &path : {u"/nowhere/at/all.dxf"_s, QDir::tempPath()}) {
        const ReadResult result = Drawing::open(path);
        EXPECT_FALSE(result);
        EXPECT_TRUE(result.error.message().contains(path)) << result.error.message().toStdString();
    }
}

/// Wherever a file is cut, it is refused with a oldLine of the file, or was whole.
TEST(Reader, RefusesFilesCutOffAnywhere)
{
    const QByteArray whole = contents(dataFile(u"r2000_codepage.dxf"_s));
    const qsizetype end = whole.lastIndexOf("EOF") + 3;
    for (qsizetype length = 0; length < whole.size(); ++length) {
        const QByteArray cut = whole.first(length);
        const ReadResult result = Drawing::fromBytes(cut);
        if (result) {
            ASSERT_GE(length, end);
            ASSERT_EQ(result.drawing->toBytes(), cut);
            continue;
        }
        ASSERT_LT(length, end) << result.error.message().toStdString();
        ASSERT_FALSE(result.error.text.isEmpty());
        ASSERT_LE(result.error.line, cut.count('\n') + 1);
    }
}

/// Bytes changed anywhere never bring the reader down, and what it takes it writes back.
TEST(Reader, SurvivesDamage)
{
    const QByteArray whole = contents(dataFile(u"r2018_objects.dxf"_s));
    for (qsizetype at = 0; at < whole.size(); at += 3) {
        for (const char damage : {'\0', '\n', '\r', '9', '{', '\xFF'}) {
            QByteArray damaged = whole;
            damaged[at] = damage;
            const ReadResult result = Drawing::fromBytes(damaged);
            if (!result)
                continue;
            ASSERT_EQ(result.drawing->toBytes(), damaged);
            for (RecordId id = result.drawing->first(); isValid(id); id = result.drawing->next(id))
                result.drawing->fields(id);
        }
    }
}

void expectRoundTrip(const QByteArray &bytes)
{
    const auto drawing = readGood(bytes);
    EXPECT_EQ(drawing->toBytes(), bytes);
    // Handing every record its own fields back changes nothing, however they are spelt.
    for (RecordId id = drawing->first(); isValid(id); id = drawing->next(id))
        EXPECT_FALSE(drawing->setFields(id, drawing->fields(id))) << drawing->bytes(id).toByteArray().toStdString();
    EXPECT_FALSE(drawing->journal().isModified());
}

TEST(Reader, DrawingsOfThisAndOtherProgramsRoundTrip)
{
    const QStringList names = QDir(dataFile({})).entryList({u"*.dxf"_s}, QDir::Files);
    EXPECT_FALSE(names.isEmpty());
    for (const QString &name : names)
        expectRoundTrip(contents(dataFile(name)));
    SKIP_WITHOUT_CORPUS(
        forEachCorpusDrawing([](const Drawing &drawing) { expectRoundTrip(contents(drawing.path())); }));
}

TEST(Reader, FindsEverythingByPlaceAndHandle)
{
    const auto drawing =
        sample("AC1015",
               "0 INSERT\n5 60\n330 1F\n100 AcDbEntity\n8 0\n100 AcDbBlockReference\n66 1\n2 A\n10 1\n"
               "20 2\n0 ATTRIB\n5 61\n330 60\n8 0\n0 SEQEND\n5 62\n330 60\n8 0\n" +
                   oldLine,
               "0 BLOCK\n5 70\n330 1\n8 0\n2 A\n70 2\n10 0\n20 0\n0 LINE\n5 71\n8 0\n0 ENDBLK\n5 72\n8 0\n");
    const RecordId insert = drawing->find({0x60});
    ASSERT_TRUE(isValid(insert));
    EXPECT_EQ(drawing->kind(insert), RecordKind::Entity);
    EXPECT_EQ(drawing->owner(insert), Handle{0x1F});
    EXPECT_EQ(drawing->children(insert), std::vector{drawing->find({0x61})});
    EXPECT_EQ(drawing->endOf(insert), drawing->find({0x62}));
    EXPECT_EQ(drawing->entities().all(), (std::vector{insert, drawing->find({0x50})}));
    EXPECT_EQ(drawing->parent(drawing->find({0x71})), drawing->find({0x70}));
    EXPECT_EQ(drawing->endOf(drawing->find({0x70})), drawing->find({0x72}));
    EXPECT_FALSE(isValid(drawing->find({0x999})));
    EXPECT_FALSE(isValid(drawing->find({})));
    std::vector<RecordId> walked;
    for (RecordId id = drawing->entities().nextOfAll(noRecord); isValid(id); id = drawing->entities().nextOfAll(id))
        walked.push_back(id);
    EXPECT_EQ(walked.size(), 4U);
    const RecordId tail = drawing->previous(drawing->endOf(drawing->sectionRecord(Section::Entities)));
    EXPECT_EQ(tail, drawing->find({0x50}));
}

TEST(Reader, HeaderVariablesByName)
{
    const auto drawing = sample("AC1015");
    EXPECT_EQ(drawing->version(), Version::R2000);
    EXPECT_EQ(drawing->header().text(u"$acadver"), u"AC1015"_s);
    EXPECT_FALSE(drawing->header().get(u"$NOTHERE").has_value());
    EXPECT_TRUE(drawing->header().set(u"$INSBASE", {10, Vec3{1, 2, 3}}));
    EXPECT_EQ(drawing->header().point(u"$INSBASE"), (Vec3{1, 2, 3}));
    EXPECT_TRUE(drawing->header().set(u"$LTSCALE", {40, 2.5}));
    drawing->header().set(u"$LIMMAX", {10, Vec2{1, 2}});
    EXPECT_TRUE(drawing->header().set(u"$limmax", {10, Vec3{3, 4, 5}}));
    EXPECT_EQ(drawing->header().get(u"$LIMMAX"), (Field{10, Vec2{3, 4}})) << "a flat point stays flat";
    EXPECT_TRUE(drawing->toBytes().contains("  9\n$LTSCALE\n 40\n2.5\n  9\n$LIMMAX\n"));
}

} // namespace
} // namespace host::drawing
