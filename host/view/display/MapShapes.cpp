#include "host/view/display/MapShapes.h"

namespace host::view {

namespace {

struct ShapeMapper
{
    const Matrix &map;

    void operator()(Stroke &stroke) const { mapCurve(stroke.curve, map); }
    void operator()(Fill &fill) const
    {
        std::ranges::for_each(fill.contours, [this](Curve &contour) { mapCurve(contour, map); });
        if (fill.gradient) {
            auto moved = std::make_shared<Gradient>(*fill.gradient);
            moved->placement = map * moved->placement;
            fill.gradient = std::move(moved);
        }
    }
    void operator()(Segments &pieces) const
    {
        mapPath(pieces.ends, map);
        mapPath(pieces.dots, map);
    }
    void operator()(Endless &line) const
    {
        line.base = map.point(line.base);
        line.direction = drawing::normalized(map.direction(line.direction));
    }
    void operator()(PointMark &point) const { point.at = map.point(point.at); }
    void operator()(std::unique_ptr<Raster> &raster) const
    {
        raster->placement = map * raster->placement;
        std::ranges::for_each(raster->area, [this](Curve &contour) { mapCurve(contour, map); });
    }
    void operator()(std::unique_ptr<TextRun> &text) const { text->placement = map * text->placement; }
    void operator()(std::unique_ptr<Reference> &reference) const
    {
        reference->placement = map * reference->placement;
        reference->columnStep = map.direction(reference->columnStep);
        reference->rowStep = map.direction(reference->rowStep);
        std::ranges::for_each(reference->beside, [this](DisplayItem &item) { mapItem(item, map); });
    }
};

} // namespace

void mapPath(Path &points, const Matrix &map)
{
    for (Vec3 &point : points)
        point = map.point(point);
}

void mapCurve(Curve &curve, const Matrix &map)
{
    mapPath(curve.points, map);
    for (ArcSpan &arc : curve.arcs) {
        arc.center = map.point(arc.center);
        arc.xAxis = map.direction(arc.xAxis);
        arc.yAxis = map.direction(arc.yAxis);
    }
}

void mapItem(DisplayItem &item, const Matrix &map)
{
    std::visit(ShapeMapper{map}, item.shape);
}

} // namespace host::view
