#pragma once

#include "host/commands/annotate/Justification.h"
#include "host/drawing/math/Vec.h"
#include "host/kernel/running/Dialogue.h"

#include <optional>

namespace host::kernel {

class CommandContext;

/// Where a text stands and how; points are in world coordinates, the angle is the user's.
struct TextPlace
{
    const Justification *justification = &leftJustification();
    drawing::Vec3 first;
    drawing::Vec3 second; ///< of a stretched text
    double height = 0.0;
    double angle = 0.0;   ///< radians
    bool isBelow = false; ///< goes on from the text before, with its height and angle
};

/// Asks where the text starts, with its justification and style. Nothing when the dialogue ended there.
Dialogue<std::optional<TextPlace>> askTextStart(CommandContext &context);

/// Asks for height and angle where neither the style nor the points say them.
Dialogue<TextPlace> askTextSize(CommandContext &context, TextPlace place);

/// The fields of a TEXT or ATTDEF, which begin with type and content, with its place in the user's plane and the
/// current style. Empty when there can be none there, which was told.
drawing::FieldList placedText(CommandContext &context, drawing::FieldList fields, const TextPlace &place);

/// Keeps the height as the default of the next text.
void keepTextSize(CommandContext &context, const TextPlace &place);

} // namespace host::kernel
