#pragma once

#include "host/kernel/running/CommandContext.h"
#include "host/kernel/running/Dialogue.h"
#include "host/kernel/variables/SystemVariables.h"

namespace host::kernel {

// Answers that become the default of the next time, each in a system variable.

/// Keeps an answer. Nothing happens where the program has no such variable, or where it has the value already.
void keepValue(CommandContext &context, QStringView variable, const VariableValue &value);

/// Asks for a length with `usual` as the default, which is shown behind `prompt` ("Specify width"). `bits`: InputBit.
Dialogue<double> askUsualLength(CommandContext &context, QString prompt, double usual, int bits = NoNegative,
                                std::optional<drawing::Vec3> base = {});

/// Asks for one of the options that `prompt` lists in brackets, or of `options` where there are some (CommandContext);
/// an empty answer means `usual`.
Dialogue<QString> askUsualOption(CommandContext &context, QString prompt, QString usual, QString options = {});

/// Asks a question to be answered by yes or no.
Dialogue<bool> askYesNo(CommandContext &context, QString prompt, bool usual);

} // namespace host::kernel
