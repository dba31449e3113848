#include "host/view/paint/SheetPlan.h"

#include "host/drawing/records/Blocks.h"

namespace host::view {

namespace {

using drawing::PageSetup;
using drawing::PlotArea;

constexpr QSizeF usualSheet{297.0, 210.0}; ///< A4 across
constexpr double blankPart = 0.03;         ///< of a sheet without margins of its own, on each side

Vec2 sizeOf(const Box &box)
{
    return {box.high.x - box.low.x, box.high.y - box.low.y};
}

Vec2 middleOf(const Box &box)
{
    return ((box.low + box.high) * 0.5).xy();
}

/// As large as `room` allows; 1 for a box without extent.
double fittingScale(const Box &box, const QSizeF &room)
{
    const Vec2 size = sizeOf(box);
    double scale = std::numeric_limits<double>::infinity();
    if (size.x > 0.0)
        scale = room.width() / size.x;
    if (size.y > 0.0)
        scale = std::min(scale, room.height() / size.y);
    return std::isfinite(scale) && scale > 0.0 ? scale : 1.0;
}

QSizeF paperFor(const SheetWish &wish, const QSizeF &own)
{
    QSizeF paper = wish.paper.value_or(own);
    const bool isAcross = own.width() > own.height();
    if (wish.paper && wish.turnsPaper && isAcross != (paper.width() > paper.height()))
        paper.transpose();
    return paper;
}

/// What is shown in the middle of the printed part of the sheet.
void showCentred(SheetPlan &plan, const Box &shown)
{
    const QPointF away = plan.printed.center() - QRectF(QPointF(), plan.size).center();
    plan.center = middleOf(shown) + Vec2{-away.x(), away.y()} * (1.0 / plan.scale);
}

/// What is shown with a corner of it where the page begins, so many millimetres from the corner of the printed part.
void showFromCorner(SheetPlan &plan, const Vec2 &corner, const Vec2 &offset)
{
    const Vec2 place{plan.printed.left() + offset.x, plan.size.height() - plan.printed.bottom() + offset.y};
    const Vec2 middle{plan.size.width() / 2.0, plan.size.height() / 2.0};
    plan.center = corner + (middle - place) * (1.0 / plan.scale);
}

/// Nothing of an area that was chosen shows what lies beside it.
void clipTo(SheetPlan &plan, const Box &shown)
{
    const ViewTransform view = plan.view(1.0);
    plan.printed &= QRectF(view.toScreen({shown.low.x, shown.high.y}), view.toScreen({shown.high.x, shown.low.y}));
}

std::optional<Box> chosenArea(const drawing::Drawing &drawing, const drawing::LayoutTab &layout, const PageSetup &setup)
{
    switch (setup.area) {
    case PlotArea::Limits:
        return drawing::layoutLimits(drawing, layout);
    case PlotArea::View:
        return drawing::namedView(drawing, setup.view);
    case PlotArea::Window:
        return setup.window;
    default:
        return {};
    }
}

/// The whole sheet in units of the layout that stands on it.
Box sheetInUnits(const PageSetup &setup, double scale)
{
    const Vec2 low{-(setup.margins.left + setup.offset.x) / scale, -(setup.margins.bottom + setup.offset.y) / scale};
    return {{low.x, low.y, 0.0}, {low.x + setup.paper.x / scale, low.y + setup.paper.y / scale, 0.0}};
}

/// The paper from its very corner: what a sheet without margins, or on other paper, shows.
void placeSheet(const PageSetup &setup, const SheetWish &wish, SheetPlan &plan)
{
    const double pageScale = setup.scale * setup.unitSize;
    plan.scale = wish.scale.value_or(pageScale > 0.0 ? pageScale : 1.0);
    plan.printed = QRectF(QPointF(), plan.size);
    showFromCorner(plan, {}, wish.offset.value_or(Vec2{}));
}

/// The page's own scale, unless other paper is wished: then all that was on the sheet is to be on that.
void placePage(Scene &scene, const PageSetup &setup, const std::optional<Box> &area, const SheetWish &wish,
               SheetPlan &plan)
{
    plan.printed = QRectF(QPointF(), plan.size);
    if (!wish.paper)
        plan.printed.adjust(setup.margins.left, setup.margins.top, -setup.margins.right, -setup.margins.bottom);
    const double pageScale = setup.scale * setup.unitSize;
    const bool isSheet = setup.area == PlotArea::Layout && setup.hasPaper() && pageScale > 0.0 && !wish.window;
    const Box shown = area      ? *area
                      : isSheet ? sheetInUnits(setup, pageScale)
                                : scene.extents(plan.block, Seen::Plotted);
    if (shown.isEmpty())
        return;
    const bool keepsScale = pageScale > 0.0 && !wish.paper && !wish.window;
    plan.scale = wish.scale.value_or(keepsScale ? pageScale : fittingScale(shown, plan.printed.size()));
    if (isSheet && !wish.paper)
        showFromCorner(plan, {}, wish.offset.value_or(setup.offset));
    else if (wish.offset)
        showFromCorner(plan, shown.low.xy(), *wish.offset);
    else if (setup.isCentred || isSheet || wish.window || wish.paper)
        showCentred(plan, shown);
    else
        showFromCorner(plan, shown.low.xy(), setup.offset);
    if (area)
        clipTo(plan, shown);
}

} // namespace

ViewTransform SheetPlan::view(double unitsPerMillimetre) const
{
    ViewTransform view(size * unitsPerMillimetre);
    view.setView(center, scale * unitsPerMillimetre);
    return view;
}

int layoutBlock(Scene &scene, const drawing::LayoutTab &layout)
{
    if (layout.isModel())
        return Scene::modelSpace;
    const bool isInUse = !isValid(layout.block) || !isValid(layout.record);
    return isInUse ? Scene::paperSpace : scene.block(scene.drawing().blocks().name(layout.block));
}

SheetPlan planBlock(Scene &scene, int block, const SheetWish &wish)
{
    SheetPlan plan{.block = block, .size = paperFor(wish, usualSheet)};
    // A window is shown to its corners.
    const double blank = wish.window ? 0.0 : blankPart;
    const double dx = plan.size.width() * blank;
    const double dy = plan.size.height() * blank;
    plan.printed = QRectF(QPointF(), plan.size).adjusted(dx, dy, -dx, -dy);
    const Box shown = wish.window ? *wish.window : scene.extents(block, Seen::Plotted);
    if (!shown.isEmpty()) {
        plan.scale = wish.scale.value_or(fittingScale(shown, plan.printed.size()));
        showCentred(plan, shown);
    }
    plan.printed = QRectF(QPointF(), plan.size);
    if (wish.window)
        clipTo(plan, shown);
    return plan;
}

SheetPlan planLayout(Scene &scene, const drawing::LayoutTab &layout, const SheetWish &wish)
{
    const PageSetup setup = drawing::readPageSetup(scene.drawing(), layout);
    const std::optional<Box> area = wish.window ? wish.window : chosenArea(scene.drawing(), layout, setup);
    const QSizeF own = setup.hasPaper() ? QSizeF(setup.paper.x, setup.paper.y) : usualSheet;
    SheetPlan plan{.block = layoutBlock(scene, layout), .size = paperFor(wish, own)};
    const bool isNewSheet = wish.isSheet && !area && (wish.paper || !setup.hasPaper());
    if (isNewSheet)
        placeSheet(setup, wish, plan);
    else if (setup.hasPaper() || area)
        placePage(scene, setup, area, wish, plan);
    else
        plan = planBlock(scene, plan.block, {.paper = plan.size, .scale = wish.scale});
    plan.weightFactor = !setup.hasLineweights ? 0.0 : setup.scalesLineweights ? plan.scale / setup.unitSize : 1.0;
    plan.hasPlotStyles = setup.hasPlotStyles;
    plan.styleSheet = setup.styleSheet;
    return plan;
}

} // namespace host::view
