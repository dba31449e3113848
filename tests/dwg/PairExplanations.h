#pragma once

#include "tests/dwg/PairComparison.h"

namespace host::dwg::test {

/// Why the pair's drawings differ there; empty where it is not known. Each group of the difference is explained.
std::string_view explanationOf(std::string_view pair, const Difference &difference);

/// The rows for this pair alone that explain none of its differences, a line each: they are to be taken away.
std::string idleExplanations(std::string_view pair, const std::vector<Difference> &differences);

} // namespace host::dwg::test
