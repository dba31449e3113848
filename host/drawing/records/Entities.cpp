#include "host/drawing/records/Entities.h"

#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/EntityBuilder.h"
#include "host/drawing/records/EntityRules.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/records/PolylineFlags.h"
#include "host/drawing/records/Structure.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/tags/DrawingTexts.h"
#include "host/drawing/tags/GroupCodes.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

constexpr int attributeBlockFlag = 2;

QStringView spaceBlockName(Space space)
{
    return space == Space::Model ? u"*Model_Space" : u"*Paper_Space";
}

/// What may change of an entity's head stays as it was: type, handle, {...} groups, owner.
FieldList commonHeadOf(const Drawing &drawing, RecordId entity)
{
    FieldList head;
    bool isInGroup = false;
    for (const Field &field : drawing.fields(entity)) {
        if (field.code == 100)
            break;
        if (field.code == 102)
            isInGroup = field.text().startsWith(u'{');
        const bool isOwner = field.code == 330 && hasMarkers(drawing);
        if (field.code == 0 || field.code == 5 || field.code == 102 || isInGroup || isOwner)
            head.push_back(field);
    }
    return head;
}

} // namespace

/// Where new entities go.
struct Entities::Place
{
    RecordId container = noRecord; ///< the ENTITIES section or a BLOCK
    Handle owner;
    Space space = Space::Model;
    QString error;
};

std::vector<RecordId> Entities::inSpace(Space wanted) const
{
    std::vector<RecordId> found = all();
    std::erase_if(found, [&](RecordId entity) { return space(entity) != wanted; });
    return found;
}

std::vector<RecordId> Entities::all() const
{
    const RecordId section = m_drawing.sectionRecord(Section::Entities);
    return isValid(section) ? m_drawing.children(section) : std::vector<RecordId>();
}

Space Entities::space(RecordId entity) const
{
    const RecordKind kind = m_drawing.kind(entity);
    if (kind == RecordKind::Child || kind == RecordKind::EndChildren)
        return space(m_drawing.parent(entity));
    const std::optional<Tag> paper = m_drawing.findTag(entity, paperSpaceCode);
    return paper && paper->integer().value_or(0) != 0 ? Space::Paper : Space::Model;
}

RecordId Entities::nextOfAll(RecordId entity) const
{
    const RecordId section = m_drawing.sectionRecord(Section::Entities);
    if (!isValid(entity))
        return isValid(section) ? m_drawing.firstChild(section) : noRecord;
    const RecordId next = m_drawing.next(entity);
    const RecordKind kind = isValid(next) ? m_drawing.kind(next) : RecordKind::Other;
    const bool isEntity = kind >= RecordKind::Entity && kind <= RecordKind::EndChildren;
    return isEntity ? next : noRecord;
}

Entities::Place Entities::placeIn(Space space) const
{
    Place place;
    place.space = space;
    place.container = ensureSection(m_drawing, Section::Entities);
    const RecordId owner = m_drawing.tables().find(TableKind::BlockRecord, spaceBlockName(space));
    if (isValid(owner))
        place.owner = m_drawing.handle(owner);
    else if (space == Space::Paper && hasOwners(m_drawing))
        place.error = DrawingTexts::tr("the drawing has no paper space");
    return place;
}

Entities::Place Entities::placeInBlock(RecordId block) const
{
    Place place;
    if (!m_drawing.isAlive(block) || m_drawing.kind(block) != RecordKind::Block) {
        place.error = DrawingTexts::tr("there is no such block");
        return place;
    }
    place.container = block;
    place.owner = m_drawing.owner(block);
    const RecordId entry = m_drawing.blocks().read(block).tableEntry;
    if (place.owner.isNull() && isValid(entry))
        place.owner = m_drawing.handle(entry);
    return place;
}

CreateResult Entities::create(const FieldList &fields, Space space)
{
    const JournalGroup group(m_drawing.journal(), {});
    return createAt(placeIn(space), fields, nullptr);
}

CreateResult Entities::createInBlock(RecordId block, const FieldList &fields)
{
    return createAt(placeInBlock(block), fields, nullptr);
}

CreateResult Entities::createComplex(const FieldList &head, const std::vector<FieldList> &children, Space space)
{
    const JournalGroup group(m_drawing.journal(), {});
    return createAt(placeIn(space), head, &children);
}

CreateResult Entities::createComplexInBlock(RecordId block, const FieldList &head,
                                            const std::vector<FieldList> &children)
{
    return createAt(placeInBlock(block), head, &children);
}

CreateResult Entities::createAt(const Place &place, const FieldList &head, const std::vector<FieldList> *children)
{
    if (!place.error.isEmpty())
        return {noRecord, place.error};
    FieldList mainFields = head;
    if (children && !children->empty())
        setField(mainFields, 66, qint64(1));
    else
        std::erase_if(mainFields, [](const Field &field) { return field.code == 66; });
    const EntityBuilder main(m_drawing, mainFields);
    if (main.isGood() && main.type() == u"POLYLINE" && (!children || children->empty()))
        return {noRecord, DrawingTexts::tr("POLYLINE: its vertices are missing")};
    if (!main.isGood())
        return {noRecord, main.error()};
    std::vector<EntityBuilder> parts;
    if (const QString error = checkChildren(main.type(), mainFields, children, parts); !error.isEmpty())
        return {noRecord, error};

    const JournalGroup group(m_drawing.journal(), {});
    const RecordId record = insertBuilt(main, place, place.container, noRecord, RecordKind::Entity, place.owner);
    if (children && !children->empty()) {
        const Handle owner = m_drawing.handle(record);
        RecordId last = record;
        for (const EntityBuilder &part : parts)
            last = insertBuilt(part, place, record, last, RecordKind::Child, owner);
        const Field *layer = findField(mainFields, 8);
        const EntityBuilder end(m_drawing, {{0, u"SEQEND"_s}, {8, layer ? layer->text() : u"0"_s}});
        insertBuilt(end, place, record, last, RecordKind::EndChildren, owner);
    }
    if (main.type() == u"ATTDEF" && m_drawing.kind(place.container) == RecordKind::Block)
        markWithAttributes(place.container);
    return {record, {}};
}

QString Entities::checkChildren(const QString &type, const FieldList &head, const std::vector<FieldList> *children,
                                std::vector<EntityBuilder> &parts) const
{
    if (!children)
        return {};
    const QString childType = type == u"INSERT" ? u"ATTRIB"_s : u"VERTEX"_s;
    if (type != u"INSERT" && type != u"POLYLINE")
        return DrawingTexts::tr("%1: an entity of this type has no parts").arg(type);
    const Field *flags = findField(head, 70);
    const bool is3d = type == u"POLYLINE" && flags && (flags->integer() & Flag3d) != 0;
    for (FieldList fields : *children) {
        const Field *given = findField(fields, 0);
        if (given && given->text() == u"SEQEND")
            break;
        if (!given)
            fields.insert(fields.begin(), {0, childType});
        else if (given->text() != childType)
            return DrawingTexts::tr("%1: %2 expected, found %3").arg(type, childType, given->text());
        if (is3d) {
            const Field *own = findField(fields, 70);
            setField(fields, 70, (own ? own->integer() : 0) | Flag3dVertex);
        }
        EntityBuilder &part = parts.emplace_back(m_drawing, fields);
        if (!part.isGood())
            return part.error();
    }
    return {};
}

RecordId Entities::insertBuilt(const EntityBuilder &entity, const Place &place, RecordId parent, RecordId after,
                               RecordKind kind, Handle owner)
{
    ensureClass(m_drawing, entity.type());
    FieldList fields = entity.build(recordHead(m_drawing, entity.type(), owner), place.space);
    ensureNamed(m_drawing, fields);
    return m_drawing.insert(after, parent, kind, fields);
}

void Entities::markWithAttributes(RecordId block)
{
    FieldList fields = m_drawing.fields(block);
    const Field *flags = findField(fields, 70);
    setField(fields, 70, (flags ? flags->integer() : 0) | attributeBlockFlag);
    m_drawing.setFields(block, fields);
}

QString Entities::modify(RecordId entity, const FieldList &fields)
{
    if (!m_drawing.isAlive(entity))
        return DrawingTexts::tr("the entity is erased");
    FieldList wanted = fields;
    setField(wanted, 0, QString::fromLatin1(m_drawing.typeName(entity)));
    const EntityBuilder builder(m_drawing, wanted);
    if (!builder.isGood())
        return builder.error();
    const JournalGroup group(m_drawing.journal(), {});
    ensureNamed(m_drawing, fields);
    const Field *paper = findField(fields, 67);
    const bool isPaper = paper ? paper->integer() != 0 : m_drawing.tags(entity).integer(67) != 0;
    // Other values alone leave the order that the file has its groups in.
    const FieldList before = m_drawing.fields(entity);
    if (std::ranges::equal(wanted, before, {}, &Field::code, &Field::code))
        m_drawing.setFields(entity, wanted);
    else
        m_drawing.setFields(entity,
                            builder.build(commonHeadOf(m_drawing, entity), isPaper ? Space::Paper : Space::Model));
    return {};
}

bool Entities::canCreate(QStringView type)
{
    return entityRule(type) != nullptr;
}

} // namespace host::drawing
