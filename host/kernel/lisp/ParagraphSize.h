#pragma once

#include "host/drawing/selection/ImpliedFields.h"

namespace host::kernel {

class Document;

// How wide and high an MTEXT is (groups 42 and 43): programs see what the text takes now, in drawing units, whether its
// file says nothing, the same or something older. It is never taken from a program.

bool isParagraphSize(int code);

/// Puts the size in place of what the file says, or in where it says nothing. `fields` are the record's.
void showParagraphSize(const Document &document, const drawing::FieldList &fields,
                       std::vector<drawing::ShownField> &shown);

/// Whether a size in the file holds no more when the group changes.
bool shapesParagraph(int code);

} // namespace host::kernel
