#pragma once

#include "host/commands/draw/PolylineDraft.h"
#include "host/kernel/running/Dialogue.h"

namespace host::kernel {

struct PromptReply;

/// A segment of a polyline that is an arc.
struct ArcSegment
{
    drawing::Vec2 to;
    double bulge = 0.0;
};
/// Nothing where there is no such arc, which was told.
using MaybeArc = std::optional<ArcSegment>;

/// The dialogue of one way to draw an arc: Angle, CEnter, Direction, Radius, Second pt.
Dialogue<MaybeArc> askArc(CommandContext &context, const PolylineDraft &draft, const QString &option);

} // namespace host::kernel
