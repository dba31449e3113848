#pragma once

#include "host/drawing/math/Vec.h"
#include "host/kernel/input/Units.h"

namespace host::kernel {

/// What a typed point is read against.
struct PointContext
{
    UnitFormat units;
    drawing::Vec3 last;     ///< where "@" starts from; user coordinates
    double elevation = 0.0; ///< z of points typed with two coordinates
};

/// A typed point.
struct TypedPoint
{
    drawing::Vec3 point;
    bool isWorld = false; ///< typed with "*": world coordinates rather than user ones
};

/// Reads `x,y`, `x,y,z`, `distance<angle`, `distance<angle,z`, `distance<angle<angle`, each absolute or, behind "@",
/// relative to the last point; "@" alone is the last point. "#" in front changes nothing: it says what is so. Numbers
/// and angles are in the drawing's units. Nothing for other text.
std::optional<TypedPoint> parsePoint(const QString &text, const PointContext &context);

} // namespace host::kernel
