#pragma once

namespace ortakit {

/// The prompting functions that take option bits and keywords as arguments, as external Lisp functions of the active
/// document. Strings stand in the order of the forms; T, nil and the base point say what is what. Each sets the Lisp
/// variable LispCanceled to 0, and to 1 when the user cancelled. The value or the keyword goes back; nil for an empty
/// answer and a cancelled request. Wrong arguments are an error, which the command line explains.
/// @{
/// (KORA_getpoint [bits] [keywords] [base] [prompt])
int koraGetPoint();
/// (KORA_getstring [bits] [keywords] [T|nil] [prompt [default]])
int koraGetString();
/// (KORA_getkword [bits] [keywords] [prompt [options [default]]])
int koraGetKword();
/// @}

} // namespace ortakit
