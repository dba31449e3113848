#pragma once

#include "host/view/build/DisplayBuilder.h"

namespace host::view {

struct LeaderArrow
{
    QString name{};    ///< of its block or a built-in one; empty for the usual arrow
    double size = 0.0; ///< drawing units; 0: none
};

/// A piece that is left out of a line: whatever lies between two points on it.
struct LeaderGap
{
    Vec3 from{};
    Vec3 to{};
};

/// The line of a leader from its tip; the arrow is left out where there is no room for it. Points that are not usable
/// make no line.
void addLeaderLine(BuildContext &context, const Path &points, bool isSpline, const LeaderArrow &arrow,
                   const Style &style, const std::vector<LeaderGap> &gaps = {}, const Vec3 &normal = {0.0, 0.0, 1.0});

/// Takes the gaps out of the line that was added last; gaps beside it change nothing.
void cutLastStroke(BuildContext &context, const std::vector<LeaderGap> &gaps);

} // namespace host::view
