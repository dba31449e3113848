#include "host/drawing/editing/DrawingCopier.h"

#include "host/drawing/editing/EarlyForms.h"
#include "host/drawing/editing/NameClashes.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/Entities.h"
#include "host/drawing/records/Structure.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/tags/GroupCodes.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

/// How far references from entry to entry and from object to object are followed; drawings need three or four.
constexpr int deepestReference = 100;

bool isOf(const FieldList &fields, std::initializer_list<QStringView> types)
{
    const QString type = fields.empty() ? QString() : fields.front().text();
    return std::any_of(types.begin(), types.end(), [&](QStringView candidate) { return type == candidate; });
}

/// Parts of other entities and the frame of a block. One that stands by itself is damage; a copy would end, or become a
/// part of, what happens to stand before it.
bool isPart(QByteArrayView type)
{
    const QByteArray name = type.toByteArray().toUpper();
    return name == "VERTEX" || name == "ATTRIB" || name == "SEQEND" || name == "BLOCK" || name == "ENDBLK";
}

/// DIMENSION, ARC_DIMENSION and their kin.
bool isDimension(const FieldList &fields)
{
    return !fields.empty() && fields.front().text().endsWith(u"DIMENSION");
}

/// A hatch names the entities its boundary was made of; the copy stands without them.
void dropBoundaryObjects(FieldList &fields)
{
    bool isBehindMarker = false;
    std::erase_if(fields, [&](const Field &field) {
        isBehindMarker = isBehindMarker || field.code == 91;
        return isBehindMarker && field.code == 330;
    });
    for (size_t i = 0; i < fields.size(); ++i) {
        // The same group counts the fit points of a spline edge, and those follow it.
        const bool isFitCount = i + 1 < fields.size() && fields[i + 1].code == 11;
        if (fields[i].code == 97 && !isFitCount)
            fields[i].value = qint64(0);
    }
}

QString entryNameOf(const std::vector<Dictionaries::Entry> &entries, RecordId record)
{
    const auto found = std::find_if(entries.begin(), entries.end(), [record](const Dictionaries::Entry &entry) {
        return isValid(record) && entry.record == record;
    });
    return found == entries.end() ? QString() : found->name;
}

bool isAnonymous(const QString &name)
{
    return name.startsWith(u'*');
}

} // namespace

DrawingCopier::DrawingCopier(const Drawing &source, Drawing &target, CopyRules rules)
    : m_source(source), m_target(target), m_rules(std::move(rules))
{
}

/// The record's fields without {...} groups, handles led over to the target.
FieldList DrawingCopier::translated(RecordId record)
{
    FieldList result;
    bool isInGroup = false;
    bool isInHead = true;
    for (Field &field : m_source.fields(record)) {
        if (field.code == groupCode) {
            isInGroup = field.text().startsWith(u'{');
            continue;
        }
        isInHead = isInHead && field.code != subclassCode;
        if (isInGroup)
            continue;
        const bool isReference = tagType(field.code) == TagType::Handle && !isInHead && field.code != 5;
        if (isReference)
            field.value = translatedHandle(field.handle());
        result.push_back(std::move(field));
    }
    return result;
}

FieldList DrawingCopier::entityFields(RecordId entity)
{
    FieldList fields = translated(entity);
    if (isOf(fields, {u"HATCH"}))
        dropBoundaryObjects(fields);
    std::erase_if(fields, [&](const Field &field) {
        const bool isStyle = field.code == 347 || field.code == 348 || field.code == 390 || field.code == 360;
        const bool isLost = isStyle && field.handle().isNull();
        return field.code == 67 || field.code == 410 || isLost;
    });
    // Proxy graphics (92 or 160 with 310) are a picture of the old surroundings.
    std::erase_if(fields, [](const Field &field) { return field.code == 310 || field.code == 160; });
    ensureReferences(fields);
    const bool namesBlock = isOf(fields, {u"INSERT", u"ACAD_TABLE"}) || isDimension(fields);
    if (Field *name = namesBlock ? findField(fields, 2) : nullptr)
        name->value = ensureBlock(name->text());
    return fields;
}

/// Copies the table entries that the fields name; what has another name in the target is named so.
void DrawingCopier::ensureReferences(FieldList &fields)
{
    const bool hasDimensionStyle = isDimension(fields) || isOf(fields, {u"LEADER", u"TOLERANCE"});
    const bool hasTextStyle = isOf(fields, {u"TEXT", u"MTEXT", u"ATTRIB", u"ATTDEF", u"RTEXT"});
    for (Field &field : fields) {
        if (field.code == 8 || field.code == 1003)
            ensureEntry(TableKind::Layer, field);
        else if (field.code == 6)
            ensureEntry(TableKind::Linetype, field);
        else if (field.code == 7 && hasTextStyle)
            ensureEntry(TableKind::Style, field);
        else if (field.code == 3 && hasDimensionStyle)
            ensureEntry(TableKind::DimStyle, field);
        else if (field.code == 1001)
            ensureEntry(TableKind::AppId, field);
    }
}

void DrawingCopier::ensureEntry(TableKind kind, Field &name)
{
    const RecordId entry = m_source.tables().find(kind, name.text());
    const RecordId copy = isValid(entry) ? copyEntry(kind, entry) : noRecord;
    if (m_rules.clash == NameClash::Prefix && isValid(copy) && copy != m_target.tables().find(kind, name.text()))
        name.value = m_target.tables().name(copy);
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
    const RecordId existing = m_target.tables().find(kind, name);
    const bool isClash = isValid(existing) && clashes(kind, entry, existing);
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

QString DrawingCopier::ensureBlock(const QString &name)
{
    const QString key = name.toCaseFolded();
    if (const auto known = m_blocks.constFind(key); known != m_blocks.constEnd())
        return *known;
    const std::optional<Block> block = m_source.blocks().get(name);
    if (!block || block->isLayout())
        return *m_blocks.insert(key, name);
    QString wanted = isAnonymous(name) ? name.left(2).toUpper() : name;
    const RecordId existing = isAnonymous(name) ? noRecord : m_target.blocks().find(name);
    if (isValid(existing)) {
        const bool isOther =
            m_rules.depth == CopyDepth::Named || drawDifferently(m_source, block->record, m_target, existing);
        if (isOther)
            m_kept.push_back({TableKind::BlockRecord, m_target.blocks().name(existing)});
        if (!isOther || m_rules.clash == NameClash::Keep)
            return *m_blocks.insert(key, name);
        wanted = freeName(TableKind::BlockRecord, name);
    }
    return copyDefinition(*block, wanted);
}

/// Makes a block under a name that is free; gives the name that the block has now. Its contents follow in fillBlocks(),
/// so that blocks may be nested however deep.
QString DrawingCopier::copyDefinition(const Block &block, const QString &name)
{
    const QString key = block.name.toCaseFolded();
    const RecordId copy = m_target.blocks().create(name, block.basePoint, block.flags);
    const QString newName = isValid(copy) ? m_target.blocks().name(copy) : block.name;
    m_blocks.insert(key, newName);
    if (!isValid(copy))
        return newName;
    if (!block.externalPath.isEmpty()) {
        FieldList fields = m_target.fields(copy);
        setField(fields, 1, block.externalPath);
        m_target.setFields(copy, fields);
    }
    m_empty.emplace_back(block, copy);
    return newName;
}

void DrawingCopier::fillBlocks()
{
    if (std::exchange(m_isFilling, true))
        return;
    while (!m_empty.empty()) {
        const auto [block, copy] = m_empty.back();
        m_empty.pop_back();
        for (const RecordId entity : m_source.children(block.record))
            copyOneEntity(entity, copy, Space::Model);
        copyBlockRecord(block, m_target.blocks().read(copy));
    }
    m_isFilling = false;
}

RecordId DrawingCopier::copyBlock(RecordId block)
{
    const RecordId copy = m_target.blocks().find(ensureBlock(m_source.blocks().name(block)));
    fillBlocks();
    return copy;
}

RecordId DrawingCopier::copyEntity(RecordId entity, RecordId block, Space space)
{
    const RecordId copy = copyOneEntity(entity, block, space);
    fillBlocks();
    return copy;
}

/// What stands for an entity of a type that the target's version lacks; noRecord when nothing does, or nothing need.
RecordId DrawingCopier::createEarlyForms(RecordId entity, const FieldList &fields, RecordId block, Space space)
{
    if (m_target.version() >= Version::R14)
        return noRecord;
    RecordId last = noRecord;
    Entities &entities = m_target.entities();
    for (const EarlyForm &form : earlyForms(m_source, entity, fields, m_target.version())) {
        CreateResult made;
        if (form.children.empty())
            made = isValid(block) ? entities.createInBlock(block, form.head) : entities.create(form.head, space);
        else
            made = isValid(block) ? entities.createComplexInBlock(block, form.head, form.children)
                                  : entities.createComplex(form.head, form.children, space);
        last = made ? made.record : last;
    }
    m_converted += isValid(last) ? 1 : 0;
    return last;
}

RecordId DrawingCopier::copyOneEntity(RecordId entity, RecordId block, Space space)
{
    if (!m_source.isAlive(entity) || m_source.kind(entity) != RecordKind::Entity || isPart(m_source.typeName(entity))) {
        ++m_skipped;
        return noRecord;
    }
    copyClass(QString::fromLatin1(m_source.typeName(entity)));
    FieldList head = entityFields(entity);
    if (const RecordId early = createEarlyForms(entity, head, block, space); isValid(early))
        return early;
    std::vector<FieldList> children;
    for (const RecordId child : m_source.children(entity))
        children.push_back(entityFields(child));
    Entities &entities = m_target.entities();
    // Early drawings have no types but those that are known.
    if (m_target.version() < Version::R13 && !Entities::canCreate(head.front().text())) {
        ++m_skipped;
        return noRecord;
    }
    const bool isComplex = !children.empty() || isOf(head, {u"POLYLINE"});
    const bool hasUnknownLinks =
        !Entities::canCreate(head.front().text()) && std::any_of(head.begin(), head.end(), [](const Field &field) {
            return field.code >= 340 && field.code <= 369 && field.handle().isNull();
        });
    CreateResult result;
    if (!hasUnknownLinks && isComplex)
        result = isValid(block) ? entities.createComplexInBlock(block, head, children)
                                : entities.createComplex(head, children, space);
    else if (!hasUnknownLinks)
        result = isValid(block) ? entities.createInBlock(block, head) : entities.create(head, space);
    m_skipped += result ? 0 : 1;
    if (result)
        remember(entity, result.record);
    return result.record;
}

} // namespace host::drawing
