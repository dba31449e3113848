#pragma once

#include "host/dcl/Tile.h"

#include <QFont>
#include <QSize>

namespace host::dcl {

/// What the units of dialog files are on this screen: widths count in characters of a middling width, heights in lines.
class TileMetrics
{
public:
    explicit TileMetrics(const QFont &font);

    /// In pixels as widgets count them, at least 0 and at most `widest`.
    int width(double characters) const;
    int height(double lines) const;
    /// What the tile's "width" and "height" ask for, 0 where they ask for nothing. Where there is but one of them and
    /// an "aspect_ratio", which is width by height, the other follows.
    QSize asked(const Tile &tile) const;

    /// No tile is made wider or higher than this many pixels, whatever its file asks for.
    static constexpr int widest = 4000;

private:
    double m_character;
    double m_line;
};

} // namespace host::dcl
