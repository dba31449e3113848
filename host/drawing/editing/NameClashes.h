#pragma once

#include "host/drawing/records/Drawing.h"

namespace host::drawing {

enum class TableKind;

/// Whether two entries of the same name look different. What only one of them says does not count: versions differ in
/// that, and so do programs in what they leave unsaid.
bool lookDifferent(TableKind kind, const FieldList &one, const FieldList &other);

/// Whether two block definitions draw something else: other entities, in another order or place, or blocks in them that
/// do. Handles, owners and extension dictionaries do not count. Takes time in proportion to what both hold.
bool drawDifferently(const Drawing &drawing, RecordId block, const Drawing &other, RecordId otherBlock);

} // namespace host::drawing
