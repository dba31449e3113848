#pragma once

#include "host/drawing/records/LayoutTabs.h"

namespace host::drawing {

// What changes the layouts of a drawing. Each is one step of the journal; the sentence is empty when it was done, and
// says why nothing was otherwise. Drawings older than R2000 have one sheet, which stays as it is.

/// Why a layout cannot be called so: letters that names may not have, more than 255 of them, or a name that is taken.
/// `own` may have it already, in other case.
QString obstacleToLayoutName(const Drawing &drawing, const QString &name, const QString &own = {});

/// Adds an empty sheet behind the others.
QString newLayout(Drawing &drawing, const QString &name);

/// Adds a sheet behind the others with the page and the entities of another one. Viewports that are cut off by an
/// entity of the sheet are cut off by its copy.
QString copyLayout(Drawing &drawing, const LayoutTab &layout, const QString &name);

/// Gives a sheet another name.
QString renameLayout(Drawing &drawing, const LayoutTab &layout, const QString &name);

/// Gives a sheet another place among them, counted from 1; a number beyond either end is that end.
QString moveLayout(Drawing &drawing, const LayoutTab &layout, qint64 place);

/// Takes a sheet out with all that is on it; one stays. When it is the one in use, its neighbour comes in use, whose
/// entities are made anew where the format has those of such a sheet: their handles change.
QString deleteLayout(Drawing &drawing, const LayoutTab &layout);

/// "Layout" and the first number that no layout has behind it.
QString freeLayoutName(const Drawing &drawing);
/// The name with a number in parentheses, as copies have it.
QString freeCopyName(const Drawing &drawing, const QString &name);

} // namespace host::drawing
