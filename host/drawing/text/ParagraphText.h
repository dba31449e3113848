#pragma once

#include "host/drawing/tags/TagList.h"

namespace host::drawing {

// An MTEXT by its own groups.

/// The formatted text; long ones are in pieces.
QString paragraphContent(const TagList &paragraph);

/// The direction along the lines, in world coordinates: a vector (group 11) or an angle within the paragraph's plane
/// (group 50), whichever is written last; the world's own x when neither is there.
Vec3 paragraphDirection(const TagList &paragraph);
Vec3 paragraphDirection(const FieldList &paragraph);

/// The angle of that direction within the plane that `extrusion` is normal to, in radians.
double angleInPlane(const Vec3 &direction, const Vec3 &extrusion);

} // namespace host::drawing
