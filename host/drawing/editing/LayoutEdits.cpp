#include "host/drawing/editing/LayoutEdits.h"

#include "host/drawing/editing/RenameLayer.h"
#include "host/drawing/geometry/TransformEntity.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/Entities.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/tags/DrawingTexts.h"
#include "host/drawing/tags/GroupCodes.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace host::drawing {

namespace {

constexpr int entryHandleCode = 330; ///< behind AcDbLayout: the table entry of the block
constexpr int viewportCode = 331;    ///< behind AcDbLayout: the viewport that was active last

/// By handles, from what was copied to its copy.
using LayoutCopies = QHash<quint64, Handle>;

QString noMoreSheets()
{
    return DrawingTexts::tr("A drawing of this version has one sheet.");
}

RecordId layoutNames(const Drawing &drawing)
{
    const RecordId root = drawing.dictionaries().root();
    return isValid(root) ? drawing.dictionaries().find(root, u"ACAD_LAYOUT") : noRecord;
}

/// The groups behind the layout's own marker.
FieldList::iterator ownFields(FieldList &fields)
{
    return std::find_if(fields.begin(), fields.end(),
                        [](const Field &field) { return field.code == subclassCode && field.text() == u"AcDbLayout"; });
}

void setLayoutField(FieldList &fields, int code, const FieldValue &value)
{
    const auto found =
        std::find_if(ownFields(fields), fields.end(), [code](const Field &field) { return field.code == code; });
    if (found != fields.end())
        found->value = value;
}

Handle entryHandle(const Drawing &drawing, RecordId block)
{
    const RecordId entry = drawing.blocks().read(block).tableEntry;
    return isValid(entry) ? drawing.handle(entry) : Handle{};
}

void setEntryOf(Drawing &drawing, RecordId layout, RecordId block)
{
    FieldList fields = drawing.fields(layout);
    setLayoutField(fields, entryHandleCode, entryHandle(drawing, block));
    drawing.setFields(layout, fields);
    if (const RecordId entry = drawing.blocks().read(block).tableEntry; isValid(entry)) {
        FieldList own = drawing.fields(entry);
        setField(own, 340, drawing.handle(layout));
        drawing.setFields(entry, own);
    }
}

/// What is cut off by an entity is cut off by its copy.
void followClips(Drawing &drawing, const std::vector<RecordId> &copies, const LayoutCopies &made)
{
    constexpr int clipCode = 340;
    for (const RecordId copy : copies) {
        if (!drawing.isType(copy, "VIEWPORT"))
            continue;
        FieldList fields = drawing.fields(copy);
        Field *clip = findField(fields, clipCode);
        const auto *handle = clip ? std::get_if<Handle>(&clip->value) : nullptr;
        if (!handle || !made.contains(handle->value))
            continue;
        clip->value = made.value(handle->value);
        drawing.setFields(copy, fields);
    }
}

/// `copyOne` puts a copy where it belongs.
template <class CopyOne>
LayoutCopies copyAll(Drawing &drawing, const std::vector<RecordId> &entities, const CopyOne &copyOne)
{
    LayoutCopies made;
    std::vector<RecordId> copies;
    for (const RecordId entity : entities) {
        const RecordId copy = copyOne(entity);
        if (!isValid(copy))
            continue;
        copies.push_back(copy);
        made.insert(drawing.handle(entity).value, drawing.handle(copy));
    }
    followClips(drawing, copies, made);
    return made;
}

void followViewport(FieldList &fields, const LayoutCopies &made)
{
    const auto found =
        std::find_if(ownFields(fields), fields.end(), [](const Field &field) { return field.code == viewportCode; });
    if (found == fields.end())
        return;
    const auto *handle = std::get_if<Handle>(&found->value);
    if (handle && made.contains(handle->value))
        found->value = made.value(handle->value);
    else
        fields.erase(found);
}

/// The fields of a layout's object for another one, without what belongs to it alone.
FieldList pageFields(const Drawing &drawing, RecordId layout)
{
    FieldList result;
    bool isInGroup = false;
    for (const Field &field : drawing.fields(layout)) {
        if (field.code == groupCode)
            isInGroup = field.text().startsWith(u'{');
        else if (!isInGroup)
            result.push_back(field);
    }
    return result;
}

void copyPage(Drawing &drawing, const LayoutTab &from, const LayoutTab &to, const LayoutCopies &made)
{
    if (!isValid(from.record))
        return;
    FieldList fields = pageFields(drawing, from.record);
    setLayoutField(fields, 1, to.name);
    setLayoutField(fields, 71, to.order);
    setLayoutField(fields, entryHandleCode, entryHandle(drawing, to.block));
    followViewport(fields, made);
    drawing.setFields(to.record, fields);
}

/// A sheet at rest comes in use: its entities move to where those of the paper space stand.
void bringIntoUse(Drawing &drawing, const LayoutTab &sheet)
{
    const RecordId paper = drawing.blocks().find(u"*Paper_Space");
    const std::vector<RecordId> entities = drawing.children(sheet.block);
    const LayoutCopies made =
        copyAll(drawing, entities, [&](RecordId entity) { return copyEntityTo(drawing, entity, Space::Paper); });
    FieldList fields = drawing.fields(sheet.record);
    followViewport(fields, made);
    drawing.setFields(sheet.record, fields);
    setEntryOf(drawing, sheet.record, paper);
    drawing.blocks().erase(sheet.block);
}

/// Entities may say the name of their layout, in any letter case.
void renameOn(Drawing &drawing, RecordId entity, const QString &from, const QString &to)
{
    constexpr int layoutNameCode = 410;
    FieldList fields = drawing.fields(entity);
    Field *name = findField(fields, layoutNameCode);
    if (name && name->text().compare(from, Qt::CaseInsensitive) == 0) {
        name->value = to;
        drawing.setFields(entity, fields);
    }
    for (const RecordId child : drawing.children(entity))
        renameOn(drawing, child, from, to);
}

bool isInUse(const Drawing &drawing, const LayoutTab &layout)
{
    return !isValid(layout.block) || layout.block == drawing.blocks().find(u"*Paper_Space");
}

} // namespace

QString obstacleToLayoutName(const Drawing &drawing, const QString &name, const QString &own)
{
    if (!isSymbolName(name, drawing.version()) || name != name.trimmed())
        return DrawingTexts::tr("A layout cannot be called \"%1\".").arg(name);
    const bool isOwn = !own.isEmpty() && own.compare(name, Qt::CaseInsensitive) == 0;
    if (!isOwn && findLayout(drawing, name))
        return DrawingTexts::tr("Layout \"%1\" already exists.").arg(name);
    return {};
}

QString newLayout(Drawing &drawing, const QString &name)
{
    if (const QString obstacle = obstacleToLayoutName(drawing, name); !obstacle.isEmpty())
        return obstacle;
    const JournalGroup group(drawing.journal(), {});
    return isValid(addSheet(drawing, name)) ? QString() : noMoreSheets();
}

QString copyLayout(Drawing &drawing, const LayoutTab &layout, const QString &name)
{
    if (layout.isModel())
        return DrawingTexts::tr("Model space cannot be copied.");
    if (const QString obstacle = obstacleToLayoutName(drawing, name); !obstacle.isEmpty())
        return obstacle;
    const JournalGroup group(drawing.journal(), {});
    if (!isValid(addSheet(drawing, name)))
        return noMoreSheets();
    const std::optional<LayoutTab> added = findLayout(drawing, name);
    if (!added)
        return noMoreSheets();
    const LayoutCopies made = copyAll(drawing, layoutEntities(drawing, layout),
                                      [&](RecordId entity) { return copyEntityInto(drawing, entity, added->block); });
    copyPage(drawing, layout, *added, made);
    return {};
}

QString moveLayout(Drawing &drawing, const LayoutTab &layout, qint64 place)
{
    if (layout.isModel())
        return DrawingTexts::tr("Model space cannot be moved.");
    if (!isValid(layout.record))
        return noMoreSheets();
    std::vector<LayoutTab> sheets = layoutTabs(drawing);
    std::erase_if(sheets, [&](const LayoutTab &tab) { return tab.isModel() || tab.record == layout.record; });
    const qint64 last = qint64(sheets.size()) + 1;
    sheets.insert(sheets.begin() + (std::clamp<qint64>(place, 1, last) - 1), layout);
    const JournalGroup group(drawing.journal(), {});
    for (std::size_t i = 0; i < sheets.size(); ++i)
        setOrder(drawing, sheets[i], qint64(i) + 1);
    return {};
}

QString renameLayout(Drawing &drawing, const LayoutTab &layout, const QString &name)
{
    if (layout.isModel())
        return DrawingTexts::tr("Model space cannot be renamed.");
    if (!isValid(layout.record))
        return DrawingTexts::tr("Layout \"%1\" has no object in this drawing that a name could be given to.")
            .arg(layout.name);
    if (const QString obstacle = obstacleToLayoutName(drawing, name, layout.name); !obstacle.isEmpty())
        return obstacle;
    const JournalGroup group(drawing.journal(), {});
    for (const RecordId entity : layoutEntities(drawing, layout))
        renameOn(drawing, entity, layout.name, name);
    const RecordId names = layoutNames(drawing);
    FieldList entries = drawing.fields(names);
    const auto entry = std::ranges::find_if(entries, [&](const Field &field) {
        return field.code == entryNameCode && field.text().compare(layout.name, Qt::CaseInsensitive) == 0;
    });
    if (entry != entries.end())
        entry->value = name;
    drawing.setFields(names, entries);
    FieldList fields = drawing.fields(layout.record);
    setLayoutField(fields, 1, name);
    drawing.setFields(layout.record, fields);
    return {};
}

QString deleteLayout(Drawing &drawing, const LayoutTab &layout)
{
    if (layout.isModel())
        return DrawingTexts::tr("Model space cannot be deleted.");
    std::vector<LayoutTab> others = layoutTabs(drawing);
    std::erase_if(others, [&](const LayoutTab &tab) { return tab.isModel() || tab.record == layout.record; });
    if (others.empty())
        return DrawingTexts::tr("The last layout cannot be deleted.");
    const JournalGroup group(drawing.journal(), {});
    if (!isInUse(drawing, layout)) {
        drawing.blocks().erase(layout.block);
    } else {
        const auto neighbour = std::ranges::find_if(
            others, [&](const LayoutTab &tab) { return tab.order > layout.order && !isInUse(drawing, tab); });
        const LayoutTab &next = neighbour != others.end() ? *neighbour : others.back();
        for (const RecordId entity : layoutEntities(drawing, layout))
            drawing.dictionaries().setErasedWithOwned(entity, true);
        bringIntoUse(drawing, next);
    }
    drawing.dictionaries().remove(layoutNames(drawing), layout.name);
    return {};
}

QString freeLayoutName(const Drawing &drawing)
{
    for (int number = 1;; ++number)
        if (const QString name = u"Layout%1"_s.arg(number); !findLayout(drawing, name))
            return name;
}

QString freeCopyName(const Drawing &drawing, const QString &name)
{
    for (int number = 2;; ++number)
        if (const QString copy = u"%1 (%2)"_s.arg(name).arg(number); !findLayout(drawing, copy))
            return copy;
}

} // namespace host::drawing
