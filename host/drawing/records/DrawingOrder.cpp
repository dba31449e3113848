#include "host/drawing/records/DrawingPrivate.h"

// The order of records and what stands in what.

namespace host::drawing {

namespace {

bool isEnd(RecordKind kind)
{
    return kind == RecordKind::EndSection || kind == RecordKind::EndTable || kind == RecordKind::EndBlock ||
           kind == RecordKind::EndChildren;
}

bool isContainer(RecordKind kind)
{
    return kind == RecordKind::Section || kind == RecordKind::Table || kind == RecordKind::Block;
}

} // namespace

RecordId Drawing::parent(RecordId id) const
{
    return d->entry(id).parent;
}

bool Drawing::isInside(RecordId id, RecordId container) const
{
    for (id = parent(id); isValid(id); id = parent(id)) {
        if (id == container)
            return true;
    }
    return false;
}

RecordId Drawing::first() const
{
    const RecordId head{0};
    return isAlive(head) ? head : next(head);
}

RecordId Drawing::next(RecordId id) const
{
    do
        id = d->entry(id).next;
    while (isValid(id) && d->entry(id).flags != 0);
    return id;
}

RecordId Drawing::previous(RecordId id) const
{
    do
        id = d->entry(id).previous;
    while (isValid(id) && d->entry(id).flags != 0);
    return id;
}

RecordId Drawing::firstChild(RecordId parentRecord) const
{
    const RecordId id = next(parentRecord);
    if (!isValid(id) || parent(id) != parentRecord || isEnd(kind(id)))
        return noRecord;
    return id;
}

RecordId Drawing::nextSibling(RecordId id) const
{
    const RecordId container = parent(id);
    RecordId sibling = next(id);
    while (isValid(sibling) && parent(sibling) != container) {
        if (parent(sibling) == id) {
            const RecordId end = endOf(id);
            sibling = next(isValid(end) ? end : sibling);
        } else if (isValid(container) && isInside(sibling, container)) {
            sibling = next(sibling);
        } else {
            return noRecord;
        }
    }
    return isValid(sibling) && !isEnd(kind(sibling)) ? sibling : noRecord;
}

std::vector<RecordId> Drawing::children(RecordId parentRecord) const
{
    std::vector<RecordId> found;
    for (RecordId id = firstChild(parentRecord); isValid(id); id = nextSibling(id))
        found.push_back(id);
    return found;
}

RecordId Drawing::endOf(RecordId parentRecord) const
{
    const bool isLarge = isContainer(kind(parentRecord));
    const auto known = isLarge ? d->ends.constFind(parentRecord) : d->ends.constEnd();
    if (known != d->ends.constEnd() && (d->entry(*known).flags & RecordState::Absent) == 0)
        return *known;
    for (RecordId id = d->entry(parentRecord).next; isValid(id); id = d->entry(id).next) {
        const RecordEntry &entry = d->entry(id);
        if (!isLarge && entry.parent != parentRecord && (entry.flags & RecordState::Absent) == 0)
            return noRecord;
        if (entry.parent != parentRecord || !isEnd(entry.kind) || (entry.flags & RecordState::Absent) != 0)
            continue;
        if (isLarge)
            d->ends.insert(parentRecord, id);
        return id;
    }
    return noRecord;
}

RecordId Drawing::sectionRecord(Section section) const
{
    for (RecordId id = first(); isValid(id);) {
        if (kind(id) == RecordKind::Section && d->entry(id).section == section)
            return id;
        const RecordId end = kind(id) == RecordKind::Section ? endOf(id) : noRecord;
        id = next(isValid(end) ? end : id);
    }
    return noRecord;
}

} // namespace host::drawing
