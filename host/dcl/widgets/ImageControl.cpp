#include "host/dcl/widgets/ImageControl.h"

#include "host/dcl/widgets/ImageTile.h"
#include "host/dcl/widgets/TileMetrics.h"

#include <algorithm>

namespace host::dcl {

using namespace Qt::StringLiterals;

namespace {

struct NamedColor
{
    const char *name;
    int number;
};

constexpr NamedColor namedColors[] = {
    {"dialog_line", -18},
    {"dialog_foreground", -16},
    {"dialog_background", -15},
    {"graphics_background", -2},
    {"black", 0},
    {"red", 1},
    {"yellow", 2},
    {"green", 3},
    {"cyan", 4},
    {"blue", 5},
    {"magenta", 6},
    {"white", 7},
    {"graphics_foreground", 7},
};

int groundOf(const Tile &tile)
{
    const QString word = tile.word(u"color"_s);
    const auto named = std::find_if(std::begin(namedColors), std::end(namedColors),
                                    [&word](const NamedColor &color) { return word == QLatin1StringView(color.name); });
    return named != std::end(namedColors) ? named->number : tile.integer(u"color"_s, -15, -18, 255);
}

ImageTile *makeImage(const Tile &tile, const TileMetrics &metrics)
{
    auto *image = new ImageTile(tile.kind == TileKind::ImageButton ? ImageTile::Use::Button : ImageTile::Use::Picture);
    constexpr int least = 8;
    image->setMinimumSize(metrics.asked(tile).expandedTo({least, least}));
    image->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    image->setGround(groundOf(tile));
    return image;
}

} // namespace

ImageControl::ImageControl(const Tile &tile, const TileMetrics &metrics) : ImageControl(tile, makeImage(tile, metrics))
{
}

ImageControl::ImageControl(const Tile &tile, ImageTile *image) : TileControl(tile, image, image)
{
    connect(image, &ImageTile::pressed, this, [this](const QPoint &at) { report(Reason::Chosen, at); });
    connect(image, &ImageTile::doubleClicked, this, [this](const QPoint &at) {
        report(Reason::DoubleClick, at);
        if (m_onDoubleClick)
            m_onDoubleClick(*this);
    });
}

ImageTile *ImageControl::image() const
{
    return static_cast<ImageTile *>(field());
}

void ImageControl::flipHighlight()
{
    image()->flipHighlight();
}

} // namespace host::dcl
