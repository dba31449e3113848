#pragma once

#include "host/drawing/curves/CurveVertices.h"
#include "host/drawing/curves/Sections.h"

namespace host::drawing {

/// What comes between the pieces of a polyline that an offset takes apart; the values of OFFSETGAPTYPE.
enum class OffsetGap : quint8
{
    Extended, ///< they go on until they meet; round the corner where they do not
    Rounded,
    Straight ///< a straight piece as far from the corner as the offset; round where arcs meet
};

/// The curves at a distance from one, in its plane, with all else that the entity has. A positive distance lies on the
/// right of the direction that the curve runs in, seen from where its normal points to: outside of what goes round
/// counter-clockwise. `up` is the normal of lines, which have none.
///
/// Lines, arcs and circles are moved or get another radius. Of polylines pieces that come too near to the original are
/// left out, which may make several of one. Of ellipses and splines a spline is fitted within a hundred thousandth of
/// the distance, without what comes too near. None where nothing is left, for curves in no plane, for leaders and for
/// polylines in space. n log n of the vertices.
std::vector<CurveRecord> offsetCurve(const Drawing &drawing, RecordId entity, double distance, const Vec3 &up,
                                     OffsetGap gap = OffsetGap::Extended);

/// The distance, with its sign, at which a point lies from a curve: the offset by it goes through the point, or runs on
/// the side of it where the nearest point of the curve is one of its ends or corners. Seen along the normal.
double offsetDistance(const EntityCurve &curve, const Vec3 &point, const Vec3 &up);

/// The same for a flat polyline as vertices.
std::vector<CurveVertices> offsetPolyline(const CurveVertices &polyline, double distance, OffsetGap gap);

} // namespace host::drawing
