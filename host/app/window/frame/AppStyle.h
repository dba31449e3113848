#pragma once

#include "host/app/workbench/ProgramOptions.h"

#include <QPalette>

class QApplication;

namespace host::app {

/// Colours of windows and dialogs.
QPalette palette(Style style);

/// Gives the program this look now, open windows included. Whether the style is dark shows in the palette, which is
/// where the platform's style query looks.
void applyStyle(Style style);

/// The look that the program has.
Style currentStyle();

} // namespace host::app
