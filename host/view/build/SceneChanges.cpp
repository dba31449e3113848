// How a scene follows the changes of its drawing.

#include "host/drawing/records/Blocks.h"
#include "host/view/build/Scene.h"

namespace host::view {

using drawing::RecordChange;
using drawing::RecordKind;
using drawing::Space;

namespace {

bool isEntityKind(RecordKind kind)
{
    return kind == RecordKind::Entity || kind == RecordKind::Child || kind == RecordKind::EndChildren;
}

/// The entity that a VERTEX, ATTRIB or SEQEND is a part of.
RecordId wholeEntity(const drawing::Drawing &drawing, RecordId record)
{
    while (isValid(record) && drawing.kind(record) != RecordKind::Entity)
        record = drawing.parent(record);
    return record;
}

} // namespace

void Scene::recordChanged(RecordId record, RecordChange change, drawing::ChangeCause)
{
    const RecordKind kind = m_drawing.kind(record);
    const QByteArrayView type = m_drawing.typeName(record);
    if (isEntityKind(kind)) {
        markEntity(record, change);
    } else if (kind == RecordKind::Block || kind == RecordKind::EndBlock) {
        m_changes.order = true;
    } else if (kind == RecordKind::TableEntry) {
        m_changes.tables |= type == "LAYER" || type == "LTYPE";
        m_changes.everything |= type == "STYLE" || type == "DIMSTYLE";
    } else if (kind == RecordKind::Variable || type == "WIPEOUTVARIABLES" || type == "RASTERVARIABLES") {
        m_changes.tables = true;
    } else if (type == "SORTENTSTABLE") {
        m_sortHandles.reset();
        m_changes.order = true;
    } else if (type == "SPATIAL_FILTER" || type == "IMAGEDEF") {
        m_changes.everything = true;
    }
}

void Scene::markEntity(RecordId record, RecordChange change)
{
    const RecordId entity = wholeEntity(m_drawing, record);
    if (!isValid(entity))
        return;
    m_changes.records.insert(entity);
    if (change == RecordChange::Appeared && entity == record)
        m_changes.appeared.insert(entity);
    m_changes.order |= change == RecordChange::Modified && hasChangedSpace(entity);
}

/// Only its group 67 tells which space an entity is in, and that may change like any other group.
bool Scene::hasChangedSpace(RecordId entity) const
{
    if (m_drawing.section(entity) != drawing::Section::Entities)
        return false;
    const auto index = static_cast<std::size_t>(entity);
    const int space = m_drawing.entities().space(entity) == Space::Model ? modelSpace : paperSpace;
    return index < m_spaces.size() && m_spaces[index] != 0 && m_spaces[index] != 1 + space;
}

void Scene::applyChanges()
{
    if (!m_changes.any())
        return;
    if (m_changes.tables || m_changes.everything) {
        m_shapes.forget();
        m_appearance.reload(m_drawing, m_fonts, m_shapes);
    }
    if (m_changes.everything)
        forgetEverything();
    if (!m_changes.order && !m_changes.everything)
        rebuildChanged();
    if (m_changes.order || m_changes.everything)
        rebuildMembers();
    m_changes = {};
    buildWaiting();
}

void Scene::forgetEverything()
{
    for (const auto &block : m_blocks) {
        std::ranges::for_each(block->records, [this](const RecordDisplay &left) { forget(left); });
        block->records.clear();
    }
}

void Scene::rebuildMembers()
{
    for (std::size_t i = 0; i < m_blocks.size(); ++i) {
        if (m_blocks[i]->isBuilt)
            build(*m_blocks[i]);
    }
}

/// The usual case: some records changed or went, some were added at the end. Anything else is left to rebuildMembers().
void Scene::rebuildChanged()
{
    for (std::size_t i = 0; i < m_blocks.size() && !m_changes.records.empty(); ++i)
        rebuildChanged(*m_blocks[i]);
    std::erase_if(m_changes.appeared, [this](RecordId record) { return !m_drawing.isAlive(record); });
    while (!m_changes.appeared.empty() && !m_changes.order)
        appendRun(*std::ranges::min_element(m_changes.appeared));
}

void Scene::rebuildChanged(BlockDisplay &block)
{
    bool hasGone = false;
    for (RecordDisplay &record : block.records) {
        if (!m_changes.records.contains(record.record))
            continue;
        forget(record);
        m_changes.appeared.erase(record.record);
        m_boxesStale = true;
        if (m_drawing.isAlive(record.record)) {
            record = buildRecord(record.record);
        } else {
            record.record = noRecord;
            hasGone = true;
        }
    }
    if (hasGone)
        std::erase_if(block.records, [](const RecordDisplay &record) { return !isValid(record.record); });
}

/// Takes `first` and what stands behind it, all of which must be new; otherwise the order has to be looked up.
void Scene::appendRun(RecordId first)
{
    for (RecordId record = first; isValid(record); record = m_drawing.nextSibling(record)) {
        if (m_changes.appeared.erase(record) == 0 || !m_sortHandles || !m_sortHandles->isEmpty()) {
            m_changes.order = true;
            return;
        }
        BlockDisplay *block = ownerOf(record);
        if (!block || !block->isBuilt)
            continue;
        block->records.push_back(buildRecord(record));
        rememberSpace(record, *block);
        m_boxesStale = true;
    }
}

BlockDisplay *Scene::ownerOf(RecordId entity)
{
    const RecordId parent = m_drawing.parent(entity);
    if (m_drawing.kind(parent) == RecordKind::Block)
        return m_blocks[static_cast<std::size_t>(block(m_drawing.blocks().name(parent)))].get();
    const bool isModel = m_drawing.entities().space(entity) == Space::Model;
    return m_blocks[static_cast<std::size_t>(isModel ? modelSpace : paperSpace)].get();
}

void Scene::rememberSpace(RecordId record, const BlockDisplay &block)
{
    if (block.number > paperSpace)
        return;
    const auto index = static_cast<std::size_t>(record);
    if (m_spaces.size() <= index)
        m_spaces.resize(std::max<std::size_t>(index + 1, m_drawing.idLimit()));
    m_spaces[index] = static_cast<qint8>(1 + block.number);
}

} // namespace host::view
