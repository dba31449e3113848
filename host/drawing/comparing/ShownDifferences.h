#pragma once

#include "host/drawing/comparing/Comparison.h"

#include <unordered_set>

namespace host::drawing {

/// The entities of a drawing that look otherwise in the other one, vertices and attributes as what they belong to.
struct ShownRecords
{
    std::unordered_set<RecordId> alone;   ///< the other one does not have them, or elsewhere
    std::unordered_set<RecordId> changed; ///< the other one has them too; inserts of blocks that differ among them
};

struct ShownDifferences
{
    ShownRecords before;
    ShownRecords after;
};

/// What a picture of a comparison has to show. Differences of styles and layers are not followed to the entities that
/// have them. Costs a look at all records.
ShownDifferences shownDifferences(const Comparison &comparison);

} // namespace host::drawing
