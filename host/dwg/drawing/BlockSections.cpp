#include "host/dwg/drawing/AdriftEntities.h"
#include "host/dwg/drawing/Sections.h"

#include <algorithm>

namespace host::dwg {

namespace {

/// How deep lists may stand in one another: blocks have polylines and inserts, which have vertices and attributes.
constexpr int deepestList = 4;

// Records that hold others together: the text form is no drawing without them, and with them at another place.
struct Mark
{
    int type;
    const char *name;
    const char *subclass; ///< null for none
};

constexpr Mark blockBegin = {0x04, "BLOCK", "AcDbBlockBegin"};
constexpr Mark blockEnd = {0x05, "ENDBLK", "AcDbBlockEnd"};
constexpr Mark listEnd = {0x06, "SEQEND", nullptr};

/// Whether an object of the type may stand in a list, or outside of all.
bool mayStand(int type, bool isInList)
{
    constexpr int attribute = 0x02;
    constexpr int firstVertex = 0x0a;
    constexpr int lastVertex = 0x0e;
    const bool isVertex = type >= firstVertex && type <= lastVertex;
    return isInList ? isVertex || type == attribute : !isVertex && !isMark(type);
}

/// Notes what stands for a mark that cannot be read, and tells it. `handle` is 0 where another object has it.
void noteStandIn(DrawingObjects &objects, Fields &fields, const Mark &mark, std::uint64_t handle, std::uint64_t owner)
{
    objects.warn(handle, mark.type, "It cannot be read; one like it was made.");
    fields.start({}, {}, {});
    if (handle != 0)
        fields.noteHandle(5, handle);
    if (fields.since(Release::R2000))
        fields.noteHandle(330, owner);
    fields.subclass("AcDbEntity");
    fields.note(8, "0");
    if (mark.subclass)
        fields.subclass(mark.subclass);
}

/// Writes an end, as it is in the file or one that stands for it.
void writeEnd(DrawingObjects &objects, RecordWriter &records, const Mark &mark, const Relations &of)
{
    const ObjectFrame *const frame = objects.peek(of.end);
    if (frame && frame->type == mark.type && records.writeObject(of.end))
        return;
    const std::uint64_t handle = frame && frame->type != mark.type ? 0 : of.end;
    noteStandIn(objects, records.fields(), mark, handle, of.handle);
    records.writeFields(mark.name);
}

/// Writes what a block, a polyline or an insert has.
class OwnedEntities
{
public:
    explicit OwnedEntities(DrawingParts &parts) : m_objects(parts.objects), m_records(parts.records) {}

    void write(const DrawingBlock &block)
    {
        write(block.relations);
        if (block.isCut)
            writeAdrift(block.relations);
    }

private:
    void write(const Relations &relations)
    {
        const std::size_t before = damageCount();
        for (const std::uint64_t handle : relations.owned)
            writeEntity(handle);
        m_lastHandle = 0;
        writeChain(relations.firstOwned, relations.lastOwned);
        // A chain does not come to its end behind an entity that is damaged, or it comes there past others.
        if (m_lastHandle != relations.lastOwned || damageCount() != before)
            writeAdrift(relations);
    }

    /// `last` is 0 where the end is not known.
    void writeChain(std::uint64_t next, std::uint64_t last)
    {
        // An object is taken once, so a chain that bites its tail ends there.
        while (next != 0 && writeEntity(next) && m_lastHandle != last)
            next = m_nextHandle;
    }

    /// What tells this owner and was not come to; in the order of the chains that are left.
    void writeAdrift(const Relations &relations)
    {
        if (!m_adrift)
            m_adrift.emplace(m_objects, m_records.spaces());
        for (const std::uint64_t handle : m_adrift->of(relations.handle))
            writeChain(handle, relations.lastOwned);
    }

    /// How much is wrong with what was read so far.
    std::size_t damageCount() const
    {
        const Problems &problems = m_objects.problems();
        return problems.lostCount() + problems.count(Problem::Kind::Warning);
    }

    /// False when nothing more follows from there.
    bool writeEntity(std::uint64_t handle)
    {
        const ObjectFrame *const frame = m_objects.take(handle);
        if (!frame)
            return false;
        if (!mayStand(frame->type, m_depth > 0)) {
            m_objects.lose(handle, frame->type, "The object stands outside of what it belongs to.");
            return false;
        }
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
        writeEnd(m_objects, m_records, listEnd, relations);
    }

    DrawingObjects &m_objects;
    RecordWriter &m_records;
    std::optional<AdriftEntities> m_adrift; ///< from where it is asked for
    int m_depth = 0;
    std::uint64_t m_lastHandle = 0; ///< of the entity that was written last
    std::uint64_t m_nextHandle = 0; ///< of the one behind it, before R2004
};

void writeBlockBegin(DrawingParts &parts, const DrawingBlock &block)
{
    Fields &fields = parts.records.fields();
    const BlockHead &head = block.head;
    const Relations &relations = block.relations;
    const ObjectFrame *const seen = parts.objects.peek(relations.begin);
    const ObjectFrame *const frame =
        seen && seen->type == blockBegin.type ? parts.objects.take(relations.begin) : nullptr;
    if (frame)
        parts.records.readHead(*frame, blockBegin.name, true);
    const bool isRead = frame && !fields.hasFailed();
    if (isRead)
        fields.subclass(blockBegin.subclass);
    else
        noteStandIn(parts.objects, fields, blockBegin, seen && !frame ? 0 : relations.begin, relations.handle);
    fields.note(2, head.entry.name);
    fields.note(70, (head.isAnonymous ? 1 : 0) | (head.hasAttributes ? 2 : 0) | (head.isExternal ? 4 : 0) |
                        (head.isOverlay ? 8 : 0) | head.entry.flags);
    fields.note(10, head.base);
    fields.note(3, head.entry.name);
    fields.note(1, head.path);
    if (!head.description.empty())
        fields.note(4, head.description);
    if (isRead)
        parts.records.writeNoted(blockBegin.name);
    else
        parts.records.writeFields(blockBegin.name);
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
            entities.write(block);
        writeEnd(parts.objects, parts.records, blockEnd, block.relations);
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
            entities.write(*found);
    }
    parts.records.endSection();
}

} // namespace host::dwg
