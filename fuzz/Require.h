#pragma once

#include <cstdlib>

/// Ends the program, which a fuzzer takes for a fault, unless what must hold does.
inline void require(bool holds)
{
    if (!holds)
        std::abort();
}
