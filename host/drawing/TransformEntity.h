#pragma once

#include "host/drawing/Drawing.h"
#include "host/drawing/Matrix.h"

namespace host::drawing {

/// Moves, turns, scales or mirrors an entity with its children. Unevenly scaled circles and arcs become ellipses where
/// the version has them. False when the type is not known or the map cannot be applied to it; it is then as it was.
bool transformEntity(Drawing &drawing, RecordId entity, const Matrix &matrix);

/// Adds a copy of an entity and its children behind the last of its container; noRecord when it cannot be copied.
RecordId copyEntity(Drawing &drawing, RecordId entity);

} // namespace host::drawing
