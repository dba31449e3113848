#pragma once

#include "tests/dwg/making/ObjectWriter.h"

namespace host::dwg::test {

/// What every release of MTEXT has in front of its background: text of height 0.5 in a frame 7 wide, of which it takes
/// up `height` and `width`.
void writeParagraphs(ObjectWriter &o, Point place, double height, double width, std::string_view text);

} // namespace host::dwg::test
