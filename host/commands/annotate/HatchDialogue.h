#pragma once

#include "host/commands/annotate/HatchDraft.h"
#include "host/kernel/running/Dialogue.h"

namespace host::kernel {

// What HATCH, BOUNDARY and HATCHEDIT ask for in common. False where the command ends, which was told.

/// The pattern with its scale and angle.
Dialogue<bool> askHatchPattern(CommandContext &context, HatchLook &look);
/// The same when the name was given already: Solid and User defined count as names.
Dialogue<bool> askPatternOf(CommandContext &context, HatchLook &look, QString name);
/// What the option Advanced has: boundary set, islands, associativity, gaps.
Dialogue<bool> askAdvancedHatch(CommandContext &context, HatchSettings &settings);
Dialogue<bool> askBoundarySet(CommandContext &context, BoundaryOptions &options);
Dialogue<bool> askIslandDetection(CommandContext &context, BoundaryOptions &options);
Dialogue<bool> askIslandStyle(CommandContext &context, HatchLook &look);
/// The options DRaw, Origin, ANnotative, COlor, LAyer and Transparency.
Dialogue<bool> askHatchProperty(CommandContext &context, HatchSettings &settings, QString option);

/// A boundary along points in world coordinates, kept as a polyline or not.
void addDrawnArea(CommandContext &context, const UserPlane &plane, const std::vector<drawing::Vec3> &points,
                  bool isKept, std::vector<HatchArea> &areas);

} // namespace host::kernel
