#pragma once

#include "host/drawing/records/Drawing.h"

namespace host::drawing {

/// What the lengths of a new drawing mean: whether its units are millimetres or inches, and the sizes that go with it.
enum class Measurement
{
    Imperial,
    Metric
};

/// An empty drawing of the newest version (AC1032): tables with their standard entries, model and paper space, the
/// named-object dictionary with layouts ("Model", "Layout1"). Not modified, without a path. Never null. It is put
/// together anew at each call, which takes some milliseconds.
std::unique_ptr<Drawing> newDrawing(Measurement measurement = Measurement::Metric);

} // namespace host::drawing
