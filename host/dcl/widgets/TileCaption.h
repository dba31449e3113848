#pragma once

#include "host/dcl/Tile.h"

class QBoxLayout;
class QFont;
class QWidget;

namespace host::dcl {

class TileMetrics;

// What tiles of several kinds have in common as widgets.

/// The tile's label with "&" in front of its mnemonic: its own, or the first letter that is "mnemonic".
QString captionOf(const Tile &tile);
/// Puts the tile's label in front of its field, if it has one, which then gives the field the focus.
void addLabel(QBoxLayout &layout, const Tile &tile, QWidget &field);
/// The tile's own font: letters of one width, or bold, where it asks for them.
QFont fontOf(const Tile &tile, const QFont &usual);
/// The size that the tile asks for is the least that the widget takes.
void askSize(QWidget &widget, const Tile &tile, const TileMetrics &metrics);

} // namespace host::dcl
