#pragma once

#include "host/kernel/input/PromptRequest.h"
#include "host/lisp/Value.h"

namespace host::kernel {

class Document;

/// A Lisp value as the answer to a prompt, as (command ...) takes it: text, numbers, points in user coordinates,
/// entity names, a list of entity name and pick point, selection sets; nil cancels. Nothing for other values, which
/// (command) refuses with an error.
std::optional<InputAnswer> answerFromValue(const Document &document, const lisp::Value &value);

} // namespace host::kernel
