#pragma once

#include "host/kernel/variables/SystemVariables.h"

namespace host::kernel {

/// A value as people and files of settings have it: numbers with up to `digits` digits, coordinates with commas
/// between. 17 digits lose nothing.
QString variableText(const VariableValue &value, int digits = 12);

/// The value that text means for a variable of the kind that `like` is; nothing when it does not. A point alone is the
/// empty text. Missing coordinates are 0.
std::optional<VariableValue> variableFromText(const VariableValue &like, const QString &text);

} // namespace host::kernel
