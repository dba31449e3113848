#pragma once

#include "host/drawing/comparing/RecordPairs.h"

#include <optional>
#include <vector>

namespace host::drawing {

/// A value that is other than it was.
struct FieldChange
{
    QByteArray part{}; ///< whose it is, as ComparedTags::part() has it
    int code = 0;
    int number = 0; ///< which of the part's values of this code, from 1 on; 0 where there is one only
    std::optional<FieldValue> before{}; ///< nothing: it is new
    std::optional<FieldValue> after{};  ///< nothing: it is gone
};

/// How values are compared.
struct ValueRules
{
    double tolerance = 0.0; ///< of reals and of coordinates, drawing units
    IgnoredKinds ignored = usuallyIgnored();
};

/// Whether the records, which are partners, are the same tag by tag. Quick; where it says no, fieldChanges() may still
/// find nothing, as groups in other order and usual values that one of them spells out are no change.
bool areSameTags(const RecordPairs &pairs, RecordId before, RecordId after, const ValueRules &rules);

/// What is other in two partners, by parts and group codes. Values of one code are compared in their order: what is the
/// same in front and behind counts as the same, what lies between them is put side by side. Linear.
std::vector<FieldChange> fieldChanges(const RecordPairs &pairs, RecordId before, RecordId after,
                                      const ValueRules &rules);

} // namespace host::drawing
