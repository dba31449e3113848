#pragma once

#include "host/drawing/records/Drawing.h"

namespace host::kernel {

/// `fields` of a new entity with the current layer, colour, linetype, linetype scale and lineweight of the drawing
/// where they do not say others.
drawing::FieldList withCurrentProperties(const drawing::Drawing &drawing, drawing::FieldList fields);

} // namespace host::kernel
