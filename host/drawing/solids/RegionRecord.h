#pragma once

#include "host/drawing/curves/CurvePiece.h"
#include "host/drawing/records/Drawing.h"

#include <vector>

namespace host::drawing {

/// A stretch of a loop, in world coordinates: one piece, or neighbouring spans of a spline of one degree, which share
/// their parameters.
struct RegionEdge
{
    std::vector<CurvePiece> pieces;
    bool isReversed = false; ///< the loop runs from the end of the last piece to the start of the first one
};
/// Edges that follow each other until they are back, in either direction. A single one is closed by itself.
using RegionLoop = std::vector<RegionEdge>;
/// The loop round an area, and those round the holes in it.
using RegionFace = std::vector<RegionLoop>;

/// A REGION with a model of flat faces at right angles to `normal`, which has length 1, as Entities::create() takes it.
/// No face is empty; all lie in one plane. Drawings of R13 and R14 get a model of version 1.6, later ones one of 4.0.
FieldList regionRecord(const std::vector<RegionFace> &faces, const Vec3 &normal, Version version);

/// The spline that polynomial pieces of one degree are together.
Spline splineOfPieces(const std::vector<CurvePiece> &pieces);

/// A round piece by its axes at right angles to each other, the longer one first, and where it begins and how far it
/// sweeps on them; never negative.
struct EllipseAxes
{
    Vec3 major;
    Vec3 minor;
    double start = 0.0;
    double sweep = 0.0;
};
EllipseAxes ellipseAxes(const CurvePiece &round);

} // namespace host::drawing
