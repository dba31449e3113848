#pragma once

#include "host/drawing/records/Tables.h"
#include "host/kernel/running/Dialogue.h"

#include <QString>

#include <functional>
#include <optional>

namespace host::kernel {

class CommandContext;

// Questions for the names of table entries, as commands over views, coordinate systems and viewports ask them.

/// Those whose names match a list of patterns with commas between, in file order.
std::vector<drawing::RecordId> matchingEntries(CommandContext &context, drawing::TableKind kind,
                                               const QString &patterns);

/// Asks which entries to list, and prints a line for each, which `line` makes.
Dialogue<bool> listEntries(CommandContext &context, drawing::TableKind kind, QString prompt,
                           std::function<QString(drawing::RecordId)> line);

/// Asks for a name; "?" lists the entries first and asks again. Nothing for an empty answer. `usual` is what that
/// means where there is something.
Dialogue<std::optional<QString>> askEntryName(CommandContext &context, drawing::TableKind kind, QString prompt,
                                              QString usual = {});

/// The entry of a name that was asked for; noRecord, with the command failed, when there is none.
drawing::RecordId neededEntry(CommandContext &context, drawing::TableKind kind, const QString &what,
                              const QString &name);

} // namespace host::kernel
