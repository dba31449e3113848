#pragma once

#include "host/drawing/records/Drawing.h"

#include <vector>

namespace host::view {
class Scene;
}

namespace host::kernel {

/// What an entity shows as entities that show the same, as Entities::create() takes them: lines, arcs, points, texts,
/// solids, filled areas and block references. For texts of several lines, hatches with a pattern, leaders, multilines,
/// tolerances and dimensions; empty for all else, and where there would be too much.
std::vector<drawing::FieldList> displayedParts(view::Scene &scene, drawing::RecordId entity);

} // namespace host::kernel
