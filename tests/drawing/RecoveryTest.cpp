#include "host/drawing/file/Recovery.h"

#include "host/drawing/file/Save.h"
#include "host/drawing/records/Journal.h"
#include "tests/drawing/DrawingSample.h"

#include <QDir>
#include <QTemporaryDir>

#include <random>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

const QByteArray someEntities =
    "0 LINE\n5 50\n330 1F\n100 AcDbEntity\n8 0\n100 AcDbLine\n10 1\n20 2\n30 0\n11 3\n21 4\n31 0\n"
    "0 CIRCLE\n5 51\n330 1F\n100 AcDbEntity\n8 0\n100 AcDbCircle\n10 5\n20 6\n30 0\n40 7.5\n"
    "0 POINT\n5 52\n330 1F\n100 AcDbEntity\n8 0\n100 AcDbPoint\n10 8\n20 9\n30 0\n";
const QByteArray somePolyline =
    "0 POLYLINE\n5 60\n330 1F\n100 AcDbEntity\n8 0\n100 AcDb2dPolyline\n66 1\n10 0\n20 0\n30 0\n70 0\n"
    "0 VERTEX\n5 61\n330 60\n100 AcDbEntity\n8 0\n100 AcDbVertex\n100 AcDb2dVertex\n10 1\n20 1\n30 0\n"
    "0 SEQEND\n5 62\n330 60\n100 AcDbEntity\n8 0\n";
const QByteArray someBlock =
    "0 BLOCK\n5 70\n330 2A\n100 AcDbEntity\n8 0\n100 AcDbBlockBegin\n2 A\n70 0\n10 0\n20 0\n30 0\n3 A\n1 \n"
    "0 LINE\n5 71\n330 2A\n100 AcDbEntity\n8 0\n100 AcDbLine\n10 0\n20 0\n30 0\n11 1\n21 1\n31 0\n"
    "0 ENDBLK\n5 72\n330 2A\n100 AcDbEntity\n8 0\n100 AcDbBlockEnd\n";

QByteArray soundText()
{
    return sampleText("AC1015", someEntities + somePolyline, someBlock);
}

/// The types of all entities of the drawing, those of blocks and children included.
QByteArray typesIn(const Drawing &drawing)
{
    QByteArrayList types;
    for (RecordId id = drawing.first(); isValid(id); id = drawing.next(id)) {
        if (drawing.kind(id) >= RecordKind::Entity && drawing.kind(id) <= RecordKind::EndChildren)
            types.append(drawing.typeName(id).toByteArray());
    }
    return types.join(' ');
}

QByteArray changedText(QByteArray text, const QByteArray &before, const QByteArray &after)
{
    const qsizetype place = text.indexOf(before);
    EXPECT_GE(place, 0) << before.toStdString();
    return text.replace(place, before.size(), after);
}

struct DamageRow
{
    const char *name;
    QByteArray text;
    QByteArray types; ///< what is left
    QString told;     ///< part of a step's message
};

std::vector<DamageRow> damageRows()
{
    const QByteArray sound = soundText();
    const QByteArray all = "LINE LINE CIRCLE POINT POLYLINE VERTEX SEQEND";
    const QByteArray withoutCircle = "LINE LINE POINT POLYLINE VERTEX SEQEND";
    const auto with = [&sound](const QByteArray &before, const QByteArray &after) {
        return changedText(sound, before, after);
    };
    const QByteArray circle = "100\nAcDbCircle\n 10\n5\n";
    return {
        {"nothing wrong", sound, all, {}},
        {"group code that is none", with(circle, "100\nAcDbCircle\n x0\n5\n"), withoutCircle,
         u"CIRCLE dropped: line"_s},
        {"line lost", with(circle, "100\nAcDbCircle\n5\n"), withoutCircle, u"CIRCLE dropped"_s},
        {"line doubled", with(circle, "100\nAcDbCircle\n 10\n 10\n5\n"), withoutCircle, u"CIRCLE dropped"_s},
        {"value that is none", with(" 40\n7.5\n", " 40\n7.x\n"), withoutCircle, u"group 40 cannot be \"7.x\""_s},
        {"zeros within", with("AcDbCircle", QByteArray("AcDb\0\0\0cle", 10)), withoutCircle, u"CIRCLE dropped"_s},
        {"type that is none", with("  0\nCIRCLE\n", "  0\n\x01\x02\n"), "LINE POINT POLYLINE VERTEX SEQEND",
         u"type of a record expected"_s},
        {"rubbish between records", with("  0\nPOINT\n", "\x80\x81\nrubbish\n  0\nPOINT\n"), withoutCircle,
         u"CIRCLE dropped"_s},
        {"handle twice", with("  5\n51\n", "  5\n50\n"), all, u"CIRCLE mended: its handle was another record's"_s},
        {"handle that is none", with("  5\n51\n", "  5\nxyz\n"), all, u"CIRCLE mended"_s},
        {"owner that is none", with("  5\n51\n330\n1F\n", "  5\n51\n330\n??\n"), all, u"CIRCLE mended"_s},
        {"cut off", sound.first(sound.indexOf(" 40\n7.5")), "LINE LINE", u"CIRCLE dropped: the file ends within it"_s},
        {"no EOF", sound.first(sound.lastIndexOf("  0\nEOF")), all, u"EOF added"_s},
        {"no ENDSEC", with("  0\nENDSEC\n  0\nSECTION\n  2\nENTITIES\n", "  0\nSECTION\n  2\nENTITIES\n"), all,
         u"ENDSEC added"_s},
        {"no ENDTAB", with("  0\nENDTAB\n", ""), all, u"ENDTAB added"_s},
        {"no ENDBLK",
         changedText(sound, "  0\nENDBLK\n  5\n72\n330\n2A\n100\nAcDbEntity\n  8\n0\n100\nAcDbBlockEnd\n", ""), all,
         u"ENDBLK added"_s},
        {"no SEQEND", with("  0\nSEQEND\n  5\n62\n330\n60\n100\nAcDbEntity\n  8\n0\n", ""), all, u"SEQEND added"_s},
        {"no BLOCK", with("  0\nBLOCK\n  5\n70\n", "  5\n70\n"), all, u"BLOCK added"_s},
        {"empty name of a block", with("  2\nA\n 70\n", "  2\n\n 70\n"), all, u"BLOCK mended: it had no name"_s},
        {"no POLYLINE", with("  0\nPOLYLINE\n", "  0\nPOINT\n"), "LINE LINE CIRCLE POINT POINT",
         u"VERTEX dropped: what it is a part of is not there"_s},
        {"no head of ENTITIES", with("  0\nSECTION\n  2\nENTITIES\n", ""), all, u"outside of its section"_s},
        {"no name of ENTITIES", with("  2\nENTITIES\n", ""), all, u"SECTION dropped: it has no name"_s},
        {"no head of LAYER", with("  0\nTABLE\n  2\nLAYER\n", ""), all, u"table entry mended"_s},
        {"section twice", with("  0\nEOF", "  0\nSECTION\n  2\nENTITIES\n  0\nRAY\n  8\n0\n  0\nENDSEC\n  0\nEOF"),
         all + " RAY", u"SECTION mended: it was there before"_s},
        {"EOF within", with("  0\nPOINT\n", "  0\nEOF\n  0\nPOINT\n"), all, u"EOF dropped"_s},
        {"no version", with("  9\n$ACADVER\n  1\nAC1015\n", ""), all, u"$ACADVER added: the drawing looks like one"_s},
        {"variable with more than its value", with("  1\nAC1015\n", "  1\nAC1015\n 70\n1\n"), all,
         u"$ACADVER mended: it has more than one value"_s},
        {"variable without a value", with("  9\n$ACADVER\n", "  9\n$INSBASE\n  9\n$ACADVER\n"), all,
         u"$INSBASE dropped: it has no value"_s},
        {"variable that is a point and a comment",
         with("  9\n$ACADVER\n", "  9\n$INSBASE\n 10\n1\n 20\n2\n 30\n3\n999\nhere\n  9\n$ACADVER\n"),
         all,
         {}},
        {"CR LF and LF", sound.first(400).replace("\n", "\r\n") + sound.mid(400), all, {}},
        {"CR in the second half",
         sound.first(sound.indexOf("  0\nPOINT")) + sound.mid(sound.indexOf("  0\nPOINT")).replace("\n", "\r"),
         all,
         {}},
        {"handle twice, lines ended by CR and by LF", with("  0\nCIRCLE\n  5\n51\n", "  0\rCIRCLE\r  5\r50\r"), all,
         u"CIRCLE mended: its handle was another record's"_s},
        {"unknown section kept",
         with("  0\nEOF", "  0\nSECTION\n  2\nMINE\n  0\nTHING\n  1\nx\n  0\nENDSEC\n  0\nEOF"),
         all,
         {}},
    };
}

std::unique_ptr<Drawing> recoveredOf(const QByteArray &text, RecoveryReport *report = nullptr)
{
    Recovered recovered = recoverDrawing(text);
    EXPECT_TRUE(recovered) << recovered.error.message().toStdString();
    if (!recovered)
        return readGood("0\nEOF\n");
    if (report)
        *report = recovered.report;
    EXPECT_TRUE(recovered.drawing->journal().isModified());
    EXPECT_TRUE(recovered.drawing->path().isEmpty());
    readGood(recovered.drawing->toBytes());
    return std::move(recovered.drawing);
}

TEST(Recovery, KeepsWhatIsSoundAndTellsTheRest)
{
    for (const DamageRow &row : damageRows()) {
        SCOPED_TRACE(row.name);
        RecoveryReport report;
        const auto drawing = recoveredOf(row.text, &report);
        EXPECT_EQ(typesIn(*drawing), row.types);
        const QString told = report.lines(100).join(u'\n');
        EXPECT_TRUE(told.contains(row.told)) << told.toStdString();
        EXPECT_EQ(report.isEmpty(), row.told.isEmpty()) << told.toStdString();
        if (report.isEmpty()) {
            EXPECT_EQ(drawing->toBytes(), row.text);
        }
        EXPECT_AUDIT_CLEAN(*drawing);
        const QStringList toldAgain = recoverDrawing(drawing->toBytes()).report.lines(100);
        EXPECT_TRUE(recoverDrawing(drawing->toBytes()).report.isEmpty()) << toldAgain.join(u'\n').toStdString();
    }
}

TEST(Recovery, TellsTheLines)
{
    const QByteArray text = changedText(sampleText("AC1015", someEntities), " 40\n7.5\n", " 40\n7.x\n");
    const qint64 first = text.first(text.indexOf("  0\nCIRCLE")).count('\n') + 1;
    const Recovered recovered = recoverDrawing(text);
    ASSERT_EQ(recovered.report.steps().size(), 1U);
    const RecoveryStep &step = recovered.report.steps().front();
    EXPECT_EQ(step.first, first);
    EXPECT_EQ(step.last, text.first(text.indexOf("  0\nPOINT")).count('\n'));
    EXPECT_EQ(recovered.report.dropped(), (QMap<QString, qint64>{{u"CIRCLE"_s, 1}}));
}

TEST(Recovery, RefusesWhatIsNoDrawing)
{
    const std::pair<QByteArray, QString> rows[] = {
        {"", u"the file is empty"_s},
        {QByteArray("\xFF\xFE\x30\0\r\0\n\0", 8), u"this is a UTF-16 text file, not a DXF file"_s},
        {QByteArray("\x1F\x8B\x08\0", 4), u"this is a packed file; unpack it first"_s},
        {"Dear Sir,\nhello\n", u"nothing in this file is a part of a drawing"_s},
    };
    for (const auto &[bytes, message] : rows)
        EXPECT_EQ(recoverDrawing(bytes).error.message(), message);
    EXPECT_TRUE(recoverFile(u"/nowhere/at/all.dxf"_s).error.message().contains(u"/nowhere/at/all.dxf"_s));
    EXPECT_TRUE(openingError(u"a.dxf"_s, Drawing::fromBytes("0\nSECTION\n2\nENT")).contains(u"--recover"_s));
    EXPECT_FALSE(openingError(u"a.dxf"_s, Drawing::fromBytes("Dear Sir,")).contains(u"--recover"_s));
    EXPECT_EQ(openingError(u"a.dxf"_s, Drawing::fromBytes("Dear Sir,")).count(u"a.dxf"_s), 1);
    EXPECT_EQ(openingError(u"/nowhere/a.dxf"_s, Drawing::open(u"/nowhere/a.dxf"_s)).count(u"a.dxf"_s), 1);
}

TEST(Recovery, TakesTextsOfAnotherEncoding)
{
    RecoveryReport report;
    const QByteArray layer = "0 POINT\n5 50\n330 1F\n100 AcDbEntity\n8 W\xE4nde\n100 AcDbPoint\n10 0\n20 0\n30 0\n";
    const auto drawing = recoveredOf(sampleText("AC1021", layer), &report);
    EXPECT_TRUE(drawing->toBytes().contains("\nW\xC3\xA4nde\n"));
    EXPECT_EQ(report.count(RecoveryStep::Done::Mended), 1);
}

TEST(Recovery, OpensDamagedBinaryFiles)
{
    for (const QByteArray version : {"AC1009", "AC1015"}) {
        auto source = readGood(sampleText(version, someEntities));
        source->setForm(FileForm::Binary);
        const QByteArray whole = fileBytes(*source);
        for (qsizetype at = binaryMark().size(); at < whole.size(); ++at) {
            QByteArray damaged = whole;
            damaged[at] = '\xE7';
            const Recovered recovered = recoverDrawing(damaged);
            ASSERT_TRUE(recovered) << at;
            ASSERT_EQ(recovered.drawing->form(), FileForm::Binary);
            EXPECT_FALSE(typesIn(*recovered.drawing).isEmpty()) << at;
            readGood(recovered.drawing->toBytes());
        }
        for (qsizetype length = binaryMark().size() + 30; length < whole.size(); length += 7)
            EXPECT_TRUE(recoverDrawing(whole.first(length))) << length;
    }
}

/// Bytes of a drawing damaged in one place.
struct RandomDamage
{
    QByteArray text;
    qsizetype from = 0; ///< what of the sound text is touched
    qsizetype to = 0;
};

RandomDamage damagedAtRandom(const QByteArray &sound, std::mt19937 &random)
{
    const auto upTo = [&random](qsizetype limit) {
        return qsizetype(random() % size_t(std::max<qsizetype>(limit, 1)));
    };
    const qsizetype lineBegin = sound.lastIndexOf('\n', upTo(sound.size() - 1)) + 1;
    const qsizetype lineEnd = std::max(lineBegin, sound.indexOf('\n', lineBegin) + 1);
    QByteArray text = sound;
    switch (random() % 5) {
    case 0:
        return {sound.first(lineBegin), lineBegin, sound.size()};
    case 1:
        return {text.remove(lineBegin, lineEnd - lineBegin), lineBegin, lineEnd};
    case 2:
        return {text.insert(lineBegin, sound.mid(lineBegin, lineEnd - lineBegin)), lineBegin, lineEnd};
    case 3:
        for (qsizetype i = lineBegin; i < std::min(lineBegin + 1 + upTo(60), text.size()); ++i)
            text[i] = char(random());
        return {text, lineBegin, std::min(lineBegin + 61, text.size())};
    default:
        QByteArray rubbish;
        for (qsizetype i = upTo(200); i > 0; --i)
            rubbish += char(random());
        return {text.insert(lineBegin, rubbish), lineBegin, lineEnd};
    }
}

/// All records that lie away from the damage are in the recovered text as they were.
void expectAwayFromDamage(const QByteArray &sound, const RandomDamage &damage, const QByteArray &recovered)
{
    const auto drawing = readGood(sound);
    qsizetype begin = 0;
    for (RecordId id = drawing->first(); isValid(id); id = drawing->next(id)) {
        const QByteArrayView bytes = drawing->bytes(id);
        const qsizetype end = begin + bytes.size();
        const RecordId next = drawing->next(id);
        const bool isNear = begin <= damage.to &&
                            (end >= damage.from || (isValid(next) && end + drawing->bytes(next).size() >= damage.from));
        begin = end;
        const RecordKind kind = drawing->kind(id);
        const bool counts = kind == RecordKind::Entity || kind == RecordKind::TableEntry ||
                            kind == RecordKind::Object || kind == RecordKind::Variable || kind == RecordKind::Class;
        // What is lost may take new handles with it.
        const bool isSeed = drawing->typeName(id) == "$HANDSEED";
        if (counts && !isSeed && !isNear && !recovered.contains(bytes)) {
            ADD_FAILURE() << "lost: " << bytes.toByteArray().toStdString();
            return;
        }
    }
}

TEST(Recovery, KeepsAllThatLiesAwayFromTheDamage)
{
    std::vector<QByteArray> drawings = {soundText(), sampleText("AC1009", someEntities)};
    for (const QString &name : {u"r12_plain.dxf"_s, u"r2000_codepage.dxf"_s, u"r2018_objects.dxf"_s})
        drawings.push_back(contents(dataFile(name)));
    for (const QByteArray &sound : drawings) {
        std::mt19937 random(7);
        for (int i = 0; i < 300; ++i) {
            SCOPED_TRACE(i);
            const RandomDamage damage = damagedAtRandom(sound, random);
            if (damage.from < 200)
                continue;
            const auto drawing = recoveredOf(damage.text);
            expectAwayFromDamage(sound, damage, drawing->toBytes());
            if (HasFailure()) {
                write(QDir::temp().filePath(u"recovery-failed.dxf"_s), damage.text);
                return;
            }
        }
    }
}

TEST(Recovery, LeavesSoundDrawingsAsTheyAre)
{
    for (const QByteArray version : {"AC1009", "AC1012", "AC1032"})
        EXPECT_EQ(recoveredOf(sampleText(version, someEntities))->toBytes(), sampleText(version, someEntities));
    SKIP_WITHOUT_CORPUS(forEachCorpusDrawing([](const Drawing &drawing) {
        RecoveryReport report;
        const QByteArray bytes = contents(drawing.path());
        const bool isSame = recoveredOf(bytes, &report)->toBytes() == bytes;
        EXPECT_EQ(isSame, report.isEmpty()) << drawing.path().toStdString();
        EXPECT_EQ(report.count(RecoveryStep::Done::Dropped), 0) << report.lines(20).join(u'\n').toStdString();
    }));
}

} // namespace
} // namespace host::drawing
