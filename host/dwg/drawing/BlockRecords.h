#pragma once

#include "host/dwg/drawing/Sections.h"

namespace host::dwg {

// The entries of the table of blocks, which are there whatever the table says and can be read of them.

/// Adds the two spaces in front where they are missing, and the blocks of layouts behind the others.
void addSpaces(const DrawingParts &parts, std::vector<std::uint64_t> &blocks);
/// Gives the blocks the names that others refer to them by; `entries` are those of the table. Blocks whose record is
/// lost have the name of their BLOCK.
void nameBlocks(DrawingParts &parts, std::vector<std::uint64_t> entries);
/// Whether a block that cannot be read gets one that stands for it: where it has a name, as those of spaces and layouts
/// have anyway.
bool hasBlockStandIn(DrawingParts &parts, std::uint64_t handle);
/// Writes the block or what stands for it, and keeps it for the sections behind.
void writeBlockRecord(DrawingParts &parts, std::uint64_t handle);

} // namespace host::dwg
