#include "host/drawing/records/Dictionaries.h"

#include "host/drawing/records/Journal.h"
#include "host/drawing/records/Structure.h"
#include "host/drawing/tags/GroupCodes.h"

#include <QMultiHash>
#include <QSet>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

constexpr int softOwnerCode = 350;
constexpr int hardOwnerCode = 360;
constexpr int cloningCode = 280;
constexpr int variableCode = 1;
const QString variablesEntry = u"AcDbVariableDictionary"_s;
const QString variableType = u"DICTIONARYVAR"_s;
const QString variableMarker = u"DictionaryVariables"_s;

bool isSameName(const QString &name, QStringView wanted)
{
    return name.compare(wanted, Qt::CaseInsensitive) == 0;
}

/// Index of the entry's name in a dictionary's fields; the reference is the next. -1 when there is none.
qsizetype entryIndex(const FieldList &fields, QStringView name)
{
    for (size_t i = 0; i + 1 < fields.size(); ++i) {
        if (fields[i].code == entryNameCode && isSameName(fields[i].text(), name) &&
            Dictionaries::isReference(fields[i + 1].code))
            return static_cast<qsizetype>(i);
    }
    return -1;
}

/// Without a reference to an extension dictionary, which leads nowhere.
FieldList withoutExtension(FieldList fields)
{
    const auto begin = std::ranges::find_if(
        fields, [](const Field &field) { return field.code == 102 && field.text().trimmed() == u"{ACAD_XDICTIONARY"; });
    if (begin == fields.end())
        return fields;
    auto end = std::find_if(begin + 1, fields.end(), [](const Field &field) { return field.code == 102; });
    fields.erase(begin, end == fields.end() ? end : end + 1);
    return fields;
}

} // namespace

bool Dictionaries::isReference(int code)
{
    return code == softOwnerCode || code == hardOwnerCode || code == 340 || code == 330;
}

RecordId Dictionaries::root() const
{
    const RecordId section = m_drawing.sectionRecord(Section::Objects);
    const RecordId first = isValid(section) ? m_drawing.firstChild(section) : noRecord;
    return isValid(first) && m_drawing.isType(first, "DICTIONARY") ? first : noRecord;
}

RecordId Dictionaries::ensureRoot()
{
    if (const RecordId existing = root(); isValid(existing))
        return existing;
    if (!hasMarkers(m_drawing))
        return noRecord;
    const JournalGroup group(m_drawing.journal(), {});
    const RecordId section = ensureSection(m_drawing, Section::Objects);
    FieldList fields = recordHead(m_drawing, u"DICTIONARY"_s, {});
    fields.push_back({subclassCode, u"AcDbDictionary"_s});
    if (hasOwners(m_drawing))
        fields.push_back({281, qint64(1)});
    // The named-object dictionary is known by its place: the first of all objects.
    return m_drawing.insert(section, section, RecordKind::Object, fields);
}

std::vector<Dictionaries::Entry> Dictionaries::entries(RecordId dictionary) const
{
    std::vector<Entry> found;
    if (!m_drawing.isAlive(dictionary))
        return found;
    const FieldList fields = m_drawing.fields(dictionary);
    for (size_t i = 0; i + 1 < fields.size(); ++i) {
        if (fields[i].code != entryNameCode || !isReference(fields[i + 1].code))
            continue;
        const Handle handle = fields[i + 1].handle();
        const RecordId record = m_drawing.find(handle);
        found.push_back({fields[i].text(), m_drawing.isAlive(record) ? record : noRecord, handle});
    }
    return found;
}

RecordId Dictionaries::find(RecordId dictionary, QStringView name) const
{
    for (const Entry &entry : entries(dictionary)) {
        if (isSameName(entry.name, name))
            return entry.record;
    }
    return noRecord;
}

bool Dictionaries::set(RecordId dictionary, const QString &name, RecordId object)
{
    if (!m_drawing.isAlive(dictionary) || !m_drawing.isAlive(object) || !hasMarkers(m_drawing))
        return false;
    FieldList fields = m_drawing.fields(dictionary);
    const Handle handle = m_drawing.handle(object);
    const qsizetype index = entryIndex(fields, name);
    if (index >= 0) {
        fields[static_cast<size_t>(index) + 1].value = handle;
    } else {
        const Field *isHardOwner = findField(fields, 280);
        const bool isHard = isHardOwner && isHardOwner->integer() != 0;
        fields.push_back({entryNameCode, name});
        fields.push_back({isHard ? hardOwnerCode : softOwnerCode, handle});
    }
    const JournalGroup group(m_drawing.journal(), {});
    m_drawing.setFields(dictionary, fields);
    giveOwner(object, dictionary);
    return true;
}

void Dictionaries::giveOwner(RecordId object, RecordId dictionary)
{
    FieldList fields = m_drawing.fields(object);
    const auto owner = std::find_if(fields.begin(), fields.end(), [](const Field &field) { return field.code == 330; });
    if (owner == fields.end() || !owner->handle().isNull())
        return;
    owner->value = m_drawing.handle(dictionary);
    m_drawing.setFields(object, fields);
}

bool Dictionaries::rename(RecordId dictionary, QStringView name, const QString &newName)
{
    if (!m_drawing.isAlive(dictionary))
        return false;
    FieldList fields = m_drawing.fields(dictionary);
    const qsizetype index = entryIndex(fields, name);
    const qsizetype taken = entryIndex(fields, newName);
    if (index < 0 || (taken >= 0 && taken != index))
        return false;
    fields[static_cast<size_t>(index)].value = newName;
    m_drawing.setFields(dictionary, fields);
    return true;
}

bool Dictionaries::remove(RecordId dictionary, QStringView name)
{
    if (!m_drawing.isAlive(dictionary))
        return false;
    FieldList fields = m_drawing.fields(dictionary);
    const qsizetype index = entryIndex(fields, name);
    if (index < 0)
        return false;
    const JournalGroup group(m_drawing.journal(), {});
    const RecordId object = m_drawing.find(fields[static_cast<size_t>(index) + 1].handle());
    fields.erase(fields.begin() + index, fields.begin() + index + 2);
    m_drawing.setFields(dictionary, fields);
    if (m_drawing.isAlive(object) && m_drawing.owner(object) == m_drawing.handle(dictionary))
        m_drawing.setErased(object, true);
    return true;
}

RecordId Dictionaries::ensureDictionary(RecordId parent, const QString &name)
{
    if (const RecordId existing = find(parent, name); isValid(existing))
        return m_drawing.isType(existing, "DICTIONARY") ? existing : noRecord;
    if (!m_drawing.isAlive(parent) || !hasMarkers(m_drawing))
        return noRecord;
    const JournalGroup group(m_drawing.journal(), {});
    FieldList body = {{subclassCode, u"AcDbDictionary"_s}};
    if (hasOwners(m_drawing))
        body.push_back({281, qint64(1)});
    const RecordId record = insertObject(m_drawing, u"DICTIONARY"_s, m_drawing.handle(parent), body);
    set(parent, name, record);
    return record;
}

std::optional<FieldList> Dictionaries::xrecord(RecordId dictionary, QStringView name) const
{
    const RecordId record = find(dictionary, name);
    if (!isValid(record) || !m_drawing.isType(record, "XRECORD"))
        return std::nullopt;
    return xrecordData(record);
}

FieldList Dictionaries::xrecordData(RecordId record) const
{
    return xrecordData(m_drawing.fields(record), m_drawing.version());
}

FieldList Dictionaries::xrecordData(const FieldList &fields, Version version)
{
    auto begin = std::find_if(fields.begin(), fields.end(), [](const Field &f) { return f.code == subclassCode; });
    if (begin != fields.end())
        ++begin;
    // R13 and R14 have no cloning flag: there a 280 is data.
    if (begin != fields.end() && begin->code == cloningCode && version >= Version::R2000)
        ++begin;
    return {begin, fields.end()};
}

RecordId Dictionaries::setXrecord(RecordId dictionary, const QString &name, const FieldList &data)
{
    const RecordId existing = find(dictionary, name);
    const bool isOther = isValid(existing) && !m_drawing.isType(existing, "XRECORD");
    if (!m_drawing.isAlive(dictionary) || !hasMarkers(m_drawing) || isOther)
        return noRecord;
    FieldList body = {{subclassCode, u"AcDbXrecord"_s}};
    if (hasOwners(m_drawing))
        body.push_back({cloningCode, qint64(1)});
    const JournalGroup group(m_drawing.journal(), {});
    if (!isValid(existing)) {
        body.insert(body.end(), data.begin(), data.end());
        const RecordId record = insertObject(m_drawing, u"XRECORD"_s, m_drawing.handle(dictionary), body);
        set(dictionary, name, record);
        return record;
    }
    const FieldList old = m_drawing.fields(existing);
    const size_t headLength = old.size() - xrecordData(existing).size();
    FieldList fields(old.begin(), old.begin() + static_cast<qsizetype>(headLength));
    fields.insert(fields.end(), data.begin(), data.end());
    m_drawing.setFields(existing, fields);
    return existing;
}

std::optional<QString> Dictionaries::variable(QStringView name) const
{
    const RecordId record = find(find(root(), variablesEntry), name);
    if (!isValid(record) || !m_drawing.isType(record, variableType.toLatin1()))
        return std::nullopt;
    return m_drawing.tags(record).text(variableCode);
}

bool Dictionaries::setVariable(const QString &name, const QString &value)
{
    if (!hasOwners(m_drawing))
        return false;
    const JournalGroup group(m_drawing.journal(), {});
    const RecordId all = ensureDictionary(ensureRoot(), variablesEntry);
    if (!isValid(all))
        return false;
    if (const RecordId present = find(all, name); isValid(present)) {
        if (!m_drawing.isType(present, variableType.toLatin1()))
            return false;
        FieldList fields = m_drawing.fields(present);
        setField(fields, variableCode, value);
        m_drawing.setFields(present, fields);
        return true;
    }
    ensureClass(m_drawing, variableType);
    const RecordId made =
        insertObject(m_drawing, variableType, m_drawing.handle(all),
                     {{subclassCode, variableMarker}, {cloningCode, qint64(0)}, {variableCode, value}});
    return set(all, name, made);
}

RecordId Dictionaries::extensionDictionary(RecordId record) const
{
    bool isInGroup = false;
    for (const Tag &tag : m_drawing.tags(record)) {
        if (tag.code == 102) {
            isInGroup = tag.trimmed() == "{ACAD_XDICTIONARY";
        } else if (isInGroup && tag.code == hardOwnerCode) {
            const RecordId found = m_drawing.find(tag.handle().value_or(Handle{}));
            return m_drawing.isAlive(found) ? found : noRecord;
        }
    }
    return noRecord;
}

RecordId Dictionaries::ensureExtensionDictionary(RecordId record)
{
    if (const RecordId existing = extensionDictionary(record); isValid(existing))
        return existing;
    if (!m_drawing.isAlive(record) || !hasMarkers(m_drawing))
        return noRecord;
    const JournalGroup group(m_drawing.journal(), {});
    FieldList body = {{subclassCode, u"AcDbDictionary"_s}};
    if (hasOwners(m_drawing)) {
        body.push_back({280, qint64(1)});
        body.push_back({281, qint64(1)});
    }
    const RecordId dictionary = insertObject(m_drawing, u"DICTIONARY"_s, m_drawing.handle(record), body);
    FieldList fields = withoutExtension(m_drawing.fields(record));
    const FieldList extension = {
        {102, u"{ACAD_XDICTIONARY"_s}, {hardOwnerCode, m_drawing.handle(dictionary)}, {102, u"}"_s}};
    // Behind type and handle.
    fields.insert(fields.begin() + std::min<qsizetype>(2, qsizetype(fields.size())), extension.begin(),
                  extension.end());
    m_drawing.setFields(record, fields);
    return dictionary;
}

std::vector<RecordId> Dictionaries::ownedBy(RecordId record) const
{
    std::vector<RecordId> owners = m_drawing.children(record);
    owners.insert(owners.begin(), record);
    const std::size_t parts = owners.size();
    QSet<quint32> seen;
    for (std::size_t i = 0; i < owners.size(); ++i) {
        const Handle owner = m_drawing.handle(owners[i]);
        for (const Field &field : owner.isNull() ? FieldList() : m_drawing.fields(owners[i])) {
            const RecordId object = tagType(field.code) == TagType::Handle ? m_drawing.find(field.handle()) : noRecord;
            const bool isOwned = isValid(object) && m_drawing.kind(object) == RecordKind::Object &&
                                 m_drawing.owner(object) == owner && object != owners[i];
            if (isOwned && !seen.contains(quint32(object))) {
                seen.insert(quint32(object));
                owners.push_back(object);
            }
        }
    }
    owners.erase(owners.begin(), owners.begin() + std::ptrdiff_t(parts));
    return owners;
}

bool Dictionaries::setErasedWithOwned(RecordId record, bool erased)
{
    const JournalGroup group(m_drawing.journal(), {});
    // The parts of a record are told only while it is there.
    const std::vector<RecordId> owned = erased ? ownedBy(record) : std::vector<RecordId>();
    if (!m_drawing.setErased(record, erased))
        return false;
    for (const RecordId object : erased ? owned : ownedBy(record))
        m_drawing.setErased(object, erased);
    return true;
}

void Dictionaries::eraseOwnedBy(const std::vector<RecordId> &records)
{
    const RecordId section = m_drawing.sectionRecord(Section::Objects);
    if (!isValid(section))
        return;
    QMultiHash<quint64, RecordId> owned;
    for (const RecordId object : m_drawing.children(section))
        if (const Handle owner = m_drawing.owner(object); !owner.isNull())
            owned.insert(owner.value, object);
    const JournalGroup group(m_drawing.journal(), {});
    std::vector<RecordId> waiting = records;
    while (!waiting.empty()) {
        const quint64 owner = m_drawing.handle(waiting.back()).value;
        waiting.pop_back();
        for (const RecordId object : owned.values(owner))
            if (owner != 0 && m_drawing.setErased(object, true))
                waiting.push_back(object);
    }
}

} // namespace host::drawing
