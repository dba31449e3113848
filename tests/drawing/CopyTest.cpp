#include "host/drawing/editing/CopyBetweenDrawings.h"
#include "host/drawing/file/NewDrawing.h"
#include "host/drawing/geometry/EntityGeometry.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/records/Symbols.h"
#include "host/drawing/records/Tables.h"
#include "tests/drawing/DrawingSample.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

/// A drawing in which everything hangs together: nested blocks, layers, linetype, style, attributes.
std::unique_ptr<Drawing> furnished(const QByteArray &version)
{
    auto drawing = sample(version);
    Tables &tables = drawing->tables();
    tables.add(TableKind::Linetype, u"DASHED"_s, fieldsOf("73 2|40 0.75|49 0.5|74 0|49 -0.25|74 0"));
    tables.add(TableKind::Layer, u"Walls"_s, fieldsOf("62 3|6 DASHED"));
    tables.add(TableKind::Style, u"Notes"_s, fieldsOf("3 arial.ttf"));
    tables.add(TableKind::Layer, u"Unused"_s);
    const RecordId inner = drawing->blocks().create(u"Inner"_s, {});
    drawing->entities().createInBlock(inner, fieldsOf("0 CIRCLE|8 Walls|10 0,0,0|40 1.0"));
    const RecordId outer = drawing->blocks().create(u"Outer"_s, {1, 1, 0});
    drawing->entities().createInBlock(outer, fieldsOf("0 INSERT|2 Inner|10 5,5,0"));
    const RecordId anonymous = drawing->blocks().create(u"*U"_s, {}, 1);
    drawing->entities().createInBlock(anonymous, fieldsOf("0 POINT|10 9,9,0"));
    Entities &entities = drawing->entities();
    entities.create(fieldsOf("0 TEXT|8 Walls|7 Notes|10 0,0,0|40 2.0|1 žluť|1001 TOOL|1000 x"));
    entities.createComplex(fieldsOf("0 INSERT|2 Outer|10 10,10,0"),
                           {fieldsOf("0 ATTRIB|10 0,0,0|40 1.0|1 v|2 T|7 Notes")});
    entities.create(fieldsOf("0 INSERT|2 *U0|10 0,0,0"));
    return drawing;
}

void expectFurnished(const Drawing &drawing, const std::vector<RecordId> &entities)
{
    ASSERT_EQ(entities.size(), 3U);
    EXPECT_EQ(drawing.tags(entities[0]).text(1), u"žluť"_s);
    EXPECT_EQ(findLayer(drawing, u"Walls")->linetype, u"DASHED"_s);
    EXPECT_EQ(findLayer(drawing, u"Walls")->colour, 3);
    EXPECT_EQ(findLinetype(drawing, u"DASHED")->dashes.size(), 2U);
    EXPECT_EQ(findTextStyle(drawing, u"Notes")->fontFile, u"arial.ttf"_s);
    EXPECT_TRUE(isValid(drawing.tables().find(TableKind::AppId, u"TOOL")));
    EXPECT_FALSE(findLayer(drawing, u"Unused").has_value());
    EXPECT_EQ(drawing.children(entities[1]).size(), 1U);
    EXPECT_TRUE(isValid(drawing.blocks().find(u"Inner")));
}

double boxDifference(const Drawing &source, const Drawing &target)
{
    const Box from = spaceBox(source, source.entities().all());
    const Box to = spaceBox(target, target.entities().all());
    return (from.high - to.high).length() + (from.low - to.low).length();
}

TEST(Copy, ToANewDrawingWithAllItNeeds)
{
    for (const char *version : {"AC1009", "AC1015", "AC1032"}) {
        SCOPED_TRACE(version);
        const auto source = furnished(version);
        const QByteArray before = source->toBytes();
        const auto target = wblock(*source, source->entities().all(), {3, 4, 5});
        ASSERT_TRUE(target);
        expectFurnished(*target, target->entities().all());
        EXPECT_EQ(target->header().point(u"$INSBASE"), (Vec3{3, 4, 5}));
        EXPECT_FALSE(target->journal().canUndo());
        EXPECT_EQ(source->toBytes(), before);
        EXPECT_LT(boxDifference(*source, *target), 1e-9);
        EXPECT_AUDIT_CLEAN(*target);
    }
    const auto source = furnished("AC1015");
    const auto block = wblock(*source, source->blocks().find(u"Outer"));
    ASSERT_TRUE(block);
    EXPECT_EQ(block->header().point(u"$INSBASE"), (Vec3{1, 1, 0}));
    EXPECT_EQ(block->entities().all().size(), 1U);
    EXPECT_EQ(wblock(*source, {}, {}), nullptr);
    EXPECT_EQ(wblock(*source, noRecord), nullptr);
}

TEST(Copy, IntoADrawingAsABlock)
{
    const auto source = furnished("AC1015");
    source->header().set(u"$INSBASE", {10, Vec3{7, 8, 9}});
    for (const char *version : {"AC1009", "AC1018", "AC1032"}) {
        SCOPED_TRACE(version);
        const auto target = sample(version);
        const QByteArray before = target->toBytes();
        const CopyResult result = insertAsBlock(*source, *target, u"Symbol"_s);
        ASSERT_TRUE(result) << result.error.toStdString();
        EXPECT_EQ(result.skipped, 0);
        expectFurnished(*target, target->children(result.record));
        EXPECT_EQ(target->blocks().get(u"symbol")->basePoint, (Vec3{7, 8, 9}));
        EXPECT_AUDIT_CLEAN(*target);
        EXPECT_EQ(target->journal().undoDepth(), 1);
        target->journal().undo();
        EXPECT_EQ(target->toBytes(), before);
    }
    EXPECT_FALSE(insertAsBlock(*source, *newDrawing(), {}));
}

TEST(Copy, WhatIsThereWins)
{
    const auto source = furnished("AC1015");
    const auto target = sample("AC1015");
    target->tables().add(TableKind::Layer, u"WALLS"_s, fieldsOf("62 1"));
    const RecordId inner = target->blocks().create(u"INNER"_s, {});
    target->blocks().create(u"*U"_s, {}, 1);
    copyEntities(*source, source->entities().all(), *target);
    EXPECT_EQ(findLayer(*target, u"Walls")->colour, 1);
    EXPECT_TRUE(target->children(inner).empty());
    // Equal names of anonymous blocks mean nothing.
    EXPECT_EQ(target->tags(target->entities().all()[2]).text(2), u"*U1"_s);
    EXPECT_EQ(target->children(target->blocks().find(u"*U1")).size(), 1U);
}

TEST(Copy, OneBlockWithAllItNeeds)
{
    const auto source = furnished("AC1015");
    const RecordId outer = source->blocks().find(u"Outer");
    source->entities().createInBlock(outer, fieldsOf("0 ATTDEF|8 Walls|7 Notes|10 0,0,0|40 1.0|1 v|2 TAG|3 Ask|70 0"));
    source->entities().createInBlock(outer, fieldsOf("0 INSERT|2 *U0|10 0,0,0"));
    const QByteArray before = source->toBytes();
    for (const char *version : {"AC1009", "AC1018", "AC1032"}) {
        SCOPED_TRACE(version);
        const auto target = sample(version);
        const QByteArray bare = target->toBytes();
        const CopyResult result = copyBlock(*source, outer, *target);
        ASSERT_TRUE(result) << result.error.toStdString();
        EXPECT_TRUE(result.kept.empty());
        EXPECT_EQ(target->blocks().get(u"outer")->basePoint, (Vec3{1, 1, 0}));
        EXPECT_EQ(target->children(result.record).size(), 3U);
        EXPECT_EQ(findLayer(*target, u"Walls")->linetype, u"DASHED"_s);
        EXPECT_EQ(findTextStyle(*target, u"Notes")->fontFile, u"arial.ttf"_s);
        EXPECT_EQ(target->children(target->blocks().find(u"Inner")).size(), 1U);
        EXPECT_AUDIT_CLEAN(*target);
        // Again there is nothing to do.
        EXPECT_EQ(copyBlock(*source, outer, *target).kept,
                  (std::vector<KeptName>{{TableKind::BlockRecord, u"Outer"_s}}));
        EXPECT_EQ(target->journal().undoDepth(), 1);
        target->journal().undo();
        EXPECT_EQ(target->toBytes(), bare);
    }
    EXPECT_EQ(source->toBytes(), before);
    const auto target = sample("AC1032");
    EXPECT_FALSE(copyBlock(*source, source->blocks().find(u"*Model_Space"), *target));
    EXPECT_FALSE(copyBlock(*source, noRecord, *target));
    EXPECT_FALSE(copyBlock(*source, source->entities().all().front(), *target));
}

// Into a drawing of the oldest version: what comes of an entity as "TYPE vertices", nothing when it is left out, and
// its box, which stays.
TEST(Copy, WhatAnEarlyVersionLacksIsConvertedOrCounted)
{
    const std::pair<const char *, QString> rows[] = {
        {"0 LWPOLYLINE|90 3|70 1|38 2.5|10 0,0|40 0.1|41 0.2|42 1.0|10 4,0|10 4,3", u"POLYLINE 3"_s},
        {"0 LWPOLYLINE|90 2|70 0|43 0.5|10 0,0|10 4,0|210 0,0,-1", u"POLYLINE 2"_s},
        {"0 ELLIPSE|10 1,2,3|11 4,0,0|40 0.5|41 0.0|42 1.5707963267948966", u"POLYLINE 19"_s},
        {"0 MTEXT|10 5,5,0|40 1.0|71 5|1 {\\fArial;one}\\Ptwo\\P\\P\\S1/2; \\\\x", u"TEXT 0 TEXT 0 TEXT 0"_s},
        {"0 RAY|10 0,0,0|11 1,0,0", {}},
        {"0 MESH|100 AcDbEntity|8 0|100 AcDbSubDMesh|71 2", {}},
    };
    for (const auto &[entity, made] : rows) {
        SCOPED_TRACE(entity);
        const auto source = newDrawing();
        ASSERT_TRUE(source->entities().create(fieldsOf(entity)));
        const auto target = sample("AC1009");
        const CopyResult result = copyEntities(*source, source->entities().all(), *target);
        EXPECT_EQ(result.converted, made.isEmpty() ? 0 : 1);
        EXPECT_EQ(result.skipped, made.isEmpty() ? 1 : 0);
        QStringList found;
        for (const RecordId id : target->entities().all())
            found.append(u"%1 %2"_s.arg(QString::fromLatin1(target->typeName(id))).arg(target->children(id).size()));
        EXPECT_EQ(found.join(u' '), made);
        if (made.startsWith(u"POLY")) {
            EXPECT_LT(boxDifference(*source, *target), 1e-6);
        }
        EXPECT_AUDIT_CLEAN(*target);
    }
}

// Behind an insert or inside a block they would be its end, or a part of it.
TEST(Copy, PartsThatStandAloneAreLeftOut)
{
    for (const char *part : {"SEQEND", "VERTEX", "ATTRIB", "BLOCK", "endblk"}) {
        SCOPED_TRACE(part);
        const auto source = sample(
            "AC1009", "0 INSERT\n2 B\n10 0\n20 0\n0 LINE\n10 0\n20 0\n11 1\n21 0\n0 " + QByteArray(part) + "\n8 0",
            "0 BLOCK\n2 B\n10 0\n20 0\n0 ENDBLK");
        const auto target = sample("AC1009");
        ASSERT_EQ(source->entities().all().size(), 3U);
        EXPECT_EQ(copyEntities(*source, {source->entities().all()[0], source->entities().all()[2]}, *target).skipped,
                  1);
        EXPECT_EQ(insertAsBlock(*source, *target, u"Whole"_s).skipped, 1);
        const ReadResult again = Drawing::fromBytes(target->toBytes());
        ASSERT_TRUE(again) << again.error.text.toStdString();
        EXPECT_EQ(again.drawing->entities().all().size(), 1U);
        EXPECT_EQ(again.drawing->children(again.drawing->blocks().find(u"Whole")).size(), 2U);
    }
}

TEST(Copy, LongChainsOfBlocksAreCopiedWhole)
{
    QByteArray chain;
    constexpr int length = 1000;
    for (int i = 0; i < length; ++i)
        chain += "0 BLOCK\n8 0\n2 B" + QByteArray::number(i) + "\n10 0\n20 0\n0 INSERT\n8 0\n2 B" +
                 QByteArray::number(i + 1) + "\n10 0\n20 0\n30 0\n0 ENDBLK\n";
    chain += "0 BLOCK\n8 0\n2 B" + QByteArray::number(length) +
             "\n10 0\n20 0\n0 LINE\n8 0\n10 0\n20 0\n30 0\n11 1\n21 1\n31 0\n0 ENDBLK\n";
    const auto source = sample("AC1009", "0 INSERT\n2 B0\n10 0\n20 0", chain);
    const auto target = sample("AC1009");
    EXPECT_TRUE(copyEntities(*source, source->entities().all(), *target));
    EXPECT_TRUE(isValid(target->blocks().find(u"B%1"_s.arg(length - 1))));
    EXPECT_EQ(target->children(target->blocks().find(u"B700"_s)).size(), 1U);
    // A second time all blocks are compared with those that are there.
    EXPECT_TRUE(copyEntities(*source, source->entities().all(), *target).kept.empty());
}

TEST(Copy, WhatRefersToItselfIsCopiedOnce)
{
    const auto source = sample("AC1015");
    const RecordId style = source->tables().add(TableKind::Linetype, u"SELF"_s, fieldsOf("73 0|40 0"));
    FieldList fields = source->fields(style);
    fields.push_back({340, source->handle(style)});
    source->setFields(style, fields);
    source->entities().create(fieldsOf("0 LINE|8 0|6 SELF|10 0,0,0|11 1,1,0"));
    const auto target = sample("AC1015");
    EXPECT_TRUE(copyEntities(*source, source->entities().all(), *target));
    EXPECT_TRUE(isValid(target->tables().find(TableKind::Linetype, u"SELF"_s)));
}

TEST(Copy, CorpusDrawingsGoIntoANewOne)
{
    SKIP_WITHOUT_CORPUS(forEachCorpusDrawing([](const Drawing &source) {
        const auto target = newDrawing();
        const CopyResult result = insertAsBlock(source, *target, u"Whole"_s);
        ASSERT_TRUE(result) << result.error.toStdString();
        EXPECT_AUDIT_CLEAN(*target);
    }));
}

} // namespace
} // namespace host::drawing
