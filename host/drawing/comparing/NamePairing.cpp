#include "host/drawing/comparing/NamePairing.h"

#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/tags/GroupCodes.h"

#include <QHash>
#include <QMap>
#include <QSet>

namespace host::drawing {

namespace {

constexpr int pairedNameCode = 2;
constexpr int classNameCode = 1;

/// The name of a record among those of its parent, in folded case.
QString pairingName(const Drawing &drawing, RecordId id)
{
    switch (drawing.kind(id)) {
    case RecordKind::Section:
    case RecordKind::Table:
    case RecordKind::TableEntry:
    case RecordKind::Block:
        return QString::fromUtf8(drawing.typeName(id)) + drawing.tags(id).text(pairedNameCode).toCaseFolded();
    case RecordKind::Class:
        return drawing.tags(id).text(classNameCode).toCaseFolded();
    default:
        return QString::fromUtf8(drawing.typeName(id)).toCaseFolded();
    }
}

// What is looked up goes by maps in the order of names, so that what is joined is the same in every run.

/// By name, and of several that share one by their number.
QMap<std::pair<QString, int>, RecordId> childrenByName(const Drawing &drawing, RecordId parent)
{
    QMap<std::pair<QString, int>, RecordId> byName;
    QHash<QString, int> counts;
    for (RecordId id = drawing.firstChild(parent); isValid(id); id = drawing.nextSibling(id)) {
        const QString name = pairingName(drawing, id);
        byName.insert({name, counts[name]++}, id);
    }
    return byName;
}

/// Joins the children of two containers by their names.
void pairNamedChildren(RecordPairs &pairs, RecordId before, RecordId after)
{
    const auto byName = childrenByName(pairs.after(), after);
    const auto old = childrenByName(pairs.before(), before);
    for (auto child = old.cbegin(); child != old.cend(); ++child)
        if (const auto other = byName.constFind(child.key()); other != byName.cend())
            pairs.joinIfAlike(*child, *other);
    if (pairs.matching() != Matching::ByHandle)
        return;
    // What is left may have another name by now.
    for (RecordId id = pairs.before().firstChild(before); isValid(id); id = pairs.before().nextSibling(id))
        if (const RecordId other = pairs.after().find(pairs.before().handle(id)); isValid(other))
            pairs.joinIfAlike(id, other);
}

bool isNamedSection(Section section)
{
    return section == Section::Header || section == Section::Classes || section == Section::Tables ||
           section == Section::Blocks;
}

QMap<QString, RecordId> sectionsByName(const Drawing &drawing)
{
    QMap<QString, RecordId> byName;
    for (RecordId id = drawing.first(); isValid(id); id = drawing.next(id))
        if (drawing.kind(id) == RecordKind::Section && !byName.contains(pairingName(drawing, id)))
            byName.insert(pairingName(drawing, id), id);
    return byName;
}

QMap<QString, RecordId> entriesByName(const Drawing &drawing, RecordId dictionary)
{
    QMap<QString, RecordId> byName;
    for (const Dictionaries::Entry &entry : drawing.dictionaries().entries(dictionary))
        if (isValid(entry.record))
            byName.insert(entry.name.toCaseFolded(), entry.record);
    return byName;
}

bool isDictionary(const Drawing &drawing, RecordId id)
{
    return drawing.isType(id, "DICTIONARY") || drawing.isType(id, "ACDBDICTIONARYWDFLT");
}

/// Joins what two dictionaries have, and goes on with the dictionaries among it.
void pairEntries(RecordPairs &pairs, RecordId before, RecordId after, QSet<RecordId> &visited)
{
    std::vector<std::pair<RecordId, RecordId>> waiting{{before, after}};
    while (!waiting.empty()) {
        const auto [old, now] = waiting.back();
        waiting.pop_back();
        if (!isValid(old) || !isValid(now) || visited.contains(old))
            continue;
        visited.insert(old);
        const auto others = entriesByName(pairs.after(), now);
        for (const auto &[name, entry] : entriesByName(pairs.before(), old).asKeyValueRange()) {
            const RecordId other = others.value(name, noRecord);
            if (isValid(other))
                pairs.joinIfAlike(entry, other);
            if (isValid(other) && pairs.arePartners(entry, other) && isDictionary(pairs.before(), entry))
                waiting.emplace_back(entry, other);
        }
    }
}

} // namespace

void pairNamed(RecordPairs &pairs)
{
    const Drawing &before = pairs.before();
    const QMap<QString, RecordId> others = sectionsByName(pairs.after());
    for (const auto &[name, section] : sectionsByName(before).asKeyValueRange()) {
        const RecordId other = others.value(name, noRecord);
        if (!isValid(other))
            continue;
        pairs.join(section, other);
        if (isNamedSection(before.section(section)))
            pairNamedChildren(pairs, section, other);
        if (before.section(section) != Section::Tables)
            continue;
        for (const RecordId table : before.children(section))
            if (isValid(pairs.ofBefore(table)))
                pairNamedChildren(pairs, table, pairs.ofBefore(table));
    }
}

void pairDictionaries(RecordPairs &pairs)
{
    const Drawing &before = pairs.before();
    const Drawing &after = pairs.after();
    QSet<RecordId> visited;
    const RecordId root = before.dictionaries().root();
    const RecordId otherRoot = after.dictionaries().root();
    if (!isValid(root) || !isValid(otherRoot))
        return;
    pairs.joinIfAlike(root, otherRoot);
    pairEntries(pairs, root, otherRoot, visited);
    if (pairs.matching() == Matching::ByHandle)
        return;
    for (RecordId id = before.first(); isValid(id); id = before.next(id)) {
        const RecordId partner = pairs.ofBefore(id);
        if (!isValid(partner))
            continue;
        const RecordId own = before.dictionaries().extensionDictionary(id);
        const RecordId others = isValid(own) ? after.dictionaries().extensionDictionary(partner) : noRecord;
        if (!isValid(others))
            continue;
        pairs.joinIfAlike(own, others);
        pairEntries(pairs, own, others, visited);
    }
}

} // namespace host::drawing
