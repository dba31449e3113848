#pragma once

#include "host/drawing/tags/Tag.h"
#include "host/kernel/running/Dialogue.h"

#include <QString>

#include <optional>

namespace host::kernel {

class CommandContext;

/// Where a line of text stands at its points.
struct Justification
{
    const char *option;      ///< as prompts list it: "Center", "TL"
    const char *pointPrompt; ///< of its point, or of the first of two
    int horizontal = 0;      ///< groups 72 and 73 of a TEXT
    int vertical = 0;

    bool isLeft() const { return horizontal == 0 && vertical == 0; }
    /// Runs from one point to another: the second decides on its direction and size.
    bool isStretched() const { return isAligned() || isFitted(); }
    bool isAligned() const { return horizontal == 3; }
    bool isFitted() const { return horizontal == 5; }
};

/// The usual one: at the left end of the base line.
const Justification &leftJustification();
/// The one that the option names; null for none.
const Justification *justificationOf(const QString &option);
/// The one with these groups 72 and 73; null for none.
const Justification *justificationOf(int horizontal, int vertical);
/// All options with a blank between, for prompts that take them without listing them.
QString justificationOptions();

/// Asks which one; nothing for an empty answer.
Dialogue<const Justification *> askJustification(CommandContext &context);

/// The alignment of a text's fields (groups 10, 11, 72, 73) at its points, in object coordinates; `second` counts for
/// stretched ones. The height of an aligned and the width factor of a fitted text follow from `letters`: what the text
/// covers, seen from its left end, as it would be without the alignment.
void justify(drawing::FieldList &text, const Justification &justification, const drawing::Vec3 &first,
             const drawing::Vec3 &second, const drawing::Box &letters);

} // namespace host::kernel
