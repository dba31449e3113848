#pragma once

namespace ortakit {

/// The command setbackupfolder: asks for the folder in which the host keeps the older version of a drawing that is
/// saved, and leaves it in the host's settings. "~" opens a folder chooser, "." means no folder any more, Enter keeps
/// the one that is set. A folder that does not exist is refused with a message; a cancelled prompt changes nothing.
/// Gives Lisp no result. -5001 without an active document or its Lisp engine.
int setBackupFolder();

} // namespace ortakit
