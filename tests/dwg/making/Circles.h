#pragma once

#include "tests/dwg/making/MadeFile.h"

namespace host::dwg::test {

/// A file with circles of radius 5 about (1, 2) in model space, for tests of those who open drawings: `whole` of them
/// from the handle 40 on, and behind them `damaged` ones that end before their values do and cannot be read.
FileBytes circlesFile(Release release, int whole, int damaged = 0);

} // namespace host::dwg::test
