#pragma once

#include "host/kernel/running/Dialogue.h"

#include <QString>

namespace host::kernel {

class CommandContext;

/// A path as typed, quotes taken off, from the current folder, with the ending that drawings have here when it has
/// none.
QString drawingPath(const QString &typed);

/// Whether the file may be written, which the user is asked about where there is one already and EXPERT does not say
/// so. The command fails with the reason where a drawing or a lock stands in the way.
Dialogue<bool> mayReplaceFile(CommandContext &context, QString path);

} // namespace host::kernel
