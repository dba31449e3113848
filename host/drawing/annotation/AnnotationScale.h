#pragma once

#include "host/drawing/records/Drawing.h"

namespace host::drawing {

/// How many drawing units a unit on paper stands for at the annotation scale in use in model space: 50 for "1:50".
/// Always positive; 1 in a drawing that names none. Costs a look for the drawing's list of scales.
double annotationFactor(const Drawing &drawing);

} // namespace host::drawing
