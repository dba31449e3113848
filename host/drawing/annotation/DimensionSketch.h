#pragma once

#include "host/drawing/annotation/Arrowheads.h"
#include "host/drawing/annotation/DimensionPicture.h"

namespace host::drawing {

Vec2 unitVector(double angle);
/// Of length 1, or zero.
Vec2 unitAlong(Vec2 v);

/// A dimension's picture while its parts are put down. Lengths of the style come multiplied with its scale.
class DimensionSketch
{
public:
    using Part = DimensionPicture::Part;

    DimensionSketch(const DimensionData &data, const DimensionStyle &style, const TextSize &textSize);

    const DimensionData &data() const { return m_data; }
    const DimensionStyle &style() const { return m_style; }
    DimensionPicture take() { return std::move(m_picture); }

    double scaled(double length) const { return length * m_style.scale; }
    bool hasTicks() const { return m_style.tickSize > 0.0; }
    double arrowSize() const { return hasTicks() ? scaled(m_style.tickSize) : scaled(m_style.arrowSize); }
    /// How far behind its tip an arrow's line ends.
    double arrowLength(bool isSecond) const;
    double gap() const { return std::abs(scaled(m_style.gap)); }
    double textHeight() const { return scaled(m_style.textHeight); }
    Vec2 textSize() const { return m_textSize; }
    bool hasText() const { return !m_picture.text.content.isEmpty(); }

    /// Turns the text along a line, or level where the style wants it, and puts it where the dimension says, or
    /// beside `middle`.
    void placeText(Vec2 middle, double lineAngle, bool isOutside);
    /// Moves it after all.
    void moveText(Vec2 to) { m_picture.text.at = to; }
    Vec2 textAt() const { return m_picture.text.at; }
    double textRotation() const { return m_picture.text.rotation; }
    void turnText(double angle) { m_picture.text.rotation = readable(angle); }
    /// A direction so that text along it is read from below or from the right.
    double readable(double angle) const;

    void line(Vec2 from, Vec2 to, Part part = Part::Line);
    /// Left out where the text stands in it.
    void brokenLine(Vec2 from, Vec2 to);
    void brokenArc(const DimensionPicture::Arc &arc);
    /// From a measured point towards its foot on the dimension line.
    void extension(Vec2 from, Vec2 foot, bool isSecond);
    void arrow(Vec2 tip, Vec2 direction, bool isSecond);
    void sign(const DimensionPicture::Arc &arc) { m_picture.signs.push_back(arc); }
    /// The mark in the middle of a circle.
    void centerMark(Vec2 center, double radius);
    /// A line that comes from `from` and ends level beside the text, or below it when it stands above its line.
    void leaderToText(Vec2 from);

private:
    bool breaksLine(double distance) const;

    const DimensionData &m_data;
    const DimensionStyle &m_style;
    Vec2 m_textSize;
    DimensionPicture m_picture;
};

// Each family of kinds in a file of its own.
void sketchLinear(DimensionSketch &sketch);
void sketchRadius(DimensionSketch &sketch);
void sketchDiameter(DimensionSketch &sketch);
void sketchLargeRadius(DimensionSketch &sketch);
void sketchAngle(DimensionSketch &sketch);
void sketchArcLength(DimensionSketch &sketch);
void sketchOrdinate(DimensionSketch &sketch);

} // namespace host::drawing
