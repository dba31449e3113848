#pragma once

#include "host/drawing/comparing/RecordPairs.h"

namespace host::drawing {

/// The records of a kind in file order.
std::vector<RecordId> recordsOf(const Drawing &drawing, RecordKind kind);

/// What fits two drawings better: by handle, unless most of the entities that share handles differ and more than twice
/// as many are the same by content, as in files whose handles were given anew or that have none.
Matching bestMatching(const Drawing &before, const Drawing &after, IgnoredKinds ignored);

/// Joins what is free of both lists, which are in file order, by content; see pairRecords(). Where records are matched
/// by handle only those without one are looked at.
void pairContents(RecordPairs &pairs, const std::vector<RecordId> &before, const std::vector<RecordId> &after,
                  IgnoredKinds ignored);

/// The same with all entities: those in the same space or block first, then those that are equal wherever they stand.
void pairEntities(RecordPairs &pairs, IgnoredKinds ignored);

} // namespace host::drawing
