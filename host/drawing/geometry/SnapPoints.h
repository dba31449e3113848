#pragma once

#include "host/drawing/curves/EntityCurve.h"
#include "host/drawing/math/WorkBudget.h"

#include <vector>

namespace host::drawing {

/// Kinds of object snap, as the bits of OSMODE.
enum SnapKind : int
{
    SnapEndPoint = 1,
    SnapMidPoint = 2,
    SnapCentre = 4,
    SnapNode = 8,
    SnapQuadrant = 16,
    SnapIntersection = 32,
    SnapInsertion = 64,
    SnapPerpendicular = 128,
    SnapTangent = 256,
    SnapNearest = 512,
    SnapQuick = 1024, ///< what is found first is enough; everything here is quick, so that it changes nothing
    SnapApparentIntersection = 2048,
    SnapExtension = 4096,
    SnapParallel = 8192,     ///< nothing is found by it
    SnapsSwitchedOff = 16384 ///< the kinds beside it rest
};

/// An entity that is close to the point, in world coordinates: what its snaps come from.
struct SnapTarget
{
    std::vector<EntityCurve> curves; ///< of texts and points none
    std::vector<Vec3> insertions;
    std::vector<Vec3> nodes;
    bool isInBlock = false; ///< its quadrants turn with the block
};

/// What snaps find of an entity that `toWorld` maps. Curves of entities that are none themselves are the edges of their
/// outlines; hatches have nothing. What is made beyond the record's own points takes from `work`.
SnapTarget snapTarget(const Drawing &drawing, RecordId entity, const Matrix &toWorld, WorkBudget &work);

/// What is looked for.
struct SnapQuestion
{
    Vec3 point;                 ///< in world coordinates; seen from above
    double reach = 0.0;         ///< drawing units
    int kinds = 0;              ///< SnapKind
    std::optional<Vec3> base{}; ///< where perpendiculars and tangents start from
    Matrix userAxes{};          ///< quadrants lie in their directions
};

/// What was found.
struct SnapPoint
{
    Vec3 point;
    SnapKind kind = SnapEndPoint;
};

/// The best point of the wanted kinds on entities that come within reach of the point: the nearest to it, those within
/// reach before all others, and any other kind there before SnapNearest. Ends, middles, centres and the like of what is
/// in reach may lie farther away; crossings lie in reach. Of polylines the segments in reach count. Perpendiculars and
/// tangents without a base are the nearest point; extensions go on as far as within reach of their curve's end.
/// Costs by the pieces of the targets; for crossings by the square of the pieces in reach, of which at most a hundred
/// are looked at.
std::optional<SnapPoint> findSnap(const std::vector<SnapTarget> &targets, const SnapQuestion &question);

} // namespace host::drawing
