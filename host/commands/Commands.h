#pragma once

#include "host/kernel/running/CommandTable.h"

#include <vector>

namespace host::kernel {

// The rows of each file of commands.
std::vector<CommandRow> drawCommands();
std::vector<CommandRow> circleCommands();
std::vector<CommandRow> polylineCommands();
std::vector<CommandRow> textCommands();
std::vector<CommandRow> editCommands();
std::vector<CommandRow> drawOrderCommands();
std::vector<CommandRow> insertCommands();
std::vector<CommandRow> writeBlockCommands();
std::vector<CommandRow> layerCommands();
std::vector<CommandRow> linetypeCommands();
std::vector<CommandRow> shapeCommands();
std::vector<CommandRow> layoutCommands();
std::vector<CommandRow> purgeCommands();
std::vector<CommandRow> referenceCommands();
std::vector<CommandRow> fileCommands();
std::vector<CommandRow> viewCommands();
std::vector<CommandRow> undoCommands();

} // namespace host::kernel
