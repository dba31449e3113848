#pragma once

#include "host/app/uses/Use.h"

namespace host::app {

/// Reads the arguments behind the program's name.
ProgramOptions parseArguments(const QStringList &arguments);

/// The text of --help for the use that the options name.
QString helpText(const ProgramOptions &options);

} // namespace host::app
