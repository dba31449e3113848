#pragma once

#include "host/drawing/math/Vec.h"
#include "host/drawing/records/Record.h"

#include <vector>

namespace host::kernel {

/// One step of choosing: how, where, and what came in by it.
struct SelectionStep
{
    enum class Way
    {
        Other = 0, ///< all, last, previous, a program's own
        Pick = 1,
        Window = 2,
        Crossing = 3,
        Fence = 4
    };
    Way way = Way::Other;
    std::vector<drawing::Vec3> points; ///< world coordinates: where it was picked, or the corners of the shape
    std::vector<drawing::RecordId> entities;
    std::vector<drawing::RecordId> found{}; ///< of a shape: what it found, chosen before or not
};
using SelectionSteps = std::vector<SelectionStep>;

} // namespace host::kernel
