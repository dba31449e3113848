#pragma once

#include "host/drawing/records/Record.h"

#include <QString>

namespace host::kernel {

class CommandContext;

/// What LIST tells of an entity, lines with a line feed in front: type, layer, space, handle, what it says of its look,
/// and its geometry in the user's coordinate system, in the drawing's units.
QString entityListing(CommandContext &context, drawing::RecordId entity);

} // namespace host::kernel
