#pragma once

#include "host/drawing/records/Drawing.h"

namespace host::drawing {

/// What a dimension style says with what one dimension, leader or tolerance has in its place. Lengths are drawing units
/// before `scale`; what the drawing does not say has the values given here.
struct DimensionStyle
{
    double scale = 1.0;      ///< DIMSCALE, positive: all sizes are multiplied by it
    double arrowSize = 0.18; ///< DIMASZ
    double tickSize = 0.0;   ///< DIMTSZ: where positive, strokes of this size in place of all arrows

    // Lines.
    double extensionOffset = 0.0625; ///< DIMEXO: from the measured point to its extension line
    double extensionBeyond = 0.18;   ///< DIMEXE: how far extension lines go past the dimension line
    double lineBeyond = 0.0;         ///< DIMDLE: how far the dimension line goes past ticks
    double fixedExtension = 1.0;     ///< DIMFXL
    bool hasFixedExtension = false;  ///< DIMFXLON: extension lines are that long at most
    bool hidesFirstExtension = false;
    bool hidesSecondExtension = false;
    bool hidesFirstLine = false; ///< DIMSD1: the half of the dimension line at the first point
    bool hidesSecondLine = false;
    double centerMark = 0.09; ///< DIMCEN: size of the mark; negative: with lines past the circle; 0: none

    // Text.
    double textHeight = 0.18;
    double gap = 0.09;          ///< DIMGAP; negative: the text has a frame, as far away
    int textPlace = 0;          ///< DIMTAD: 0 in the line, 1 above it, 2 outside, 3 as 1, 4 below
    double textRise = 0.0;      ///< DIMTVP: of a text in the line, in text heights
    int justification = 0;      ///< DIMJUST: 0 middle, 1 at the first, 2 at the second extension line, 3 and 4 along it
    bool isLevelInside = true;  ///< DIMTIH: text between the extension lines runs along x
    bool isLevelOutside = true; ///< DIMTOH
    QString textStyle{};        ///< its name; empty for the standard one
    int textFill = 0;           ///< DIMTFILL: 0 nothing behind the text, 1 the ground, 2 textFillColour
    int textFillColour = 0;

    // Numbers; modes and zeros as linear and angular units have them.
    int lengthMode = 2;           ///< DIMLUNIT; 6 counts as 2
    int precision = 4;            ///< DIMDEC
    double rounding = 0.0;        ///< DIMRND
    double lengthFactor = 1.0;    ///< DIMLFAC; a negative one holds in paper space alone
    int zeros = 0;                ///< DIMZIN
    int decimalSign = u'.';       ///< DIMDSEP
    int fractions = 0;            ///< DIMFRAC: 0 one above the other, 1 aslant, 2 in the line
    QString affix{};              ///< DIMPOST: prefix<>suffix
    int angleMode = 0;            ///< DIMAUNIT
    int anglePrecision = 0;       ///< DIMADEC; negative: as precision
    int angleZeros = 0;           ///< DIMAZIN
    int arcSign = 0;              ///< DIMARCSYM: 0 in front of an arc's length, 1 above it, 2 none
    bool hasTolerance = false;    ///< DIMTOL
    bool hasLimits = false;       ///< DIMLIM: largest and smallest value in place of the measured one
    double upperTolerance = 0.0;  ///< DIMTP
    double lowerTolerance = 0.0;  ///< DIMTM, counted downwards
    double toleranceHeight = 1.0; ///< DIMTFAC, in text heights
    int tolerancePrecision = 4;
    int toleranceZeros = 0;
    int toleranceAlignment = 1; ///< DIMTOLJ: 0 at the bottom, 1 in the middle, 2 at the top of the value
    bool hasAlternate = false;  ///< DIMALT: a second value in other units, in brackets
    double alternateFactor = 25.4;
    int alternatePrecision = 2;
    double alternateRounding = 0.0;
    int alternateMode = 2;
    int alternateZeros = 0;
    QString alternateAffix{}; ///< DIMAPOST

    // Fitting.
    bool forcesLineInside = false; ///< DIMTOFL: a dimension line between the points though the arrows are outside
    bool forcesTextInside = false; ///< DIMTIX
    int fit = 3;                   ///< DIMATFIT: what goes outside first: 0 both, 1 arrows, 2 text, 3 what fits best
    int textMove = 0;              ///< DIMTMOVE: 1: a text away from its line has a leader to it

    // Colours by their index: 0 as the entity, 256 as its layer.
    int lineColour = 0;
    int extensionColour = 0;
    int textColour = 0;
    // Weights in hundredths of a millimetre, -1 by layer, -2 as the entity, -3 the default.
    int lineWeight = -2;
    int extensionWeight = -2;
    // Linetypes by name; empty as the entity.
    QString lineLinetype{};
    QString firstExtensionLinetype{};
    QString secondExtensionLinetype{};

    // Arrow heads: names of blocks or of built-in ones (see arrowheadNamed()), empty for the usual filled arrow.
    QString arrow{};
    QString firstArrow{};
    QString secondArrow{};
    bool hasTwoArrows = false; ///< DIMSAH: the first and second one count
    QString leaderArrow{};

    /// The arrow at the first or second end.
    const QString &arrowAt(bool isSecond) const;
};

/// The style that the entity names in group 3, with what its extended data (ACAD, DSTYLE) say in its place. Sizes that
/// are no sizes (negative, beyond 1e12) count as left out; a scale of 0 stands for the annotation scale in use.
/// Costs a pass over the style's tags for each group that it has.
DimensionStyle readDimensionStyle(const Drawing &drawing, const TagList &entity);

} // namespace host::drawing
