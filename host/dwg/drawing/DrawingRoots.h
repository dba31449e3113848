#pragma once

#include "host/dwg/drawing/DrawingObjects.h"

namespace host::dwg {

/// Looks for the tables, the two spaces and the dictionary of named objects where the header is damaged: by their
/// types, by their names, and by having no owner. What the header tells and is there stays. Costs nothing in drawings
/// whose header is whole.
void findRoots(DrawingObjects &objects, const Names &names, Fields &fields, Header &header);

} // namespace host::dwg
