#pragma once

#include "host/drawing/records/PageSetup.h"
#include "host/view/build/Scene.h"
#include "host/view/paint/ViewTransform.h"

#include <QRectF>
#include <QSizeF>

#include <optional>

namespace host::view {

/// What is wanted otherwise than a page setup has it. Lengths of sheets are millimetres.
struct SheetWish
{
    std::optional<QSizeF> paper{}; ///< as it is held; the whole of it is used
    /// The paper lies as the page it replaces does, or across for one without a page.
    bool turnsPaper = false;
    std::optional<double> scale{}; ///< millimetres a drawing unit
    std::optional<Box> window{};   ///< what is shown, drawing units
    /// From the lower left corner of what is printed on to that of what is shown; in the middle without it.
    std::optional<Vec2> offset{};
    /// The sheet of a layout as it stands, its origin the corner of the paper: what `window` is otherwise, which counts
    /// first. Its scale is `scale`, else the page's own, else a unit a millimetre.
    bool isSheet = false;
};

/// Where on a sheet what is drawn.
struct SheetPlan
{
    int block = Scene::modelSpace; ///< in the scene
    QSizeF size{};                 ///< millimetres
    QRectF printed{};              ///< the part of the sheet that is drawn on, from its upper left corner
    Vec2 center{};                 ///< what of the drawing lies in the middle of the sheet
    double scale = 1.0;            ///< millimetres a drawing unit
    double weightFactor = 1.0;     ///< of lineweights; 0: lines are as thin as can be
    bool hasPlotStyles = false;    ///< the page asks for its styles
    QString styleSheet{};          ///< their file, as the page names it

    /// The view of a device of so many units a millimetre; its upper left corner is that of the sheet.
    ViewTransform view(double unitsPerMillimetre) const;
};

/// A sheet for all that is plotted of a block, with a small margin: A4 across, or what is wished.
SheetPlan planBlock(Scene &scene, int block, const SheetWish &wish);

/// The sheet of a layout as its page setup has it, but for what is wished. A page that was never set up shows all on A4
/// across. Prepares the layout's block where its extents are needed.
SheetPlan planLayout(Scene &scene, const drawing::LayoutTab &layout, const SheetWish &wish);

/// The number of the block that holds what is drawn on a layout.
int layoutBlock(Scene &scene, const drawing::LayoutTab &layout);

} // namespace host::view
