#pragma once

#include "host/kernel/running/Dialogue.h"

namespace host::kernel {

class CommandContext;

/// The option stAte of -LAYER: stores, restores, changes and lists named states of all layers, one option after another
/// until an empty answer.
Dialogue<bool> askLayerStates(CommandContext &context);

} // namespace host::kernel
