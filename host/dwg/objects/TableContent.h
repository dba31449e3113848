#pragma once

#include "host/dwg/objects/Fields.h"

namespace host::dwg {

/// The columns, rows and cells of a table with what is in them and how it looks: an object of its own, and from R2010
/// on a part of the table as well.
void readTableContent(Fields &fields);

} // namespace host::dwg
