#pragma once

#include "host/drawing/curves/CurvePiece.h"
#include "host/drawing/records/Drawing.h"

#include <vector>

namespace host::drawing {

/// The lines, arcs, circles, ellipses and splines that a REGION goes along, as Entities::create() takes them; a spline
/// in one piece. Empty for other types, and where the model is not known as a whole.
std::vector<FieldList> regionPieces(const Drawing &drawing, RecordId region);

} // namespace host::drawing
