#pragma once

#include "host/drawing/records/Drawing.h"

#include <optional>

namespace host::drawing {

// Values of entities that stand in no single group of theirs. Lengths in drawing units, angles in degrees, points in
// world coordinates. Nothing where the entity has no such value: it is no curve, or one without end, or the curve lies
// in no plane. Those of curves cost a walk along the curve.

std::optional<FieldValue> curveLength(const Drawing &drawing, RecordId entity);
/// Of an open curve with the straight line between its ends.
std::optional<FieldValue> curveArea(const Drawing &drawing, RecordId entity);
/// Of curves with ends that are apart.
std::optional<FieldValue> curveStart(const Drawing &drawing, RecordId entity);
std::optional<FieldValue> curveEnd(const Drawing &drawing, RecordId entity);
/// How many corners a polyline shows.
std::optional<FieldValue> vertexCount(const Drawing &drawing, RecordId entity);
std::optional<FieldValue> circleDiameter(const Drawing &drawing, RecordId entity);
/// What an ARC goes round, 0 to 360.
std::optional<FieldValue> arcAngle(const Drawing &drawing, RecordId entity);
/// The direction of a LINE in the world's XY plane.
std::optional<FieldValue> lineAngle(const Drawing &drawing, RecordId entity);
std::optional<FieldValue> lineDelta(const Drawing &drawing, RecordId entity);
/// All pieces of a paragraph in one, with its codes.
std::optional<FieldValue> wholeContent(const Drawing &drawing, RecordId entity);
/// "ByColor" where the drawing goes by colours, "ByLayer", "ByBlock" or a name from the drawing's plot styles; nothing
/// in R12 and where the style is gone.
std::optional<FieldValue> plotStyleName(const Drawing &drawing, RecordId entity);

} // namespace host::drawing
