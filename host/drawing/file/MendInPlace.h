#pragma once

#include "host/drawing/file/RecoveryReport.h"
#include "host/drawing/records/Drawing.h"

namespace host::drawing {

/// What was wrong with a drawing that is open, and how much of it is not any more.
struct MendedInPlace
{
    RecoveryReport report{};
    int found = 0;   ///< how many faults there were
    int left = 0;    ///< how many are still there
    QString error{}; ///< why nobody could look; empty when all went well
};

/// Looks for what recovering the drawing's file would find, and with `isMended` does to the open drawing what that
/// would do, as changes of its records; faults that are no record's, such as two with one handle, may be left. One step
/// of the journal. Costs as much as saving the drawing and opening it, twice where something is mended.
MendedInPlace mendInPlace(Drawing &drawing, bool isMended);

} // namespace host::drawing
