#include "host/drawing/annotation/DimensionSketch.h"

namespace host::drawing {

namespace {

/// From the text, which stands inside or outside of the circle, to the arrow at a point of it.
void sketchToCircle(DimensionSketch &sketch, Vec2 center, Vec2 point, bool isWholeLine)
{
    const DimensionData &data = sketch.data();
    const Vec2 out = unitAlong(point - center);
    const double radius = (point - center).length();
    const bool isInside = data.textAt && (*data.textAt - center).length() < radius;
    const Vec2 beside = point + out * (isInside ? -radius / 2.0 : 2.0 * sketch.arrowSize() + sketch.textSize().x / 2.0);
    sketch.placeText(beside, std::atan2(out.y, out.x), !isInside);
    sketch.arrow(point, isInside ? out : out * -1.0, false);
    const Vec2 from = point + out * (isInside ? -sketch.arrowLength(false) : sketch.arrowLength(false));
    const bool isLevel = std::abs(cross(unitVector(sketch.textRotation()), out)) > 1e-3;
    if (!sketch.hasText())
        sketch.line(from, isInside ? center : from + out * sketch.arrowSize());
    else if (isLevel)
        sketch.leaderToText(from);
    else if (isInside)
        sketch.brokenLine(center, from);
    else
        sketch.leaderToText(from);
    if (!isInside && (isWholeLine || sketch.style().forcesLineInside))
        sketch.line(center, point);
    else if (!isInside)
        sketch.centerMark(center, radius);
}

} // namespace

void sketchRadius(DimensionSketch &sketch)
{
    sketchToCircle(sketch, sketch.data().definition, sketch.data().third, false);
}

void sketchDiameter(DimensionSketch &sketch)
{
    const DimensionData &data = sketch.data();
    const Vec2 center = (data.definition + data.third) * 0.5;
    const double radius = (data.third - center).length();
    const bool isInside = !data.textAt || (*data.textAt - center).length() < radius;
    if (!isInside && !sketch.style().forcesLineInside) {
        sketchToCircle(sketch, center, data.third, false);
        return;
    }
    const Vec2 out = unitAlong(data.third - center);
    sketch.placeText(center, std::atan2(out.y, out.x), !isInside);
    sketch.arrow(data.definition, out * -1.0, false);
    sketch.arrow(data.third, out, true);
    sketch.brokenLine(data.definition + out * sketch.arrowLength(false), data.third - out * sketch.arrowLength(true));
    if (!isInside && sketch.hasText())
        sketch.leaderToText(data.third);
}

/// The line comes from a stand-in for the centre and jogs over to the one that leads to the true one.
void sketchLargeRadius(DimensionSketch &sketch)
{
    const DimensionData &data = sketch.data();
    const Vec2 out = unitAlong(data.third - data.definition);
    const double aside = cross(out, data.first - data.third);
    const double lean = (aside < 0.0 ? -1.0 : 1.0) * data.jogAngle;
    const double angle = std::atan2(out.y, out.x) + lean;
    sketch.placeText(data.second, std::atan2(out.y, out.x), false);
    sketch.arrow(data.third, out, false);
    const double slope = cross(out, unitVector(angle));
    const Vec2 end = data.third - out * sketch.arrowLength(false);
    if (std::abs(slope) < 1e-6) {
        sketch.brokenLine(data.first, end);
        return;
    }
    const auto onJog = [&](Vec2 line) {
        return data.second + unitVector(angle) * (cross(out, line - data.second) / slope);
    };
    sketch.line(data.first, onJog(data.first));
    sketch.line(onJog(data.first), onJog(data.third));
    sketch.brokenLine(onJog(data.third), end);
}

} // namespace host::drawing
