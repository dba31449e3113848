#pragma once

#include "host/drawing/math/Vec.h"
#include "host/drawing/records/Record.h"
#include "host/kernel/running/Dialogue.h"

#include <vector>

namespace host::kernel {

class CommandContext;

/// Asks for a reference angle and a new one, by numbers, from the base point or by two points. The turn from the one to
/// the other, in radians. What is `dragged` turns with the pointer meanwhile.
Dialogue<double> askReferenceAngle(CommandContext &context, drawing::Vec3 base,
                                   std::vector<drawing::RecordId> dragged = {});

/// The same for lengths: the new one in relation to the reference.
Dialogue<double> askReferenceFactor(CommandContext &context, drawing::Vec3 base,
                                    std::vector<drawing::RecordId> dragged = {});

} // namespace host::kernel
