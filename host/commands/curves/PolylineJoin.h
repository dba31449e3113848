#pragma once

#include "host/commands/curves/EditedPolyline.h"

namespace host::kernel {

/// How ends that are apart come together.
enum class JoinType
{
    Extend, ///< straight ends meet where they lead to; others are joined by a straight stretch
    Add     ///< by a straight stretch
};

struct JoinSettings
{
    double fuzz = 0.0; ///< how far apart ends may be; less than a millionth counts as none
    JoinType type = JoinType::Extend;
};

/// Appends what begins or ends at an end of the polyline, and then at its new ends, until nothing fits or it is closed.
/// What lies in another plane is left. Returns which of `others` were taken. Costs n log n.
std::vector<std::size_t> joinTo(EditedPolyline &polyline, const std::vector<EditedPolyline> &others,
                                const JoinSettings &settings);

} // namespace host::kernel
