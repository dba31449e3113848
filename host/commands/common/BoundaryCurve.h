#pragma once

#include "host/drawing/curves/EntityCurve.h"
#include "host/drawing/math/WorkBudget.h"

#include <QSet>

namespace host::kernel {

/// An entity as what areas are found with: curves but for leaders, and the edges of SOLID, TRACE and 3DFACE. Nothing
/// for all else.
std::optional<drawing::EntityCurve> boundaryCurve(const drawing::Drawing &drawing, drawing::RecordId entity);

/// The names of the layers that are off or frozen, in upper case.
QSet<QString> hiddenLayerNames(const drawing::Drawing &drawing);

/// The curve of an entity, or all that it shows: those of a block reference and a dimension, nested ones too, but for
/// what is on hidden layers, and the edges of regions. What references show takes from `work`.
std::vector<drawing::EntityCurve> shownCurves(const drawing::Drawing &drawing, drawing::RecordId entity,
                                              const QSet<QString> &hiddenLayers, drawing::WorkBudget &work);

} // namespace host::kernel
