#pragma once

#include "host/drawing/records/Symbols.h"
#include "host/kernel/running/Dialogue.h"

namespace host::kernel {

class CommandContext;

/// The style that new texts get. One that the drawing does not have is as its name and the defaults say.
drawing::TextStyle currentTextStyle(CommandContext &context);

/// Prints the styles whose names fit the wildcards.
void listTextStyles(CommandContext &context, const QString &pattern);

/// Asks for a style's name under this prompt, without its default and colon, with the current one as the default. An
/// empty name when the user had styles listed instead.
Dialogue<QString> askTextStyleName(CommandContext &context, QString prompt);

/// Asks for the style that is current from here on. False when the drawing has none of the name.
Dialogue<bool> askTextStyle(CommandContext &context);

} // namespace host::kernel
