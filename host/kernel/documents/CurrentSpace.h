#pragma once

#include "host/drawing/records/Entities.h"

#include <optional>

namespace host::kernel {

/// The space that TILEMODE makes current: new entities go there, "all" and picks look there.
drawing::Space currentSpace(const drawing::Drawing &drawing);

/// Name of the layout tab that is current: "Model" or that of the paper space in use.
QString currentLayout(const drawing::Drawing &drawing);

/// The layout's name as the drawing spells it: "Model", or the paper space in use; empty for any other name.
QString layoutName(const drawing::Drawing &drawing, const QString &name);

/// A corner of the limits of the layout whose paper space is in use: the lower left under group 10, the upper right
/// under 11. Nothing in drawings without layouts.
std::optional<drawing::Vec2> layoutLimit(const drawing::Drawing &drawing, int code);
void setLayoutLimit(drawing::Drawing &drawing, int code, const drawing::Vec2 &corner);

} // namespace host::kernel
