// How a scene takes a block apart.

#include "host/drawing/records/Blocks.h"
#include "host/view/build/RecordScan.h"
#include "host/view/build/Scene.h"
#include "host/view/display/DisplayBoxes.h"

namespace host::view {

using drawing::Space;

/// Building a block may name further blocks, which are then built as well.
void Scene::buildWaiting()
{
    while (!m_waiting.empty()) {
        const int next = m_waiting.back();
        m_waiting.pop_back();
        BlockDisplay &block = *m_blocks[static_cast<std::size_t>(next)];
        if (!block.isBuilt)
            build(block);
    }
}

/// In drawing order. Of the spaces all entities of both come, unless their order has to be worked out: which space they
/// are in is seen when they are looked at.
std::vector<RecordId> Scene::members(const BlockDisplay &block) const
{
    const drawing::Entities &entities = m_drawing.entities();
    if (block.number <= paperSpace) {
        if (m_sortHandles->isEmpty())
            return entities.all();
        return drawOrder(m_drawing, *m_sortHandles,
                         entities.inSpace(block.number == modelSpace ? Space::Model : Space::Paper));
    }
    const RecordId record = m_drawing.blocks().find(block.name);
    return isValid(record) ? drawOrder(m_drawing, *m_sortHandles, m_drawing.children(record)) : std::vector<RecordId>{};
}

RecordDisplay Scene::buildRecord(RecordId record)
{
    ++m_builtRecords;
    RecordDisplay built = buildDisplay(m_drawing, *this, m_work, record);
    for (const DisplayItem &item : built.items) {
        if (const auto *reference = std::get_if<std::unique_ptr<Reference>>(&item.shape))
            m_waiting.push_back((*reference)->block);
        else
            addItemBox(item, built.box);
    }
    return built;
}

RecordSummary Scene::buildSummary(RecordId record)
{
    if (makingOf(m_drawing.typeName(record)) == Making::Once)
        return keep(buildRecord(record));
    std::optional<RecordDisplay> built = buildFreely(m_drawing, *this, m_names, record, m_drawing.tags(record));
    if (!built)
        return keep(buildRecord(record));
    ++m_builtRecords;
    for (const DisplayItem &item : built->items)
        addItemBox(item, built->box);
    if (isLarge(*built))
        return keep(std::move(*built));
    RecordSummary summary = summaryOf(*built);
    if (summary.hasOneStyle)
        summary.look = m_styles.number(built->items.front().style);
    return summary;
}

/// What shows nothing need not be kept.
RecordSummary Scene::keep(RecordDisplay display)
{
    RecordSummary summary = summaryOf(display);
    if (display.items.empty() && display.work == 0)
        return summary;
    summary.isKept = true;
    if (m_freeKept.empty()) {
        m_freeKept.push_back(static_cast<std::uint32_t>(m_kept.size()));
        m_kept.emplace_back();
    }
    summary.look = m_freeKept.back();
    m_freeKept.pop_back();
    m_kept[summary.look] = std::make_unique<RecordDisplay>(std::move(display));
    return summary;
}

void Scene::forget(RecordSummary &record)
{
    if (!record.isKept)
        return;
    record.isKept = false;
    m_work.giveBack(m_kept[record.look]->work);
    m_kept[record.look].reset();
    m_freeKept.push_back(record.look);
}

const RecordDisplay &Scene::shown(const BlockDisplay &, const RecordSummary &record, RecordDisplay &made)
{
    if (record.isKept)
        return *m_kept[record.look];
    if (!record.isEmpty) {
        auto display = buildFreely(m_drawing, *this, m_names, record.record, m_drawing.tags(record.record));
        made = display ? std::move(*display) : RecordDisplay{};
    } else {
        made = {};
    }
    made.record = record.record;
    made.box = record.box;
    made.isSkipped = record.isSkipped;
    made.isHidden = record.isHidden;
    return made;
}

/// Keeps the displays of records that it still has and that did not change.
void Scene::build(BlockDisplay &block)
{
    if (!m_sortHandles)
        m_sortHandles = readSortHandles(m_drawing);
    if (const ExternalView *shown = external(block.number); shown && shown->scene)
        shown->scene->prepare(modelSpace);
    const std::vector<RecordId> now = members(block);
    std::vector<RecordSummary> old = std::move(block.records);
    std::vector<RecordSummary> records(now.size());
    block.records = {};
    const auto takeOver = [&](std::size_t i) {
        const auto index = static_cast<std::size_t>(now[i]);
        const std::size_t place = index < m_places.size() ? m_places[index] : old.size();
        if (place >= old.size() || old[place].record != now[i] || old[place].isGone ||
            m_changes.records.contains(now[i]))
            return false;
        records[i] = old[place];
        // It belongs to its new place from now on.
        old[place].isKept = false;
        return true;
    };
    std::optional<Space> space;
    if (block.number <= paperSpace)
        space = block.number == modelSpace ? Space::Model : Space::Paper;
    RecordScan scan(*this, m_appearance, space);
    const auto known = old.empty() ? std::function<bool(std::size_t)>() : takeOver;
    for (RecordScan::Left &left : scan.run(now, records, m_styles, m_threads, known))
        records[left.place] = left.display ? keep(std::move(*left.display)) : buildSummary(now[left.place]);
    m_builtRecords += scan.builtRecords();
    std::ranges::for_each(old, [this](RecordSummary &left) { forget(left); });
    std::erase_if(records, [](const RecordSummary &record) { return record.isElsewhere; });
    block.records = std::move(records);
    block.references.clear();
    block.index.clear();
    block.isPlainStale = true;
    block.isBuilt = true;
    m_boxesStale = true;
    m_isDamagedEverywhere = true;
    for (std::size_t i = 0; i < block.records.size(); ++i) {
        rememberPlace(block.records[i].record, block, i);
        if (block.records[i].hasReferences)
            block.references.push_back(static_cast<std::uint32_t>(i));
    }
}

} // namespace host::view
