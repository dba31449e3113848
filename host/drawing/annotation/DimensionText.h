#pragma once

#include "host/drawing/annotation/DimensionData.h"
#include "host/drawing/annotation/DimensionStyle.h"

namespace host::drawing {

/// A measured length as the style writes it, with what stands before and behind it, tolerances and alternate units: a
/// multi-line text with its codes.
QString measuredText(const DimensionStyle &style, double length);
/// The same of an angle in radians.
QString measuredAngleText(const DimensionStyle &style, double angle);

/// What the dimension shows: its own text with the measured value for each "<>" in it, or that value. Empty where it
/// says a blank.
QString dimensionText(const DimensionData &data, const DimensionStyle &style);

} // namespace host::drawing
