#pragma once

#include <cstddef>

namespace host::dwg {

/// Room that writeReal() needs.
constexpr std::size_t mostOfAReal = 48;

/// Writes a number as drawings in text form have it, and returns where it ends: the fewest digits that give the same
/// number again, of those the nearest, with a point in any case. From 1e16 on and below 1e-4 with a power of ten behind
/// it. What is no number, or infinite, is 0.0. `to` has mostOfAReal bytes, all of which may be written over.
char *writeReal(double value, char *to);

} // namespace host::dwg
