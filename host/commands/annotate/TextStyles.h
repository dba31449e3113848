#pragma once

#include "host/drawing/records/Symbols.h"
#include "host/kernel/running/Dialogue.h"

namespace host::kernel {

class CommandContext;

/// The style that new texts get. One that the drawing does not have is as its name and the defaults say.
drawing::TextStyle currentTextStyle(CommandContext &context);

/// Prints the styles whose names fit the wildcards.
void listTextStyles(CommandContext &context, const QString &pattern);

/// Asks for the style that is current from here on. False when the drawing has none of the name.
Dialogue<bool> askTextStyle(CommandContext &context);

} // namespace host::kernel
