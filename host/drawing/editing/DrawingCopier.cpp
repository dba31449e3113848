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

namespace {

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

QString DrawingCopier::ensureBlock(const QString &name)
{
    const QString key = name.toCaseFolded();
    if (const auto known = m_blocks.constFind(key); known != m_blocks.constEnd())
        return *known;
    const std::optional<Block> block = m_source.blocks().get(name);
    if (!block || block->isLayout())
        return *m_blocks.insert(key, name);
    QString wanted = isAnonymous(name) ? name.left(2).toUpper() : name;
    // The drawing that a block stands for is the same wherever it is seen.
    if (m_rules.clash == NameClash::Rename && !isAnonymous(name) && !block->isExternal())
        wanted.prepend(m_rules.prefix);
    RecordId existing = isAnonymous(name) ? noRecord : m_target.blocks().find(wanted);
    // A block that happens to have its name is another thing than what a reference stands for, and may hold it.
    if (isValid(existing) && block->isExternal() && !m_target.blocks().read(existing).isExternal()) {
        wanted = freeName(TableKind::BlockRecord, name);
        existing = noRecord;
    }
    if (isValid(existing) && m_rules.clash == NameClash::Rename)
        return *m_blocks.insert(key, wanted);
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
