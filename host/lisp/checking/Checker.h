#pragma once

#include "host/lisp/checking/Finding.h"
#include "host/lisp/checking/Program.h"

#include <string>
#include <vector>

namespace host::lisp {
class Interpreter;
}

namespace host::lisp::checking {

/// A program's text to be looked at.
struct CheckedSource
{
    std::string name; ///< what findings call it
    std::string text; ///< UTF-8
    /// It is there for its functions, as a library is: nothing in it is told.
    bool isLibrary = false;
};

/// Looks at programs that belong together, without evaluating anything: what one defines the others know. Files that
/// they load are not looked at. Findings come sorted by file, in the order given, and place.
///
/// Variables are looked for where the dialect finds them: what a function sets may be a local of one that calls it, and
/// a local may be there for a function that is called. Text that becomes code (the actions of a dialog's tiles, where
/// written as one string; words in what `read` gets) counts. A name made at run time is not seen.
///
/// Costs a pass over the texts, and for every function with something to tell a walk through those it calls or is
/// called by.
std::vector<Finding> check(const std::vector<CheckedSource> &sources, const NativeArities &natives);

/// What an engine has without any program: built-ins, special forms, functions of the embedder and its modules.
NativeArities nativeArities(const Interpreter &interpreter);

} // namespace host::lisp::checking
