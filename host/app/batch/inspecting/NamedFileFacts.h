#pragma once

#include "host/drawing/records/Drawing.h"
#include "host/drawing/references/NamedFiles.h"

#include <QJsonArray>

namespace host::app {

/// The files that a drawing names beside fonts: external drawings, pictures, underlays, plot styles. Each with "kind",
/// "name" as the drawing has it, "found", and where it was, "path".
QJsonArray referenceFacts(const drawing::Drawing &drawing, const drawing::ReadableFiles &readable);

/// The fonts that its text styles ask for: "name", "styles", "found", and what is drawn in their place where they are
/// not, "replacedBy".
QJsonArray fontFacts(const drawing::Drawing &drawing, const drawing::ReadableFiles &readable);

} // namespace host::app
