#pragma once

namespace ortakit {

/// Brings the module's commands to its host. They are for Lisp tools, which run them by (command NAME STATE-FILE) and
/// read the outcome in the state file: their dialogs have no external function.
void addCommands();

/// Takes them away again.
void removeCommands();

} // namespace ortakit
