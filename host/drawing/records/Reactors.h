#pragma once

#include "host/drawing/records/Drawing.h"

namespace host::drawing {

// Whom a record tells when it changes: handles in its group {ACAD_REACTORS.

/// Adds a handle where it is not there yet. Does nothing for the null handle, nor in drawings of versions without such
/// groups.
void addReactor(Drawing &drawing, RecordId record, Handle reactor);
/// Takes a handle out, and the group with the last one.
void removeReactor(Drawing &drawing, RecordId record, Handle reactor);

} // namespace host::drawing
