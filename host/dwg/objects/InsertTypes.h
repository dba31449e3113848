#pragma once

#include "host/dwg/objects/Fields.h"

namespace host::dwg {

/// What inserts of blocks have, and tables, which are such ones: where the block stands, its name, attributes. The
/// block is the next of the references. `isArray`: with rows and columns.
void readInsertBody(Fields &fields, bool isArray);

} // namespace host::dwg
