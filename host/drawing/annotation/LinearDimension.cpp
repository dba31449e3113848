#include "host/drawing/annotation/DimensionSketch.h"

#include <numbers>

namespace host::drawing {

namespace {

/// A straight dimension line between its two extension lines, measured along it from the first.
class LinearLayout
{
public:
    explicit LinearLayout(DimensionSketch &sketch) : m_sketch(sketch), m_style(sketch.style())
    {
        const DimensionData &data = sketch.data();
        m_along = unitVector(data.angle);
        m_first = foot(data.first);
        m_second = foot(data.second);
        if (dot(m_second - m_first, m_along) < 0.0)
            m_along = m_along * -1.0;
        m_length = (m_second - m_first).length();
    }

    void build()
    {
        const DimensionData &data = m_sketch.data();
        m_sketch.extension(data.first, m_first, false);
        m_sketch.extension(data.second, m_second, true);
        placeText();
        const bool isMoved = m_sketch.hasText() && m_style.textMove == 1 && isAwayFromLine();
        const bool isBetween = m_sketch.hasText() && !isMoved && isTextBetween();
        if (areArrowsInside(isBetween))
            addInside();
        else
            addOutside(isBetween);
        if (isMoved)
            addLeader();
    }

private:
    /// Where the extension line of a measured point meets the dimension line.
    Vec2 foot(Vec2 point) const
    {
        const DimensionData &data = m_sketch.data();
        const double aside = data.oblique != 0.0 ? data.angle + data.oblique : data.angle + std::numbers::pi / 2.0;
        const double slope = cross(m_along, unitVector(aside));
        if (std::abs(slope) < 1e-6)
            return data.definition;
        return data.definition + m_along * (cross(point - data.definition, unitVector(aside)) / slope);
    }

    double place(Vec2 point) const { return dot(point - m_first, m_along); }
    double lineAngle() const { return std::atan2(m_along.y, m_along.x); }
    double reach() const
    {
        const double turned = std::abs(cross(unitVector(m_sketch.textRotation()), m_along));
        return m_sketch.textSize().x / 2.0 * std::sqrt(std::max(0.0, 1.0 - turned * turned)) +
               m_sketch.textSize().y / 2.0 * turned + m_sketch.gap();
    }
    double arrows() const { return 2.0 * m_sketch.arrowSize() + 2.0 * m_sketch.gap(); }

    /// By the style: in the middle or at an end, and outside of the lines where there is no room.
    void placeText()
    {
        const double inset = m_sketch.arrowSize() + m_sketch.textSize().x / 2.0 + m_sketch.gap();
        double at = m_length / 2.0;
        if (m_style.justification == 1)
            at = std::min(at, inset);
        else if (m_style.justification == 2)
            at = std::max(at, m_length - inset);
        m_sketch.placeText(m_first + m_along * at, lineAngle(), false);
        if (!m_sketch.data().textAt && !m_style.forcesTextInside && 2.0 * reach() > m_length) {
            at = m_length + 2.0 * m_sketch.arrowSize() + reach();
            m_sketch.placeText(m_first + m_along * at, lineAngle(), true);
        } else if (!isTextBetween()) {
            m_sketch.placeText(m_sketch.textAt(), lineAngle(), true);
        }
    }

    bool isTextBetween() const
    {
        const double at = place(m_sketch.textAt());
        return at > 0.0 && at < m_length;
    }

    bool isAwayFromLine() const
    {
        const double away = std::abs(cross(m_along, m_sketch.textAt() - m_first));
        return m_sketch.data().textAt && away > 1.5 * (m_sketch.textSize().y + m_sketch.gap());
    }

    bool areArrowsInside(bool isBetween) const
    {
        if (m_sketch.arrowLength(false) == 0.0 && m_sketch.arrowLength(true) == 0.0)
            return true;
        const bool isInLine = isBetween && m_style.textPlace == 0;
        return m_length >= arrows() + (isInLine ? 2.0 * (reach() - m_sketch.gap()) : 0.0);
    }

    void addInside()
    {
        const double past = m_sketch.arrowLength(false) == 0.0 ? m_sketch.scaled(m_style.lineBeyond) : 0.0;
        const double middle = std::clamp(place(m_sketch.textAt()), 0.0, m_length);
        const Vec2 from = m_first + m_along * (m_sketch.arrowLength(false) - past);
        const Vec2 to = m_second - m_along * (m_sketch.arrowLength(true) - past);
        const Vec2 between = m_first + m_along * middle;
        if (!m_style.hidesFirstLine)
            m_sketch.arrow(m_first, m_along * -1.0, false);
        if (!m_style.hidesSecondLine)
            m_sketch.arrow(m_second, m_along, true);
        if (!m_style.hidesFirstLine && !m_style.hidesSecondLine)
            m_sketch.brokenLine(from, to);
        else if (!m_style.hidesFirstLine)
            m_sketch.brokenLine(from, between);
        else if (!m_style.hidesSecondLine)
            m_sketch.brokenLine(between, to);
        addLineToText();
    }

    void addOutside(bool isBetween)
    {
        m_sketch.arrow(m_first, m_along, false);
        m_sketch.arrow(m_second, m_along * -1.0, true);
        const double size = m_sketch.arrowSize();
        m_sketch.line(m_first - m_along * m_sketch.arrowLength(false), m_first - m_along * (2.0 * size));
        m_sketch.line(m_second + m_along * m_sketch.arrowLength(true), m_second + m_along * (2.0 * size));
        if (m_style.forcesLineInside || !isBetween)
            m_sketch.brokenLine(m_first, m_second);
        addLineToText();
    }

    /// A text on the line beyond its ends is reached by it, or stands on it.
    void addLineToText()
    {
        if (!m_sketch.hasText() || isTextBetween() || isAwayFromLine() || m_style.textMove == 2)
            return;
        const double at = place(m_sketch.textAt());
        const double side = at < 0.0 ? -1.0 : 1.0;
        const double edge = m_style.textPlace == 0 ? at - side * reach() : at + side * (reach() - m_sketch.gap());
        const double end = at < 0.0 ? 0.0 : m_length;
        if ((edge - end) * side > 0.0)
            m_sketch.line(m_first + m_along * end, m_first + m_along * edge);
    }

    /// The point of a text that has a leader is where its side begins.
    void addLeader()
    {
        const Vec2 along = unitVector(m_sketch.textRotation());
        const Vec2 middle = (m_first + m_second) * 0.5;
        const double side = dot(m_sketch.textAt() - middle, along) < 0.0 ? -1.0 : 1.0;
        const Vec2 end = m_sketch.textAt() - along * (side * m_sketch.gap());
        const Vec2 hook = end - along * (side * m_sketch.scaled(m_style.arrowSize));
        m_sketch.line(middle, hook);
        m_sketch.line(hook, end);
        m_sketch.moveText(m_sketch.textAt() + along * (side * m_sketch.textSize().x / 2.0));
    }

    DimensionSketch &m_sketch;
    const DimensionStyle &m_style;
    Vec2 m_along;
    Vec2 m_first;
    Vec2 m_second;
    double m_length = 0.0;
};

} // namespace

void sketchLinear(DimensionSketch &sketch)
{
    LinearLayout(sketch).build();
}

/// Along x or y from the feature, then with a jog to where the text stands.
void sketchOrdinate(DimensionSketch &sketch)
{
    const DimensionData &data = sketch.data();
    const Vec2 level = unitVector(data.horizontal);
    const Vec2 along = data.isOrdinateX ? turnedLeft(level) : level;
    const double way = dot(data.second - data.first, along);
    const Vec2 out = way < 0.0 ? along * -1.0 : along;
    const Vec2 begin = data.first + out * sketch.scaled(sketch.style().extensionOffset);
    const double size = sketch.scaled(sketch.style().arrowSize);
    sketch.placeText(data.second + out * (sketch.gap() + sketch.textSize().x / 2.0), std::atan2(along.y, along.x),
                     false);
    sketch.turnText(std::atan2(along.y, along.x));
    Vec2 end = data.second;
    // A text above its line has it below itself.
    if (sketch.hasText() && sketch.style().textPlace != 0)
        end = end + out * std::max(0.0, dot(sketch.textAt() - end, out) + sketch.textSize().x / 2.0);
    const double aside = cross(out, data.second - data.first);
    if (std::abs(aside) <= 1e-9 * (1.0 + std::abs(way))) {
        sketch.line(begin, end);
        return;
    }
    const Vec2 knee = data.second - out * (2.0 * size);
    const Vec2 bend = data.second - out * (4.0 * size) - turnedLeft(out) * aside;
    sketch.line(begin, bend);
    sketch.line(bend, knee);
    sketch.line(knee, end);
}

} // namespace host::drawing
