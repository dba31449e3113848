#pragma once

#include "host/drawing/comparing/Comparison.h"
#include "host/view/paint/Export.h"

namespace host::view {

/// What of two drawings is laid over each other.
struct DifferenceView
{
    QString layout{}; ///< of both, in any letter case; empty: model space
    QSize pixels{1600, 1200};
    /// What expressions in the drawings may ask for, the first's and the second's.
    drawing::MacroSurroundings before{};
    drawing::MacroSurroundings after{};
};

/// Writes a picture of two drawings over each other, which shows everything of both: PNG, SVG or PDF (a page of A4
/// across) by the ending of `path`. What both have is grey. What was is dashed: red where it is gone, orange where it
/// has changed. What is, is drawn in thick lines: green where it is new, blue where it has changed. So the two states
/// are told apart by more than colours. What is too small to be found gets a ring. A line at the foot says so, with the
/// numbers of entities that are there to be seen.
///
/// The report counts what cannot be drawn of the second drawing. Layers that are off or frozen are not seen.
ExportResult exportDifferences(const drawing::Comparison &comparison, const QString &path,
                               const DifferenceView &view = {});

} // namespace host::view
