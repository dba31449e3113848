#pragma once

namespace ortakit {

/// Brings the module's commands to its host. They are for Lisp tools. Those that show a dialog, which has no external
/// function, are run by (command NAME STATE-FILE), and the outcome is in the state file.
void addCommands();

/// Takes them away again.
void removeCommands();

} // namespace ortakit
