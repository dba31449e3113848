#pragma once

namespace ortakit {

/// The prompting functions, as external Lisp functions of the active document.
///
/// Each sets the Lisp variable LispCanceled to 0, takes a base point, T or nil and a prompt in any order, and asks the
/// user. The value goes back to Lisp; a keyword goes back as the string that was entered. Any other outcome is handed
/// on as the host's code, a cancelled request among them, which cancels the calling expression; only getPointOrtakit
/// turns a cancelled request into nil. Without an active document or its Lisp engine they give -5001.
/// @{
int getIntOrtakit();
int getStringOrtakit();
/// Puts the option bits back to 0 before it asks; the other functions leave them in force.
int getPointOrtakit();
int getKwordOrtakit();
int getRealOrtakit();
int getDistOrtakit();
int getCornerOrtakit();
int getAngleOrtakit();
/// @}

/// Sets the option bits of the prompts that follow, in every document: (initgetOrtakit [bits] [text]). No bits means 0;
/// the text is not used. The bits stay until the next call or until a point is asked for.
int initgetOrtakit();

} // namespace ortakit
