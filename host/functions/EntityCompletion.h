#pragma once

#include "host/drawing/records/Drawing.h"
#include "host/kernel/documents/TextSizes.h"

namespace host::kernel {

class Document;

// What follows from other groups of an entity is worked out for programs, as the commands that make such entities do.

/// completedText() for a text that a program changes: only where something changed that its place follows from.
drawing::FieldList completedText(Document &document, const drawing::FieldList &before, drawing::FieldList after);

/// Draws the block of a new dimension that names none, and those of the dimensions in a new block.
void completeDimensions(Document &document, drawing::RecordId made);

/// Draws a dimension's block anew where the change is one that shows. A block that the program named itself stays.
void followDimension(Document &document, drawing::RecordId dimension, const drawing::FieldList &before);

} // namespace host::kernel
