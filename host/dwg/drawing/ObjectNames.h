#pragma once

#include "host/dwg/drawing/DrawingObjects.h"

namespace host::dwg {

/// Reads the names of what other objects refer to by name, the entries of tables, into `names`, which `fields` looks
/// names up in. One run over all objects, which takes none of them.
void readNames(const DrawingObjects &objects, Fields &fields, Names &names);

/// Files have the names of anonymous blocks and of the spaces of layouts without the numbers that tell them apart.
/// `entries` are those of the table of blocks, in its order.
void numberBlocks(const std::vector<std::uint64_t> &entries, const ObjectHead::Spaces &spaces, Names &names);

} // namespace host::dwg
