#pragma once

#include "host/drawing/editing/CopyBetweenDrawings.h"
#include "host/drawing/editing/DrawingCopier.h"
#include "host/drawing/records/LayoutTabs.h"

#include <vector>

namespace host::drawing {

/// A sheet of the source and the name that it gets in the target.
struct MergedSheet
{
    QString layout;
    QString name;
};

struct MergeRules
{
    NameClash clash = NameClash::Keep;
    QString prefix{};             ///< of definitions that clash
    bool takesEmptySheet = false; ///< the target's only sheet is the first of them when nothing is on it
    bool takesModel = true;       ///< the source's model space comes along
    Vec3 modelOffset{};           ///< where the origin of the source's model space comes to lie in the target's
};

struct MergeResult
{
    std::vector<RecordId> sheets{}; ///< the LAYOUT objects made, in order
    int skipped = 0; ///< entities left out: types that the target's version lacks, or bound to what cannot be copied
    QString error{}; ///< why nothing was merged
    std::vector<KeptName> clashes{}; ///< definitions of the source for which the target has others of the same name

    explicit operator bool() const { return error.isEmpty(); }
};

/// Adds sheets of `source` to `target` as its last tabs, with all that is drawn on them, and the model space that their
/// viewports show, moved by the offset with the viewports' views. Blocks, layers, styles, dictionaries and groups come
/// along; `source` is only read. The target must be of R2000 or newer and have no sheet of these names. One journal
/// group.
MergeResult mergeSheets(const Drawing &source, const std::vector<MergedSheet> &sheets, Drawing &target,
                        const MergeRules &rules);

/// Gives a sheet another name, in the dictionary and in itself. False when there is no such sheet, or when another has
/// the name.
bool renameSheet(Drawing &drawing, const QString &name, const QString &newName);

/// Whether anything is drawn on a sheet beside the viewport that stands for the sheet itself.
bool isSheetUsed(const Drawing &drawing, const LayoutTab &sheet);

} // namespace host::drawing
