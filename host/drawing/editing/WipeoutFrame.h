#pragma once

#include "host/drawing/records/Drawing.h"

namespace host::drawing {

/// Whether masks (WIPEOUT) show their frames, a setting of the whole drawing: 0 not, 1 shown and plotted, 2 shown but
/// not plotted. It lives in an object of the named-object dictionary; a drawing without that object shows them (1).
int wipeoutFrame(const Drawing &drawing);

/// Changes the setting, making the object where it is missing. False, and nothing happens, when the drawing's version
/// has no masks or something else has the object's name.
bool setWipeoutFrame(Drawing &drawing, int value);

} // namespace host::drawing
