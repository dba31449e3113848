#pragma once

#include "host/drawing/math/Matrix.h"
#include "host/drawing/records/Drawing.h"

#include <functional>

namespace host::drawing {

/// Whether a point, in world coordinates, moves along.
using IsCaught = std::function<bool(const Vec3 &point)>;

enum class StretchOutcome
{
    Nothing, ///< no point of it was caught
    Done,
    Refused ///< it cannot be changed like that
};

/// Moves the points of an entity that are caught: ends of lines and arcs, vertices, corners, control points, the points
/// of dimensions. An arc keeps its height over the chord, a spline runs through its fit points again, multilines cross
/// their vertices along new mitres, hatches follow where their boundary is of lines and polylines, and viewports of
/// sheets show more or less at the side that moves. What has one point (texts, circles, references ...) moves as
/// a whole when that is caught. The picture of a dimension is to be drawn anew (drawDimension()).
StretchOutcome stretchEntity(Drawing &drawing, RecordId entity, const IsCaught &isCaught, const Vec3 &by);

} // namespace host::drawing
