#pragma once

#include "host/view/build/DisplayBuilder.h"

namespace host::view {

/// The map from a square of 0 to 1 both ways onto a box.
Matrix squareOnto(const Box &box);

/// Writes the name of a file that is not shown into the middle of where it would be: `placement` maps a square of 0 to
/// 1 both ways, y up, onto that. Folders are left out. Nothing where the square has no area.
void addFileName(BuildContext &context, const Matrix &placement, const QString &name);

/// The name in a small frame, from the lower left corner that `at` maps the origin to: as large as can be read on a
/// sheet of the whole drawing, as far as its header tells how large that is.
void addFileMark(BuildContext &context, const Matrix &at, const QString &name);

} // namespace host::view
