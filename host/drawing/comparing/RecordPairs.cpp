#include "host/drawing/comparing/RecordPairs.h"

#include "host/drawing/comparing/ContentPairing.h"
#include "host/drawing/comparing/NamePairing.h"

namespace host::drawing {

namespace {

/// Joins the records of both ENTITIES or OBJECTS sections and of blocks that have the same handle.
void pairByHandle(RecordPairs &pairs, RecordKind kind)
{
    const Drawing &before = pairs.before();
    for (RecordId id = before.first(); isValid(id); id = before.next(id))
        if (before.kind(id) == kind && !before.handle(id).isNull())
            if (const RecordId other = pairs.after().find(before.handle(id)); isValid(other))
                pairs.joinIfAlike(id, other);
}

/// Children of partners, by handle or content.
void pairChildren(RecordPairs &pairs, IgnoredKinds ignored)
{
    const Drawing &before = pairs.before();
    for (RecordId id = before.first(); isValid(id); id = before.next(id))
        if (before.kind(id) == RecordKind::Entity && isValid(pairs.ofBefore(id)) && isValid(before.firstChild(id)))
            pairContents(pairs, before.children(id), pairs.after().children(pairs.ofBefore(id)), ignored);
}

} // namespace

RecordPairs::RecordPairs(const Drawing &before, const Drawing &after)
    : m_before(&before), m_after(&after), m_ofBefore(before.idLimit(), noRecord), m_ofAfter(after.idLimit(), noRecord)
{
}

void RecordPairs::join(RecordId before, RecordId after)
{
    m_ofBefore[quint32(before)] = after;
    m_ofAfter[quint32(after)] = before;
}

bool RecordPairs::areFree(RecordId before, RecordId after) const
{
    return m_before->isAlive(before) && m_after->isAlive(after) && !isValid(ofBefore(before)) &&
           !isValid(ofAfter(after));
}

bool RecordPairs::joinIfAlike(RecordId before, RecordId after)
{
    if (!areFree(before, after) || m_before->kind(before) != m_after->kind(after) ||
        m_before->typeName(before) != m_after->typeName(after))
        return false;
    join(before, after);
    return true;
}

bool RecordPairs::leadToSame(Handle before, Handle after) const
{
    if (m_matching == Matching::ByHandle && before == after)
        return true;
    const RecordId old = m_before->find(before);
    const RecordId now = m_after->find(after);
    return isValid(old) ? arePartners(old, now) : !isValid(now) && m_matching == Matching::ByContent;
}

RecordPairs pairRecords(const Drawing &before, const Drawing &after, Matching matching, IgnoredKinds ignored)
{
    RecordPairs pairs(before, after);
    pairs.setMatching(matching == Matching::Automatic ? bestMatching(before, after, ignored) : matching);
    const bool isByHandle = pairs.matching() == Matching::ByHandle;
    pairNamed(pairs);
    if (isByHandle)
        pairByHandle(pairs, RecordKind::Entity);
    pairEntities(pairs, ignored);
    if (isByHandle)
        pairByHandle(pairs, RecordKind::Child);
    pairChildren(pairs, ignored);
    if (isByHandle)
        pairByHandle(pairs, RecordKind::Object);
    pairDictionaries(pairs);
    pairContents(pairs, recordsOf(before, RecordKind::Object), recordsOf(after, RecordKind::Object), ignored);
    pairContents(pairs, recordsOf(before, RecordKind::Other), recordsOf(after, RecordKind::Other), ignored);
    return pairs;
}

} // namespace host::drawing
