#pragma once

#include "host/drawing/Drawing.h"

#include <optional>

namespace host::drawing {

/// What came of copying.
struct CopyResult
{
    RecordId record = noRecord; ///< the BLOCK record made; noRecord when there is none or nothing was copied
    int skipped = 0; ///< records left out: types the target's version lacks, or bound to what cannot be copied
    QString error;

    explicit operator bool() const { return error.isEmpty(); }
};

/// Copies records into `target` model space with what they depend on: layers, linetypes, text and dimension styles,
/// blocks with all nested in them, registered applications. What `target` has under the same name stays as it is.
CopyResult copyEntities(const Drawing &source, const std::vector<RecordId> &entities, Drawing &target);

/// A new drawing of the newest version holding copies of the chosen records, with `basePoint` as its insertion base
/// ($INSBASE). Null when nothing of them can be copied.
std::unique_ptr<Drawing> wblock(const Drawing &source, const std::vector<RecordId> &entities, const Vec3 &basePoint);
/// The same for the entities of a block definition; base point is the block's.
std::unique_ptr<Drawing> wblock(const Drawing &source, RecordId block);

/// Makes the model space of `source` a block definition of `target`, with its dependencies; base point is $INSBASE of
/// the source. A block of that name that exists is redefined. One journal group.
CopyResult insertAsBlock(const Drawing &source, Drawing &target, const QString &name);

} // namespace host::drawing
