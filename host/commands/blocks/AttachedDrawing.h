#pragma once

#include "host/drawing/records/Blocks.h"

#include <QString>

#include <memory>
#include <optional>

namespace host::kernel {

class CommandContext;

// Files that external references of the drawing stand for.

/// The path that a new reference to the file keeps, as REFPATHTYPE says. A drawing without a place of its own has full
/// ones.
QString keptPath(CommandContext &context, const QString &path);

/// Where the drawing of a reference is; empty when it is not to be had.
QString fileOfReference(CommandContext &context, const drawing::Block &block);

/// Reads a drawing; null, with the reason printed, when it cannot be read here, as one in another form.
std::unique_ptr<drawing::Drawing> readAttached(CommandContext &context, const QString &path);

/// Whether the drawing at `path` shows, by its attached references, the one that the command works in.
bool showsThisDrawing(CommandContext &context, const drawing::Drawing &source);

/// How many units of the drawing one of `source` measures; 1 where one of them does not say its unit.
double unitFactor(CommandContext &context, const drawing::Drawing &source);

/// Brings what the reference's file names into the tables, and prints that it is loaded. False, with the reason
/// printed, when the file cannot be had.
bool loadReference(CommandContext &context, const drawing::Block &block);

/// Makes the reference a block, as BINDTYPE says, and those that are seen through it as well. Overlays within it, and
/// what would show a drawing within itself, are left out. The command fails with the reason when the file is not there.
void bindWithNested(CommandContext &context, const drawing::Block &block);

} // namespace host::kernel
