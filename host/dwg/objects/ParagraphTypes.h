#pragma once

#include "host/dwg/objects/Fields.h"

namespace host::dwg {

/// Reads the paragraph text that stands within an attribute from R2018 on, and notes it as the text form does behind
/// the attribute's own tags: group 101 and the groups of MTEXT without those of entities.
void readEmbeddedParagraphs(Fields &fields);

/// Reads a text of paragraphs, whose head was read, for its size alone.
TextSize readParagraphSize(Fields &fields);

} // namespace host::dwg
