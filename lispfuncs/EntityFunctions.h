#pragma once

namespace ortakit {

/// (KORA_entfield entity field [tag]) as an external Lisp function of the active document: one field of an entity by
/// its group code or name; with a tag, of the attribute that has it. What it takes and gives is in
/// docs/lisp-functions.md. Sets the Lisp variable LispCanceled to 0.
int koraEntField();

} // namespace ortakit
