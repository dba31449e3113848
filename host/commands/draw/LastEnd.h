#pragma once

#include "host/drawing/math/Vec.h"

#include <optional>

namespace host::kernel {

class CommandContext;

/// Where what was drawn last ends, in world coordinates.
struct LastEnd
{
    drawing::Vec3 point;
    drawing::Vec3 direction; ///< in which it arrives there; not of a certain length
    bool isRound = false;    ///< it arrives there on an arc
};

/// Of the last entity of the current space when it is a line, an arc or an open polyline; nothing otherwise. An arc
/// ends where it was begun in the file's sense when the last point is there. Looks at every entity.
std::optional<LastEnd> lastEnd(CommandContext &context);

} // namespace host::kernel
