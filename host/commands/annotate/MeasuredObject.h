#pragma once

#include "host/drawing/math/Matrix.h"
#include "host/drawing/records/Drawing.h"
#include "host/kernel/running/CommandContext.h"

#include <optional>

namespace host::kernel {

/// A straight piece, an arc or a circle that is dimensioned, in world coordinates.
struct MeasuredObject
{
    drawing::Vec3 first{}; ///< its ends; an arc runs counter-clockwise from the first to the second
    drawing::Vec3 second{};
    drawing::Vec3 center{};
    double radius = 0.0; ///< 0: a straight piece
    bool isCircle = false;
    drawing::Matrix plane{}; ///< of an arc or a circle: its axes, from object coordinates to the world

    bool isStraight() const { return radius == 0.0; }
};

/// A LINE, ARC or CIRCLE, or the piece of an LWPOLYLINE or flat POLYLINE that is nearest to the point, as seen from
/// above. Nothing for others.
std::optional<MeasuredObject> measuredObject(const drawing::Drawing &drawing, drawing::RecordId entity,
                                             const drawing::Vec3 &pickedAt);

/// Whether an arc or circle can be shown in the user's plane as what it is; the command fails where it cannot.
bool isInUserPlane(CommandContext &context, const MeasuredObject &round);

} // namespace host::kernel
