#include "host/drawing/DrawingCopier.h"

#include "host/drawing/Blocks.h"
#include "host/drawing/Dictionaries.h"
#include "host/drawing/Entities.h"
#include "host/drawing/Structure.h"
#include "host/drawing/Tables.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

constexpr int subclassCode = 100;
constexpr int groupCode = 102;

bool isOf(const FieldList &fields, std::initializer_list<QStringView> types)
{
    const QString type = fields.empty() ? QString() : fields.front().text();
    return std::any_of(types.begin(), types.end(), [&](QStringView candidate) { return type == candidate; });
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

/// The values under a group code, texts in one case: they are names of linetypes and of files.
std::vector<FieldValue> valuesOf(const FieldList &fields, int code)
{
    std::vector<FieldValue> values;
    for (const Field &field : fields) {
        if (field.code == code)
            values.push_back(tagType(code) == TagType::Text ? FieldValue(field.text().toCaseFolded()) : field.value);
    }
    return values;
}

/// The groups that say what the entries of a table look like; none where all groups do.
std::vector<int> definingCodes(TableKind kind)
{
    switch (kind) {
    case TableKind::Layer:
        return {62, 6, 370, 420};
    case TableKind::Linetype:
        return {49, 74, 9, 46, 50};
    case TableKind::Style:
        return {3, 4, 40, 41, 50, 71};
    default:
        return {};
    }
}

/// Whether two entries of the same name look different. What only one of them says does not count: versions differ in
/// that, and so do programs in what they leave unsaid.
bool lookDifferent(TableKind kind, const FieldList &one, const FieldList &other)
{
    std::vector<int> codes = definingCodes(kind);
    if (kind == TableKind::DimStyle) {
        for (const Field &field : one) {
            // Texts are names and markers here, handles mean something in their own drawing only, 70 is the flags.
            const TagType type = tagType(field.code);
            if (type != TagType::Handle && type != TagType::Text && field.code != 70)
                codes.push_back(field.code);
        }
    }
    return std::any_of(codes.begin(), codes.end(), [&](int code) {
        const std::vector<FieldValue> values = valuesOf(one, code);
        const std::vector<FieldValue> others = valuesOf(other, code);
        return !values.empty() && !others.empty() && values != others;
    });
}

bool isAnonymous(const QString &name)
{
    return name.startsWith(u'*');
}

} // namespace

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

void DrawingCopier::ensureReferences(const FieldList &fields)
{
    const bool hasDimensionStyle = isDimension(fields) || isOf(fields, {u"LEADER", u"TOLERANCE"});
    const bool hasTextStyle = isOf(fields, {u"TEXT", u"MTEXT", u"ATTRIB", u"ATTDEF", u"RTEXT"});
    for (const Field &field : fields) {
        if (field.code == 8)
            ensureEntry(TableKind::Layer, field.text());
        else if (field.code == 6)
            ensureEntry(TableKind::Linetype, field.text());
        else if (field.code == 7 && hasTextStyle)
            ensureEntry(TableKind::Style, field.text());
        else if (field.code == 3 && hasDimensionStyle)
            ensureEntry(TableKind::DimStyle, field.text());
        else if (field.code == 1001)
            ensureEntry(TableKind::AppId, field.text());
    }
}

void DrawingCopier::ensureEntry(TableKind kind, const QString &name)
{
    const RecordId entry = m_source.tables().find(kind, name);
    if (isValid(entry))
        copyEntry(kind, entry);
}

RecordId DrawingCopier::keepEntry(TableKind kind, RecordId entry, RecordId existing)
{
    if (m_compared.contains(existing))
        return existing;
    m_compared.insert(existing);
    const QString name = m_target.tables().name(existing);
    // What is on layer 0 of a block looks like the insertion's layer.
    const bool isBlockLayer = kind == TableKind::Layer && name == u"0"_s;
    if (!isBlockLayer && lookDifferent(kind, m_source.fields(entry), m_target.fields(existing)))
        m_kept.push_back({kind, name});
    return existing;
}

RecordId DrawingCopier::copyEntry(TableKind kind, RecordId entry)
{
    const QString name = m_source.tables().name(entry);
    if (const RecordId existing = m_target.tables().find(kind, name); isValid(existing))
        return keepEntry(kind, entry, existing);
    if (name.isEmpty())
        return noRecord;
    FieldList fields = translated(entry);
    std::erase_if(fields, [&](const Field &field) {
        const bool isForeign = kind == TableKind::Layer && tagType(field.code) == TagType::Handle;
        // R12 names arrow blocks in groups that mean handles elsewhere.
        const bool isOldArrow = kind == TableKind::DimStyle && field.code >= 5 && field.code <= 7;
        return isForeign || isOldArrow || (tagType(field.code) == TagType::Handle && field.handle().isNull());
    });
    for (const Field &field : fields) {
        if (field.code == 6 && kind == TableKind::Layer)
            ensureEntry(TableKind::Linetype, field.text());
        else if (field.code == 1001)
            ensureEntry(TableKind::AppId, field.text());
    }
    const RecordId copy = m_target.tables().add(kind, name, fields);
    m_compared.insert(copy);
    return copy;
}

Handle DrawingCopier::translatedHandle(Handle handle)
{
    const RecordId record = m_source.find(handle);
    if (!m_source.isAlive(record))
        return {};
    switch (m_source.kind(record)) {
    case RecordKind::TableEntry:
        return translatedEntry(record);
    case RecordKind::Object:
        return translatedObject(record);
    default:
        return {};
    }
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
    const QString type = QString::fromLatin1(m_source.typeName(object));
    ensureClass(m_target, type);
    FieldList fields = recordHead(m_target, type, m_target.handle(dictionary));
    const FieldList body = translated(object);
    const auto marker = std::find_if(body.begin(), body.end(), [](const Field &f) { return f.code == subclassCode; });
    fields.insert(fields.end(), marker, body.end());
    const RecordId section = m_target.sectionRecord(Section::Objects);
    const RecordId copy = m_target.insert(noRecord, section, RecordKind::Object, fields);
    m_target.dictionaries().set(dictionary, name, copy);
    return copy;
}

QString DrawingCopier::ensureBlock(const QString &name)
{
    const QString key = name.toCaseFolded();
    if (const auto known = m_blocks.constFind(key); known != m_blocks.constEnd())
        return *known;
    const std::optional<Block> block = m_source.blocks().get(name);
    const bool isThere = isValid(m_target.blocks().find(name));
    if (!block || block->isLayout() || (isThere && !isAnonymous(name))) {
        if (block && !block->isLayout())
            m_kept.push_back({TableKind::BlockRecord, m_target.blocks().name(m_target.blocks().find(name))});
        m_blocks.insert(key, name);
        return name;
    }
    // A chain of blocks longer than any drawing needs would use up the stack.
    constexpr int maximumDepth = 200;
    if (m_depth >= maximumDepth)
        return name;
    const QString wanted = isAnonymous(name) ? name.left(2).toUpper() : name;
    const RecordId copy = m_target.blocks().create(wanted, block->basePoint, block->flags);
    const QString newName = isValid(copy) ? m_target.blocks().name(copy) : name;
    m_blocks.insert(key, newName);
    if (!isValid(copy))
        return newName;
    if (!block->externalPath.isEmpty()) {
        FieldList fields = m_target.fields(copy);
        setField(fields, 1, block->externalPath);
        m_target.setFields(copy, fields);
    }
    ++m_depth;
    for (const RecordId entity : m_source.children(block->record))
        copyEntity(entity, copy);
    --m_depth;
    return newName;
}

RecordId DrawingCopier::copyBlock(RecordId block)
{
    return m_target.blocks().find(ensureBlock(m_source.blocks().name(block)));
}

void DrawingCopier::copyEntity(RecordId entity, RecordId block)
{
    if (!m_source.isAlive(entity) || m_source.kind(entity) != RecordKind::Entity) {
        ++m_skipped;
        return;
    }
    FieldList head = entityFields(entity);
    std::vector<FieldList> children;
    for (const RecordId child : m_source.children(entity))
        children.push_back(entityFields(child));
    Entities &entities = m_target.entities();
    const bool isComplex = !children.empty() || isOf(head, {u"POLYLINE"});
    const bool hasUnknownLinks =
        !Entities::canCreate(head.front().text()) && std::any_of(head.begin(), head.end(), [](const Field &field) {
            return field.code >= 340 && field.code <= 369 && field.handle().isNull();
        });
    CreateResult result;
    if (!hasUnknownLinks && isComplex)
        result = isValid(block) ? entities.createComplexInBlock(block, head, children)
                                : entities.createComplex(head, children);
    else if (!hasUnknownLinks)
        result = isValid(block) ? entities.createInBlock(block, head) : entities.create(head);
    m_skipped += result ? 0 : 1;
}

} // namespace host::drawing
