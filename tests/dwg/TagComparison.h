#pragma once

#include "tests/dwg/PairComparison.h"

namespace host::dwg::test {

/// Whether the group code's value is a handle.
bool isReference(int code);

/// Adds the groups that two records do not have in common to the difference, and what they are; nothing where the
/// records are equal. References are compared as they stand. Numbers are the same to the last digit that the other
/// program writes, none of which stands for less than `lastDigit`; binary data, however it is cut into tags.
void compareTags(const std::vector<TextTag> &read, const std::vector<TextTag> &expected, Difference &difference,
                 double lastDigit = 1e-16);

} // namespace host::dwg::test
