#pragma once

#include "host/app/workbench/ProgramOptions.h"

namespace host::app {

// The program's work without a window. Results go to standard output, messages to standard error; each returns the
// status to end the program with. None of them waits for a person: a dialog or prompt that nobody answers is rejected.

/// Plays the session over each drawing, else over the one that it is for; each of its cases over the drawing opened
/// anew.
int runSessions(const ProgramOptions &options);
/// Loads the Lisp files.
int runLispFiles(const ProgramOptions &options);
/// Evaluates what is typed or piped in, form by form.
int promptForLisp(const ProgramOptions &options);
/// Reads the Lisp files and tells what looks wrong in them; nothing in them is run.
int checkLispFiles(const ProgramOptions &options);
/// Runs the tests that the Lisp files define, each on a drawing of its own.
int testLispFiles(const ProgramOptions &options);
/// Opens one file and writes it as another.
int convertDrawing(const ProgramOptions &options);
/// Tells what drawings are and hold.
int tellDrawings(const ProgramOptions &options);
/// Tells what is wrong with drawings, and writes mended ones where that is wanted.
int auditDrawings(const ProgramOptions &options);
/// Tells what differs in two drawings: ExitDone when nothing does, ExitFailed when something does.
int diffDrawings(const ProgramOptions &options);
/// Prints the functions, commands and variables that programs find in a new drawing.
int listNames(const ProgramOptions &options);

} // namespace host::app
