#pragma once

#include "host/drawing/records/Drawing.h"

namespace host::kernel {

/// What group 440 holds for a transparency in percent (0 to 90).
qint64 transparencyValue(int percent);
/// And for that of the block which the entity is in.
inline constexpr qint64 transparencyByBlock = 0x01000000;

/// `fields` of a new entity with the current layer, colour, linetype, linetype scale, lineweight and, for a type that
/// takes it when it is drawn, thickness of the drawing where they do not say others.
drawing::FieldList withCurrentProperties(const drawing::Drawing &drawing, drawing::FieldList fields);

} // namespace host::kernel
