#include "host/commands/Commands.h"

namespace host::kernel {

std::vector<CommandRow> builtInCommands()
{
    std::vector<CommandRow> rows;
    for (const auto &group :
         {drawCommands(), circleCommands(), polylineCommands(), textCommands(), editCommands(), drawOrderCommands(),
          insertCommands(), writeBlockCommands(), layerCommands(), linetypeCommands(), shapeCommands(),
          layoutCommands(), purgeCommands(), referenceCommands(), fileCommands(), viewCommands(), undoCommands()})
        rows.insert(rows.end(), group.begin(), group.end());
    return rows;
}

} // namespace host::kernel
