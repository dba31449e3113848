#pragma once

#include "host/drawing/editing/Viewports.h"
#include "host/kernel/running/Dialogue.h"

#include <optional>
#include <vector>

namespace host::kernel {

class CommandContext;

// Viewports of the sheet that is current, and rectangles divided for them.

/// The tab of the sheet that is current; nothing, with the command failed, where model space is shown by itself.
std::optional<drawing::LayoutTab> neededSheet(CommandContext &context);

/// Has commands work on the sheet itself, or on model space through a viewport. False, with the reason printed, when
/// the sheet has no viewport that is on.
bool enterSheet(CommandContext &context);
bool enterModel(CommandContext &context);

/// Makes a viewport on the current sheet that shows all of model space, and before the first one that which stands for
/// the sheet itself. noRecord when it cannot be made.
drawing::RecordId makeViewport(CommandContext &context, const drawing::Box &frame);

/// How a rectangle is divided. The largest part comes first.
struct ViewportArrangement
{
    int count = 1;
    QString how; ///< "Horizontal", "Vertical"; of three "Above", "Below", "Left", "Right" too: where the large one is
};
std::vector<drawing::Box> divided(const drawing::Box &frame, const ViewportArrangement &arrangement);
/// Asks how to divide into two or three; four are quarters.
Dialogue<ViewportArrangement> askArrangement(CommandContext &context, int count);

/// Viewports among chosen entities that may be changed.
std::vector<drawing::RecordId> viewportsAmong(CommandContext &context, const std::vector<drawing::RecordId> &chosen);

} // namespace host::kernel
