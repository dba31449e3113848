#pragma once

#include <cstdint>

namespace host::dwg {

/// digits * 10^exponent
struct Decimal
{
    std::uint64_t digits = 0;
    int exponent = 0;
};

/// The shortest decimal number that `value`, which is above 0 and finite, is the nearest double of; of several the
/// nearest one. It has up to 17 digits, and may have zeros at its end. Takes some 20 nanoseconds.
Decimal shortestDecimal(double value);

} // namespace host::dwg
