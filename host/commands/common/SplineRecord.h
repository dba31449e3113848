#pragma once

#include "host/drawing/math/Curves.h"
#include "host/drawing/tags/Tag.h"

namespace host::kernel {

/// The fields of a SPLINE: flags, plane, knots, control points and fit points, in the order of files. A closed one
/// without fit points counts as periodic.
drawing::FieldList splineRecord(const drawing::Spline &spline);

} // namespace host::kernel
