#pragma once

#include "platform/kernel/CKvDocument.h"
#include "platform/kernel/CKvLispEngine.h"

#include <optional>

namespace ortakit {

/// The document and the engine that a function was called in.
struct LispCall
{
    CKvDocument &document;
    CKvLispEngine &lisp;
};

/// An argument that cannot be, or cannot be where it is; the text is a sentence for the user. Thrown by what reads
/// arguments, caught by runCall().
struct ArgumentError
{
    QString text;
};

/// Throws the ArgumentError of a text, in the user's language.
[[noreturn]] void failArgument(const char *text);

/// The running call, with the Lisp variable LispCanceled set to 0; nothing without a document, its engine or its user
/// input.
std::optional<LispCall> beginCall();

/// The body of a function called `name`: begins the call and runs `body`. An ArgumentError is told on the command line
/// and makes the call an error. Returns the code of the function.
int runCall(const char *name, int (*body)(LispCall &call));

/// What a function gives when the user cancelled: nil, with LispCanceled set to 1 so that the program can tell this
/// from an empty answer.
int giveCancelled(LispCall &call);
int giveNil(LispCall &call);

/// What a request to the user came to, when it was no value: a keyword as text, nil for an empty answer and for a
/// cancelled one. Any other code is the function's own.
int giveNoValue(LispCall &call, int code);

} // namespace ortakit
