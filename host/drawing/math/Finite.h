#pragma once

#include "host/drawing/math/Vec.h"

namespace host::drawing {

/// Whether each coordinate is a number that a file can hold: what a program works out may be none.
inline bool isFinite(const Vec3 &v)
{
    return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
}

} // namespace host::drawing
