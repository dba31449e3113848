#pragma once

#include "host/drawing/records/Drawing.h"

#include <optional>

namespace host::drawing {

/// What the annotative entities of model space are shown at.
struct AnnotationView
{
    QString scale{};      ///< the name of the scale in use; empty in a drawing that names none
    bool showsAll = true; ///< also what has no representation for that scale
};
AnnotationView annotationView(const Drawing &drawing);

/// How many drawing units a unit on paper stands for, by a SCALE object; nothing where its numbers say none.
std::optional<double> scaleFactor(const TagList &scale);

/// How many drawing units a unit on paper stands for at the annotation scale in use in model space: 50 for "1:50".
/// Always positive; 1 in a drawing that names none. Costs a look for the drawing's list of scales.
double annotationFactor(const Drawing &drawing);

} // namespace host::drawing
