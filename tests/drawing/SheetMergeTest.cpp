#include "host/drawing/editing/SheetMerge.h"

#include "host/drawing/file/NewDrawing.h"
#include "host/drawing/geometry/EntityGeometry.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/Entities.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/records/Tables.h"
#include "tests/drawing/DrawingSample.h"

#include <QMap>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

/// A drawing with a sheet: a viewport cut at a circle, a text, and in model space an insert of DOOR, in which KNOB is.
std::unique_ptr<Drawing> withSheet(const QByteArray &knob, const QByteArray &colour)
{
    auto drawing = newDrawing();
    Entities &entities = drawing->entities();
    drawing->tables().add(TableKind::Layer, u"WALLS"_s, fieldsOf("62 " + colour));
    const RecordId inner = drawing->blocks().create(u"KNOB"_s, {});
    entities.createInBlock(inner, fieldsOf("0 CIRCLE|10 0,0,0|40 " + knob));
    const RecordId door = drawing->blocks().create(u"DOOR"_s, {});
    entities.createInBlock(door, fieldsOf("0 INSERT|2 KNOB|10 0,0,0"));
    entities.createInBlock(door, fieldsOf("0 LINE|8 WALLS|10 0,0,0|11 1,0,0"));
    const RecordId insert = entities.create(fieldsOf("0 INSERT|8 WALLS|2 DOOR|10 5,5,0")).record;
    drawing->dictionaries().setXrecord(drawing->dictionaries().ensureExtensionDictionary(insert), u"NOTE"_s,
                                       {{1, u"kept"_s}, {330, drawing->handle(insert)}});
    const RecordId clip = entities.create(fieldsOf("0 CIRCLE|10 10,10,0|40 4.0"), Space::Paper).record;
    FieldList viewport = fieldsOf("0 VIEWPORT|10 10,10,0|40 8.0|41 8.0|68 2|69 2|12 5,5|16 0,0,1|17 0,0,0|45 10.0");
    viewport.push_back({340, drawing->handle(clip)});
    entities.create(viewport, Space::Paper);
    return drawing;
}

std::vector<RecordId> entitiesOn(const Drawing &drawing, const QString &sheet)
{
    for (const LayoutTab &layout : layoutTabs(drawing)) {
        if (layout.name == sheet)
            return layoutEntities(drawing, layout);
    }
    return {};
}

/// Types of what is on a sheet, each with its number.
QString kindsOn(const Drawing &drawing, const QString &sheet)
{
    QMap<QString, int> counts;
    for (const RecordId entity : entitiesOn(drawing, sheet))
        ++counts[QString::fromLatin1(drawing.typeName(entity))];
    QString text;
    for (auto count = counts.cbegin(); count != counts.cend(); ++count)
        text += u"%1 %2 "_s.arg(count.value()).arg(count.key());
    return text;
}

TEST(SheetMerge, ViewportsLookWhereTheModelWentAndKeepTheirEdge)
{
    const auto source = withSheet("0.1", "1");
    const QByteArray before = source->toBytes();
    auto target = readGood(withSheet("0.1", "1")->toBytes());
    const QByteArray targetBefore = target->toBytes();
    const MergeResult result = mergeSheets(*source, {{u"Layout1"_s, u"Plan"_s}}, *target, {.modelOffset = {100, 0, 0}});
    ASSERT_TRUE(result) << result.error.toStdString();
    EXPECT_TRUE(result.clashes.empty()) << "equal definitions do not clash";
    EXPECT_EQ(source->toBytes(), before);
    const std::vector<RecordId> drawn = entitiesOn(*target, u"Plan"_s);
    ASSERT_EQ(kindsOn(*target, u"Plan"_s), u"1 CIRCLE 1 VIEWPORT "_s);
    EXPECT_EQ(target->tags(drawn[1]).point(17), (Vec3{100, 0, 0}));
    EXPECT_EQ(target->tags(drawn[1]).handle(340), target->handle(drawn[0]));
    const RecordId door = target->entities().inSpace(Space::Model).back();
    EXPECT_EQ(target->tags(door).point(10), (Vec3{105, 5, 0}));
    const Dictionaries &dictionaries = target->dictionaries();
    const auto note = dictionaries.xrecord(dictionaries.extensionDictionary(door), u"NOTE");
    ASSERT_TRUE(note.has_value());
    EXPECT_EQ(note->back().handle(), target->handle(door)) << "a reference within leads to the copy";
    EXPECT_AUDIT_CLEAN(*target);
    target->journal().undo();
    EXPECT_EQ(target->toBytes(), targetBefore);
}

TEST(SheetMerge, WhatDiffersIsKeptOrNamedAnew)
{
    const auto source = withSheet("0.2", "3");
    const std::tuple<NameClash, QString, QString, QString> rows[] = {
        {NameClash::Keep, u"DOOR"_s, u"WALLS"_s, u"KNOB"_s},
        {NameClash::Prefix, u"site$DOOR"_s, u"site$WALLS"_s, u"site$KNOB"_s}};
    for (const auto &[clash, block, layer, nested] : rows) {
        const auto target = withSheet("0.1", "1");
        const MergeResult result =
            mergeSheets(*source, {{u"Layout1"_s, u"Plan"_s}}, *target, {.clash = clash, .prefix = u"site$"_s});
        ASSERT_TRUE(result);
        const RecordId door = target->entities().inSpace(Space::Model).back();
        EXPECT_EQ(target->tags(door).text(2), block);
        EXPECT_EQ(target->tags(door).text(8), layer);
        const std::vector<RecordId> parts = target->children(target->blocks().find(block));
        EXPECT_EQ(target->tags(parts[0]).text(2), nested);
        EXPECT_EQ(target->tags(parts[1]).text(8), layer);
        QStringList clashes;
        for (const KeptName &name : result.clashes)
            clashes.append(name.name);
        clashes.sort();
        EXPECT_TRUE(clashes.contains(u"DOOR"_s) && clashes.contains(u"WALLS"_s)) << clashes.join(u' ').toStdString();
        EXPECT_AUDIT_CLEAN(*target);
    }
}

TEST(SheetMerge, RefusesWhatHasNoPlace)
{
    const auto source = withSheet("0.1", "1");
    const std::tuple<QByteArray, MergedSheet, QString> rows[] = {
        {"AC1009", {u"Layout1"_s, u"Plan"_s}, u"a drawing of this version has one sheet only"_s},
        {"AC1032", {u"Nowhere"_s, u"Plan"_s}, u"there is no sheet \"Nowhere\""_s},
        {"AC1032", {u"layout1"_s, u"model"_s}, u"there is a sheet \"model\" already"_s},
        {"AC1032", {u"Model"_s, u"Plan"_s}, u"there is no sheet \"Model\""_s},
        {"AC1032", {u"Layout1"_s, u"a<b>"_s}, u"\"a<b>\" cannot be the name of a sheet"_s},
    };
    for (const auto &[version, sheet, error] : rows) {
        const auto target = version == "AC1009" ? sample(version) : newDrawing();
        const QByteArray before = target->toBytes();
        EXPECT_EQ(mergeSheets(*source, {sheet}, *target, {}).error, error);
        EXPECT_EQ(target->toBytes(), before);
    }
    const auto drawing = withSheet("0.1", "1");
    EXPECT_FALSE(renameSheet(*drawing, u"Layout1"_s, u"Model"_s));
    EXPECT_TRUE(renameSheet(*drawing, u"Layout1"_s, u"LAYOUT1"_s)) << "a name may change its case";
}

// Drawings by other programs: on each sheet the same kinds of entities in the same number, and nothing that leads to
// nowhere.
TEST(SheetMerge, CorpusSheetsArriveWhole)
{
    SKIP_WITHOUT_CORPUS(forEachCorpusDrawing([](const Drawing &source) {
        auto target = withSheet("0.1", "1");
        std::vector<MergedSheet> sheets;
        for (const LayoutTab &layout : layoutTabs(source))
            if (!layout.isModel())
                sheets.push_back({layout.name, u"New "_s + layout.name});
        const MergeResult result = mergeSheets(
            source, sheets, *target, {.clash = NameClash::Prefix, .prefix = u"x$"_s, .modelOffset = {9, 0, 0}});
        ASSERT_TRUE(result) << result.error.toStdString();
        EXPECT_EQ(result.skipped, 0);
        for (const MergedSheet &sheet : sheets)
            EXPECT_EQ(kindsOn(*target, sheet.name), kindsOn(source, sheet.layout));
        EXPECT_AUDIT_CLEAN(*target);
    }));
}

} // namespace
} // namespace host::drawing
