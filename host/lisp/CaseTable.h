#pragma once

#include <array>
#include <cstdint>
#include <span>

namespace host::lisp {

/// Characters that become others the same distance away: all from `first` to `last`, or every other one.
struct CaseRun
{
    char32_t first;
    char32_t last;
    char32_t step;
    std::int32_t distance;
};

/// A character that becomes several; unused places are 0.
struct CaseExpansion
{
    char32_t character;
    std::array<char32_t, 3> mapped;
};

/// What becomes of the characters beyond ASCII in one direction, sorted by character.
struct CaseTable
{
    std::span<const CaseRun> runs;
    std::span<const CaseExpansion> expansions;

    /// The one character that `character` becomes; itself where that is none or several.
    char32_t single(char32_t character) const noexcept;
    /// What it becomes when that is several characters; null otherwise.
    const CaseExpansion *several(char32_t character) const noexcept;
};

extern const CaseTable upperTable;
extern const CaseTable lowerTable;

} // namespace host::lisp
