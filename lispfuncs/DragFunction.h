#pragma once

namespace ortakit {

/// (acet-ss-drag-move set base [prompt [move]]) as an external Lisp function of the active document: asks for a point
/// while a selection set hangs at the cursor. What it takes and gives is in docs/lisp-functions.md. Sets the Lisp
/// variable LispCanceled as the selection functions do.
int acetSsDragMove();

} // namespace ortakit
