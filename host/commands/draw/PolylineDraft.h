#pragma once

#include "host/drawing/math/Vec.h"

#include <optional>
#include <vector>

namespace host::kernel {

class CommandContext;

/// A polyline while it is drawn, in user coordinates. A bulge and widths belong to the segment behind their vertex.
struct PolylineDraft
{
    struct Vertex
    {
        drawing::Vec2 point;
        double bulge = 0.0;
        double startWidth = 0.0;
        double endWidth = 0.0;
    };
    /// Widths for the next segment.
    struct Widths
    {
        double start = 0.0;
        double end = 0.0;
    };

    std::vector<Vertex> vertices;
    std::vector<Widths> before; ///< the widths in front of each segment, for taking it back
    Widths widths;
    double height = 0.0;             ///< above the user's plane
    std::optional<double> thickness; ///< how far it rises from there; as the drawing has it where it does not say
    bool isClosed = false;

    drawing::Vec2 last() const { return vertices.back().point; }
    /// The direction that the last segment ends in; `otherwise` without one. Radians.
    double direction(double otherwise = 0.0) const;
    /// Draws a segment; behind one that tapers the width is that of its end.
    void add(drawing::Vec2 to, double bulge = 0.0);
    void close(double bulge = 0.0);
    /// Takes the last segment back. False when there is none.
    bool undo();
};

/// Corners with straight segments of one width between them, closed.
PolylineDraft closedDraft(const std::vector<drawing::Vec2> &corners, double height, double width = 0.0);

/// Makes the polyline in the drawing, in the form that its version has, when it has a segment.
void createPolyline(CommandContext &context, const PolylineDraft &draft);

} // namespace host::kernel
