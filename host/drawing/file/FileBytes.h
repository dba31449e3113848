#pragma once

#include "host/drawing/records/Drawing.h"

namespace host::drawing {

/// The bytes of the file that the drawing is, in its form, in pieces and in order. Stops when `take` returns false. The
/// views hold until `take` returns.
///
/// What nobody touched has the bytes that were read, in the binary form too. The result is empty, or says which record
/// the binary form has no room for; `take` has had what stands in front of it then. A text drawing that becomes binary
/// loses its comments (999) and what stands behind EOF, for which readers of that form are not prepared.
QString forEachFilePiece(const Drawing &drawing, const std::function<bool(QByteArrayView)> &take);

} // namespace host::drawing
