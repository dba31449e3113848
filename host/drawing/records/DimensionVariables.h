#pragma once

#include "host/drawing/records/Drawing.h"

#include <span>
#include <variant>

namespace host::drawing {

/// What the format knows of one variable of dimensions: DIMSCALE and the like. The header has the values for dimensions
/// to come, each record of the DIMSTYLE table those of its style; the kinds and the meaning are the same in both.
struct DimensionVariable
{
    using Value = std::variant<int, double, const char *>;

    const char *name; ///< upper case, without the $ of the header
    int headerCode;   ///< the group of its value in the header
    /// The group in a style's record; 0 for what a style does not have. From 340 on it leads to a block, text style or
    /// linetype, which the header names.
    int styleCode;
    Version since;  ///< the first version whose header has it
    Value imperial; ///< what counts where a drawing does not say it, in inches
    Value metric;   ///< the same in millimetres, of the same kind
    double low = 0.0;
    double high = 0.0;                   ///< a number must lie between them, where low is below high
    Version until = Version{2147483647}; ///< the last version whose header has it
};

/// All of them, sorted by name.
std::span<const DimensionVariable> dimensionVariables();
/// The row of a name in any letter case, with or without a $; null for another name.
const DimensionVariable *dimensionVariable(QStringView name);

/// What counts in `drawing` where its header lacks the variable: the metric or the imperial value, as its MEASUREMENT
/// says. A Field under the row's group of the header.
Field usualValue(const Drawing &drawing, const DimensionVariable &variable);

} // namespace host::drawing
