#pragma once

#include "host/drawing/records/Drawing.h"

namespace host::drawing {

enum class Measurement
{
    Imperial,
    Metric
};

/// An empty drawing of the newest version (AC1032): tables with their standard entries, model and paper space, the
/// named-object dictionary with layouts. Not modified, without a path.
std::unique_ptr<Drawing> newDrawing(Measurement measurement = Measurement::Metric);

} // namespace host::drawing
