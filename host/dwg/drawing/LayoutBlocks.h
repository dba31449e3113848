#pragma once

#include "host/dwg/drawing/DrawingObjects.h"

#include <map>

namespace host::dwg {

/// A layout as its dictionary has it.
struct NamedLayout
{
    std::uint64_t handle = 0;
    std::uint64_t dictionary = 0; ///< which need not be there
    std::string name;
};

/// Layouts by the blocks that they show, which need not be there either.
using LayoutBlocks = std::map<std::uint64_t, NamedLayout>;

/// Finds the layouts in a run over the types of all objects. Those that programs could not open a drawing with are
/// lost: that cannot be read to the end, or whose block is none, something else, or that of another layout. They are
/// told, and dictionaries leave them out (`Fields::leftOut()`). `fields` are read anew.
LayoutBlocks findLayoutBlocks(DrawingObjects &objects, Fields &fields);

} // namespace host::dwg
