#include "host/drawing/records/PageSetup.h"

#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/Tables.h"

#include <cmath>

namespace host::drawing {

namespace {

constexpr double largestSheet = 20'000.0; ///< millimetres; what is larger is damage
constexpr double farthestCorner = 1e15;

// Flags in group 70.
constexpr qint64 centredFlag = 4;
constexpr qint64 standardScaleFlag = 16;
constexpr qint64 plotStylesFlag = 32;
constexpr qint64 scalesWeightsFlag = 64;
constexpr qint64 lineweightsFlag = 128;

bool isLength(double value)
{
    return std::isfinite(value) && std::abs(value) <= largestSheet;
}

double millimetres(const TagList &tags, int code)
{
    const double value = tags.real(code);
    return isLength(value) ? value : 0.0;
}

/// A box between two corners that are numbers and lie apart.
std::optional<Box> boxBetween(const Vec2 &low, const Vec2 &high)
{
    for (const double value : {low.x, low.y, high.x, high.y})
        if (!(std::abs(value) <= farthestCorner))
            return {};
    if (!(low.x < high.x && low.y < high.y))
        return {};
    return Box{{low.x, low.y, 0.0}, {high.x, high.y, 0.0}};
}

/// By quarter turns against the clock, as a printer takes the paper; the sheet is held the other way.
SheetMargins turned(const SheetMargins &margins, qint64 quarters)
{
    const auto [left, bottom, right, top] = margins;
    switch (quarters) {
    case 1:
        return {bottom, right, top, left};
    case 2:
        return {right, top, left, bottom};
    case 3:
        return {top, left, bottom, right};
    default:
        return margins;
    }
}

void readPaper(const TagList &tags, PageSetup &setup)
{
    const qint64 quarters = tags.integer(73);
    const Vec2 paper{millimetres(tags, 44), millimetres(tags, 45)};
    if (!(paper.x > 0.0 && paper.y > 0.0))
        return;
    setup.paper = quarters == 1 || quarters == 3 ? Vec2{paper.y, paper.x} : paper;
    setup.margins =
        turned({millimetres(tags, 40), millimetres(tags, 41), millimetres(tags, 42), millimetres(tags, 43)}, quarters);
    const SheetMargins &margins = setup.margins;
    if (margins.left + margins.right >= setup.paper.x || margins.bottom + margins.top >= setup.paper.y)
        setup.margins = {};
}

void readScale(const TagList &tags, qint64 flags, PageSetup &setup)
{
    constexpr qint64 inches = 0;
    setup.unitSize = tags.integer(72, 1) == inches ? millimetresPerInch : 1.0;
    const bool isStandard = (flags & standardScaleFlag) != 0;
    const double standard = tags.real(147);
    const double own = tags.real(142, 1.0) / tags.real(143, 1.0);
    const bool isFitted = isStandard && tags.integer(75) == 0;
    const double scale = isStandard && standard > 0.0 ? standard : own;
    setup.scale = !isFitted && std::isfinite(scale) && scale > 0.0 ? scale : 0.0;
}

void readArea(const Drawing &drawing, const TagList &tags, PageSetup &setup)
{
    const qint64 area = tags.integer(74, 5);
    setup.area = area >= 0 && area <= 5 ? static_cast<PlotArea>(area) : PlotArea::Layout;
    setup.window = boxBetween({tags.real(48), tags.real(49)}, {tags.real(140), tags.real(141)}).value_or(Box{});
    setup.view = tags.text(6);
    if ((setup.area == PlotArea::Window && setup.window.isEmpty()) ||
        (setup.area == PlotArea::View && !namedView(drawing, setup.view)))
        setup.area = PlotArea::Extents;
}

} // namespace

PageSetup readPageSetup(const Drawing &drawing, const LayoutTab &layout)
{
    PageSetup setup;
    if (!isValid(layout.record))
        return setup;
    const TagList tags = drawing.tags(layout.record);
    const Tag *own = tags.find(70, "AcDbPlotSettings");
    if (!own)
        return setup;
    const qint64 flags = own->integer().value_or(0);
    readPaper(tags, setup);
    readScale(tags, flags, setup);
    readArea(drawing, tags, setup);
    if (layout.isModel() && setup.area == PlotArea::Layout)
        setup.area = PlotArea::Extents;
    setup.offset = {millimetres(tags, 46), millimetres(tags, 47)};
    setup.styleSheet = tags.text(7).trimmed();
    setup.isCentred = (flags & centredFlag) != 0;
    setup.hasLineweights = (flags & lineweightsFlag) != 0;
    setup.hasPlotStyles = (flags & plotStylesFlag) != 0;
    setup.scalesLineweights = (flags & scalesWeightsFlag) != 0;
    return setup;
}

std::optional<Box> layoutLimits(const Drawing &drawing, const LayoutTab &layout)
{
    if (layout.isModel())
        return boxBetween(drawing.header().point(u"$LIMMIN").xy(), drawing.header().point(u"$LIMMAX").xy());
    if (!isValid(layout.record))
        return boxBetween(drawing.header().point(u"$PLIMMIN").xy(), drawing.header().point(u"$PLIMMAX").xy());
    const TagList tags = drawing.tags(layout.record);
    return boxBetween(tags.point(10).xy(), tags.point(11).xy());
}

std::optional<Box> namedView(const Drawing &drawing, const QString &name)
{
    const RecordId view = drawing.tables().find(TableKind::View, name);
    if (!isValid(view))
        return {};
    const TagList tags = drawing.tags(view);
    const Vec2 centre = tags.point(10).xy();
    const Vec2 half{tags.real(41) / 2.0, tags.real(40) / 2.0};
    return boxBetween(centre - half, centre + half);
}

} // namespace host::drawing
