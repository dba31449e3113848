#pragma once

#include "host/drawing/math/Matrix.h"
#include "host/drawing/tags/TagList.h"

#include <QStringList>

namespace host::drawing {

/// What a viewport looks at, however its version writes it: in groups of its own from R2000 on, before that in extended
/// data of the application ACAD (MVIEW).
struct ViewportView
{
    Vec3 center{}; ///< on the sheet
    double width = 0.0;
    double height = 0.0;
    Vec3 target{};                 ///< what of the model is looked at
    Vec3 direction{0.0, 0.0, 1.0}; ///< from there to the eye
    Vec3 middle{};                 ///< of the view, in coordinates of the display
    double twist = 0.0;            ///< radians
    double viewHeight = 0.0;       ///< how much of the model is seen; 0: nothing
    QStringList frozenLayers{};    ///< named ones, of the old form
    std::vector<Handle> frozenHandles{};

    /// Drawing units of the sheet for one of the model.
    double scale() const { return height / viewHeight; }
    Matrix modelToSheet() const;
};

ViewportView readViewport(const TagList &tags);

/// Whether the viewport stands for the sheet itself: number 1. In layouts that were not shown yet all numbers are 0;
/// there it is the one that shows the sheet in its own size.
bool isSheetItself(const TagList &viewport);
/// Whether it shows something.
bool isViewportOn(const TagList &viewport);

} // namespace host::drawing
