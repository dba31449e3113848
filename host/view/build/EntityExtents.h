#pragma once

#include "host/view/build/Scene.h"

#include <array>
#include <map>

namespace host::view {

/// Boxes of what single entities draw: of curves, letters and areas, through all blocks that they refer to. Exact,
/// however blocks are turned within one another, up to some nesting and some millions of shapes between two changes of
/// the drawing; what comes behind these counts with the boxes of its blocks.
///
/// Whether layers show it does not matter; what is invisible by itself is nothing. A hatch reaches as far as its
/// boundary, lines without end count for nothing, and entities that cannot be drawn count with the points known of
/// them. Must not outlive the drawing.
class EntityExtents final : public drawing::DrawingObserver
{
public:
    /// `surroundings` as for a Scene.
    explicit EntityExtents(drawing::Drawing &drawing, drawing::MacroSurroundings surroundings = {});
    ~EntityExtents() override;
    EntityExtents(const EntityExtents &) = delete;
    EntityExtents &operator=(const EntityExtents &) = delete;

    /// In the coordinates of the space or block that the entity stands in; empty for what is nothing. Builds the entity
    /// each time, while what was measured of blocks is kept until the drawing changes.
    Box of(RecordId entity);

    /// What it measures by, for those who want the shapes themselves.
    Scene &scene() { return m_scene; }

    void recordChanged(RecordId record, drawing::RecordChange change, drawing::ChangeCause cause) override;

private:
    /// The three axes of a map, one after the other: where a block stands does not change its size.
    using Axes = std::array<double, 9>;
    // `map` leads to the coordinates in which the box is wanted.
    void add(const RecordDisplay &display, const Matrix &map, Box &box);
    Box ofReference(const Reference &reference, const Matrix &map);
    Box ofBlock(int block, const Matrix &map);

    drawing::Drawing &m_drawing;
    Scene m_scene;
    std::map<std::pair<int, Axes>, Box> m_known; ///< of blocks, by the axes they are seen along
    std::vector<int> m_open;                     ///< blocks being measured: one that contains itself adds nothing
    drawing::WorkBudget m_work{drawing::measureWork};
};

} // namespace host::view
