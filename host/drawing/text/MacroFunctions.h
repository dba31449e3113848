#pragma once

#include "host/drawing/text/MacroExpression.h"

#include <vector>

namespace host::drawing {

using MacroArguments = std::vector<QString>;

/// A function of macro expressions that works on the values of its arguments alone.
struct MacroFunction
{
    QLatin1StringView name;
    std::size_t fewest; ///< arguments
    std::size_t most;
    /// Nothing when the arguments are wrong.
    std::optional<QString> (*apply)(const MacroArguments &arguments, const MacroSurroundings &surroundings);
};

/// By name in any case; null for an unknown one. `if`, `nth` and `eval` decide themselves what is evaluated and are not
/// among them.
const MacroFunction *findMacroFunction(QStringView name);

/// A finite number that stands alone in the text, blanks around it aside.
std::optional<double> macroNumber(QStringView text);
/// As macroNumber(), without what stands behind the point; nothing beyond 32 bits.
std::optional<int> macroInteger(QStringView text);

} // namespace host::drawing
