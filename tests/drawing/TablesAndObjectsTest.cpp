#include "host/drawing/editing/WipeoutFrame.h"
#include "host/drawing/file/NewDrawing.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/records/Symbols.h"
#include "host/drawing/records/Tables.h"
#include "tests/drawing/DrawingSample.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

TEST(Tables, EntriesAreFoundWithoutRegardToCase)
{
    const auto drawing = sample("AC1015");
    EXPECT_TRUE(isValid(drawing->tables().find(TableKind::Linetype, u"continuous")));
    EXPECT_FALSE(isValid(drawing->tables().find(TableKind::Layer, u"continuous")));
    const RecordId layer = drawing->tables().add(TableKind::Layer, u"Wände"_s);
    EXPECT_EQ(drawing->tables().find(TableKind::Layer, u"WÄNDE"), layer);
    EXPECT_EQ(drawing->tables().add(TableKind::Layer, u"wände"_s), layer);
    EXPECT_EQ(drawing->tables().entries(TableKind::Layer).size(), 2U);
    FieldList fields = drawing->fields(layer);
    setField(fields, 2, u"Other"_s);
    drawing->setFields(layer, fields);
    EXPECT_FALSE(isValid(drawing->tables().find(TableKind::Layer, u"Wände"))) << "renamed";
    EXPECT_EQ(drawing->tables().find(TableKind::Layer, u"other"), layer);
    drawing->journal().undo();
    EXPECT_EQ(drawing->tables().find(TableKind::Layer, u"Wände"), layer);
}

TEST(Tables, EveryKindCanBeAddedAndSatisfiesAnotherReader)
{
    for (const QByteArray &version : {QByteArray("AC1009"), QByteArray("AC1015"), QByteArray("AC1032")}) {
        SCOPED_TRACE(version.toStdString());
        const auto drawing = sample(version);
        for (int kind = 0; kind < 9; ++kind) {
            const RecordId entry = drawing->tables().add(static_cast<TableKind>(kind), u"Mine"_s);
            const bool isMissing = version == "AC1009" && static_cast<TableKind>(kind) == TableKind::BlockRecord;
            EXPECT_EQ(isValid(entry), !isMissing) << kind;
            if (static_cast<TableKind>(kind) == TableKind::BlockRecord && isValid(entry))
                drawing->setErased(entry, true); // alone it is no block
        }
        EXPECT_AUDIT_CLEAN(*drawing);
    }
    EXPECT_FALSE(isValid(sample("AC1015")->tables().add(TableKind::Layer, {})));
}

TEST(Tables, DimensionStylesHaveTheirHandleElsewhere)
{
    const auto drawing = sample("AC1015");
    const RecordId style = drawing->tables().add(TableKind::DimStyle, u"Mine"_s, fieldsOf("40 2.0"));
    EXPECT_EQ(drawing->find(drawing->handle(style)), style);
    EXPECT_TRUE(drawing->bytes(style).toByteArray().startsWith("  0\nDIMSTYLE\n105\n"));
    const auto again = readGood(drawing->toBytes());
    EXPECT_TRUE(isValid(again->find(drawing->handle(style))));
}

// What a newer version has and the drawing's does not would make the file unreadable there.
TEST(Tables, EntriesHaveNoGroupsThatTheVersionLacks)
{
    const FieldList given = fieldsOf("40 2.0|342 12|271 3|49 1.5|345 13");
    const std::pair<const char *, std::vector<int>> rows[] = {
        {"AC1009", {40}},
        {"AC1014", {40, 271}},
        {"AC1015", {40, 342, 271}},
        {"AC1021", {40, 342, 271, 49, 345}},
    };
    for (const auto &[version, kept] : rows) {
        const auto drawing = sample(version);
        Tables &tables = drawing->tables();
        const RecordId made = tables.add(TableKind::DimStyle, u"Made"_s, given);
        const RecordId changed = tables.add(TableKind::DimStyle, u"Changed"_s);
        FieldList fields = drawing->fields(changed);
        fields.insert(fields.end(), given.begin(), given.end());
        EXPECT_TRUE(tables.modify(changed, fields));
        EXPECT_FALSE(tables.modify(changed, drawing->fields(changed)));
        for (const RecordId style : {made, changed}) {
            std::vector<int> codes;
            for (const Field &field : drawing->fields(style)) {
                if (findField(given, field.code))
                    codes.push_back(field.code);
            }
            EXPECT_EQ(codes, kept) << version;
        }
    }
}

// Styles that stand for shape files have no name and are told apart by their file.
TEST(Tables, StylesOfShapeFilesHaveNoName)
{
    const auto drawing = sample("AC1015");
    Tables &tables = drawing->tables();
    const RecordId first = tables.add(TableKind::Style, {}, fieldsOf("70 1|3 a.shx"));
    const RecordId second = tables.add(TableKind::Style, {}, fieldsOf("70 1|3 b.shx"));
    EXPECT_NE(first, second);
    EXPECT_EQ(readTextStyle(*drawing, second).fontFile, u"b.shx"_s);
    EXPECT_FALSE(isValid(tables.add(TableKind::Style, {}, fieldsOf("3 a.shx"))));
    EXPECT_AUDIT_CLEAN(*drawing);
}

TEST(Blocks, AreMadeFoundAndEmptied)
{
    for (const QByteArray &version : {QByteArray("AC1009"), QByteArray("AC1015")}) {
        SCOPED_TRACE(version.toStdString());
        const auto drawing = sample(version);
        const RecordId block = drawing->blocks().create(u"Door"_s, {1, 2, 3});
        EXPECT_EQ(drawing->blocks().find(u"DOOR"), block);
        EXPECT_EQ(drawing->blocks().get(u"door")->basePoint, (Vec3{1, 2, 3}));
        EXPECT_EQ(isValid(drawing->blocks().get(u"door")->tableEntry), version != "AC1009");
        drawing->entities().createInBlock(block, fieldsOf("0 POINT|10 0,0,0"));
        EXPECT_EQ(drawing->blocks().create(u"DOOR"_s, {4, 5, 6}), block);
        EXPECT_TRUE(drawing->children(block).empty());
        EXPECT_EQ(drawing->blocks().get(u"door")->basePoint, (Vec3{4, 5, 6}));
        const RecordId first = drawing->blocks().create(u"*U"_s, {}, 1);
        const RecordId second = drawing->blocks().create(u"*u"_s, {}, 1);
        EXPECT_EQ(drawing->blocks().name(first), u"*U0"_s);
        EXPECT_EQ(drawing->blocks().name(second), u"*u1"_s);
        EXPECT_TRUE(drawing->blocks().erase(second));
        EXPECT_FALSE(isValid(drawing->blocks().find(u"*U1")));
        for (const QString &name : {QString(), u"*Model_Space"_s, u"*paper_space"_s})
            EXPECT_FALSE(isValid(drawing->blocks().create(name, {})));
        EXPECT_AUDIT_CLEAN(*drawing);
    }
}

TEST(NewDrawing, IsCompleteAndSatisfiesAnotherReader)
{
    for (const Measurement measurement : {Measurement::Metric, Measurement::Imperial}) {
        const auto drawing = newDrawing(measurement);
        EXPECT_EQ(drawing->version(), Version::R2018);
        EXPECT_FALSE(drawing->journal().isModified());
        EXPECT_TRUE(drawing->path().isEmpty());
        EXPECT_TRUE(drawing->entities().all().empty());
        EXPECT_TRUE(isValid(drawing->tables().find(TableKind::Layer, u"0")));
        EXPECT_AUDIT_CLEAN(*drawing);
    }
}

const FieldList namedData = fieldsOf("1 čas|40 12.5|90 -7|10 1,2,3|290 1");

TEST(Dictionaries, KeepNamedData)
{
    for (const QByteArray &version : {QByteArray("AC1015"), QByteArray("AC1032")}) {
        SCOPED_TRACE(version.toStdString());
        const auto drawing = sample(version);
        Dictionaries &dictionaries = drawing->dictionaries();
        const RecordId root = dictionaries.root();
        EXPECT_EQ(root, drawing->find({0xC}));
        EXPECT_FALSE(dictionaries.xrecord(root, u"EDIT_TIME").has_value());
        const RecordId record = dictionaries.setXrecord(root, u"EDIT_TIME"_s, namedData);
        EXPECT_EQ(dictionaries.xrecord(root, u"edit_time"), namedData);
        EXPECT_EQ(dictionaries.setXrecord(root, u"Edit_Time"_s, fieldsOf("1 later")), record);
        EXPECT_EQ(dictionaries.xrecord(root, u"EDIT_TIME"), fieldsOf("1 later"));
        EXPECT_EQ(dictionaries.entries(root).size(), 2U);
        const auto again = readGood(drawing->toBytes());
        EXPECT_EQ(again->dictionaries().xrecord(again->dictionaries().root(), u"EDIT_TIME"), fieldsOf("1 later"));
        EXPECT_AUDIT_CLEAN(*drawing);
        EXPECT_TRUE(dictionaries.remove(root, u"EDIT_TIME"));
        EXPECT_FALSE(dictionaries.remove(root, u"EDIT_TIME"));
        EXPECT_FALSE(drawing->isAlive(record));
        EXPECT_AUDIT_CLEAN(*drawing);
    }
}

TEST(Dictionaries, NestAndRefuseOtherThings)
{
    const auto drawing = newDrawing();
    Dictionaries &dictionaries = drawing->dictionaries();
    const RecordId root = dictionaries.root();
    const RecordId own = dictionaries.ensureDictionary(root, u"MINE"_s);
    EXPECT_EQ(dictionaries.ensureDictionary(root, u"mine"_s), own);
    EXPECT_TRUE(isValid(dictionaries.setXrecord(own, u"a"_s, namedData)));
    EXPECT_FALSE(isValid(dictionaries.setXrecord(root, u"ACAD_GROUP"_s, namedData))) << "a dictionary is no record";
    EXPECT_FALSE(isValid(dictionaries.ensureDictionary(own, u"a"_s))) << "a record is no dictionary";
    EXPECT_AUDIT_CLEAN(*drawing);
}

TEST(Dictionaries, AreMadeWhereTheVersionHasThem)
{
    const auto removeObjects = [](const QByteArray &text) {
        const qsizetype begin = text.lastIndexOf("  0\nSECTION");
        return text.first(begin) + "  0\nEOF\n";
    };
    const auto newer = readGood(removeObjects(sampleText("AC1018")));
    EXPECT_FALSE(isValid(newer->dictionaries().root()));
    const RecordId root = newer->dictionaries().ensureRoot();
    ASSERT_TRUE(isValid(root));
    EXPECT_TRUE(isValid(newer->dictionaries().setXrecord(root, u"X"_s, namedData)));
    const auto again = readGood(newer->toBytes());
    EXPECT_EQ(again->dictionaries().entries(again->dictionaries().root()).size(), 1U);

    const auto old = sample("AC1009");
    const QByteArray before = old->toBytes();
    EXPECT_FALSE(isValid(old->dictionaries().ensureRoot()));
    EXPECT_FALSE(isValid(old->dictionaries().setXrecord(noRecord, u"X"_s, namedData)));
    EXPECT_FALSE(isValid(old->dictionaries().ensureDictionary(noRecord, u"X"_s)));
    EXPECT_EQ(old->toBytes(), before);
}

TEST(Dictionaries, ExtensionDictionariesAreFound)
{
    const auto drawing = sample(
        "AC1015", "0 LINE\n5 50\n102 {ACAD_XDICTIONARY\n360 D\n102 }\n330 1F\n100 AcDbEntity\n8 0\n0 POINT\n5 51\n8 0");
    EXPECT_EQ(drawing->dictionaries().extensionDictionary(drawing->find({0x50})), drawing->find({0xD}));
    EXPECT_FALSE(isValid(drawing->dictionaries().extensionDictionary(drawing->find({0x51}))));
}

TEST(WipeoutFrame, IsKeptInTheDrawing)
{
    const std::pair<QByteArray, bool> rows[] = {
        {"AC1009", false}, {"AC1014", false}, {"AC1015", true}, {"AC1032", true}};
    for (const auto &[version, isKept] : rows) {
        SCOPED_TRACE(version.toStdString());
        const auto drawing = sample(version);
        const QByteArray before = drawing->toBytes();
        EXPECT_EQ(wipeoutFrame(*drawing), 1) << "without the object";
        EXPECT_EQ(setWipeoutFrame(*drawing, 0), isKept);
        EXPECT_EQ(drawing->journal().isModified(), isKept);
        if (!isKept)
            continue;
        EXPECT_EQ(wipeoutFrame(*readGood(drawing->toBytes())), 0);
        EXPECT_AUDIT_CLEAN(*drawing);
        EXPECT_TRUE(setWipeoutFrame(*drawing, 2)) << "the object is there now";
        EXPECT_EQ(wipeoutFrame(*readGood(drawing->toBytes())), 2);
        EXPECT_EQ(drawing->toBytes().count("WIPEOUTVARIABLES"), 2) << "class and object";
        drawing->journal().undo();
        EXPECT_TRUE(drawing->journal().undo());
        EXPECT_EQ(drawing->toBytes(), before);
    }
}

TEST(WipeoutFrame, LeavesAnObjectOfTheSameNameAlone)
{
    const auto drawing = sample("AC1015");
    drawing->dictionaries().setXrecord(drawing->dictionaries().root(), u"ACAD_WIPEOUT_VARS"_s, fieldsOf("70 0"));
    const QByteArray before = drawing->toBytes();
    EXPECT_EQ(wipeoutFrame(*drawing), 1);
    EXPECT_FALSE(setWipeoutFrame(*drawing, 0));
    EXPECT_EQ(drawing->toBytes(), before);
}

} // namespace
} // namespace host::drawing
