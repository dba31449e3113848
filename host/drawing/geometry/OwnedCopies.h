#pragma once

#include "host/drawing/records/Drawing.h"

namespace host::drawing {

/// Gives the copy of an entity in the same drawing copies of the objects that the entity and its parts own, with new
/// handles and references to each other; what refers to others refers to those still. What ties a dimension to its
/// objects and the representations by annotation scale are left out. Costs a pass over the tags of these records.
void copyOwnedObjects(Drawing &drawing, RecordId original, RecordId copy);

} // namespace host::drawing
