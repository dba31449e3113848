#pragma once

#include "host/drawing/comparing/Ignoring.h"
#include "host/drawing/records/Drawing.h"

#include <vector>

namespace host::drawing {

/// A field of a record with the part of the record that it stands in.
struct PlacedField
{
    QByteArray part; ///< as ComparedTags::part() has it
    Field field;
};

/// What ComparedTags leaves of a record, typed, points in one piece, in the record's order.
std::vector<PlacedField> placedFields(const Drawing &drawing, RecordId record, IgnoredKinds ignored);

} // namespace host::drawing
