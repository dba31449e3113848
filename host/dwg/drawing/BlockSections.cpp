#include "host/dwg/drawing/Sections.h"

#include <algorithm>

namespace host::dwg {

namespace {

/// How deep lists may stand in one another: blocks have polylines and inserts, which have vertices and attributes.
constexpr int deepestList = 4;

/// Writes what a block, a polyline or an insert has.
class OwnedEntities
{
public:
    explicit OwnedEntities(DrawingParts &parts) : m_objects(parts.objects), m_records(parts.records) {}

    void write(const Relations &relations)
    {
        for (const std::uint64_t handle : relations.owned)
            writeEntity(handle);
        std::uint64_t next = relations.firstOwned;
        // An object is taken once, so a chain that bites its tail ends there.
        while (next != 0 && writeEntity(next) && m_lastHandle != relations.lastOwned)
            next = m_nextHandle;
    }

private:
    /// False when nothing more follows from there.
    bool writeEntity(std::uint64_t handle)
    {
        const auto frame = m_objects.take(handle);
        if (!frame)
            return false;
        const Relations &relations = m_records.fields().relations();
        m_records.fields().relations().clear();
        const bool isWritten = m_records.writeFrame(handle, *frame);
        const std::uint64_t next = relations.next;
        if (isWritten && relations.hasList && m_depth < deepestList)
            writeList(Relations(relations));
        m_lastHandle = handle;
        m_nextHandle = next;
        return true;
    }

    void writeList(const Relations &relations)
    {
        ++m_depth;
        write(relations);
        --m_depth;
        m_records.writeObject(relations.end);
    }

    DrawingObjects &m_objects;
    RecordWriter &m_records;
    int m_depth = 0;
    std::uint64_t m_lastHandle = 0; ///< of the entity that was written last
    std::uint64_t m_nextHandle = 0; ///< of the one behind it, before R2004
};

void writeBlockBegin(DrawingParts &parts, const DrawingBlock &block)
{
    const auto frame = parts.objects.take(block.relations.begin);
    if (!frame)
        return;
    Fields &fields = parts.records.fields();
    const BlockHead &head = block.head;
    parts.records.readHead(*frame, "BLOCK", true);
    fields.subclass("AcDbBlockBegin");
    fields.note(2, head.entry.name);
    fields.note(70, (head.isAnonymous ? 1 : 0) | (head.hasAttributes ? 2 : 0) | (head.isExternal ? 4 : 0) |
                        (head.isOverlay ? 8 : 0) | head.entry.flags);
    fields.note(10, head.base);
    fields.note(3, head.entry.name);
    fields.note(1, head.path);
    if (!head.description.empty())
        fields.note(4, head.description);
    parts.records.writeNoted("BLOCK");
}

} // namespace

void writeBlocksSection(DrawingParts &parts)
{
    const ObjectHead::Spaces &spaces = parts.records.spaces();
    OwnedEntities entities(parts);
    parts.records.beginSection("BLOCKS");
    for (const DrawingBlock &block : parts.blocks) {
        writeBlockBegin(parts, block);
        const std::uint64_t handle = block.relations.handle;
        if (handle != spaces.model && handle != spaces.paper)
            entities.write(block.relations);
        parts.records.writeObject(block.relations.end);
    }
    parts.records.endSection();
}

void writeEntitiesSection(DrawingParts &parts)
{
    const ObjectHead::Spaces &spaces = parts.records.spaces();
    OwnedEntities entities(parts);
    parts.records.beginSection("ENTITIES");
    for (const std::uint64_t space : {spaces.model, spaces.paper}) {
        const auto found =
            std::ranges::find(parts.blocks, space, [](const DrawingBlock &block) { return block.relations.handle; });
        if (found != parts.blocks.end())
            entities.write(found->relations);
    }
    parts.records.endSection();
}

} // namespace host::dwg
