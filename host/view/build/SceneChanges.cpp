// How a scene follows the changes of its drawing.

#include "host/drawing/records/Blocks.h"
#include "host/view/build/Scene.h"

#include <array>

namespace host::view {

using drawing::RecordChange;
using drawing::RecordKind;
using drawing::Space;

namespace {

bool isEntityKind(RecordKind kind)
{
    return kind == RecordKind::Entity || kind == RecordKind::Child || kind == RecordKind::EndChildren;
}

/// Variables that nearly every change of the drawing sets and nothing is drawn by.
bool isBookkeeping(QByteArrayView variable)
{
    constexpr std::array names = {"$HANDSEED", "$TDUPDATE", "$TDUUPDATE", "$TDINDWG",   "$TDUSRTIMER",
                                  "$CLAYER",   "$CECOLOR",  "$CELTYPE",   "$CELWEIGHT", "$CELTSCALE"};
    return std::ranges::find(names, variable) != names.end();
}

/// Objects that say how annotative entities show: variables (the scale in use), scales and representations.
bool isOfAnnotationScales(QByteArrayView type)
{
    return type == "DICTIONARYVAR" || type == "SCALE" || type.endsWith("OBJECTCONTEXTDATA_CLASS");
}

/// Whether the box around `all` may depend on this one. In a drawing without heights its other sides tell.
bool isAtEdge(const Box &box, const Box &all)
{
    const bool hasHeights = all.low.z < all.high.z;
    return !box.isEmpty() && (box.low.x <= all.low.x || box.low.y <= all.low.y || box.high.x >= all.high.x ||
                              box.high.y >= all.high.y || box.low.z < all.low.z || box.high.z > all.high.z ||
                              (hasHeights && (box.low.z == all.low.z || box.high.z == all.high.z)));
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
    } else if (kind == RecordKind::Variable) {
        m_changes.tables |= !isBookkeeping(type);
        m_changes.everything |= type == "$CANNOSCALE" || type == "$ANNOALLVISIBLE";
    } else if (type == "WIPEOUTVARIABLES" || type == "RASTERVARIABLES") {
        m_changes.tables = true;
    } else if (type == "SORTENTSTABLE") {
        m_sortHandles.reset();
        m_changes.order = true;
    } else if (type == "SPATIAL_FILTER" || type == "IMAGEDEF" || isOfAnnotationScales(type)) {
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

/// Those of the drawings within are added again.
void Scene::reloadStyles()
{
    m_shapes.forget();
    m_appearance.reload(m_drawing, *m_fonts, m_shapes);
    for (const auto &block : m_blocks) {
        if (block->external && block->external->scene)
            block->external->scene->reloadStyles();
    }
}

/// Whether blocks stand for other files than they did.
bool Scene::hasChangedExternals() const
{
    return std::ranges::any_of(m_blocks, [this](const auto &block) {
        const auto definition = block->external ? m_drawing.blocks().get(block->name) : std::nullopt;
        return block->external && (!definition || !standsFor(*block->external, *definition));
    });
}

void Scene::applyChanges()
{
    if (!m_changes.any())
        return;
    m_changes.everything |= m_changes.order && hasChangedExternals();
    if (m_changes.tables || m_changes.everything) {
        reloadStyles();
        m_isDamagedEverywhere = true;
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
        std::ranges::for_each(block->records, [this](RecordSummary &left) { forget(left); });
        block->records.clear();
        block->references.clear();
        block->index.clear();
    }
    m_annotationView.reset();
    m_kept.clear();
    m_freeKept.clear();
    m_styles.clear();
}

void Scene::rebuildMembers()
{
    for (std::size_t i = 0; i < m_blocks.size(); ++i) {
        if (m_blocks[i]->isBuilt)
            build(*m_blocks[i]);
    }
}

/// The usual case: some records changed, went or came back, some were added at the end. Anything else is left to
/// rebuildMembers().
void Scene::rebuildChanged()
{
    std::vector<RecordId> changed(m_changes.records.begin(), m_changes.records.end());
    std::ranges::sort(changed);
    for (const RecordId record : changed) {
        BlockDisplay *block = ownerOf(record);
        const auto place = block && block->isBuilt ? placeIn(*block, record) : std::nullopt;
        if (!place)
            continue;
        const bool returns = block->records[*place].isGone && m_drawing.isAlive(record);
        if (returns && !isInItsPlace(*block, *place))
            m_changes.order = true;
        m_changes.appeared.erase(record);
        rebuildChanged(*block, *place);
    }
    std::erase_if(m_changes.appeared, [this](RecordId record) { return !m_drawing.isAlive(record); });
    while (!m_changes.appeared.empty() && !m_changes.order)
        appendRun(*std::ranges::min_element(m_changes.appeared));
}

void Scene::rebuildChanged(BlockDisplay &block, std::uint32_t place)
{
    RecordSummary &record = block.records[place];
    forget(record);
    if (m_drawing.isAlive(record.record))
        replace(block, place, buildSummary(record.record));
    else
        replace(block, place, {.record = record.record, .isEmpty = true, .isGone = true});
}

/// Puts a new summary where an old one, of which nothing is kept any more, was.
void Scene::replace(BlockDisplay &block, std::uint32_t place, RecordSummary summary)
{
    RecordSummary &record = block.records[place];
    const bool hadReferences = record.hasReferences;
    // While the block's box is the same, what shows the block needs no other one either.
    const bool isSameBox = !hadReferences && !summary.hasReferences && !record.isEndless && !summary.isEndless &&
                           record.box.low == summary.box.low && record.box.high == summary.box.high;
    if (!hadReferences)
        block.isPlainStale |= !isSameBox && (record.isEndless || isAtEdge(record.box, block.plainBox));
    if (!summary.hasReferences) {
        m_boxesStale |= !isSameBox && (summary.isEndless || isAtEdge(summary.box, block.plainBox));
        block.plainBox.add(summary.box);
        block.isPlainEndless |= summary.isEndless;
    }
    damage(block, record);
    damage(block, summary);
    summary.isLoose = record.isLoose;
    record = summary;
    if (!isSameBox)
        block.index.touch(block.records, place);
    if (summary.hasReferences) {
        const auto at = std::ranges::lower_bound(block.references, place);
        if (at == block.references.end() || *at != place)
            block.references.insert(at, place);
    }
    m_boxesStale |= block.isPlainStale || hadReferences || summary.hasReferences;
}

/// Whether a record that comes back stands where its neighbours in the drawing say.
bool Scene::isInItsPlace(const BlockDisplay &block, std::uint32_t place) const
{
    if (!m_sortHandles || !m_sortHandles->isEmpty())
        return false;
    std::size_t next = place + 1;
    while (next < block.records.size() && !m_drawing.isAlive(block.records[next].record))
        ++next;
    RecordId follower = m_drawing.nextSibling(block.records[place].record);
    // Entities of the other space may stand between.
    while (isValid(follower) && !placeIn(block, follower) && !m_changes.appeared.contains(follower))
        follower = m_drawing.nextSibling(follower);
    return next < block.records.size() ? follower == block.records[next].record : !isValid(follower);
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
        block->records.push_back({.record = record, .isEmpty = true});
        rememberPlace(record, *block, block->records.size() - 1);
        replace(*block, static_cast<std::uint32_t>(block->records.size() - 1), buildSummary(record));
    }
}

std::optional<std::uint32_t> Scene::placeIn(const BlockDisplay &block, RecordId record) const
{
    const auto index = static_cast<std::size_t>(record);
    if (index >= m_places.size() || m_places[index] >= block.records.size())
        return std::nullopt;
    const std::uint32_t place = m_places[index];
    return block.records[place].record == record ? std::optional(place) : std::nullopt;
}

BlockDisplay *Scene::ownerOf(RecordId entity)
{
    const RecordId parent = m_drawing.parent(entity);
    if (m_drawing.kind(parent) == RecordKind::Block)
        return m_blocks[static_cast<std::size_t>(block(m_drawing.blocks().name(parent)))].get();
    const bool isModel = m_drawing.entities().space(entity) == Space::Model;
    return m_blocks[static_cast<std::size_t>(isModel ? modelSpace : paperSpace)].get();
}

void Scene::rememberPlace(RecordId record, const BlockDisplay &block, std::size_t place)
{
    const auto index = static_cast<std::size_t>(record);
    if (m_places.size() <= index) {
        m_places.resize(std::max<std::size_t>(index + 1, m_drawing.idLimit()));
        m_spaces.resize(m_places.size());
    }
    m_places[index] = static_cast<std::uint32_t>(place);
    if (block.number <= paperSpace)
        m_spaces[index] = static_cast<qint8>(1 + block.number);
}

} // namespace host::view
