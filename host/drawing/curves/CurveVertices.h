#pragma once

#include "host/drawing/curves/EntityCurve.h"

namespace host::drawing {

/// A corner of a polyline, with what belongs to the stretch behind it.
struct CurveVertex
{
    Vec3 point; ///< in object coordinates for flat polylines, in world coordinates for those in space
    double bulge = 0.0;
    double startWidth = 0.0;
    double endWidth = 0.0;
};

/// What LWPOLYLINE and POLYLINE have in common.
struct CurveVertices
{
    std::vector<CurveVertex> vertices; ///< those that are drawn: of a fitted polyline not its frame
    bool isClosed = false;
    bool isSpatial = false;  ///< straight pieces in world coordinates
    Vec3 extrusion{0, 0, 1}; ///< of the object coordinates; the z of flat ones is their height

    /// From object coordinates to world coordinates.
    Matrix toWorld() const { return isSpatial ? Matrix() : Matrix::fromExtrusion(extrusion); }
};

/// Nothing for meshes and for what is no polyline.
std::optional<CurveVertices> polylineVertices(const Drawing &drawing, RecordId entity);
/// The curve of at least one vertex.
EntityCurve polylineCurve(const CurveVertices &polyline);
/// The stretch of a flat polyline from one vertex to the next, at parameters `number` and one more.
CurvePiece bulgedPiece(const Vec3 &from, const Vec3 &to, double bulge, double number);

} // namespace host::drawing
