#pragma once

#include "host/drawing/math/WorkBudget.h"
#include "host/view/display/Display.h"

namespace host::view {

/// A vertex of a flat polyline, in its object coordinates. Widths and bulge belong to the segment that starts here.
struct PolylineVertex
{
    Vec3 at{};
    double startWidth = 0.0; ///< drawing units, across the whole line
    double endWidth = 0.0;
    double bulge = 0.0; ///< tangent of a quarter of the swept angle, positive counter-clockwise; 0: straight
};

/// The line through the vertices; bulged segments are arcs. `ocs` maps to the coordinates that are wanted. A closed
/// polyline's last segment goes back to the first vertex.
Curve polylineCurve(const std::vector<PolylineVertex> &vertices, bool isClosed, const Matrix &ocs);

/// Whether any segment is to be drawn as an area.
bool hasWidth(const std::vector<PolylineVertex> &vertices);

/// The area that a polyline with widths covers: mitred where straight segments meet, tapering where widths differ.
/// The pieces that arcs are divided into are charged to `work`; when it is used up they are coarse.
Fill polylineBand(const std::vector<PolylineVertex> &vertices, bool isClosed, const Matrix &ocs,
                  drawing::WorkBudget &work);

} // namespace host::view
