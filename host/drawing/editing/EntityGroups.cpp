#include "host/drawing/editing/EntityGroups.h"

#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/records/Structure.h"
#include "host/drawing/tags/GroupCodes.h"

#include <QSet>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

constexpr int memberCode = 340;
constexpr QStringView groupDictionary = u"ACAD_GROUP";
constexpr QStringView reactorGroup = u"{ACAD_REACTORS";

RecordId groupsOf(const Drawing &drawing)
{
    const RecordId root = drawing.dictionaries().root();
    return isValid(root) ? drawing.dictionaries().find(root, groupDictionary) : noRecord;
}

EntityGroup readGroup(const Drawing &drawing, const Dictionaries::Entry &entry)
{
    const TagList tags = drawing.tags(entry.record);
    EntityGroup group{entry.record, entry.name, tags.text(300), tags.integer(71, 1) != 0, {}};
    for (const Tag &tag : tags.own()) {
        const RecordId member = tag.code == memberCode ? drawing.find(tag.handle().value_or(Handle{})) : noRecord;
        if (isValid(member) && drawing.isAlive(member))
            group.members.push_back(member);
    }
    return group;
}

/// Whether an entity knows of the group, by the handles that it tells when it changes.
void setReactor(Drawing &drawing, RecordId entity, Handle group, bool isTold)
{
    FieldList fields = drawing.fields(entity);
    const auto begin = std::ranges::find_if(
        fields, [](const Field &field) { return field.code == groupCode && field.text() == reactorGroup; });
    if (begin == fields.end()) {
        const auto handle = std::ranges::find(fields, 5, &Field::code);
        if (isTold && handle != fields.end())
            fields.insert(handle + 1, {{groupCode, reactorGroup.toString()}, {ownerCode, group}, {groupCode, u"}"_s}});
        drawing.setFields(entity, fields);
        return;
    }
    const auto end = std::find_if(begin + 1, fields.end(), [](const Field &field) { return field.code == groupCode; });
    const auto own = std::find_if(begin, end, [&](const Field &field) { return field.handle() == group; });
    if (isTold && own == end)
        fields.insert(end, {ownerCode, group});
    else if (!isTold && own != end)
        end - begin > 2 ? fields.erase(own) : fields.erase(begin, end == fields.end() ? end : end + 1);
    drawing.setFields(entity, fields);
}

FieldList groupBody(const Drawing &drawing, const EntityGroup &group)
{
    FieldList body = {{subclassCode, u"AcDbGroup"_s},
                      {300, group.description},
                      {70, qint64(group.name.startsWith(u'*'))},
                      {71, qint64(group.isSelectable)}};
    for (const RecordId member : group.members)
        body.push_back({memberCode, drawing.handle(member)});
    return body;
}

QString freeGroupName(const Drawing &drawing)
{
    for (int number = 1;; ++number) {
        const QString name = u"*A%1"_s.arg(number);
        if (!findGroup(drawing, name))
            return name;
    }
}

} // namespace

std::vector<EntityGroup> entityGroups(const Drawing &drawing)
{
    std::vector<EntityGroup> groups;
    for (const Dictionaries::Entry &entry : drawing.dictionaries().entries(groupsOf(drawing)))
        if (isValid(entry.record) && drawing.isType(entry.record, "GROUP"))
            groups.push_back(readGroup(drawing, entry));
    return groups;
}

std::optional<EntityGroup> findGroup(const Drawing &drawing, const QString &name)
{
    for (const Dictionaries::Entry &entry : drawing.dictionaries().entries(groupsOf(drawing)))
        if (isValid(entry.record) && drawing.isType(entry.record, "GROUP") &&
            entry.name.compare(name, Qt::CaseInsensitive) == 0)
            return readGroup(drawing, entry);
    return std::nullopt;
}

bool createGroup(Drawing &drawing, EntityGroup group)
{
    Dictionaries &dictionaries = drawing.dictionaries();
    const JournalGroup journal(drawing.journal(), {});
    const RecordId root = dictionaries.ensureRoot();
    const RecordId groups = isValid(root) ? dictionaries.ensureDictionary(root, groupDictionary.toString()) : noRecord;
    if (!isValid(groups))
        return false;
    if (group.name == u"*")
        group.name = freeGroupName(drawing);
    const RecordId record = insertObject(drawing, u"GROUP"_s, drawing.handle(groups), groupBody(drawing, group));
    dictionaries.set(groups, group.name, record);
    for (const RecordId member : group.members)
        setReactor(drawing, member, drawing.handle(record), true);
    return true;
}

void changeGroup(Drawing &drawing, const EntityGroup &group)
{
    const JournalGroup journal(drawing.journal(), {});
    const Handle handle = drawing.handle(group.record);
    const QSet<RecordId> members(group.members.begin(), group.members.end());
    for (const EntityGroup &before : entityGroups(drawing)) {
        if (before.record != group.record)
            continue;
        for (const RecordId member : before.members)
            if (!members.contains(member))
                setReactor(drawing, member, handle, false);
        if (before.name == group.name)
            continue;
        // Another name for the same object: a removed entry would take it along.
        FieldList entries = drawing.fields(groupsOf(drawing));
        for (Field &field : entries)
            if (field.code == entryNameCode && field.text() == before.name)
                field.value = group.name;
        drawing.setFields(groupsOf(drawing), entries);
    }
    for (const RecordId member : group.members)
        setReactor(drawing, member, handle, true);
    FieldList fields = drawing.fields(group.record);
    fields.erase(std::ranges::find(fields, subclassCode, &Field::code), fields.end());
    std::ranges::copy(groupBody(drawing, group), std::back_inserter(fields));
    drawing.setFields(group.record, fields);
}

void eraseGroup(Drawing &drawing, const EntityGroup &group)
{
    const JournalGroup journal(drawing.journal(), {});
    const RecordId groups = groupsOf(drawing);
    for (const RecordId member : group.members)
        setReactor(drawing, member, drawing.handle(group.record), false);
    drawing.dictionaries().remove(groups, group.name);
    drawing.setErased(group.record, true);
}

} // namespace host::drawing
