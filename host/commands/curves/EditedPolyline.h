#pragma once

#include "host/drawing/curves/CurveVertices.h"

namespace host::kernel {

class CommandContext;

/// What a polyline was smoothed to; the bits of group 70 of a POLYLINE.
enum class Smoothing : qint64
{
    None = 0,
    Arcs = 2,
    Spline = 4
};

/// A corner with the direction that smoothing by arcs gives it, where one was said (radians, object coordinates).
struct EditedVertex : drawing::CurveVertex
{
    std::optional<double> tangent{};
};

/// A polyline while it is edited. Of a smoothed one it holds the corners from before.
struct EditedPolyline
{
    drawing::RecordId record = drawing::noRecord; ///< noRecord when it is to be made
    std::vector<EditedVertex> vertices;           ///< as CurveVertices has them
    bool isClosed = false;
    bool isSpatial = false;
    bool isLight = true;         ///< an LWPOLYLINE
    bool isDashedAcross = false; ///< linetypes go on round the corners
    Smoothing smoothing = Smoothing::None;
    drawing::Vec3 extrusion{0, 0, 1};
    drawing::FieldList look; ///< layer, colour ..., thickness

    drawing::Matrix toWorld() const
    {
        return isSpatial ? drawing::Matrix() : drawing::Matrix::fromExtrusion(extrusion);
    }
    /// A point of the drawing as its vertices have it; flat ones keep their height.
    drawing::Vec3 fromWorld(const drawing::Vec3 &world) const;
    void reverse();
};

/// Of an LWPOLYLINE or POLYLINE that is no mesh; nothing for others.
std::optional<EditedPolyline> readPolyline(const drawing::Drawing &drawing, drawing::RecordId entity);
/// The polyline that a LINE, ARC or open spline would be (the last one in straight pieces); not in the drawing yet.
/// Lines lie in the plane with that direction. Nothing for others.
std::optional<EditedPolyline> polylineLike(const drawing::Drawing &drawing, drawing::RecordId entity,
                                           const drawing::Vec3 &normal);

/// What storing has changed besides the polyline's own record.
struct StoredPolyline
{
    drawing::RecordId record = drawing::noRecord; ///< noRecord when it could not be stored, which was told
    bool isNew = false;                           ///< in place of the one before, which is erased
};
/// Writes it, smoothed as it says: into its record where that can hold it, else as a new one.
StoredPolyline storePolyline(CommandContext &context, const EditedPolyline &polyline);

} // namespace host::kernel
