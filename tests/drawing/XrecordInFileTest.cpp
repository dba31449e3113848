#include "host/drawing/file/XrecordInFile.h"

#include "host/drawing/file/NewDrawing.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/HeaderVariables.h"
#include "tests/drawing/DrawingSample.h"

#include <QBuffer>
#include <QTemporaryDir>

#include <sys/stat.h>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView trackedName = u"KORA_TRACKTIME";
const QString trackedText = trackedName.toString();
const FieldList trackedData = fieldsOf("280 1|90 15|40 2.5|1 čas 1700000000123");

/// Counts what is read.
class CountingBuffer final : public QBuffer
{
public:
    explicit CountingBuffer(QByteArray *bytes) : QBuffer(bytes) { open(ReadOnly | Unbuffered); }
    qint64 count = 0;

protected:
    qint64 readData(char *target, qint64 size) override
    {
        const qint64 got = QBuffer::readData(target, size);
        count += std::max<qint64>(got, 0);
        return got;
    }
};

std::optional<FieldList> readInPieces(QByteArray bytes, const PieceSizes &sizes = {64, 64})
{
    CountingBuffer buffer(&bytes);
    return readXrecord(buffer, trackedName, sizes);
}

/// What whoever reads the whole file finds.
std::optional<FieldList> readWhole(const QByteArray &bytes)
{
    const ReadResult file = Drawing::fromBytes(bytes);
    if (!file || file.drawing->version() < Version::R13)
        return {};
    return file.drawing->dictionaries().xrecord(file.drawing->dictionaries().root(), trackedName);
}

QByteArray manyLines(int count)
{
    QByteArray pairs;
    for (int i = 0; i < count; ++i)
        pairs += "0 LINE\n5 " + QByteArray::number(0x1000 + i, 16) + "\n100 AcDbEntity\n8 0\n10 " +
                 QByteArray::number(i) + ".5\n20 1.0\n30 0.0\n11 2.0\n21 3.0\n31 0.0\n";
    return pairs;
}

/// A drawing with the record and so many lines.
QByteArray tracked(const QByteArray &version, int lineCount, const QString &recordName = trackedText)
{
    const auto drawing = sample(version, manyLines(lineCount));
    Dictionaries &dictionaries = drawing->dictionaries();
    dictionaries.setXrecord(dictionaries.ensureRoot(), recordName, trackedData);
    return drawing->toBytes();
}

QByteArray replaced(QByteArray text, const QByteArray &before, const QByteArray &after)
{
    EXPECT_TRUE(text.contains(before)) << before.toStdString();
    return text.replace(before, after);
}

/// The section OBJECTS and what is behind it.
QByteArray objectsOf(const QByteArray &text)
{
    return text.sliced(text.lastIndexOf("  0\nSECTION\n  2\nOBJECTS"));
}

QByteArray beforeObjects(const QByteArray &text)
{
    return text.first(text.size() - objectsOf(text).size());
}

// Whatever the file is, both ways of reading it say the same.
TEST(XrecordInFile, IsWhatTheWholeFileSays)
{
    const QByteArray text = tracked("AC1027", 40);
    const QByteArray objects = objectsOf(text);
    const QByteArray plain = sampleText("AC1027", manyLines(40));
    const QByteArray comment = "999\n" + QByteArray(3000, 'c') + '\n';
    const QByteArray thumbnail = "  0\nSECTION\n  2\nTHUMBNAILIMAGE\n 90\n4\n310\nAABBCCDD\n  0\nENDSEC\n  0\nEOF\n";
    const QByteArray end = "  0\nENDSEC\n  0\nEOF\n";
    // Text of an entity whose lines look like the start of a section.
    const QByteArray marker =
        tagLines("0 TEXT\n5 F00\n100 AcDbEntity\n8 0\n100 AcDbText\n10 0.0\n20 0.0\n30 0.0\n40 1.0\n"
                 "1 SECTION\n2 OBJECTS\n3 SECTION\n0 TEXT\n5 F01\n100 AcDbEntity\n8 0\n1   0\n"
                 "2 OBJECTS\n1 EOF");
    const std::tuple<const char *, QByteArray, bool> rows[] = {
        {"R2013", text, true},
        {"R14", tracked("AC1014", 40), true},
        {"R12 without objects", sampleText("AC1009", manyLines(40)), false},
        {"R12 that says it has objects", replaced(text, "AC1027", "AC1009"), false},
        {"code page", replaced(tracked("AC1015", 40), "ANSI_1250", "ANSI_1252"), true},
        {"other case of the name", tracked("AC1018", 40, u"Kora_TrackTime"_s), true},
        {"other name", tracked("AC1018", 40, u"KORA_TRACKTIMES"_s), false},
        {"no record", plain, false},
        {"no OBJECTS", beforeObjects(plain) + "  0\nEOF\n", false},
        {"CRLF", replaced(text, "\n", "\r\n"), true},
        {"carriage returns alone", replaced(text, "\n", "\r"), true},
        {"a carriage return in a value", replaced(text, "1700000000123", "17000\r00000123"), true},
        {"blanks around codes", replaced(replaced(text, "  0\n", "   0 \t\n"), "  2\n", " 2 \n"), true},
        {"byte-order mark", "\xEF\xBB\xBF" + text, true},
        {"comments in front", comment + text, true},
        {"comment in the section's start", replaced(text, "  2\nOBJECTS", "999\nhere\n  2\nOBJECTS"), true},
        {"small letters", replaced(text, "\nOBJECTS", "\nobjects"), true},
        {"section behind", text.chopped(8) + thumbnail, true},
        {"text that looks like a marker", replaced(text, objects, "").chopped(10) + marker + "  0\nENDSEC\n" + objects,
         true},
        {"marker in an object",
         replaced(text, "čas ", "čas OBJECTS ").replace("\n280\n1\n 90", "\n280\n1\n  3\nSECTION\n  2\nOBJECTS\n 90"),
         true},
        {"empty section behind the end", text + "  0\nSECTION\n  2\nOBJECTS\n" + end, true},
        {"record behind the end", plain + objects, false},
        {"text behind the end", text + QByteArray(500, 'x'), true},
        {"dangling entry", replaced(text, "\nXRECORD\n", "\nPLACEHOLDER\n"), false},
        {"handle of a line", replaced(text, "\nXRECORD\n", "\nLINE\n"), false},
        {"first object is none", replaced(text, "OBJECTS\n", "OBJECTS\n  0\nPLACEHOLDER\n  5\nFEED\n"), false},
        {"truncated", text.chopped(20), false},
        {"no end", text.chopped(8), false},
        {"empty", {}, false},
        {"blanks", QByteArray(200, '\n'), false},
        {"binary", "AutoCAD Binary DXF\r\n\x1a" + text, false},
        {"DWG", "AC1027" + text, false},
        {"other text", QByteArray("OBJECTS\n").repeated(500), false},
        {"HEADER is not first", "  0\nSECTION\n  2\nCLASSES\n  0\nENDSEC\n" + text, true},
        {"no HEADER", text.sliced(text.indexOf("  0\nSECTION", 10)), false},
    };
    for (const auto &[name, bytes, has] : rows) {
        const std::optional<FieldList> found = readWhole(bytes);
        EXPECT_EQ(found.has_value(), has) << name;
        for (const qint64 piece : {16, 64, 1000, 100'000})
            EXPECT_EQ(readInPieces(bytes, {piece, piece}), found) << name << ' ' << piece;
    }
}

// Of two sections with objects the first counts, which is seen where it is among what is read anyway.
TEST(XrecordInFile, IsOfTheFirstSectionThatIsSeen)
{
    const QByteArray text = tracked("AC1027", 200);
    const QByteArray two = text.chopped(8) + replaced(objectsOf(text), "čas", "cas");
    EXPECT_EQ(readWhole(two), trackedData);
    EXPECT_EQ(readInPieces(two, {1000, 4000}), trackedData);
}

TEST(XrecordInFile, ReadsOnlyBothEndsOfAFile)
{
    QByteArray text = tracked("AC1027", 20'000);
    CountingBuffer buffer(&text);
    EXPECT_EQ(readXrecord(buffer, trackedName), trackedData);
    EXPECT_LT(buffer.count, 100 * 1024);
    QByteArray old = sampleText("AC1009", manyLines(20'000));
    CountingBuffer oldBuffer(&old);
    EXPECT_FALSE(readXrecord(oldBuffer, trackedName).has_value());
    EXPECT_LT(oldBuffer.count, 100 * 1024);
}

TEST(XrecordInFile, IsRightInDrawingsOfOtherPrograms)
{
    SKIP_WITHOUT_CORPUS(forEachCorpusDrawing([](const Drawing &source) {
        const QByteArray bytes = source.toBytes();
        EXPECT_EQ(readInPieces(bytes, {}), readWhole(bytes));
        const auto drawing = readGood(bytes);
        Dictionaries &dictionaries = drawing->dictionaries();
        const bool isSet = isValid(dictionaries.setXrecord(dictionaries.ensureRoot(), trackedText, trackedData));
        for (const qint64 piece : {256, 64 * 1024})
            EXPECT_EQ(readInPieces(drawing->toBytes(), {piece, piece}).has_value(), isSet);
    }));
}

class XrecordFiles : public testing::Test
{
protected:
    QString path(const QString &file) const { return m_folder.filePath(file); }
    QTemporaryDir m_folder;
};

TEST_F(XrecordFiles, AreChangedInOnePlace)
{
    for (const QByteArray &version : {QByteArray("AC1014"), QByteArray("AC1018"), QByteArray("AC1032")}) {
        const QByteArray before = sampleText(version, manyLines(3));
        const QString path = this->path(u"plan.dxf"_s);
        write(path, before);
        EXPECT_EQ(setXrecordInFile(path, trackedText, trackedData).error, QString());
        EXPECT_EQ(xrecordInFile(path, u"kora_tracktime"), trackedData) << version.toStdString();
        const auto drawing = readGood(contents(path));
        if (version != "AC1014") // which the independent reader takes for a later version
            EXPECT_AUDIT_CLEAN(*drawing);
        // Without the record, its entry and the next free handle, nothing is new.
        Dictionaries &dictionaries = drawing->dictionaries();
        const QByteArray record = drawing->bytes(dictionaries.find(dictionaries.root(), trackedName)).toByteArray();
        const QByteArray entry = "  3\nKORA_TRACKTIME\n350\n" +
                                 drawing->handle(dictionaries.find(dictionaries.root(), trackedName)).toHex() + '\n';
        QByteArray after = replaced(replaced(contents(path), record, ""), entry, "");
        const auto old = readGood(before);
        after = replaced(after, drawing->bytes(drawing->header().record(u"$HANDSEED")).toByteArray(),
                         old->bytes(old->header().record(u"$HANDSEED")).toByteArray());
        EXPECT_EQ(after, before);

        const FieldList later = fieldsOf("280 0|90 0|40 3.25|1 1");
        EXPECT_TRUE(setXrecordInFile(path, u"Kora_TrackTime"_s, later));
        EXPECT_EQ(xrecordInFile(path, trackedName), later);
        const QByteArray written = contents(path);
        EXPECT_TRUE(setXrecordInFile(path, trackedText, later));
        EXPECT_EQ(contents(path), written);
    }
}

TEST_F(XrecordFiles, ThatCannotBeChangedStayAndSaySo)
{
    const QByteArray other = replaced(tracked("AC1027", 3), "\nXRECORD\n", "\nPLACEHOLDER\n");
    const std::tuple<QString, QByteArray, QString> rows[] = {
        {u"old.dxf"_s, sampleText("AC1009"), u"no room"_s},
        {u"cut.dxf"_s, sampleText("AC1027").chopped(30), u"line"_s},
        {u"other.dxf"_s, other, u"something else"_s},
        {u"plan.dwg"_s, sampleText("AC1027"), u"cannot write DWG"_s},
        {u"empty.dxf"_s, {}, u"empty"_s},
    };
    for (const auto &[fileName, bytes, reason] : rows) {
        const QString path = this->path(fileName);
        write(path, bytes);
        const SaveResult result = setXrecordInFile(path, trackedText, trackedData);
        EXPECT_FALSE(result);
        EXPECT_TRUE(result.error.startsWith(path) && result.error.contains(reason)) << result.error.toStdString();
        EXPECT_EQ(contents(path), bytes);
    }
    const QString missing = path(u"missing.dxf"_s);
    EXPECT_FALSE(setXrecordInFile(missing, trackedText, trackedData));
    EXPECT_FALSE(QFile::exists(missing));
    EXPECT_FALSE(xrecordInFile(missing, trackedName).has_value());
    EXPECT_FALSE(xrecordInFile(m_folder.path(), trackedName).has_value());
}

TEST_F(XrecordFiles, NeverMakeTheReaderWait)
{
    const QString pipe = path(u"pipe.dxf"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_FALSE(xrecordInFile(pipe, trackedName).has_value());
    EXPECT_FALSE(setXrecordInFile(pipe, trackedText, trackedData));
    // Of holes: larger than a drawing may be, which is told without reading.
    QFile huge(path(u"huge.dxf"_s));
    ASSERT_TRUE(huge.open(QIODevice::WriteOnly) && huge.resize(5LL * 1024 * 1024 * 1024));
    EXPECT_FALSE(xrecordInFile(huge.fileName(), trackedName).has_value());
    EXPECT_FALSE(setXrecordInFile(huge.fileName(), trackedText, trackedData));
    QByteArray blank = sampleText("AC1027") + QByteArray(4'000'000, '\0');
    CountingBuffer buffer(&blank);
    EXPECT_FALSE(readXrecord(buffer, trackedName).has_value());
    EXPECT_LT(buffer.count, 2 * blank.size()) << "no part is read three times";
}

} // namespace
} // namespace host::drawing
