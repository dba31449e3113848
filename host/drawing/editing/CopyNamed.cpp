// What copies name: entries of tables, and objects of the dictionaries below the root.

#include "host/drawing/editing/DrawingCopier.h"
#include "host/drawing/editing/NameClashes.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/Structure.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/tags/GroupCodes.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

/// How far references from entry to entry and from object to object are followed; drawings need three or four.
constexpr int deepestReference = 100;

QString entryNameOf(const std::vector<Dictionaries::Entry> &entries, RecordId record)
{
    const auto found = std::find_if(entries.begin(), entries.end(), [record](const Dictionaries::Entry &entry) {
        return isValid(record) && entry.record == record;
    });
    return found == entries.end() ? QString() : found->name;
}

} // namespace

void DrawingCopier::ensureEntry(TableKind kind, Field &name)
{
    const RecordId entry = m_source.tables().find(kind, name.text());
    const RecordId copy = isValid(entry) ? copyEntry(kind, entry) : noRecord;
    if (m_rules.clash != NameClash::Keep && isValid(copy) && copy != m_target.tables().find(kind, name.text()))
        name.value = m_target.tables().name(copy);
}

RecordId DrawingCopier::copyTableEntry(RecordId entry)
{
    const std::optional<TableKind> kind = tableKindOf(QString::fromLatin1(m_source.typeName(entry)));
    return kind ? copyEntry(*kind, entry) : noRecord;
}

/// What stands for the same in every drawing keeps its name.
bool DrawingCopier::isRenamed(TableKind kind, const QString &name) const
{
    const auto isOneOf = [&](std::initializer_list<QStringView> names) {
        return std::any_of(names.begin(), names.end(),
                           [&](QStringView common) { return name.compare(common, Qt::CaseInsensitive) == 0; });
    };
    if (m_rules.clash != NameClash::Rename || name.isEmpty() || kind == TableKind::AppId)
        return false;
    return !(kind == TableKind::Layer && isOneOf({u"0", u"Defpoints"})) &&
           !(kind == TableKind::Linetype && isOneOf({u"ByLayer", u"ByBlock", u"Continuous"}));
}

/// Whether the entry stands for something else in the target. What is on layer 0 of a block looks like the insertion's
/// layer.
bool DrawingCopier::clashes(TableKind kind, RecordId entry, RecordId existing) const
{
    const bool isBlockLayer = kind == TableKind::Layer && m_target.tables().name(existing) == u"0"_s;
    return !isBlockLayer && lookDifferent(kind, m_source.fields(entry), m_target.fields(existing));
}

RecordId DrawingCopier::copyEntry(TableKind kind, RecordId entry)
{
    if (const auto known = m_entries.constFind(entry); known != m_entries.constEnd())
        return *known;
    if (m_depth >= deepestReference)
        return noRecord;
    QString name = m_source.tables().name(entry);
    if (isRenamed(kind, name))
        name.prepend(m_rules.prefix);
    const RecordId existing = m_target.tables().find(kind, name);
    const bool isClash = isValid(existing) && m_rules.clash != NameClash::Rename && clashes(kind, entry, existing);
    if (isClash)
        m_kept.push_back({kind, m_target.tables().name(existing)});
    if (isClash && m_rules.clash == NameClash::Prefix)
        name = freeName(kind, name);
    else if (isValid(existing) || name.isEmpty())
        return isValid(existing) ? *m_entries.insert(entry, existing) : noRecord;
    // An entry that refers to itself finds nothing yet.
    m_entries.insert(entry, noRecord);
    ++m_depth;
    const FieldList fields = entryFields(kind, entry);
    --m_depth;
    return *m_entries.insert(entry, m_target.tables().add(kind, name, fields));
}

/// The name with the prefix, and a number behind where one of the drawings has that too.
QString DrawingCopier::freeName(TableKind kind, const QString &name) const
{
    const QString wanted = m_rules.prefix + name;
    QString free = wanted;
    for (int number = 2; isValid(m_target.tables().find(kind, free)) || isValid(m_source.tables().find(kind, free)) ||
                         (kind == TableKind::BlockRecord && isValid(m_target.blocks().find(free)));
         ++number)
        free = u"%1_%2"_s.arg(wanted).arg(number);
    return free;
}

FieldList DrawingCopier::entryFields(TableKind kind, RecordId entry)
{
    FieldList fields = translated(entry);
    std::erase_if(fields, [&](const Field &field) {
        const bool isForeign = kind == TableKind::Layer && tagType(field.code) == TagType::Handle;
        // R12 names arrow blocks in groups that mean handles elsewhere.
        const bool isOldArrow = kind == TableKind::DimStyle && field.code >= 5 && field.code <= 7;
        const bool isHandle = tagType(field.code) == TagType::Handle;
        return isForeign || isOldArrow || (isHandle && (field.handle().isNull() || isPending(field.handle())));
    });
    for (Field &field : fields) {
        if (field.code == 6 && kind == TableKind::Layer)
            ensureEntry(TableKind::Linetype, field);
        else if (field.code == 1001)
            ensureEntry(TableKind::AppId, field);
    }
    return fields;
}

Handle DrawingCopier::translatedHandle(Handle handle)
{
    const RecordId record = m_source.find(handle);
    if (!m_source.isAlive(record))
        return {};
    if (m_source.kind(record) == RecordKind::TableEntry)
        return translatedEntry(record);
    const Handle named = m_source.kind(record) == RecordKind::Object ? translatedObject(record) : Handle{};
    return named.isNull() && m_rules.depth == CopyDepth::WithOwned ? pending(handle) : named;
}

Handle DrawingCopier::translatedEntry(RecordId entry)
{
    const std::optional<TableKind> kind = tableKindOf(QString::fromLatin1(m_source.typeName(entry)));
    if (!kind)
        return {};
    if (*kind == TableKind::BlockRecord) {
        const QString name = ensureBlock(m_source.tables().name(entry));
        const RecordId copied = m_target.tables().find(TableKind::BlockRecord, name);
        return isValid(copied) ? m_target.handle(copied) : Handle{};
    }
    const RecordId copied = copyEntry(*kind, entry);
    return isValid(copied) ? m_target.handle(copied) : Handle{};
}

/// Objects that a dictionary right below the root names (image definitions, styles) are found or copied under that
/// name; others stay behind.
Handle DrawingCopier::translatedObject(RecordId object)
{
    const Handle handle = m_source.handle(object);
    if (const auto known = m_objects.constFind(handle.value); known != m_objects.constEnd())
        return *known;
    if (m_depth >= deepestReference)
        return {};
    m_objects.insert(handle.value, {});
    const Dictionaries &from = m_source.dictionaries();
    const RecordId holder = m_source.find(m_source.owner(object));
    const QString holderName = entryNameOf(from.entries(from.root()), holder);
    const QString name = holderName.isEmpty() ? QString() : entryNameOf(from.entries(holder), object);
    if (name.isEmpty())
        return {};
    Dictionaries &to = m_target.dictionaries();
    const RecordId dictionary = to.ensureDictionary(to.ensureRoot(), holderName);
    if (!isValid(dictionary))
        return {};
    const RecordId existing = to.find(dictionary, name);
    const RecordId copy = isValid(existing) ? existing : copyObject(object, dictionary, name);
    m_objects.insert(handle.value, m_target.handle(copy));
    return m_target.handle(copy);
}

RecordId DrawingCopier::copyObject(RecordId object, RecordId dictionary, const QString &name)
{
    const RecordId copy = addCopy(object, m_target.handle(dictionary));
    m_target.dictionaries().set(dictionary, name, copy);
    return copy;
}

RecordId DrawingCopier::addCopy(RecordId object, Handle owner)
{
    const QString type = QString::fromLatin1(m_source.typeName(object));
    copyClass(type);
    ++m_depth;
    const FieldList body = objectBody(object);
    --m_depth;
    const RecordId copy = insertObject(m_target, type, owner, body);
    remember(object, copy);
    return copy;
}

/// What the source says of a type of another program, the target has to say as well.
void DrawingCopier::copyClass(const QString &type)
{
    if (m_classes.contains(type))
        return;
    m_classes.insert(type);
    const RecordId known = findClass(m_source, type);
    if (isValid(known) && !isValid(findClass(m_target, type)) && hasMarkers(m_target)) {
        FieldList fields = m_source.fields(known);
        if (m_target.version() < Version::R2004)
            std::erase_if(fields, [](const Field &field) { return field.code == 91; });
        m_target.insert(noRecord, ensureSection(m_target, Section::Classes), RecordKind::Class, fields);
    }
    ensureClass(m_target, type);
}

} // namespace host::drawing
