#pragma once

#include "host/drawing/math/Matrix.h"

namespace host::kernel {

class CommandContext;

/// Looks straight at the plane of these axes, x to the right. Of the window, which shows plan views of the world, it is
/// kept in VIEWDIR and VIEWTWIST; a viewport of a sheet shows it.
void lookAt(CommandContext &context, const drawing::Matrix &axes);

/// What is drawn in the space that is worked on.
drawing::Box drawnExtents(CommandContext &context);
/// And its limits.
drawing::Box wholeDrawing(CommandContext &context);

} // namespace host::kernel
