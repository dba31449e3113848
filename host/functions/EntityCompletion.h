#pragma once

#include "host/drawing/records/Drawing.h"

namespace host::kernel {

class Document;

// What follows from other groups of an entity is worked out for programs, as the commands that make such entities do.

/// A new text's fields with the start of its letters (group 10), which follows from its own point (11) where it is
/// justified, whatever the program says there or leaves out. Others stay as they are.
drawing::FieldList completedText(Document &document, drawing::FieldList fields);

/// The same for a text that a program changes: only where something changed that its place follows from.
drawing::FieldList completedText(Document &document, const drawing::FieldList &before, drawing::FieldList after);

/// Draws the block of a new dimension that names none, and those of the dimensions in a new block.
void completeDimensions(Document &document, drawing::RecordId made);

/// Draws a dimension's block anew where the change is one that shows. A block that the program named itself stays.
void followDimension(Document &document, drawing::RecordId dimension, const drawing::FieldList &before);

} // namespace host::kernel
