#pragma once

#include "host/dwg/objects/Fields.h"

namespace host::dwg {

/// What a multileader shows and where: its content and lines, from CONTEXT_DATA{ to the brace that closes it. A part of
/// multileaders, and what they have for one annotation scale.
void readMultiLeaderContext(Fields &fields);

} // namespace host::dwg
