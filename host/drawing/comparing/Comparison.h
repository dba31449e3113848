#pragma once

#include "host/drawing/comparing/FieldChanges.h"

namespace host::drawing {

/// How drawings are compared.
struct ComparisonRules
{
    ValueRules values{};
    Matching matching = Matching::Automatic;
};

/// What became of a record.
enum class Fate
{
    Added,
    Removed,
    Changed
};

/// One thing that is other in the second drawing: a variable, class, table entry, block, entity or object.
struct Difference
{
    Fate fate = Fate::Changed;
    RecordKind kind = RecordKind::Entity;
    RecordId before = noRecord; ///< noRecord when it is added
    RecordId after = noRecord;  ///< noRecord when it is gone
    std::vector<FieldChange> changes{};
    bool isElsewhere = false; ///< it stands in another space, block, polyline or insert
    bool isReordered = false; ///< it is drawn earlier or later among those around it that stayed
    /// Of a block, polyline or insert that is added or gone: how many records in it are so too. They are in no
    /// difference of their own.
    qint64 contents = 0;
};

/// What two drawings have in common, and what not.
struct Comparison
{
    RecordPairs pairs; ///< by handle or by content
    /// Those of the first drawing in its order, then what is added in the order of the second.
    std::vector<Difference> differences{};
    qint64 same = 0; ///< how many were compared and found the same
};

/// Compares two drawings, which must outlive the result and not change. The head and end of sections, tables, blocks
/// and lists, comments, preview pictures, and the order of anything but entities do not count; neither do the blocks'
/// records (BLOCK_RECORD) where the block is told. n log n in the records, linear in the bytes; quickest where most
/// records are the same bytes.
Comparison compareDrawings(const Drawing &before, const Drawing &after, const ComparisonRules &rules = {});

/// Whether a record is one of those that are compared, and told, with these kinds ignored.
bool isCompared(const Drawing &drawing, RecordId record, IgnoredKinds ignored);

/// Where an entity stands: "Model", the name of a layout or block, or of a vertex or attribute its entity's handle.
QString placeName(const Drawing &drawing, RecordId entity);

} // namespace host::drawing
