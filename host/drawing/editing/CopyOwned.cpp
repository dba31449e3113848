#include "host/drawing/editing/DrawingCopier.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/SortTable.h"
#include "host/drawing/records/Structure.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/tags/GroupCodes.h"

// What copies own (extension dictionaries and the objects in them, reactors of images) and their references to each
// other. A reference to what may be copied later stands as the source's handle with a mark until all are there.

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

/// No file counts its handles this far.
constexpr quint64 pendingMark = quint64(1) << 63;

/// The handles behind a record's head.
std::vector<Handle> references(const Drawing &drawing, RecordId record)
{
    std::vector<Handle> found;
    bool isInHead = true;
    for (const Field &field : drawing.fields(record)) {
        isInHead = isInHead && field.code != subclassCode;
        if (!isInHead && tagType(field.code) == TagType::Handle)
            found.push_back(field.handle());
    }
    return found;
}

bool isOfDictionary(const Drawing &drawing, RecordId record)
{
    return drawing.isType(record, "DICTIONARY") || drawing.isType(record, "ACDBDICTIONARYWDFLT");
}

} // namespace

Handle DrawingCopier::pending(Handle handle)
{
    return handle.isNull() ? handle : Handle{handle.value | pendingMark};
}

bool DrawingCopier::isPending(Handle handle)
{
    return (handle.value & pendingMark) != 0;
}

void DrawingCopier::remember(RecordId original, RecordId copy)
{
    if (m_rules.depth != CopyDepth::WithOwned)
        return;
    const std::vector<RecordId> parts = m_source.children(original);
    const std::vector<RecordId> copiedParts = m_target.children(copy);
    m_copies.insert(m_source.handle(original).value, m_target.handle(copy));
    m_remembered.emplace_back(original, copy);
    if (parts.size() != copiedParts.size() || m_source.kind(original) != RecordKind::Entity)
        return;
    for (size_t i = 0; i < parts.size(); ++i) {
        m_copies.insert(m_source.handle(parts[i]).value, m_target.handle(copiedParts[i]));
        m_remembered.emplace_back(parts[i], copiedParts[i]);
    }
}

/// What a block's table entry says beside the name: units, whether it may be exploded, its dynamic properties.
void DrawingCopier::copyBlockRecord(const Block &block, const Block &copy)
{
    if (m_rules.depth != CopyDepth::WithOwned || !isValid(block.tableEntry) || !isValid(copy.tableEntry))
        return;
    FieldList fields = m_target.fields(copy.tableEntry);
    for (const Field &field : translated(block.tableEntry)) {
        const bool isSetting = field.code == 70 || field.code == 280 || field.code == 281;
        if (isSetting && m_target.version() >= Version::R2007)
            setField(fields, field.code, field.value);
        else if (field.code >= 1000)
            fields.push_back(field);
    }
    ensureApplications(m_target, fields);
    m_target.setFields(copy.tableEntry, fields);
    remember(block.tableEntry, copy.tableEntry);
}

FieldList DrawingCopier::objectBody(RecordId object)
{
    const FieldList all = translated(object);
    const auto marker = std::find_if(all.begin(), all.end(), [](const Field &f) { return f.code == subclassCode; });
    return {marker, all.end()};
}

void DrawingCopier::copyGroups()
{
    const Dictionaries &from = m_source.dictionaries();
    const RecordId groups = isValid(from.root()) ? from.find(from.root(), u"ACAD_GROUP") : noRecord;
    Dictionaries &to = m_target.dictionaries();
    for (const Dictionaries::Entry &group :
         isValid(groups) ? from.entries(groups) : std::vector<Dictionaries::Entry>()) {
        const std::vector<Handle> members =
            isValid(group.record) ? references(m_source, group.record) : std::vector<Handle>();
        if (std::none_of(members.begin(), members.end(), [this](Handle handle) { return !copyOf(handle).isNull(); }))
            continue;
        const RecordId dictionary = to.ensureDictionary(to.ensureRoot(), u"ACAD_GROUP"_s);
        if (!isValid(dictionary))
            return;
        QString name = group.name;
        for (int number = 2; isValid(to.find(dictionary, name)); ++number)
            name = u"%1%2_%3"_s.arg(m_rules.prefix, group.name).arg(number);
        to.set(dictionary, name, addCopy(group.record, m_target.handle(dictionary)));
    }
}

/// Null for what was not copied, or was taken out again because it could not be moved.
Handle DrawingCopier::copyOf(Handle original) const
{
    const Handle copy = m_copies.value(original.value);
    return m_target.isAlive(m_target.find(copy)) ? copy : Handle{};
}

void DrawingCopier::finish()
{
    // The list grows while what is in it brings more.
    for (size_t i = 0; i < m_remembered.size(); ++i) {
        const auto [original, copy] = m_remembered[i];
        if (!m_target.isAlive(copy))
            continue;
        copyExtension(original, copy);
        copyOwned(original, copy);
        fillBlocks();
    }
    for (const auto &[original, copy] : m_remembered) {
        if (m_target.isAlive(copy))
            resolve(copy);
    }
}

/// The objects that a record refers to and owns.
void DrawingCopier::copyOwned(RecordId original, RecordId copy)
{
    const Handle owner = m_source.handle(original);
    if (owner.isNull() || m_source.kind(original) == RecordKind::TableEntry)
        return;
    for (const Handle handle : references(m_source, original)) {
        const RecordId object = m_source.find(handle);
        const bool isOwned =
            m_source.isAlive(object) && m_source.kind(object) == RecordKind::Object && m_source.owner(object) == owner;
        if (isOwned && copyOf(handle).isNull())
            addCopy(object, m_target.handle(copy));
    }
}

void DrawingCopier::copyExtension(RecordId original, RecordId copy)
{
    const Dictionaries &from = m_source.dictionaries();
    const RecordId extension = from.extensionDictionary(original);
    if (!isValid(extension) || !hasOwners(m_target))
        return;
    Dictionaries &to = m_target.dictionaries();
    const RecordId dictionary = to.ensureExtensionDictionary(copy);
    m_copies.insert(m_source.handle(extension).value, m_target.handle(dictionary));
    for (const Dictionaries::Entry &entry : from.entries(extension)) {
        if (isValid(entry.record) && copyOf(entry.handle).isNull())
            to.set(dictionary, entry.name, addCopy(entry.record, m_target.handle(dictionary)));
    }
}

/// Leads pending references to the copies; of what stayed behind nothing is left but, in objects, the place.
void DrawingCopier::resolve(RecordId copy)
{
    FieldList fields = m_target.fields(copy);
    const bool isDictionary = isOfDictionary(m_target, copy);
    const bool isSortTable = m_target.isType(copy, "SORTENTSTABLE");
    const bool keepsPlaces = m_target.kind(copy) == RecordKind::Object;
    bool isInHead = true;
    FieldList resolved;
    for (Field &field : fields) {
        isInHead = isInHead && field.code != subclassCode;
        const bool isSortHandle = isSortTable && !isInHead && field.code == sortHandleCode;
        const bool isLink = isSortHandle || (tagType(field.code) == TagType::Handle && isPending(field.handle()));
        if (!isLink) {
            resolved.push_back(std::move(field));
            continue;
        }
        const Handle found = copyOf(Handle{field.handle().value & ~pendingMark});
        field.value = found;
        const bool isLost = found.isNull();
        if (isLost && isDictionary && !resolved.empty() && resolved.back().code == 3)
            resolved.pop_back();
        else if (isLost && isSortHandle && !resolved.empty())
            field.value = resolved.back().value;
        if (!isLost || isSortHandle || (keepsPlaces && !isDictionary))
            resolved.push_back(std::move(field));
    }
    m_target.setFields(copy, resolved);
}

} // namespace host::drawing
