#pragma once

#include "host/drawing/math/Matrix.h"
#include "host/drawing/records/Drawing.h"
#include "host/kernel/documents/CommandMemory.h"

#include <optional>

namespace host::kernel {

class CommandContext;

// The user coordinate system of the space that is worked on: model space and the sheets have one each.

UserSystem currentSystem(CommandContext &context);
/// Makes another one current; the one before becomes the previous one.
void useSystem(CommandContext &context, const UserSystem &system);
/// Makes the previous one current, and forgets it. False when there is none.
bool usePreviousSystem(CommandContext &context);

/// The system that an entry of the table holds.
UserSystem namedSystem(const drawing::Drawing &drawing, drawing::RecordId entry);
/// Its name in quotes or what stands for it: "*WORLD*", "*NO NAME*".
QString systemTitle(const UserSystem &system);

/// The axes that an entity suggests, as it was picked at a world point: a circle's plane, a line's direction, a text's.
/// Nothing of types that suggest none.
std::optional<drawing::Matrix> axesOfEntity(const drawing::Drawing &drawing, drawing::RecordId entity,
                                            const drawing::Vec3 &picked);

/// Axes with this origin and x axis, in the plane of `near` as far as the x axis allows. Nothing when x has no length.
std::optional<drawing::Matrix> axesAlong(const drawing::Vec3 &origin, const drawing::Vec3 &x,
                                         const drawing::Vec3 &near);

/// The axes that the six orthographic views look at straight on, by their option ("Top", "BAck"); the world's for
/// another word.
drawing::Matrix orthographicAxes(const QString &option);

} // namespace host::kernel
