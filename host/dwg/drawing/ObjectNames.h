#pragma once

#include "host/dwg/drawing/DrawingObjects.h"

#include <algorithm>

namespace host::dwg {

/// Reads the names of what other objects refer to by name, the entries of tables, into `names`, which `fields` looks
/// names up in. One run over all objects, which takes none of them.
void readNames(const DrawingObjects &objects, Fields &fields, Names &names);

/// The names in a dictionary and what they name, in its order.
using DictionaryEntries = std::vector<std::pair<std::string, std::uint64_t>>;
/// None where it is no dictionary. `fields` are read anew.
DictionaryEntries readEntries(const DrawingObjects &objects, std::uint64_t dictionary, Fields &fields);

/// The first one with the name; the end when there is none.
inline auto findEntry(const DictionaryEntries &entries, std::string_view name)
{
    return std::ranges::find(entries, name, &DictionaryEntries::value_type::first);
}

/// Files have the names of anonymous blocks and of the spaces of layouts without the numbers that tell them apart.
/// `entries` are those of the table of blocks, in its order.
void numberBlocks(const std::vector<std::uint64_t> &entries, const ObjectHead::Spaces &spaces, Names &names);

} // namespace host::dwg
