#pragma once

#include "host/drawing/math/Vec.h"

#include <optional>
#include <vector>

namespace host::kernel {

// Circles and arcs in a plane. Angles and directions are in radians.

/// So far in a direction.
drawing::Vec2 polar(double direction, double length);
/// How far an arc round a centre turns left from one point to the direction of another: up to once round, never 0.
double turnAround(drawing::Vec2 centre, drawing::Vec2 from, drawing::Vec2 to);
/// An angle in degrees as records have it: from 0 up to a whole turn, which rounding does not reach.
double settledDegrees(double degrees);
/// The point turned round a centre.
drawing::Vec2 turnedRound(drawing::Vec2 point, drawing::Vec2 centre, double angle);

/// The centre of the circle through three points; nothing when they lie in one line or two of them are one.
std::optional<drawing::Vec2> circleCentre(drawing::Vec2 first, drawing::Vec2 second, drawing::Vec2 third);

// The bulge of a polyline segment is the tangent of a quarter of its arc's angle, positive to the left.

/// The arc that leaves `from` in a direction (radians) and ends at `to`.
double bulgeAlong(drawing::Vec2 from, double direction, drawing::Vec2 to);
/// The arc through a point between.
double bulgeThrough(drawing::Vec2 from, drawing::Vec2 between, drawing::Vec2 to);
/// The arc with that angle in radians, positive to the left; a whole turn is no arc and gives infinity.
double bulgeOfAngle(double angle);
/// The direction in which the arc arrives at `to`.
double arrivalDirection(drawing::Vec2 from, drawing::Vec2 to, double bulge);

/// Where two circles meet: none, one or two points. A zero radius is a point.
std::vector<drawing::Vec2> circleMeetings(drawing::Vec2 first, double firstRadius, drawing::Vec2 second,
                                          double secondRadius);

} // namespace host::kernel
