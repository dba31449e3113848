#pragma once

#include "host/commands/curves/EditedPolyline.h"
#include "host/kernel/running/Dialogue.h"

namespace host::kernel {

/// What editing vertices leaves.
struct VertexEdit
{
    EditedPolyline polyline;
    std::optional<EditedPolyline> rest; ///< behind a break
};

/// The dialogue on single vertices: moving along them, inserting, moving, straightening, breaking, widths, tangents.
/// Ends with eXit, or with a break.
Dialogue<VertexEdit> askVertexEdits(CommandContext &context, EditedPolyline polyline);

} // namespace host::kernel
