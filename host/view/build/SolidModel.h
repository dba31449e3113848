#pragma once

#include "host/drawing/math/WorkBudget.h"
#include "host/drawing/tags/TagList.h"
#include "host/view/display/Display.h"

#include <vector>

namespace host::view {

/// The edges of a solid, region or surface.
struct SolidEdges
{
    std::vector<Curve> curves{};
    bool isWhole = true; ///< nothing is left out: no edge of another kind than lines and ellipses, no bent face
};

/// Reads the model that a record keeps as text in its groups 1 and 3, as versions up to R2010 do; records of other
/// versions have none here. What the text leaves open or refers to in vain is left out. Costs by its length.
SolidEdges readSolidEdges(const drawing::TagList &tags);

} // namespace host::view
