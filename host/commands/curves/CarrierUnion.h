#pragma once

#include "host/drawing/curves/EntityCurve.h"

#include <vector>

namespace host::kernel {

class CommandContext;

/// An entity with its curve, as commands that put several together go through them.
struct CurvePart
{
    drawing::RecordId entity = drawing::noRecord;
    drawing::EntityCurve curve;
};
using CurveParts = std::vector<CurvePart>;

/// Ends, and places on one carrier (see groupsByCarrier()), that are this near count as one.
constexpr double sameCurveEnd = 1e-6;

/// Makes an arc a circle, or an elliptic arc a whole ellipse.
void closeRound(CommandContext &context, const CurvePart &part);
/// Makes the first part run from where the first of them all begins to where the last one ends, gaps included; round
/// ones that come all round are closed. All share its carrier. The others stay. False when the drawing refuses it.
bool uniteOnCarrier(CommandContext &context, const CurveParts &parts);

} // namespace host::kernel
