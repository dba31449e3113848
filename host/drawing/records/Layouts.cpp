#include "host/drawing/records/Layouts.h"

#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/Entities.h"
#include "host/drawing/records/Tables.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

/// The handle of the table entry of the block that holds a layout's entities.
Handle blockEntryOf(const Drawing &drawing, RecordId layout)
{
    const TagList tags = drawing.tags(layout);
    const Tag *block = tags.find(330, "AcDbLayout");
    return block ? block->handle().value_or(Handle{}) : Handle{};
}

} // namespace

QString Layouts::paperName() const
{
    return known().paper.name;
}

RecordId Layouts::paperLayout() const
{
    return known().paper.record;
}

QString Layouts::ofBlock(RecordId block) const
{
    return known().byBlock.value(block).name;
}

QString Layouts::ofEntity(RecordId entity) const
{
    RecordId parent = m_drawing.parent(entity);
    while (isValid(parent) && m_drawing.kind(parent) == RecordKind::Entity)
        parent = m_drawing.parent(parent);
    if (isValid(parent) && m_drawing.kind(parent) == RecordKind::Block)
        return ofBlock(parent);
    return m_drawing.entities().space(entity) == Space::Paper ? paperName() : u"Model"_s;
}

RecordId Layouts::currentSheet() const
{
    return m_drawing.isAlive(m_sheet) && known().byBlock.contains(m_sheet) ? m_sheet : noRecord;
}

QString Layouts::currentName() const
{
    const RecordId sheet = currentSheet();
    return isValid(sheet) ? ofBlock(sheet) : paperName();
}

RecordId Layouts::currentLayout() const
{
    const RecordId sheet = currentSheet();
    return isValid(sheet) ? known().byBlock.value(sheet).record : paperLayout();
}

RecordId Layouts::currentViewport() const
{
    if (!isValid(m_viewport) || !m_drawing.isAlive(m_viewport))
        return noRecord;
    const RecordId parent = m_drawing.parent(m_viewport);
    const bool isResting = isValid(parent) && m_drawing.kind(parent) == RecordKind::Block;
    return (isResting ? parent : noRecord) == currentSheet() ? m_viewport : noRecord;
}

bool Layouts::setCurrentSheet(const QString &name)
{
    if (name.compare(paperName(), Qt::CaseInsensitive) == 0) {
        m_sheet = noRecord;
        return true;
    }
    const RecordId block = blockOf(name);
    m_sheet = isValid(block) ? block : m_sheet;
    return isValid(block);
}

RecordId Layouts::blockOf(const QString &name) const
{
    const Known &all = known();
    for (auto it = all.byBlock.cbegin(); it != all.byBlock.cend(); ++it)
        if (it->name.compare(name, Qt::CaseInsensitive) == 0 && name.compare(u"Model", Qt::CaseInsensitive) != 0)
            return it.key();
    return noRecord;
}

std::vector<RecordId> Layouts::blocks() const
{
    std::vector<RecordId> blocks = m_drawing.blocks().all();
    std::erase_if(blocks, [&](RecordId block) { return !m_drawing.blocks().read(block).isLayout(); });
    return blocks;
}

const Layouts::Known &Layouts::known() const
{
    const std::array<quint64, 3> revisions = {m_drawing.revision(Section::Objects),
                                              m_drawing.structureRevision(Section::Tables),
                                              m_drawing.structureRevision(Section::Blocks)};
    if (m_revisions != revisions) {
        m_known = read();
        m_revisions = revisions;
    }
    return m_known;
}

Layouts::Known Layouts::read() const
{
    QHash<quint64, RecordId> blocksByEntry;
    for (const RecordId block : blocks())
        if (const RecordId entry = m_drawing.blocks().read(block).tableEntry; isValid(entry))
            blocksByEntry.insert(m_drawing.handle(entry).value, block);
    Known known;
    const Dictionaries &dictionaries = m_drawing.dictionaries();
    const RecordId root = dictionaries.root();
    const RecordId layouts = isValid(root) ? dictionaries.find(root, u"ACAD_LAYOUT") : noRecord;
    for (const Dictionaries::Entry &entry :
         isValid(layouts) ? dictionaries.entries(layouts) : std::vector<Dictionaries::Entry>()) {
        const Handle blockEntry = isValid(entry.record) ? blockEntryOf(m_drawing, entry.record) : Handle{};
        if (const auto block = blocksByEntry.constFind(blockEntry.value); block != blocksByEntry.constEnd())
            known.byBlock.insert(*block, {entry.name, entry.record});
    }
    known.paper = known.byBlock.value(m_drawing.blocks().find(u"*Paper_Space"), {u"Layout1"_s, noRecord});
    return known;
}

} // namespace host::drawing
