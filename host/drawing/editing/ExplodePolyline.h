#pragma once

#include "host/drawing/records/Drawing.h"

#include <vector>

namespace host::drawing {

/// Layer, colour, linetype, its scale, weight and whatever else any entity may say of its look, behind a type.
FieldList lookOfPiece(const FieldList &entity, const QString &type);

/// The lines and arcs that an LWPOLYLINE or POLYLINE consists of, in order and without widths, of a mesh its faces; as
/// Entities::create() takes them. Segments without length are left out. Empty for other types.
std::vector<FieldList> polylinePieces(const Drawing &drawing, RecordId polyline);

/// A CIRCLE or ARC as the ELLIPSE that it is; empty for other types.
FieldList ellipseOf(const FieldList &circle);

} // namespace host::drawing
