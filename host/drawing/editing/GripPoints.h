#pragma once

#include "host/drawing/editing/StretchEntity.h"

#include <vector>

namespace host::drawing {

/// What moving a grip does to its entity.
enum class GripRole : quint8
{
    Vertex, ///< the point moves, what is tied to it follows
    Middle, ///< of a straight piece: both of its ends move
    Whole,  ///< the entity moves
    Shape   ///< another size or form, as the type has it: a radius, the height of an arc, a corner of a viewport
};

/// A point that an entity is changed by.
struct Grip
{
    Vec3 point; ///< world coordinates
    GripRole role = GripRole::Vertex;
    int index = 0;            ///< Shape: which of its type, see moveGrips(); Middle: of the piece
    Vec3 from{};              ///< Middle: the ends of the piece
    Vec3 to{};                ///< likewise
    RecordId part = noRecord; ///< the attribute that moves in place of the reference it belongs to
};

/// The grips of an entity: ends and middles of lines and arcs, vertices and middles of the pieces of polylines, centres
/// with quadrants or ends of axes, fit points of splines or their control points where there are none, corners, the
/// points of dimensions and leaders, and one point of what moves as a whole, such as texts, references (with their
/// attributes) and hatches. None of types that have no such point. Costs by the entity's points; `most` ends the list.
std::vector<Grip> gripsOf(const Drawing &drawing, RecordId entity, std::size_t most = 200'000);

/// Moves the grips of an entity that are hot, all by the same way in world coordinates: a hot Whole takes everything
/// along; circles get the radius and ellipses the axis that reaches to the new place, arcs and round pieces of
/// polylines run through it, elliptical arcs end in its direction; corners of viewports move their two sides. All else
/// is as stretchEntity() has it. The picture of a dimension is to be drawn anew; its text stays where a grip puts it.
StretchOutcome moveGrips(Drawing &drawing, RecordId entity, const IsCaught &isHot, const Vec3 &by);

} // namespace host::drawing
