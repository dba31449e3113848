#pragma once

#include "host/commands/curves/CarrierUnion.h"

namespace host::kernel {

/// Curves that follow each other as one spline.
struct JoinedSpline
{
    drawing::Spline spline;
    std::vector<std::size_t> taken; ///< the numbers of the parts, `first` among them
};

/// Goes on from a part at both of its ends, along what begins or ends there, until nothing fits or it is round. Nothing
/// where no other part meets it. Costs n log n of the parts.
std::optional<JoinedSpline> joinAsSpline(const drawing::Drawing &drawing, const CurveParts &parts, std::size_t first);

} // namespace host::kernel
