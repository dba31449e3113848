#pragma once

#include "host/drawing/records/Entities.h"

#include <optional>

namespace host::kernel {

class Document;

/// Makes entities from field lists one by one, as (entmake) hands them over: a POLYLINE or INSERT with parts waits for
/// its SEQEND, a BLOCK for its ENDBLK, and what comes between goes into them. Entries of tables and the objects that
/// programs can make (dictionaries, extension records, groups, image definitions, filters) are made at once.
///
/// One a document, which lives as long: what was begun waits for the next call, in a later run too. Whatever is left
/// unfinished gives way to the next entity of its own or to the next BLOCK, without a message. Nothing reaches the
/// drawing before it is complete, so there is nothing to take back.
class EntityMaker
{
public:
    /// The document owns it.
    explicit EntityMaker(Document &document) : m_document(document) {}

    /// What came of one list.
    struct Outcome
    {
        bool ok = false;                              ///< taken: made, or kept until what it belongs to is complete
        drawing::RecordId record = drawing::noRecord; ///< noRecord while an entity is not complete
        QString blockName;                            ///< of a BLOCK that an ENDBLK completed
        QString error;                                ///< why it was not taken; for the command line, not for programs
    };
    /// `fields` are group codes with values in the drawing's own coordinates, angles in degrees as files have them; 0
    /// is the type. Without a layer (8) the current one is taken, without a space (67, 410) the current space.
    Outcome make(const drawing::FieldList &fields);

private:
    /// A definition that was begun.
    struct PendingBlock
    {
        drawing::FieldList head;                  ///< as BLOCK came: name, base point, flags
        std::vector<drawing::FieldList> entities; ///< complete ones, in order
        /// Parts of the entity with the same index; none for those without.
        std::vector<std::vector<drawing::FieldList>> parts;
    };
    /// A POLYLINE or INSERT that was begun.
    struct PendingEntity
    {
        drawing::FieldList head;
        std::vector<drawing::FieldList> parts; ///< VERTEX or ATTRIB, as they came
    };

    Outcome addPart(const QString &type, const drawing::FieldList &fields);
    Outcome finishEntity();
    Outcome finishBlock();
    Outcome create(const drawing::FieldList &head, const std::vector<drawing::FieldList> *parts);
    Outcome makeTableEntry(const QString &type, const drawing::FieldList &fields);
    Outcome makeObject(const QString &type, const drawing::FieldList &fields);
    /// Empty when all entities are in; the reason otherwise.
    QString fillBlock(drawing::RecordId block, const PendingBlock &pending);
    void eraseBlock(drawing::RecordId block);

    Document &m_document;
    std::optional<PendingEntity> m_entity; ///< innermost of what was begun
    std::optional<PendingBlock> m_block;   ///< a BLOCK within a BLOCK takes its place
};

} // namespace host::kernel
