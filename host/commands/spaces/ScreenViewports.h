#pragma once

#include "host/drawing/editing/Viewports.h"
#include "host/kernel/running/Dialogue.h"

#include <vector>

namespace host::kernel {

class CommandContext;

// The parts that the screen is divided into while model space is shown by itself. The window shows one whole view: the
// drawing keeps the division for others.

/// One part.
struct ScreenViewport
{
    drawing::Box place; ///< of the screen, which is 1 by 1
    drawing::ViewportAim aim;
};

/// The entries of a configuration in any letter case, in file order; the parts in use are "*Active".
std::vector<drawing::RecordId> screenViewports(const drawing::Drawing &drawing, const QString &name);
ScreenViewport readScreenViewport(const drawing::Drawing &drawing, drawing::RecordId entry);

/// The dialogue of -VPORTS where model space is shown by itself.
Dialogue<bool> askScreenViewports(CommandContext &context);

} // namespace host::kernel
