#pragma once

#include "host/view/build/ExternalDrawings.h"
#include "host/view/display/BoxIndex.h"
#include "host/view/display/RecordSummary.h"

namespace host::view {

/// The display of a space or of a block definition, in its own coordinates: base points are in the references to it.
struct BlockDisplay
{
    int number = 0; ///< in the scene
    QString name{};
    std::vector<RecordSummary> records{}; ///< in drawing order, those that are gone still in their places
    Box box{};                            ///< of all records, hidden layers too; lines without end left out
    bool isEndless = false;               ///< has lines without end, itself or through its references
    bool isBuilt = false;                 ///< otherwise nobody looked at it yet, and the rest is empty

    /// What it shows beside its records where it stands for another drawing; null for other blocks.
    std::shared_ptr<const ExternalView> external{};

    // For the scene that keeps it.
    Box plainBox{};                          ///< of the records without references
    bool isPlainEndless = false;             ///< likewise
    bool isPlainStale = true;                ///< both are to be worked out again
    std::vector<std::uint32_t> references{}; ///< places of the records that have some, and maybe of others
    BoxIndex index{};
    std::vector<Box> damage{}; ///< where something has changed since that was asked
};

} // namespace host::view
