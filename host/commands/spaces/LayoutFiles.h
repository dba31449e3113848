#pragma once

#include "host/drawing/records/LayoutTabs.h"
#include "host/kernel/running/Dialogue.h"

namespace host::kernel {

class CommandContext;

// Sheets of other drawings. False when nothing was done; the reason is printed.

/// Asks for a drawing file and the names of its sheets, with wildcards, and adds these behind the others, with their
/// pages and what is drawn on them. One whose name is taken gets a number behind it.
Dialogue<bool> takeLayoutsFromFile(CommandContext &context);

/// Asks for a file's name and writes a drawing with this sheet alone and nothing in model space.
Dialogue<bool> saveLayoutToFile(CommandContext &context, drawing::LayoutTab layout);

} // namespace host::kernel
