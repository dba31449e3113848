#pragma once

#include "host/drawing/records/Tables.h"

namespace host::drawing {

/// Whether entries of a table have this group in files of a version: an older program takes a file with a group that
/// it does not know for damaged. True for groups nothing is known of.
bool hasCode(TableKind kind, int code, Version version);

} // namespace host::drawing
