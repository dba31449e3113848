#pragma once

#include "host/drawing/comparing/RecordPairs.h"

namespace host::drawing {

/// Joins sections, header variables, classes, tables with their entries, and blocks that have the same name; where
/// records are matched by handle, then those of tables and blocks that have the same handle.
void pairNamed(RecordPairs &pairs);

/// Joins objects that dictionaries have under the same name, from the root on and from the extension dictionaries of
/// partners, each as far as it is free.
void pairDictionaries(RecordPairs &pairs);

} // namespace host::drawing
