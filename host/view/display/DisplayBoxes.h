#pragma once

#include "host/view/display/Display.h"

#include <QRectF>

namespace host::view {

class Fonts;

/// Adds what one item covers, except for references: their blocks have to be asked. Texts are given more room than
/// their letters take.
void addItemBox(const DisplayItem &item, Box &box);
/// The same of an item that is seen through a map, texts as far as their letters reach.
void addItemBox(const DisplayItem &item, const Matrix &map, Fonts &fonts, Box &box);
void addCurveBox(const Curve &curve, const Matrix &map, Box &box);

/// What the letters of a run cover in its own coordinates: all its width, from the base line to the top of capitals,
/// and farther where they have tails or accents. Null for blanks.
QRectF letterBox(Fonts &fonts, const TextRun &run);

/// The box that a box becomes: that of its eight corners.
Box mappedBox(const Box &box, const Matrix &map);
Box movedBox(const Box &box, const Vec3 &by);
/// What of a box is within that of a polygon seen through a map, from above.
Box clippedBox(const Box &box, const Path &clip, const Matrix &map);

/// What a reference covers whose block covers `blockBox`: all cells, within its clip, with what stands beside them.
Box referenceBox(const Reference &reference, const Box &blockBox);
/// The first cell and what stands beside it, in all cells of the reference as seen through a map.
Box arrayBox(const Reference &reference, const Matrix &map, const Box &first);

} // namespace host::view
