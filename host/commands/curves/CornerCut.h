#pragma once

#include "host/drawing/math/Vec.h"

#include <optional>
#include <vector>

namespace host::kernel {

struct EditedPolyline;

/// How a corner between two straight lines is cut.
struct CornerCut
{
    bool isRound = true;
    double radius = 0.0; ///< round: of the arc
    double first = 0.0;  ///< straight: how far from the corner the cut begins on the first line
    double second = 0.0; ///< and ends on the second one
    /// Straight: the angle between the first line and the cut (radians) decides instead of `second`.
    std::optional<double> angle{};
};

/// Where the cut begins and ends, and the bulge between them.
struct CutEnds
{
    drawing::Vec2 first;
    drawing::Vec2 second;
    double bulge = 0.0;
    double firstReach = 0.0; ///< from the corner
    double secondReach = 0.0;
};

/// The cut of the corner at `corner` between the lines that leave it in these directions (of length 1). Nothing where
/// they are parallel, or the angle leads nowhere.
std::optional<CutEnds> cutCorner(drawing::Vec2 corner, drawing::Vec2 first, drawing::Vec2 second, const CornerCut &cut);

/// What became of a polyline's corners.
struct CornerCounts
{
    int cut = 0;
    int tooShort = 0;
    int parallel = 0;
};

/// Cuts all corners between straight stretches; round cuts take the place of arcs that are tangent to both neighbours.
CornerCounts cutAllCorners(EditedPolyline &polyline, const CornerCut &cut);

} // namespace host::kernel
