#include "host/view/DrawOrder.h"

#include <QHash>

#include <utility>

namespace host::view {

using drawing::Drawing;
using drawing::Handle;
using drawing::RecordId;

namespace {

/// What each entity of the drawing is sorted as, by handle. Tables of all blocks are taken together: a handle is in one
/// block only.
QHash<quint64, quint64> readSortHandles(const Drawing &drawing)
{
    QHash<quint64, quint64> sorted;
    const RecordId objects = drawing.sectionRecord(drawing::Section::Objects);
    if (!isValid(objects))
        return sorted;
    for (RecordId object = drawing.firstChild(objects); isValid(object); object = drawing.nextSibling(object)) {
        if (!drawing.isType(object, "SORTENTSTABLE"))
            continue;
        Handle entity;
        for (const drawing::Tag &tag : drawing.tags(object)) {
            if (tag.code == 331)
                entity = tag.handle().value_or(Handle{});
            else if (tag.code == 5 && !entity.isNull())
                sorted.insert(std::exchange(entity, Handle{}).value, tag.handle().value_or(Handle{}).value);
        }
    }
    return sorted;
}

} // namespace

std::vector<RecordId> drawOrder(const Drawing &drawing, std::vector<RecordId> entities)
{
    const QHash<quint64, quint64> sortHandles = readSortHandles(drawing);
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
