#pragma once

#include "host/app/workbench/ProgramOptions.h"

#include <QList>
#include <QString>

#include <utility>

namespace host::app {

/// Runs the drafting tool that the command is named by over the drawings, without a person in front of its dialog.
int runTool(const ProgramOptions &options);

/// The keys of the tool's form with what is told of them, read off the dialog itself; none where it has none.
QList<std::pair<QString, QString>> keysOfTool(const ProgramOptions &options);

} // namespace host::app
