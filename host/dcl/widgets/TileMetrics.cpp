#include "host/dcl/widgets/TileMetrics.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace host::dcl {

using namespace Qt::StringLiterals;

namespace {

int pixels(double length)
{
    return int(std::clamp(std::ceil(length), 0.0, double(TileMetrics::widest)));
}

} // namespace

TileMetrics::TileMetrics(const QFont &font)
{
    const QFontMetricsF metrics(font);
    const QString letters = u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"_s;
    m_character = metrics.horizontalAdvance(letters) / double(letters.size());
    m_line = metrics.lineSpacing();
}

int TileMetrics::width(double characters) const
{
    return pixels(characters * m_character);
}

int TileMetrics::height(double lines) const
{
    return pixels(lines * m_line);
}

QSize TileMetrics::asked(const Tile &tile) const
{
    QSize size(width(tile.number(u"width"_s)), height(tile.number(u"height"_s)));
    const double ratio = tile.number(u"aspect_ratio"_s);
    if (ratio > 0 && size.height() == 0)
        size.setHeight(pixels(size.width() / ratio));
    else if (ratio > 0 && size.width() == 0)
        size.setWidth(pixels(size.height() * ratio));
    return size;
}

} // namespace host::dcl
