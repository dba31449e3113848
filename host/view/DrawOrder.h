#pragma once

#include "host/drawing/Drawing.h"

#include <vector>

namespace host::view {

/// The entities of one space or block in the order in which they are drawn: file order, unless a table of sort handles
/// (SORTENTSTABLE) concerns some of them: then all are ordered by sort handle, those without one by their own. The
/// later one covers the earlier.
std::vector<drawing::RecordId> drawOrder(const drawing::Drawing &drawing, std::vector<drawing::RecordId> entities);

} // namespace host::view
