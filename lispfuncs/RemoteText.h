#pragma once

namespace ortakit {

/// Places a remote text in the active space: (CreateRtext contents rotation height expression), of the types string,
/// real (radians), real, string. An expression that is not empty is what the text shows the value of, in place of the
/// contents, which otherwise name a text file. The text is at the origin, and its entity name goes back to Lisp. Fewer
/// arguments or one of another type, an integer for a real too, make nothing and set no result. Gives 5100; -5001
/// without an active document or its Lisp engine.
///
/// Throws OdError as the database does, when remote texts are not loaded or cannot be in the drawing; it is unchanged
/// then.
int createRtext();

} // namespace ortakit
