#pragma once

#include "host/drawing/records/Drawing.h"
#include "host/drawing/text/MacroExpression.h"

namespace host::drawing {

/// A system variable of a drawing that no program works on, as text: what its header has (named without the $, angles
/// in radians), its name and folder (DWGNAME, DWGPREFIX, DWGTITLED, SAVENAME), and the time (DATE, CDATE). Names in any
/// case; nothing for others.
std::optional<QString> drawingVariable(const Drawing &drawing, const QString &name);

/// A macro expression in the drawing may ask for these variables and nothing else. Valid while the drawing lives.
MacroSurroundings surroundingsOf(const Drawing &drawing);

/// The time as text with enough digits for its seconds.
QString dateNumberText(double date);

/// A colour's number as programs have it: BYLAYER, BYBLOCK or digits.
QString colourText(qint64 number);

} // namespace host::drawing
