#pragma once

#include "host/drawing/math/Matrix.h"
#include "host/drawing/records/Drawing.h"

#include <optional>

namespace host::drawing {

enum class DimensionKind
{
    Linear, ///< along a given direction
    Aligned,
    AngularOfLines,
    Diameter,
    Radius,
    AngularOfPoints,
    Ordinate,
    Arc,
    LargeRadius
};

/// What is measured, and where it is shown: flat points in the plane of the dimension, angles in radians.
struct DimensionData
{
    DimensionKind kind = DimensionKind::Linear;
    Matrix plane{}; ///< from the coordinates of the points to the world
    /// What the dimension passes through: a point of its line or arc. The centre of a radius, one end of a diameter,
    /// the origin of an ordinate.
    Vec2 definition{};
    Vec2 first{};              ///< first measured point, begin of the first line; of an ordinate the feature
    Vec2 second{};             ///< second measured point, end of the first line; of an ordinate the end of its leader
    Vec2 third{};              ///< centre of an angle or arc, begin of the second line, the point on a circle
    Vec2 fourth{};             ///< where the arc of an angle between lines is
    double angle = 0.0;        ///< of a linear dimension's line
    double oblique = 0.0;      ///< from the line to its extension lines; 0: at right angles
    double jogAngle = 0.0;     ///< of a large radius, from its line
    double horizontal = 0.0;   ///< direction of level texts
    double textRotation = 0.0; ///< of a text that is turned; 0: as the style says
    bool isOrdinateX = false;  ///< measured along x
    std::optional<Vec2> leaderFrom{}; ///< of an arc's length: where a line to the arc comes from; nothing for none
    Vec2 leaderTo{};
    std::optional<Vec2> textAt{}; ///< middle of the text; nothing: where the style places it
    QString text{};               ///< in place of the measured value, which "<>" in it stands for; a blank for no text

    /// The length or angle (radians) that its points say.
    double measured() const;
};

/// Reads a DIMENSION, ARC_DIMENSION or LARGE_RADIAL_DIMENSION. Nothing for one of no known kind, without its points, or
/// with coordinates that are not finite or beyond 1e16.
std::optional<DimensionData> readDimension(const Drawing &drawing, RecordId entity, const TagList &tags);

/// The angle between two lines, or at a centre, on the side where a point lies: counter-clockwise from `start`.
struct AngleSpan
{
    Vec2 center{};
    double start = 0.0;
    double sweep = 0.0; ///< 0 to a full turn
};
AngleSpan angleOfLines(const DimensionData &data);
AngleSpan angleOfPoints(const DimensionData &data);

} // namespace host::drawing
