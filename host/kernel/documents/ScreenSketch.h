#pragma once

#include "host/drawing/math/Vec.h"

#include <QHash>
#include <QString>

#include <vector>

namespace host::kernel {

/// What programs show for the moment, over the drawing and beside it: no part of the drawing, gone with the next
/// redraw. The document tells when it is another (sketchChanged()).
class ScreenSketch
{
public:
    /// Drawing a line in this colour a second time takes it away.
    static constexpr int inverted = -1;
    /// More are not kept: nobody sees them apart.
    static constexpr std::size_t mostLines = 200'000;

    struct Line
    {
        drawing::Vec3 from; ///< world coordinates
        drawing::Vec3 to;
        int colour = 7; ///< an index of the table of colours, or `inverted`
        bool isHighlighted = false;

        bool operator==(const Line &) const = default;
    };

    /// Where texts stand.
    enum class Place
    {
        Status,     ///< the line that modes are shown in
        Coordinates ///< where the pointer's place is
    };

    /// Looks for an inverted line among the last few thousand.
    void draw(const Line &line);
    void clear() { m_lines.clear(); }
    const std::vector<Line> &lines() const { return m_lines; }
    /// In place of the text before; empty: what is there otherwise.
    void write(Place place, const QString &text) { m_texts.insert(place, text); }
    QString text(Place place) const { return m_texts.value(place); }
    void clearTexts() { m_texts.clear(); }

private:
    std::vector<Line> m_lines;
    QHash<Place, QString> m_texts;
};

} // namespace host::kernel
