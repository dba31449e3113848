#pragma once

#include "host/drawing/math/Matrix.h"
#include "host/drawing/records/Drawing.h"

#include <functional>

namespace host::drawing {

/// What becomes of single lines of text in a mirror.
enum class MirroredText
{
    Readable, ///< they cover the mirrored place, and are read as before
    Reversed  ///< they are seen as in a mirror
};

/// The size of a TEXT, ATTRIB or ATTDEF, width and height, by its fields.
using LineSize = std::function<Vec2(const FieldList &text)>;

/// As transformEntity() with a map that mirrors. A text that stays readable keeps the direction that it was read in,
/// as far as the map lets it; paragraphs always do, and stand at the other side of their point for that. References
/// that were not mirrored before are mirrored along their x axis. `lineSize` is asked for readable lines alone.
bool mirrorEntity(Drawing &drawing, RecordId entity, const Matrix &mirror, MirroredText texts,
                  const LineSize &lineSize);

} // namespace host::drawing
