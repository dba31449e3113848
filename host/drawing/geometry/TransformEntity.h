#pragma once

#include "host/drawing/math/Matrix.h"
#include "host/drawing/records/Entities.h"

namespace host::drawing {

/// Moves, turns, scales or mirrors an entity with its children, a dimension with its picture. Texts stay readable when
/// mirrored. False when the type is not known, or when the map would make another type of it (an uneven scale of a
/// circle, a skewed block reference); it is then as it was.
bool transformEntity(Drawing &drawing, RecordId entity, const Matrix &matrix);

/// Adds a copy of an entity and its children as the last of its container, with copies of what they own: clips and the
/// other objects of extension dictionaries. Reactors stay with the original, and so do what ties a dimension to its
/// objects and the representations by annotation scale, which say places. noRecord when it cannot be copied.
RecordId copyEntity(Drawing &drawing, RecordId entity);
/// As copyEntity(), but into a space, wherever the entity stands.
RecordId copyEntityTo(Drawing &drawing, RecordId entity, Space space);
/// The same into a block or the sheet that rests in it.
RecordId copyEntityInto(Drawing &drawing, RecordId entity, RecordId block);

} // namespace host::drawing
