#pragma once

#include "host/dwg/drawing/DrawingObjects.h"

namespace host::dwg {

/// Looks for the tables, the two spaces and the dictionary of named objects where the header is damaged: by their
/// types, by their names, and by having no owner. What the header tells stays where it is there, or where the map tells
/// of it too. What is not in the file keeps its handle where that names nothing else, for what stands for it, and gets
/// one from the first free one on otherwise. Costs nothing in drawings whose header is whole.
void findRoots(DrawingObjects &objects, const Names &names, Fields &fields, Header &header);

} // namespace host::dwg
