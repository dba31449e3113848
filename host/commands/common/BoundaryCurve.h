#pragma once

#include "host/drawing/curves/EntityCurve.h"

namespace host::kernel {

/// An entity as what areas are found with: curves but for leaders, and the edges of SOLID, TRACE and 3DFACE. Nothing
/// for all else.
std::optional<drawing::EntityCurve> boundaryCurve(const drawing::Drawing &drawing, drawing::RecordId entity);

} // namespace host::kernel
