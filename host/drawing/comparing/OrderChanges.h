#pragma once

#include <cstddef>
#include <vector>

namespace host::drawing {

/// The fewest places whose values must be taken out for the others to rise from each to the next, in order. Of several
/// such choices one, the same every time. The values differ from each other. n log n.
std::vector<size_t> outOfOrder(const std::vector<size_t> &values);

} // namespace host::drawing
