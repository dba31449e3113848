#pragma once

#include "host/kernel/documents/Document.h"
#include "host/kernel/running/Dialogue.h"

#include <QString>

#include <optional>

namespace host::kernel {

class CommandContext;

/// A name to save under, as drawingPath() has it; nothing when none was given.
Dialogue<std::optional<QString>> askName(CommandContext &context);

/// Saves a document, which need not be the command's own, under the path, or under another one that is asked for when
/// something stands against it; asks before an existing other file is replaced, unless EXPERT is 2 or more. False when
/// nothing was written, with no path either; what stood against it has been printed.
Dialogue<bool> saveUnder(CommandContext &context, Document &document, std::optional<QString> path);

} // namespace host::kernel
