#pragma once

#include "host/drawing/Tag.h"

namespace host::kernel {

class Document;

// Width and height of what an MTEXT shows (groups 42 and 43). They follow from the rest: programs see them as the text
// is now, whatever its file says, and cannot set them.

/// The fields with the size as it is.
drawing::FieldList withParagraphSize(const Document &document, drawing::FieldList fields);

/// Gives sizes that come back from a program the values of the entity's own fields; takes them out where it has none.
void keepParagraphSize(drawing::FieldList &given, const drawing::FieldList &own);

/// Takes the sizes out of changed fields where they are wrong now.
void dropOldParagraphSize(drawing::FieldList &changed, const drawing::FieldList &before);

} // namespace host::kernel
