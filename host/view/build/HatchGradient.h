#pragma once

#include "host/view/build/HatchBoundary.h"

namespace host::view {

/// The gradient of a hatch, laid over the box of its loops; null when it has none. `ocs` maps the loops to where they
/// are shown. At most some dozens of colours count.
std::shared_ptr<const Gradient> hatchGradient(const HatchData &hatch, const Matrix &ocs);

} // namespace host::view
