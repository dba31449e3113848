#pragma once

#include "host/drawing/records/Drawing.h"

#include <optional>

namespace host::drawing {

enum class TableKind;

/// A definition of the target that stands for one of the source.
struct KeptName
{
    TableKind kind;
    QString name; ///< as the target has it
    bool operator==(const KeptName &) const = default;
};

/// What came of copying.
struct CopyResult
{
    RecordId record = noRecord; ///< the BLOCK record made; noRecord when there is none or nothing was copied
    int skipped = 0; ///< records left out: types the target's version lacks, or bound to what cannot be copied
    QString error{};
    /// Blocks that were needed and that the target has already, and layers, linetypes and styles for which it has
    /// others of the same name. Each once, in the order they were needed.
    std::vector<KeptName> kept{};
    /// Entities that stand in the target as ones of types that its version has (see earlyForms()).
    int converted = 0;

    explicit operator bool() const { return error.isEmpty(); }
};

/// Copies records into `target` model space with what they depend on: layers, linetypes, text and dimension styles,
/// blocks with all nested in them, registered applications. What `target` has under the same name stays as it is.
CopyResult copyEntities(const Drawing &source, const std::vector<RecordId> &entities, Drawing &target);

/// An empty drawing of the newest version that measures as `source` does: units, scale of linetypes, look of points.
std::unique_ptr<Drawing> newDrawingLike(const Drawing &source);

/// A new drawing of the newest version holding copies of the chosen records, with `basePoint` as its insertion base
/// ($INSBASE). Null when nothing of them can be copied.
std::unique_ptr<Drawing> wblock(const Drawing &source, const std::vector<RecordId> &entities, const Vec3 &basePoint);
/// The same for the entities of a block definition; base point is the block's.
std::unique_ptr<Drawing> wblock(const Drawing &source, RecordId block);

/// Makes the model space of `source` a block definition of `target`, with its dependencies; base point is $INSBASE of
/// the source. A block of that name that exists is redefined. One journal group.
CopyResult insertAsBlock(const Drawing &source, Drawing &target, const QString &name);

/// Copies a block definition of `source` into `target` under its own name (an anonymous one under the next free name),
/// with all it depends on. A block of that name that exists stays, is the record of the result and the first that was
/// kept. One journal group.
CopyResult copyBlock(const Drawing &source, RecordId block, Drawing &target);

} // namespace host::drawing
