#pragma once

#include "host/drawing/records/Drawing.h"

#include <QStringList>

namespace host::drawing {

/// What one drawing has that the other has not, record by record: the type behind "+" of what was added, "-" of what
/// is gone, "~" of what is not the same bytes; sorted. Records are the same that have the same handle, or of header
/// variables the same name, of records without either the same place among those of their type. The order in the file
/// counts for nothing else. Empty when nothing differs.
QStringList differences(const Drawing &before, const Drawing &after);

/// All records in file order, by what makes them the same in two drawings as above.
std::vector<std::pair<QString, RecordId>> namedRecords(const Drawing &drawing);

/// Each text once, with its number in front: "2+LINE" for two of "+LINE".
QStringList counted(const QStringList &sorted);

} // namespace host::drawing
