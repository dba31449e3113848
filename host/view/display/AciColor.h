#pragma once

#include <QColor>

namespace host::view {

/// What the drawing lies on. Colour 7 is the one colour that depends on it.
enum class Ground
{
    Black,
    White
};

/// The colour of the ground itself.
QColor groundColor(Ground ground);

/// What the drawings of this process lie on in their windows, which colours are shown for in dialogs; black until set.
Ground shownGround();
void setShownGround(Ground ground);

/// The colour that an index of the 256-colour table stands for.
///
/// The table is laid out as follows, and is computed from that layout:
///   1-6      red, yellow, green, cyan, blue, magenta
///   7        white on a black ground, black on a white one
///   8, 9     dark and light grey
///   10-249   24 hues of ten, 15 degrees apart, from red; in each ten five falling brightnesses, every brightness
///            first pure (even index), then at half saturation (odd index)
///   250-255  greys, from dark to white
/// 0, 256 and whatever lies outside the table give the colour of index 7.
QColor aciColor(int index, Ground ground);

/// A 24-bit colour as the file stores it, 0x00RRGGBB; higher bits are ignored.
QColor trueColor(int value);

} // namespace host::view
