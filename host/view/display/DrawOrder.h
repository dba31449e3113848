#pragma once

#include "host/drawing/records/Drawing.h"

#include <QHash>

#include <vector>

namespace host::view {

/// What entities are sorted as when they are drawn: handle to handle, from the sort tables (SORTENTSTABLE) of a
/// drawing. A handle is in one block only, so the tables of all blocks are taken together.
using SortHandles = QHash<quint64, quint64>;

/// Goes through all objects of the drawing. Empty in most drawings.
SortHandles readSortHandles(const drawing::Drawing &drawing);

/// The entities of one space or block in the order in which they are drawn: file order, unless sort handles concern
/// some of them. Then all are ordered by sort handle, those without one by their own. The later one covers the earlier.
std::vector<drawing::RecordId> drawOrder(const drawing::Drawing &drawing, const SortHandles &sortHandles,
                                         std::vector<drawing::RecordId> entities);

} // namespace host::view
