#include "host/view/build/DisplayBuilder.h"
#include "host/view/build/FileMark.h"
#include "host/view/build/Scene.h"

namespace host::view {

using drawing::TagList;

namespace {

/// A picture or mask as its record places it.
struct PicturePlace
{
    Matrix placement{};        ///< from a square of 0 to 1 both ways, y up
    std::vector<Curve> area{}; ///< what is seen of it: closed, every second area inwards
    bool isClipped = false;
    Box seen{{0.0, 0.0, 0.0}, {1.0, 1.0, 0.0}}; ///< around the clip boundary, in the same coordinates as the square
};

Curve closedCurve(Path corners)
{
    corners.push_back(corners.front());
    return {.points = std::move(corners)};
}

/// The corners of the clip boundary, in parts of the picture's width and height from its lower left corner; fewer than
/// three where it has none. The record counts in pixels from the middle of the top left one, y down.
Path clipCorners(const TagList &tags, const Vec3 &size)
{
    Path corners = tags.points(14);
    if (tags.integer(280, 1) == 0 || corners.size() < 2)
        return {};
    if (corners.size() == 2) {
        const Vec3 a = corners[0];
        const Vec3 b = corners[1];
        corners = {a, {b.x, a.y, 0.0}, b, {a.x, b.y, 0.0}};
    }
    if (corners.front() == corners.back())
        corners.pop_back();
    for (Vec3 &corner : corners)
        corner = {(corner.x + 0.5) / size.x, (size.y - 0.5 - corner.y) / size.y, 0.0};
    return corners;
}

/// Whether the corners are those of the whole picture.
bool areWhole(const Path &corners)
{
    return corners.size() == 4 && std::ranges::all_of(corners, [](const Vec3 &corner) {
               return (corner.x == 0.0 || corner.x == 1.0) && (corner.y == 0.0 || corner.y == 1.0);
           });
}

/// Nothing when the numbers make no place.
std::optional<PicturePlace> placeOf(const TagList &tags)
{
    const Vec3 size = tags.point(13, {1.0, 1.0, 0.0});
    PicturePlace place;
    place.placement = {tags.point(11) * size.x, tags.point(12) * size.y, {0.0, 0.0, 1.0}, tags.point(10)};
    const Path corners = clipCorners(tags, size);
    const bool isInverted = tags.integer(290) == 1;
    place.isClipped = corners.size() > 2 && !areWhole(corners);
    if (!place.isClipped || isInverted)
        place.area.push_back(closedCurve({{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}}));
    if (place.isClipped && !isInverted) {
        place.seen = {};
        std::ranges::for_each(corners, [&place](const Vec3 &corner) { place.seen.add(corner); });
    }
    if (place.isClipped)
        place.area.push_back(closedCurve(corners));
    for (Curve &contour : place.area) {
        for (Vec3 &point : contour.points)
            point = place.placement.point(point);
        if (!areUsable(contour.points))
            return std::nullopt;
    }
    return place;
}

void addFrames(BuildContext &context, const std::vector<Curve> &area, bool DisplayItem::*kind)
{
    for (const Curve &contour : area) {
        context.add(Stroke{contour});
        if (kind)
            context.display.items.back().*kind = true;
    }
}

/// The file that an image's definition names; empty without a definition.
QString imageFile(const BuildContext &context, const TagList &tags)
{
    const RecordId definition = context.drawing.find(tags.handle(340));
    return isValid(definition) && context.drawing.isAlive(definition) ? context.drawing.tags(definition).text(1)
                                                                      : QString();
}

std::shared_ptr<const RasterPixels> readPixels(BuildContext &context, const TagList &tags, const QString &file)
{
    const auto percent = [&tags](int code) {
        return static_cast<int>(std::clamp<qint64>(tags.integer(code, 50), 0, 100));
    };
    const RasterLook look{.brightness = percent(281), .contrast = percent(282)};
    return file.isEmpty() ? nullptr : context.scene.images().find(file, look);
}

void addRaster(BuildContext &context, const TagList &tags, const PicturePlace &place,
               std::shared_ptr<const RasterPixels> pixels)
{
    constexpr qint64 isTransparent = 8;
    const double fade = static_cast<double>(std::clamp<qint64>(tags.integer(283), 0, 100)) / 100.0;
    auto raster = std::make_unique<Raster>(Raster{.pixels = std::move(pixels),
                                                  .placement = place.placement,
                                                  .area = place.area,
                                                  .isClipped = place.isClipped,
                                                  .isTransparent = (tags.integer(70) & isTransparent) != 0,
                                                  .opacity = 1.0 - fade});
    context.add(std::move(raster));
}

} // namespace

bool buildWipeout(BuildContext &context, const TagList &tags)
{
    const auto place = placeOf(tags);
    if (!place)
        return false;
    context.add(Fill{.contours = place->area, .kind = FillKind::Mask});
    addFrames(context, place->area, &DisplayItem::isMaskFrame);
    return true;
}

/// One that is switched off shows its frame; one whose file is not to be had its name as well, whatever the drawing
/// says about frames.
bool buildImage(BuildContext &context, const TagList &tags)
{
    constexpr qint64 isShown = 1;
    const auto place = placeOf(tags);
    if (!place)
        return false;
    const QString file = imageFile(context, tags);
    const bool isWanted = (tags.integer(70, isShown) & isShown) != 0;
    auto pixels = isWanted ? readPixels(context, tags, file) : nullptr;
    const bool isMissing = isWanted && !pixels;
    if (pixels)
        addRaster(context, tags, *place, std::move(pixels));
    addFrames(context, place->area, isMissing ? nullptr : &DisplayItem::isImageFrame);
    if (isMissing)
        addFileName(context, place->placement * squareOnto(place->seen), file);
    context.display.isSimplified = isMissing;
    return true;
}

} // namespace host::view
