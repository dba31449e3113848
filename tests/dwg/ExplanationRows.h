#pragma once

#include "tests/dwg/PairComparison.h"

#include <initializer_list>
#include <span>

namespace host::dwg::test {

/// What differs between the two files of a pair without being in the DWG file. In `pair` and `record` a `*` stands for
/// anything, a `?` for one character.
struct Explanation
{
    std::string_view pair;
    Difference::Kind kind;
    std::string_view record;
    std::initializer_list<int> groups; ///< of Different; empty for all
    std::string_view why;
};

/// The rows for all pairs and for those of R9 to R2004.
std::span<const Explanation> earlierExplanations();
/// The rows for pairs of R2007 and later.
std::span<const Explanation> laterExplanations();

// Reasons that both have.
constexpr std::string_view savedAgain = "the drawing was saved again for the text form";
constexpr std::string_view unsetBytes = "graphics have bytes that are never set, and others at each saving";

} // namespace host::dwg::test
