#include "host/drawing/comparing/FieldChanges.h"

#include "host/drawing/comparing/ComparedTags.h"
#include "host/drawing/comparing/PlacedFields.h"
#include "host/drawing/selection/ImpliedFields.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <tuple>

namespace host::drawing {

namespace {

using PlacedFields = std::vector<PlacedField>;

class ValueComparison
{
public:
    ValueComparison(const RecordPairs &pairs, double tolerance) : m_pairs(pairs), m_tolerance(tolerance) {}

    bool areSame(const Tag &before, const Tag &after) const;
    bool areSame(const FieldValue &before, const FieldValue &after) const;

private:
    bool areClose(double a, double b) const { return a == b || std::abs(a - b) <= m_tolerance; }
    bool areClose(const Vec3 &a, const Vec3 &b) const
    {
        return areClose(a.x, b.x) && areClose(a.y, b.y) && areClose(a.z, b.z);
    }
    bool areSameTexts(QByteArrayView before, QByteArrayView after) const;

    const RecordPairs &m_pairs;
    double m_tolerance;
};

bool ValueComparison::areSameTexts(QByteArrayView before, QByteArrayView after) const
{
    if (before == after && TextCodec::isPlain(before))
        return true;
    return m_pairs.before().codec().decode(before) == m_pairs.after().codec().decode(after);
}

bool ValueComparison::areSame(const Tag &before, const Tag &after) const
{
    switch (tagType(before.code)) {
    case TagType::Text:
        return areSameTexts(before.value, after.value);
    case TagType::Real: {
        const auto a = before.real();
        const auto b = after.real();
        return a && b ? areClose(*a, *b) : areSameTexts(before.value, after.value);
    }
    case TagType::Handle:
        return m_pairs.leadToSame(before.handle().value_or(Handle{}), after.handle().value_or(Handle{}));
    case TagType::Binary:
        return before.trimmed().compare(after.trimmed(), Qt::CaseInsensitive) == 0;
    default: {
        const auto a = before.integer();
        const auto b = after.integer();
        return a && b ? *a == *b : areSameTexts(before.value, after.value);
    }
    }
}

bool isPointValue(const FieldValue &value)
{
    return std::holds_alternative<Vec2>(value) || std::holds_alternative<Vec3>(value);
}

bool ValueComparison::areSame(const FieldValue &before, const FieldValue &after) const
{
    if (isPointValue(before) && isPointValue(after))
        return areClose(Field{0, before}.point(), Field{0, after}.point());
    if (before.index() != after.index())
        return false;
    if (const auto *number = std::get_if<double>(&before))
        return areClose(*number, std::get<double>(after));
    if (const auto *handle = std::get_if<Handle>(&before))
        return m_pairs.leadToSame(*handle, std::get<Handle>(after));
    return before == after;
}

void sortByPartAndCode(PlacedFields &fields)
{
    std::ranges::stable_sort(fields, [](const PlacedField &a, const PlacedField &b) {
        return std::tie(a.part, a.field.code) < std::tie(b.part, b.field.code);
    });
}

using FieldRange = std::span<const PlacedField>;

/// The values of the first one's part and code; what is left is in `fields`.
FieldRange takeGroup(FieldRange &fields, const PlacedField &first)
{
    const auto end = std::ranges::find_if_not(fields, [&](const PlacedField &placed) {
        return placed.part == first.part && placed.field.code == first.field.code;
    });
    const auto count = static_cast<size_t>(end - fields.begin());
    const FieldRange group = fields.first(count);
    fields = fields.subspan(count);
    return group;
}

bool isInFront(const PlacedField &a, const PlacedField &b)
{
    return std::tie(a.part, a.field.code) < std::tie(b.part, b.field.code);
}

/// Compares all values of one code.
void addChanges(std::vector<FieldChange> &changes, FieldRange before, FieldRange after, const ValueComparison &values)
{
    const auto areSame = [&](const PlacedField &a, const PlacedField &b) {
        return values.areSame(a.field.value, b.field.value);
    };
    const bool isOneOfSeveral = before.size() > 1 || after.size() > 1;
    size_t front = 0;
    while (front < before.size() && front < after.size() && areSame(before[front], after[front]))
        ++front;
    before = before.subspan(front);
    after = after.subspan(front);
    while (!before.empty() && !after.empty() && areSame(before.back(), after.back())) {
        before = before.first(before.size() - 1);
        after = after.first(after.size() - 1);
    }
    for (size_t i = 0; i < std::max(before.size(), after.size()); ++i) {
        const bool isThere = i < before.size();
        const PlacedField &any = isThere ? before[i] : after[i];
        if (isThere && i < after.size() && areSame(before[i], after[i]))
            continue;
        FieldChange change{.part = any.part, .code = any.field.code};
        change.number = isOneOfSeveral ? static_cast<int>(front + i + 1) : 0;
        if (isThere)
            change.before = before[i].field.value;
        if (i < after.size())
            change.after = after[i].field.value;
        changes.push_back(std::move(change));
    }
}

/// Whether a value that one entity has, and the other leaves out, is what counts there anyway.
bool isUsualValue(const Drawing &drawing, RecordId entity, const FieldChange &change, const FieldValue &value,
                  const ValueComparison &values)
{
    const auto usual = impliedField(drawing, entity, drawing.tags(entity), change.code);
    return usual && values.areSame(usual->value, value);
}

/// Leaves out what a sort table says of entities that the other drawing does not have: that follows from these.
template <typename Partner>
void dropFromSortTable(const Drawing &drawing, PlacedFields &fields, Partner partnerOf)
{
    constexpr int entityCode = 331;
    bool isGone = false; // and what is sorted as the entity, behind it
    std::erase_if(fields, [&](const PlacedField &placed) {
        if (placed.field.code == entityCode)
            isGone = !isValid(partnerOf(drawing.find(placed.field.handle())));
        return isGone;
    });
}

bool isNoChange(const RecordPairs &pairs, RecordId before, RecordId after, const FieldChange &change,
                const ValueComparison &values)
{
    if (!change.part.isEmpty() || change.number > 0 || change.before.has_value() == change.after.has_value())
        return false;
    return change.before ? isUsualValue(pairs.after(), after, change, *change.before, values)
                         : isUsualValue(pairs.before(), before, change, *change.after, values);
}

} // namespace

bool areSameTags(const RecordPairs &pairs, RecordId before, RecordId after, const ValueRules &rules)
{
    const ValueComparison values(pairs, rules.tolerance);
    ComparedTags old(pairs.before(), before, rules.ignored);
    ComparedTags now(pairs.after(), after, rules.ignored);
    for (Tag a, b;;) {
        const bool isMore = old.read(a);
        if (isMore != now.read(b))
            return false;
        if (!isMore)
            return true;
        if (a.code != b.code || old.part() != now.part() || !values.areSame(a, b))
            return false;
    }
}

std::vector<FieldChange> fieldChanges(const RecordPairs &pairs, RecordId before, RecordId after,
                                      const ValueRules &rules)
{
    PlacedFields oldFields = placedFields(pairs.before(), before, rules.ignored);
    PlacedFields newFields = placedFields(pairs.after(), after, rules.ignored);
    if (pairs.before().isType(before, "SORTENTSTABLE")) {
        dropFromSortTable(pairs.before(), oldFields, [&](RecordId id) { return pairs.ofBefore(id); });
        dropFromSortTable(pairs.after(), newFields, [&](RecordId id) { return pairs.ofAfter(id); });
    }
    sortByPartAndCode(oldFields);
    sortByPartAndCode(newFields);
    const ValueComparison values(pairs, rules.tolerance);
    std::vector<FieldChange> changes;
    FieldRange old = oldFields;
    FieldRange now = newFields;
    while (!old.empty() || !now.empty()) {
        const bool isOldFirst = !old.empty() && (now.empty() || !isInFront(now.front(), old.front()));
        const PlacedField &first = isOldFirst ? old.front() : now.front();
        const FieldRange oldGroup = takeGroup(old, first);
        addChanges(changes, oldGroup, takeGroup(now, first), values);
    }
    const RecordKind kind = pairs.before().kind(before);
    if (kind == RecordKind::Entity || kind == RecordKind::Child)
        std::erase_if(changes,
                      [&](const FieldChange &change) { return isNoChange(pairs, before, after, change, values); });
    return changes;
}

} // namespace host::drawing
