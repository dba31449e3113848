#pragma once

#include "host/drawing/records/DimensionVariables.h"

namespace host::drawing {

/// What the value of a dimension variable is.
enum class DimensionValue
{
    Real,
    Integer,
    Text,
    Arrow,     ///< name of a block or of a built-in arrow head; a style holds the block's handle
    TextStyle, ///< name; a style holds its handle
    Linetype   ///< likewise
};

DimensionValue kindOf(const DimensionVariable &variable);
/// Whether styles and overrides have it, under its group of a style. DIMTFILLCLR is left out: its group in a style is
/// that of the style's flags.
bool isOfStyles(const DimensionVariable &variable);

// The variables that these take are of styles.

/// What a style says about a variable, in the form of the header (names in place of handles). `style` are the fields of
/// a DIMSTYLE entry.
Field valueInStyle(const Drawing &drawing, const FieldList &style, const DimensionVariable &variable);
/// What the header says, where it does.
std::optional<Field> valueInHeader(const Drawing &drawing, const DimensionVariable &variable);
/// A value of the header in the form of a style. Blocks of built-in arrow heads that the drawing lacks are made.
Field fieldOfStyle(Drawing &drawing, const DimensionVariable &variable, const Field &value);

/// The variables whose values in the header differ from those of the style, in the form of a style: what a dimension
/// that is made now has in place of what its style says. Empty for a style that the drawing does not have.
FieldList currentOverrides(Drawing &drawing, const QString &style);
/// Makes the header say what the style says, and the style the current one.
void makeStyleCurrent(Drawing &drawing, RecordId style);
/// Makes a style, new or already there, say what the header says. noRecord for a name that no entry may have.
RecordId saveStyle(Drawing &drawing, const QString &name);

/// The overrides that an entity has in its extended data, in the form of a style.
FieldList overridesOf(const FieldList &entity);
/// Gives it these in their place; what else the same application noted stays.
void setOverrides(FieldList &entity, const FieldList &overrides);

/// Name of the block that draws an arrow head, made where the drawing lacks it. Empty for the usual arrow, which has
/// none, and for a name of neither a block nor an arrow head.
QString ensureArrowBlock(Drawing &drawing, const QString &name);

} // namespace host::drawing
