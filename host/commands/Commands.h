#pragma once

#include "host/kernel/running/CommandTable.h"

#include <vector>

namespace host::kernel {

// The rows of each file of commands.
std::vector<CommandRow> circleCommands();
std::vector<CommandRow> drawCommands();
std::vector<CommandRow> drawOrderCommands();
std::vector<CommandRow> editCommands();
std::vector<CommandRow> fileCommands();
std::vector<CommandRow> insertCommands();
std::vector<CommandRow> layerCommands();
std::vector<CommandRow> layoutCommands();
std::vector<CommandRow> linetypeCommands();
std::vector<CommandRow> polylineCommands();
std::vector<CommandRow> purgeCommands();
std::vector<CommandRow> referenceCommands();
std::vector<CommandRow> shapeCommands();
std::vector<CommandRow> textCommands();
std::vector<CommandRow> undoCommands();
std::vector<CommandRow> viewCommands();
std::vector<CommandRow> writeBlockCommands();

} // namespace host::kernel
