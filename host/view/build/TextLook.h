#pragma once

#include "host/view/build/DisplayBuilder.h"

namespace host::view {

/// What a text style says, ready for drawing.
struct TextLook
{
    FontRequest request{};
    int font = 0;
    double widthFactor = 1.0;
    double oblique = 0.0;  ///< radians
    qint64 generation = 0; ///< flags as texts have them: 2 backward, 4 upside down
    bool isVertical = false;
};

/// The style of that name; a plain one when the drawing has none.
TextLook readTextLook(const BuildContext &context, const QString &styleName);

} // namespace host::view
