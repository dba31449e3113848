#pragma once

#include "host/drawing/references/NamedFiles.h"
#include "host/drawing/text/MacroExpression.h"
#include "platform/Export.h"

namespace host::kernel {

class Document;

/// What expressions in a document's drawing may ask for: its system variables, lengths and angles as it writes them,
/// and files that the drawing names, where they may be read. Nothing of the environment. Valid while the document
/// lives.
KV_EXPORT drawing::MacroSurroundings expressionSurroundings(Document &document);

/// The same for a drawing that is no open document, with the variables that it has by itself. `readable` says which of
/// the files that it names may be read; none without it. Valid while the drawing lives.
KV_EXPORT drawing::MacroSurroundings expressionSurroundings(const drawing::Drawing &drawing,
                                                            drawing::ReadableFiles readable = {});

} // namespace host::kernel
