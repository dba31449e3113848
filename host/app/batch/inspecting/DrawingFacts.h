#pragma once

#include "host/drawing/records/Drawing.h"
#include "host/drawing/references/NamedFiles.h"

#include <QJsonObject>

namespace host::app {

/// What a drawing is and holds, as JSON:
///
/// - version, code, form ("text", "binary"), encoding, size (bytes), created, updated, savedBy, title, author, ...
/// - units, measurement, extents ({"header", "measured"} of model space, each [[x,y,z],[x,y,z]] or missing)
/// - entities: count, inBlocks, byType, byLayer: those of spaces and sheets
/// - layers, blocks, layouts, textStyles, linetypes, dimensionStyles, fonts, references, classes: lists of objects
/// - proxies, handles: numbers
///
/// `readable` says what of the files that it names may be looked for. One pass over the drawing, and building what of
/// model space is shown for the measured extents.
QJsonObject drawingFacts(const drawing::Drawing &drawing, const drawing::ReadableFiles &readable);

/// The same in lines with a heading each.
QString factsText(const QJsonObject &facts);

} // namespace host::app
