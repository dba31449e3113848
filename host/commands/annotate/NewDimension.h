#pragma once

#include "host/commands/common/TextSizes.h"
#include "host/commands/common/UserPlane.h"
#include "host/drawing/annotation/DimensionPicture.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/running/Dialogue.h"

namespace host::kernel {

/// What the user says about a dimension's text while he is asked where its line goes.
struct DimensionAnswers
{
    QString text{};                    ///< in place of the measured value; empty: that value
    std::optional<double> textAngle{}; ///< user's, radians
};

/// A question for the place of a dimension's line, whose options Mtext, Text and Angle are dealt with here.
struct LineQuestion
{
    QString prompt; ///< with its options in brackets
    std::optional<drawing::Vec3> base{};
    QString measured{}; ///< as a default text is shown
};
/// Asks until there is a point, or an option that is the command's own.
Dialogue<PromptReply> askDimensionLine(CommandContext &context, LineQuestion question, DimensionAnswers &answers);

/// Makes a DIMENSION from its kind (group 70) and points, in the user's plane, with the current style and its
/// overrides, draws its block and tells the measured value. DIMASSOC 0 leaves the entities of the picture in its place.
/// `fields` begin with the type; of one that is not DIMENSION what its own part has follows behind its marker (100).
/// noRecord when it could not be made, which was told.
drawing::RecordId createDimension(CommandContext &context, drawing::FieldList fields, const DimensionAnswers &answers);

/// Draws a changed dimension anew.
void redrawDimension(CommandContext &context, drawing::RecordId dimension, bool movesTextHome = false);

/// Whether the entity is of a kind that these commands deal with.
bool isDimension(const drawing::Drawing &drawing, drawing::RecordId entity);

/// The current dimension style, by its name in the drawing; made where the drawing lacks it.
QString currentDimensionStyle(CommandContext &context);

/// The angle between the object coordinates' x axis and a user's direction, as group 50 has it: 0 to 360.
double plainDegrees(double degrees);

} // namespace host::kernel
