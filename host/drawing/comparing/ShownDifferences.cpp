#include "host/drawing/comparing/ShownDifferences.h"

#include "host/drawing/records/Blocks.h"

#include <QHash>
#include <QSet>

namespace host::drawing {

namespace {

constexpr int blockNameCode = 2;

/// Entities by the block that they show, which their group 2 names; the block itself in folded case.
QHash<QString, std::vector<RecordId>> entitiesByBlock(const Drawing &drawing)
{
    QHash<QString, std::vector<RecordId>> byBlock;
    for (RecordId id = drawing.first(); isValid(id); id = drawing.next(id))
        if (drawing.kind(id) == RecordKind::Entity &&
            (drawing.isType(id, "INSERT") || drawing.isType(id, "DIMENSION") || drawing.isType(id, "ACAD_TABLE")))
            byBlock[drawing.tags(id).text(blockNameCode).toCaseFolded()].push_back(id);
    return byBlock;
}

/// Adds the entities that show a block in which something differs, within blocks too.
void addInserts(const Drawing &drawing, ShownRecords &records)
{
    std::vector<QString> waiting;
    QSet<QString> known;
    const auto addBlockOf = [&](RecordId id) {
        const RecordId container = drawing.parent(id);
        if (!isValid(container) || drawing.kind(container) != RecordKind::Block)
            return;
        const QString name = drawing.blocks().name(container).toCaseFolded();
        if (!known.contains(name)) {
            known.insert(name);
            waiting.push_back(name);
        }
    };
    for (const auto *set : {&records.alone, &records.changed})
        for (const RecordId id : *set)
            addBlockOf(id);
    if (waiting.empty())
        return;
    const auto byBlock = entitiesByBlock(drawing);
    while (!waiting.empty()) {
        const QString name = waiting.back();
        waiting.pop_back();
        for (const RecordId id : byBlock.value(name)) {
            if (!records.alone.contains(id))
                records.changed.insert(id);
            addBlockOf(id);
        }
    }
}

RecordId shownRecord(const Drawing &drawing, RecordId id)
{
    return isValid(id) && drawing.kind(id) == RecordKind::Child ? drawing.parent(id) : id;
}

} // namespace

ShownDifferences shownDifferences(const Comparison &comparison)
{
    ShownDifferences shown;
    const Drawing &before = comparison.pairs.before();
    const Drawing &after = comparison.pairs.after();
    for (const Difference &difference : comparison.differences) {
        if (difference.kind != RecordKind::Entity && difference.kind != RecordKind::Child)
            continue;
        const bool isWhole = difference.kind == RecordKind::Entity;
        const bool isAlone = isWhole && (difference.fate != Fate::Changed || difference.isElsewhere);
        const bool isSeen = difference.fate != Fate::Changed || difference.isElsewhere || !difference.changes.empty();
        if (isValid(difference.before) && isSeen)
            (isAlone ? shown.before.alone : shown.before.changed).insert(shownRecord(before, difference.before));
        if (isValid(difference.after) && isSeen)
            (isAlone ? shown.after.alone : shown.after.changed).insert(shownRecord(after, difference.after));
    }
    // A vertex that one of the two does not have.
    for (const RecordId id : shown.before.changed)
        if (const RecordId partner = comparison.pairs.ofBefore(id); isValid(partner))
            shown.after.changed.insert(partner);
    for (const RecordId id : shown.after.changed)
        if (const RecordId partner = comparison.pairs.ofAfter(id); isValid(partner))
            shown.before.changed.insert(partner);
    addInserts(before, shown.before);
    addInserts(after, shown.after);
    return shown;
}

} // namespace host::drawing
