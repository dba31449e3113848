#pragma once

#include "host/drawing/annotation/DimensionPicture.h"

#include <QString>

namespace host::kernel {

class Document;

/// How large the current fonts write a text in that style of the drawing, or in Standard where it has no such style.
drawing::TextSize textSizeIn(Document &document, const QString &textStyle);

/// Whether these are the fields of a TEXT, ATTRIB or ATTDEF.
bool isLineOfText(const drawing::FieldList &fields);

/// A text's fields with the start of its letters (group 10), which follows from its own point (11) where it is
/// justified, whatever they say there or leave out. Others stay as they are.
drawing::FieldList completedText(Document &document, drawing::FieldList fields);

} // namespace host::kernel
