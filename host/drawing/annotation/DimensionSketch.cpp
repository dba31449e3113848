#include "host/drawing/annotation/DimensionSketch.h"

#include "host/drawing/annotation/DimensionText.h"

#include <numbers>

namespace host::drawing {

namespace {

/// What of a segment lies within a rectangle round the origin, as fractions of its length; nothing when none does.
std::optional<std::pair<double, double>> withinBox(Vec2 from, Vec2 to, Vec2 half)
{
    const Vec2 along = to - from;
    double begin = 0.0;
    double end = 1.0;
    const auto cut = [&](double at, double step, double limit) {
        if (step == 0.0)
            return std::abs(at) < limit;
        const double a = (-limit - at) / step;
        const double b = (limit - at) / step;
        begin = std::max(begin, std::min(a, b));
        end = std::min(end, std::max(a, b));
        return begin < end;
    };
    if (!cut(from.x, along.x, half.x) || !cut(from.y, along.y, half.y))
        return std::nullopt;
    return std::pair(begin, end);
}

Vec2 inTextFrame(const DimensionPicture::Text &text, Vec2 point)
{
    const Vec2 along = unitVector(text.rotation);
    const Vec2 from = point - text.at;
    return {dot(from, along), cross(along, from)};
}

} // namespace

Vec2 unitVector(double angle)
{
    return {std::cos(angle), std::sin(angle)};
}

Vec2 unitAlong(Vec2 v)
{
    const double length = v.length();
    return length > 0.0 && std::isfinite(length) ? v * (1.0 / length) : Vec2{};
}

DimensionSketch::DimensionSketch(const DimensionData &data, const DimensionStyle &style, const TextSize &textSize)
    : m_data(data), m_style(style)
{
    DimensionPicture::Text &text = m_picture.text;
    text.content = dimensionText(data, style);
    text.height = textHeight();
    text.hasFrame = style.gap < 0.0;
    if (hasText())
        m_textSize = textSize(text.content, text.height);
    text.halfFrame = m_textSize * 0.5 + Vec2{gap(), gap()};
}

double DimensionSketch::arrowLength(bool isSecond) const
{
    return hasTicks() ? 0.0 : arrowSize() * arrowheadNamed(m_style.arrowAt(isSecond)).length;
}

double DimensionSketch::readable(double angle) const
{
    const double fromLevel = angle - m_data.horizontal;
    const bool isUpsideDown =
        std::cos(fromLevel) < -1e-9 || (std::abs(std::cos(fromLevel)) <= 1e-9 && std::sin(fromLevel) < 0.0);
    return isUpsideDown ? angle + std::numbers::pi : angle;
}

void DimensionSketch::placeText(Vec2 middle, double lineAngle, bool isOutside)
{
    DimensionPicture::Text &text = m_picture.text;
    const bool isLevel = isOutside ? m_style.isLevelOutside : m_style.isLevelInside;
    text.rotation = isLevel ? m_data.horizontal : readable(lineAngle);
    if (m_data.textRotation != 0.0)
        text.rotation = m_data.textRotation;
    text.at = middle;
    const Vec2 up = turnedLeft(unitVector(text.rotation));
    const double rise = gap() + m_textSize.y / 2.0;
    if (m_style.textPlace == 4)
        text.at = middle - up * rise;
    else if (m_style.textPlace != 0)
        text.at = middle + up * rise;
    else if (m_style.textRise != 0.0)
        text.at = middle + up * (m_style.textRise * textHeight());
    if (m_data.textAt)
        text.at = *m_data.textAt;
}

void DimensionSketch::line(Vec2 from, Vec2 to, Part part)
{
    if (!(from == to))
        m_picture.lines.push_back({from, to, part});
}

/// A text above its line keeps its distance: only one that stands in the line breaks it.
bool DimensionSketch::breaksLine(double distance) const
{
    return hasText() && (m_style.textPlace == 0 || m_picture.text.hasFrame || distance < textHeight() / 2.0);
}

void DimensionSketch::brokenLine(Vec2 from, Vec2 to)
{
    const DimensionPicture::Text &text = m_picture.text;
    const Vec2 along = unitAlong(to - from);
    const auto within = withinBox(inTextFrame(text, from), inTextFrame(text, to), text.halfFrame);
    if (!within || !breaksLine(std::abs(cross(along, text.at - from)))) {
        line(from, to);
        return;
    }
    if (within->first > 0.0)
        line(from, from + (to - from) * within->first);
    if (within->second < 1.0)
        line(from + (to - from) * within->second, to);
}

void DimensionSketch::brokenArc(const DimensionPicture::Arc &arc)
{
    const DimensionPicture::Text &text = m_picture.text;
    const auto isCovered = [&](double part) {
        const Vec2 at = inTextFrame(text, arc.center + unitVector(arc.start + arc.sweep * part) * arc.radius);
        return std::abs(at.x) < text.halfFrame.x && std::abs(at.y) < text.halfFrame.y;
    };
    const auto edge = [&](double free, double covered) {
        for (int i = 0; i < 20; ++i) {
            const double middle = (free + covered) / 2.0;
            (isCovered(middle) ? covered : free) = middle;
        }
        return free;
    };
    const bool breaks = breaksLine(std::abs((text.at - arc.center).length() - arc.radius));
    constexpr int steps = 256;
    double from = 0.0;
    bool wasCovered = breaks && isCovered(0.0);
    for (int i = 1; i <= steps; ++i) {
        const double at = static_cast<double>(i) / steps;
        const double before = static_cast<double>(i - 1) / steps;
        const bool isNow = breaks && isCovered(at);
        if (isNow && !wasCovered) {
            const double end = edge(before, at);
            m_picture.arcs.push_back({arc.center, arc.radius, arc.start + arc.sweep * from, arc.sweep * (end - from)});
        } else if (wasCovered && !isNow) {
            from = edge(at, before);
        }
        wasCovered = isNow;
    }
    if (!wasCovered)
        m_picture.arcs.push_back({arc.center, arc.radius, arc.start + arc.sweep * from, arc.sweep * (1.0 - from)});
}

void DimensionSketch::extension(Vec2 from, Vec2 foot, bool isSecond)
{
    if (isSecond ? m_style.hidesSecondExtension : m_style.hidesFirstExtension)
        return;
    const Vec2 along = unitAlong(foot - from);
    const Vec2 end = foot + along * scaled(m_style.extensionBeyond);
    Vec2 begin = from + along * scaled(m_style.extensionOffset);
    if (m_style.hasFixedExtension && (foot - begin).length() > scaled(m_style.fixedExtension))
        begin = foot - along * scaled(m_style.fixedExtension);
    if (dot(end - begin, along) > 0.0)
        line(begin, end, isSecond ? Part::SecondExtension : Part::FirstExtension);
}

void DimensionSketch::arrow(Vec2 tip, Vec2 direction, bool isSecond)
{
    if (arrowSize() > 0.0 && !(direction == Vec2{}))
        m_picture.arrows.push_back({tip, direction, arrowSize() * (hasTicks() ? 2.0 : 1.0), isSecond, hasTicks()});
}

void DimensionSketch::centerMark(Vec2 center, double radius)
{
    const double size = std::abs(scaled(m_style.centerMark));
    if (size == 0.0 || size >= radius)
        return;
    for (const Vec2 along : {Vec2{1.0, 0.0}, Vec2{0.0, 1.0}}) {
        line(center - along * size, center + along * size);
        if (m_style.centerMark < 0.0 && radius > size) {
            line(center + along * (2.0 * size), center + along * (radius + size));
            line(center - along * (2.0 * size), center - along * (radius + size));
        }
    }
}

void DimensionSketch::leaderToText(Vec2 from)
{
    const DimensionPicture::Text &text = m_picture.text;
    const Vec2 along = unitVector(text.rotation);
    const Vec2 up = turnedLeft(along);
    const double side = dot(text.at - from, along) < 0.0 ? -1.0 : 1.0;
    const bool isAbove = m_style.textPlace == 1 || m_style.textPlace == 2 || m_style.textPlace == 3;
    const Vec2 level = isAbove ? text.at - up * (m_textSize.y / 2.0 + gap()) : text.at;
    const Vec2 edge = level - along * (side * text.halfFrame.x);
    // A hook as long as an arrow, where the line does not come along the text anyway.
    const bool isHooked = std::abs(cross(unitAlong(edge - from), along)) > 0.26;
    const Vec2 hook = isHooked ? edge - along * (side * scaled(m_style.arrowSize)) : edge;
    line(from, hook);
    line(hook, isAbove ? level + along * (side * m_textSize.x / 2.0) : edge);
}

DimensionPicture dimensionPicture(const DimensionData &data, const DimensionStyle &style, const TextSize &textSize)
{
    DimensionSketch sketch(data, style, textSize);
    switch (data.kind) {
    case DimensionKind::Linear:
    case DimensionKind::Aligned:
        sketchLinear(sketch);
        break;
    case DimensionKind::AngularOfLines:
    case DimensionKind::AngularOfPoints:
        sketchAngle(sketch);
        break;
    case DimensionKind::Diameter:
        sketchDiameter(sketch);
        break;
    case DimensionKind::Radius:
        sketchRadius(sketch);
        break;
    case DimensionKind::LargeRadius:
        sketchLargeRadius(sketch);
        break;
    case DimensionKind::Ordinate:
        sketchOrdinate(sketch);
        break;
    case DimensionKind::Arc:
        sketchArcLength(sketch);
        break;
    }
    return sketch.take();
}

} // namespace host::drawing
