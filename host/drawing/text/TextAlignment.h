#pragma once

#include "host/drawing/tags/Tag.h"

namespace host::drawing {

/// Where a line of text stands at its points, as groups 72 and 73 of a TEXT say it (74 of attributes).
struct TextAlignment
{
    int horizontal = 0; ///< 0 left, 1 center, 2 right, 3 aligned, 4 middle, 5 fitted
    int vertical = 0;   ///< 0 base line, 1 bottom, 2 middle, 3 top

    bool isLeft() const { return horizontal == 0 && vertical == 0; }
    /// Runs from one point to another, which decide on its direction and size.
    bool isAligned() const { return horizontal == 3; }
    bool isFitted() const { return horizontal == 5; }
    bool isStretched() const { return isAligned() || isFitted(); }
};

/// That of a TEXT, ATTRIB or ATTDEF, whose fields begin with the type. Values that are none count as 0.
TextAlignment textAlignment(const FieldList &text);

/// Works out what follows from the alignment: where the letters start (group 10) from the text's own point (11), and of
/// a stretched text, whose two points these are, height (40) or width factor (41). `letters` is what the text covers,
/// seen from its left end, as it is without the alignment. Nothing changes for a text at its left end.
void alignText(FieldList &text, const Box &letters);

} // namespace host::drawing
