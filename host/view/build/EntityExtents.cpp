#include "host/view/build/EntityExtents.h"

#include "host/drawing/geometry/EntityGeometry.h"
#include "host/drawing/records/Blocks.h"
#include "host/view/build/DisplayBuilder.h"
#include "host/view/build/HatchBoundary.h"
#include "host/view/display/DisplayBoxes.h"

namespace host::view {

namespace {

Matrix axesAlone(const Matrix &map)
{
    return {map.xAxis, map.yAxis, map.zAxis, {}};
}

void addHatch(const drawing::TagList &tags, const Matrix &map, drawing::WorkBudget &work, Box &box)
{
    HatchData hatch = readHatch(tags, work);
    if (!isUsable(hatch.extrusion))
        return;
    applyIslands(hatch);
    const Matrix placement = map * Matrix::fromExtrusion(hatch.extrusion);
    std::ranges::for_each(hatch.loops, [&](const Curve &loop) { addCurveBox(loop, placement, box); });
}

} // namespace

EntityExtents::EntityExtents(drawing::Drawing &drawing, drawing::MacroSurroundings surroundings)
    : m_drawing(drawing), m_scene(drawing, std::move(surroundings))
{
    m_drawing.addObserver(this);
}

EntityExtents::~EntityExtents()
{
    m_drawing.removeObserver(this);
}

Box EntityExtents::of(RecordId entity)
{
    Box box;
    if (!m_drawing.isAlive(entity))
        return box;
    // What a viewport looks at ends at its frame, and is not worth building.
    if (m_drawing.isType(entity, "VIEWPORT"))
        return drawing::entityBox(m_drawing, entity);
    if (m_drawing.isType(entity, "HATCH")) {
        addHatch(m_drawing.tags(entity), {}, m_work, box);
        return box;
    }
    const RecordDisplay display = m_scene.buildAlone(entity);
    if (display.isSkipped)
        return drawing::entityBox(m_drawing, entity);
    add(display, {}, box);
    return box;
}

void EntityExtents::add(const RecordDisplay &display, const Matrix &map, Box &box)
{
    if (m_drawing.isType(display.record, "HATCH") && !display.isHidden)
        return addHatch(m_drawing.tags(display.record), map, m_work, box);
    for (const DisplayItem &item : display.items) {
        if (const auto *reference = std::get_if<std::unique_ptr<Reference>>(&item.shape))
            box.add(ofReference(**reference, map));
        else
            addItemBox(item, map, m_scene.fonts(), box);
    }
    m_work.charge(static_cast<std::int64_t>(display.items.size()));
}

Box EntityExtents::ofReference(const Reference &reference, const Matrix &map)
{
    const Matrix placement = map * reference.placement;
    Box first = ofBlock(reference.block, placement);
    if (!reference.clip.empty())
        first = clippedBox(first, reference.clip, placement);
    for (const DisplayItem &item : reference.beside)
        addItemBox(item, map, m_scene.fonts(), first);
    return arrayBox(reference, map, first);
}

Box EntityExtents::ofBlock(int block, const Matrix &map)
{
    if (std::ranges::find(m_open, block) != m_open.end())
        return {};
    const Vec3 &x = map.xAxis;
    const Vec3 &y = map.yAxis;
    const Vec3 &z = map.zAxis;
    const std::pair key(block, Axes{x.x, x.y, x.z, y.x, y.y, y.z, z.x, z.y, z.z});
    if (!std::ranges::all_of(key.second, [](double part) { return std::isfinite(part); }))
        return {};
    if (const auto known = m_known.find(key); known != m_known.end())
        return movedBox(known->second, map.origin);
    // Of other drawings the boxes of their records are enough.
    const bool isExternal = m_scene.display(block).external != nullptr;
    if (isExternal || m_work.left() <= 0 || m_open.size() >= drawing::deepestNesting)
        return mappedBox(m_scene.display(block).box, map);
    m_work.charge(1);
    m_open.push_back(block);
    Box box;
    const BlockDisplay &shown = m_scene.display(block);
    for (const RecordSummary &record : shown.records) {
        RecordDisplay made;
        add(m_scene.shown(shown, record, made), axesAlone(map), box);
    }
    m_open.pop_back();
    m_known.emplace(key, box);
    return movedBox(box, map.origin);
}

void EntityExtents::recordChanged(RecordId record, drawing::RecordChange, drawing::ChangeCause)
{
    if (m_drawing.section(record) == drawing::Section::Entities)
        return;
    m_known.clear();
    m_work = drawing::WorkBudget(drawing::measureWork);
}

} // namespace host::view
