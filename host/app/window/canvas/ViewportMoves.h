#pragma once

#include "host/kernel/documents/Document.h"

namespace host::app {

// Wheel and pan within the viewport of a sheet through which model space is worked on: what it shows changes, as an
// undo step each. Points are of the sheet. False where the sheet itself is to move: none is worked through, its display
// is locked, the point lies outside of it, or something runs.

/// Magnifies by `factor`; what is under the point stays there.
bool zoomInViewport(kernel::Document &document, const drawing::Vec2 &point, double factor);
/// Whether a pan that begins there moves what the viewport shows.
bool pansInViewport(const kernel::Document &document, const drawing::Vec2 &point);
/// Moves what is shown at `from` to `to`.
bool panInViewport(kernel::Document &document, const drawing::Vec2 &from, const drawing::Vec2 &to);

} // namespace host::app
