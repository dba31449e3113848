#pragma once

#include "host/dwg/drawing/DrawingObjects.h"

#include <map>

namespace host::dwg {

/// Reads the names of what other objects refer to by name, the entries of tables, into `names`, which `fields` looks
/// names up in. One run over all objects, which takes none of them.
void readNames(const DrawingObjects &objects, Fields &fields, Names &names);

/// The handles in a dictionary by their names; none where it is no dictionary. `fields` are read anew.
using DictionaryEntries = std::map<std::string, std::uint64_t, std::less<>>;
DictionaryEntries readEntries(const DrawingObjects &objects, std::uint64_t dictionary, Fields &fields);

/// Files have the names of anonymous blocks and of the spaces of layouts without the numbers that tell them apart.
/// `entries` are those of the table of blocks, in its order.
void numberBlocks(const std::vector<std::uint64_t> &entries, const ObjectHead::Spaces &spaces, Names &names);

} // namespace host::dwg
