#pragma once

#include "host/drawing/records/Drawing.h"

namespace host::kernel {

class CommandContext;

/// Opens a drawing that goes into another one, or is seen in it. Prints what of the file could not be read, in a line;
/// why the whole could not is the caller's to tell.
drawing::ReadResult openSource(CommandContext &context, const QString &path);

} // namespace host::kernel
