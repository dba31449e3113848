#pragma once

#include <numbers>

namespace host::drawing {

/// Radians of a degree: `30.0 * radians`. Records hold degrees, but for the few that say so.
constexpr double radians = std::numbers::pi / 180.0;

/// Once round, in radians.
constexpr double wholeTurn = 2.0 * std::numbers::pi;

} // namespace host::drawing
