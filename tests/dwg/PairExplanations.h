#pragma once

#include "tests/dwg/PairComparison.h"

namespace host::dwg::test {

/// Why the pair's drawings differ there; empty where it is not known. Each group of the difference is explained.
std::string_view explanationOf(std::string_view pair, const Difference &difference);

} // namespace host::dwg::test
