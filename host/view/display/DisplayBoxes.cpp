#include "host/view/display/DisplayBoxes.h"

#include "host/view/text/Fonts.h"

#include <numbers>

namespace host::view {

namespace {

/// How far round letters reach beyond the base line and the top of capitals, to look as high as straight ones.
constexpr double overshoot = 0.1;

struct BoxAdder
{
    Box &box;
    const Matrix &map;
    Fonts *fonts = nullptr; ///< by which texts are measured; without them they get room enough for any letters

    void operator()(const Stroke &stroke) const { addCurveBox(stroke.curve, map, box); }
    void operator()(const Fill &fill) const
    {
        std::ranges::for_each(fill.contours, [this](auto &c) { addCurveBox(c, map, box); });
    }
    void operator()(const Segments &segments) const
    {
        addPoints(segments.ends);
        addPoints(segments.dots);
    }
    void operator()(const Endless &) const {}
    void operator()(const PointMark &mark) const { box.add(map.point(mark.at)); }
    void operator()(const std::unique_ptr<TextRun> &run) const
    {
        // Capitals reach from 0 to 1; tails and accents a third beyond.
        const QRectF room = fonts ? letterBox(*fonts, *run) : QRectF(0.0, -0.35, run->width, 1.55);
        if (room.isNull())
            return;
        const Matrix placement = map * run->placement;
        for (const QPointF &corner : {room.topLeft(), room.topRight(), room.bottomLeft(), room.bottomRight()})
            box.add(placement.point({corner.x(), corner.y(), 0.0}));
    }
    void operator()(const std::unique_ptr<Raster> &raster) const
    {
        std::ranges::for_each(raster->area, [this](auto &c) { addCurveBox(c, map, box); });
    }
    void operator()(const std::unique_ptr<Reference> &) const {}

private:
    void addPoints(const Path &points) const
    {
        std::ranges::for_each(points, [this](auto &p) { box.add(map.point(p)); });
    }
};

/// Where a coordinate is largest or smallest on the whole ellipse, if the arc goes there.
void addTurns(const ArcSpan &arc, double x, double y, Box &box)
{
    constexpr double turn = 2.0 * std::numbers::pi;
    const double low = std::min(arc.start, arc.start + arc.sweep);
    const double peak = std::atan2(y, x);
    for (const double angle : {peak, peak + std::numbers::pi}) {
        const double from = std::fmod(std::fmod(angle - low, turn) + turn, turn);
        if (from <= std::abs(arc.sweep))
            box.add(arc.point(low + from));
    }
}

void addArcBox(const ArcSpan &arc, Box &box)
{
    box.add(arc.point(arc.start));
    box.add(arc.point(arc.start + arc.sweep));
    addTurns(arc, arc.xAxis.x, arc.yAxis.x, box);
    addTurns(arc, arc.xAxis.y, arc.yAxis.y, box);
    addTurns(arc, arc.xAxis.z, arc.yAxis.z, box);
}

} // namespace

void addItemBox(const DisplayItem &item, Box &box)
{
    std::visit(BoxAdder{box, Matrix()}, item.shape);
}

void addItemBox(const DisplayItem &item, const Matrix &map, Fonts &fonts, Box &box)
{
    std::visit(BoxAdder{box, map, &fonts}, item.shape);
}

void addCurveBox(const Curve &curve, const Matrix &map, Box &box)
{
    for (const Vec3 &point : curve.points)
        box.add(map.point(point));
    for (ArcSpan arc : curve.arcs) {
        arc.center = map.point(arc.center);
        arc.xAxis = map.direction(arc.xAxis);
        arc.yAxis = map.direction(arc.yAxis);
        addArcBox(arc, box);
    }
}

QRectF letterBox(Fonts &fonts, const TextRun &run)
{
    if (run.text.trimmed().isEmpty())
        return {};
    const drawing::Vec2 reach = fonts.reach(run.font, run.text);
    const double low = reach.x < -overshoot ? reach.x : 0.0;
    const double high = reach.y > 1.0 + overshoot ? reach.y : 1.0;
    // A stroke font's last letter counts without the room behind it, as it does where texts are aligned.
    const double right = fonts.isStroked(run.font) ? fonts.inkWidth(run.font, run.text) : run.width;
    return {0.0, low, right, high - low};
}

Box mappedBox(const Box &box, const Matrix &map)
{
    Box result;
    if (box.isEmpty())
        return result;
    for (int corner = 0; corner < 8; ++corner) {
        result.add(map.point({(corner & 1) != 0 ? box.high.x : box.low.x, (corner & 2) != 0 ? box.high.y : box.low.y,
                              (corner & 4) != 0 ? box.high.z : box.low.z}));
    }
    return result;
}

Box movedBox(const Box &box, const Vec3 &by)
{
    return box.isEmpty() ? box : Box{box.low + by, box.high + by};
}

Box clippedBox(const Box &box, const Path &clip, const Matrix &map)
{
    Box bounds;
    std::ranges::for_each(clip, [&](const Vec3 &corner) { bounds.add(map.point(corner)); });
    if (box.isEmpty() || !box.touchesFlat(bounds))
        return {};
    return {{std::max(box.low.x, bounds.low.x), std::max(box.low.y, bounds.low.y), box.low.z},
            {std::min(box.high.x, bounds.high.x), std::min(box.high.y, bounds.high.y), box.high.z}};
}

Box referenceBox(const Reference &reference, const Box &blockBox)
{
    const Box own = reference.clip.empty() ? blockBox : clippedBox(blockBox, reference.clip, {});
    Box first = mappedBox(own, reference.placement);
    first.add(reference.besideBox);
    return arrayBox(reference, {}, first);
}

Box arrayBox(const Reference &reference, const Matrix &map, const Box &first)
{
    const Vec3 across = map.direction(reference.columnStep * static_cast<double>(reference.columns - 1));
    const Vec3 up = map.direction(reference.rowStep * static_cast<double>(reference.rows - 1));
    Box whole = first;
    for (const Vec3 &step : {across, up, across + up})
        whole.add(movedBox(first, step));
    return whole;
}

} // namespace host::view
