#pragma once

#include "host/drawing/records/Entities.h"

#include <optional>

namespace host::kernel {

class Document;

/// Makes entities from field lists one by one, as (entmake) hands them over: a POLYLINE or INSERT with parts waits for
/// its SEQEND, a BLOCK for its ENDBLK, and what comes between goes into them.
class EntityMaker
{
public:
    explicit EntityMaker(Document &document) : m_document(document) {}

    /// What came of one list.
    struct Outcome
    {
        bool ok = false;
        drawing::RecordId record = drawing::noRecord; ///< noRecord while an entity is not complete
        QString blockName;                            ///< of a BLOCK that an ENDBLK completed
        QString error;
    };
    Outcome make(const drawing::FieldList &fields);

private:
    /// A definition that was begun.
    struct PendingBlock
    {
        drawing::FieldList head;
        std::vector<drawing::FieldList> entities;
        /// Parts of the entity with the same index; none for those without.
        std::vector<std::vector<drawing::FieldList>> parts;
    };
    struct PendingEntity
    {
        drawing::FieldList head;
        std::vector<drawing::FieldList> parts;
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
    std::optional<PendingEntity> m_entity;
    std::optional<PendingBlock> m_block;
};

} // namespace host::kernel
