#pragma once

#include "host/drawing/records/Drawing.h"

#include <optional>
#include <vector>

namespace host::kernel {

class UserPlane;

/// A straight line or a circle that another circle is to touch, in user coordinates; and where it was picked.
struct TangentLine
{
    bool isStraight = true;
    drawing::Vec2 point;     ///< on the line, or the centre
    drawing::Vec2 direction; ///< of the line; length 1
    double radius = 0.0;     ///< of the circle
    double height = 0.0;
    drawing::Vec2 picked;
};

/// Of a LINE, CIRCLE or ARC that lies flat in the plane; nothing for others.
std::optional<TangentLine> tangentLine(const drawing::Drawing &drawing, drawing::RecordId entity,
                                       const UserPlane &plane, const drawing::Vec3 &pickedAt);

/// The centres of the circles with that radius that touch both, first those that do so nearest to where they were
/// picked. Of radius 0: where they meet.
std::vector<drawing::Vec2> tangentCentres(const TangentLine &first, const TangentLine &second, double radius);
/// The first of them; nothing when there is none.
std::optional<drawing::Vec2> tangentCentre(const TangentLine &first, const TangentLine &second, double radius);

/// Where a circle that touches the line does so.
drawing::Vec2 touchingPoint(const TangentLine &line, drawing::Vec2 centre, double radius);

} // namespace host::kernel
