#include "host/commands/Commands.h"

namespace host::kernel {

std::vector<CommandRow> builtInCommands()
{
    std::vector<CommandRow> rows;
    // clang-format off
    for (const auto &group : {
             circleCommands(),
             drawCommands(),
             drawOrderCommands(),
             editCommands(),
             fileCommands(),
             insertCommands(),
             layerCommands(),
             layoutCommands(),
             linetypeCommands(),
             polylineCommands(),
             purgeCommands(),
             referenceCommands(),
             shapeCommands(),
             textCommands(),
             undoCommands(),
             viewCommands(),
             writeBlockCommands(),
         })
        rows.insert(rows.end(), group.begin(), group.end());
    // clang-format on
    return rows;
}

} // namespace host::kernel
