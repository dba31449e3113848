#pragma once

#include "host/dwg/drawing/DrawingText.h"

namespace host::dwg {

/// readDrawing() for files of 2.5 to R12, whose first six bytes said so. Each byte of a record is read once, so that
/// jumps in rings end.
void readEarlyDrawing(Bytes bytes, DrawingText &result);

} // namespace host::dwg
