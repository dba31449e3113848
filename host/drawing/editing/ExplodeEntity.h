#pragma once

#include "host/drawing/math/WorkBudget.h"
#include "host/drawing/records/Drawing.h"

#include <functional>
#include <vector>

namespace host::drawing {

/// How entities are taken apart.
struct ExplodeRules
{
    bool takesUneven = true; ///< references with different scales along their axes as well
    /// What an entity shows, as entities in the coordinates that it stands in: for texts, hatches, leaders, multilines
    /// and dimensions without a picture, which need fonts and patterns. Missing, those stay whole.
    std::function<std::vector<FieldList>(RecordId entity)> shown{};
};

/// What came of taking an entity apart.
struct ExplodeResult
{
    std::vector<RecordId> pieces; ///< in its place, at the end of the space or block that it stood in
    int leftOut = 0;              ///< pieces that no entity stands for
    QString refusal;              ///< why it stays whole; empty when it was taken apart
    explicit operator bool() const { return refusal.isEmpty(); }
};

/// Takes an entity apart by one level and erases it: a block reference into what its block holds, in each cell of an
/// array, with attribute definitions in place of attributes; a polyline into lines and arcs, a mesh into faces; a
/// region into the curves round it; a dimension into its picture; what `rules.shown` knows into that. What the map of a
/// reference makes impossible (a circle in different scales) becomes what it is then, or is taken apart itself.
///
/// Pieces of a block keep what they say of their look, by block included; those of a dimension take its. Takes a unit
/// of `work` for each piece of a reference. One group of the journal.
ExplodeResult explodeEntity(Drawing &drawing, RecordId entity, const ExplodeRules &rules, WorkBudget &work);

} // namespace host::drawing
