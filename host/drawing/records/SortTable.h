#pragma once

#include "host/drawing/records/Drawing.h"

namespace host::drawing {

/// Of a sort table: the handle that an entity is sorted as, behind the entity's own.
constexpr int sortHandleCode = 5;

/// Makes the entities of one space or block be drawn in this order, the later over the earlier; `order` has all of
/// them. Nobody moves: their order is kept in the sort table (SORTENTSTABLE) of the block's record. False when the
/// drawing has no room for one: before R2000, or without handles.
bool setDrawOrder(Drawing &drawing, const std::vector<RecordId> &order);

} // namespace host::drawing
