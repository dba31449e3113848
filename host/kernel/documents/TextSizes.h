#pragma once

#include "host/drawing/annotation/DimensionPicture.h"

#include <QString>

namespace host::kernel {

class Document;

/// How large the current fonts write a text in that style of the drawing, or in Standard where it has no such style.
drawing::TextSize textSizeIn(Document &document, const QString &textStyle);

} // namespace host::kernel
