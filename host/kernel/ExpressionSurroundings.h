#pragma once

#include "host/drawing/MacroExpression.h"
#include "platform/Export.h"

namespace host::drawing {
class Drawing;
}

namespace host::kernel {

class Document;

/// What expressions in a document's drawing may ask for: its system variables, and lengths and angles as it writes
/// them. Nothing of the environment. Valid while the document lives.
KV_EXPORT drawing::MacroSurroundings expressionSurroundings(const Document &document);

/// The same for a drawing that is no open document, with the variables that it has by itself.
KV_EXPORT drawing::MacroSurroundings expressionSurroundings(const drawing::Drawing &drawing);

} // namespace host::kernel
