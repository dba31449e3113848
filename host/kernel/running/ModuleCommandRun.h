#pragma once

#include "host/kernel/input/UserInput.h"

class OdEdCommand;

namespace host::kernel {

class Document;

/// Runs a command that a module brought on `document`, from its start to its end. What it asks is answered by `given`
/// as long as there is some, then by the user. Returns how many of `given` were used.
std::size_t runModuleCommand(Document &document, OdEdCommand &command, GivenAnswers given = {});

} // namespace host::kernel
