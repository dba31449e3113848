#include "host/drawing/Blocks.h"
#include "host/drawing/HeaderVariables.h"
#include "host/drawing/Journal.h"
#include "host/drawing/NewDrawing.h"
#include "host/drawing/Tables.h"
#include "tests/drawing/DrawingSample.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

FieldList line(const Vec3 &from, const Vec3 &to)
{
    return {{0, u"LINE"_s}, {10, from}, {11, to}};
}

/// The record's lines without handle and owner.
QByteArray shape(const Drawing &drawing, RecordId id)
{
    QByteArray text;
    for (const Tag &tag : drawing.tags(id)) {
        if (tag.code != 5 && tag.code != 330)
            text += QByteArray::number(tag.code) + ' ' + tag.value.toByteArray() + '\n';
    }
    return text;
}

TEST(Entities, AreMadeAsTheVersionHasThem)
{
    const struct
    {
        const char *name;
        const char *version;
        FieldList fields;
        QByteArray shape;
    } rows[] = {
        {"line, old", "AC1009", line({0, 0, 0}, {1, 0, 0}),
         "0 LINE\n8 0\n10 0.0\n20 0.0\n30 0.0\n11 1.0\n21 0.0\n31 0.0\n"},
        {"line", "AC1015", line({0, 0, 0}, {1, 0, 0}),
         "0 LINE\n100 AcDbEntity\n8 0\n100 AcDbLine\n10 0.0\n20 0.0\n30 0.0\n11 1.0\n21 0.0\n31 0.0\n"},
        {"flat points get a z",
         "AC1015",
         {{0, u"POINT"_s}, {10, Vec2{1, 2}}},
         "0 POINT\n100 AcDbEntity\n8 0\n100 AcDbPoint\n10 1.0\n20 2.0\n30 0.0\n"},
        {"common groups go in front",
         "AC1015",
         {{0, u"CIRCLE"_s}, {40, 2.0}, {10, Vec3{}}, {62, qint64(1)}, {8, u"0"_s}},
         "0 CIRCLE\n100 AcDbEntity\n62 1\n8 0\n100 AcDbCircle\n40 2.0\n10 0.0\n20 0.0\n30 0.0\n"},
        {"arc in two parts",
         "AC1015",
         {{0, u"ARC"_s}, {8, u"0"_s}, {50, 0.0}, {51, 90.0}, {10, Vec3{}}, {40, 1.0}},
         "0 ARC\n100 AcDbEntity\n8 0\n100 AcDbCircle\n10 0.0\n20 0.0\n30 0.0\n40 1.0\n100 AcDbArc\n50 0.0\n51 90.0\n"},
        {"text, second marker",
         "AC1015",
         {{0, u"TEXT"_s}, {10, Vec3{}}, {40, 1.0}, {1, u"a"_s}, {73, qint64(2)}, {11, Vec3{}}, {72, qint64(1)}},
         "0 TEXT\n100 AcDbEntity\n8 0\n100 AcDbText\n10 0.0\n20 0.0\n30 0.0\n40 1.0\n1 a\n11 0.0\n21 0.0\n31 0.0\n72 "
         "1\n"
         "100 AcDbText\n73 2\n"},
        {"given markers are put right",
         "AC1015",
         {{0, u"LINE"_s},
          {5, u"FFFF"_s},
          {330, u"1"_s},
          {100, u"AcDbLine"_s},
          {10, Vec3{}},
          {11, Vec3{}},
          {100, u"AcDbEntity"_s},
          {8, u"0"_s}},
         "0 LINE\n100 AcDbEntity\n8 0\n100 AcDbLine\n10 0.0\n20 0.0\n30 0.0\n11 0.0\n21 0.0\n31 0.0\n"},
        {"markers are left out of old files",
         "AC1009",
         {{0, u"POINT"_s}, {100, u"AcDbEntity"_s}, {100, u"AcDbPoint"_s}, {10, Vec3{}}},
         "0 POINT\n8 0\n10 0.0\n20 0.0\n30 0.0\n"},
        {"light polyline counts its vertices",
         "AC1015",
         {{0, u"LWPOLYLINE"_s},
          {8, u"0"_s},
          {90, qint64(99)},
          {10, Vec3{0, 0, 5}},
          {42, 1.0},
          {10, Vec2{1, 0}},
          {70, qint64(1)}},
         "0 LWPOLYLINE\n100 AcDbEntity\n8 0\n100 AcDbPolyline\n90 2\n70 1\n10 0.0\n20 0.0\n42 1.0\n10 1.0\n20 0.0\n"},
        {"extended data last",
         "AC1015",
         {{0, u"POINT"_s}, {1001, u"ACAD"_s}, {1070, qint64(1)}, {10, Vec3{}}},
         "0 POINT\n100 AcDbEntity\n8 0\n100 AcDbPoint\n10 0.0\n20 0.0\n30 0.0\n1001 ACAD\n1070 1\n"},
        {"unknown type with markers",
         "AC1015",
         {{0, u"THING"_s}, {100, u"AcDbEntity"_s}, {8, u"0"_s}, {100, u"Thing"_s}, {90, qint64(1)}},
         "0 THING\n100 AcDbEntity\n8 0\n100 Thing\n90 1\n"},
        {"lower-case type", "AC1009", {{0, u"point"_s}, {10, Vec3{}}}, "0 POINT\n8 0\n10 0.0\n20 0.0\n30 0.0\n"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        const auto drawing = sample(row.version);
        const CreateResult result = drawing->entities().create(row.fields);
        ASSERT_TRUE(result) << result.error.toStdString();
        EXPECT_EQ(shape(*drawing, result.record), row.shape);
        EXPECT_EQ(drawing->handle(result.record), Handle{0x100});
        EXPECT_EQ(drawing->owner(result.record), (row.version == QByteArray("AC1009") ? Handle{} : Handle{0x1F}));
        EXPECT_EQ(drawing->header().get(u"$HANDSEED")->handle(), Handle{0x101});
        EXPECT_EQ(drawing->entities().all(), std::vector{result.record});
    }
}

TEST(Entities, SayWhatIsMissing)
{
    const struct
    {
        const char *version;
        FieldList fields;
        QString error;
    } rows[] = {
        {"AC1015", {{8, u"0"_s}}, u"group 0 (the type) is missing"_s},
        {"AC1015", {{0, u"LINE"_s}, {10, Vec3{}}}, u"LINE: group 11 is missing"_s},
        {"AC1015", {{0, u"LINE"_s}, {10, Vec3{}}, {11, 5.0}}, u"LINE: group 11 is not a point"_s},
        {"AC1015", {{0, u"CIRCLE"_s}, {10, Vec3{}}, {40, u"big"_s}}, u"CIRCLE: group 40 is not a number"_s},
        {"AC1015", {{0, u"POINT"_s}, {10, Vec3{}}, {8, qint64(5)}}, u"POINT: group 8 is not a text"_s},
        {"AC1015", {{0, u"POINT"_s}, {10, Vec3{}}, {62, u"red"_s}}, u"POINT: group 62 is not a number"_s},
        {"AC1015", {{0, u"POINT"_s}, {10, Vec3{}}, {6, u"WAVES"_s}}, u"POINT: linetype WAVES is not in the drawing"_s},
        {"AC1015",
         {{0, u"TEXT"_s}, {10, Vec3{}}, {40, 1.0}, {1, u"a"_s}, {7, u"FANCY"_s}},
         u"TEXT: text style FANCY is not in the drawing"_s},
        {"AC1015", {{0, u"INSERT"_s}, {2, u"NONE"_s}, {10, Vec3{}}}, u"INSERT: block NONE is not in the drawing"_s},
        {"AC1015",
         {{0, u"THING"_s}, {8, u"0"_s}},
         u"THING: this type is not known, and its subclass markers (group 100) are missing"_s},
        {"AC1009",
         {{0, u"MTEXT"_s}, {10, Vec3{}}, {1, u"a"_s}},
         u"MTEXT: a drawing of this version has no such entity"_s},
        {"AC1015", {{0, u"POLYLINE"_s}, {8, u"0"_s}}, u"POLYLINE: its vertices are missing"_s},
    };
    for (const auto &row : rows) {
        const auto drawing = sample(row.version);
        const QByteArray before = drawing->toBytes();
        EXPECT_EQ(drawing->entities().create(row.fields).error, row.error);
        EXPECT_EQ(drawing->toBytes(), before) << row.error.toStdString();
    }
}

TEST(Entities, ComplexOnesStandTogether)
{
    for (const char *version : {"AC1009", "AC1015", "AC1032"}) {
        SCOPED_TRACE(version);
        const auto drawing = sample(version);
        const CreateResult polyline = drawing->entities().createComplex(
            {{0, u"POLYLINE"_s}, {8, u"0"_s}, {70, qint64(8)}},
            {{{0, u"VERTEX"_s}, {10, Vec3{}}}, {{10, Vec3{1, 0, 2}}}, {{0, u"SEQEND"_s}}});
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
    EXPECT_EQ(drawing->entities().createComplex({{0, u"POLYLINE"_s}}, {{{0, u"LINE"_s}}}).error,
              u"POLYLINE: VERTEX expected, found LINE"_s);
    EXPECT_EQ(drawing->entities().createComplex(line({}, {}), {{{10, Vec3{}}}}).error,
              u"LINE: an entity of this type has no parts"_s);
}

TEST(Entities, HandlesFollowTheSeed)
{
    const struct
    {
        const char *name;
        QByteArray seed;
        QByteArray handling;
        Handle handle;
    } rows[] = {
        {"as it says", "100", "1", {0x100}},
        {"behind the last one used", "20", "1", {0x51}},
        {"at the end of the range", "FFFFFFFFFFFFFFFF", "1", {0x51}},
        {"no number", "xyz", "1", {0x51}},
        {"no handles", "100", "0", {}},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        const QByteArray text = sampleText("AC1009", "0 POINT\n5 50\n8 0\n10 0\n20 0");
        const auto drawing = readGood(QByteArray(text)
                                          .replace("$HANDSEED\n  5\n100", "$HANDSEED\n  5\n" + row.seed)
                                          .replace("$HANDLING\n 70\n1", "$HANDLING\n 70\n" + row.handling));
        const CreateResult result = drawing->entities().create(line({}, {1, 1, 1}));
        ASSERT_TRUE(result);
        EXPECT_EQ(drawing->handle(result.record), row.handle);
        EXPECT_EQ(drawing->find(row.handle), row.handle.isNull() ? noRecord : result.record);
    }
}

TEST(Entities, GoIntoSpacesAndBlocks)
{
    const auto drawing = sample("AC1015");
    const RecordId inModel = drawing->entities().create(line({}, {1, 0, 0})).record;
    const RecordId inPaper = drawing->entities().create(line({}, {1, 0, 0}), Space::Paper).record;
    const RecordId block = drawing->blocks().create(u"B"_s, {1, 2, 3});
    const RecordId inBlock = drawing->entities().createInBlock(block, line({}, {1, 0, 0})).record;
    const RecordId attribute =
        drawing->entities()
            .createInBlock(block, {{0, u"ATTDEF"_s}, {10, Vec3{}}, {40, 1.0}, {1, u""_s}, {2, u"T"_s}, {3, u"P"_s}})
            .record;
    EXPECT_EQ(drawing->entities().inSpace(Space::Model), std::vector{inModel});
    EXPECT_EQ(drawing->entities().inSpace(Space::Paper), std::vector{inPaper});
    EXPECT_EQ(drawing->owner(inPaper), Handle{0x1B});
    EXPECT_EQ(drawing->children(block), (std::vector{inBlock, attribute}));
    EXPECT_EQ(drawing->owner(inBlock), drawing->handle(drawing->blocks().read(block).tableEntry));
    EXPECT_TRUE(drawing->blocks().read(block).hasAttributes());
    EXPECT_EQ(drawing->entities().createInBlock(inModel, line({}, {})).error, u"there is no such block"_s);
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
    EXPECT_EQ(drawing->entities().modify(id, {{0, u"LINE"_s}, {10, Vec3{}}}), u"LINE: group 11 is missing"_s);
    drawing->setErased(id, true);
    EXPECT_EQ(drawing->entities().modify(id, fields), u"the entity is erased"_s);
}

std::vector<FieldList> oneOfEach()
{
    const Vec3 a{1, 2, 0};
    const Vec3 b{5, 6, 0};
    const Vec3 c{9, 1, 0};
    return {
        line(a, b),
        {{0, u"POINT"_s}, {10, a}, {62, qint64(1)}, {420, qint64(0xFF0000)}},
        {{0, u"CIRCLE"_s}, {10, a}, {40, 3.0}},
        {{0, u"ARC"_s}, {10, a}, {40, 3.0}, {50, 0.0}, {51, 90.0}},
        {{0, u"ELLIPSE"_s}, {10, a}, {11, Vec3{4, 0, 0}}, {40, 0.5}},
        {{0, u"SPLINE"_s},
         {70, qint64(8)},
         {71, qint64(3)},
         {72, qint64(8)},
         {73, qint64(4)},
         {74, qint64(0)},
         {40, 0.0},
         {40, 0.0},
         {40, 0.0},
         {40, 0.0},
         {40, 1.0},
         {40, 1.0},
         {40, 1.0},
         {40, 1.0},
         {10, a},
         {10, b},
         {10, c},
         {10, a}},
        {{0, u"LWPOLYLINE"_s}, {10, a}, {10, b}, {42, 0.5}, {10, c}, {70, qint64(1)}},
        {{0, u"TEXT"_s}, {10, a}, {40, 2.5}, {1, u"Ω čaj"_s}, {72, qint64(1)}, {11, a}, {73, qint64(2)}},
        {{0, u"MTEXT"_s}, {10, a}, {1, u"one\\Ptwo"_s}},
        {{0, u"ATTDEF"_s}, {10, a}, {40, 2.5}, {1, u"x"_s}, {2, u"TAG"_s}, {3, u"Prompt"_s}},
        {{0, u"SOLID"_s}, {10, a}, {11, b}, {12, c}, {13, c}},
        {{0, u"3DFACE"_s}, {10, a}, {11, b}, {12, c}, {13, c}},
        {{0, u"TRACE"_s}, {10, a}, {11, b}, {12, c}, {13, c}},
        {{0, u"RAY"_s}, {10, a}, {11, Vec3{1, 0, 0}}},
        {{0, u"XLINE"_s}, {10, a}, {11, Vec3{1, 0, 0}}},
        {{0, u"HATCH"_s},
         {10, Vec3{}},
         {210, Vec3{0, 0, 1}},
         {2, u"SOLID"_s},
         {70, qint64(1)},
         {71, qint64(0)},
         {91, qint64(1)},
         {92, qint64(3)},
         {72, qint64(0)},
         {73, qint64(1)},
         {93, qint64(3)},
         {10, Vec2{0, 0}},
         {10, Vec2{4, 0}},
         {10, Vec2{4, 4}},
         {97, qint64(0)},
         {75, qint64(0)},
         {76, qint64(1)},
         {98, qint64(0)}},
        {{0, u"INSERT"_s}, {2, u"Part"_s}, {10, a}, {41, 2.0}, {42, 2.0}, {43, 2.0}, {50, 30.0}},
        {{0, u"LEADER"_s}, {10, a}, {10, b}, {71, qint64(1)}, {72, qint64(0)}, {73, qint64(3)}, {76, qint64(2)}},
        {{0, u"DIMENSION"_s}, {2, u"*D0"_s}, {10, b}, {11, c}, {13, a}, {14, b}, {70, qint64(0)}, {1, u""_s}},
    };
}

TEST(Entities, SatisfyAnotherReader)
{
    const auto check = [](Drawing &drawing) {
        drawing.blocks().create(u"Part"_s, {});
        drawing.blocks().create(u"*D"_s, {}, 1);
        for (const FieldList &fields : oneOfEach()) {
            const CreateResult result = drawing.entities().create(fields);
            EXPECT_TRUE(result) << result.error.toStdString();
        }
        EXPECT_TRUE(drawing.entities().createComplex(
            {{0, u"INSERT"_s}, {2, u"Part"_s}, {10, Vec3{}}},
            {{{0, u"ATTRIB"_s}, {10, Vec3{}}, {40, 1.0}, {1, u"v"_s}, {2, u"TAG"_s}}}));
        EXPECT_TRUE(drawing.entities().createComplex({{0, u"POLYLINE"_s}}, {{{10, Vec3{}}}, {{10, Vec3{1, 1, 0}}}},
                                                     Space::Paper));
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

TEST(Entities, PropertiesHaveTheirDefaults)
{
    const auto drawing =
        sample("AC1018", "0 LINE\n5 50\n8 A\n62 3\n420 255\n6 ByLayer\n48 2\n370 25\n60 1\n210 0\n220 0\n230 -1\n"
                         "0 LINE\n5 51\n67 1");
    const EntityProperties full = readProperties(drawing->tags(drawing->find({0x50})));
    EXPECT_EQ(full.layer, u"A"_s);
    EXPECT_EQ(full.colour, 3);
    EXPECT_EQ(full.trueColour, 255U);
    EXPECT_EQ(full.linetype, QString());
    EXPECT_EQ(full.linetypeScale, 2.0);
    EXPECT_EQ(full.lineweight, 25);
    EXPECT_FALSE(full.isVisible);
    EXPECT_EQ(full.extrusion, (Vec3{0, 0, -1}));
    const EntityProperties bare = readProperties(drawing->tags(drawing->find({0x51})));
    EXPECT_EQ(bare.layer, u"0"_s);
    EXPECT_EQ(bare.colour, EntityProperties::byLayer);
    EXPECT_TRUE(bare.isVisible);
    EXPECT_EQ(drawing->entities().space(drawing->find({0x51})), Space::Paper);
}

} // namespace
} // namespace host::drawing
