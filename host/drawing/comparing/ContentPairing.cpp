#include "host/drawing/comparing/ContentPairing.h"

#include "host/drawing/comparing/ContentHash.h"

#include <QHash>

#include <algorithm>
#include <map>

namespace host::drawing {

namespace {

struct HashedRecord
{
    quint64 hash;
    RecordId id;
    friend bool operator<(const HashedRecord &a, const HashedRecord &b) { return a.hash < b.hash; }
};

/// Those of the list that may be paired, equal ones side by side and in the order of the list.
std::vector<HashedRecord> sortedByContent(const Drawing &drawing, const std::vector<RecordId> &ids,
                                          IgnoredKinds ignored)
{
    std::vector<HashedRecord> records;
    records.reserve(ids.size());
    for (const RecordId id : ids)
        records.push_back({contentHash(drawing, id, ignored), id});
    std::ranges::stable_sort(records, {}, &HashedRecord::hash);
    return records;
}

/// Calls `take` with each two that are equal, the first with the first.
template <typename Take>
void forEachEqual(const std::vector<HashedRecord> &before, const std::vector<HashedRecord> &after, Take take)
{
    for (auto old = before.begin(), now = after.begin(); old != before.end() && now != after.end();) {
        if (*old < *now)
            ++old;
        else if (*now < *old)
            ++now;
        else
            take((old++)->id, (now++)->id);
    }
}

/// What of the list has no partner and is not known by its handle.
template <typename Partner>
std::vector<RecordId> freeOnes(const Drawing &drawing, const std::vector<RecordId> &ids, Matching matching,
                               Partner partner)
{
    std::vector<RecordId> found;
    for (const RecordId id : ids)
        if (!isValid(partner(id)) && (matching == Matching::ByContent || drawing.handle(id).isNull()))
            found.push_back(id);
    return found;
}

void pairEqual(RecordPairs &pairs, const std::vector<RecordId> &before, const std::vector<RecordId> &after,
               IgnoredKinds ignored)
{
    const Matching matching = pairs.matching();
    const auto old = freeOnes(pairs.before(), before, matching, [&](RecordId id) { return pairs.ofBefore(id); });
    const auto now = freeOnes(pairs.after(), after, matching, [&](RecordId id) { return pairs.ofAfter(id); });
    if (!old.empty() && !now.empty())
        forEachEqual(sortedByContent(pairs.before(), old, ignored), sortedByContent(pairs.after(), now, ignored),
                     [&](RecordId a, RecordId b) { pairs.joinIfAlike(a, b); });
}

/// The run of free records that begins at `next`; `next` is behind it then.
template <typename IsFree>
std::map<QByteArrayView, std::vector<RecordId>> takeGap(const Drawing &drawing, const std::vector<RecordId> &ids,
                                                        size_t &next, IsFree isFree)
{
    std::map<QByteArrayView, std::vector<RecordId>> byType;
    for (; next < ids.size() && isFree(ids[next]); ++next)
        byType[drawing.typeName(ids[next])].push_back(ids[next]);
    return byType;
}

/// Joins what stands between the same neighbours, where there are as many of a type.
void pairGaps(RecordPairs &pairs, const std::vector<RecordId> &before, const std::vector<RecordId> &after)
{
    QHash<RecordId, size_t> behind;
    behind.reserve(static_cast<qsizetype>(after.size()));
    for (size_t i = 0; i < after.size(); ++i)
        behind.insert(after[i], i + 1);
    const auto isOldFree = [&](RecordId id) { return !isValid(pairs.ofBefore(id)); };
    const auto isNewFree = [&](RecordId id) { return !isValid(pairs.ofAfter(id)); };
    size_t beginOfGap = 0; // in `after`, behind the partner of what stands before the gap
    for (size_t next = 0; next < before.size();) {
        const auto oldGap = takeGap(pairs.before(), before, next, isOldFree);
        size_t end = beginOfGap;
        if (!oldGap.empty())
            for (const auto &[type, now] : takeGap(pairs.after(), after, end, isNewFree))
                if (const auto old = oldGap.find(type); old != oldGap.end() && old->second.size() == now.size())
                    for (size_t i = 0; i < now.size(); ++i)
                        pairs.joinIfAlike(old->second[i], now[i]);
        if (next < before.size())
            beginOfGap = behind.value(pairs.ofBefore(before[next++]), 0);
    }
}

/// How many entities of `before` have a handle that one of `after` has too, and how many of these are the same bytes.
struct HandleCensus
{
    qint64 shared = 0;
    qint64 equal = 0;
};

HandleCensus handleCensus(const Drawing &before, const Drawing &after, const std::vector<RecordId> &entities)
{
    HandleCensus census;
    for (const RecordId id : entities) {
        const RecordId other = after.find(before.handle(id));
        if (!isValid(other) || after.kind(other) != RecordKind::Entity || after.typeName(other) != before.typeName(id))
            continue;
        ++census.shared;
        census.equal += before.bytes(id) == after.bytes(other) ? 1 : 0;
    }
    return census;
}

} // namespace

std::vector<RecordId> recordsOf(const Drawing &drawing, RecordKind kind)
{
    std::vector<RecordId> ids;
    for (RecordId id = drawing.first(); isValid(id); id = drawing.next(id))
        if (drawing.kind(id) == kind)
            ids.push_back(id);
    return ids;
}

Matching bestMatching(const Drawing &before, const Drawing &after, IgnoredKinds ignored)
{
    const std::vector<RecordId> old = recordsOf(before, RecordKind::Entity);
    const std::vector<RecordId> now = recordsOf(after, RecordKind::Entity);
    const HandleCensus census = handleCensus(before, after, old);
    const auto fewer = static_cast<qint64>(std::min(old.size(), now.size()));
    if (fewer == 0 || census.equal * 2 >= fewer)
        return Matching::ByHandle;
    qint64 byHandle = 0;
    qint64 byContent = 0;
    forEachEqual(sortedByContent(before, old, ignored), sortedByContent(after, now, ignored),
                 [&](RecordId a, RecordId b) {
                     ++byContent;
                     byHandle += !before.handle(a).isNull() && before.handle(a) == after.handle(b) ? 1 : 0;
                 });
    if (byContent > 2 * byHandle)
        return Matching::ByContent;
    return census.shared == 0 ? Matching::ByContent : Matching::ByHandle;
}

void pairContents(RecordPairs &pairs, const std::vector<RecordId> &before, const std::vector<RecordId> &after,
                  IgnoredKinds ignored)
{
    pairEqual(pairs, before, after, ignored);
    if (pairs.matching() == Matching::ByContent)
        pairGaps(pairs, before, after);
}

void pairEntities(RecordPairs &pairs, IgnoredKinds ignored)
{
    const std::vector<RecordId> old = recordsOf(pairs.before(), RecordKind::Entity);
    const std::vector<RecordId> now = recordsOf(pairs.after(), RecordKind::Entity);
    // By the container that both stand in: that of `after`.
    std::map<RecordId, std::pair<std::vector<RecordId>, std::vector<RecordId>>> byContainer;
    for (const RecordId id : old)
        if (const RecordId container = pairs.ofBefore(pairs.before().parent(id)); isValid(container))
            byContainer[container].first.push_back(id);
    for (const RecordId id : now)
        byContainer[pairs.after().parent(id)].second.push_back(id);
    for (const auto &[container, lists] : byContainer)
        pairEqual(pairs, lists.first, lists.second, ignored);
    if (pairs.matching() == Matching::ByContent)
        for (const auto &[container, lists] : byContainer)
            pairGaps(pairs, lists.first, lists.second);
    pairEqual(pairs, old, now, ignored);
}

} // namespace host::drawing
