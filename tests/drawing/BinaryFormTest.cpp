#include "host/drawing/editing/CopyBetweenDrawings.h"
#include "host/drawing/file/FileBytes.h"
#include "host/drawing/file/Save.h"
#include "host/drawing/file/XrecordInFile.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/Journal.h"
#include "tests/drawing/DrawingSample.h"

#include <QDir>
#include <QTemporaryDir>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

const QByteArray marked =
    "0 TEXT\n5 50\n330 1F\n100 AcDbEntity\n8 0\n100 AcDbText\n10 1.5\n20 2.5\n30 0\n40 1\n1 MARK\n"
    "0 POINT\n5 51\n330 1F\n100 AcDbEntity\n8 0\n100 AcDbPoint\n10 1\n20 2\n30 0\n";

std::unique_ptr<Drawing> asBinary(const QByteArray &text)
{
    auto drawing = readGood(text);
    drawing->setForm(FileForm::Binary);
    return drawing;
}

/// A binary drawing of a version that has these bytes of a tag where the text MARK was.
QByteArray withTag(const QByteArray &version, const QByteArray &tag)
{
    QByteArray bytes = fileBytes(*asBinary(sampleText(version, marked)));
    const QByteArray mark =
        (version == "AC1009" ? QByteArray("\1", 1) : QByteArray("\1\0", 2)) + QByteArray("MARK\0", 5);
    EXPECT_EQ(bytes.count(mark), 1);
    return bytes.replace(mark, tag);
}

#define BYTES(text) QByteArray(text, sizeof text - 1)

struct OddTag
{
    const char *name;
    QByteArray tag; ///< behind the second byte of the code, which is 0
    QString fields; ///< what is in the tag's place when the drawing is read
};

const OddTag oddTags[] = {
    {"negative zero", BYTES("\x28\0\0\0\0\0\0\0\0\x80"), u"-0.0"_s},
    {"least number", BYTES("\x28\0\1\0\0\0\0\0\0\0"), u"5e-324"_s},
    {"a third", BYTES("\x28\0\x55\x55\x55\x55\x55\x55\xD5\x3F"), u"0.3333333333333333"_s},
    {"no number with a payload", BYTES("\x28\0\x39\x05\0\0\0\0\xF8\x7F"), u"nan"_s},
    {"infinite", BYTES("\x28\0\0\0\0\0\0\0\xF0\xFF"), u"-inf"_s},
    {"least short", BYTES("\x46\0\0\x80"), u"-32768"_s},
    {"least long", BYTES("\x5A\0\0\0\0\x80"), u"-2147483648"_s},
    {"wide", BYTES("\xA0\0\xFF\xFF\xFF\xFF\xFF\xFF\xFF\x7F"), u"9223372036854775807"_s},
    {"empty text", BYTES("\1\0\0"), u""_s},
    {"line ends within", BYTES("\1\0a\nb\r\0"), u"a^Jb^M"_s},
    {"carets", BYTES("\1\0a^Jb^M\0"), u"a^Jb^M"_s},
    {"bytes of no encoding", BYTES("\1\0\x81\xFF\0"), QString()},
};

/// What the tag is in a file with codes of one byte.
QByteArray narrow(QByteArray tag)
{
    return tag.remove(1, 1);
}

TEST(BinaryForm, KeepsOddTagsAsTheyAre)
{
    for (const QByteArray version : {"AC1009", "AC1015", "AC1032"}) {
        for (const OddTag &row : oddTags) {
            SCOPED_TRACE(row.name);
            const QByteArray tag = version == "AC1009" ? narrow(row.tag) : row.tag;
            const QByteArray bytes = withTag(version, tag);
            const auto drawing = readGood(bytes);
            EXPECT_EQ(drawing->form(), FileForm::Binary);
            EXPECT_FALSE(drawing->journal().isModified());
            EXPECT_EQ(fileBytes(*drawing), bytes);
            const TagList tags = drawing->tags(drawing->find({0x50}));
            if (!row.fields.isNull()) {
                EXPECT_EQ(QString::fromLatin1(tags[tags.size() - 1].value), row.fields);
            }
            ASSERT_TRUE(drawing->setErased(drawing->find({0x51}), true));
            EXPECT_TRUE(fileBytes(*drawing).contains(tag)) << "another record was changed";
        }
    }
}

TEST(BinaryForm, KeepsWhatOnlySomeFilesHave)
{
    const std::tuple<const char *, QByteArray, QByteArray> rows[] = {
        {"boolean of two", "AC1015", BYTES("\x22\1\2")},
        {"comment", "AC1015", BYTES("\xE7\3c\0")},
        {"long data", "AC1015", BYTES("\x36\1\xFF") + QByteArray(255, '\xAB')},
        {"no data", "AC1015", BYTES("\x36\1\0")},
        {"negative code", "AC1015", BYTES("\xFE\xFFx\0")},
        {"narrow codes, extended data", "AC1009",
         BYTES("\xFF\xE9\3"
               "ACAD\0\xFF\x2E\4\1\2")},
        {"code longer than needed", "AC1009", BYTES("\xFF\1\0x\0")},
        {"code of 254", "AC1009", BYTES("\xFEx\0")},
        {"code of 255", "AC1009", BYTES("\xFF\xFF\0x\0")},
    };
    for (const auto &[name, version, tag] : rows) {
        SCOPED_TRACE(name);
        const QByteArray bytes = withTag(version, tag);
        EXPECT_EQ(fileBytes(*readGood(bytes)), bytes);
        EXPECT_EQ(fileBytes(*readGood(bytes + BYTES("\x1A\0end"))), bytes + BYTES("\x1A\0end")) << "behind EOF";
    }
}

/// The same in both forms: every record has the same fields.
void expectSameDrawing(const Drawing &one, const Drawing &other)
{
    RecordId there = other.first();
    for (RecordId id = one.first(); isValid(id) && one.kind(id) != RecordKind::Tail; id = one.next(id)) {
        ASSERT_TRUE(isValid(there));
        EXPECT_EQ(one.typeName(id).trimmed(), other.typeName(there).trimmed());
        EXPECT_TRUE(one.fields(id) == other.fields(there)) << one.bytes(id).toByteArray().toStdString();
        there = other.next(there);
    }
    EXPECT_FALSE(isValid(there));
}

void expectBothForms(const QByteArray &text)
{
    const auto drawing = asBinary(text);
    const QByteArray bytes = fileBytes(*drawing);
    const auto binary = readGood(bytes);
    expectSameDrawing(*drawing, *binary);
    EXPECT_EQ(fileBytes(*binary), bytes);
    expectSameDrawing(*drawing, *readGood(binary->toBytes()));
}

TEST(BinaryForm, HoldsTheSameDrawingAsText)
{
    for (const QByteArray version : {"AC1009", "AC1012", "AC1015", "AC1032"}) {
        expectBothForms(sampleText(version, marked));
        EXPECT_AUDIT_CLEAN(*asBinary(sampleText(version, marked)));
    }
    for (const QString &name : {u"r12_plain.dxf"_s, u"r2000_codepage.dxf"_s, u"r2018_objects.dxf"_s})
        expectBothForms(contents(dataFile(name)));
    SKIP_WITHOUT_CORPUS(forEachCorpusDrawing([](const Drawing &drawing) { expectBothForms(drawing.toBytes()); }));
}

TEST(BinaryForm, RefusesWhatItHasNoRoomFor)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"plan.dxf"_s);
    for (const QByteArray tag : {"70 32768", "70 -32769", "70 ten", "90 2147483648", "40 wide", "40", "290 256",
                                 "160 9223372036854775808", "310 ABC", "310 XY"}) {
        SCOPED_TRACE(tag.toStdString());
        const auto drawing = asBinary(sampleText("AC1015", QByteArray(marked).replace("1 MARK", tag)));
        const SaveResult result = saveCopy(*drawing, path);
        EXPECT_TRUE(result.error.contains(u"TEXT with the handle 50 has a value for group"_s))
            << result.error.toStdString();
        EXPECT_FALSE(QFile::exists(path));
        drawing->setForm(FileForm::Text);
        EXPECT_TRUE(saveCopy(*drawing, path));
        QFile::remove(path);
    }
    EXPECT_FALSE(saveCopy(*asBinary(sampleText("AC1015", QByteArray(marked).replace("MARK", BYTES("M\0K")))), path));
}

TEST(BinaryForm, RefusesFilesCutOffAnywhere)
{
    for (const QByteArray version : {"AC1009", "AC1015"}) {
        const QByteArray whole = fileBytes(*asBinary(sampleText(version, marked)));
        for (qsizetype length = 1; length < whole.size(); ++length)
            ASSERT_FALSE(Drawing::fromBytes(whole.first(length)).error.text.isEmpty()) << length;
    }
}

/// Bytes changed anywhere never bring the reader down, and what it takes it writes back.
TEST(BinaryForm, SurvivesDamage)
{
    for (const QByteArray version : {"AC1009", "AC1032"}) {
        const QByteArray whole = fileBytes(*asBinary(sampleText(version, marked)));
        for (qsizetype at = 0; at < whole.size(); ++at) {
            for (const char damage : {'\0', '\n', '\x05', '\x36', '\xFF'}) {
                QByteArray damaged = whole;
                damaged[at] = damage;
                if (const ReadResult result = Drawing::fromBytes(damaged); result && result.drawing->isBinaryFile()) {
                    ASSERT_EQ(fileBytes(*result.drawing), damaged) << at;
                }
            }
        }
    }
}

TEST(BinaryForm, StaysWithTheDrawingThatIsSaved)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"plan.dxf"_s);
    const QByteArray bytes = withTag("AC1015", oddTags[3].tag);
    write(path, bytes);
    const auto drawing = std::move(Drawing::open(path).drawing);
    ASSERT_TRUE(drawing);
    ASSERT_TRUE(drawing->entities().create(fieldsOf("0 POINT|8 0|10 1,2,3")));
    EXPECT_TRUE(save(*drawing, path));
    EXPECT_EQ(contents(path), fileBytes(*drawing));
    EXPECT_TRUE(contents(path).startsWith(binaryMark()));
    drawing->journal().undo();
    EXPECT_TRUE(save(*drawing, path));
    EXPECT_EQ(contents(path), bytes);
    // One made of its entities is a new drawing.
    EXPECT_EQ(wblock(*drawing, drawing->entities().all(), {})->form(), FileForm::Text);
}

TEST(BinaryForm, TakesSingleRecords)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"plan.dxf"_s);
    const FieldList data = fieldsOf("1 a|70 5|40 0.5");
    write(path, withTag("AC1015", oddTags[0].tag));
    EXPECT_FALSE(xrecordInFile(path, u"T"));
    EXPECT_TRUE(setXrecordInFile(path, u"T"_s, data));
    EXPECT_EQ(xrecordInFile(path, u"T"), data);
    EXPECT_TRUE(contents(path).startsWith(binaryMark()));
    EXPECT_TRUE(contents(path).contains(oddTags[0].tag));
}

} // namespace
} // namespace host::drawing
