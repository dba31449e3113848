#pragma once

#include "host/drawing/records/Symbols.h"
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

/// The font that a style asks for.
FontRequest fontRequest(const drawing::Drawing &drawing, const drawing::TextStyle &style);

/// The style of that name; a plain one when the drawing has none.
TextLook readTextLook(const BuildContext &context, const QString &styleName);

} // namespace host::view
