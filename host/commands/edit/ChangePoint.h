#pragma once

#include "host/drawing/math/Vec.h"
#include "host/drawing/records/Record.h"
#include "host/kernel/running/Dialogue.h"

#include <optional>
#include <vector>

namespace host::kernel {

class CommandContext;

/// What CHANGE does with a point: lines end there with their nearer end, circles pass through it, texts and block
/// references go there and are asked for the rest. Without a point lines and circles stay as they are. Others are told
/// to stay.
Dialogue<bool> changeByPoint(CommandContext &context, const std::vector<drawing::RecordId> &entities,
                             std::optional<drawing::Vec3> point);

} // namespace host::kernel
