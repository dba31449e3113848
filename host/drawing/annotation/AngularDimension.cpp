#include "host/drawing/annotation/DimensionSketch.h"

#include <numbers>

namespace host::drawing {

namespace {

/// Along the ray at `angle`, from the nearest of what lies on it to the arc; none where the arc ends on a line.
void addRayExtension(DimensionSketch &sketch, const AngleSpan &span, double angle, double radius, Vec2 a, Vec2 b,
                     bool isSecond)
{
    const Vec2 out = unitVector(angle);
    const double first = dot(a - span.center, out);
    const double second = dot(b - span.center, out);
    const double low = std::min(first, second);
    const double high = std::max(first, second);
    if (radius < low)
        sketch.extension(span.center + out * low, span.center + out * radius, isSecond);
    else if (radius > high)
        sketch.extension(span.center + out * high, span.center + out * radius, isSecond);
}

/// Whether the ray belongs to the line through two points.
bool isAlong(double angle, Vec2 a, Vec2 b)
{
    return std::abs(cross(unitVector(angle), unitAlong(b - a))) < 1e-6;
}

/// The arc between two angles, with its arrows and its text.
void addDimensionArc(DimensionSketch &sketch, const AngleSpan &span, double radius)
{
    const double middle = span.start + span.sweep / 2.0;
    sketch.placeText(span.center + unitVector(middle) * radius, middle + std::numbers::pi / 2.0, false);
    if (!(radius > 0.0))
        return;
    const double size = sketch.arrowLength(false);
    const double room = 2.0 * (sketch.arrowSize() + sketch.gap()) +
                        (sketch.hasText() && sketch.style().textPlace == 0 ? sketch.textSize().x : 0.0);
    const bool isInside = span.sweep * radius >= room || size == 0.0;
    // The chord of an arrow that lies on the arc.
    const double step = 2.0 * std::asin(std::min(1.0, sketch.arrowSize() / (2.0 * radius)));
    const double inwards = isInside ? 1.0 : -1.0;
    const auto addEnd = [&](double angle, double side, bool isSecond) {
        const Vec2 tip = span.center + unitVector(angle) * radius;
        const Vec2 back = span.center + unitVector(angle + side * inwards * step) * radius;
        sketch.arrow(tip, unitAlong(tip - back), isSecond);
        if (!isInside)
            sketch.brokenArc({span.center, radius, angle - side * step, -side * step});
    };
    addEnd(span.start, 1.0, false);
    addEnd(span.start + span.sweep, -1.0, true);
    const double cut = isInside && size > 0.0 ? step * size / sketch.arrowSize() : 0.0;
    if (span.sweep > 2.0 * cut)
        sketch.brokenArc({span.center, radius, span.start + cut, span.sweep - 2.0 * cut});
}

} // namespace

void sketchAngle(DimensionSketch &sketch)
{
    const DimensionData &data = sketch.data();
    const bool isOfLines = data.kind == DimensionKind::AngularOfLines;
    const AngleSpan span = isOfLines ? angleOfLines(data) : angleOfPoints(data);
    const double radius = ((isOfLines ? data.fourth : data.definition) - span.center).length();
    const auto addExtension = [&](double angle, bool isSecond) {
        if (!isOfLines) {
            const bool isFirst = isAlong(angle, span.center, data.first);
            const Vec2 end = isFirst ? data.first : data.second;
            addRayExtension(sketch, span, angle, radius, end, end, isSecond);
        } else if (isAlong(angle, data.first, data.second)) {
            addRayExtension(sketch, span, angle, radius, data.first, data.second, isSecond);
        } else {
            addRayExtension(sketch, span, angle, radius, data.third, data.definition, isSecond);
        }
    };
    addExtension(span.start, false);
    addExtension(span.start + span.sweep, true);
    addDimensionArc(sketch, span, radius);
}

/// Extension lines run side by side for less than a right angle, and from the centre for more.
void sketchArcLength(DimensionSketch &sketch)
{
    const DimensionData &data = sketch.data();
    AngleSpan span = angleOfPoints(data);
    const double radius = (data.definition - data.third).length();
    const Vec2 first = data.third + unitVector(span.start) * (data.first - data.third).length();
    const Vec2 second = data.third + unitVector(span.start + span.sweep) * (data.first - data.third).length();
    if (span.sweep < std::numbers::pi / 2.0) {
        const Vec2 out = unitVector(span.start + span.sweep / 2.0);
        const auto foot = [&](Vec2 from) {
            const Vec2 at = from - data.third;
            const double aside = cross(out, at);
            const double rise = std::sqrt(std::max(0.0, radius * radius - aside * aside));
            return from + out * (rise - dot(at, out));
        };
        const Vec2 begin = foot(first) - data.third;
        const Vec2 end = foot(second) - data.third;
        sketch.extension(first, foot(first), false);
        sketch.extension(second, foot(second), true);
        span.start = std::atan2(begin.y, begin.x);
        span.sweep = std::atan2(cross(begin, end), dot(begin, end));
    } else {
        sketch.extension(first, data.third + unitVector(span.start) * radius, false);
        sketch.extension(second, data.third + unitVector(span.start + span.sweep) * radius, true);
    }
    addDimensionArc(sketch, span, radius);
    if (data.leaderFrom) {
        const Vec2 along = unitAlong(data.leaderTo - *data.leaderFrom);
        sketch.arrow(data.leaderTo, along, false);
        sketch.line(*data.leaderFrom, data.leaderTo - along * sketch.arrowLength(false));
    }
    if (!sketch.hasText() || sketch.style().arcSign > 1)
        return;
    const double size = 0.82 * sketch.textHeight();
    const Vec2 along = unitVector(sketch.textRotation());
    const Vec2 up = turnedLeft(along);
    const Vec2 at = sketch.style().arcSign == 0
                        ? sketch.textAt() - along * (sketch.textSize().x / 2.0 + 1.3 * size) - up * (size / 2.0)
                        : sketch.textAt() + up * (sketch.textSize().y / 2.0);
    sketch.sign({at, size, sketch.textRotation(), std::numbers::pi});
}

} // namespace host::drawing
