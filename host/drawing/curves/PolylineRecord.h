#pragma once

#include "host/drawing/curves/CurveVertices.h"
#include "host/drawing/curves/Sections.h"

namespace host::drawing {

/// The part of a polyline between two parameters, open, with widths and bulges in proportion. `from` below `to`;
/// beyond the ends of an open one it goes on in the direction, or round the circle, of the piece there; of a closed one
/// `to` may be up to a round behind its end.
CurveVertices verticesBetween(const CurveVertices &polyline, double from, double to);

/// A polyline of these vertices with all else that the entity has: an LWPOLYLINE where the entity is one, a plain
/// POLYLINE otherwise. Nothing but the common properties is taken from an entity that is no polyline; it becomes the
/// form that the drawing's version has.
CurveRecord polylineRecord(const Drawing &drawing, RecordId entity, const CurveVertices &polyline);

} // namespace host::drawing
