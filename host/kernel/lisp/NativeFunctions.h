#pragma once

namespace host::lisp {
class Interpreter;
}

namespace host::kernel {

/// Defines the functions that work on the drawing, ask the user or run commands, in the engine of a document. The
/// kernel asks no more of them: they are defined above it, in the room of the functions.
void addNativeFunctions(lisp::Interpreter &interpreter);

} // namespace host::kernel
