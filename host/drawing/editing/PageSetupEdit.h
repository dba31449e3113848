#pragma once

#include "host/drawing/records/PageSetup.h"

namespace host::drawing {

/// Writes a page into the LAYOUT object of a layout, so that readPageSetup() gives it back; the paper is held as the
/// drawing lies on it. Groups that it does not speak of stay, and so does the printer's name. The sentence says why it
/// cannot be kept, as in a drawing without such objects; empty when it was.
QString writePageSetup(Drawing &drawing, const LayoutTab &layout, const PageSetup &setup);

} // namespace host::drawing
