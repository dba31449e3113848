#pragma once

#include "host/drawing/math/Matrix.h"
#include "host/drawing/records/Record.h"

#include <vector>

namespace host::kernel {

class CommandContext;

// What the editing commands do with the entities that were chosen. What cannot be done to one of them is counted and
// told; the others are done.

/// Those of the entities that may be changed: not on locked layers.
std::vector<drawing::RecordId> editable(CommandContext &context, std::vector<drawing::RecordId> entities);
/// Takes entities out for good, with what they own in the drawing's objects.
void eraseAll(CommandContext &context, const std::vector<drawing::RecordId> &entities);
/// What eraseAll() took out, for a command's own Undo. Those that are there stay as they are.
void bringBack(CommandContext &context, const std::vector<drawing::RecordId> &entities);
/// As eraseAll(), of entities that OOPS brings back, with all that goes with them. Looks at every record.
void takeOut(CommandContext &context, const std::vector<drawing::RecordId> &entities);
/// What was erased is what OOPS brings back.
void rememberTakenOut(CommandContext &context, std::vector<drawing::RecordId> records);
/// Whether so many copies of so many entities may be made; the command fails with the reason otherwise.
bool mayCopy(CommandContext &context, std::size_t entities, double copies);
void transformAll(CommandContext &context, const std::vector<drawing::RecordId> &entities,
                  const drawing::Matrix &matrix);
/// Mirrors them; what MIRRTEXT says becomes of their texts.
void mirrorAll(CommandContext &context, const std::vector<drawing::RecordId> &entities, const drawing::Matrix &matrix);
/// Copies, moved by the matrix; the originals stay as they are. Returns the copies.
std::vector<drawing::RecordId> copyAll(CommandContext &context, const std::vector<drawing::RecordId> &entities,
                                       const drawing::Matrix &matrix);

} // namespace host::kernel
