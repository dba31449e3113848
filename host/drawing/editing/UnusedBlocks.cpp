#include "host/drawing/editing/UnusedBlocks.h"

#include "host/drawing/records/Blocks.h"

#include <QHash>
#include <QMultiHash>
#include <QSet>

namespace host::drawing {

namespace {

constexpr int dependentFlag = 16;

/// Who needs which definition. What is in no definition needs for noRecord.
class BlockNeeds
{
public:
    explicit BlockNeeds(const Drawing &drawing) : m_drawing(drawing)
    {
        for (const RecordId block : drawing.blocks().all())
            addBlock(drawing.blocks().read(block));
        for (RecordId id = drawing.first(); isValid(id); id = drawing.next(id))
            addNeedsOf(id);
    }

    QSet<RecordId> neededBy(std::vector<RecordId> users) const
    {
        QSet<RecordId> found(users.begin(), users.end());
        while (!users.empty()) {
            const auto [from, to] = m_needs.equal_range(std::exchange(users.back(), noRecord));
            users.pop_back();
            for (auto need = from; need != to; ++need) {
                if (!found.contains(*need)) {
                    found.insert(*need);
                    users.push_back(*need);
                }
            }
        }
        return found;
    }

private:
    void addBlock(const Block &block)
    {
        m_byName.insert(block.name.toCaseFolded(), block.record);
        m_byHandle.insert(m_drawing.handle(block.record).value, block.record);
        if (isValid(block.tableEntry)) {
            m_byHandle.insert(m_drawing.handle(block.tableEntry).value, block.record);
            m_definitionOfEntry.insert(block.tableEntry, block.record);
        }
    }

    /// The definition that a record is a part of; noRecord for the layouts, whose contents count by themselves.
    RecordId userOf(RecordId id) const
    {
        if (const auto entry = m_definitionOfEntry.find(id); entry != m_definitionOfEntry.end())
            return *entry;
        while (isValid(id) && m_drawing.kind(id) != RecordKind::Block)
            id = m_drawing.parent(id);
        return isValid(id) && !m_drawing.blocks().read(id).isLayout() ? id : noRecord;
    }

    /// Whether a text of this record under this code is a block's name.
    bool mayName(RecordId id, int code) const
    {
        switch (m_drawing.kind(id)) {
        case RecordKind::Entity:
            return code == 2 && !m_drawing.isType(id, "ATTDEF");
        case RecordKind::TableEntry: // the arrows of early versions' dimension styles
            return code >= 5 && code <= 7 && m_drawing.isType(id, "DIMSTYLE");
        case RecordKind::Variable:
            return m_drawing.typeName(id).startsWith("$DIM");
        default:
            return false;
        }
    }

    void addNeedsOf(RecordId id)
    {
        const Handle owner = m_drawing.owner(id);
        for (const Field &field : m_drawing.fields(id)) {
            RecordId needed = noRecord;
            const auto *handle = std::get_if<Handle>(&field.value);
            if (handle && field.code != 5 && field.code != 105 && !(field.code == 330 && *handle == owner))
                needed = m_byHandle.value(handle->value, noRecord);
            if (!isValid(needed) && mayName(id, field.code))
                needed = m_byName.value((handle ? handle->toString() : field.text()).toCaseFolded(), noRecord);
            if (isValid(needed))
                addNeed(userOf(id), needed);
        }
    }

    void addNeed(RecordId user, RecordId needed)
    {
        if (user != needed && !m_needs.contains(user, needed))
            m_needs.insert(user, needed);
    }

    const Drawing &m_drawing;
    QHash<QString, RecordId> m_byName;
    QHash<quint64, RecordId> m_byHandle;
    QHash<RecordId, RecordId> m_definitionOfEntry;
    QMultiHash<RecordId, RecordId> m_needs;
};

} // namespace

std::vector<RecordId> unusedBlocks(const Drawing &drawing, const std::function<bool(const QString &)> &isWanted)
{
    std::vector<RecordId> wanted;
    std::vector<RecordId> staying = {noRecord};
    for (const RecordId id : drawing.blocks().all()) {
        const Block block = drawing.blocks().read(id);
        const bool mayGo = !block.isLayout() && !block.isExternal() && !(block.flags & dependentFlag);
        (mayGo && isWanted(block.name) ? wanted : staying).push_back(id);
    }
    const QSet<RecordId> needed = BlockNeeds(drawing).neededBy(std::move(staying));
    std::erase_if(wanted, [&needed](RecordId id) { return needed.contains(id); });
    return wanted;
}

} // namespace host::drawing
