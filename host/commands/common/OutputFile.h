#pragma once

#include "host/kernel/running/Dialogue.h"

#include <QString>

namespace host::kernel {

class CommandContext;

/// Whether the file may be written, which the user is asked about where there is one already and EXPERT does not say
/// so. The command fails with the reason where a drawing or a lock stands in the way.
Dialogue<bool> mayReplaceFile(CommandContext &context, QString path);

} // namespace host::kernel
