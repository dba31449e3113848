#pragma once

#include "host/drawing/math/Curves.h"

namespace host::kernel {

/// The curve that control points alone draw; a closed one joins smoothly. The degree is lowered to fit few points; two
/// at least, three for a closed one.
drawing::Spline splineOver(std::vector<drawing::Vec3> controlPoints, int degree, bool isClosed);

} // namespace host::kernel
