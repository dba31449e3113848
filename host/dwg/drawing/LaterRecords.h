#pragma once

#include "host/dwg/drawing/DrawingObjects.h"

namespace host::dwg {

/// What later programs leave in files of R13 and R14 to find their own things again: names in mixed case, plot styles,
/// properties that these releases do not have. Programs take it in and do not write it to the text form. These are the
/// extension records with it, and the extension dictionaries that have nothing else. `fields` is used for reading.
std::unordered_set<std::uint64_t> findLaterRecords(const DrawingObjects &objects, Fields &fields);

} // namespace host::dwg
