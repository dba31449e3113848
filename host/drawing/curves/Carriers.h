#pragma once

#include "host/drawing/curves/EntityCurve.h"

namespace host::drawing {

// Lines on one straight line and arcs on one circle or ellipse: what they lie on is their carrier.

/// The numbers of those curves that share a carrier within `tolerance`, group by group: groups by their first member,
/// members in order. Curves other than lines, arcs, circles and ellipses are in no group. Costs n log n.
std::vector<std::vector<size_t>> groupsByCarrier(const std::vector<EntityCurve> &curves, double tolerance);

/// Where `other`, which shares the carrier of `curve`, lies along it: in parameters of `curve`, `from` below `to`. On a
/// round one it begins within half a round of the start of `curve` when it covers that start, and up to a round behind
/// it otherwise.
struct CarrierRange
{
    double from = 0.0;
    double to = 0.0;
};
CarrierRange rangeAlong(const EntityCurve &curve, const EntityCurve &other, double tolerance);

} // namespace host::drawing
