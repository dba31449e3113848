#pragma once

#include "host/view/Display.h"

namespace host::view {

/// Adds what one item covers, except for references: their blocks have to be asked.
void addItemBox(const DisplayItem &item, Box &box);

/// What a reference covers whose block covers `blockBox`: all cells, within its clip, with what stands beside them.
Box referenceBox(const Reference &reference, const Box &blockBox);

} // namespace host::view
