#pragma once

#include "host/drawing/editing/CopyBetweenDrawings.h"
#include "host/drawing/records/Blocks.h"

namespace host::drawing {

// What a drawing that is seen through an external reference brings into the tables of the one that it is seen in: its
// layers, linetypes, styles and blocks as "REFERENCE|NAME", so that a layer of it can be frozen or coloured here.
// Each is one step of the journal.

/// Which layers of the other drawing look as that says now.
enum class DependentLook
{
    Kept,  ///< those that are known already stay as they are here (VISRETAIN 1)
    OfFile ///< all of them
};

/// Makes the entries of `source` known under the reference's name, and takes out those that it does not have any more
/// and that nothing refers to. Blocks of it are entries without contents; those within it that stand for further
/// drawings are none.
void refreshDependents(Drawing &target, const QString &reference, const Drawing &source, DependentLook look);

/// What names of the other drawing become when it is made a part of this one.
enum class BindNames
{
    Prefixed, ///< "REFERENCE$0$NAME", with another number where that is taken
    Merged    ///< NAME; what this drawing has under that name stands for both
};

/// Makes the reference a block that holds copies of what is in the model space of `source`, and its entries ones of
/// this drawing, which stay as they look here. Whoever asks sees to the references within it, which are copied as such.
CopyResult bindReference(Drawing &target, const Block &reference, const Drawing &source, BindNames names);

/// Takes an external reference out with its entries and all its insertions.
void eraseReference(Drawing &drawing, const Block &reference);

/// The insertions of a block, in spaces and blocks. Costs a pass over all records.
std::vector<RecordId> insertionsOf(const Drawing &drawing, const QString &block);

} // namespace host::drawing
