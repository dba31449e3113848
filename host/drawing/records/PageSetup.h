#pragma once

#include "host/drawing/math/Vec.h"
#include "host/drawing/records/LayoutTabs.h"

#include <optional>

namespace host::drawing {

inline constexpr double millimetresPerInch = 25.4;

/// What of a layout goes on its sheet.
enum class PlotArea
{
    Display, ///< what a window showed last; nobody knows that later
    Extents,
    Limits,
    View,
    Window,
    Layout ///< the sheet itself: paper units from the corner of what can be printed
};

/// The blank edges of a sheet, millimetres.
struct SheetMargins
{
    double left = 0.0;
    double bottom = 0.0;
    double right = 0.0;
    double top = 0.0;
};

/// How a layout is put on paper, as its LAYOUT object has it. The sheet is held so that the drawing stands upright:
/// sizes and margins are turned with it.
struct PageSetup
{
    Vec2 paper{}; ///< width and height, millimetres; 0,0 where the page was never set up
    SheetMargins margins{};
    Vec2 offset{}; ///< of the area from the corner of what can be printed, millimetres
    PlotArea area = PlotArea::Layout;
    Box window{};          ///< of PlotArea::Window, drawing units
    QString view{};        ///< name, of PlotArea::View
    QString styleSheet{};  ///< name of a file of plot styles; empty for none
    double unitSize = 1.0; ///< of the scale: millimetres of a paper unit
    double scale = 0.0;    ///< paper units a drawing unit; 0: as large as the sheet allows
    bool isCentred = false;
    bool hasLineweights = true;
    bool hasPlotStyles = true;
    bool scalesLineweights = false;

    bool hasPaper() const { return paper.x > 0.0 && paper.y > 0.0; }
};

/// The page of a layout. One without an object, and numbers that make no page, give what PageSetup begins with.
PageSetup readPageSetup(const Drawing &drawing, const LayoutTab &layout);

/// The limits of a layout, and a named view of the drawing, as boxes in drawing units; nothing where there are none.
std::optional<Box> layoutLimits(const Drawing &drawing, const LayoutTab &layout);
std::optional<Box> namedView(const Drawing &drawing, const QString &name);

} // namespace host::drawing
