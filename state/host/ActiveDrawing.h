#pragma once

#include <QString>

namespace ortakit {

/// The path of the active document's drawing; empty when there is none, and for a drawing that was never saved.
QString activeDrawing();

} // namespace ortakit
