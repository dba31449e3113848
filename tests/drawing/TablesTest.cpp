#include "host/drawing/records/Tables.h"

#include "host/drawing/file/NewDrawing.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/records/Symbols.h"
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
    const struct
    {
        const char *version;
        std::vector<int> kept;
    } rows[] = {
        {"AC1009", {40}},
        {"AC1014", {40, 271}},
        {"AC1015", {40, 342, 271}},
        {"AC1021", {40, 342, 271, 49, 345}},
    };
    for (const auto &row : rows) {
        const auto drawing = sample(row.version);
        Tables &tables = drawing->tables();
        const RecordId made = tables.add(TableKind::DimStyle, u"Made"_s, given);
        const RecordId changed = tables.add(TableKind::DimStyle, u"Changed"_s);
        FieldList fields = drawing->fields(changed);
        fields.insert(fields.end(), given.begin(), given.end());
        EXPECT_TRUE(tables.modify(changed, fields));
        EXPECT_FALSE(tables.modify(changed, drawing->fields(changed)));
        for (const RecordId style : {made, changed}) {
            std::vector<int> kept;
            for (const Field &field : drawing->fields(style)) {
                if (findField(given, field.code))
                    kept.push_back(field.code);
            }
            EXPECT_EQ(kept, row.kept) << row.version;
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

} // namespace
} // namespace host::drawing
