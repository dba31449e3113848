#pragma once

#include "host/drawing/annotation/DimensionPicture.h"

#include <QString>

namespace host::kernel {

class CommandContext;

/// How large the current fonts write a text in that style of the drawing.
drawing::TextSize dimensionTextSize(CommandContext &context, const QString &textStyle);

} // namespace host::kernel
