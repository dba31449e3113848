#include "host/kernel/lisp/EntityMaker.h"

#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/EntityRules.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/records/Layouts.h"
#include "host/drawing/records/Structure.h"
#include "host/drawing/records/Tables.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/variables/SystemVariables.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::Field;
using drawing::FieldList;
using drawing::RecordId;

QString textOf(const FieldList &fields, int code)
{
    const Field *field = drawing::findField(fields, code);
    return field ? field->text() : QString();
}

qint64 integerOf(const FieldList &fields, int code)
{
    const Field *field = drawing::findField(fields, code);
    return field ? field->integer() : 0;
}

EntityMaker::Outcome failed(const QString &error)
{
    return {false, drawing::noRecord, {}, error};
}

EntityMaker::Outcome waiting()
{
    return {true, drawing::noRecord, {}, {}};
}

/// Whether the entity's parts and a SEQEND follow.
bool hasParts(const QString &type, const FieldList &fields)
{
    return type == u"POLYLINE" || (type == u"INSERT" && integerOf(fields, 66) != 0);
}

/// The block of the layout that the fields name, when it is one that is not in use.
RecordId restingLayoutOf(const drawing::Drawing &drawing, const FieldList &fields)
{
    const QString wanted = textOf(fields, 410);
    if (wanted.isEmpty() || wanted.compare(u"Model"_s, Qt::CaseInsensitive) == 0 ||
        wanted.compare(drawing.layouts().paperName(), Qt::CaseInsensitive) == 0)
        return drawing::noRecord;
    for (const RecordId block : drawing.layouts().blocks())
        if (drawing.layouts().ofBlock(block).compare(wanted, Qt::CaseInsensitive) == 0)
            return block;
    return drawing::noRecord;
}

/// The half of the ENTITIES section that the fields ask for, by the name of a layout or by group 67; nothing where that
/// leaves it to what is current.
std::optional<drawing::Space> namedSpace(const drawing::Drawing &drawing, const FieldList &fields)
{
    const Field *paper = drawing::findField(fields, 67);
    const bool isPaper = paper && paper->integer() != 0;
    if (const QString layout = textOf(fields, 410); !layout.isEmpty() && !paper)
        return layout.compare(u"Model"_s, Qt::CaseInsensitive) == 0 ? drawing::Space::Model : drawing::Space::Paper;
    if (!paper || (isPaper && currentSpace(drawing) == drawing::Space::Paper && textOf(fields, 410).isEmpty()))
        return {};
    return isPaper ? drawing::Space::Paper : drawing::Space::Model;
}

/// The list with each property of all entities once: programs put a new one behind the old, and the last counts.
FieldList withoutRepeats(const FieldList &fields)
{
    FieldList result;
    QSet<int> seen;
    for (auto field = fields.rbegin(); field != fields.rend(); ++field) {
        const bool isRepeated = seen.contains(field->code);
        seen.insert(field->code);
        if (!isRepeated || !drawing::isCommonCode(field->code))
            result.push_back(*field);
    }
    std::reverse(result.begin(), result.end());
    return result;
}

/// The objects that programs can make, with the markers of their classes.
const QHash<QString, QStringList> &objectMarkers()
{
    static const QHash<QString, QStringList> markers = {
        {u"DICTIONARY"_s, {u"AcDbDictionary"_s}},   {u"DICTIONARYVAR"_s, {u"DictionaryVariables"_s}},
        {u"XRECORD"_s, {u"AcDbXrecord"_s}},         {u"GROUP"_s, {u"AcDbGroup"_s}},
        {u"IMAGEDEF"_s, {u"AcDbRasterImageDef"_s}}, {u"SPATIAL_FILTER"_s, {u"AcDbFilter"_s, u"AcDbSpatialFilter"_s}},
    };
    return markers;
}

} // namespace

EntityMaker::Outcome EntityMaker::make(const FieldList &fields)
{
    const QString type = textOf(fields, 0).trimmed().toUpper();
    if (type.isEmpty())
        return failed(u"group 0 (the type) is missing"_s);
    if (type == u"BLOCK") {
        m_entity.reset();
        m_block = PendingBlock{fields, {}, {}};
        return waiting();
    }
    if (type == u"ENDBLK")
        return finishBlock();
    if (type == u"SEQEND")
        return finishEntity();
    if (type == u"VERTEX" || type == u"ATTRIB")
        return addPart(type, fields);
    if (const auto kind = drawing::tableKindOf(type); kind && type != u"BLOCK_RECORD")
        return makeTableEntry(type, fields);
    if (objectMarkers().contains(type))
        return makeObject(type, fields);
    // Whatever was left unfinished gives way to the new entity.
    m_entity.reset();
    if (hasParts(type, fields)) {
        m_entity = PendingEntity{fields, {}};
        return waiting();
    }
    return create(fields, nullptr);
}

EntityMaker::Outcome EntityMaker::addPart(const QString &type, const FieldList &fields)
{
    const QString head = m_entity ? textOf(m_entity->head, 0).toUpper() : QString();
    if (head != (type == u"VERTEX" ? u"POLYLINE" : u"INSERT"))
        return failed(u"%1: there is no %2 that it could be a part of"_s.arg(type, type == u"VERTEX" ? u"POLYLINE"_s
                                                                                                     : u"INSERT"_s));
    m_entity->parts.push_back(fields);
    return waiting();
}

EntityMaker::Outcome EntityMaker::finishEntity()
{
    if (!m_entity)
        return failed(u"SEQEND: no entity was begun"_s);
    const PendingEntity entity = std::move(*m_entity);
    m_entity.reset();
    return create(entity.head, &entity.parts);
}

EntityMaker::Outcome EntityMaker::create(const FieldList &head, const std::vector<FieldList> *parts)
{
    if (m_block) {
        m_block->entities.push_back(withoutRepeats(head));
        m_block->parts.push_back(parts ? *parts : std::vector<FieldList>());
        return waiting();
    }
    drawing::Drawing &drawing = m_document.drawing();
    FieldList fields = withoutRepeats(head);
    if (!drawing::findField(fields, 8))
        fields.push_back({8, m_document.variables().text(u"CLAYER")});
    const bool isComplex = parts && !parts->empty();
    drawing::CreateResult made;
    if (const RecordId block = restingLayoutOf(drawing, fields); isValid(block))
        made = isComplex ? drawing.entities().createComplexInBlock(block, fields, *parts)
                         : drawing.entities().createInBlock(block, fields);
    else if (const auto space = namedSpace(drawing, fields))
        made = isComplex ? drawing.entities().createComplex(fields, *parts, *space)
                         : drawing.entities().create(fields, *space);
    else
        made = createOnCurrent(drawing, fields, isComplex ? *parts : std::vector<FieldList>());
    return made ? Outcome{true, made.record, {}, {}} : failed(made.error);
}

EntityMaker::Outcome EntityMaker::finishBlock()
{
    if (!m_block)
        return failed(u"ENDBLK: no block was begun"_s);
    const PendingBlock pending = std::move(*m_block);
    m_block.reset();
    m_entity.reset();
    drawing::Drawing &drawing = m_document.drawing();
    const drawing::JournalGroup group(drawing.journal(), u"BLOCK"_s);
    const Field *base = drawing::findField(pending.head, 10);
    const bool isNew = !isValid(drawing.blocks().find(textOf(pending.head, 2)));
    const RecordId block = drawing.blocks().create(textOf(pending.head, 2), base ? base->point() : drawing::Vec3{},
                                                   int(integerOf(pending.head, 70)));
    if (!isValid(block))
        return failed(u"BLOCK: the name \"%1\" cannot be used"_s.arg(textOf(pending.head, 2)));
    if (const QString path = textOf(pending.head, 1); !path.isEmpty()) {
        // The file of an external reference.
        FieldList fields = drawing.fields(block);
        drawing::setField(fields, 1, path);
        drawing.setFields(block, fields);
    }
    if (const QString error = fillBlock(block, pending); !error.isEmpty()) {
        if (isNew)
            eraseBlock(block);
        return failed(error);
    }
    return {true, block, drawing.blocks().name(block), {}};
}

void EntityMaker::eraseBlock(RecordId block)
{
    drawing::Drawing &drawing = m_document.drawing();
    const RecordId entry = drawing.blocks().read(block).tableEntry;
    drawing.setErased(block, true);
    if (isValid(entry))
        drawing.setErased(entry, true);
}

QString EntityMaker::fillBlock(RecordId block, const PendingBlock &pending)
{
    drawing::Entities &entities = m_document.drawing().entities();
    for (size_t i = 0; i < pending.entities.size(); ++i) {
        const drawing::CreateResult made =
            pending.parts[i].empty() ? entities.createInBlock(block, pending.entities[i])
                                     : entities.createComplexInBlock(block, pending.entities[i], pending.parts[i]);
        if (!made)
            return made.error;
    }
    return {};
}

EntityMaker::Outcome EntityMaker::makeTableEntry(const QString &type, const FieldList &fields)
{
    drawing::Tables &tables = m_document.drawing().tables();
    const drawing::TableKind kind = *drawing::tableKindOf(type);
    const QString name = textOf(fields, 2);
    if (!name.isEmpty() && isValid(tables.find(kind, name)))
        return failed(u"%1: \"%2\" exists already"_s.arg(type, name));
    const RecordId entry = tables.add(kind, name, fields);
    return isValid(entry) ? Outcome{true, entry, {}, {}} : failed(u"%1: the name is missing"_s.arg(type));
}

/// An object without an owner yet: (dictadd) gives it one.
EntityMaker::Outcome EntityMaker::makeObject(const QString &type, const FieldList &fields)
{
    drawing::Drawing &drawing = m_document.drawing();
    if (!drawing::hasMarkers(drawing))
        return failed(u"%1: a drawing of this version has no such object"_s.arg(type));
    const drawing::JournalGroup group(drawing.journal(), type);
    drawing::ensureClass(drawing, type);
    FieldList whole = drawing::recordHead(drawing, type, {});
    for (const QString &marker : objectMarkers().value(type))
        whole.push_back({100, marker});
    const qsizetype head = qsizetype(whole.size());
    const auto marker = std::find_if(fields.begin(), fields.end(), [](const Field &field) {
        return field.code == 100 && field.text() == u"AcDbXrecord";
    });
    if (marker != fields.end())
        whole.insert(whole.end(), marker + 1, fields.end()); // all of it is data, whatever its groups mean elsewhere
    else
        std::copy_if(fields.begin(), fields.end(), std::back_inserter(whole), [](const Field &field) {
            return field.code != 0 && field.code != 5 && field.code != 100 && field.code != 330;
        });
    // How the record is merged stands before its data; programs read what is behind it.
    const bool saysMerging = qsizetype(whole.size()) > head && whole[head].code == 280;
    if (type == u"XRECORD" && !saysMerging)
        whole.insert(whole.begin() + head, {280, qint64(1)});
    const RecordId section = drawing::ensureSection(drawing, drawing::Section::Objects);
    const RecordId last = drawing.previous(drawing.endOf(section));
    const RecordId made = drawing.insert(last, section, drawing::RecordKind::Object, whole);
    return isValid(made) ? Outcome{true, made, {}, {}} : failed(u"%1 could not be made"_s.arg(type));
}

} // namespace host::kernel
