#include "host/view/DisplayBoxes.h"

#include <numbers>

namespace host::view {

namespace {

struct BoxAdder
{
    Box &box;

    void operator()(const Stroke &stroke) const { addCurve(stroke.curve); }
    void operator()(const Fill &fill) const
    {
        std::ranges::for_each(fill.contours, [this](auto &c) { addCurve(c); });
    }
    void operator()(const Segments &segments) const
    {
        addPoints(segments.ends);
        addPoints(segments.dots);
    }
    void operator()(const Endless &) const {}
    void operator()(const PointMark &mark) const { box.add(mark.at); }
    void operator()(const std::unique_ptr<TextRun> &run) const
    {
        // Capitals reach from 0 to 1; tails and accents a third beyond.
        for (const double y : {-0.35, 1.2}) {
            box.add(run->placement.point({0.0, y, 0.0}));
            box.add(run->placement.point({run->width, y, 0.0}));
        }
    }
    void operator()(const std::unique_ptr<Reference> &) const {}

private:
    void addPoints(const Path &points) const
    {
        std::ranges::for_each(points, [this](auto &p) { box.add(p); });
    }
    void addCurve(const Curve &curve) const
    {
        addPoints(curve.points);
        std::ranges::for_each(curve.arcs, [this](auto &arc) { addArc(arc); });
    }
    void addArc(const ArcSpan &arc) const
    {
        box.add(arc.point(arc.start));
        box.add(arc.point(arc.start + arc.sweep));
        addTurns(arc, arc.xAxis.x, arc.yAxis.x);
        addTurns(arc, arc.xAxis.y, arc.yAxis.y);
        addTurns(arc, arc.xAxis.z, arc.yAxis.z);
    }
    /// Where a coordinate is largest or smallest on the whole ellipse, if the arc goes there.
    void addTurns(const ArcSpan &arc, double x, double y) const
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
};

/// The box that a box becomes: that of its eight corners.
Box mapped(const Box &box, const Matrix &map)
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

Box moved(const Box &box, const Vec3 &by)
{
    Box result = box;
    if (!box.isEmpty()) {
        result.low = box.low + by;
        result.high = box.high + by;
    }
    return result;
}

Box clipped(const Box &box, const Path &clip)
{
    Box bounds;
    std::ranges::for_each(clip, [&](const Vec3 &corner) { bounds.add(corner); });
    if (box.isEmpty() || !box.touchesFlat(bounds))
        return {};
    return {{std::max(box.low.x, bounds.low.x), std::max(box.low.y, bounds.low.y), box.low.z},
            {std::min(box.high.x, bounds.high.x), std::min(box.high.y, bounds.high.y), box.high.z}};
}

} // namespace

void addItemBox(const DisplayItem &item, Box &box)
{
    std::visit(BoxAdder{box}, item.shape);
}

Box referenceBox(const Reference &reference, const Box &blockBox)
{
    const Box own = reference.clip.empty() ? blockBox : clipped(blockBox, reference.clip);
    Box first = mapped(own, reference.placement);
    first.add(reference.besideBox);
    const Vec3 across = reference.columnStep * static_cast<double>(reference.columns - 1);
    const Vec3 up = reference.rowStep * static_cast<double>(reference.rows - 1);
    Box whole = first;
    for (const Vec3 &step : {across, up, across + up})
        whole.add(moved(first, step));
    return whole;
}

} // namespace host::view
