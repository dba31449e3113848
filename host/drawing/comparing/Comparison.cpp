#include "host/drawing/comparing/Comparison.h"

#include "host/drawing/comparing/OrderChanges.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Entities.h"
#include "host/drawing/records/Layouts.h"
#include "host/drawing/records/Tables.h"

#include <QHash>

#include <map>

using namespace Qt::StringLiterals;

namespace host::drawing {

namespace {

bool isOfEntity(RecordKind kind)
{
    return kind == RecordKind::Entity || kind == RecordKind::Child;
}

class Comparer
{
public:
    Comparer(Comparison &result, const ComparisonRules &rules)
        : m_result(result), m_pairs(result.pairs), m_rules(rules.values)
    {
        const bool isOneCodePage = m_pairs.before().codec().isUtf8() && m_pairs.after().codec().isUtf8();
        m_canCompareBytes = m_pairs.matching() == Matching::ByHandle &&
                            (isOneCodePage || m_pairs.before().header().text(u"$DWGCODEPAGE") ==
                                                  m_pairs.after().header().text(u"$DWGCODEPAGE"));
    }

    void compare()
    {
        lookFor(m_pairs.before(), Fate::Removed);
        if (!m_rules.ignored.testFlag(Ignored::Order))
            compareOrder();
        lookFor(m_pairs.after(), Fate::Added);
    }

private:
    RecordId partnerOf(RecordId id, Fate fate) const
    {
        return fate == Fate::Removed ? m_pairs.ofBefore(id) : m_pairs.ofAfter(id);
    }

    /// Tells what has no partner, and on the way through the first drawing what has changed.
    void lookFor(const Drawing &drawing, Fate fate)
    {
        QHash<RecordId, size_t> containers; // those without a partner, and where they are told
        for (RecordId id = drawing.first(); isValid(id); id = drawing.next(id)) {
            if (!isCompared(drawing, id, m_rules.ignored))
                continue;
            if (const RecordId partner = partnerOf(id, fate); isValid(partner)) {
                if (fate == Fate::Removed)
                    comparePartners(id, partner);
            } else if (const auto container = containers.constFind(drawing.parent(id));
                       container != containers.cend()) {
                ++m_result.differences[*container].contents;
                containers.insert(id, *container);
            } else if (!isImplied(drawing, id)) {
                containers.insert(id, m_result.differences.size());
                m_result.differences.push_back({.fate = fate,
                                                .kind = drawing.kind(id),
                                                .before = fate == Fate::Removed ? id : noRecord,
                                                .after = fate == Fate::Removed ? noRecord : id});
            }
        }
    }

    /// Records of blocks that are told themselves, and the blocks that R12 files leave out.
    static bool isImplied(const Drawing &drawing, RecordId id)
    {
        if (drawing.kind(id) == RecordKind::Block) {
            const QString name = drawing.blocks().name(id).toLower();
            return name == "*model_space"_L1 || name == "*paper_space"_L1;
        }
        return drawing.kind(id) == RecordKind::TableEntry && drawing.isType(id, "BLOCK_RECORD") &&
               isValid(drawing.blocks().find(drawing.tables().name(id)));
    }

    void comparePartners(RecordId before, RecordId after)
    {
        const bool isElsewhere = isOfEntity(m_pairs.before().kind(before)) && hasMoved(before, after);
        Difference difference{.before = before, .after = after, .isElsewhere = isElsewhere};
        difference.kind = m_pairs.before().kind(before);
        if (!areSame(before, after))
            difference.changes = fieldChanges(m_pairs, before, after, m_rules);
        if (difference.changes.empty() && !isElsewhere)
            ++m_result.same;
        else
            m_result.differences.push_back(std::move(difference));
    }

    bool areSame(RecordId before, RecordId after) const
    {
        return (m_canCompareBytes && m_pairs.before().bytes(before) == m_pairs.after().bytes(after)) ||
               areSameTags(m_pairs, before, after, m_rules);
    }

    bool hasMoved(RecordId before, RecordId after) const
    {
        const Drawing &old = m_pairs.before();
        const Drawing &now = m_pairs.after();
        const bool isSameContainer = m_pairs.arePartners(old.parent(before), now.parent(after));
        if (isSameContainer && (old.kind(before) == RecordKind::Child || old.section(before) == Section::Blocks))
            return false;
        if (isSameContainer && old.bytes(before) == now.bytes(after))
            return false;
        return placeName(old, before).compare(placeName(now, after), Qt::CaseInsensitive) != 0;
    }

    /// Finds out which partners in one container changed places.
    void compareOrder()
    {
        const Drawing &before = m_pairs.before();
        const Drawing &after = m_pairs.after();
        std::vector<size_t> places(after.idLimit());
        size_t place = 0;
        for (RecordId id = after.first(); isValid(id); id = after.next(id))
            places[quint32(id)] = place++;
        std::map<RecordId, std::vector<RecordId>> byContainer;
        for (RecordId id = before.first(); isValid(id); id = before.next(id))
            if (isOfEntity(before.kind(id)) && isValid(m_pairs.ofBefore(id)) &&
                m_pairs.arePartners(before.parent(id), after.parent(m_pairs.ofBefore(id))))
                byContainer[before.parent(id)].push_back(id);
        for (const auto &[container, ids] : byContainer) {
            std::vector<size_t> newPlaces;
            newPlaces.reserve(ids.size());
            for (const RecordId id : ids)
                newPlaces.push_back(places[quint32(m_pairs.ofBefore(id))]);
            for (const size_t moved : outOfOrder(newPlaces))
                markReordered(ids[moved]);
        }
    }

    void markReordered(RecordId before)
    {
        if (m_told.isEmpty())
            for (size_t i = 0; i < m_result.differences.size(); ++i)
                m_told.insert(m_result.differences[i].before, i);
        const auto told = m_told.constFind(before);
        if (told != m_told.cend()) {
            m_result.differences[*told].isReordered = true;
            return;
        }
        --m_result.same;
        m_result.differences.push_back({.kind = m_pairs.before().kind(before),
                                        .before = before,
                                        .after = m_pairs.ofBefore(before),
                                        .isReordered = true});
    }

    Comparison &m_result;
    const RecordPairs &m_pairs;
    const ValueRules &m_rules;
    bool m_canCompareBytes = false;
    QHash<RecordId, size_t> m_told; ///< of the first drawing's records, once it is needed
};

} // namespace

bool isCompared(const Drawing &drawing, RecordId id, IgnoredKinds ignored)
{
    switch (drawing.kind(id)) {
    case RecordKind::Variable:
        return !isIgnoredVariable(drawing.typeName(id), ignored);
    case RecordKind::Class:
        return !ignored.testFlag(Ignored::Classes);
    case RecordKind::TableEntry:
        return !ignored.testFlag(Ignored::View) || !drawing.isType(id, "VPORT");
    case RecordKind::Object:
        return !ignored.testFlag(Ignored::Objects);
    case RecordKind::Other:
        return drawing.section(id) != Section::Thumbnail;
    case RecordKind::Block:
    case RecordKind::Entity:
    case RecordKind::Child:
        return true;
    default:
        return false;
    }
}

QString placeName(const Drawing &drawing, RecordId entity)
{
    const RecordId container = drawing.parent(entity);
    if (drawing.kind(entity) == RecordKind::Child)
        return drawing.handle(container).toString();
    if (isValid(container) && drawing.kind(container) == RecordKind::Block) {
        const QString layout = drawing.layouts().ofBlock(container);
        return layout.isEmpty() ? drawing.blocks().name(container) : layout;
    }
    return drawing.entities().space(entity) == Space::Model ? u"Model"_s : drawing.layouts().paperName();
}

Comparison compareDrawings(const Drawing &before, const Drawing &after, const ComparisonRules &rules)
{
    Comparison result{.pairs = pairRecords(before, after, rules.matching, rules.values.ignored)};
    Comparer(result, rules).compare();
    return result;
}

} // namespace host::drawing
