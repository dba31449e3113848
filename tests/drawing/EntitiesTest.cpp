#include "host/drawing/file/NewDrawing.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/records/Tables.h"
#include "tests/drawing/DrawingSample.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

const FieldList plainLine = fieldsOf("0 LINE|10 0,0,0|11 1,0,0");

/// The record's tags without handle and owner, as "0 LINE|8 0".
QByteArray writtenForm(const Drawing &drawing, RecordId id)
{
    QByteArray text;
    for (const Tag &tag : drawing.tags(id)) {
        if (tag.code != 5 && tag.code != 330)
            text += (text.isEmpty() ? "" : "|") + QByteArray::number(tag.code) + ' ' + tag.value.toByteArray();
    }
    return text;
}

TEST(Entities, AreMadeAsTheVersionHasThem)
{
    const std::tuple<const char *, const char *, const char *, QByteArray> rows[] = {
        {"line, old", "AC1009", "0 LINE|10 0,0,0|11 1,0,0", "0 LINE|8 0|10 0.0|20 0.0|30 0.0|11 1.0|21 0.0|31 0.0"},
        {"line", "AC1015", "0 LINE|10 0,0,0|11 1,0,0",
         "0 LINE|100 AcDbEntity|8 0|100 AcDbLine|10 0.0|20 0.0|30 0.0|11 1.0|21 0.0|31 0.0"},
        {"flat points get a z", "AC1015", "0 POINT|10 1,2",
         "0 POINT|100 AcDbEntity|8 0|100 AcDbPoint|10 1.0|20 2.0|30 0.0"},
        {"common groups go in front", "AC1015", "0 CIRCLE|40 2.0|10 0,0,0|62 1|8 0",
         "0 CIRCLE|100 AcDbEntity|62 1|8 0|100 AcDbCircle|40 2.0|10 0.0|20 0.0|30 0.0"},
        {"arc in two parts", "AC1015", "0 ARC|8 0|50 0.0|51 90.0|10 0,0,0|40 1.0",
         "0 ARC|100 AcDbEntity|8 0|100 AcDbCircle|10 0.0|20 0.0|30 0.0|40 1.0|100 AcDbArc|50 0.0|51 90.0"},
        {"text, second marker", "AC1015", "0 TEXT|10 0,0,0|40 1.0|1 a|73 2|11 0,0,0|72 1",
         "0 TEXT|100 AcDbEntity|8 0|100 AcDbText|10 0.0|20 0.0|30 0.0|40 1.0|1 a|11 0.0|21 0.0|31 0.0|72 1|100 "
         "AcDbText|73 2"},
        {"given markers are put right", "AC1015",
         "0 LINE|5 FFFF|330 1|100 AcDbLine|10 0,0,0|11 0,0,0|100 AcDbEntity|8 0",
         "0 LINE|100 AcDbEntity|8 0|100 AcDbLine|10 0.0|20 0.0|30 0.0|11 0.0|21 0.0|31 0.0"},
        {"markers are left out of old files", "AC1009", "0 POINT|100 AcDbEntity|100 AcDbPoint|10 0,0,0",
         "0 POINT|8 0|10 0.0|20 0.0|30 0.0"},
        {"light polyline counts its vertices", "AC1015", "0 LWPOLYLINE|8 0|90 99|10 0,0,5|42 1.0|10 1,0|70 1",
         "0 LWPOLYLINE|100 AcDbEntity|8 0|100 AcDbPolyline|90 2|70 1|10 0.0|20 0.0|42 1.0|10 1.0|20 0.0"},
        {"extended data last", "AC1015", "0 POINT|1001 ACAD|1070 1|10 0,0,0",
         "0 POINT|100 AcDbEntity|8 0|100 AcDbPoint|10 0.0|20 0.0|30 0.0|1001 ACAD|1070 1"},
        {"unknown type with markers", "AC1015", "0 THING|100 AcDbEntity|8 0|100 Thing|90 1",
         "0 THING|100 AcDbEntity|8 0|100 Thing|90 1"},
        {"lower-case type", "AC1009", "0 point|10 0,0,0", "0 POINT|8 0|10 0.0|20 0.0|30 0.0"},
    };
    for (const auto &[name, version, fields, shape] : rows) {
        SCOPED_TRACE(name);
        const auto drawing = sample(version);
        const CreateResult result = drawing->entities().create(fieldsOf(fields));
        ASSERT_TRUE(result) << result.error.toStdString();
        EXPECT_EQ(writtenForm(*drawing, result.record), shape);
        EXPECT_EQ(drawing->handle(result.record), Handle{0x100});
        EXPECT_EQ(drawing->owner(result.record), (version == QByteArray("AC1009") ? Handle{} : Handle{0x1F}));
        EXPECT_EQ(drawing->header().get(u"$HANDSEED")->handle(), Handle{0x101});
        EXPECT_EQ(drawing->entities().all(), std::vector{result.record});
    }
}

TEST(Entities, SayWhatIsMissing)
{
    const std::tuple<const char *, FieldList, const char *> rows[] = {
        {"AC1015", fieldsOf("8 0"), "group 0 (the type) is missing"},
        {"AC1015", fieldsOf("0 LINE|10 0,0,0"), "LINE: group 11 is missing"},
        {"AC1015", fieldsOf("0 LINE|10 0,0,0|11 5"), "LINE: group 11 is not a point"},
        {"AC1015", {{0, u"CIRCLE"_s}, {10, Vec3{}}, {40, u"big"_s}}, "CIRCLE: group 40 is not a number"},
        {"AC1015", {{0, u"POINT"_s}, {10, Vec3{}}, {8, qint64(5)}}, "POINT: group 8 is not a text"},
        {"AC1015", {{0, u"POINT"_s}, {10, Vec3{}}, {62, u"red"_s}}, "POINT: group 62 is not a number"},
        {"AC1015", fieldsOf("0 POINT|10 0,0,0|6 WAVES"), "POINT: linetype WAVES is not in the drawing"},
        {"AC1015", fieldsOf("0 TEXT|10 0,0,0|40 1|1 a|7 FANCY"), "TEXT: text style FANCY is not in the drawing"},
        {"AC1015", fieldsOf("0 INSERT|2 NONE|10 0,0,0"), "INSERT: block NONE is not in the drawing"},
        {"AC1015", fieldsOf("0 THING|8 0"),
         "THING: this type is not known, and its subclass markers (group 100) are missing"},
        {"AC1009", fieldsOf("0 MTEXT|10 0,0,0|1 a"), "MTEXT: a drawing of this version has no such entity"},
        {"AC1015", fieldsOf("0 POLYLINE|8 0"), "POLYLINE: its vertices are missing"},
    };
    for (const auto &[version, fields, error] : rows) {
        const auto drawing = sample(version);
        EXPECT_EQ(drawing->entities().create(fields).error, QLatin1String(error));
        EXPECT_EQ(drawing->toBytes(), sampleText(version)) << error;
    }
}

TEST(Entities, ComplexOnesStandTogether)
{
    for (const char *version : {"AC1009", "AC1015", "AC1032"}) {
        SCOPED_TRACE(version);
        const auto drawing = sample(version);
        const CreateResult polyline = drawing->entities().createComplex(
            fieldsOf("0 POLYLINE|8 0|70 8"),
            {fieldsOf("0 VERTEX|10 0,0,0"), fieldsOf("10 1,0,2"), fieldsOf("0 SEQEND")});
        ASSERT_TRUE(polyline) << polyline.error.toStdString();
        const std::vector<RecordId> vertices = drawing->entities().children(polyline.record);
        ASSERT_EQ(vertices.size(), 2U);
        EXPECT_EQ(drawing->tags(vertices[1]).integer(70), 32);
        const RecordId end = drawing->endOf(polyline.record);
        ASSERT_TRUE(isValid(end));
        EXPECT_EQ(drawing->next(end), drawing->endOf(drawing->sectionRecord(Section::Entities)));
        EXPECT_EQ(drawing->journal().undoDepth(), 1);
        const auto again = readGood(drawing->toBytes());
        EXPECT_EQ(again->entities().all().size(), 1U);
        EXPECT_EQ(again->entities().children(again->entities().all().front()).size(), 2U);
        EXPECT_TRUE(drawing->setErased(polyline.record, true));
        EXPECT_TRUE(drawing->entities().all().empty());
        EXPECT_FALSE(drawing->isAlive(end));
    }
    const auto drawing = sample("AC1015");
    EXPECT_EQ(drawing->entities().createComplex(fieldsOf("0 POLYLINE"), {fieldsOf("0 LINE")}).error,
              u"POLYLINE: VERTEX expected, found LINE"_s);
    EXPECT_EQ(drawing->entities().createComplex(plainLine, {fieldsOf("10 0,0,0")}).error,
              u"LINE: an entity of this type has no parts"_s);
}

TEST(Entities, HandlesFollowTheSeed)
{
    const std::tuple<const char *, QByteArray, QByteArray, Handle> rows[] = {
        {"as it says", "100", "1", {0x100}},
        {"behind the last one used", "20", "1", {0x51}},
        {"at the end of the range", "FFFFFFFFFFFFFFFF", "1", {0x51}},
        {"no number", "xyz", "1", {0x51}},
        {"no handles", "100", "0", {}},
    };
    for (const auto &[name, seed, handling, handle] : rows) {
        SCOPED_TRACE(name);
        const QByteArray text = sampleText("AC1009", "0 POINT\n5 50\n8 0\n10 0\n20 0");
        const auto drawing = readGood(QByteArray(text)
                                          .replace("$HANDSEED\n  5\n100", "$HANDSEED\n  5\n" + seed)
                                          .replace("$HANDLING\n 70\n1", "$HANDLING\n 70\n" + handling));
        const CreateResult result = drawing->entities().create(plainLine);
        ASSERT_TRUE(result);
        EXPECT_EQ(drawing->handle(result.record), handle);
        EXPECT_EQ(drawing->find(handle), handle.isNull() ? noRecord : result.record);
    }
}

TEST(Entities, GoIntoSpacesAndBlocks)
{
    const auto drawing = sample("AC1015");
    const RecordId inModel = drawing->entities().create(plainLine).record;
    const RecordId inPaper = drawing->entities().create(plainLine, Space::Paper).record;
    const RecordId block = drawing->blocks().create(u"B"_s, {1, 2, 3});
    const RecordId inBlock = drawing->entities().createInBlock(block, plainLine).record;
    const RecordId attribute =
        drawing->entities().createInBlock(block, fieldsOf("0 ATTDEF|10 0,0,0|40 1.0|1 |2 T|3 P")).record;
    EXPECT_EQ(drawing->entities().inSpace(Space::Model), std::vector{inModel});
    EXPECT_EQ(drawing->entities().inSpace(Space::Paper), std::vector{inPaper});
    EXPECT_EQ(drawing->owner(inPaper), Handle{0x1B});
    EXPECT_EQ(drawing->children(block), (std::vector{inBlock, attribute}));
    EXPECT_EQ(drawing->owner(inBlock), drawing->handle(drawing->blocks().read(block).tableEntry));
    EXPECT_TRUE(drawing->blocks().read(block).hasAttributes());
    EXPECT_EQ(drawing->entities().createInBlock(inModel, plainLine).error, u"there is no such block"_s);
}

TEST(Entities, AreModifiedAsLispHandsThemBack)
{
    const QByteArray text =
        sampleText("AC1015", "0 LINE\n5 50\n102 {ACAD_REACTORS\n330 C\n102 }\n330 1F\n100 AcDbEntity\n"
                             "8 0\n100 AcDbLine\n10 0\n20 0\n30 0\n11 1\n21 1\n31 0\n1001 ACAD\n1000 x");
    const auto drawing = readGood(text);
    const RecordId id = drawing->find({0x50});
    FieldList fields = drawing->fields(id);
    EXPECT_EQ(drawing->entities().modify(id, fields), QString());
    EXPECT_FALSE(drawing->journal().canUndo());
    fields.push_back({62, qint64(3)}); // behind everything, as append leaves it
    EXPECT_EQ(drawing->entities().modify(id, fields), QString());
    EXPECT_EQ(drawing->toBytes(), QByteArray(text).replace("  8\n0\n100\nAcDbLine", "  8\n0\n 62\n3\n100\nAcDbLine"));
    setField(fields, 8, u"New"_s);
    EXPECT_EQ(drawing->entities().modify(id, fields), QString());
    EXPECT_TRUE(isValid(drawing->tables().find(TableKind::Layer, u"new")));
    EXPECT_EQ(drawing->entities().modify(id, fieldsOf("0 LINE|10 0,0,0")), u"LINE: group 11 is missing"_s);
    drawing->setErased(id, true);
    EXPECT_EQ(drawing->entities().modify(id, fields), u"the entity is erased"_s);
}

const char *const oneOfEach[] = {
    "0 LINE|10 1,2,0|11 5,6,0",
    "0 POINT|10 1,2,0|62 1|420 16711680",
    "0 CIRCLE|10 1,2,0|40 3",
    "0 ARC|10 1,2,0|40 3|50 0|51 90",
    "0 ELLIPSE|10 1,2,0|11 4,0,0|40 0.5",
    "0 SPLINE|70 8|71 3|72 8|73 4|74 0|40 0|40 0|40 0|40 0|40 1|40 1|40 1|40 1|10 1,2,0|10 5,6,0|10 9,1,0|10 1,2,0",
    "0 LWPOLYLINE|10 1,2,0|10 5,6,0|42 0.5|10 9,1,0|70 1",
    "0 TEXT|10 1,2,0|40 2.5|1 Ω čaj|72 1|11 1,2,0|73 2",
    "0 MTEXT|10 1,2,0|1 one\\Ptwo",
    "0 ATTDEF|10 1,2,0|40 2.5|1 x|2 TAG|3 Prompt",
    "0 SOLID|10 1,2,0|11 5,6,0|12 9,1,0|13 9,1,0",
    "0 3DFACE|10 1,2,0|11 5,6,0|12 9,1,0|13 9,1,0",
    "0 TRACE|10 1,2,0|11 5,6,0|12 9,1,0|13 9,1,0",
    "0 RAY|10 1,2,0|11 1,0,0",
    "0 XLINE|10 1,2,0|11 1,0,0",
    "0 HATCH|10 0,0,0|210 0,0,1|2 SOLID|70 1|71 0|91 1|92 3|72 0|73 1|93 3|10 0,0|10 4,0|10 4,4|97 0|75 0|76 1|98 0",
    "0 INSERT|2 Part|10 1,2,0|41 2|42 2|43 2|50 30",
    "0 LEADER|10 1,2,0|10 5,6,0|71 1|72 0|73 3|76 2",
    "0 DIMENSION|2 *D0|10 5,6,0|11 9,1,0|13 1,2,0|14 5,6,0|70 0|1 ",
};

TEST(Entities, SatisfyAnotherReader)
{
    const auto check = [](Drawing &drawing) {
        drawing.blocks().create(u"Part"_s, {});
        drawing.blocks().create(u"*D"_s, {}, 1);
        for (const char *fields : oneOfEach) {
            const CreateResult result = drawing.entities().create(fieldsOf(fields));
            EXPECT_TRUE(result) << result.error.toStdString();
        }
        EXPECT_TRUE(drawing.entities().createComplex(fieldsOf("0 INSERT|2 Part|10 0,0,0"),
                                                     {fieldsOf("0 ATTRIB|10 0,0,0|40 1.0|1 v|2 TAG")}));
        EXPECT_TRUE(drawing.entities().createComplex(fieldsOf("0 POLYLINE"),
                                                     {fieldsOf("10 0,0,0"), fieldsOf("10 1,1,0")}, Space::Paper));
        EXPECT_AUDIT_CLEAN(drawing);
        readGood(drawing.toBytes());
    };
    check(*newDrawing());
    for (const QByteArray &version : {QByteArray("AC1015"), QByteArray("AC1021"), QByteArray("AC1032")}) {
        SCOPED_TRACE(version.toStdString());
        const auto drawing = sample(version);
        drawing->tables().add(TableKind::DimStyle, u"Standard"_s);
        check(*drawing);
    }
}

} // namespace
} // namespace host::drawing
