#pragma once

#include "host/drawing/curves/EntityCurve.h"

namespace host::drawing {

/// A curve with ends as a spline, exactly: straight pieces of degree 1, round ones rational of degree 2, all brought to
/// the highest degree among them. Pieces without length are left out; not valid when none is left.
Spline exactSpline(const EntityCurve &curve);

/// Splines that follow each other as one, of the highest degree among them. Costs n log n of their control points.
Spline splineChain(const std::vector<Spline> &splines);

} // namespace host::drawing
