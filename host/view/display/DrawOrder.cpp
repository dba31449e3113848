#include "host/view/display/DrawOrder.h"

#include <utility>

namespace host::view {

using drawing::Drawing;
using drawing::Handle;
using drawing::RecordId;

namespace {

/// Pairs of an entity's handle and the one it is sorted as. The table's own handle has the second code as well, but
/// stands in front of all pairs.
void readTable(const drawing::TagList &tags, SortHandles &sorted)
{
    Handle entity;
    for (const drawing::Tag &tag : tags) {
        if (tag.code == 331)
            entity = tag.handle().value_or(Handle{});
        else if (tag.code == 5 && !entity.isNull())
            sorted.insert(std::exchange(entity, Handle{}).value, tag.handle().value_or(Handle{}).value);
    }
}

} // namespace

SortHandles readSortHandles(const Drawing &drawing)
{
    SortHandles sorted;
    const RecordId objects = drawing.sectionRecord(drawing::Section::Objects);
    if (!isValid(objects))
        return sorted;
    for (RecordId object = drawing.firstChild(objects); isValid(object); object = drawing.nextSibling(object)) {
        if (drawing.isType(object, "SORTENTSTABLE"))
            readTable(drawing.tags(object), sorted);
    }
    return sorted;
}

std::vector<RecordId> drawOrder(const Drawing &drawing, const SortHandles &sortHandles, std::vector<RecordId> entities)
{
    if (sortHandles.isEmpty())
        return entities;
    std::vector<std::pair<quint64, RecordId>> sorted;
    bool isConcerned = false;
    for (const RecordId entity : entities) {
        const quint64 own = drawing.handle(entity).value;
        const auto found = sortHandles.constFind(own);
        isConcerned |= found != sortHandles.constEnd();
        sorted.emplace_back(found != sortHandles.constEnd() ? *found : own, entity);
    }
    if (!isConcerned)
        return entities;
    std::ranges::stable_sort(sorted, {}, &std::pair<quint64, RecordId>::first);
    std::ranges::transform(sorted, entities.begin(), &std::pair<quint64, RecordId>::second);
    return entities;
}

} // namespace host::view
