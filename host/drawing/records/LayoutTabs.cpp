#include "host/drawing/records/LayoutTabs.h"

#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/Entities.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/records/Structure.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/tags/GroupCodes.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView layoutDictionary = u"ACAD_LAYOUT";

FieldList plotSettings(bool isModel)
{
    FieldList fields = {{subclassCode, u"AcDbPlotSettings"_s},
                        {1, QString()},
                        {2, u"none_device"_s},
                        {4, u"ISO_A4_(210.00_x_297.00_MM)"_s},
                        {6, QString()}};
    for (const auto &[code, value] :
         {std::pair{40, 7.5}, std::pair{41, 20.0}, std::pair{42, 7.5}, std::pair{43, 20.0}, std::pair{44, 210.0},
          std::pair{45, 297.0}, std::pair{46, 0.0}, std::pair{47, 0.0}, std::pair{48, 0.0}, std::pair{49, 0.0},
          std::pair{140, 0.0}, std::pair{141, 0.0}, std::pair{142, 1.0}, std::pair{143, 1.0}})
        fields.push_back({code, value});
    for (const auto &[code, value] :
         {std::pair{70, isModel ? 1712 : 688}, std::pair{72, 1}, std::pair{73, 0}, std::pair{74, 5}})
        fields.push_back({code, qint64(value)});
    fields.push_back({7, QString()});
    for (const auto &[code, value] : {std::pair{75, 16}, std::pair{76, 0}, std::pair{77, 2}, std::pair{78, 300}})
        fields.push_back({code, qint64(value)});
    for (const auto &[code, value] : {std::pair{147, 1.0}, std::pair{148, 0.0}, std::pair{149, 0.0}})
        fields.push_back({code, value});
    return fields;
}

/// The block that a layout's object leads to by the table entry.
RecordId blockOfLayout(const Drawing &drawing, RecordId layout)
{
    const TagList tags = drawing.tags(layout);
    const Tag *owner = tags.find(330, "AcDbLayout");
    const RecordId entry = owner ? drawing.find(owner->handle().value_or(Handle{})) : noRecord;
    return drawing.isAlive(entry) && drawing.kind(entry) == RecordKind::TableEntry
               ? drawing.blocks().find(drawing.tables().name(entry))
               : noRecord;
}

qint64 orderOf(const Drawing &drawing, RecordId layout)
{
    const TagList tags = drawing.tags(layout);
    const Tag *order = tags.find(71, "AcDbLayout");
    return order ? order->integer().value_or(0) : 0;
}

std::vector<LayoutTab> withoutObjects(const Drawing &drawing)
{
    return {{u"Model"_s, noRecord, drawing.blocks().find(u"*Model_Space"), 0},
            {u"Layout1"_s, noRecord, drawing.blocks().find(u"*Paper_Space"), 1}};
}

QString freeSpaceBlock(const Drawing &drawing)
{
    const QString name = u"*Paper_Space"_s;
    if (!isValid(drawing.blocks().find(name)))
        return name;
    int number = 0;
    while (isValid(drawing.blocks().find(QString(name + QString::number(number)))))
        ++number;
    return name + QString::number(number);
}

} // namespace

std::vector<LayoutTab> layoutTabs(const Drawing &drawing)
{
    const Dictionaries &dictionaries = drawing.dictionaries();
    const RecordId root = dictionaries.root();
    const RecordId dictionary = isValid(root) ? dictionaries.find(root, layoutDictionary) : noRecord;
    if (!isValid(dictionary))
        return withoutObjects(drawing);
    std::vector<LayoutTab> result;
    for (const Dictionaries::Entry &entry : dictionaries.entries(dictionary)) {
        if (isValid(entry.record))
            result.push_back(
                {entry.name, entry.record, blockOfLayout(drawing, entry.record), orderOf(drawing, entry.record)});
    }
    // Programs of today leave the dictionary empty in drawings of the time before layouts.
    if (result.empty())
        return withoutObjects(drawing);
    std::stable_sort(result.begin(), result.end(),
                     [](const LayoutTab &one, const LayoutTab &other) { return one.order < other.order; });
    return result;
}

std::optional<LayoutTab> findLayout(const Drawing &drawing, const QString &name)
{
    for (const LayoutTab &tab : layoutTabs(drawing))
        if (tab.name.compare(name, Qt::CaseInsensitive) == 0)
            return tab;
    return {};
}

std::vector<RecordId> layoutEntities(const Drawing &drawing, const LayoutTab &layout)
{
    if (layout.isModel())
        return drawing.entities().inSpace(Space::Model);
    const QString block = isValid(layout.block) ? drawing.blocks().name(layout.block) : u"*Paper_Space"_s;
    const bool isInUse = block.compare(u"*Paper_Space", Qt::CaseInsensitive) == 0 || !isValid(layout.record);
    return isInUse ? drawing.entities().inSpace(Space::Paper) : drawing.children(layout.block);
}

RecordId addLayout(Drawing &drawing, const QString &name, const QString &spaceBlock, qint64 order)
{
    const RecordId entry = drawing.tables().find(TableKind::BlockRecord, spaceBlock);
    Dictionaries &dictionaries = drawing.dictionaries();
    const RecordId dictionary = dictionaries.ensureDictionary(dictionaries.ensureRoot(), layoutDictionary.toString());
    if (!isValid(entry) || !isValid(dictionary))
        return noRecord;
    const JournalGroup group(drawing.journal(), {});
    FieldList body = plotSettings(order == 0);
    const FieldList layout = {{subclassCode, u"AcDbLayout"_s},
                              {1, name},
                              {70, qint64(1)},
                              {71, order},
                              {10, Vec2{}},
                              {11, Vec2{420.0, 297.0}},
                              {12, Vec3{}},
                              {14, Vec3{1e20, 1e20, 1e20}},
                              {15, Vec3{-1e20, -1e20, -1e20}},
                              {146, 0.0},
                              {13, Vec3{}},
                              {16, Vec3{1, 0, 0}},
                              {17, Vec3{0, 1, 0}},
                              {76, qint64(0)},
                              {330, drawing.handle(entry)}};
    body.insert(body.end(), layout.begin(), layout.end());
    const RecordId record = insertObject(drawing, u"LAYOUT"_s, drawing.handle(dictionary), body);
    dictionaries.set(dictionary, name, record);
    FieldList fields = drawing.fields(entry);
    setField(fields, 340, drawing.handle(record));
    drawing.setFields(entry, fields);
    return record;
}

void setOrder(Drawing &drawing, const LayoutTab &layout, qint64 order)
{
    if (!isValid(layout.record))
        return;
    FieldList fields = drawing.fields(layout.record);
    const auto own = std::find_if(fields.begin(), fields.end(), [](const Field &field) {
        return field.code == subclassCode && field.text() == u"AcDbLayout";
    });
    const auto found = std::find_if(own, fields.end(), [](const Field &field) { return field.code == 71; });
    if (found == fields.end())
        return;
    found->value = order;
    drawing.setFields(layout.record, fields);
}

RecordId addSheet(Drawing &drawing, const QString &name)
{
    if (drawing.version() < Version::R2000)
        return noRecord;
    const JournalGroup group(drawing.journal(), {});
    const QString block = freeSpaceBlock(drawing);
    insertBlockDefinition(drawing, block, {}, 0);
    const std::vector<LayoutTab> existing = layoutTabs(drawing);
    return addLayout(drawing, name, block, existing.empty() ? 1 : existing.back().order + 1);
}

} // namespace host::drawing
