#pragma once

#include "host/commands/annotate/NewDimension.h"

namespace host::kernel {

// The dialogues that commands of their own (DIMLINEAR ...) share with the subcommands of the dimension mode. Each makes
// or changes what it is asked to; false where a wrong answer, which was told, or an empty one ended it.

/// When a dimension's text is asked for.
enum class TextAsked
{
    AsOption, ///< by an option of the question for its place
    Behind    ///< always, as the dimension mode does
};

/// What a distance is measured along.
enum class LengthForm
{
    ByPlace, ///< x or y, by where the line goes, unless an option says another direction
    Horizontal,
    Vertical,
    Rotated, ///< the direction is asked for first
    Aligned
};

enum class RoundMeasure
{
    Diameter = 3, ///< as group 70 has them
    Radius = 4
};

enum class Chain
{
    Continued, ///< each begins where the one before ended
    Baseline   ///< all begin where the first did, their lines one above the other
};

Dialogue<bool> dimensionLength(CommandContext &context, LengthForm form, TextAsked asked);
Dialogue<bool> dimensionRound(CommandContext &context, RoundMeasure measure, TextAsked asked);
Dialogue<bool> dimensionAngle(CommandContext &context, TextAsked asked);
Dialogue<bool> dimensionOrdinate(CommandContext &context, TextAsked asked);
/// One dimension on from the last or a chosen one.
Dialogue<bool> dimensionOn(CommandContext &context, Chain chain);
Dialogue<bool> markCenter(CommandContext &context);
/// An arrow, its points up to an empty answer, and a text.
Dialogue<bool> drawDimensionLeader(CommandContext &context, QString usualText);

/// What DIMEDIT does behind its option: Home, New, Rotate or Oblique.
Dialogue<bool> editDimensions(CommandContext &context, QString option);
Dialogue<bool> placeDimensionText(CommandContext &context);
Dialogue<bool> overrideDimensionVariables(CommandContext &context);
/// A new value for a variable of new dimensions; `name` is that of one.
Dialogue<bool> setDimensionVariable(CommandContext &context, QString name);

/// What -DIMSTYLE does behind its option: Save, Restore, STatus, Variables, Apply, ANnotative or "?".
Dialogue<bool> takeDimensionStyleOption(CommandContext &context, QString option);

/// Asks for the text of a dimension with the measured one as the default, where it is asked for always.
Dialogue<bool> askTextBehind(CommandContext &context, TextAsked asked, QString measured, DimensionAnswers &answers);

} // namespace host::kernel
