#pragma once

#include "host/drawing/records/Record.h"
#include "host/drawing/references/PredefinedLinetypes.h"

namespace host::kernel {

class CommandContext;

/// The unit that the drawing's patterns are made in ($MEASUREMENT).
drawing::LinetypeUnit linetypeUnit(CommandContext &context);

/// The drawing's linetype of that name; one that it does not have yet is loaded when it is predefined. noRecord when it
/// is neither.
drawing::RecordId loadedLinetype(CommandContext &context, const QString &name);

} // namespace host::kernel
